// Percentage files as files: their form, what is wrong with them, and reading them again.
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "data/modORV_compdata.h"
#include "data/modORV_leden.h"
#include "data/ronde_mappen.h"
#include "lezing.h"

namespace lauwerkrans {
namespace {

using proef::FoutVanLezing;
using proef::LeesProef;
using Rijen = std::vector<std::string>;

const std::string zitting22 = "Competities/Proef/Ronde-2/Zitting-2/PercZit-2.txt";

/// A competition of two rounds of two sessions; session 2 of round 2 has these bytes.
struct ProefMet : proef::ProefCompetitie {
    explicit ProefMet(const std::string& bytes) : ProefCompetitie(2, 2, 1) {
        schrijfLeden(99, {{12, "Jan", "", "Smit"}});
        laad();
        map().schrijf(zitting22, bytes);
    }
};

/// Column 3 of all rows that these bytes give.
Rijen Percentages(const std::string& bytes) {
    ProefMet proef(bytes);
    const Lezing lezing = LeesProef(proef, "A");
    Rijen cellen;
    for (std::size_t i = 1; i <= lezing.zitRegels.gevuld(); ++i)
        cellen.push_back(lezing.zitRegels.cel(i, 3));
    return cellen;
}

std::string Pad22(const proef::ProefCompetitie& proef) {
    return PercZitPad(proef.algemeen.competitie, 2, 2);
}

TEST(Percentagebestand, MayHaveAnyLineEndAndNoLastOne) {
    EXPECT_EQ(Percentages("1,2,A1,12-13,51,24,7\r\n1,2,A2,12-13,52,24,7\n1,2,A3,12-13,53,24,7\r"
                          "1,2,\"A4\",\"12-13\",\"54\",24,7"),
              (Rijen{"51", "52", "53", "54"}));
    EXPECT_EQ(Percentages("1,2,A1,12-13,51,24,\"7\"\r1,2,A2,12-13,52,24,7\r"), (Rijen{"51", "52"}));
    EXPECT_EQ(Percentages("1,2,A1,12-13,51,24,7"), Rijen{"51"});
    EXPECT_EQ(Percentages(""), Rijen{});
}

TEST(Percentagebestand, MayStartWithAByteOrderMark) {
    EXPECT_EQ(Percentages("\xEF\xBB\xBF\"1,1\",2,A1,12-13,51,24,7\r\n"), Rijen{"51"});
}

TEST(Percentagebestand, MayHaveBlanksAroundItsQuotes) {
    EXPECT_EQ(Percentages(" \"1\" ,2,\t\"A1\"\t, \"12-13\", \"5,1\" , \"24\",7\r\n"), Rijen{"5,1"});
    EXPECT_EQ(Percentages("1,2,\"A1\"x,\"12-13\"y,\"5,1\"z,24,7\r\n"), Rijen{"5,1"});
}

TEST(Percentagebestand, MayHaveAnEmptySeventhField) {
    EXPECT_EQ(Percentages("1,2,A1,12-13,51,24,\r\n,,A2,12-13,52,24,\"\"\n"), (Rijen{"51", "52"}));
}

TEST(Percentagebestand, MayHaveCommasAndControlCharactersInQuotes) {
    EXPECT_EQ(Percentages("\"1,1\",\"2,\t2\",A1,12-13,\"5,1\",24,\"7,7\"\r\n"), Rijen{"5,1"});
}

TEST(Percentagebestand, SkipsBlankLines) {
    EXPECT_EQ(
        Percentages("\r\n1,2,A1,12-13,51,24,7\r\n  \r\n\t\r\n\r\n1,2,A2,12-13,52,24,7\r\n\r\n"),
        (Rijen{"51", "52"}));
}

TEST(Percentagebestand, EndsAnOpenQuoteWithItsLine) {
    EXPECT_EQ(Percentages("1,2,A1,12-13,51,24,\"7\r\n1,2,A2,12-13,52,24,7\r\n"),
              (Rijen{"51", "52"}));
}

TEST(Percentagebestand, ThatHoldsAZeroByteIsReadLikeAnyOther) {
    const std::string nul(1, '\0');
    EXPECT_EQ(Percentages("1" + nul + ",2,A1,12-13,51,24,7\r\n1,2,A2,12-13,52,24,7"),
              (Rijen{"51", "52"}));
}

TEST(VerkeerdAantalVelden, NamesFileLineAndWhatStandsThere) {
    const std::string regel = "1,\"NZ\",\"A7\",\"12-13\",57,125,24,0";
    ProefMet proef("1,2,A1,12-13,51,24,7\r\n\r\n" + regel + "\r\n");
    const Fout fout = FoutVanLezing(proef, "A");
    EXPECT_EQ(fout.soort, FoutSoort::AantalVelden);
    EXPECT_EQ(fout.bestand, Pad22(proef));
    EXPECT_EQ(FoutTekst(fout), "Fout in het bestand '" + systeem::Schrijfwijze(Pad22(proef)) +
                                   "', regel 3:\r\n\r\ner staan 8 velden in plaats van 7.\r\n\r\n" +
                                   regel);
    EXPECT_EQ(proef.meldingen.getoond, std::vector<Melding>{});
}

TEST(VerkeerdAantalVelden, IsAnErrorForFewerFieldsAndForLinesThatDoNotTakePartToo) {
    const std::vector<std::pair<std::string, int>> gevallen = {{"1,2,A1,12-13,51,24", 6},
                                                               {"1,2,C1,12-13,51,24", 6},
                                                               {"x", 1},
                                                               {"1,2,A1,12-13,51,24,7,", 8},
                                                               {"1,2,A1,12-13,51,24,7,8,9", 9},
                                                               {"1,2,A1,\"12-13,51,24,7", 4},
                                                               {",", 2}};
    for (const auto& [regel, aantal] : gevallen) {
        for (const char* einde : {"\r\n", "\n", "\r", ""}) {
            ProefMet proef(regel + einde);
            const Fout fout = FoutVanLezing(proef, "A");
            EXPECT_EQ(fout.soort, FoutSoort::AantalVelden) << regel;
            EXPECT_EQ(fout.aantal, aantal) << regel;
            EXPECT_EQ(fout.regel, 1) << regel;
            EXPECT_EQ(fout.tekst, regel);
        }
    }
}

TEST(VerkeerdAantalVelden, CountsLinesOfEveryForm) {
    ProefMet proef("1,2,A1,12-13,51,24,7\r\n 1,2,A1,12-13,51,24,7\n"
                   "1,2,A1,12-13,51,24,7\r\r\n\"1\" ,2,A1,12-13,51,24,7\r\n"
                   "1,2,A1,12-13,51,24,7\nZo\xEB\n");
    const Fout fout = FoutVanLezing(proef, "A");
    EXPECT_EQ(fout.regel, 7);
    EXPECT_EQ(fout.tekst, "Zoë");
}

TEST(TeVeelSpellen, NamesFileLineAndText) {
    for (const char* tekst : {"2147483647", "99999999999", "-2147483648", "1234567890123"}) {
        ProefMet proef("\r\n1,2,A1,12-13,51," + std::string(tekst) + ",7\r\n");
        EXPECT_EQ(FoutTekst(FoutVanLezing(proef, "A")),
                  "Fout in het bestand '" + systeem::Schrijfwijze(Pad22(proef)) +
                      "', regel 2:\r\n\r\nhet aantal spellen '" + tekst + "' kan niet kloppen.");
    }
}

TEST(Volheid, IsReachedAtRxZx160Rows) {
    std::string bytes;
    for (int i = 0; i < 2 * 2 * 160; ++i)
        bytes += "1,2,A1,12-13,51,24,7\r\n";
    EXPECT_EQ(Percentages(bytes).size(), 640U) << "one session may use the room of the others";
    ProefMet proef(bytes + "1,2,C1,12-13,51,24,7\r\n\r\n" + "1,2,A2,12-13,51,24,7\r\n");
    const Fout fout = FoutVanLezing(proef, "A");
    EXPECT_EQ(FoutTekst(fout), "Fout in het bestand '" + systeem::Schrijfwijze(Pad22(proef)) +
                                   "', regel 643:\r\n\r\ner zijn meer scores dan de 640 waarvoor "
                                   "in deze competitie plaats is.");
}

TEST(Volheid, CountsOnlyRowsThatAreKept) {
    std::string bytes;
    for (int i = 0; i < 640; ++i)
        bytes += "1,2,A1,12-13,51,24,7\r\n1,2,B1,12-13,51,24,7\r\n1,2,A1,12,51,24,7\r\n";
    EXPECT_EQ(Percentages(bytes).size(), 640U);
}

TEST(Percentagebestand, ThatCannotBeOpenedIsAnErrorAndNotASessionLess) {
    ProefMet proef("");
    proef.map().verwijder(zitting22);
    proef.map().maakOnleesbaar(zitting22);
    const Fout fout = FoutVanLezing(proef, "A");
    EXPECT_EQ(fout.soort, FoutSoort::BestandNietLeesbaar);
    EXPECT_EQ(FoutTekst(fout), "Het bestand '" + systeem::Schrijfwijze(Pad22(proef)) +
                                   "' kan niet worden gelezen: " +
                                   Reden(make_error_code(proef::onleesbaarFout)) + ".");
}

/// A stick that is pulled out halfway: what was there at the listing is not found any more.
TEST(Percentagebestand, ThatIsGoneWithItsCompetitionHalfwayIsAnError) {
    ProefMet proef("");
    proef.schrijfZitting(1, 1, {});
    bool weg = false;
    proef.algemeen.voortgang = {[] { return true; },
                                [&](std::size_t, std::size_t) {
                                    if (!weg) proef.map().verwijder("Competities/Proef");
                                    weg = true;
                                }};
    const Fout fout = FoutVanLezing(proef, "A");
    EXPECT_TRUE(weg);
    EXPECT_EQ(FoutTekst(fout), "Het bestand '" + systeem::Schrijfwijze(proef.algemeen.competitie) +
                                   "' kan niet worden gelezen: de map bestaat niet.");
}

TEST(Percentagebestand, AFolderInItsPlaceCountsAsMissing) {
    ProefMet proef("");
    proef.map().verwijder(zitting22);
    proef.map().maakMap(zitting22);
    const Lezing lezing = LeesProef(proef, "A");
    EXPECT_EQ(lezing.rondeInfo.cel(2, 4), "0");
}

TEST(Percentagebestand, IsFoundInAnotherLetterCase) {
    ProefMet proef("");
    proef.map().verwijder("Competities/Proef/Ronde-2");
    proef.map().schrijf("Competities/Proef/RONDE-2/zitting-2/PERCZIT-2.TXT",
                        "1,2,A1,12-13,51,24,7\r\n");
    const Lezing lezing = LeesProef(proef, "A");
    EXPECT_EQ(lezing.zitRegels.cel(1, 4), "R02-Z02-24");
    EXPECT_EQ(lezing.rondeInfo.cel(2, 4), "1");
}

TEST(Herlezing, TakesTheNewContentsAndLosesTheOld) {
    ProefMet proef("1,2,A1,12-13,51,24,7\r\n1,2,A2,14-15,52,24,7\r\n1,2,B1,12-14,53,24,7\r\n");
    EXPECT_EQ(LeesProef(proef, "A").zitRegels.gevuld(), 2U);
    proef.map().schrijf(zitting22, "1,2,B1,12-14,61,24,7\r\n");
    EXPECT_EQ(LeesProef(proef, "A").zitRegels.gevuld(), 0U);
    const Lezing lezing = LeesProef(proef, "B");
    EXPECT_EQ(lezing.zitRegels.gevuld(), 1U);
    EXPECT_EQ(lezing.zitRegels.cel(1, 3), "61");
    EXPECT_EQ(lezing.zitRegels.cel(2, 1), "");
}

TEST(Herlezing, CountsTheSessionsWithAFileAnew) {
    ProefMet proef("");
    EXPECT_EQ(LeesProef(proef, "A").rondeInfo.cel(2, 4), "1");
    proef.schrijfZitting(2, 1, {});
    proef.schrijfZitting(1, 2, {"1,2,A1,12-13,51,24,7"});
    const Lezing lezing = LeesProef(proef, "A");
    EXPECT_EQ(lezing.rondeInfo.cel(1, 4), "1");
    EXPECT_EQ(lezing.rondeInfo.cel(2, 4), "2");
    EXPECT_EQ(lezing.rondeInfo.volgnummer(2, 2), 3U);
    proef.map().verwijder(zitting22);
    EXPECT_EQ(LeesProef(proef, "A").rondeInfo.cel(2, 4), "1");
}

TEST(Herlezing, ReadsTheListsOfPairsOutOfCompetitionAnew) {
    ProefMet proef("1,2,A1,12-13,51,24,7\r\n");
    EXPECT_EQ(LeesProef(proef, "A").zitRegels.cel(1, 6), "");
    proef.schrijfBums(2, {{12, 13}});
    const Lezing lezing = LeesProef(proef, "A");
    EXPECT_EQ(lezing.zitRegels.cel(1, 6), "BUM");
    EXPECT_EQ(lezing.BumLijst.cel(1), "02,    12,    13,BUM");
    proef.map().verwijder("Competities/Proef/Ronde-2/CompBums.txt");
    EXPECT_EQ(LeesProef(proef, "A").zitRegels.cel(1, 6), "");
}

TEST(Herlezing, ClearsTheFlagAndChangesNothingElse) {
    ProefMet proef("1,2,A1,12-13,51,24,7\r\n");
    proef.schrijfBums(2, {{12, 13}});
    proef.algemeen.LeesFout = 2;
    const auto leden = proef.algemeen.ledenNamen;
    static_cast<void>(LeesProef(proef, "A"));
    EXPECT_EQ(proef.algemeen.LeesFout, 0);
    EXPECT_EQ(proef.algemeen.rondeInfo.cel(2, 4), "0");
    EXPECT_EQ(proef.algemeen.BumLijst.bovengrens(), 0U);
    EXPECT_EQ(proef.algemeen.ledenNamen, leden);
}

TEST(Herlezing, ClearsTheFlagAlsoBeforeAnError) {
    ProefMet proef("fout");
    proef.algemeen.LeesFout = 2;
    static_cast<void>(FoutVanLezing(proef, "A"));
    EXPECT_EQ(proef.algemeen.LeesFout, 0);
}

TEST(Lezing, KeepsTheNamesOfTheMembersItWasMadeWith) {
    ProefMet proef("1,2,A1,12-13,51,24,7\r\n");
    const Lezing lezing = LeesProef(proef, "A");
    proef.schrijfLeden(99, {{12, "Nieuw", "", "Lid"}});
    LeesLeden(proef.algemeen);
    EXPECT_EQ(lezing.zitRegels.cel(1, 8), "Jan Smit - ");
}

TEST(Lezing, OfACompetitionWithoutRoundsIsEmpty) {
    proef::ProefCompetitie proef(0, 0, 1);
    proef.laad();
    const Lezing lezing = LeesProef(proef, "A");
    EXPECT_EQ(lezing.zitRegels.ruimte(), 0U);
    EXPECT_EQ(lezing.rondeInfo.ronden(), 0U);
}

TEST(Lezing, LeavesTheFilesOfTheSuiteByteForByteAsTheyWere) {
    ProefMet proef("1,2,A1,Z1-13,51,24,7\n\n1,2,A2,12-13,\"5\",24,7");
    proef.schrijfBums(1, {{12, 13}});
    const auto voor = proef.map().inhoud();
    proef.laad();
    static_cast<void>(LeesProef(proef, "A"));
    EXPECT_EQ(proef.map().inhoud(), voor);
    EXPECT_EQ(voor.size(), 5U);
}

#ifdef __linux__
std::ptrdiff_t OpenBestanden() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

TEST(Lezing, ClosesEveryFile) {
    ProefMet proef("1,2,A1,12-13,51,24,7\r\n");
    const auto voor = OpenBestanden();
    static_cast<void>(LeesProef(proef, "A"));
    proef.map().schrijf(zitting22, "fout");
    static_cast<void>(FoutVanLezing(proef, "A"));
    EXPECT_EQ(OpenBestanden(), voor);
}
#endif

} // namespace
} // namespace lauwerkrans
