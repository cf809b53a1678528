// How the lines of the champion list are divided over pages.
#include <gtest/gtest.h>

#include "bladproef.h"

namespace lauwerkrans {
namespace {

using namespace proef;

constexpr double a4 = 297;

using Maten = std::vector<std::size_t>;

/// The pages of the blocks.
Maten OpBladen(const Maten& lijnen, double hoogte = a4) {
    Maten bladen;
    for (const Blok& blok : Blokken(lijnen, hoogte))
        bladen.push_back(blok.blad);
    return bladen;
}

Maten RijenVan(const std::vector<Blok>& blokken) {
    Maten rijen;
    for (const Blok& blok : blokken)
        rijen.push_back(blok.rijen);
    return rijen;
}

TEST(Block, IsItsRowsAndTwoHeadingsHigh) {
    const auto blokken = Blokken({2, 3, 5});
    ASSERT_EQ(blokken.size(), 3U);
    EXPECT_NEAR(blokken[0].boven, 30, bladfout);
    EXPECT_NEAR(blokken[1].boven, 54.6, bladfout);
    EXPECT_NEAR(blokken[2].boven, 84, bladfout);
    EXPECT_EQ(blokken[0].eersteRij, 1U);
    EXPECT_EQ(blokken[1].eersteRij, 3U);
    EXPECT_EQ(blokken[2].eersteRij, 6U);
}

TEST(Block, GoesToTheNextPageExactlyAtTheLimit) {
    for (std::size_t rijen = 1; rijen <= 60; ++rijen) {
        SCOPED_TRACE(rijen);
        const double grens = 30 + BlokHoogte(20) + BlokHoogte(rijen) + 17;
        EXPECT_EQ(OpBladen({20, rijen}, grens), (Maten{1, 2}));
        EXPECT_EQ(OpBladen({20, rijen}, grens + 0.001), (Maten{1, 1}));
        EXPECT_EQ(OpBladen({20, rijen}, grens - 0.001), (Maten{1, 2}));
    }
}

TEST(Block, MovesWholeWhenOnlyItsLastRowDoesNotFit) {
    // 250 mm for blocks: 20 rows and 24 rows take 241.2 mm, one row more 246, then 250.8
    EXPECT_EQ(OpBladen({20, 25}), (Maten{1, 1}));
    const auto blokken = Blokken({20, 26});
    ASSERT_EQ(RijenVan(blokken), (Maten{20, 26}));
    EXPECT_EQ(blokken[1].blad, 2U);
    EXPECT_NEAR(blokken[1].boven, 30, bladfout);
    EXPECT_EQ(blokken[1].factor, 1);
}

TEST(Block, FollowsOnThePageThatThePreviousOneWentTo) {
    EXPECT_EQ(OpBladen({20, 26, 18, 1, 48, 5}), (Maten{1, 2, 2, 3, 4, 5}));
}

TEST(Block, NeedsNoPageBreakWhereNothingStandsYet) {
    EXPECT_EQ(OpBladen({48}), (Maten{1}));
    EXPECT_EQ(OpBladen({49}), (Maten{1}));
    EXPECT_EQ(OpBladen({49, 49}), (Maten{1, 2}));
}

TEST(Block, ThatFillsItsPageToTheLimitKeepsItsSize) {
    const auto blokken = Blokken({49, 1}, 30 + BlokHoogte(49) + 17);
    ASSERT_EQ(blokken.size(), 2U);
    EXPECT_NEAR(blokken[0].factor, 1, 1e-9);
    EXPECT_EQ(blokken[0].blad, 1U);
    EXPECT_EQ(blokken[1].blad, 2U);
}

TEST(TallBlock, IsMadeSmallerWithAllItsRowsOnItsPage) {
    for (const std::size_t rijen : {49U, 60U, 83U}) {
        SCOPED_TRACE(rijen);
        const Uitvoer uitvoer = MetRijen({3, rijen, 3});
        const auto blokken = Blokken({3, rijen, 3});
        ASSERT_EQ(blokken.size(), 3U);
        EXPECT_EQ(blokken[1].blad, 2U);
        EXPECT_EQ(blokken[2].blad, 3U);
        EXPECT_NEAR(blokken[1].factor, 250 / BlokHoogte(rijen), 1e-9);
        EXPECT_EQ(blokken[2].factor, 1);
        const BladenLijnen bladen(uitvoer, a4);
        EXPECT_EQ(bladen.aantal(), 3U);
        EXPECT_EQ(Paren(bladen.blad(2, TabelBreedte)).size(), rijen);
        VerwachtBinnenKader(bladen.blad(2, TabelBreedte), a4);
    }
}

TEST(TallBlock, HasItsLettersAndPlacesMadeSmallerByOneFactor) {
    const Blad blad = BladenLijnen(MetRijen({60}), a4).blad(1, TabelBreedte);
    const double f = 250 / BlokHoogte(60); // 0.825
    VerwachtTekst(Vind(blad, "Lijn A"), 21, 30 + 6 * f, {14 * f, true});
    VerwachtTekst(Vind(blad, "(Minimum=13)"), 24 + 18.9 * f, 30 + 6 * f,
                  {10 * f, false, Lettertype::ArialNarrow});
    VerwachtTekst(Vind(blad, "Rang"), 27 - 4.5 * f, 30 + 12.763 * f, {10 * f, true});
    VerwachtTekst(Vind(blad, "Paar"), 35, 30 + 12.763 * f, {10 * f, true});
    VerwachtTekst(Vind(blad, "V1 - W1"), 34, 30 + 18.663 * f, {10 * f, false});
    VerwachtTekst(Vind(blad, "V60 - W60"), 34, 30 + (18.663 + 59 * 4.8) * f, {10 * f, false});
    VerwachtTekst(Alle(blad, "57,125 %").at(0), 139.5 - 8 * f, 30 + 18.663 * f, {10 * f, false});
    VerwachtStrepen(blad, {15, 28, 30 + 8 * f, 30 + 15 * f, 280, 280});
    VerwachtTekst(Vind(blad, "Lauwerkrans"), 21, 19.47, {14, true});
}

TEST(TallBlock, IsMadeNoSmallerThanSixTenths) {
    for (std::size_t rijen = 20; rijen <= 200; ++rijen) {
        SCOPED_TRACE(rijen);
        const double grens = 30 + 0.6 * BlokHoogte(rijen) + 17;
        const auto kleinst = Blokken({rijen}, grens);
        ASSERT_EQ(kleinst.size(), 1U);
        EXPECT_NEAR(kleinst[0].factor, 0.6, 1e-6);
        const auto verdeeld = Blokken({rijen}, grens - 0.001);
        ASSERT_GE(verdeeld.size(), 2U);
        EXPECT_EQ(verdeeld[0].factor, 1);
    }
    EXPECT_EQ(Blokken({83}).size(), 1U);
    EXPECT_EQ(Blokken({84}).size(), 2U);
}

TEST(TallBlock, GoesOnOverFurtherPagesBeyondThat) {
    const auto blokken = Blokken({84, 2});
    EXPECT_EQ(RijenVan(blokken), (Maten{48, 36, 2}));
    EXPECT_EQ(blokken[0].blad, 1U);
    EXPECT_EQ(blokken[1].blad, 2U);
    EXPECT_EQ(blokken[1].eersteRij, 49U);
    EXPECT_NEAR(blokken[1].boven, 30, bladfout);
    EXPECT_EQ(blokken[2].blad, 2U); // below the rest of the first
    EXPECT_NEAR(blokken[2].boven, 30 + BlokHoogte(36), bladfout);
}

TEST(TallBlock, HasItsHeadingOnEachOfItsPages) {
    const BladenLijnen bladen(MetRijen({3, 120}), a4);
    ASSERT_EQ(bladen.aantal(), 4U);
    EXPECT_EQ(ParenOpAlle(bladen), PaarNamen(123));
    for (std::size_t nummer = 2; nummer <= 4; ++nummer) {
        const Blad blad = bladen.blad(nummer, TabelBreedte);
        VerwachtTekst(Vind(blad, "Lijn B"), 21, 36, {14, true});
        VerwachtTekst(Vind(blad, "(Minimum=10)"), 42.9, 36, {10, false, Lettertype::ArialNarrow});
        VerwachtTekst(Vind(blad, "Perc"), 135, 42.76, {10, true});
        EXPECT_EQ(Paren(blad).size(), nummer == 4 ? 24U : 48U);
        VerwachtBinnenKader(blad, a4);
    }
}

TEST(TallBlock, StartsOnItsOwnPageAndCountsAsItsPages) {
    EXPECT_EQ(OpBladen({1, 200, 1}), (Maten{1, 2, 3, 4, 5, 6, 6}));
    EXPECT_EQ(BladenLijnen(MetRijen({1, 200, 48}), a4).aantal(), 7U);
}

TEST(TallBlock, HasARowOnEachPageWhateverThePaper) {
    for (const double hoogte : {1.0, 47.0, 62.0, 66.7}) {
        const BladenLijnen bladen(MetRijen({5}), hoogte);
        EXPECT_EQ(ParenOpAlle(bladen), PaarNamen(5));
        EXPECT_EQ(bladen.aantal(), 5U);
    }
}

TEST(PageCount, IsTheTrueOneBeyondThirtySix) {
    EXPECT_EQ(meesteBladen, 36U);
    EXPECT_EQ(BladenLijnen(MetRijen(Maten(36, 48)), a4).aantal(), 36U);
    const BladenLijnen bladen(MetRijen(Maten(37, 48)), a4);
    EXPECT_EQ(bladen.aantal(), 37U);
    EXPECT_EQ(Paren(bladen.blad(37, TabelBreedte)).size(), 48U);
    EXPECT_EQ(TeVeelBladenTekst(), "\r\nEr worden niet meer dan 36 pagina's tegelijk geprint!\r\n");
}

} // namespace
} // namespace lauwerkrans
