// The program by its keyboard alone: where the Tab key goes, what shows the focus, the keys that
// work everywhere in a window, and a whole session without a mouse.
#include <QCheckBox>
#include <QPlainTextEdit>

#include <filesystem>

#include "beeldproef.h"
#include "toetsproef.h"
#include "ui/klein_scherm.h"
#include "voorbeeldproef.h"

namespace lauwerkrans::proef {
namespace {

using Namen = std::vector<std::string>;

/// Two lines with a pair each.
class Toetsen : public ::testing::Test {
protected:
    explicit Toetsen(int ronden = 2) : proef(ronden, 2, 2) {
        proef.competitie.schrijfLeden(99, {{3, "Jan", "", "Smit"}, {17, "Piet", "", "Berk"}});
        using P = ProefCompetitie;
        proef.competitie.schrijfZitting(
            1, 1, {P::regel("A1", "3-17", "60,000"), P::regel("B1", "3-17", "50,000")});
        proef.start();
    }

    /// Calculates all lines.
    void bereken() {
        Typ("0");
        TabNaar("txt1_2");
        Typ("0");
        Toets(Qt::Key_F5);
        ASSERT_EQ(proef.rijen(), 2U);
    }
    [[nodiscard]] QWidget* toelichting() const {
        for (QWidget* venster : QApplication::topLevelWidgets()) {
            if (venster->objectName() == QLatin1String("frmToelichting")) return venster;
        }
        return nullptr;
    }
    [[nodiscard]] double markering() const { // y of the mark, or 0
        const auto* lijn = proef.venster->findChild<Streep*>(QStringLiteral("Line20"));
        return lijn->zichtbaar ? lijn->y1 : 0;
    }

    Vensterproef proef;
};

/// More rounds than the panel shows at once.
class ToetsenVeleRonden : public Toetsen {
protected:
    ToetsenVeleRonden() : Toetsen(12) {}
};

const Namen volgorde = {"cmd1_0",
                        "cmd2_0",
                        "txt1_1",
                        "cmd1_1",
                        "cmd2_1",
                        "txt1_2",
                        "cmd1_2",
                        "cmd2_2",
                        "chkGewogen",
                        "chkZitDetails",
                        "chkGemAlleLijnen",
                        "chkBuiMed",
                        "txtPersoon",
                        "cmdControleLijstLid",
                        "txtKop1",
                        "cmdPrinten",
                        "P21",
                        "cmdToelichting",
                        "cmdEinde"};

TEST_F(Toetsen, TheTabKeyGoesInTheOrderOfTheEye) {
    bereken();
    TabNaar("cmd1_0");
    EXPECT_EQ(Rondgang(), volgorde);
    Namen terug(volgorde.rbegin(), volgorde.rend());
    std::rotate(terug.begin(), terug.end() - 1, terug.end());
    EXPECT_EQ(Rondgang(Qt::Key_Backtab), terug);
}

TEST_F(ToetsenVeleRonden, TheRoundsAreAStopOfTheTabKeyWhenTheyScroll) {
    bereken();
    TabNaar("cmd1_0");
    Namen verwacht = volgorde;
    verwacht.push_back("P11");
    EXPECT_EQ(Rondgang(), verwacht);
    TabNaar("P11");
    Toets(Qt::Key_End);
    const auto& balk = proef.vind<QScrollBar>("VScroll10");
    EXPECT_GT(balk.maximum(), 0);
    EXPECT_EQ(balk.value(), balk.maximum());
    Toets(Qt::Key_Home);
    Toets(Qt::Key_Down);
    EXPECT_EQ(balk.value(), 4);
    Toets(Qt::Key_PageDown);
    EXPECT_GT(balk.value(), 4);
}

TEST_F(Toetsen, WhatIsDisabledIsNoStop) {
    EXPECT_FALSE(proef.venster->printbaar());
    TabNaar("cmd1_0");
    const Namen stops = Rondgang();
    EXPECT_EQ(stops.size(), volgorde.size() - 1);
    EXPECT_EQ(std::count(stops.begin(), stops.end(), "cmdPrinten"), 0);
}

TEST_F(ToetsenVeleRonden, EveryStopShowsThatItHasTheFocus) {
    bereken();
    ZietFocus(*proef.venster);
}

TEST_F(Toetsen, EveryStopOfThePreviewsShowsIt) {
    bereken();
    proef.uitvoer.cmdPrinten_Click(*proef.venster);
    auto* perLijn = proef.voorbeeld("frmPrinten");
    Wacht(*perLijn);
    Vind<QScrollBar>(*perLijn, "Bladscroll")->setRange(1, 2); // as with more pages
    Vind<QScrollBar>(*perLijn, "Bladscroll")->setEnabled(true);
    ZietFocus(*perLijn);
    perLijn->close();
    proef.vind<QCheckBox>("chkGemAlleLijnen").setChecked(true);
    proef.uitvoer.cmdPrinten_Click(*proef.venster);
    Wacht(*proef.voorbeeld("frmPrintenTI"));
    ZietFocus(*proef.voorbeeld("frmPrintenTI"));
}

TEST_F(Toetsen, ALargePageShowsTheFocusToo) {
    bereken();
    Toets(Qt::Key_P, Qt::ControlModifier);
    auto* venster = proef.voorbeeld("frmPrinten");
    Wacht(*venster);
    for (int keer = 0; keer < 3; ++keer)
        Toets(Qt::Key_Space);
    ASSERT_EQ(venster->voorbeeld().vergroting(), Vergroting::HonderdVijftig);
    auto& doos = *Vind<QWidget>(*venster, "picP0");
    const QImage met = Beeld(doos);
    Toets(Qt::Key_Tab);
    EXPECT_NE(Beeld(doos), met);
}

TEST_F(Toetsen, TheExplanationAndASmallScreenShowTheFocus) {
    Toets(Qt::Key_F1);
    Wacht(*toelichting());
    ASSERT_EQ(Focus(), "Text1");
    ZietFocus(*toelichting());
    toelichting()->close();
    proef.venster->hide();
    KleinScherm scherm(*proef.venster);
    scherm.resize(600, 400);
    scherm.show();
    Wacht(scherm);
    scherm.setFocus();
    const QImage met = Beeld(scherm);
    Toets(Qt::Key_Tab);
    EXPECT_NE(Beeld(scherm), met);
}

TEST_F(Toetsen, F1OpensTheExplanationFromEveryWindowAndEscapeClosesIt) {
    Toets(Qt::Key_F1);
    ASSERT_NE(toelichting(), nullptr);
    Wacht(*toelichting());
    const auto& balk = *toelichting()->findChild<QPlainTextEdit*>()->verticalScrollBar();
    Toets(Qt::Key_PageDown);
    EXPECT_GT(balk.value(), 0);
    Toets(Qt::Key_Escape);
    EXPECT_FALSE(toelichting()->isVisible());
    EXPECT_TRUE(proef.venster->isVisible());
    proef.venster->activateWindow();
    Wacht(*proef.venster);
    bereken();
    Toets(Qt::Key_P, Qt::ControlModifier);
    Wacht(*proef.voorbeeld("frmPrinten"));
    Toets(Qt::Key_F1);
    EXPECT_TRUE(toelichting()->isVisible());
}

TEST_F(Toetsen, F5CalculatesAllLinesWhereverTheFocusIs) {
    bereken();
    for (const char* plaats : {"txtPersoon", "P21", "chkGewogen", "cmd2_1", "txtKop1"}) {
        proef.klik("cmd2_1");
        ASSERT_EQ(proef.kop(), "Berekening voor lijn A");
        TabNaar(plaats);
        Toets(Qt::Key_F5);
        EXPECT_EQ(proef.kop(), "Berekening voor lijn AB") << plaats;
        EXPECT_EQ(Focus(), plaats);
    }
}

TEST_F(Toetsen, AKeyOfAButtonThatIsHiddenOrDisabledDoesNothing) {
    Toets(Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(proef.voorbeeld("frmPrinten"), nullptr);
    proef.vind<QWidget>("txt1_1").setFocus();
    Typ("0");
    TabNaar("txt1_2");
    Typ("0");
    proef.vind<QWidget>("cmd1_0").hide();
    Toets(Qt::Key_F5);
    EXPECT_EQ(proef.rijen(), 0U);
    proef.vind<QWidget>("cmd1_0").show();
    proef.vind<QWidget>("Frame3").setEnabled(false);
    Toets(Qt::Key_F5);
    EXPECT_EQ(proef.rijen(), 0U);
    proef.vind<QWidget>("Frame3").setEnabled(true);
    Toets(Qt::Key_F5);
    EXPECT_EQ(proef.rijen(), 2U);
}

TEST_F(Toetsen, WithoutACompetitionOnlyTheExplanationAndLeavingAreLeft) {
    proef.venster->toonZonderCompetitie();
    proef.vind<QWidget>("cmdToelichting").setFocus();
    EXPECT_EQ(Rondgang(), (Namen{"cmdToelichting", "cmdEinde"}));
    Toets(Qt::Key_F5);
    Toets(Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(proef.competitie.meldingen.getoond.empty());
    EXPECT_EQ(proef.voorbeeld("frmPrinten"), nullptr);
}

TEST_F(Toetsen, CaptionsHaveNoLettersOfTheirOwn) {
    for (const auto* knop : proef.venster->findChildren<QAbstractButton*>()) {
        EXPECT_FALSE(knop->text().contains(QLatin1Char('&'))) << knop->text().toStdString();
        EXPECT_TRUE(knop->shortcut().isEmpty()) << knop->text().toStdString();
    }
}

TEST_F(Toetsen, TheMemberSearchStartsWithEnterAndItsListIsPrinted) {
    proef.printers.pdf =
        QString::fromStdString((proef.competitie.map().map() / "lid.pdf").string());
    TabNaar("txtPersoon");
    Typ("smit");
    Toets(Qt::Key_Return);
    EXPECT_EQ(proef.kop(), "Controlelijst voor SMIT");
    Toets(Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(std::filesystem::exists(proef.competitie.map().map() / "lid.pdf"));
}

TEST_F(Toetsen, AWholeSessionNeedsNoMouse) {
    proef.printers.pdf =
        QString::fromStdString((proef.competitie.map().map() / "lijst.pdf").string());
    EXPECT_EQ(Focus(), "txt1_1");
    Typ("1");
    TabNaar("txt1_2");
    Typ("1");
    TabNaar("chkZitDetails");
    Toets(Qt::Key_Space);
    TabNaar("txtKop1");
    Typ("Kampioenen");
    Toets(Qt::Key_F5);
    EXPECT_EQ(proef.rij(1), "1|A|1|Jan Smit - Piet Berk|1|60,000|60,000_24");
    TabNaar("P21");
    Toets(Qt::Key_Down, Qt::ControlModifier);
    Toets(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(markering(), 9);
    Toets(Qt::Key_Escape);
    EXPECT_EQ(markering(), 0);
    TabNaar("cmd2_2");
    Toets(Qt::Key_Return);
    EXPECT_EQ(proef.kop(), "Berekening voor lijn B");
    TabNaar("cmd1_0");
    Toets(Qt::Key_Space);
    TabNaar("cmdPrinten");
    Toets(Qt::Key_Return);
    auto* voorbeeld = proef.voorbeeld("frmPrinten");
    ASSERT_NE(voorbeeld, nullptr);
    Wacht(*voorbeeld);
    EXPECT_EQ(Focus(), "P1");
    TabNaar("cmdMaakCSV");
    Toets(Qt::Key_Return);
    Toets(Qt::Key_P, Qt::ControlModifier);
    EXPECT_NE(PdfBlad(proef.printers.pdf.toStdString(), 1).find("Kampioenen"), std::string::npos);
    Toets(Qt::Key_Escape);
    EXPECT_FALSE(voorbeeld->isVisible());
    proef.venster->activateWindow();
    Wacht(*proef.venster);
    TabNaar("cmdEinde");
    Toets(Qt::Key_Return);
    EXPECT_EQ(proef.einde, 1);
    ASSERT_EQ(proef.competitie.meldingen.getoond.size(), 1U);
    EXPECT_EQ(proef.competitie.meldingen.getoond[0].icoon, Icoon::Informatie) << "the CSV file";
}

} // namespace
} // namespace lauwerkrans::proef
