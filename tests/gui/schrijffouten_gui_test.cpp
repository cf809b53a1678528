// Files that cannot be written, by the buttons that write them: one message, and everything works
// when the fault is gone.
#include <gtest/gtest.h>

#include "data/systeem.h"
#include "voorbeeldproef.h"

namespace lauwerkrans::proef {
namespace {

class Schrijfknop : public ::testing::Test {
protected:
    Schrijfknop() : proef(1, 1, 1) {
        proef.competitie.schrijfLeden(99, {{3, "Jan", "", "Smit"}, {17, "Ria", "", "Quast"}});
        proef.competitie.schrijfZitting(1, 1, {ProefCompetitie::regel("A1", "3-17", "60,000")});
        proef.start();
        proef.typ("txt1_1", "1");
    }
    ~Schrijfknop() override { proef.uitvoer.sluit(); }

    /// Opens the preview of this name.
    Printvenster& open(const char* naam) {
        proef.klik("cmd1_1");
        proef.klik("cmdPrinten");
        auto* venster = proef.voorbeeld(naam);
        if (venster == nullptr) throw std::runtime_error(naam);
        return *venster;
    }

    /// Presses a button while a folder stands in the place of its file, and again when it is gone.
    void drukMetMap(const Printvenster& venster, const char* knop, const std::string& bestand,
                    const std::string& tekst) {
        auto& getoond = proef.competitie.meldingen.getoond;
        const auto& map = proef.competitie.map();
        map.schrijf(bestand + "/blijft.txt", "x");
        const auto voor = map.inhoud();
        getoond.clear();
        Druk(venster, knop);
        EXPECT_EQ(getoond, (std::vector<Melding>{{tekst, Icoon::Uitroep}}));
        EXPECT_EQ(map.inhoud(), voor);
        EXPECT_TRUE(venster.isVisible());
        map.verwijder(bestand);
        getoond.clear();
        Druk(venster, knop);
        for (const Melding& melding : getoond)
            EXPECT_EQ(melding.icoon, Icoon::Informatie) << melding.tekst;
        EXPECT_EQ(map.inhoud().count(bestand), 1U);
    }

    Vensterproef proef;
};

TEST_F(Schrijfknop, OfTheListsSaysSoOnceAndWorksNextTime) {
    const std::string map = "Lauwerkrans/Lauwerkrans/";
    for (const char* naam : {"frmPrinten", "frmPrintenTI"}) {
        const Printvenster& venster = open(naam);
        drukMetMap(venster, "cmdMaakCSV", map + "Lauwr__LijnA.CSV",
                   "Het bestand 'Lauwr__LijnA.CSV' kan niet worden gemaakt!");
        drukMetMap(venster, "cmdMaakHtml", map + "Lauwr__LijnA.HTML",
                   "Het bestand 'Lauwr__LijnA.HTML' kan niet worden gemaakt!");
        proef.competitie.map().verwijder("Lauwerkrans/Lauwerkrans");
        proef.vind<QCheckBox>("chkGemAlleLijnen").click();
    }
}

TEST_F(Schrijfknop, OfTheSettingsSaysWhereAndWhyAndWorksNextTime) {
    proef.vind<QCheckBox>("chkGemAlleLijnen").click();
    const std::string ini = proef.competitie.map().pad() + "/Lauwerkrans/Lauwr.ini";
    drukMetMap(open("frmPrintenTI"), "cmdBewaren", "Lauwerkrans/Lauwr.ini",
               "Het bestand '" + systeem::Schrijfwijze(ini) +
                   "' kan niet worden geschreven: er staat een map met die naam.");
    EXPECT_TRUE(proef.competitie.meldingen.getoond.empty());
    proef.klik("cmd2_1");
    EXPECT_TRUE(proef.koppen().starts_with("Nr|Lijn|Paarcode|")) << proef.koppen();
}

} // namespace
} // namespace lauwerkrans::proef
