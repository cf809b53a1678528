// The window under keyboard and mouse: what can be pressed, what has the focus, and what a press
// beside the table does.
#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>
#include <QWheelEvent>

#include <array>

#include "beeldproef.h"
#include "vensterproef.h"

namespace lauwerkrans::proef {
namespace {

class Bediening : public ::testing::Test {
protected:
    Bediening() : proef(1, 2, 2) {
        proef.competitie.schrijfLeden(99, {{3, "Jan", "", "Smit"}, {17, "Piet", "", "Berk"}});
        using P = ProefCompetitie;
        proef.competitie.schrijfZitting(
            1, 1, {P::regel("A1", "3-17", "60,000"), P::regel("B1", "3-17", "50,000")});
        proef.start();
        proef.typ("txt1_1", "0");
        proef.typ("txt1_2", "0");
    }

    [[nodiscard]] bool gemarkeerd() const {
        return proef.venster->findChild<Streep*>(QStringLiteral("Line20"))->zichtbaar;
    }
    /// Presses the mouse on a point of the grid, in millimetres.
    void druk(double x, double y) const {
        QTest::mouseClick(&proef.vind<QWidget>("P21"), Qt::LeftButton, {},
                          QPoint(static_cast<int>(maten::MmNaarPixels(x)),
                                 static_cast<int>(maten::MmNaarPixels(y))));
    }
    void toets(const char* naam, Qt::Key toets) const {
        auto& element = proef.vind<QWidget>(naam);
        element.setFocus();
        QTest::keyClick(&element, toets);
        QCoreApplication::processEvents();
    }

    Vensterproef proef;
};

TEST_F(Bediening, APressBelowOrBesideTheTableMarksNothing) {
    proef.klik("cmd1_0");
    const auto& lijf = proef.vind<TabelLijf>("P21");
    ASSERT_LT(lijf.hoogte() + 4, maten::PixelsNaarMm(lijf.height()));
    ASSERT_LT(lijf.breedte() + 4, maten::PixelsNaarMm(lijf.width()));
    druk(2, lijf.hoogte() + 2);
    EXPECT_FALSE(gemarkeerd());
    druk(lijf.breedte() + 2, 7);
    EXPECT_FALSE(gemarkeerd());
    druk(lijf.breedte() - 2, 7);
    EXPECT_TRUE(gemarkeerd());
}

TEST_F(Bediening, TheMarkGoesAwayWithTheRowThatItStoodOn) {
    const auto& gezocht = proef.vind<QLineEdit>("txtPersoon");
    for (const char* knop : {"cmd1_0", "cmd2_0", "cmdControleLijstLid"}) {
        proef.typ("txtPersoon", gezocht.text().isEmpty() ? "smit" : "");
        proef.klik("cmd1_0");
        druk(2, 7);
        ASSERT_TRUE(gemarkeerd());
        proef.klik(knop);
        EXPECT_FALSE(gemarkeerd()) << knop;
    }
}

TEST_F(Bediening, EnterAndSpacePressTheButtonThatHasTheFocus) {
    toets("cmd1_1", Qt::Key_Return);
    EXPECT_EQ(proef.kop(), "Berekening voor lijn A");
    toets("cmd1_0", Qt::Key_Enter);
    EXPECT_EQ(proef.kop(), "Berekening voor lijn AB");
    toets("cmd2_2", Qt::Key_Return);
    EXPECT_EQ(proef.kop(), "Berekening voor lijn B");
    toets("cmd1_1", Qt::Key_Space);
    EXPECT_EQ(proef.kop(), "Berekening voor lijn A");
    proef.typ("txtPersoon", "smit");
    toets("cmdControleLijstLid", Qt::Key_Return);
    EXPECT_EQ(proef.kop(), "Controlelijst voor SMIT");
    toets("cmdEinde", Qt::Key_Return);
    EXPECT_FALSE(proef.venster->isVisible());
}

TEST_F(Bediening, EnterPressesNoButtonFromABox) {
    for (const char* vak : {"txt1_1", "txtKop1"}) {
        toets(vak, Qt::Key_Return);
        EXPECT_EQ(proef.rijen(), 0U) << vak;
        EXPECT_TRUE(proef.venster->isVisible()) << vak;
    }
}

TEST_F(Bediening, ItIsSeenWhatHasTheFocus) {
    constexpr std::array namen = {"txt1_1",     "cmd1_0",         "cmd1_2",
                                  "cmd2_2",     "chkGewogen",     "chkBuiMed",
                                  "txtPersoon", "cmdToelichting", "cmdControleLijstLid",
                                  "P21",        "cmdEinde"};
    proef.klik("cmd1_0");
    auto& anders = proef.vind<QWidget>("txtKop1");
    QTest::keyClick(&anders, Qt::Key_Tab); // from now on the keyboard moves the focus
    for (const char* naam : namen) {
        auto& element = proef.vind<QWidget>(naam);
        auto& gezien = proef.vind<QWidget>(naam == namen[9] ? "P20" : naam);
        anders.setFocus(Qt::TabFocusReason);
        const QImage zonder = Beeld(gezien);
        element.setFocus(Qt::TabFocusReason);
        EXPECT_TRUE(Beeld(gezien) != zonder) << naam;
        anders.setFocus(Qt::TabFocusReason);
        EXPECT_TRUE(Beeld(gezien) == zonder) << naam;
    }
}

/// More lines than the panel shows at once.
class BedieningVeleLijnen : public ::testing::Test {
protected:
    BedieningVeleLijnen() : proef(1, 1, 26) {
        proef.competitie.schrijfLeden(9, {});
        proef.start();
    }

    /// Whether a control lies wholly within the panel of the criteria.
    [[nodiscard]] bool inZicht(const char* naam) const {
        const auto& element = proef.vind<QWidget>(naam);
        const auto& paneel = proef.vind<QFrame>("P0");
        return paneel.contentsRect().contains(
            QRect(element.mapTo(&paneel, QPoint()), element.size()));
    }
    void toets(const char* naam, Qt::Key toets) const {
        auto& element = proef.vind<QWidget>(naam);
        element.setFocus();
        QTest::keyClick(&element, toets);
    }

    Vensterproef proef;
};

TEST_F(BedieningVeleLijnen, TheRowThatGetsTheFocusIsInSightWhereverItComesFrom) {
    EXPECT_FALSE(inZicht("cmd2_26"));
    toets("chkGewogen", Qt::Key_Backtab);
    ASSERT_TRUE(proef.vind<QWidget>("cmd2_26").hasFocus());
    EXPECT_TRUE(inZicht("cmd2_26"));
    EXPECT_FALSE(inZicht("cmd2_0"));
    toets("txt1_1", Qt::Key_Backtab);
    ASSERT_TRUE(proef.vind<QWidget>("cmd2_0").hasFocus());
    EXPECT_TRUE(inZicht("cmd2_0"));
}

TEST_F(BedieningVeleLijnen, AButtonThatIsHalfInSightIsPressedWhereItStands) {
    auto& balk = proef.vind<QScrollBar>("VScroll1");
    const auto& paneel = proef.vind<QFrame>("P0");
    for (const char* knop : {"cmd2_1", "cmd2_8"}) {
        auto& element = proef.vind<QWidget>(knop);
        // Its upper or lower half lies outside the panel.
        const bool boven = std::string_view(knop) == "cmd2_1";
        const double y = maten::PlaatsVan(element).boven + 120;
        balk.setValue(static_cast<int>(
            boven ? y : y - maten::PixelsNaarTwips(paneel.contentsRect().height())));
        ASSERT_FALSE(inZicht(knop));
        const int stand = balk.value();
        QTest::mouseClick(&element, Qt::LeftButton, {}, QPoint(5, boven ? 14 : 3));
        EXPECT_EQ(balk.value(), stand) << knop;
        EXPECT_EQ(proef.kop(), std::string("Berekening voor lijn ") + (boven ? "A" : "H"));
    }
}

TEST_F(BedieningVeleLijnen, TheWheelScrollsTheRowsOverEveryPartOfThem) {
    for (const char* naam : {"P0", "lbl1_1", "txt1_2", "cmd1_3", "cmd2_0"}) {
        proef.vind<QScrollBar>("VScroll1").setValue(0);
        auto& element = proef.vind<QWidget>(naam);
        const QPointF punt = element.rect().center();
        QWheelEvent draai(punt, element.mapToGlobal(punt), {}, QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&draai); // only those go on to the containers
        qApp->notify(&element, &draai);
        EXPECT_EQ(proef.vind<QScrollBar>("VScroll1").value(), 900) << naam; // three rows
    }
}

} // namespace
} // namespace lauwerkrans::proef
