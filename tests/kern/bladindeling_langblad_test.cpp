// The ranking over all lines as one long page, and the part of it that is asked for.
#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include "bladproef.h"
#include "output/bladindeling_totaal.h"

namespace lauwerkrans {
namespace {

using namespace proef;

TEST(LongPage, IsAsHighAsItsListAndNeverBelowA4) {
    for (std::size_t rijen = 0; rijen <= 400; ++rijen) {
        const std::size_t tienden = (rijen + 2) * 48 + 150 + 150 + 70 + 170;
        EXPECT_NEAR(LangBladHoogte(rijen),
                    static_cast<double>(std::max<std::size_t>(2970, tienden)) / 10, 1e-6);
        EXPECT_GE(LangBladHoogte(rijen), 297);
    }
    EXPECT_EQ(LangBladHoogte(7), 297);
    EXPECT_EQ(LangBladHoogte(48), 297);
    EXPECT_NEAR(LangBladHoogte(49), 298.8, 1e-6);
    EXPECT_NEAR(LangBladHoogte(1000), 4863.6, 1e-6);
}

TEST(LongPage, HoldsAllPairsInsideItsFrame) {
    for (const std::size_t rijen : {1U, 48U, 49U, 200U, 1000U}) {
        SCOPED_TRACE(rijen);
        const BladenTotaal bladen(MetRijen({rijen}));
        EXPECT_EQ(bladen.aantal(), 1U);
        EXPECT_EQ(bladen.hoogte(), LangBladHoogte(rijen));
        EXPECT_EQ(ParenOpAlle(bladen), PaarNamen(rijen));
        VerwachtBinnenKader(bladen.blad(1, TabelBreedte), bladen.hoogte());
    }
}

TEST(LongPage, HasItsRowsWhereTheFirstPrintedPageHasThem) {
    const Uitvoer uitvoer = MetRijen({200});
    const auto lang = Paren(BladenTotaal(uitvoer).blad(1, TabelBreedte));
    const auto gedrukt = Paren(BladenTotaal(uitvoer, 297).blad(1, TabelBreedte));
    ASSERT_EQ(gedrukt.size(), 50U);
    for (std::size_t i = 0; i < gedrukt.size(); ++i) {
        EXPECT_EQ(lang.at(i).tekst, gedrukt[i].tekst);
        EXPECT_EQ(lang[i].x, gedrukt[i].x);
        EXPECT_EQ(lang[i].y, gedrukt[i].y);
    }
}

/// The number of a pair by its name.
std::size_t Nummer(const BladTekst& paar) { return std::stoul(paar.tekst.substr(1)); }

/// Expects all pairs that stand in a part of the page, each at its place on the whole page.
void VerwachtDeel(const Bladen& bladen, const std::vector<BladTekst>& heel, const Uitsnede& deel) {
    constexpr double klein = 1e-6;
    const auto paren = Paren(bladen.blad(1, TabelBreedte, deel));
    std::vector<bool> gezet(heel.size(), false);
    for (const BladTekst& paar : paren) {
        EXPECT_EQ(paar.y, heel.at(Nummer(paar) - 1).y);
        gezet.at(Nummer(paar) - 1) = true;
    }
    std::size_t nodig = 0;
    for (std::size_t i = 0; i < heel.size(); ++i) {
        const double streep = 36.6 + 4.8 * static_cast<double>(i); // the row is between two rules
        const bool geraakt = streep + klein < deel.tot && streep + 4.8 - klein > deel.van;
        nodig += geraakt ? 1 : 0;
        EXPECT_TRUE(gezet[i] || !geraakt) << "row " << i + 1;
    }
    EXPECT_LE(paren.size(), nodig + 2); // the rest is left out, but for a neighbour on each side
}

TEST(PartOfALongPage, LeavesOutOnlyRowsOutside) {
    const BladenTotaal bladen(MetRijen({300}));
    const auto heel = Paren(bladen.blad(1, TabelBreedte));
    ASSERT_EQ(heel.size(), 300U);
    std::mt19937 toeval(7);
    for (int keer = 0; keer < 1000; ++keer) {
        const double van = static_cast<double>(toeval() % 16000) / 10 - 50;
        const double tot = van + static_cast<double>(toeval() % 3000) / 10;
        SCOPED_TRACE(testing::Message() << van << " to " << tot);
        VerwachtDeel(bladen, heel, {van, tot});
    }
}

TEST(PartOfALongPage, HasHeadAndFootOfTheWhole) {
    const BladenTotaal bladen(MetRijen({300}));
    const Blad deel = bladen.blad(1, TabelBreedte, {700, 710});
    EXPECT_EQ(Vind(deel, "RtvH").y, Vind(bladen.blad(1, TabelBreedte), "RtvH").y);
    EXPECT_EQ(Vind(deel, "Lauwerkrans").y, Vind(bladen.blad(1, TabelBreedte), "Lauwerkrans").y);
    EXPECT_LE(Paren(deel).size(), 4U);
    EXPECT_FALSE(Paren(deel).empty());
}

} // namespace
} // namespace lauwerkrans
