// Names as clubs give them: a competition and folders with blanks, quotes, "&", ";" and accents,
// and long paths. All is read, calculated, written and read back.
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "data/codetabel.h"
#include "data/fout.h"
#include "data/systeem.h"
#include "output/modMaakCSV.h"
#include "output/modMaakHtml.h"
#include "storingen_kern.h"

namespace lauwerkrans::proef::storingen {
namespace {

const std::string kop = "Kampioenen; van <Zoë> & Co";
const std::string zitting = "/Ronde-1/Zitting-2/PercZit-2.txt";

/// The club under names of its own; Mappen.ini lies in the program's folder or, when that is
/// called after the program, beside it.
class Namen : public testing::Test {
protected:
    /// Gives the program folder and the competition their names, the latter perhaps in a folder of
    /// its own ("2026/Voorjaar").
    void noem(const std::string& programma, const std::string& naam) {
        const auto map = suite.map().map();
        const std::filesystem::path nieuw = Pad(map, "Competities/" + naam);
        std::filesystem::create_directories(nieuw.parent_path());
        std::filesystem::rename(map / "Competities" / "Voorjaar", nieuw);
        std::filesystem::create_directories(Pad(map, programma).parent_path());
        std::filesystem::rename(map / "Lauwerkrans", Pad(map, programma));
        programmaMap = suite.map().pad() + "/" + programma;
        const std::string pad = "Competities/" + naam;
        const auto scheiding = pad.find_last_of('/');
        const std::string inhoud =
            "ORVMAP=<map>\r\nCOMMAP=<map>\\" + NaarCodetabel(pad.substr(0, scheiding)) +
            "\r\nACTCOM=" + NaarCodetabel(pad.substr(scheiding + 1)) + "\r\n";
        suite.map().verwijder("Mappen.ini");
        suite.schrijf(programma.find("Lauwr") == std::string::npos ? programma + "/Mappen.ini"
                                                                   : "Mappen.ini",
                      inhoud);
        competitie = systeem::Schrijfwijze(suite.map().pad() + "/Competities/" + naam);
    }

    static std::filesystem::path Pad(const std::filesystem::path& map, const std::string& utf8) {
        return map / std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
    }

    /// From the start to the list files, and back from the stored settings.
    void doorloop() {
        KernSessie sessie(programmaMap);
        ASSERT_TRUE(sessie.start());
        sessie.bereken();
        EXPECT_TRUE(sessie.neem().empty());
        EXPECT_EQ(sessie.lijst(), goedeLijst);
        sessie.zetKop(kop);
        sessie.sluit();
        EXPECT_TRUE(sessie.neem().empty());
        KernSessie volgende(programmaMap);
        ASSERT_TRUE(volgende.start());
        EXPECT_EQ(volgende.instellingen(), sessie.instellingen());
        schrijfLijsten(sessie.uitslag());
    }

    void schrijfLijsten(const std::shared_ptr<const Uitslag>& uitslag) const {
        Meldingen meldingen;
        Uitvoer uitvoer;
        uitvoer.uitslag = uitslag;
        uitvoer.KopTekst = kop;
        uitvoer.programmaMap = programmaMap;
        uitvoer.meld = meldingen.melder();
        MaakCSV_Lijnen(uitvoer);
        MaakHtml(uitvoer);
        ASSERT_EQ(meldingen.getoond.size(), 2U);
        for (const char* naam : {"Lauwr__LijnAB.CSV", "Lauwr__LijnAB.HTML"}) {
            std::ifstream bestand(Pad("", programmaMap + "/Lauwerkrans/" + naam), std::ios::binary);
            const std::string inhoud(std::istreambuf_iterator<char>(bestand), {});
            EXPECT_NE(inhoud.find("Jan Smit - Piet van Berkelo"), std::string::npos) << naam;
            EXPECT_NE(inhoud.find(NaarCodetabel(kop)), std::string::npos) << naam;
        }
        for (const Melding& melding : meldingen.getoond) {
            EXPECT_EQ(melding.icoon, Icoon::Informatie);
            EXPECT_NE(melding.tekst.find(systeem::Schrijfwijze(programmaMap)), std::string::npos)
                << melding.tekst;
        }
    }

    /// The message of a file names it whole.
    void noemtHetBestand() {
        KernSessie sessie(programmaMap);
        ASSERT_TRUE(sessie.start());
        const std::string pad = competitie.substr(suite.map().pad().size() + 1) + zitting;
        suite.schrijf(pad, "geen regel\r\n");
        sessie.bereken();
        const auto meldingen = sessie.neem();
        ASSERT_EQ(meldingen.size(), 1U);
        EXPECT_EQ(meldingen[0].tekst,
                  "Fout in het bestand '" + systeem::Schrijfwijze(competitie + zitting) +
                      "', regel 1:\r\n\r\ner staat 1 veld in plaats van 7.\r\n\r\ngeen regel");
    }

    Suite suite;
    std::string programmaMap;
    std::string competitie;
};

TEST_F(Namen, MayHavePunctuation) {
    noem("Lauwr", "Voorjaar '26; A & B (1)");
    doorloop();
    noemtHetBestand();
}

TEST_F(Namen, MayHaveAccents) {
    noem("Lauwr", "Zoë’s café, naïef – ÅÇ €");
    doorloop();
    noemtHetBestand();
}

TEST_F(Namen, MayBeginWithBlanks) {
    noem("Lauwr", "  Voorjaar = 2026");
    doorloop();
    noemtHetBestand();
}

TEST_F(Namen, OfTheProgramFolderMayHaveBlanksAndAccents) {
    noem("Mijn programma's/Café é & (x86)", "Voorjaar");
    doorloop();
}

TEST_F(Namen, OfAProgramFolderInTheSuitesMayHaveBlanksAndAccents) {
    noem("Lauwr é (kopie 2)", "Voorjaar");
    doorloop();
}

TEST_F(Namen, OfFoldersMayHaveAnEqualsSign) {
    noem("Lauwr", "seizoen=2026/Voorjaar");
    doorloop();
    noemtHetBestand();
}

TEST_F(Namen, MayMakePathsOf250Characters) {
    const std::size_t vast = (suite.map().pad() + "/Competities//Voorjaar" + zitting).size();
    noem("Lauwr", std::string(250 - vast, 'm') + "/Voorjaar");
    EXPECT_EQ((competitie + zitting).size(), 250U);
    doorloop();
    noemtHetBestand();
}

TEST_F(Namen, OfTheProgramFolderMayMakePathsOf250Characters) {
    const std::string bestand = "/Lauwerkrans/Lauwr__LijnAB.HTML";
    const std::size_t vast = (suite.map().pad() + "//Lauwr x" + bestand).size();
    noem(std::string(250 - vast, 'p') + "/Lauwr x", "Voorjaar");
    std::filesystem::rename(suite.map().map() / "Mappen.ini",
                            Pad("", programmaMap).parent_path() / "Mappen.ini");
    EXPECT_EQ((programmaMap + bestand).size(), 250U);
    doorloop();
}

} // namespace
} // namespace lauwerkrans::proef::storingen
