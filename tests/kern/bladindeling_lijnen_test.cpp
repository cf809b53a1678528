// The pages of the champion list: the places on a page.
#include "output/bladindeling_lijnen.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "bladproef.h"
#include "uitvoerproef.h"

namespace lauwerkrans {
namespace {

using namespace proef;

constexpr double a4 = 297;
constexpr Letter kop14{14, true};
constexpr Letter kop10{10, true};
constexpr Letter gewoon10{10, false};
constexpr Letter smal10{10, false, Lettertype::ArialNarrow};
constexpr Letter voet8{8, false};

Blad EersteBlad(const Uitvoer& uitvoer) { return BladenLijnen(uitvoer, a4).blad(1, TabelBreedte); }

Uitvoer Met(const std::shared_ptr<Uitslag>& uitslag) {
    Uitvoer uitvoer;
    uitvoer.uitslag = uitslag;
    return uitvoer;
}

TEST(ChampionPage, HasItsColumnsAtTheirPlaces) {
    EXPECT_EQ(kolommenLijnen, (std::array<double, 8>{0, 14, 96, 111, 128, 168, 168, 168}));
}

TEST(ChampionPage, HasALineHeadingWithTheMinimumBesideIt) {
    const Blad blad = EersteBlad(MetRijen({2}));
    VerwachtTekst(Vind(blad, "Lijn A"), 21, 36, kop14);
    VerwachtTekst(Vind(blad, "(Minimum=13)"), 21 + 18.9 + 3, 36, smal10);
}

TEST(ChampionPage, HasColumnHeadersCentredBetweenTwoRules) {
    const Blad blad = EersteBlad(MetRijen({2}));
    VerwachtTekst(Vind(blad, "Rang"), 22.5, 42.76, kop10);
    VerwachtTekst(Vind(blad, "Paar"), 35, 42.76, kop10);
    VerwachtTekst(Vind(blad, "Zittingen"), 113.375, 42.76, kop10);
    VerwachtTekst(Vind(blad, "Perc"), 135, 42.76, kop10);
    VerwachtStrepen(blad, {15, 28, 38, 45, 54.6, 280});
}

TEST(ChampionPage, HasARowForEachPair) {
    const Blad blad = EersteBlad(MetRijen({2}));
    VerwachtTekst(Vind(blad, "V1 - W1"), 34, 48.663, gewoon10);
    VerwachtTekst(Vind(blad, "V2 - W2"), 34, 53.463, gewoon10);
    VerwachtTekst(Vind(blad, "2"), 26, 53.463, gewoon10);
    const auto zittingen = Alle(blad, "14");
    const auto percentages = Alle(blad, "57,125 %");
    ASSERT_EQ(zittingen.size(), 2U);
    ASSERT_EQ(percentages.size(), 2U);
    VerwachtTekst(zittingen[0], 121.5, 48.663, gewoon10);
    VerwachtTekst(zittingen[1], 121.5, 53.463, gewoon10);
    VerwachtTekst(percentages[0], 131.5, 48.663, gewoon10);
    VerwachtTekst(percentages[1], 131.5, 53.463, gewoon10);
}

TEST(ChampionPage, HasItsRowsFourPointEightMillimetresApart) {
    const auto paren = Paren(EersteBlad(MetRijen({48})));
    ASSERT_EQ(paren.size(), 48U);
    for (std::size_t i = 0; i < paren.size(); ++i)
        EXPECT_NEAR(paren[i].y, 48.663 + 4.8 * static_cast<double>(i), bladfout);
}

TEST(ChampionPage, HasTheNextBlockRightBelowTheRowsOfTheLastOne) {
    const Blad blad = EersteBlad(MetRijen({2, 3}));
    VerwachtTekst(Vind(blad, "Lijn B"), 21, 60.6, kop14);
    VerwachtTekst(Vind(blad, "(Minimum=10)"), 42.9, 60.6, smal10);
    VerwachtTekst(Vind(blad, "V3 - W3"), 34, 73.263, gewoon10);
    EXPECT_EQ(Alle(blad, "Rang").size(), 2U);
    VerwachtStrepen(blad, {15, 28, 38, 45, 54.6, 62.6, 69.6, 84, 280});
}

TEST(ChampionPage, HasTiedRanksInParentheses) {
    const Blad blad = EersteBlad(Met(PerLijn()));
    ASSERT_EQ(Alle(blad, "(2)").size(), 2U);
    VerwachtTekst(Alle(blad, "(2)")[0], 24, 53.463, gewoon10);
    EXPECT_TRUE(Alle(blad, "2").empty());
    EXPECT_EQ(Alle(blad, "(1)").size(), 2U);
    VerwachtTekst(Vind(blad, "4"), 26, 63.063, gewoon10);
}

TEST(ChampionPage, HasPercentagesWithThreeDecimalsAndNoLeadingZero) {
    const Blad blad = EersteBlad(Met(PerLijn()));
    VerwachtTekst(Vind(blad, "5,500 %"), 132.5, 63.063, gewoon10);
    EXPECT_EQ(Alle(blad, "58,500 %").size(), 2U);
    EXPECT_EQ(Alle(blad, "100,000 %").size(), 2U);
    EXPECT_EQ(BladPercentage(55500), "55,500 %");
    EXPECT_EQ(BladPercentage(100000), "100,000 %");
    EXPECT_EQ(BladPercentage(5500), "5,500 %");
    EXPECT_EQ(BladPercentage(57125), "57,125 %");
    EXPECT_EQ(BladPercentage(0), "0,000 %");
}

TEST(ChampionPage, StartsABlockAnewForALineThatComesBack) {
    const auto uitslag = Wisselend();
    EXPECT_EQ(RijenPerLijn(uitslag->resultaat), (std::vector<std::size_t>{1, 1, 2, 0}));
    const Blad blad = EersteBlad(Met(uitslag));
    const auto koppen = Alle(blad, "Lijn A");
    ASSERT_EQ(koppen.size(), 2U);
    EXPECT_NEAR(koppen[0].y, 36, bladfout);
    EXPECT_NEAR(Vind(blad, "Lijn B").y, 55.8, bladfout);
    EXPECT_NEAR(koppen[1].y, 75.6, bladfout);
    EXPECT_EQ(Alle(blad, "(Minimum=3)").size(), 2U);
    EXPECT_EQ(Alle(blad, "(Minimum=20)").size(), 1U);
}

TEST(ChampionPage, CountsTheRowsOfALineAtItsFirstRow) {
    EXPECT_EQ(RijenPerLijn(PerLijn()->resultaat), (std::vector<std::size_t>{4, 0, 0, 0, 1, 2, 0}));
    EXPECT_TRUE(RijenPerLijn({}).empty());
}

TEST(ChampionPage, LeavesEmptyRowsOut) {
    EXPECT_TRUE(Gelijk(EersteBlad(Met(PerLijn(5))), EersteBlad(Met(PerLijn()))));
}

TEST(PageHead, IsAFrameWithTheTitleInIt) {
    const Blad blad = EersteBlad(MetRijen({}));
    VerwachtTekst(Vind(blad, "Lauwerkrans"), 21, 19.47, kop14);
    VerwachtStrepen(blad, {15, 28, 280});
    ASSERT_EQ(blad.lijnen.size(), 5U);
    for (const double x : {20.0, 190.0}) {
        EXPECT_EQ(std::count_if(blad.lijnen.begin(), blad.lijnen.end(),
                                [x](const BladLijn& lijn) {
                                    return lijn.x1 == x && lijn.x2 == x && lijn.y1 == 15 &&
                                           lijn.y2 == 280;
                                }),
                  1);
    }
}

TEST(PageHead, FollowsTheHeightOfThePaper) {
    VerwachtStrepen(BladenLijnen(MetRijen({}), 210).blad(1, TabelBreedte), {15, 28, 193});
}

TEST(PageHead, HasNoTextForAnEmptyClubNameAndPrefix) {
    const Blad blad = EersteBlad(MetRijen({}));
    ASSERT_EQ(blad.teksten.size(), 3U); // title, initials and page number
    EXPECT_EQ(blad.teksten[0].tekst, "Lauwerkrans");
    EXPECT_TRUE(Alle(blad, "").empty());
}

TEST(PageHead, HasPlacesForAClubNameAndAPrefix) {
    Uitvoer uitvoer = MetRijen({});
    uitvoer.ClubNaam = "Ruiten";
    uitvoer.InstellingPrefix = "2024";
    const Blad blad = EersteBlad(uitvoer);
    VerwachtTekst(Vind(blad, "Ruiten"), 177, 20.193, gewoon10);
    VerwachtTekst(Vind(blad, "2024"), 21, 24.693, gewoon10);
}

TEST(PageHead, NarrowsALongTitleToItsFrame) {
    Uitvoer uitvoer = MetRijen({});
    uitvoer.KopTekst = std::string(53, 'k'); // 166.95 mm
    EXPECT_EQ(Vind(EersteBlad(uitvoer), uitvoer.KopTekst).rek, 1);
    uitvoer.KopTekst = std::string(60, 'k'); // 189 mm
    const BladTekst versmald = Vind(EersteBlad(uitvoer), uitvoer.KopTekst);
    EXPECT_NEAR(versmald.rek, 168.0 / 189, 1e-6);
    EXPECT_EQ(versmald.letter.punten, 14);
    EXPECT_NEAR(Einde(versmald), 189, bladfout);
    uitvoer.KopTekst = std::string(80, 'k'); // 252 mm
    const BladTekst kleiner = Vind(EersteBlad(uitvoer), uitvoer.KopTekst);
    EXPECT_NEAR(kleiner.rek, 0.82, 1e-6);
    EXPECT_NEAR(kleiner.letter.punten, 11.382, 0.001);
    EXPECT_NEAR(Einde(kleiner), 189, bladfout);
}

TEST(PageFoot, HasTheInitialsAndThePageNumber) {
    const BladenLijnen bladen(MetRijen({40, 40}), a4);
    ASSERT_EQ(bladen.aantal(), 2U);
    VerwachtTekst(Vind(bladen.blad(1, TabelBreedte), "RtvH"), 20, 285.554, voet8);
    const Blad tweede = bladen.blad(2, TabelBreedte);
    VerwachtTekst(Vind(tweede, "RtvH"), 20, 285.554, voet8);
    VerwachtTekst(tweede.teksten.at(2), 188.4, 285.554, voet8);
    EXPECT_EQ(tweede.teksten[2].tekst, "2");
}

TEST(PageFoot, StandsAFixedHeightAboveTheEdgeOfThePaper) {
    const Blad blad = BladenLijnen(MetRijen({1}), 210).blad(1, TabelBreedte);
    VerwachtTekst(Vind(blad, "RtvH"), 20, 198.554, voet8);
}

TEST(PageFoot, HasItsNumberEndAtTheRightEdge) {
    const BladenLijnen bladen(MetRijen(std::vector<std::size_t>(100, 48)), a4);
    const BladTekst honderd = Vind(bladen.blad(100, TabelBreedte), "100");
    VerwachtTekst(honderd, 185.2, 285.554, voet8);
    EXPECT_NEAR(Einde(honderd), 190, bladfout);
}

TEST(PairName, IsLeftAsItIsWhenItFitsItsColumn) {
    const std::string naam(37, 'n'); // with the second name 41 characters, 82 mm
    const BladTekst paar = Vind(EersteBlad(MetNaam(naam)), naam + " - B");
    VerwachtTekst(paar, 34, 48.663, gewoon10);
}

TEST(PairName, IsNarrowedFirst) {
    const std::string naam(42, 'n'); // 46 characters, 92 mm
    const BladTekst paar = Vind(EersteBlad(MetNaam(naam)), naam + " - B");
    EXPECT_NEAR(paar.rek, 82.0 / 92, 1e-6);
    EXPECT_EQ(paar.letter.punten, 10);
    EXPECT_NEAR(Einde(paar), 116, bladfout);
}

TEST(PairName, ThenGetsSmallerAndIsNeverCut) {
    for (const std::size_t lengte : {46U, 47U, 60U, 200U}) { // up to 408 mm
        const std::string naam(lengte, 'n');
        const BladTekst paar = Vind(EersteBlad(MetNaam(naam)), naam + " - B");
        const double breed = 2.0 * static_cast<double>(lengte + 4);
        EXPECT_NEAR(paar.rek, 0.82, 1e-6);
        EXPECT_NEAR(paar.letter.punten, 10 * 100 / breed, 1e-6);
        EXPECT_NEAR(Einde(paar), 116, bladfout);
    }
}

TEST(ChampionList, OfNoPairsIsOnePageWithItsHead) {
    const BladenLijnen leeg(MetRijen({}), a4);
    EXPECT_EQ(leeg.aantal(), 1U);
    EXPECT_EQ(leeg.hoogte(), a4);
    EXPECT_EQ(leeg.blad(1, TabelBreedte).teksten.size(), 3U);
}

TEST(ChampionList, ThatIsMissingIsThatOfNoPairs) {
    Uitvoer uitvoer = MetRijen({});
    const Blad leeg = EersteBlad(uitvoer);
    uitvoer.uitslag = nullptr;
    EXPECT_EQ(BladenLijnen(uitvoer, a4).aantal(), 1U);
    EXPECT_TRUE(Gelijk(EersteBlad(uitvoer), leeg));
}

} // namespace
} // namespace lauwerkrans
