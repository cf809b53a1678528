// The help window.
#include <gtest/gtest.h>

#include <QApplication>
#include <QPlainTextEdit>
#include <QScrollBar>

#include "ui/toelichting_tekst.h"
#include "vensterproef.h"

namespace lauwerkrans::proef {
namespace {

class Toelichting : public ::testing::Test {
protected:
    Toelichting() : proef(1, 1, 1) {
        proef.competitie.schrijfLeden(9, {});
        proef.start();
        proef.klik("cmdToelichting");
        for (QWidget* kandidaat : QApplication::topLevelWidgets()) {
            if (kandidaat->objectName() == QStringLiteral("frmToelichting")) venster = kandidaat;
        }
    }

    [[nodiscard]] QPlainTextEdit& tekst() const {
        return *venster->findChild<QPlainTextEdit*>(QStringLiteral("Text1"));
    }

    Vensterproef proef;
    QWidget* venster = nullptr;
};

TEST_F(Toelichting, OpensBesideAWindowThatStaysUsable) {
    ASSERT_NE(venster, nullptr);
    EXPECT_TRUE(venster->isVisible());
    EXPECT_EQ(venster->windowTitle(), QStringLiteral("Toelichting"));
    EXPECT_EQ(venster->windowModality(), Qt::NonModal);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(venster->parentWidget(), nullptr);
}

TEST_F(Toelichting, ShowsTheWholeTextReadOnlyWithAScrollBar) {
    EXPECT_TRUE(tekst().isReadOnly());
    EXPECT_EQ(tekst().verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
    QString verwacht = ToelichtingTekst();
    verwacht.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    EXPECT_EQ(tekst().toPlainText(), verwacht);
}

TEST_F(Toelichting, EveryLineEndsWithCrLf) {
    const QString alles = ToelichtingTekst();
    EXPECT_EQ(alles.count(QStringLiteral("\r\n")), 46);
    EXPECT_EQ(alles.count(QLatin1Char('\n')), 46);
    EXPECT_TRUE(alles.endsWith(QStringLiteral(
        "Opmerkingen en suggesties naar: de beheerder van uw clubadministratie\r\n")));
}

TEST_F(Toelichting, KeepsTheAuthorsLetters) {
    const QStringList regels = ToelichtingTekst().split(QStringLiteral("\r\n"));
    EXPECT_EQ(regels[10], QStringLiteral("       Van minimaal deze zittingen (of meer)wordt het "
                                         "gemidelde percentage berekend. (naar keuze met gewogen "
                                         "gemiddelde)"));
    EXPECT_EQ(
        regels[13],
        QStringLiteral("       Als voorbeeld voor een competitie van 5 ronden á 5 zittingen:"));
    EXPECT_EQ(regels[37], QStringLiteral("\tVRIJWARING"));
    EXPECT_TRUE(regels[42].startsWith(QStringLiteral("Dit is een gratis progamma")));
}

TEST_F(Toelichting, TheTextFillsTheWindowAtEverySize) {
    for (const QSize maat : {QSize(500, 400), QSize(900, 700)}) {
        venster->resize(maat);
        QCoreApplication::processEvents();
        const Vak vak = maten::PlaatsVan(tekst());
        // Outer size less 120 and 510; the frame takes 85 and the frame with caption bar 440.
        EXPECT_EQ(vak,
                  (Vak{0, 0, maat.width() * 15 + 85.0 - 120, maat.height() * 15 + 440.0 - 510}));
    }
}

TEST_F(Toelichting, IsNeverSmallerThanItsMinimum) {
    venster->resize(100, 100);
    EXPECT_EQ(venster->width(), 261);  // (4000 - 85) twips
    EXPECT_EQ(venster->height(), 237); // (4000 - 440) twips
}

TEST_F(Toelichting, CanBeReadToTheEndAndNotChanged) {
    const QString eerst = tekst().toPlainText();
    QTest::keyClick(&tekst(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&tekst(), QStringLiteral("weg"));
    QTest::keyClick(&tekst(), Qt::Key_Delete);
    QTest::keyClick(&tekst(), Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(tekst().toPlainText(), eerst);
    venster->resize(300, 300);
    QCoreApplication::processEvents();
    auto* schuif = tekst().verticalScrollBar();
    EXPECT_GT(schuif->maximum(), 0);
    schuif->setValue(schuif->maximum());
    QTextCursor einde(tekst().document());
    einde.movePosition(QTextCursor::End);
    EXPECT_LE(tekst().cursorRect(einde).bottom(), tekst().viewport()->height());
}

TEST_F(Toelichting, OpensAgainWithTheSameText) {
    venster->close();
    EXPECT_FALSE(venster->isVisible());
    proef.klik("cmdToelichting");
    EXPECT_TRUE(venster->isVisible());
    EXPECT_TRUE(tekst().toPlainText().startsWith(QStringLiteral("Toelichting op het gebruik")));
}

TEST_F(Toelichting, ComesBackWhenItWasMinimised) {
    venster->showMinimized();
    ASSERT_TRUE(venster->isMinimized());
    proef.klik("cmdToelichting");
    EXPECT_FALSE(venster->isMinimized());
    EXPECT_TRUE(venster->isVisible());
}

TEST_F(Toelichting, StaysMaximisedWhenItIsAskedForAgain) {
    venster->showMaximized();
    proef.klik("cmdToelichting");
    EXPECT_TRUE(venster->isMaximized());
}

TEST_F(Toelichting, ClosesWithTheProgram) {
    proef.klik("cmdEinde");
    EXPECT_FALSE(venster->isVisible());
}

} // namespace
} // namespace lauwerkrans::proef
