// The lists that the manual prints as an example are those that the program makes of its
// competition, tests/gegevens/handleiding.
#include <gtest/gtest.h>

#include <sstream>
#include <utility>

#include "gegevens.h"

namespace lauwerkrans {
namespace {

namespace fs = std::filesystem;

/// The rows of an expected list as those of a table in Markdown: rank, pair, sessions, average.
std::string AlsTabel(const std::string& lijst) {
    std::istringstream stroom(
        proef::Inhoud(fs::path(LAUWERKRANS_TESTGEGEVENS) / "handleiding" / lijst));
    std::string tabel = "|---|---|---|---|\n";
    std::string regel;
    for (int nummer = 0; std::getline(stroom, regel); ++nummer) {
        if (nummer < 2) continue; // title and headers
        std::istringstream cellen(regel);
        std::string rij = "|";
        std::string cel;
        for (int kolom = 0; std::getline(cellen, cel, '\t'); ++kolom) {
            if (kolom >= 2) rij += " " + cel + " |"; // behind number and line
        }
        tabel += rij + "\n";
    }
    return tabel + "\n";
}

std::string Bladzijde(const std::string& naam) {
    return proef::Inhoud(fs::path(LAUWERKRANS_BRON) / "docs/handleiding" / naam);
}

TEST(HandleidingVoorbeeld, PrintsTheListsOfTheProgram) {
    const std::vector<std::pair<std::string, std::string>> gevallen = {
        {"gewogen.md", "verwacht_gewoon.txt"},
        {"gewogen.md", "verwacht_gewogen.txt"},
        {"minimum.md", "verwacht_gewoon.txt"},
        {"minimum.md", "verwacht_minimum_2.txt"},
        {"gelijk.md", "verwacht_gewoon.txt"},
        {"buiten_mededinging.md", "verwacht_gewoon.txt"},
        {"buiten_mededinging.md", "verwacht_buiten_mededinging.txt"}};
    for (const auto& [bladzijde, lijst] : gevallen) {
        const std::string tabel = AlsTabel(lijst);
        EXPECT_NE(tabel.find("| Chris Meijer - Dora Postma | 3 | 54,"), std::string::npos);
        EXPECT_NE(Bladzijde(bladzijde).find(tabel), std::string::npos)
            << bladzijde << " does not hold\n"
            << tabel;
    }
}

} // namespace
} // namespace lauwerkrans
