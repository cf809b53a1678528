// The order of the steps of the start: what is read before what, and that each step goes on after a
// failure of the one before.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>

#include "data/systeem.h"
#include "startproef.h"

namespace lauwerkrans::proef {
namespace {

class StartVolgorde : public Startproef {
protected:
    void schrijfIni(const std::string& bytes) const {
        competitie.map().schrijf("Lauwerkrans/Lauwr.ini", bytes);
    }
    /// Looks at the window while each message is up; the message is still written down.
    template <class Kijk>
    void bijElkeMelding(Kijk kijk) {
        competitie.algemeen.meld = [this, kijk](const Melding& melding) {
            kijk();
            competitie.meldingen.getoond.push_back(melding);
        };
    }
    [[nodiscard]] std::string criterium() const {
        return vind<QLineEdit>("txt1_1").text().toStdString();
    }
};

TEST_F(StartVolgorde, TheSettingsAreReadBeforeTheFolderConfiguration) {
    schrijfIni("__CHK1=1\r\n__TXT1=4\r\n");
    EXPECT_FALSE(laad()) << "there is no folder configuration";
    EXPECT_EQ(instellingen.IniRegels.bovengrens(), 2U);
    EXPECT_EQ(instellingen.bestand, programmaMap() + "\\Lauwr.ini");
}

TEST_F(StartVolgorde, TheFolderConfigurationIsReadBeforeAnyFileOfTheCompetition) {
    verwijder("ORVspelers/ORVspelers.txt");
    verwijder("Competities/Proef/CompData.txt");
    EXPECT_FALSE(laad());
    ASSERT_EQ(meldingen().size(), 1U);
    EXPECT_NE(meldingen()[0].tekst.find("Mappen.ini"), std::string::npos);
    EXPECT_EQ(vind<QListWidget>("List2").count(), 0);
}

TEST_F(StartVolgorde, WithoutCompDataTheNameIsOnTheListButNotYetInTheTitles) {
    verwijder("Competities/Proef/CompData.txt");
    bijElkeMelding([this] {
        EXPECT_EQ(vind<QListWidget>("List2").count(), 1);
        EXPECT_EQ(vind<QListWidget>("List2").currentRow(), 0);
        EXPECT_EQ(kop(), "Overzicht");
        EXPECT_EQ(vind<KopLabel>("Label1").bijschrift(), QStringLiteral("Label1"));
        EXPECT_FALSE(vind<QListWidget>("List2").isHidden());
    });
    EXPECT_TRUE(start());
    EXPECT_EQ(meldingen().size(), 1U);
}

TEST_F(StartVolgorde, MembersAreReadAfterTheCompetitionAndBeforeTheRest) {
    schrijfIni("__CHK1=1\r\n__TXT1=4\r\n__TXTKOP=Kop\r\n");
    competitie.schrijfZitting(1, 2, {});
    verwijder("ORVspelers/ORVspelers.txt");
    bijElkeMelding([this] {
        EXPECT_EQ(kop(), "Resultaat voor: Proef");
        EXPECT_EQ(vind<KopLabel>("Label1").bijschrift(), QStringLiteral("Proef"));
        EXPECT_TRUE(vind<QListWidget>("List2").isHidden());
        EXPECT_EQ(vind<TabelLijf>("P11").beeld().cel(1, 4).tekst, QStringLiteral("1"));
        EXPECT_EQ(venster.rijen().lijnen(), 2U);
        EXPECT_EQ(competitie.algemeen.BumLijst.bovengrens(), 0U) << "comes after the members";
        EXPECT_FALSE(vind<QCheckBox>("chkGewogen").isChecked()) << "settings come last";
        EXPECT_EQ(criterium(), "");
        EXPECT_EQ(vind<QLineEdit>("txtKop1").text(), QString());
    });
    EXPECT_TRUE(start());
    ASSERT_EQ(meldingen().size(), 1U);
    EXPECT_EQ(meldingen()[0].tekst, ledenFout);
    EXPECT_EQ(competitie.algemeen.BumLijst.bovengrens(), 1U);
    EXPECT_TRUE(vind<QCheckBox>("chkGewogen").isChecked());
    EXPECT_EQ(criterium(), "4");
    EXPECT_EQ(vind<QLineEdit>("txtKop1").text(), QStringLiteral("Kop"));
    EXPECT_FALSE(vind<QWidget>("cmdPrinten").isEnabled());
}

TEST_F(StartVolgorde, ARoundThatCannotBeListedGivesOneMessageAndTheRestIsRead) {
    competitie.map().verwijder("Competities/Proef/Ronde-2");
    competitie.map().maakOnleesbareMap("Competities/Proef/Ronde-2");
    EXPECT_TRUE(start());
    ASSERT_EQ(meldingen().size(), 1U);
    EXPECT_TRUE(meldingen()[0].tekst.starts_with(
        "Het bestand '" +
        systeem::Schrijfwijze(competitie.map().pad() + "/Competities/Proef/Ronde-2") +
        "' kan niet worden gelezen: "))
        << meldingen()[0].tekst;
    EXPECT_EQ(venster.rijen().lijnen(), 2U);
    EXPECT_EQ(competitie.algemeen.ledenNamen->naam(3), "Jan Smit");
}

TEST_F(StartVolgorde, BrokenFilesAreReportedInTheOrderOfReadingEachOnce) {
    competitie.map().verwijder("Competities/Proef/Ronde-2");
    competitie.map().maakOnleesbareMap("Competities/Proef/Ronde-2");
    verwijder("Competities/Proef/Ronde-1/RondeData.txt");
    competitie.map().schrijf("ORVspelers/ORVspelers.txt", "veel");
    schrijfIni("__CHK1=1\r\n");
    EXPECT_TRUE(start());
    ASSERT_EQ(meldingen().size(), 3U);
    EXPECT_NE(meldingen()[0].tekst.find("Ronde-2' kan niet worden gelezen"), std::string::npos);
    EXPECT_TRUE(
        meldingen()[1].tekst.starts_with("Fout bij het inlezen van de rondegegevens.\r\n\r\n"));
    EXPECT_EQ(meldingen()[2].tekst, ledenFout);
    EXPECT_TRUE(vind<QCheckBox>("chkGewogen").isChecked()) << "the last step has run too";
}

TEST_F(StartVolgorde, AMalformedOutOfCompetitionListIsPassedOverInSilence) {
    competitie.map().schrijf("Competities/Proef/Ronde-2/CompBums.txt", "veel,6");
    schrijfIni("__CHK1=1\r\n");
    EXPECT_TRUE(start());
    EXPECT_TRUE(meldingen().empty());
    EXPECT_TRUE(vind<QCheckBox>("chkGewogen").isChecked());
}

TEST_F(StartVolgorde, UnreadableSettingsGiveNoMessageAndLeaveTheDefaults) {
    competitie.map().maakOnleesbaar("Lauwerkrans/Lauwr.ini");
    EXPECT_TRUE(start());
    EXPECT_TRUE(meldingen().empty());
    EXPECT_FALSE(vind<QCheckBox>("chkGewogen").isChecked());
    EXPECT_EQ(criterium(), "");
}

TEST_F(StartVolgorde, APercentageFileThatCannotBeOpenedIsReportedOnceWhenItIsRead) {
    using P = ProefCompetitie;
    competitie.schrijfZitting(1, 1, {P::regel("A1", "3-17", "60,000")});
    ASSERT_TRUE(start());
    vind<QLineEdit>("txt1_1").setText(QStringLiteral("1"));
    venster.cmd1_Click(1);
    const auto lijst = venster.raster().lijst();
    ASSERT_NE(lijst, nullptr);
    competitie.map().maakOnleesbaar("Competities/Proef/Ronde-1/Zitting-2/PercZit-2.txt");
    for (const bool controle : {false, true}) {
        competitie.meldingen.getoond.clear();
        if (controle) {
            venster.cmd2_Click(1);
        } else {
            venster.cmd1_Click(1);
        }
        ASSERT_EQ(meldingen().size(), 1U);
        EXPECT_NE(meldingen()[0].tekst.find(
                      systeem::Schrijfwijze("/Competities/Proef/Ronde-1/Zitting-2/PercZit-2.txt") +
                      "' kan niet worden gelezen: "),
                  std::string::npos)
            << meldingen()[0].tekst;
        EXPECT_EQ(venster.raster().lijst(), lijst) << "the earlier list stays";
        EXPECT_EQ(kop(), "Berekening voor lijn A");
        EXPECT_EQ(vind<TabelLijf>("P11").beeld().cel(1, 4).tekst, QStringLiteral("1"));
    }
}

} // namespace
} // namespace lauwerkrans::proef
