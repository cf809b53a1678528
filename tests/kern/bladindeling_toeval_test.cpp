// The champion list with lines of random sizes: properties of its division over pages.
#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include "bladproef.h"

namespace lauwerkrans {
namespace {

using namespace proef;

constexpr double a4 = 297;

using Maten = std::vector<std::size_t>;

/// A random whole number from `van` to `tot`.
std::size_t Gooi(std::mt19937& toeval, std::size_t van, std::size_t tot) {
    return van + toeval() % (tot - van + 1);
}

Maten WillekeurigeLijnen(std::mt19937& toeval, std::size_t meeste) {
    Maten lijnen(Gooi(toeval, 1, 12));
    for (std::size_t& aantal : lijnen)
        aantal = Gooi(toeval, 1, meeste);
    return lijnen;
}

/// The plain rule, in tenths of a millimetre, for blocks that fit a page.
std::vector<Blok> VolgensRegel(const Maten& lijnen, std::size_t hoogte) {
    std::vector<Blok> blokken;
    std::size_t blad = 1;
    std::size_t y = 300;
    std::size_t rij = 1;
    for (const std::size_t aantal : lijnen) {
        const std::size_t blok = 48 * aantal + 80 + 70;
        if (y + blok + 170 >= hoogte) {
            ++blad;
            y = 300;
        }
        blokken.push_back({rij, aantal, blad, static_cast<double>(y) / 10, 1});
        y += blok;
        rij += aantal;
    }
    return blokken;
}

TEST(Pagination, FollowsThePlainRuleForBlocksThatFitAPage) {
    for (unsigned zaad = 1; zaad <= 300; ++zaad) {
        SCOPED_TRACE(zaad);
        std::mt19937 toeval(zaad);
        const std::size_t hoogte = zaad % 2 == 0 ? 2970 : Gooi(toeval, 1000, 4000);
        const std::size_t meeste = (hoogte - 300 - 170 - 150 - 1) / 48;
        const Maten lijnen = WillekeurigeLijnen(toeval, meeste);
        const auto regel = VolgensRegel(lijnen, hoogte);
        const auto blokken = Blokken(lijnen, static_cast<double>(hoogte) / 10);
        ASSERT_EQ(blokken.size(), regel.size());
        for (std::size_t i = 0; i < regel.size(); ++i) {
            EXPECT_EQ(blokken[i].eersteRij, regel[i].eersteRij);
            EXPECT_EQ(blokken[i].rijen, regel[i].rijen);
            EXPECT_EQ(blokken[i].blad, regel[i].blad);
            EXPECT_NEAR(blokken[i].boven, regel[i].boven, bladfout);
            EXPECT_EQ(blokken[i].factor, 1);
        }
    }
}

/// Expects blocks one below the other, page after page, inside the frame.
void VerwachtLosVanElkaar(const std::vector<Blok>& blokken, double hoogte) {
    double onder = 30;
    std::size_t blad = 1;
    for (const Blok& blok : blokken) {
        if (blok.blad != blad) onder = 30;
        EXPECT_TRUE(blok.blad == blad || blok.blad == blad + 1);
        EXPECT_NEAR(blok.boven, onder, 1e-6);
        onder = blok.boven + BlokHoogte(blok.rijen) * blok.factor;
        blad = blok.blad;
        EXPECT_LE(onder, hoogte - 17 + 1e-6);
        EXPECT_LE(blok.factor, 1 + 1e-9);
        EXPECT_GE(blok.factor, 0.6 - 1e-9);
    }
}

TEST(Pagination, NeverOverlapsAndNeverTearsWhatFits) {
    for (unsigned zaad = 1; zaad <= 300; ++zaad) {
        SCOPED_TRACE(zaad);
        std::mt19937 toeval(zaad);
        const double hoogte = static_cast<double>(Gooi(toeval, 1000, 4000)) / 10;
        const Maten lijnen = WillekeurigeLijnen(toeval, 200);
        const auto blokken = Blokken(lijnen, hoogte);
        VerwachtLosVanElkaar(blokken, hoogte);
        std::size_t rij = 1;
        for (const std::size_t aantal : lijnen) {
            const auto in = std::count_if(blokken.begin(), blokken.end(), [&](const Blok& blok) {
                return blok.eersteRij >= rij && blok.eersteRij < rij + aantal;
            });
            const bool eenBlad = 0.6 * BlokHoogte(aantal) < hoogte - 47;
            EXPECT_EQ(in == 1, eenBlad);
            rij += aantal;
        }
    }
}

TEST(Pagination, HasEveryRowOnceInOrderInsideTheFrame) {
    for (unsigned zaad = 1; zaad <= 60; ++zaad) {
        SCOPED_TRACE(zaad);
        std::mt19937 toeval(zaad);
        const double hoogte = zaad % 3 == 0 ? a4 : static_cast<double>(Gooi(toeval, 100, 400));
        const Maten lijnen = WillekeurigeLijnen(toeval, 150);
        const BladenLijnen bladen(MetRijen(lijnen), hoogte);
        std::size_t alle = 0;
        for (const std::size_t aantal : lijnen)
            alle += aantal;
        EXPECT_EQ(ParenOpAlle(bladen), PaarNamen(alle));
        for (std::size_t nummer = 1; nummer <= bladen.aantal(); ++nummer) {
            const Blad blad = bladen.blad(nummer, TabelBreedte);
            VerwachtBinnenKader(blad, hoogte);
            const auto paren = Paren(blad);
            EXPECT_TRUE(std::is_sorted(paren.begin(), paren.end(),
                                       [](const auto& a, const auto& b) { return a.y < b.y; }));
        }
    }
}

} // namespace
} // namespace lauwerkrans
