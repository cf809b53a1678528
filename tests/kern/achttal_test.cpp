// The quick way through a usual line gives what the general way gives.
#include "data/achttal.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "data/getallen.h"
#include "data/lijstformaat.h"
#include "data/tekstbestand.h"

namespace lauwerkrans {
namespace {

/// A text with the padding that the quick way needs.
std::string MetOpvulling(std::string tekst) {
    return tekst + std::string(achttal::opvulling, '\0');
}

TEST(Achttal, FindsTheFirstCharacterOrControlCharacter) {
    for (std::size_t lengte = 0; lengte < 40; ++lengte) {
        const std::string voor(lengte, 'x');
        EXPECT_EQ(achttal::Tot(MetOpvulling(voor + ",y,").c_str(), ','), lengte);
        EXPECT_EQ(achttal::Tot(MetOpvulling(voor + "\r\n").c_str(), ','), lengte);
        EXPECT_EQ(achttal::Tot(MetOpvulling(voor + "\t,").c_str(), ','), lengte);
        EXPECT_EQ(achttal::Tot(MetOpvulling(voor).c_str(), '"'), lengte);
        EXPECT_EQ(achttal::Tot(MetOpvulling(voor + "\x0E\xFF\x80,").c_str(), ','), lengte + 3);
    }
}

TEST(Achttal, ReadsOneToEightDigits) {
    for (const char* tekst : {"0", "7", "42", "305", "9999", "12345", "123456", "1234567",
                              "12345678", "99999999", "00000001"}) {
        EXPECT_EQ(
            achttal::Getal(std::string_view(MetOpvulling(tekst)).substr(0, std::strlen(tekst))),
            static_cast<std::uint32_t>(Cijfers(tekst, 99'999'999).value()))
            << tekst;
    }
}

TEST(Achttal, RefusesEveryTextWithAnotherCharacter) {
    EXPECT_EQ(achttal::Getal(""), std::nullopt);
    EXPECT_EQ(achttal::Getal(std::string_view(MetOpvulling("123456789")).substr(0, 9)),
              std::nullopt);
    for (int teken = 0; teken < 256; ++teken) {
        if (teken >= '0' && teken <= '9') continue;
        for (std::size_t plaats = 0; plaats < 8; ++plaats) {
            std::string tekst = "11111111";
            tekst[plaats] = static_cast<char>(teken);
            const std::string ruim = MetOpvulling(tekst);
            EXPECT_EQ(achttal::Getal(std::string_view(ruim).substr(0, 8)), std::nullopt)
                << teken << " at " << plaats;
        }
    }
}

/// What the general way makes of the first line.
std::vector<std::string> AlgemeneVelden(const std::string& tekst) {
    std::array<std::string_view, 7> velden;
    const std::string_view regel = Regels(tekst).volgende().value_or("");
    const std::size_t aantal = SplitsRegel(regel, velden.data(), velden.size());
    if (aantal != velden.size()) return {};
    return {velden.begin(), velden.end()};
}

TEST(GewoneRegel, GivesTheFieldsOfTheGeneralWayOrNothing) {
    const std::string tekens = "1a\",, \t-\r\x82";
    std::mt19937 toeval(20);
    int gewoon = 0;
    for (int keer = 0; keer < 200'000; ++keer) {
        std::string regel;
        for (int veld = 0; veld < 7; ++veld) {
            if (veld > 0) regel += ',';
            const bool aangehaald = toeval() % 2 == 0;
            if (aangehaald) regel += '"';
            for (auto n = toeval() % 12; n > 0; --n) {
                regel += toeval() % 40 == 0 ? tekens[toeval() % tekens.size()] : '5';
            }
            if (aangehaald) regel += '"';
        }
        const std::string einde = toeval() % 2 == 0 ? "\r\n" : "\n";
        const std::string ruim = MetOpvulling(regel + einde + "volgende");
        std::array<std::string_view, 7> velden;
        const std::size_t lengte = SplitsGewoneRegel(ruim, velden);
        if (lengte == 0) continue;
        ++gewoon;
        const std::string genomen = ruim.substr(0, lengte);
        ASSERT_TRUE(Regels(genomen).volgende() && genomen.back() == '\n') << regel;
        ASSERT_EQ(std::vector<std::string>(velden.begin(), velden.end()), AlgemeneVelden(genomen))
            << regel;
        ASSERT_EQ(AlgemeneVelden(genomen), AlgemeneVelden(ruim)) << regel;
    }
    EXPECT_GT(gewoon, 50'000);
}

TEST(GewoneRegel, TakesTheFormThatTheSuiteWrites) {
    const std::string ruim = MetOpvulling("1,\"NZ\",\"A7\",\"12-305\",\"57,125\",24,0\r\n");
    std::array<std::string_view, 7> velden;
    EXPECT_EQ(SplitsGewoneRegel(ruim, velden), ruim.size() - achttal::opvulling);
    EXPECT_EQ(velden[4], "57,125");
}

TEST(GewoneRegel, LeavesAnUnfinishedLineToTheGeneralWay) {
    std::array<std::string_view, 7> velden;
    EXPECT_EQ(SplitsGewoneRegel(MetOpvulling("1,2,A1,3-4,5,6,7"), velden), 0U);
    EXPECT_EQ(SplitsGewoneRegel(MetOpvulling("1,2,A1,3-4,\"5"), velden), 0U);
    EXPECT_EQ(SplitsGewoneRegel(MetOpvulling(""), velden), 0U);
}

} // namespace
} // namespace lauwerkrans
