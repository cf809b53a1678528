// Every checked-in competition gives its expected lists, byte by byte.
#include "gegevens.h"

#include <gtest/gtest.h>

#include <cctype>

namespace lauwerkrans {
namespace {

using proef::Gegevens;

class GegevensTest : public testing::TestWithParam<Gegevens> {};

TEST_P(GegevensTest, GivesTheExpectedList) {
    const Gegevens& gegevens = GetParam();
    ASSERT_TRUE(gegevens.verwacht == "-" || exists(gegevens.map / gegevens.verwacht));
    const auto uitvoer = MaakUitvoer(gegevens);
    const std::string lijst =
        gegevens.verwacht == "-" ? "" : proef::Inhoud(gegevens.map / gegevens.verwacht);
    EXPECT_EQ(proef::Verschil(lijst, uitvoer.lijst), "");
    const std::string meldingen = proef::Inhoud(gegevens.map / "verwacht_melding.txt");
    EXPECT_EQ(proef::Verschil(meldingen, uitvoer.meldingen), "");
    EXPECT_EQ(uitvoer.uitgang, gegevens.fout ? 1 : 0);
}

/// "fout/leden-ontbreekt", "verwacht_lid.txt" becomes fout_leden_ontbreekt_verwacht_lid.
std::string Testnaam(const testing::TestParamInfo<Gegevens>& info) {
    std::string naam = info.param.naam + "_" + info.param.verwacht;
    naam = naam.substr(0, naam.rfind(".txt"));
    for (char& teken : naam) {
        if (std::isalnum(static_cast<unsigned char>(teken)) == 0) teken = '_';
    }
    return naam;
}

INSTANTIATE_TEST_SUITE_P(Gegevens, GegevensTest, testing::ValuesIn(proef::AlleGegevens()),
                         Testnaam);

TEST(AlleGegevens, HoldTheCompetitionsAndTheBrokenInputs) {
    std::size_t fouten = 0;
    std::size_t lijsten = 0;
    for (const Gegevens& gegevens : proef::AlleGegevens()) {
        if (gegevens.fout) {
            ++fouten;
            EXPECT_FALSE(proef::Inhoud(gegevens.map / "verwacht_melding.txt").empty());
        } else {
            ++lijsten;
        }
    }
    EXPECT_GE(lijsten, 20U);
    EXPECT_GE(fouten, 9U);
}

TEST(Verschil, ShowsTheLinesThatDiffer) {
    EXPECT_EQ(proef::Verschil("a\nb\tc\n", "a\nb\tc\n"), "");
    EXPECT_EQ(proef::Verschil("a\nb\tc\n", "a\nb\td\n"),
              "line 2\n  expected b | c\n  got      b | d\n");
    EXPECT_EQ(proef::Verschil("a\n", "a\nb\n"), "line 2\n  expected (end)\n  got      b\n");
    EXPECT_NE(proef::Verschil("a\n", "a"), "");
    EXPECT_NE(proef::Verschil("a\n", "a\r\n"), "");
}

} // namespace
} // namespace lauwerkrans
