// What the percentage files give: rows, filters and marks.
#include "data/modORV_perczit.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "data/modORV_compbums.h"
#include "data/modORV_leden.h"
#include "lezing.h"

namespace lauwerkrans {
namespace {

using proef::LeesProef;
using Rijen = std::vector<std::string>;

/// A competition of two rounds of three sessions and lines A and B, with four members.
struct Proef : proef::ProefCompetitie {
    Proef() : ProefCompetitie(2, 3, 2) {
        schrijfLeden(999, {{3, "Jan", "", "Smit"},
                           {17, "Ruud", "van", "Dam"},
                           {12, "Zoë", "", "Müller"},
                           {305, "Piet", "de", "Wit"}});
        laad();
    }
};

/// The given column of all filled rows.
Rijen Kolom(const Lezing& lezing, std::size_t kolom) {
    Rijen cellen;
    for (std::size_t i = 1; i <= lezing.zitRegels.gevuld(); ++i)
        cellen.push_back(lezing.zitRegels.cel(i, kolom));
    return cellen;
}

/// Session 2 of round 1 with these lines, read for lines A and B.
Lezing LeesRegels(const Rijen& regels) {
    Proef proef;
    proef.schrijfZitting(1, 2, regels);
    Lezing lezing = LeesProef(proef, "AB");
    EXPECT_EQ(proef.meldingen.getoond, std::vector<Melding>{});
    return lezing;
}

TEST(Percentagebestand, GivesARowWithAllItsColumns) {
    const Lezing lezing =
        LeesRegels({"91,\"92\",\"A7\",\"17-3\",\"57,125\",24,97", "81,82,B6,305-12,43.5,104,87"});
    const std::vector<Rijen> rijen = {
        {"A", "       3      17", "57,125", "R01-Z02-24", "", "", "", "Ruud van Dam - Jan Smit"},
        {"B", "      12     305", "43.5", "R01-Z02-104", "", "", "", "Piet de Wit - Zoë Müller"}};
    ASSERT_EQ(lezing.zitRegels.gevuld(), rijen.size());
    for (std::size_t rij = 1; rij <= rijen.size(); ++rij) {
        for (std::size_t kolom = 1; kolom <= zitRegelKolommen; ++kolom)
            EXPECT_EQ(lezing.zitRegels.cel(rij, kolom), rijen[rij - 1][kolom - 1]);
    }
    EXPECT_EQ(lezing.zitRegels.cel(3, 1), "");
}

TEST(Percentagebestand, HasRoomFor160PairsPerSession) {
    const Lezing lezing = LeesRegels({});
    EXPECT_EQ(lezing.zitRegels.ruimte(), 2U * 3U * 160U);
    EXPECT_EQ(lezing.zitRegels.gevuld(), 0U);
    EXPECT_EQ(lezing.zitRegels.cel(960, 8), "");
    EXPECT_THROW(static_cast<void>(lezing.zitRegels.cel(961, 8)), std::out_of_range);
}

TEST(Percentagebestand, IsReadRoundByRoundAndSessionBySession) {
    Proef proef;
    proef.schrijfZitting(2, 3, {"1,2,A1,3-12,23,1,7"});
    proef.schrijfZitting(1, 1, {"1,2,A1,3-12,11,1,7", "1,2,A2,17-305,12,2,7"});
    proef.schrijfZitting(2, 1, {"1,2,A1,3-12,21,1,7"});
    proef.schrijfZitting(1, 3, {"1,2,A1,3-12,13,1,7"});
    const Lezing lezing = LeesProef(proef, "A");
    EXPECT_EQ(Kolom(lezing, 3), (Rijen{"11", "12", "13", "21", "23"}));
    EXPECT_EQ(Kolom(lezing, 4),
              (Rijen{"R01-Z01-01", "R01-Z01-02", "R01-Z03-01", "R02-Z01-01", "R02-Z03-01"}));
    EXPECT_EQ(proef.meldingen.getoond, std::vector<Melding>{});
}

TEST(Percentagebestand, OfARoundOrSessionBeyondTheCompetitionIsNotRead) {
    Proef proef;
    proef.schrijfZitting(3, 1, {"fout"});
    proef.schrijfZitting(1, 4, {"fout"});
    EXPECT_EQ(LeesProef(proef, "AB").zitRegels.gevuld(), 0U);
}

TEST(Percentagebestand, ThatIsAbsentEverywhereGivesNoRowAndNoSession) {
    Proef proef;
    const Lezing lezing = LeesProef(proef, "AB");
    EXPECT_EQ(lezing.zitRegels.gevuld(), 0U);
    EXPECT_EQ(lezing.rondeInfo.cel(1, 4), "0");
    EXPECT_EQ(lezing.rondeInfo.cel(2, 4), "0");
    EXPECT_EQ(proef.meldingen.getoond, std::vector<Melding>{});
}

TEST(Regelcode, HasTwoDigitsAtLeastInEveryPart) {
    proef::ProefCompetitie proef(12, 10, 1);
    proef.laad();
    proef.schrijfZitting(12, 3, {"1,2,A1,3-12,50,7,7", "1,2,A1,3-12,50,104,7"});
    proef.schrijfZitting(1, 10, {"1,2,A1,3-12,50,28,7"});
    const Rijen codes = Kolom(LeesProef(proef, "A"), 4);
    EXPECT_EQ(codes, (Rijen{"R01-Z10-28", "R12-Z03-07", "R12-Z03-104"}));
    EXPECT_EQ(codes[1].substr(1, 2) + codes[1].substr(5, 2) + codes[1].substr(8), "120307");
}

TEST(Regelcode, HoldsTheLeadingNumberOfTheBoardsAsAWholeNumber) {
    const Rijen velden = {"7", "7.4", "7.5", "6.5",   "7,9", " 24 ",      "\"24\"", "24x", "",
                          "x", "+5",  "-7",  "00012", "\t8", "123456789", "0.4",    "1e3", "99.5"};
    const Rijen codes = {"07", "07", "08",  "07", "07", "24",        "24", "24", "00",
                         "00", "05", "-07", "12", "08", "123456789", "00", "01", "100"};
    Rijen regels;
    for (const auto& veld : velden)
        regels.push_back("1,2,A1,3-12,50," + (veld == "7,9" ? "\"7,9\"" : veld) + ",7");
    const Rijen gelezen = Kolom(LeesRegels(regels), 4);
    ASSERT_EQ(gelezen.size(), codes.size());
    for (std::size_t i = 0; i < codes.size(); ++i)
        EXPECT_EQ(gelezen[i], "R01-Z02-" + codes[i]) << "'" << velden[i] << "'";
}

TEST(Percentageveld, IsKeptAsItIsWritten) {
    const Rijen teksten = {"57,125", "57.125", "5,5", "100", "100,000", " 57,1 ", "",
                           "abc",    "1e1",    "-3",  "57,", "007",     "Zo\xEB", "57,12345678"};
    Rijen regels;
    for (const auto& tekst : teksten)
        regels.push_back("1,2,A1,3-12,\"" + tekst + "\",24,7");
    Rijen verwacht = teksten;
    verwacht[12] = "Zoë";
    EXPECT_EQ(Kolom(LeesRegels(regels), 3), verwacht);
}

TEST(Lijnkeuze, SkipsLinesThatDoNotTakePartInSilence) {
    Proef proef;
    proef.schrijfZitting(
        1, 1,
        {"1,2,A1,3-12,1,24,7", "1,2,C1,3-12,2,24,7", "1,2,B1,3-12,3,24,7", "1,2,C2,Z1-Z2,4,24,7"});
    EXPECT_EQ(Kolom(LeesProef(proef, "AB"), 3), (Rijen{"1", "3"}));
    EXPECT_EQ(Kolom(LeesProef(proef, "B"), 3), Rijen{"3"});
    EXPECT_EQ(Kolom(LeesProef(proef, ""), 3), Rijen{});
    EXPECT_EQ(proef.meldingen.getoond, std::vector<Melding>{});
}

TEST(Lijnkeuze, GoesByTheFirstCharacterInItsOwnLetterCase) {
    const Rijen paren = {"a1", "\"B\"", " A1", "\" A1\"", "1A", "", "\"\"", "\xC1", "A", "CB"};
    Rijen regels;
    for (std::size_t i = 0; i < paren.size(); ++i)
        regels.push_back("1,2," + paren[i] + ",3-12," + std::to_string(i) + ",24,7");
    EXPECT_EQ(Kolom(LeesRegels(regels), 3), (Rijen{"1", "8"}));
}

TEST(Ledenveld, IsSplitAtItsFirstHyphenWithBlanksTrimmed) {
    const Lezing lezing = LeesRegels(
        {"1,2,A1,12 - 305,1,24,7", "1,2,A1,\" 12-\t305 \",2,24,7", "1,2,A1,  305-12,3,24,7"});
    EXPECT_EQ(Kolom(lezing, 2), Rijen(3, "      12     305"));
    EXPECT_EQ(Kolom(lezing, 8), (Rijen{"Zoë Müller - Piet de Wit", "Zoë Müller - Piet de Wit",
                                       "Piet de Wit - Zoë Müller"}));
}

TEST(Ledenveld, WithoutAHyphenIsSkippedInSilence) {
    EXPECT_EQ(Kolom(LeesRegels({"1,2,A1,12,1,24,7", "1,2,A1,,2,24,7", "1,2,A1,12 305,3,24,7",
                                "1,2,A1,12_305,4,24,7", "1,2,A1,Z12,5,24,7"}),
                    3),
              Rijen{});
}

TEST(Ledenveld, TakesNumbersOfOneToEightDigits) {
    const Lezing lezing = LeesRegels({"1,2,A1,0-12345678,1,24,7", "1,2,A1,007-99999999,2,24,7"});
    EXPECT_EQ(Kolom(lezing, 2), (Rijen{"       012345678", "       799999999"}));
}

TEST(Ledenveld, OfMembersWithoutANameGivesEmptyNameParts) {
    const Lezing lezing =
        LeesRegels({"1,2,A1,3-4,1,24,7", "1,2,A1,1000-3,2,24,7", "1,2,A1,99999999-0,3,24,7"});
    EXPECT_EQ(Kolom(lezing, 8), (Rijen{"Jan Smit - ", " - Jan Smit", " - "}));
}

TEST(Persoonfilter, KeepsPairsWithTheTextInEitherName) {
    Proef proef;
    proef.schrijfZitting(1, 1,
                         {"1,2,A1,3-12,1,24,7", "1,2,A2,17-305,2,24,7", "1,2,B1,12-3,3,24,7",
                          "1,2,A3,305-12,4,24,7", "1,2,A4,888-889,5,24,7"});
    const auto gefilterd = [&proef](const std::string& filter) {
        return Kolom(LeesPercZitBestanden(proef.algemeen, {"AB", true, filter}), 3);
    };
    EXPECT_EQ(gefilterd("SMIT"), (Rijen{"1", "3"}));
    EXPECT_EQ(gefilterd("IT"), (Rijen{"1", "2", "3", "4"}));
    EXPECT_EQ(gefilterd("VAN D"), Rijen{"2"});
    EXPECT_EQ(gefilterd("ZOË MÜLLER"), (Rijen{"1", "3", "4"}));
    EXPECT_EQ(gefilterd("SMIT - ZO"), Rijen{}) << "the names are looked at one by one";
    EXPECT_EQ(gefilterd("NIEMAND"), Rijen{});
    EXPECT_EQ(gefilterd(""), (Rijen{"1", "2", "3", "4", "5"}));
    EXPECT_EQ(proef.meldingen.getoond, std::vector<Melding>{});
}

TEST(Persoonfilter, MindsNoLetterCase) {
    Proef proef;
    proef.schrijfZitting(1, 1, {"1,2,A1,3-12,1,24,7", "1,2,A2,17-305,2,24,7"});
    for (const char* filter : {"müller", "Müller", "mÜLL"}) {
        EXPECT_EQ(Kolom(LeesPercZitBestanden(proef.algemeen, {"AB", true, filter}), 3), Rijen{"1"})
            << filter;
    }
}

TEST(Persoonfilter, ThatIsOffKeepsEveryPair) {
    Proef proef;
    proef.schrijfZitting(1, 1, {"1,2,A1,3-12,1,24,7", "1,2,A2,17-305,2,24,7"});
    EXPECT_EQ(Kolom(LeesPercZitBestanden(proef.algemeen, {"AB", false, "SMIT"}), 3),
              (Rijen{"1", "2"}));
}

TEST(BuitenMededinging, MarksThePairInItsRoundOnly) {
    Proef proef;
    proef.schrijfBums(2, {{17, 3}});
    proef.schrijfZitting(1, 1, {"1,2,A1,3-17,1,24,7"});
    proef.schrijfZitting(2, 1, {"1,2,A1,3-17,2,24,7", "1,2,A1,12-305,3,24,7"});
    proef.schrijfZitting(2, 2, {"1,2,B1,17-3,4,24,7", "1,2,A1,3-18,5,24,7"});
    EXPECT_EQ(Kolom(LeesProef(proef, "AB"), 6), (Rijen{"", "BUM", "", "BUM", ""}));
}

TEST(BuitenMededinging, MarksAPairInTwoRoundsWithAnEntryForEach) {
    Proef proef;
    proef.schrijfBums(1, {{3, 17}});
    proef.schrijfBums(2, {{3, 17}});
    for (const int ronde : {1, 2})
        proef.schrijfZitting(ronde, 1, {"1,2,A1,3-17,1,24,7"});
    const Lezing lezing = LeesProef(proef, "A");
    EXPECT_EQ(lezing.BumLijst.bovengrens(), 2U);
    EXPECT_EQ(Kolom(lezing, 6), (Rijen{"BUM", "BUM"}));
}

TEST(BuitenMededinging, NeverMarksNumbersWithoutLeadingSpaces) {
    Proef proef;
    proef.map().schrijf(proef.competitieMap() + "Ronde-1/CompBums.txt",
                        "2,6\r\n1,2,3,12,305,BUM\r\n1,2,3,\"     3\",\"    17\",bum\r\n");
    proef.schrijfZitting(1, 1, {"1,2,A1,12-305,1,24,7", "1,2,A1,3-17,2,24,7"});
    EXPECT_EQ(Kolom(LeesProef(proef, "A"), 6), (Rijen{"", "BUM"}));
}

} // namespace
} // namespace lauwerkrans
