// Replacing files whole, and the one running copy.
#include "data/systeem.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <random>

#include "proef.h"

namespace lauwerkrans {
namespace {

std::string Inhoud(const std::filesystem::path& pad) {
    std::ifstream bestand(pad, std::ios::binary);
    return {std::istreambuf_iterator<char>(bestand), {}};
}

TEST(VervangBestand, WritesAllBytesAndLeavesNothingBeside) {
    const proef::Proefmap map;
    map.schrijf("lijst", "een heel lang oud bestand");
    const std::string bytes("nieuw\0\r\n", 8);
    EXPECT_FALSE(systeem::VervangBestand(map.pad() + "\\lijst", bytes));
    EXPECT_EQ(Inhoud(map.map() / "lijst"), bytes);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(map.map()), {}), 1);
}

TEST(MaakMap, MakesAFolderAndLeavesOneThatIsThere) {
    const proef::Proefmap map;
    EXPECT_FALSE(systeem::MaakMap(map.pad() + "\\nieuw"));
    EXPECT_TRUE(std::filesystem::is_directory(map.map() / "nieuw"));
    map.schrijf("nieuw/x.txt", "x");
    EXPECT_FALSE(systeem::MaakMap(map.pad() + "\\nieuw"));
    EXPECT_EQ(Inhoud(map.map() / "nieuw/x.txt"), "x");
}

TEST(MaakMap, FailsWhereAFileStandsOrNoFolderAbove) {
    const proef::Proefmap map;
    map.schrijf("bestand", "x");
    EXPECT_EQ(systeem::MaakMap(map.pad() + "\\bestand"), std::errc::file_exists);
    const auto onderBestand = systeem::MaakMap(map.pad() + "\\bestand\\map");
    EXPECT_TRUE(onderBestand == std::errc::not_a_directory ||
                onderBestand == std::errc::no_such_file_or_directory); // the word of Windows
    EXPECT_EQ(systeem::MaakMap(map.pad() + "\\geen\\map"), std::errc::no_such_file_or_directory);
    EXPECT_EQ(Inhoud(map.map() / "bestand"), "x");
}

TEST(EnigeKopie, TheSecondIsRefusedUntilTheFirstIsGone) {
    const std::string naam = "lauwerkrans-proef-" + std::to_string(std::random_device()());
    {
        const systeem::EnigeKopie eerste(naam);
        EXPECT_TRUE(eerste.gelukt());
        EXPECT_FALSE(systeem::EnigeKopie(naam).gelukt());
        EXPECT_FALSE(systeem::EnigeKopie(naam).gelukt());
    }
    EXPECT_TRUE(systeem::EnigeKopie(naam).gelukt());
}

} // namespace
} // namespace lauwerkrans
