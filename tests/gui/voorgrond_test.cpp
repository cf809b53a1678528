// The window that a message belongs to.
#include "ui/voorgrond.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QTest>

namespace lauwerkrans {
namespace {

class VoorgrondTest : public testing::Test {
protected:
    VoorgrondTest() : hoofdvakje(&hoofdvenster), vakje(&voorbeeld) {}

    static void activeer(QWidget& venster, QWidget& vakje) {
        venster.show();
        venster.activateWindow();
        vakje.setFocus();
        ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &venster; }));
    }
    /// What the system says while it gives the focus to another window.
    static void geenActief() {
        QApplication::setActiveWindow(nullptr);
        ASSERT_EQ(QApplication::activeWindow(), nullptr);
    }

    const Voorgrond voorgrond;
    QWidget hoofdvenster;
    QLineEdit hoofdvakje;
    QWidget voorbeeld;
    QLineEdit vakje;
};

TEST_F(VoorgrondTest, IsTheActiveWindow) {
    activeer(hoofdvenster, hoofdvakje);
    activeer(voorbeeld, vakje);
    EXPECT_EQ(voorgrond.venster(), &voorbeeld);
    activeer(hoofdvenster, hoofdvakje);
    EXPECT_EQ(voorgrond.venster(), &hoofdvenster);
}

TEST_F(VoorgrondTest, IsTheLastOneWhileNoWindowIsActive) {
    activeer(hoofdvenster, hoofdvakje);
    activeer(voorbeeld, vakje);
    geenActief();
    EXPECT_EQ(voorgrond.venster(), &voorbeeld);
}

TEST_F(VoorgrondTest, IsTheWindowOfADialogThatHasJustClosed) {
    activeer(hoofdvenster, hoofdvakje);
    activeer(voorbeeld, vakje);
    {
        QDialog dialoog(&voorbeeld);
        QLineEdit naam(&dialoog);
        activeer(dialoog, naam);
        EXPECT_EQ(voorgrond.venster(), &dialoog);
    }
    geenActief();
    EXPECT_EQ(voorgrond.venster(), &voorbeeld);
}

TEST_F(VoorgrondTest, IsNoWindowThatIsClosed) {
    EXPECT_EQ(voorgrond.venster(), nullptr);
    activeer(voorbeeld, vakje);
    geenActief();
    voorbeeld.close();
    EXPECT_EQ(voorgrond.venster(), nullptr);
}

} // namespace
} // namespace lauwerkrans
