// The settings on the real window: what a restart brings back, and what leaving writes.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include <QListWidget>

#include "data/systeem.h"
#ifndef _WIN32
#include "kern/schrijfproef_posix.h"
#endif
#include "vensterproef.h"

namespace lauwerkrans::proef {
namespace {

class InstellingenVenster : public ::testing::Test {
protected:
    InstellingenVenster() : proef(1, 1, 12) { proef.competitie.schrijfLeden(9, {}); }

    void schrijfIni(const std::string& bytes) {
        proef.competitie.map().schrijf("Lauwerkrans/Lauwr.ini", bytes);
    }
    [[nodiscard]] std::string ini() const {
        std::ifstream bestand(proef.competitie.map().map() / "Lauwerkrans/Lauwr.ini",
                              std::ios::binary);
        return {std::istreambuf_iterator<char>(bestand), {}};
    }
    [[nodiscard]] bool aan(const char* naam) const {
        return proef.vind<QCheckBox>(naam).isChecked();
    }

    Vensterproef proef;
};

TEST_F(InstellingenVenster, TheStoredValuesStandInTheControlsAfterTheStart) {
    schrijfIni("__CHK1=1\r\n__TXT3=4\r\n__TXT12=5\r\n__TXTKOP=Caf\xE9 = kop\r\n");
    proef.start();
    EXPECT_TRUE(aan("chkGewogen"));
    EXPECT_TRUE(proef.venster->opties().gewogen);
    EXPECT_FALSE(aan("chkZitDetails"));
    EXPECT_EQ(proef.vind<QLineEdit>("txt1_3").text(), QStringLiteral("4"));
    EXPECT_EQ(proef.vind<QLineEdit>("txt1_12").text(), QString());
    EXPECT_EQ(proef.vind<QLineEdit>("txtKop1").text(), QStringLiteral("Café = kop"));
    EXPECT_TRUE(proef.competitie.meldingen.getoond.empty());
}

TEST_F(InstellingenVenster, EindeWritesTheStateOfTheControls) {
    proef.start();
    proef.typ("txt1_1", "13");
    proef.typ("txt1_12", "7");
    proef.klik("chkGemAlleLijnen");
    proef.vind<QLineEdit>("txtKop1").setText(QStringLiteral("Lauwerkrans é"));
    proef.klik("cmdEinde");
    EXPECT_EQ(ini(), "__CHK1=0\r\n__CHK2=0\r\n__CHK3=1\r\n__CHK4=0\r\n__CHKTL=0\r\n__CHKTZ=0\r\n"
                     "__TXTKOP=Lauwerkrans \xE9\r\n__TXT1=13\r\n__TXT12=7\r\n");
    EXPECT_FALSE(proef.venster->isVisible());
}

TEST_F(InstellingenVenster, TheCloseButtonDoesWhatEindeDoes) {
    proef.start();
    proef.klik("chkBuiMed");
    proef.venster->close();
    EXPECT_EQ(proef.einde, 1);
    EXPECT_NE(ini().find("__CHK4=1\r\n"), std::string::npos);
}

TEST_F(InstellingenVenster, ARestartBringsEverythingBack) {
    proef.start();
    proef.typ("txt1_2", "9");
    proef.klik("chkGewogen");
    proef.klik("cmdEinde");
    Instellingen instellingen;
    Algemeen algemeen;
    algemeen.meld = proef.competitie.meldingen.melder();
    frmMain tweede(algemeen, instellingen, {});
    ASSERT_TRUE(
        Form_Load(tweede, algemeen, instellingen, proef.competitie.map().pad() + "/Lauwerkrans"));
    EXPECT_TRUE(tweede.opties().gewogen);
    EXPECT_EQ(tweede.rijen().criteria().at(1), "9");
}

TEST_F(InstellingenVenster, AnotherCompetitionGetsTheSameValues) {
    proef.start();
    proef.typ("txt1_2", "9");
    proef.klik("chkBuiMed");
    proef.klik("cmdEinde");
    const std::string map = proef.competitie.map().pad();
    proef.competitie.map().schrijf("Competities/Ander/CompData.txt", "a,b,c,d,e,f,g,0,1,1,0\r\n");
    proef.competitie.map().schrijf("Competities/Ander/Ronde-1/RondeData.txt",
                                   "a,b,c,d,e,f,g,2\r\n");
    proef.competitie.map().schrijf("Mappen.ini", "ORVMAP=" + map + "\r\nCOMMAP=" + map +
                                                     "\\Competities\r\nACTCOM=Ander\r\n");
    Instellingen instellingen;
    Algemeen algemeen;
    algemeen.meld = proef.competitie.meldingen.melder();
    frmMain tweede(algemeen, instellingen, {});
    ASSERT_TRUE(Form_Load(tweede, algemeen, instellingen, map + "/Lauwerkrans"));
    ASSERT_EQ(algemeen.ActieveCompetitie, "Ander");
    EXPECT_TRUE(tweede.opties().buiMed);
    EXPECT_EQ(tweede.rijen().criteria(), (Criteria{"", "9"}));
}

TEST_F(InstellingenVenster, WithoutACompetitionNothingIsWritten) {
    schrijfIni("__CHK1=1\r\nvan mij\r\n");
    const std::string map = proef.competitie.map().pad();
    proef.competitie.map().schrijf("Mappen.ini", "ORVMAP=" + map + "\r\nACTCOM=\r\n");
    ASSERT_TRUE(Form_Load(*proef.venster, proef.competitie.algemeen, proef.instellingen,
                          map + "/Lauwerkrans"));
    proef.venster->show();
    proef.klik("cmdEinde");
    EXPECT_EQ(ini(), "__CHK1=1\r\nvan mij\r\n");
    EXPECT_FALSE(proef.venster->isVisible());
}

TEST_F(InstellingenVenster, SettingsThatCannotBeWrittenAreReportedAndTheProgramEnds) {
    proef.start();
    std::filesystem::create_directory(proef.competitie.map().map() / "Lauwerkrans/Lauwr.ini");
    proef.klik("cmdEinde");
    ASSERT_EQ(proef.competitie.meldingen.getoond.size(), 1U);
    EXPECT_EQ(proef.competitie.meldingen.getoond[0],
              (Melding{"Het bestand '" +
                           systeem::Schrijfwijze(proef.competitie.map().pad() +
                                                 "/Lauwerkrans/Lauwr.ini") +
                           "' kan niet worden geschreven: er staat een map met die naam.",
                       Icoon::Uitroep}));
    EXPECT_FALSE(proef.venster->isVisible());
}

#ifdef _WIN32
TEST_F(InstellingenVenster, AFileThatIsOpenElsewhereIsReportedOnceAndTheProgramEnds) {
    proef.competitie.map().maakOnleesbaar("Lauwerkrans/Lauwr.ini");
    proef.start();
    proef.typ("txt1_1", "9");
    proef.klik("cmdEinde");
    ASSERT_EQ(proef.competitie.meldingen.getoond.size(), 1U);
    EXPECT_EQ(proef.competitie.meldingen.getoond[0],
              (Melding{"Het bestand '" + proef.competitie.map().pad() +
                           "\\Lauwerkrans\\Lauwr.ini' kan niet worden geschreven: een ander "
                           "programma gebruikt het bestand.",
                       Icoon::Uitroep}));
    EXPECT_FALSE(proef.venster->isVisible());
}
#else
TEST_F(InstellingenVenster, AFolderThatIsReadOnlyIsReportedOnceAndTheOldFileStays) {
    schrijfIni("__TXT1=13\r\n");
    proef.start();
    proef.typ("txt1_1", "9");
    {
        const ZonderRechten zonder(proef.competitie.map().map() / "Lauwerkrans");
        proef.klik("cmdEinde");
    }
    ASSERT_EQ(proef.competitie.meldingen.getoond.size(), 1U);
    EXPECT_EQ(proef.competitie.meldingen.getoond[0],
              (Melding{"Het bestand '" + proef.competitie.map().pad() +
                           "/Lauwerkrans/Lauwr.ini' kan niet worden geschreven: geen toegang.",
                       Icoon::Uitroep}));
    EXPECT_FALSE(proef.venster->isVisible());
    EXPECT_EQ(ini(), "__TXT1=13\r\n");
}

TEST_F(InstellingenVenster, AFileThatCannotGrowIsReportedOnceAndTheOldOneStays) {
    schrijfIni("__TXT1=13\r\n");
    proef.start();
    {
        const KleineBestanden klein(40);
        proef.klik("cmdEinde");
    }
    EXPECT_EQ(proef.competitie.meldingen.getoond,
              (std::vector<Melding>{
                  {"Het bestand '" + proef.competitie.map().pad() +
                       "/Lauwerkrans/Lauwr.ini' kan niet worden geschreven: het bestand is te "
                       "groot.",
                   Icoon::Uitroep}}));
    EXPECT_FALSE(proef.venster->isVisible());
    EXPECT_EQ(ini(), "__TXT1=13\r\n");
}
#endif

TEST_F(InstellingenVenster, CriteriaSurviveWhenTheLinesCannotBeRead) {
    schrijfIni("__TXT1=13\r\n__TXT2=10\r\n");
    std::filesystem::remove(proef.competitie.map().map() /
                            (proef.competitie.competitieMap() + "Ronde-1/RondeData.txt"));
    proef.start();
    proef.klik("cmdEinde");
    EXPECT_NE(ini().find("__TXT1=13\r\n__TXT2=10\r\n"), std::string::npos) << ini();
}

TEST_F(InstellingenVenster, TheHeadingIsTakenOverWhenItsBoxLosesTheFocus) {
    proef.start();
    proef.typ("txtKop1", "Kop");
    EXPECT_EQ(proef.instellingen.KopTekst, "");
    QTest::keyClick(&proef.vind<QWidget>("txtKop1"), Qt::Key_Tab);
    EXPECT_EQ(proef.instellingen.KopTekst, "Kop");
}

TEST_F(InstellingenVenster, TakingTheWindowDownTakesNothingOver) {
    proef.start();
    proef.typ("txtKop1", "Kop");
    proef.venster.reset();
    EXPECT_EQ(proef.instellingen.KopTekst, "");
}

} // namespace
} // namespace lauwerkrans::proef
