// Every byte of the code page survives from the members file to a cell of a list.
#include <gtest/gtest.h>

#include <array>

#include "calc/lijsten.h"
#include "proef.h"

namespace lauwerkrans {
namespace {

/// 0x80 to 0x9F; the five that the code page leaves open are control characters.
const std::array<const char*, 32> hoge = {
    "€", "\xC2\x81", "‚",        "ƒ", "„",        "…",        "†", "‡",        "ˆ", "‰", "Š",
    "‹", "Œ",        "\xC2\x8D", "Ž", "\xC2\x8F", "\xC2\x90", "‘", "’",        "“", "”", "•",
    "–", "—",        "˜",        "™", "š",        "›",        "œ", "\xC2\x9D", "ž", "Ÿ"};

std::string Teken(int byte) {
    if (byte < 0x80) return {static_cast<char>(byte)};
    if (byte < 0xA0) return hoge.at(static_cast<std::size_t>(byte - 0x80));
    return {static_cast<char>(byte < 0xC0 ? 0xC2 : 0xC3), static_cast<char>(0x80 | (byte & 0x3F))};
}

/// A comma ends a field of the members file and the first "-" of a name is taken out.
bool StaatInEenNaam(int byte) { return byte != ',' && byte != '-'; }

/// Member n is the one whose surname has the byte n; session after session half of them play.
class Bytes : public testing::Test {
protected:
    Bytes() : proef(1, 2, 1) {
        std::string leden = "Aantal=999\r\n";
        std::array<std::vector<std::string>, 2> zittingen;
        for (int byte = 0x20; byte <= 0xFF; ++byte) {
            if (!StaatInEenNaam(byte)) continue;
            leden += "x," + std::to_string(byte) + ",y,V,,a";
            leden += static_cast<char>(byte);
            leden += "b\r\n";
            zittingen.at(byte < 0x90 ? 0 : 1)
                .push_back(proef::ProefCompetitie::regel("A1", std::to_string(byte) + "-999",
                                                         std::to_string(byte % 90 + 5)));
        }
        proef.map().schrijf("ORVspelers/ORVspelers.txt", leden + "einde\r\n");
        proef.schrijfZitting(1, 1, zittingen[0]);
        proef.schrijfZitting(1, 2, zittingen[1]);
        proef.laad();
    }

    proef::ProefCompetitie proef;
};

TEST_F(Bytes, OfANameSurviveToTheControlList) {
    const auto lijst = MaakControlelijst(Controleer(proef.algemeen, {"A", false, {}}));
    std::size_t rij = 0;
    for (int byte = 0x20; byte <= 0xFF; ++byte) {
        if (!StaatInEenNaam(byte)) continue;
        EXPECT_EQ(lijst->cel(++rij, 9), "V a" + Teken(byte) + "b - ") << byte;
    }
    EXPECT_EQ(lijst->rijen(), rij);
}

TEST_F(Bytes, OfANameSurviveToTheRanking) {
    const auto uitslag = Bereken(proef.algemeen, "A", {"1"}, {});
    const auto lijst = MaakRanglijst(uitslag, false);
    ASSERT_EQ(lijst->rijen(), 222U);
    for (std::size_t rij = 1; rij <= lijst->rijen(); ++rij) {
        const auto byte = static_cast<int>(uitslag->resultaat.rijen[rij - 1].lid1);
        EXPECT_EQ(lijst->cel(rij, 4), "V a" + Teken(byte) + "b - ") << byte;
    }
}

TEST_F(Bytes, OfANameLoseTheFirstHyphenOnly) {
    proef.schrijfLeden(9, {{1, "J-P", "", "a--b"}});
    proef.schrijfZitting(1, 1, {proef::ProefCompetitie::regel("A1", "1-2", "50")});
    proef.laad();
    const auto lijst = MaakControlelijst(Controleer(proef.algemeen, {"A", false, {}}));
    EXPECT_EQ(lijst->cel(1, 9), "JP a-b - ");
}

} // namespace
} // namespace lauwerkrans
