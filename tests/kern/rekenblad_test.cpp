// A spreadsheet reads the CSV files as the club's treasurer would: Dutch decimal commas, the code
// page, semicolons. Only where LibreOffice is installed.
#include <array>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "gegevens.h"
#include "output/modMaakCSV.h"
#include "uitvoerproef.h"

namespace lauwerkrans {
namespace {

using proef::AlleSamen;
using Teksten = std::vector<std::string>;

bool RekenbladIsEr() { return std::system("command -v soffice >/dev/null 2>&1") == 0; }

/// The part of a text between two marks, from `begin` on; empty when they do not follow.
std::string Tussen(const std::string& tekst, const std::string& van, const std::string& tot,
                   std::size_t begin) {
    const auto start = tekst.find(van, begin);
    if (start == std::string::npos) return {};
    const auto einde = tekst.find(tot, start + van.size());
    return tekst.substr(start + van.size(), einde - start - van.size());
}

std::string ZonderXml(std::string tekst) {
    constexpr std::array<std::pair<const char*, const char*>, 7> vervangingen = {
        {{"<text:s/>", " "},
         {"<text:s text:c=\"2\"/>", "  "},
         {"&quot;", "\""},
         {"&apos;", "'"},
         {"&lt;", "<"},
         {"&gt;", ">"},
         {"&amp;", "&"}}};
    for (const auto& [oud, nieuw] : vervangingen) {
        for (auto plaats = tekst.find(oud); plaats != std::string::npos; plaats = tekst.find(oud))
            tekst.replace(plaats, std::string(oud).size(), nieuw);
    }
    return tekst;
}

/// The filled cells of a flat document, in reading order: a number as "=" and its value with a
/// decimal point, a text as it is.
Teksten Cellen(const std::string& document) {
    const std::string begin = "<table:table-cell office:value-type=\"";
    Teksten cellen;
    for (auto plaats = document.find(begin); plaats != std::string::npos;
         plaats = document.find(begin, plaats + 1)) {
        const bool getal = Tussen(document, begin, "\"", plaats) == "float";
        cellen.push_back(getal ? "=" + Tussen(document, "office:value=\"", "\"", plaats)
                               : ZonderXml(Tussen(document, "<text:p>", "</text:p>", plaats)));
    }
    return cellen;
}

class Rekenblad : public proef::UitvoerTest {
protected:
    void SetUp() override {
        if (!RekenbladIsEr()) GTEST_SKIP() << "LibreOffice is not installed";
        uitvoer.ToonZittingen = 1;
    }

    /// The cells that the spreadsheet finds in the file: separator ";", code page 1252, all columns
    /// standard, language Dutch (1043). It runs with a profile of its own and at most two minutes.
    [[nodiscard]] Teksten gelezen() const {
        const std::string opdracht =
            "cd '" + map.pad() + "' && HOME=\"$PWD\" timeout -k 5 120 soffice" +
            " -env:UserInstallation=file://" + map.pad() + "/profiel --headless --norestore" +
            " --infilter='Text - txt - csv (StarCalc):59,34,1,1,,1043,false,false'" +
            " --convert-to fods --outdir uit Lauwerkrans/Lauwr__LijnABC.CSV >uitvoer.txt 2>&1";
        const int stand = std::system(opdracht.c_str());
        EXPECT_EQ(stand, 0) << proef::Inhoud(map.map() / "uitvoer.txt");
        return Cellen(proef::Inhoud(map.map() / "uit" / "Lauwr__LijnABC.fods"));
    }
};

TEST_F(Rekenblad, ReadsNumbersAndAccentsLineByLine) {
    MaakCSV_Lijnen(uitvoer);
    EXPECT_EQ(gelezen(), (Teksten{"Lauwerkrans 2023–2024, café \"Één\"",
                                  "Rang",
                                  "Paar",
                                  "Gemidd%",
                                  "Zittingen",
                                  "Lijn A",
                                  "----- criterium: 13 of meer zittingen -----",
                                  "=1",
                                  "Anneke de Vries - José Müller",
                                  "=62.417",
                                  "=14",
                                  "=2",
                                  "Piet Bos - Kees",
                                  " Jansen",
                                  "=58.5",
                                  "=15",
                                  "=3",
                                  "Jan & Els <Smit> - Théa Brönn",
                                  "=58.5",
                                  "=13",
                                  "=4",
                                  "?ukasz - Zoë van 't Veer",
                                  "=5.5",
                                  "=13",
                                  "Lijn B",
                                  "----- criterium: 10 of meer zittingen -----",
                                  "=1",
                                  "Bea Cent € - Dirk de Dood",
                                  "=57.125",
                                  "=10",
                                  "Lijn C",
                                  "----- criterium: 8 of meer zittingen -----",
                                  "=1",
                                  "Ab Klaver - Cor Ruiten",
                                  "=100",
                                  "=8",
                                  "=2",
                                  "Evi Harten - Guus Schoppen",
                                  "=100",
                                  "=9"}));
}

TEST_F(Rekenblad, ReadsNumbersAndAccentsOfOneList) {
    uitvoer.uitslag = AlleSamen();
    uitvoer.ToonLijnen = 1;
    MaakCSV_Totaal(uitvoer);
    const Teksten cellen = gelezen();
    ASSERT_GT(cellen.size(), 20U);
    EXPECT_EQ(Teksten(cellen.begin() + 1, cellen.begin() + 17),
              (Teksten{"Rang", "Paar", "Gemidd%", "Zittingen", "=1", "C   Ab Klaver - Cor Ruiten",
                       "=100", "=8", "=2", "C   Evi Harten - Guus Schoppen", "=100", "=9", "=3",
                       "A   Anneke de Vries - José Müller", "=62.417", "=14"}));
}

} // namespace
} // namespace lauwerkrans
