// What a screen reader is told of the main window: names and roles, and the page of a preview.
#include <gtest/gtest.h>

#include <QPushButton>

#include <set>

#include "toegangproef.h"
#include "voorbeeldproef.h"

namespace lauwerkrans::proef {
namespace {

class ToegangVenster : public ::testing::Test {
protected:
    ToegangVenster() : proef(2, 2, 3) {
        proef.competitie.schrijfLeden(99, {{3, "Jan", "", "Smit"}, {17, "Piet", "", "Berk"}});
        using P = ProefCompetitie;
        proef.competitie.schrijfZitting(1, 1, {P::regel("A1", "3-17", "60,000")});
        proef.start();
    }
    [[nodiscard]] QAccessibleInterface& toegang(const char* naam) const {
        return Toegang(proef.vind<QWidget>(naam));
    }
    [[nodiscard]] std::string naam(const char* element) const { return Naam(toegang(element)); }

    Vensterproef proef;
};

TEST_F(ToegangVenster, TheRowsOfTheCriteriaSayTheirLine) {
    EXPECT_EQ(naam("txt1_1"), "Minimum aantal zittingen lijn A");
    EXPECT_EQ(naam("txt1_3"), "Minimum aantal zittingen lijn C");
    EXPECT_EQ(toegang("txt1_1").role(), QAccessible::EditableText);
    EXPECT_EQ(naam("cmd1_2"), "Bereken lijn B");
    EXPECT_EQ(naam("cmd2_2"), "Controle lijn B");
    EXPECT_EQ(naam("cmd1_0"), "Bereken alle lijnen");
    EXPECT_EQ(naam("cmd2_0"), "Controle alle lijnen");
    EXPECT_EQ(proef.vind<QPushButton>("cmd1_2").text(), QStringLiteral("Bereken"));
}

TEST_F(ToegangVenster, CheckBoxesAndFramesHaveTheirCaptions) {
    EXPECT_EQ(naam("chkGewogen"), "Gewogen gemiddelde");
    EXPECT_EQ(naam("chkBuiMed"), "Bui_Mededing telt ook mee.");
    EXPECT_EQ(toegang("chkGewogen").role(), QAccessible::CheckBox);
    EXPECT_FALSE(toegang("chkGewogen").state().checked);
    proef.klik("chkGewogen");
    EXPECT_TRUE(toegang("chkGewogen").state().checked);
    EXPECT_EQ(naam("Frame3"), "Criteria en berekenen");
    EXPECT_EQ(toegang("Frame3").role(), QAccessible::Grouping);
}

/// Every control that the Tab key comes by, and every scroll bar, has a name of its own.
void HebbenNamen(const QWidget& venster) {
    std::multiset<std::string> namen;
    for (auto* element : venster.findChildren<QWidget*>()) {
        const bool bediend = (element->focusPolicy() & Qt::TabFocus) != 0 ||
                             qobject_cast<QScrollBar*>(element) != nullptr ||
                             qobject_cast<QLineEdit*>(element) != nullptr;
        if (!bediend || !element->isVisible()) continue;
        const std::string naam = Naam(Toegang(*element));
        EXPECT_NE(naam, "") << element->objectName().toStdString();
        namen.insert(naam);
        EXPECT_EQ(namen.count(naam), 1U) << naam;
    }
    EXPECT_GT(namen.size(), 5U);
}

TEST_F(ToegangVenster, NoControlIsWithoutANameOrHasThatOfAnother) {
    HebbenNamen(*proef.venster);
    proef.uitvoer.cmdPrinten_Click(*proef.venster);
    HebbenNamen(*proef.voorbeeld("frmPrinten"));
    proef.vind<QCheckBox>("chkGemAlleLijnen").setChecked(true);
    proef.uitvoer.cmdPrinten_Click(*proef.venster);
    HebbenNamen(*proef.voorbeeld("frmPrintenTI"));
}

TEST_F(ToegangVenster, AHeadingIsReadWhollyWhenItIsCutShort) {
    auto& kop = proef.vind<KopLabel>("lblResultKop");
    const QString teLang(200, QLatin1Char('n'));
    kop.zetBijschrift(teLang);
    ASSERT_NE(kop.text(), teLang);
    EXPECT_EQ(naam("lblResultKop"), teLang.toStdString());
}

TEST_F(ToegangVenster, TheRoundsAreATable) {
    auto* tabel = toegang("P11").tableInterface();
    ASSERT_NE(tabel, nullptr);
    EXPECT_EQ(naam("P11"), "Ronden van de competitie");
    EXPECT_EQ(tabel->rowCount(), 2);
    EXPECT_EQ(tabel->columnCount(), 4);
    EXPECT_EQ(tabel->columnDescription(3).toStdString(), "met Perc");
    EXPECT_EQ(Naam(*tabel->cellAt(0, 0)), "1");
    EXPECT_EQ(Naam(*tabel->cellAt(0, 3)), "1");
    EXPECT_FALSE(tabel->cellAt(0, 0)->state().selectable);
    EXPECT_FALSE(tabel->selectRow(0));
}

TEST_F(ToegangVenster, TheGridHasTheTitleOfItsListAndReadsARow) {
    EXPECT_EQ(naam("P21"), "Resultaat");
    for (const char* vak : {"txt1_1", "txt1_2", "txt1_3"})
        proef.typ(vak, "0");
    proef.klik("cmd1_0");
    EXPECT_EQ(naam("P21"), "Berekening voor lijn ABC");
    auto* tabel = toegang("P21").tableInterface();
    EXPECT_EQ(tabel->rowDescription(0).toStdString(),
              "Nr 1, Lijn A, Rang 1, Paar Jan Smit - Piet Berk, AantZit 1, Gemid % 60,000");
    EXPECT_EQ(tabel->cellAt(0, 0)->text(QAccessible::Description), tabel->rowDescription(0));
    EXPECT_EQ(tabel->cellAt(0, 1)->text(QAccessible::Description), QString());
}

TEST_F(ToegangVenster, ASessionOfThePairIsSaidInWords) {
    proef.typ("txt1_1", "0");
    proef.klik("chkZitDetails");
    proef.klik("cmd1_1");
    auto* tabel = toegang("P21").tableInterface();
    EXPECT_EQ(Naam(*tabel->cellAt(0, 6)), "60,000_24");
    EXPECT_EQ(tabel->cellAt(0, 6)->text(QAccessible::Description).toStdString(),
              "Ronde 1, zitting 1: 24 spellen, 60,000 %");
}

/// The preview of a list over three pages.
class ToegangVoorbeeld : public UitvoerTest {
protected:
    ToegangVoorbeeld() : venster(printers.omgeving()) {
        uitvoer.uitslag = GroteUitslag({2, 50, 3});
        uitvoer.KopTekst = "Kampioenen";
        venster.vul(uitvoer);
        venster.show();
    }
    [[nodiscard]] QAccessibleInterface& blad() const {
        return Toegang(*Vind<QWidget>(venster, "P1"));
    }
    [[nodiscard]] std::string tekst() const {
        auto* toegang = blad().textInterface();
        return toegang->text(0, toegang->characterCount()).toStdString();
    }

    Printproef printers;
    frmPrinten venster;
};

TEST_F(ToegangVoorbeeld, ThePageIsADocumentWithItsLines) {
    EXPECT_EQ(blad().role(), QAccessible::Document);
    EXPECT_EQ(Naam(blad()), "Afdrukvoorbeeld, pagina 1 van 3");
    EXPECT_TRUE(blad().state().readOnly);
    EXPECT_EQ(tekst(), "Kampioenen\n"
                       "Lijn A  (Minimum=1)\n"
                       "Rang  Paar  Zittingen  Perc\n"
                       "1  NoordA1 - ZuidA1  5  59,999 %\n"
                       "2  NoordA2 - ZuidA2  5  59,998 %\n"
                       "RtvH  1\n");
    int begin = 0;
    int eind = 0;
    EXPECT_EQ(blad()
                  .textInterface()
                  ->textAtOffset(15, QAccessible::LineBoundary, &begin, &eind)
                  .toStdString(),
              "Lijn A  (Minimum=1)\n");
}

TEST_F(ToegangVoorbeeld, AnotherPageHasItsOwnNameAndText) {
    static_cast<void>(tekst());
    Vind<QScrollBar>(venster, "Bladscroll")->setValue(2);
    EXPECT_EQ(Naam(blad()), "Afdrukvoorbeeld, pagina 2 van 3");
    EXPECT_EQ(tekst().substr(0, 31), "Kampioenen\nLijn B  (Minimum=2)\n");
    venster.leeg();
    EXPECT_EQ(Naam(blad()), "Afdrukvoorbeeld, pagina 1 van 1");
    EXPECT_EQ(tekst(), "Kampioenen\nRtvH  1\n");
}

} // namespace
} // namespace lauwerkrans::proef
