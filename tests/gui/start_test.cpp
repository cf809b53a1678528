// The start of the program, from the folder configuration to the window with its competition.
#include <gtest/gtest.h>

#include <QListWidget>
#include <QPushButton>

#include <filesystem>

#include "data/systeem.h"
#include "startproef.h"
#include "vensterproef.h"

namespace lauwerkrans::proef {
namespace {

using Start = Startproef;

TEST(MagStarten, TheFirstCopyGoesOnAndASecondOneSaysThatItIsThere) {
    Meldingen meldingen;
    const std::string naam =
        "lauwerkrans-start-" + std::to_string(QCoreApplication::applicationPid());
    const systeem::EnigeKopie eerste(naam);
    EXPECT_TRUE(MagStarten(eerste, meldingen.melder()));
    EXPECT_TRUE(meldingen.getoond.empty());
    EXPECT_FALSE(MagStarten(systeem::EnigeKopie(naam), meldingen.melder()));
    ASSERT_EQ(meldingen.getoond.size(), 1U);
    EXPECT_EQ(meldingen.getoond[0], (Melding{"Het programma is al gestart!...", Icoon::Geen}));
}

TEST_F(Start, WithoutFolderConfigurationSaysSoAndDoesNotGoOn) {
    EXPECT_FALSE(laad());
    ASSERT_EQ(meldingen().size(), 1U);
    EXPECT_EQ(meldingen()[0].icoon, Icoon::Uitroep);
    EXPECT_NE(meldingen()[0].tekst.find("Mappen.ini' kan niet worden gelezen: het bestand bestaat "
                                        "niet."),
              std::string::npos)
        << meldingen()[0].tekst;
    EXPECT_NE(meldingen()[0].tekst.find(competitie.map().pad()), std::string::npos);
}

TEST_F(Start, WithAFolderInsteadOfTheConfigurationSaysSoAndDoesNotGoOn) {
    std::filesystem::create_directory(competitie.map().map() / "Mappen.ini");
    EXPECT_FALSE(laad());
    EXPECT_EQ(meldingen().size(), 1U);
}

TEST_F(Start, ShowsTheActiveCompetition) {
    EXPECT_TRUE(start());
    EXPECT_TRUE(meldingen().empty());
    EXPECT_EQ(kop(), "Resultaat voor: Proef");
    EXPECT_EQ(vind<KopLabel>("Label1").bijschrift(), QStringLiteral("Proef"));
    const auto& List2 = vind<QListWidget>("List2");
    ASSERT_EQ(List2.count(), 1);
    EXPECT_EQ(List2.item(0)->text(), QStringLiteral("Proef"));
    EXPECT_EQ(List2.currentRow(), 0);
    EXPECT_TRUE(List2.isHidden());
    EXPECT_FALSE(vind<QWidget>("cmdPrinten").isEnabled());
    EXPECT_FALSE(venster.printbaar());
    EXPECT_EQ(venster.rijen().lijnen(), 2U);
    EXPECT_EQ(venster.raster().lijst(), nullptr);
}

TEST_F(Start, ReadsMembersAndOutOfCompetitionLists) {
    ASSERT_TRUE(start());
    EXPECT_EQ(competitie.algemeen.ledenNamen->naam(17), "Piet van Berkelo");
    EXPECT_EQ(competitie.algemeen.BumLijst.bovengrens(), 1U);
}

TEST_F(Start, CountsTheSessionsThatHaveScores) {
    competitie.schrijfZitting(1, 1, {});
    competitie.schrijfZitting(1, 3, {});
    ASSERT_TRUE(start());
    const auto& beeld = vind<TabelLijf>("P11").beeld();
    ASSERT_EQ(beeld.rijen, 2U);
    EXPECT_EQ(beeld.cel(1, 4).tekst, QStringLiteral("2"));
    EXPECT_EQ(beeld.cel(2, 4).tekst, QString());
    EXPECT_EQ(beeld.cel(2, 2).tekst, QStringLiteral("3"));
}

TEST_F(Start, OpensNoPercentageFile) {
    competitie.schrijfZitting(1, 1, {"geen regel, zeker geen goede"});
    // Whoever opens this one fails. One that is in use stands there, a link to itself does not.
    const std::string bezet = "Competities/Proef/Ronde-1/Zitting-2/PercZit-2.txt";
    competitie.map().maakOnleesbaar(bezet);
    const bool telt = systeem::IsBestand(competitie.map().pad() + "/" + bezet);
    ASSERT_TRUE(start());
    EXPECT_TRUE(meldingen().empty());
    EXPECT_EQ(vind<TabelLijf>("P11").beeld().cel(1, 4).tekst,
              telt ? QStringLiteral("2") : QStringLiteral("1"));
}

TEST_F(Start, WithoutActiveCompetitionHidesTheResultsAndDisablesTheFrames) {
    schrijfMappen("");
    EXPECT_TRUE(laad());
    for (const char* naam : {"Frame1", "P20", "VScroll20", "HScroll20", "lblResultKop"})
        EXPECT_TRUE(vind<QWidget>(naam).isHidden()) << naam;
    for (const char* naam : {"Frame2", "Frame3", "Frame4", "Frame5"}) {
        EXPECT_FALSE(vind<QWidget>(naam).isHidden()) << naam;
        EXPECT_FALSE(vind<QWidget>(naam).isEnabled()) << naam;
    }
    EXPECT_FALSE(vind<QWidget>("chkGewogen").isEnabled());
    ASSERT_EQ(meldingen().size(), 1U);
    EXPECT_EQ(meldingen()[0],
              (Melding{"U hebt nog geen competitie(-zitting) gekozen.", Icoon::Uitroep}));
}

TEST_F(Start, WithoutActiveCompetitionShowsItsMessageLast) {
    schrijfMappen("");
    bool verborgen = false;
    bool uit = false;
    competitie.algemeen.meld = [&](const Melding&) {
        verborgen = vind<QWidget>("P20").isHidden() && vind<QWidget>("Frame1").isHidden();
        uit = !vind<QWidget>("Frame3").isEnabled();
    };
    EXPECT_TRUE(laad());
    EXPECT_TRUE(verborgen);
    EXPECT_TRUE(uit);
}

TEST_F(Start, WithoutActiveCompetitionReadsNoOtherFile) {
    schrijfMappen("");
    verwijder("ORVspelers/ORVspelers.txt");
    verwijder("Competities/Proef/CompData.txt");
    verwijder("Competities/Proef/Ronde-1/RondeData.txt");
    EXPECT_TRUE(laad());
    EXPECT_EQ(meldingen().size(), 1U) << "none about a file that is missing";
    EXPECT_EQ(vind<QListWidget>("List2").count(), 0);
    EXPECT_TRUE(vind<QWidget>("lbl1_0").isHidden());
}

TEST_F(Start, WithoutCompDataSaysSoAndGoesOnWithTheRest) {
    verwijder("Competities/Proef/CompData.txt");
    EXPECT_TRUE(start());
    ASSERT_EQ(meldingen().size(), 1U);
    EXPECT_EQ(meldingen()[0], (Melding{geenCompData, Icoon::Uitroep}));
    EXPECT_EQ(competitie.algemeen.ledenNamen->naam(3), "Jan Smit");
    EXPECT_EQ(vind<TabelLijf>("P11").beeld().rijen, 0U);
    EXPECT_EQ(venster.rijen().lijnen(), 2U);
    EXPECT_EQ(kop(), "Resultaat voor: Proef");
    EXPECT_EQ(vind<KopLabel>("Label1").bijschrift(), QStringLiteral("Proef"));
}

TEST_F(Start, OnACompetitionWithoutFolderReportsEachFileInTheOrderOfReading) {
    schrijfMappen("Weg");
    verwijder("ORVspelers/ORVspelers.txt");
    EXPECT_TRUE(laad());
    ASSERT_EQ(meldingen().size(), 3U);
    EXPECT_EQ(meldingen()[0].tekst, geenCompData);
    EXPECT_NE(meldingen()[1].tekst.find("Fout bij het inlezen van de rondegegevens."),
              std::string::npos);
    EXPECT_EQ(meldingen()[2].tekst, ledenFout);
    EXPECT_EQ(kop(), "Resultaat voor: Weg");
}

TEST_F(Start, WithBrokenCompDataSaysSoAndGoesOn) {
    competitie.map().schrijf("Competities/Proef/CompData.txt", "a,b,c,d,e,f,g,twee\r\n");
    EXPECT_TRUE(start());
    ASSERT_EQ(meldingen().size(), 1U);
    EXPECT_EQ(meldingen()[0].tekst, "Fout bij het inlezen van de competitiegegevens.\r\n");
    EXPECT_EQ(venster.rijen().lijnen(), 2U);
    EXPECT_EQ(competitie.algemeen.ledenNamen->naam(3), "Jan Smit");
}

TEST_F(Start, WithoutRoundDataNamesThePathAndLeavesOnlyTheRowAlle) {
    verwijder("Competities/Proef/Ronde-1/RondeData.txt");
    EXPECT_TRUE(start());
    ASSERT_EQ(meldingen().size(), 1U);
    EXPECT_EQ(meldingen()[0].tekst,
              "Fout bij het inlezen van de rondegegevens.\r\n\r\n" +
                  systeem::Schrijfwijze(competitie.map().pad() +
                                        "/Competities/Proef/Ronde-1/RondeData.txt"));
    EXPECT_EQ(meldingen()[0].icoon, Icoon::Uitroep);
    EXPECT_EQ(venster.rijen().lijnen(), 0U);
    EXPECT_FALSE(vind<QWidget>("lbl1_0").isHidden());
    EXPECT_EQ(vind<QLabel>("lbl1_0").text(), QStringLiteral("Alle"));
    EXPECT_EQ(vind<TabelLijf>("P11").beeld().rijen, 2U);
    EXPECT_EQ(competitie.algemeen.ledenNamen->naam(3), "Jan Smit");
    vind<QPushButton>("cmd1_0").click();
    ASSERT_NE(venster.raster().lijst(), nullptr);
    EXPECT_EQ(venster.raster().lijst()->rijen(), 0U) << "the empty list with its headers";
    EXPECT_EQ(venster.raster().lijst()->kolommen(), 6U);
    EXPECT_EQ(meldingen().size(), 1U);
}

TEST_F(Start, WithTooManyLinesIsAnErrorOfTheRoundData) {
    competitie.map().schrijf("Competities/Proef/Ronde-1/RondeData.txt", "a,b,c,d,e,f,g,27\r\n");
    EXPECT_TRUE(start());
    ASSERT_EQ(meldingen().size(), 1U);
    EXPECT_EQ(venster.rijen().lijnen(), 0U);
}

TEST_F(Start, WithoutMembersSaysSoAndGoesOn) {
    verwijder("ORVspelers/ORVspelers.txt");
    EXPECT_TRUE(start());
    ASSERT_EQ(meldingen().size(), 1U);
    EXPECT_EQ(meldingen()[0], (Melding{ledenFout, Icoon::Uitroep}));
    EXPECT_EQ(competitie.algemeen.BumLijst.bovengrens(), 1U);
}

TEST_F(Start, GivesTheFirstCriterionTheFocus) {
    ASSERT_TRUE(start());
    venster.show();
    venster.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&venster));
    EXPECT_TRUE(vind<QWidget>("txt1_1").hasFocus());
}

TEST_F(Start, WithoutActiveCompetitionGivesTheExplanationTheFocus) {
    schrijfMappen("");
    ASSERT_TRUE(laad());
    venster.show();
    venster.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&venster));
    EXPECT_TRUE(vind<QWidget>("cmdToelichting").hasFocus());
}

TEST_F(Start, OfAnotherCompetitionForgetsTheResultOfTheFirst) {
    competitie.schrijfZitting(1, 1, {ProefCompetitie::regel("A1", "3-17", "60,000")});
    ASSERT_TRUE(start());
    vind<QLineEdit>("txt1_1").setText(QStringLiteral("1"));
    venster.cmd1_Click(1);
    ASSERT_NE(venster.uitslag(), nullptr);
    competitie.map().schrijf("Competities/Ander/CompData.txt", "a,b,c,d,e,f,g,0,1,1,0\r\n");
    competitie.map().schrijf("Competities/Ander/Ronde-1/RondeData.txt", "a,b,c,d,e,f,g,1\r\n");
    vind<QListWidget>("List2").item(0)->setText(QStringLiteral("Ander"));
    KiesCompetitie(venster, competitie.algemeen);
    EXPECT_EQ(venster.uitslag(), nullptr);
    EXPECT_EQ(venster.raster().lijst(), nullptr);
    EXPECT_EQ(kop(), "Resultaat voor: Ander");
    EXPECT_EQ(venster.rijen().lijnen(), 1U);
    EXPECT_EQ(vind<TabelLijf>("P11").beeld().rijen, 1U);
    EXPECT_TRUE(meldingen().empty());
}

} // namespace
} // namespace lauwerkrans::proef
