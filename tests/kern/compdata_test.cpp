#include "data/modORV_compdata.h"

#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "data/tekstbestand.h"
#include "proef.h"

namespace lauwerkrans {
namespace {

const Melding ontbreekt = {"Geen bestand met competitiegegevens aanwezig.\r\n", Icoon::Uitroep};
const Melding mislukt = {"Fout bij het inlezen van de competitiegegevens.\r\n", Icoon::Uitroep};

/// A competition folder "Voorjaar 2024" with this CompData.txt, and what reading it gives.
struct Gelezen {
    explicit Gelezen(const std::string& bytes) : Gelezen() {
        map.schrijf("Voorjaar 2024/CompData.txt", bytes);
        LeesCompData(algemeen);
    }
    Gelezen() {
        algemeen.meld = meldingen.melder();
        algemeen.competitie = VoegPad(map.pad(), "Voorjaar 2024");
        algemeen.LeesFout = 7;
    }
    /// R, Z and K.
    [[nodiscard]] std::vector<std::int64_t> grenzen() const {
        return {algemeen.compTabel.ronden(), algemeen.compTabel.zittingen(),
                algemeen.compTabel.items()};
    }
    [[nodiscard]] std::string cel(int ronde, int zitting, int item) const {
        return algemeen.compTabel.cel(ronde, zitting, item);
    }
    [[nodiscard]] bool foutloos() const {
        return meldingen.getoond.empty() && algemeen.LeesFout == 0;
    }
    [[nodiscard]] bool gaf(const Melding& melding, int leesFout) const {
        return meldingen.getoond == std::vector{melding} && algemeen.LeesFout == leesFout;
    }

    proef::Proefmap map;
    proef::Meldingen meldingen;
    Algemeen algemeen;
};

using Grenzen = std::vector<std::int64_t>;

TEST(CompTabel, IsFilledWithTheItemInnermost) {
    CompTabel tabel(2, 3, 2);
    for (int i = 1; i <= 12; ++i)
        tabel.voegToe(std::to_string(i));
    EXPECT_EQ(tabel.cel(1, 1, 1), "1");
    EXPECT_EQ(tabel.cel(1, 1, 2), "2");
    EXPECT_EQ(tabel.cel(1, 2, 1), "3");
    EXPECT_EQ(tabel.cel(1, 3, 2), "6");
    EXPECT_EQ(tabel.cel(2, 1, 1), "7");
    EXPECT_EQ(tabel.cel(2, 3, 2), "12");
}

TEST(CompTabel, GivesTheEmptyTextForACellNotReached) {
    CompTabel tabel(1, 1, 2);
    tabel.voegToe("een");
    EXPECT_EQ(tabel.cel(1, 1, 2), "");
}

TEST(CompTabel, RefusesAnIndexPastItsBounds) {
    const CompTabel tabel(2, 3, 4);
    const std::vector<std::vector<int>> buiten = {{0, 1, 1}, {1, 0, 1}, {1, 1, 0}, {3, 1, 1},
                                                  {1, 4, 1}, {1, 1, 5}, {-1, 1, 1}};
    for (const auto& plaats : buiten) {
        EXPECT_THROW(static_cast<void>(tabel.cel(plaats[0], plaats[1], plaats[2])),
                     std::out_of_range);
    }
    EXPECT_EQ(tabel.cel(2, 3, 4), "");
}

TEST(CompData, GivesRoundsSessionsItemsAndCells) {
    const Gelezen gelezen("\"a\",\"b,c\",\"d\",\"e\",\"f\",\"g\",\"h\",3,\"x\",5,z\r\n"
                          "2,3,1\r\n\"r1z1\",\"r1z2\",\"r1z3\"\r\n\"r2z1\",\"r2z2\",\"r2z3\"\r\n");
    EXPECT_TRUE(gelezen.foutloos());
    EXPECT_EQ(gelezen.grenzen(), (Grenzen{2, 3, 1}));
    EXPECT_EQ(gelezen.cel(1, 1, 1), "r1z1");
    EXPECT_EQ(gelezen.cel(1, 3, 1), "r1z3");
    EXPECT_EQ(gelezen.cel(2, 1, 1), "r2z1");
    EXPECT_EQ(gelezen.cel(2, 3, 1), "r2z3");
}

TEST(CompData, MayHaveItsFieldsOnOneLineOrOneOnALine) {
    const std::string velden = "a,b,c,d,e,f,g,1,x,1,2,2,11,12,21,22";
    std::string perRegel;
    for (const char teken : velden)
        perRegel += teken == ',' ? std::string("\r\n") : std::string(1, teken);
    for (const std::string& bytes : {velden, perRegel, perRegel + "\r\n"}) {
        const Gelezen gelezen(bytes);
        EXPECT_TRUE(gelezen.foutloos());
        EXPECT_EQ(gelezen.grenzen(), (Grenzen{1, 2, 2}));
        EXPECT_EQ(gelezen.cel(1, 1, 2), "12");
        EXPECT_EQ(gelezen.cel(1, 2, 1), "21");
    }
}

TEST(CompData, SkipsNoFieldWhenTheCountIsZero) {
    EXPECT_EQ(Gelezen("a,b,c,d,e,f,g,0,4,5,0").grenzen(), (Grenzen{4, 5, 0}));
}

TEST(CompData, SkipsFieldsOfAnyKind) {
    EXPECT_EQ(Gelezen("a,b,c,d,e,f,g,3,,\"x\r\ny\",-1.5,4,5,0").grenzen(), (Grenzen{4, 5, 0}));
}

TEST(CompData, TakesBlanksAndASignAroundNumbers) {
    EXPECT_EQ(Gelezen("a,b,c,d,e,f,g, 0 ,\" 4 \",+5,\t0").grenzen(), (Grenzen{4, 5, 0}));
}

TEST(CompData, KeepsCellsInTheCodePageAndAsTheyStand) {
    const Gelezen gelezen("a,b,c,d,e,f,g,0,1,1,3,\" Zo\xEB, 1 \", x ,\r\n");
    EXPECT_TRUE(gelezen.foutloos());
    EXPECT_EQ(gelezen.cel(1, 1, 1), " Zoë, 1 ");
    EXPECT_EQ(gelezen.cel(1, 1, 2), " x ");
    EXPECT_EQ(gelezen.cel(1, 1, 3), "");
}

TEST(CompData, DoesNotMindFieldsBehindTheCells) {
    EXPECT_TRUE(Gelezen("a,b,c,d,e,f,g,0,1,1,1,cel,nog,iets\r\n").foutloos());
}

TEST(CompData, MayStartWithAByteOrderMark) {
    EXPECT_TRUE(Gelezen("\xEF\xBB\xBF\"a,a\",b,c,d,e,f,g,0,1,1,0").foutloos());
}

TEST(CompData, MayHave99RoundsOf99Sessions) {
    EXPECT_EQ(Gelezen("a,b,c,d,e,f,g,0,99,99,0").grenzen(), (Grenzen{99, 99, 0}));
    EXPECT_EQ(Gelezen("a,b,c,d,e,f,g,0,0,0,0").grenzen(), (Grenzen{0, 0, 0}));
}

TEST(CompData, BoundsThatCannotBeTrueAreAnError) {
    for (const char* grenzen : {"100,1,0", "1,100,0", "-1,1,0", "1,-1,0", "1,1,-1",
                                "2147483648,1,1", "1,1,2147483648", "9999999999999999999,1,1"}) {
        const Gelezen gelezen("a,b,c,d,e,f,g,0," + std::string(grenzen));
        EXPECT_TRUE(gelezen.gaf(mislukt, 1)) << grenzen;
        EXPECT_EQ(gelezen.grenzen(), (Grenzen{0, 0, 0})) << grenzen;
    }
}

TEST(CompData, MoreCellsThanMemoryHoldsAreAnErrorThatCostsNone) {
    const Gelezen gelezen("a,b,c,d,e,f,g,0,99,99,2147483647,een,twee");
    EXPECT_TRUE(gelezen.gaf(mislukt, 1));
    EXPECT_EQ(gelezen.cel(1, 1, 2), "twee");
    EXPECT_EQ(gelezen.cel(99, 99, 2147483647), "");
}

TEST(CompData, AnEnormousOrNegativeGroupIsAnError) {
    EXPECT_TRUE(Gelezen("a,b,c,d,e,f,g,2147483647,1,1,0").gaf(mislukt, 1));
    EXPECT_TRUE(Gelezen("a,b,c,d,e,f,g,2147483648,1,1,0").gaf(mislukt, 1));
    EXPECT_TRUE(Gelezen("a,b,c,d,e,f,g,-1,1,1,0").gaf(mislukt, 1));
}

TEST(CompData, ANumberThatIsNoneIsAnError) {
    for (const char* rest : {"x,1,1,0", "0,x,1,0", "0,1,x,0", "0,1,1,x", ",1,1,0", "0,1.5,1,0",
                             "0,1,\"\",0", "0,1,1 1,0"}) {
        const Gelezen gelezen("a,b,c,d,e,f,g," + std::string(rest));
        EXPECT_TRUE(gelezen.gaf(mislukt, 1)) << rest;
        EXPECT_EQ(gelezen.grenzen(), (Grenzen{0, 0, 0})) << rest;
    }
}

TEST(CompData, ThatEndsBeforeItsBoundsIsAnErrorAndLeavesNoTable) {
    for (const char* bytes :
         {"", "a,b,c", "a,b,c,d,e,f,g", "a,b,c,d,e,f,g,2,x", "a,b,c,d,e,f,g,0,1,1\r\n"}) {
        const Gelezen gelezen(bytes);
        EXPECT_TRUE(gelezen.gaf(mislukt, 1)) << bytes;
        EXPECT_EQ(gelezen.grenzen(), (Grenzen{0, 0, 0})) << bytes;
    }
}

TEST(CompData, WithTooFewCellsIsAnErrorAndKeepsBoundsAndCells) {
    const Gelezen gelezen("a,b,c,d,e,f,g,0,2,2,2,111,112,121\r\n");
    EXPECT_TRUE(gelezen.gaf(mislukt, 1));
    EXPECT_EQ(gelezen.grenzen(), (Grenzen{2, 2, 2}));
    EXPECT_EQ(gelezen.cel(1, 1, 1), "111");
    EXPECT_EQ(gelezen.cel(1, 2, 1), "121");
    EXPECT_EQ(gelezen.cel(1, 2, 2), "");
    EXPECT_EQ(gelezen.cel(2, 2, 2), "");
}

TEST(CompData, ThatIsMissingHasAMessageOfItsOwn) {
    Gelezen gelezen;
    LeesCompData(gelezen.algemeen);
    EXPECT_TRUE(gelezen.gaf(ontbreekt, 2)) << "without a competition folder";
    gelezen.map.maakMap("Voorjaar 2024");
    LeesCompData(gelezen.algemeen);
    EXPECT_EQ(gelezen.meldingen.getoond, (std::vector{ontbreekt, ontbreekt}));
    EXPECT_EQ(gelezen.algemeen.LeesFout, 2);
}

TEST(CompData, AFolderInItsPlaceCountsAsMissing) {
    Gelezen gelezen;
    gelezen.map.maakMap("Voorjaar 2024/CompData.txt");
    LeesCompData(gelezen.algemeen);
    EXPECT_TRUE(gelezen.gaf(ontbreekt, 2));
}

TEST(CompData, IsMissingTooWhenAFileStandsInPlaceOfTheCompetition) {
    Gelezen gelezen;
    gelezen.map.schrijf("Voorjaar 2024", "");
    LeesCompData(gelezen.algemeen);
    EXPECT_TRUE(gelezen.gaf(ontbreekt, 2));
}

TEST(CompData, ThatIsThereButCannotBeOpenedIsAReadError) {
    Gelezen gelezen;
    gelezen.map.maakOnleesbaar("Voorjaar 2024/CompData.txt");
    LeesCompData(gelezen.algemeen);
    EXPECT_TRUE(gelezen.gaf(mislukt, 1));
}

TEST(CompData, IsFoundInAnotherLetterCase) {
    Gelezen gelezen;
    gelezen.map.schrijf("VOORJAAR 2024/COMPDATA.TXT", "a,b,c,d,e,f,g,0,4,5,0");
    LeesCompData(gelezen.algemeen);
    EXPECT_TRUE(gelezen.foutloos());
    EXPECT_EQ(gelezen.grenzen(), (Grenzen{4, 5, 0}));
}

TEST(CompData, IsReadAnewWithNothingLeftOfTheOldTable) {
    Gelezen gelezen("a,b,c,d,e,f,g,0,2,2,1,11,12,21,22");
    gelezen.map.schrijf("Voorjaar 2024/CompData.txt", "a,b,c,d,e,f,g,0,1,2,1,nieuw");
    LeesCompData(gelezen.algemeen);
    EXPECT_EQ(gelezen.grenzen(), (Grenzen{1, 2, 1}));
    EXPECT_EQ(gelezen.cel(1, 1, 1), "nieuw");
    EXPECT_EQ(gelezen.cel(1, 2, 1), "");
    gelezen.map.verwijder("Voorjaar 2024/CompData.txt");
    LeesCompData(gelezen.algemeen);
    EXPECT_EQ(gelezen.grenzen(), (Grenzen{0, 0, 0}));
}

TEST(CompData, ClearsTheFlagOfAnEarlierError) {
    Gelezen gelezen("a,b");
    EXPECT_EQ(gelezen.algemeen.LeesFout, 1);
    gelezen.map.schrijf("Voorjaar 2024/CompData.txt", "a,b,c,d,e,f,g,0,1,1,0");
    LeesCompData(gelezen.algemeen);
    EXPECT_EQ(gelezen.algemeen.LeesFout, 0);
}

} // namespace
} // namespace lauwerkrans
