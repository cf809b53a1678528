// Links and pictures of the documents lead to something, and the manual needs nothing from outside.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "gegevens.h"
#include "markdown.h"
#include "proef.h"

namespace lauwerkrans {
namespace {

namespace fs = std::filesystem;

using Teksten = std::vector<std::string>;

const fs::path bron = LAUWERKRANS_BRON;

TEST(Documenten, HaveNoDeadLinks) {
    auto bestanden = markdown::Bestanden(bron / "docs");
    bestanden.push_back(bron / "README.md");
    bestanden.push_back(bron / "CONTRIBUTING.md");
    std::size_t doelen = 0;
    for (const fs::path& bestand : bestanden) {
        doelen += markdown::Doelen(proef::Inhoud(bestand)).size();
        EXPECT_EQ(markdown::DodeDoelen(bestand), Teksten{}) << bestand;
    }
    EXPECT_GE(bestanden.size(), 20U);
    EXPECT_GE(doelen, 60U);
}

TEST(Handleiding, LeadsToItsOwnPagesAndPicturesOnly) {
    const fs::path map = bron / "docs/handleiding";
    const std::string index = proef::Inhoud(map / "index.md");
    std::set<std::string> gebruikt;
    for (const fs::path& bestand : markdown::Bestanden(map)) {
        const std::string naam = bestand.filename().string();
        const bool genoemd = index.find("](" + naam + ")") != std::string::npos;
        EXPECT_TRUE(genoemd || naam == "index.md") << naam;
        for (const std::string& doel : markdown::Doelen(proef::Inhoud(bestand))) {
            EXPECT_EQ(doel.find("://"), std::string::npos) << naam << " " << doel;
            EXPECT_EQ(doel.find(".."), std::string::npos) << naam << " " << doel;
            if (doel.starts_with('#')) continue;
            gebruikt.insert(fs::path(doel).filename().string());
        }
    }
    for (const auto& beeld : fs::directory_iterator(map / "beelden"))
        EXPECT_TRUE(gebruikt.contains(beeld.path().filename().string())) << beeld.path();
}

TEST(Markdown, LinksThatLeadNowhereAreFound) {
    const proef::Proefmap map;
    map.schrijf("b.md", "# Twee woorden\n");
    map.schrijf("a.md", "[b](b.md), ![weg](beelden/weg.png), [c](c.md#d) en [e](https://e.nl).\n"
                        "## F\n[f](#f), [g](#g), [b](b.md#twee-woorden), [b](b.md#drie)\n");
    EXPECT_EQ(markdown::DodeDoelen(map.map() / "a.md"),
              (Teksten{"beelden/weg.png", "c.md#d", "#g", "b.md#drie"}));
}

TEST(Markdown, QuotationsAreOneLineEach) {
    EXPECT_EQ(markdown::Aanhalingen("a\n> b\n>\n> c  d\n\n> e\nf > g\n"), (Teksten{"b c d", "e"}));
}

} // namespace
} // namespace lauwerkrans
