// The main window on a screen that is smaller than its minimum.
#include <gtest/gtest.h>

#include <QApplication>
#include <QHideEvent>
#include <QScrollBar>

#include "ui/bijvenster.h"
#include "ui/klein_scherm.h"
#include "vensterproef.h"

namespace lauwerkrans::proef {
namespace {

class KleinSchermTest : public ::testing::Test {
protected:
    KleinSchermTest() : proef(1, 1, 1) {
        proef.competitie.schrijfLeden(9, {});
        proef.start();
        scherm = std::make_unique<KleinScherm>(*proef.venster);
        scherm->resize(600, 400);
        scherm->show();
        QCoreApplication::processEvents();
    }

    Vensterproef proef;
    std::unique_ptr<KleinScherm> scherm;
};

TEST_F(KleinSchermTest, IsNeededOnlyWhereTheMinimumDoesNotFit) {
    // The minimum with its frame and title bar: 13000 x 7640 twips.
    EXPECT_FALSE(KleinScherm::nodig(*proef.venster, QRect(0, 0, 867, 509)));
    EXPECT_TRUE(KleinScherm::nodig(*proef.venster, QRect(0, 0, 866, 509)));
    EXPECT_TRUE(KleinScherm::nodig(*proef.venster, QRect(0, 0, 867, 508)));
}

TEST_F(KleinSchermTest, TheContentsKeepTheMinimumAndScroll) {
    EXPECT_EQ(proef.venster->size(), QSize(861, 480));
    EXPECT_EQ(scherm->horizontalScrollBar()->maximum(), 861 - scherm->viewport()->width());
    EXPECT_EQ(scherm->verticalScrollBar()->maximum(), 480 - scherm->viewport()->height());
    EXPECT_EQ(scherm->windowTitle(), proef.venster->windowTitle());
    scherm->resize(1200, 900);
    QCoreApplication::processEvents();
    EXPECT_EQ(proef.venster->size(), scherm->viewport()->size());
}

TEST_F(KleinSchermTest, TheFirstCriterionKeepsTheFocus) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(scherm.get()));
    EXPECT_EQ(QApplication::focusWidget(), &proef.vind<QWidget>("txt1_1"));
}

TEST_F(KleinSchermTest, MinimisingIsNotLeaving) {
    QHideEvent weg; // as the platform sends it to the contents of a window that is put away
    QSpontaneKeyEvent::setSpontaneous(&weg);
    qApp->notify(proef.venster.get(), &weg);
    EXPECT_TRUE(scherm->isVisible());
    EXPECT_EQ(proef.einde, 0);
}

/// The window beside the main one: its minimum does not fit on the screen of the tests.
class GrootBijvenster : public Bijvenster {
public:
    GrootBijvenster() {
        setMinimumSize(3000, 300);
        setWindowTitle(QStringLiteral("Bij"));
    }
};

TEST_F(KleinSchermTest, AWindowBesideItScrollsToo) {
    GrootBijvenster bij;
    for (int keer = 0; keer < 2; ++keer) {
        bij.toonOver(*proef.venster);
        auto* buitenste = qobject_cast<KleinScherm*>(bij.window());
        ASSERT_NE(buitenste, nullptr);
        EXPECT_EQ(buitenste->windowTitle(), QStringLiteral("Bij"));
        EXPECT_TRUE(bij.isVisible());
        EXPECT_GE(bij.width(), 3000);
        EXPECT_GT(buitenste->horizontalScrollBar()->maximum(), 0);
        ASSERT_TRUE(QTest::qWaitForWindowActive(buitenste));
        QTest::keyClick(buitenste, Qt::Key_Escape);
        EXPECT_FALSE(bij.isVisible());
        EXPECT_FALSE(buitenste->isVisible());
    }
    EXPECT_TRUE(scherm->isVisible());
}

TEST_F(KleinSchermTest, EindeClosesBothAndSavesOnce) {
    proef.klik("cmdEinde");
    EXPECT_FALSE(scherm->isVisible());
    EXPECT_EQ(proef.einde, 1);
}

TEST_F(KleinSchermTest, TheCloseButtonClosesBothAndSavesOnce) {
    scherm->close();
    EXPECT_FALSE(proef.venster->isVisible());
    EXPECT_EQ(proef.einde, 1);
}

} // namespace
} // namespace lauwerkrans::proef
