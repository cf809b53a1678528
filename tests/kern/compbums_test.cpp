#include "data/modORV_compbums.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "data/modORV_compdata.h"
#include "data/tekstbestand.h"
#include "proef.h"

namespace lauwerkrans {
namespace {

using Lijst = std::vector<std::string>;

/// A competition folder "Comp" with the CompBums.txt of rounds 1, 2, ...
struct Competitie {
    explicit Competitie(const Lijst& perRonde) {
        for (std::size_t i = 0; i < perRonde.size(); ++i)
            schrijf(i + 1, perRonde[i]);
    }
    void schrijf(std::size_t ronde, const std::string& bytes) const {
        map.schrijf("Comp/Ronde-" + std::to_string(ronde) + "/CompBums.txt", bytes);
    }
    [[nodiscard]] std::string pad() const { return VoegPad(map.pad(), "Comp"); }

    /// All cells of the list.
    [[nodiscard]] Lijst gelezen(std::size_t ronden = 3) const {
        const Rij rij = LeesCompBums(RondeMappen(pad(), ronden));
        Lijst cellen;
        for (std::size_t i = 1; i <= rij.bovengrens(); ++i)
            cellen.push_back(rij.cel(i));
        return cellen;
    }

    proef::Proefmap map;
};

/// Rows of six fields, the last three as given, behind their two counts.
std::string Bestand(const Lijst& rijen) {
    std::string bytes = std::to_string(rijen.size()) + ",6\r\n";
    for (const auto& rij : rijen)
        bytes += "11,12,13," + rij + "\r\n";
    return bytes;
}

BumZoeker Zoeker(const Lijst& invoer) {
    Rij rij;
    for (const auto& cel : invoer)
        rij.voegToe(cel);
    return BumZoeker(rij);
}

TEST(CompBums, GivesRoundFieldFourFieldFiveAndFieldSix) {
    const Competitie comp({"1,8\r\n11,12,13,\"    14\",\"   305\",\"BUM\",17,18\r\n"});
    EXPECT_EQ(comp.gelezen(), Lijst{"01,    14,   305,BUM"});
}

TEST(CompBums, KeepsOnlyRowsMarkedBum) {
    const Competitie comp(
        {Bestand({"\"1\",\"2\",\"\"", "\"3\",\"4\",\"BUM\"", "\"5\",\"6\",\"BUMS\"",
                  "\"7\",\"8\",\" BUM\"", "\"9\",\"10\",\"nee\""})});
    EXPECT_EQ(comp.gelezen(), Lijst{"01,3,4,BUM"});
}

TEST(CompBums, TakesTheMarkInAnyLetterCaseAndStoresItAsWritten) {
    const Competitie comp({Bestand({"1,2,bum", "3,4,Bum", "5,6,\"BUM\""})});
    EXPECT_EQ(comp.gelezen(), (Lijst{"01,1,2,bum", "01,3,4,Bum", "01,5,6,BUM"}));
}

TEST(CompBums, KeepsFieldsAsTheyStand) {
    const Competitie comp({Bestand({"  14 , 305,BUM", "\"Z\xEB\",\"a, b\",BUM"})});
    EXPECT_EQ(comp.gelezen(), (Lijst{"01,  14 , 305,BUM", "01,Zë,a, b,BUM"}));
}

TEST(CompBums, ReadsFieldsAcrossLines) {
    const Competitie comp({"2\r\n7\r\n11\r\n12\r\n13\r\n14\r\n15\r\nBUM\r\n16\r\n"
                           "21,22,23,24,25,BUM,26"});
    EXPECT_EQ(comp.gelezen(), (Lijst{"01,14,15,BUM", "01,24,25,BUM"}));
}

TEST(CompBums, SkipsFieldsBeyondTheSixth) {
    const Competitie comp({"2,7\r\n11,12,13,14,15,BUM,BUM\r\n21,22,23,24,25,nee,BUM\r\n"});
    EXPECT_EQ(comp.gelezen(), Lijst{"01,14,15,BUM"});
}

TEST(CompBums, OfTwoRoundsGiveAnEntryEach) {
    const std::string paar = Bestand({"\"    14\",\"   305\",\"BUM\""});
    const Competitie comp({paar, "0,6", paar});
    EXPECT_EQ(comp.gelezen(), (Lijst{"01,    14,   305,BUM", "03,    14,   305,BUM"}));
}

TEST(CompBums, OfARoundWithTwoDigitsKeepBothInTheEntry) {
    const Competitie comp({});
    comp.schrijf(12, Bestand({"1,2,BUM"}));
    EXPECT_EQ(comp.gelezen(12), Lijst{"12,1,2,BUM"});
}

TEST(CompBums, OfRoundsBeyondTheCompetitionAreNotRead) {
    const Competitie comp({Bestand({"1,2,BUM"}), Bestand({"3,4,BUM"})});
    EXPECT_EQ(comp.gelezen(1), Lijst{"01,1,2,BUM"});
}

TEST(CompBums, AddNothingWhereTheFileIsMissing) {
    const Competitie comp({});
    comp.map.maakMap("Comp");
    EXPECT_EQ(comp.gelezen(), Lijst{});
    comp.map.maakMap("Comp/Ronde-1/CompBums.txt");
    comp.schrijf(2, Bestand({"1,2,BUM"}));
    EXPECT_EQ(comp.gelezen(), Lijst{"02,1,2,BUM"});
}

TEST(CompBums, ThatAreMalformedArePassedOverAndTheNextRoundIsRead) {
    const std::string goed = Bestand({"1,2,BUM"});
    for (const char* fout :
         {"", "x", "1", "1,x", "-1,6", "1,-6", "1,5\r\n1,2,3,4,BUM", "1,5\r\n1,2,3,4,5\r\nBUM",
          "1,0", "2,6\r\n1,2,3,4,5,BUM", "1,7\r\n1,2,3,4,5,BUM", "2147483648,6",
          "2147483647,2147483647\r\n1,2,3,4,5,BUM"}) {
        const Competitie comp({goed, fout, goed});
        EXPECT_EQ(comp.gelezen(), (Lijst{"01,1,2,BUM", "03,1,2,BUM"})) << fout;
    }
}

TEST(CompBums, ThatCannotBeOpenedArePassedOver) {
    const Competitie comp({Bestand({"1,2,BUM"})});
    comp.map.maakOnleesbaar("Comp/Ronde-2/CompBums.txt");
    comp.schrijf(3, Bestand({"3,4,BUM"}));
    EXPECT_EQ(comp.gelezen(), (Lijst{"01,1,2,BUM", "03,3,4,BUM"}));
}

TEST(CompBums, OfARoundThatCannotBeListedGiveNoError) {
    proef::ProefCompetitie proef(2, 1, 1);
    proef.schrijfLeden(9, {});
    proef.schrijfBums(1, {{14, 305}});
    proef.laad();
    proef.map().maakOnleesbareMap(proef.competitieMap() + "Ronde-2");
    EXPECT_NO_THROW(LeesCompBums(proef.algemeen));
    EXPECT_EQ(proef.algemeen.BumLijst.bovengrens(), 0U);
    EXPECT_EQ(proef.meldingen.getoond, std::vector<Melding>{});
}

TEST(CompBums, AreFoundInAnotherLetterCaseAndWithAByteOrderMark) {
    const Competitie comp({});
    comp.map.schrijf("comp/RONDE-2/COMPBUMS.TXT", "\xEF\xBB\xBF" + Bestand({"1,2,BUM"}));
    EXPECT_EQ(comp.gelezen(), Lijst{"02,1,2,BUM"});
}

TEST(CompBums, AreReadAnewWithoutAMessage) {
    proef::ProefCompetitie proef(2, 1, 1);
    proef.schrijfLeden(9, {{1, "Jan", "", "Smit"}});
    proef.schrijfBums(1, {{14, 305}, {3, 17}});
    proef.laad();
    EXPECT_EQ(proef.algemeen.BumLijst.bovengrens(), 2U);
    EXPECT_EQ(proef.algemeen.BumLijst.cel(2), "01,     3,    17,BUM");
    proef.schrijfBums(1, {{4, 5}});
    LeesCompBums(proef.algemeen);
    EXPECT_EQ(proef.algemeen.BumLijst.bovengrens(), 1U);
    EXPECT_EQ(proef.algemeen.BumLijst.cel(1), "01,     4,     5,BUM");
    EXPECT_EQ(proef.meldingen.getoond, std::vector<Melding>{});
}

TEST(CompBums, ThatAreMalformedGiveNoMessageAndLeaveTheFlag) {
    proef::ProefCompetitie proef(2, 1, 1);
    proef.schrijfBums(1, {{14, 305}});
    proef.map().schrijf(proef.competitieMap() + "Ronde-2/CompBums.txt", "veel,6");
    LeesCompData(proef.algemeen);
    proef.algemeen.LeesFout = 2;
    LeesCompBums(proef.algemeen);
    EXPECT_EQ(proef.algemeen.BumLijst.bovengrens(), 1U);
    EXPECT_EQ(proef.algemeen.LeesFout, 2);
    EXPECT_EQ(proef.meldingen.getoond, std::vector<Melding>{});
}

TEST(BumZoeker, FindsAPairInEitherOrderOfTheEntry) {
    const BumZoeker zoeker = Zoeker({"02,     3,    17,BUM", "03,    17,     3,bum"});
    EXPECT_TRUE(zoeker.heeft(2, 3, 17));
    EXPECT_TRUE(zoeker.heeft(3, 3, 17));
    EXPECT_FALSE(zoeker.heeft(1, 3, 17));
    EXPECT_FALSE(zoeker.heeft(2, 3, 18));
    EXPECT_FALSE(zoeker.heeft(2, 4, 17));
}

TEST(BumZoeker, FindsEveryEntryOfARound) {
    const BumZoeker zoeker = Zoeker({"12,   900,   901,BUM", "12,     1,     2,BUM",
                                     "12,   500,999999,BUM", "12,     1,     2,BUM"});
    EXPECT_TRUE(zoeker.heeft(12, 900, 901));
    EXPECT_TRUE(zoeker.heeft(12, 1, 2));
    EXPECT_TRUE(zoeker.heeft(12, 500, 999999));
    EXPECT_FALSE(zoeker.heeft(12, 1, 901));
    EXPECT_FALSE(Zoeker({}).heeft(99, 1, 2));
}

TEST(BumZoeker, FindsNoPairWhoseNumbersAreNotRightAlignedInSix) {
    for (const char* invoer :
         {"01,3,17,BUM", "01,    3,    17,BUM", "01,      3,    17,BUM", "01,000003,000017,BUM",
          "01,3     ,17    ,BUM", "01,    +3,    17,BUM", "01,     3,   17,BUM", "01,,,BUM", "01",
          "", "01,    3 ,    17,BUM", "01,     3,    1x,BUM"}) {
        EXPECT_FALSE(Zoeker({invoer}).heeft(1, 3, 17)) << invoer;
    }
}

TEST(BumZoeker, TakesTheTextOfTheKeyAndNotTheFieldsApart) {
    // Five and seven characters make a text of the same length, with the numbers out of place.
    EXPECT_FALSE(Zoeker({"01,    3,     17,BUM"}).heeft(1, 3, 17));
    EXPECT_FALSE(Zoeker({"01,      3,   17,BUM"}).heeft(1, 3, 17));
    EXPECT_TRUE(Zoeker({"01,     3,    17,BUM"}).heeft(1, 3, 17));
}

TEST(BumZoeker, TakesTheFirstTwoPartsBetweenTheCommas) {
    EXPECT_TRUE(Zoeker({"01,     3,    17,x,BUM"}).heeft(1, 3, 17));
    EXPECT_FALSE(Zoeker({"01,x,     3,    17,BUM"}).heeft(1, 3, 17));
}

} // namespace
} // namespace lauwerkrans
