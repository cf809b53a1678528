// The pages of the ranking over all lines: places, switches and pages.
#include "output/bladindeling_totaal.h"

#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "bladproef.h"
#include "uitvoerproef.h"

namespace lauwerkrans {
namespace {

using namespace proef;

constexpr double a4 = 297;
constexpr double a5 = 210;
constexpr double letterHoogte = 279.4;
constexpr Letter kop10{10, true};
constexpr Letter gewoon10{10, false};

/// The pairs of three lines as one ranking, with the two switches.
Uitvoer Samen(bool toonLijn, bool toonZittingen) {
    Uitvoer uitvoer;
    uitvoer.KopTekst = "Lauwerkrans";
    uitvoer.uitslag = AlleSamen();
    uitvoer.ToonLijnen = toonLijn ? 1 : 0;
    uitvoer.ToonZittingen = toonZittingen ? 1 : 0;
    return uitvoer;
}

Blad EersteBlad(const Uitvoer& uitvoer) { return BladenTotaal(uitvoer, a4).blad(1, TabelBreedte); }

/// The texts with their baseline at this height, from left to right.
std::vector<std::string> OpHoogte(const Blad& blad, double y) {
    std::vector<BladTekst> gevonden;
    std::copy_if(blad.teksten.begin(), blad.teksten.end(), std::back_inserter(gevonden),
                 [y](const BladTekst& tekst) { return std::abs(tekst.y - y) < bladfout; });
    std::sort(gevonden.begin(), gevonden.end(),
              [](const BladTekst& a, const BladTekst& b) { return a.x < b.x; });
    std::vector<std::string> teksten;
    teksten.reserve(gevonden.size());
    for (const BladTekst& tekst : gevonden)
        teksten.push_back(tekst.tekst);
    return teksten;
}

using Teksten = std::vector<std::string>;

constexpr double kopY = 34.563;
constexpr double rijY = 40.263;

TEST(RankingPage, HasItsColumnsAtTheirPlaces) {
    EXPECT_EQ(kolommenTotaal, (std::array<double, 6>{0, 14, 96, 111, 130, 170}));
}

TEST(RankingPage, HasItsHeadersBetweenTwoRules) {
    const Blad blad = EersteBlad(Samen(false, true));
    VerwachtTekst(Vind(blad, "Rang"), 22.5, kopY, kop10);
    VerwachtTekst(Vind(blad, "Paar"), 35, kopY, kop10);
    VerwachtTekst(Vind(blad, "Zittingen"), 113.375, kopY, kop10);
    VerwachtTekst(Vind(blad, "Perc"), 136, kopY, kop10);
    VerwachtTekst(Vind(EersteBlad(Samen(true, true)), "    Paar"), 35, kopY, kop10);
}

TEST(RankingPage, HasARuleBelowEachRowJustAboveTheNextOne) {
    const Blad blad = EersteBlad(Samen(true, true));
    VerwachtStrepen(blad, {15, 28, 30, 36.6, 41.4, 46.2, 51, 55.8, 60.6, 65.4, 70.2, 280});
}

TEST(RankingPage, HasARowForEachPair) {
    const Blad blad = EersteBlad(Samen(true, true));
    VerwachtTekst(Vind(blad, "3"), 26, rijY + 9.6, gewoon10);
    const BladTekst paar = Vind(blad, "A   Anneke de Vries - José Müller");
    VerwachtTekst(paar, 34, rijY + 9.6, gewoon10);
    EXPECT_NEAR(Einde(paar), 100, bladfout);
    VerwachtTekst(Vind(blad, "14"), 121.5, rijY + 9.6, gewoon10);
    VerwachtTekst(Vind(blad, "62,417 %"), 132.5, rijY + 9.6, gewoon10);
    VerwachtTekst(Alle(blad, "100,000 %").at(0), 131.5, rijY, gewoon10);
    VerwachtTekst(Vind(blad, "5,500 %"), 133.5, rijY + 6 * 4.8, gewoon10);
    VerwachtTekst(Alle(blad, "(1)").at(1), 24, rijY + 4.8, gewoon10);
    EXPECT_EQ(Alle(blad, "(4)").size(), 2U);
}

TEST(RankingPage, ShowsLineAndSessionsAsTheSwitchesSay) {
    const Blad beide = EersteBlad(Samen(true, true));
    EXPECT_EQ(OpHoogte(beide, kopY), (Teksten{"Rang", "    Paar", "Zittingen", "Perc"}));
    EXPECT_EQ(OpHoogte(beide, rijY),
              (Teksten{"(1)", "C   Ab Klaver - Cor Ruiten", "8", "100,000 %"}));
    const Blad lijn = EersteBlad(Samen(true, false));
    EXPECT_EQ(OpHoogte(lijn, kopY), (Teksten{"Rang", "    Paar", "Perc"}));
    EXPECT_EQ(OpHoogte(lijn, rijY), (Teksten{"(1)", "C   Ab Klaver - Cor Ruiten", "100,000 %"}));
    const Blad zittingen = EersteBlad(Samen(false, true));
    EXPECT_EQ(OpHoogte(zittingen, kopY), (Teksten{"Rang", "Paar", "Zittingen", "Perc"}));
    EXPECT_EQ(OpHoogte(zittingen, rijY),
              (Teksten{"(1)", "Ab Klaver - Cor Ruiten", "8", "100,000 %"}));
    const Blad geen = EersteBlad(Samen(false, false));
    EXPECT_EQ(OpHoogte(geen, kopY), (Teksten{"Rang", "Paar", "Perc"}));
    EXPECT_EQ(OpHoogte(geen, rijY), (Teksten{"(1)", "Ab Klaver - Cor Ruiten", "100,000 %"}));
}

TEST(RankingPage, KeepsPercInItsPlaceWhateverTheSwitches) {
    for (const bool lijn : {false, true}) {
        for (const bool zittingen : {false, true}) {
            const Blad blad = EersteBlad(Samen(lijn, zittingen));
            EXPECT_NEAR(Vind(blad, "Perc").x, 136, bladfout);
            EXPECT_NEAR(Vind(blad, "62,417 %").x, 132.5, bladfout);
        }
    }
}

TEST(RankingPage, TakesOnlyOneAsASwitchThatIsOn) {
    Uitvoer uitvoer = Samen(false, false);
    const Blad uit = EersteBlad(uitvoer);
    uitvoer.ToonLijnen = 2;
    uitvoer.ToonZittingen = -1;
    EXPECT_TRUE(Gelijk(EersteBlad(uitvoer), uit));
}

TEST(RankingPage, HasNoLineHeading) {
    for (const BladTekst& tekst : EersteBlad(Samen(true, true)).teksten) {
        EXPECT_FALSE(tekst.tekst.starts_with("Lijn "));
        EXPECT_EQ(tekst.tekst.find("Minimum"), std::string::npos);
    }
}

TEST(RankingPage, NarrowsALongPairWithItsLetterToTheColumn) {
    Uitvoer uitvoer = MetNaam(std::string(42, 'n')); // 46 characters, with the letter 50
    EXPECT_NEAR(Einde(Vind(EersteBlad(uitvoer), std::string(42, 'n') + " - B")), 116, bladfout);
    uitvoer.ToonLijnen = 1;
    const BladTekst paar = Vind(EersteBlad(uitvoer), "A   " + std::string(42, 'n') + " - B");
    EXPECT_NEAR(paar.rek, 0.82, 1e-6);
    EXPECT_NEAR(paar.letter.punten, 10, 1e-6);
    EXPECT_NEAR(Einde(paar), 116, bladfout);
}

TEST(RankingPage, HasHeadAndFootOfTheChampionList) {
    const BladenTotaal bladen(MetRijen({60}), a4);
    ASSERT_EQ(bladen.aantal(), 2U);
    const Blad tweede = bladen.blad(2, TabelBreedte);
    VerwachtTekst(Vind(tweede, "Lauwerkrans"), 21, 19.47, {14, true});
    VerwachtTekst(Vind(tweede, "RtvH"), 20, 285.554, {8, false});
    const auto tweeen = Alle(tweede, "2"); // no rank on this page: those are 51 to 60
    ASSERT_EQ(tweeen.size(), 1U);
    VerwachtTekst(tweeen[0], 188.4, 285.554, {8, false});
    VerwachtTekst(Vind(tweede, "Perc"), 136, kopY, kop10);
    VerwachtTekst(Paren(tweede).at(0), 34, rijY, gewoon10);
}

TEST(RankingPages, BreakRowByRowAtTheFootReserve) {
    for (std::size_t rijen = 2; rijen <= 90; ++rijen) {
        SCOPED_TRACE(rijen);
        const double grens = 37 + 4.8 * static_cast<double>(rijen) + 17;
        EXPECT_EQ(RijenOpBlad(37, grens), rijen - 1);
        EXPECT_EQ(RijenOpBlad(37, grens + 0.001), rijen);
        EXPECT_EQ(RijenOpBlad(37, grens - 0.001), rijen - 1);
    }
    EXPECT_EQ(BladenTotaal(MetRijen({50}), a4).aantal(), 1U);
    EXPECT_EQ(BladenTotaal(MetRijen({51}), a4).aantal(), 2U);
}

TEST(RankingPages, HoldOneRowEachOnTheSmallestPaper) {
    const BladenTotaal bladen(MetRijen({3}), 20);
    EXPECT_EQ(bladen.aantal(), 3U);
    EXPECT_EQ(ParenOpAlle(bladen), PaarNamen(3));
}

TEST(RankingPages, HaveEveryPairOnceInOrderInsideTheFrame) {
    for (const double hoogte : {a4, a5, letterHoogte}) {
        for (std::size_t rijen = 0; rijen <= 200; ++rijen) {
            SCOPED_TRACE(testing::Message() << rijen << " rows on " << hoogte << " mm");
            const BladenTotaal bladen(MetRijen({rijen}), hoogte);
            EXPECT_EQ(ParenOpAlle(bladen), PaarNamen(rijen));
            const auto opBlad = static_cast<std::size_t>((hoogte - 37 - 17) / 4.8);
            EXPECT_EQ(bladen.aantal(), std::max<std::size_t>(1, (rijen + opBlad - 1) / opBlad));
            VerwachtBinnenKader(bladen.blad(bladen.aantal(), TabelBreedte), hoogte);
            VerwachtBinnenKader(bladen.blad(1, TabelBreedte), hoogte);
        }
    }
}

TEST(RankingPages, AreCountedTrulyBeyondThirtySix) {
    EXPECT_EQ(BladenTotaal(MetRijen({1800}), a4).aantal(), 36U);
    const BladenTotaal bladen(MetRijen({1801}), a4);
    EXPECT_EQ(bladen.aantal(), 37U);
    EXPECT_EQ(Paren(bladen.blad(37, TabelBreedte)).size(), 1U);
}

TEST(RankingPages, RunOnFromLineToLine) {
    const BladenTotaal bladen(MetRijen({30, 30, 30}), a4);
    EXPECT_EQ(bladen.aantal(), 2U);
    EXPECT_EQ(ParenOpAlle(bladen), PaarNamen(90));
    EXPECT_EQ(Paren(bladen.blad(1, TabelBreedte)).size(), 50U);
}

TEST(RankingPages, LeaveEmptyRowsOut) {
    Uitvoer uitvoer = Samen(true, true);
    const Blad zonder = EersteBlad(uitvoer);
    uitvoer.uitslag = AlleSamen(100);
    EXPECT_EQ(BladenTotaal(uitvoer, a4).aantal(), 1U);
    EXPECT_TRUE(Gelijk(EersteBlad(uitvoer), zonder));
    EXPECT_EQ(BladenTotaal(uitvoer).hoogte(), a4);
}

TEST(RankingPages, OfAnEmptyOrMissingListHaveTheirHeadersOnly) {
    Uitvoer uitvoer = MetRijen({});
    const Blad leeg = EersteBlad(uitvoer);
    EXPECT_EQ(OpHoogte(leeg, kopY), (Teksten{"Rang", "Paar", "Perc"}));
    EXPECT_EQ(leeg.teksten.size(), 6U);
    VerwachtStrepen(leeg, {15, 28, 30, 36.6, 280});
    uitvoer.uitslag = nullptr;
    EXPECT_EQ(BladenTotaal(uitvoer, a4).aantal(), 1U);
    EXPECT_TRUE(Gelijk(EersteBlad(uitvoer), leeg));
    EXPECT_EQ(BladenTotaal(uitvoer).aantal(), 1U);
    EXPECT_EQ(BladenTotaal(uitvoer).hoogte(), a4);
    EXPECT_TRUE(Gelijk(BladenTotaal(uitvoer).blad(1, TabelBreedte), leeg));
}

} // namespace
} // namespace lauwerkrans
