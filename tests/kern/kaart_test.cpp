// The map of the code (docs/beelden/kaart.svg) shows the parts that there are, and in the order in
// which they may include each other.
#include <gtest/gtest.h>

#include <algorithm>

#include "gegevens.h"
#include "pijlen.h"

namespace lauwerkrans {
namespace {

namespace fs = std::filesystem;

const fs::path bron = LAUWERKRANS_BRON;

/// The paths on the map, from top to bottom; "*" stands for the rest of a name.
std::vector<std::string> Paden(const std::string& svg) {
    std::vector<std::string> paden;
    const std::string begin = "<text class=\"pad\"";
    for (auto plaats = svg.find(begin); plaats != std::string::npos;
         plaats = svg.find(begin, plaats)) {
        plaats = svg.find('>', plaats) + 1;
        paden.push_back(svg.substr(plaats, svg.find('<', plaats) - plaats));
    }
    return paden;
}

/// What a path on the map begins with: "calc/", "output/modMaak".
std::string Begin(const std::string& pad) { return pad.substr(0, pad.find('*')); }

bool Bestaat(const std::string& pad) {
    const fs::path map = (bron / Begin(pad)).parent_path();
    if (!fs::is_directory(map)) return false;
    const std::string naam = fs::path(Begin(pad)).filename().string();
    return std::any_of(fs::directory_iterator(map), {}, [&naam](const auto& deel) {
        return deel.path().filename().string().starts_with(naam);
    });
}

/// A file of a path on the map.
std::string Bestand(const std::string& pad, const std::string& staart) {
    return Begin(pad) + (pad.ends_with('/') ? "x" : "") + staart;
}

/// Whether a source file of one path may include one of another.
bool MagInsluiten(const std::string& van, const std::string& doel) {
    const std::string regel = "#include \"" + Bestand(doel, ".h") + "\"";
    return pijlen::Bezwaar(Bestand(van, ".cpp"), regel).empty();
}

TEST(Kaart, NamesWhatThereIs) {
    const auto paden = Paden(proef::Inhoud(bron / "docs/beelden/kaart.svg"));
    EXPECT_EQ(paden.size(), 14U);
    for (const auto& pad : paden)
        EXPECT_TRUE(Bestaat(pad)) << pad;
    EXPECT_FALSE(Bestaat("output/bestaatniet*"));
    for (const char* map :
         {"app/", "bench/", "calc/", "data/", "output/", "packaging/", "tests/", "tools/", "ui/"}) {
        EXPECT_NE(std::find(paden.begin(), paden.end(), map), paden.end()) << map;
    }
}

/// Paths in one box, and the folders below the boxes, have no order.
TEST(Kaart, HasThePartsInTheOrderOfTheArrows) {
    const auto paden = Paden(proef::Inhoud(bron / "docs/beelden/kaart.svg"));
    const std::vector<std::string> volgorde = {"app/",  "output/",        "ui/",  "output/modMaak*",
                                               "calc/", "app/modMappen*", "data/"};
    std::vector<std::string> opKaart;
    std::copy_if(paden.begin(), paden.end(), std::back_inserter(opKaart), [&](const auto& pad) {
        return std::find(volgorde.begin(), volgorde.end(), pad) != volgorde.end();
    });
    EXPECT_EQ(opKaart, volgorde);
    for (std::size_t i = 1; i < volgorde.size(); ++i) {
        EXPECT_TRUE(MagInsluiten(volgorde[i - 1], volgorde[i])) << volgorde[i];
        EXPECT_FALSE(MagInsluiten(volgorde[i], volgorde[i - 1])) << volgorde[i];
    }
}

} // namespace
} // namespace lauwerkrans
