// The mark on a row of the grid, and the clipboard.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>

#include "vensterproef.h"

namespace lauwerkrans::proef {
namespace {

class Markering : public ::testing::Test {
protected:
    Markering() : proef(1, 1, 1) {
        proef.competitie.schrijfLeden(99, {{3, "Jan", "", "Smit"}, {17, "Piet", "", "Berk"}});
        std::vector<std::string> regels;
        for (int i = 0; i < 60; ++i)
            regels.push_back(ProefCompetitie::regel("A1", "3-17", "60,000"));
        proef.competitie.schrijfZitting(1, 1, regels);
        proef.start();
    }

    /// Presses the mouse in the body at a point in mm of what is to be seen.
    void druk(double x, double y) const {
        QTest::mouseClick(&proef.vind<TabelLijf>("P21"), Qt::LeftButton, {},
                          QPoint(static_cast<int>(maten::MmNaarPixels(x)),
                                 static_cast<int>(maten::MmNaarPixels(y))));
    }
    [[nodiscard]] const Streep& lijn(const char* naam) const {
        return *proef.venster->findChild<Streep*>(QString::fromLatin1(naam));
    }

    Vensterproef proef;
};

TEST_F(Markering, IsNotThereAtTheStart) {
    EXPECT_FALSE(lijn("Line20").zichtbaar);
    druk(20, 12); // an empty grid
    EXPECT_FALSE(lijn("Line20").zichtbaar);
    EXPECT_FALSE(lijn("Line21").zichtbaar);
}

TEST_F(Markering, HasItsPlaceOfTheDesignUntilARowIsMarked) {
    const double mm = 25.4 / 1440; // of a twip
    EXPECT_DOUBLE_EQ(lijn("Line20").x1, 360 * mm);
    EXPECT_DOUBLE_EQ(lijn("Line20").x2, 3840 * mm);
    EXPECT_DOUBLE_EQ(lijn("Line20").y1, 840 * mm);
    EXPECT_DOUBLE_EQ(lijn("Line20").y2, 840 * mm);
    EXPECT_DOUBLE_EQ(lijn("Line21").x1, 360 * mm);
    EXPECT_DOUBLE_EQ(lijn("Line21").x2, 3840 * mm);
    EXPECT_DOUBLE_EQ(lijn("Line21").y1, 1080 * mm);
    EXPECT_DOUBLE_EQ(lijn("Line21").y2, 1080 * mm);
}

TEST_F(Markering, APressMarksTheRowOverTheWholeWidth) {
    proef.klik("cmd2_1");
    druk(2, 5 + 4 * 2 + 2);
    for (const double x : {2.0, 90.0}) {
        druk(x, 5 + 4 * 2 + 2);
        EXPECT_TRUE(lijn("Line20").zichtbaar);
        EXPECT_TRUE(lijn("Line21").zichtbaar);
        EXPECT_DOUBLE_EQ(lijn("Line20").y1, 13);
        EXPECT_DOUBLE_EQ(lijn("Line20").y2, 13);
        EXPECT_DOUBLE_EQ(lijn("Line21").y1, 17);
        EXPECT_DOUBLE_EQ(lijn("Line20").x1, 0);
        EXPECT_DOUBLE_EQ(lijn("Line21").x2, proef.venster->raster().tabelBreedte());
    }
}

TEST_F(Markering, ABoundaryBelongsToTheRowBelowIt) {
    proef.klik("cmd2_1");
    proef.venster->raster().AccentueerRegel(0, 9);
    EXPECT_DOUBLE_EQ(lijn("Line20").y1, 9);
    proef.venster->raster().AccentueerRegel(0, 8.999);
    EXPECT_DOUBLE_EQ(lijn("Line20").y1, 5);
    proef.venster->raster().AccentueerRegel(0, 4.9);
    EXPECT_DOUBLE_EQ(lijn("Line20").y1, 1);
}

TEST_F(Markering, IsDrawnRedTwoPixelsHigh) {
    proef.klik("cmd2_1");
    druk(2, 5 + 4 * 2 + 2);
    const QImage beeld = proef.vind<QWidget>("P21").grab().toImage();
    const int y = static_cast<int>(std::lround(maten::MmNaarPixels(13)));
    for (const int regel : {y, y + 1})
        EXPECT_EQ(beeld.pixelColor(10, regel), QColor(255, 0, 0));
    EXPECT_NE(beeld.pixelColor(10, y - 1), QColor(255, 0, 0));
    EXPECT_NE(beeld.pixelColor(10, y + 2), QColor(255, 0, 0));
}

TEST_F(Markering, ScrollsWithItsRow) {
    proef.klik("cmd2_1");
    proef.vind<QScrollBar>("VScroll20").setValue(40);
    druk(2, 15);
    EXPECT_DOUBLE_EQ(lijn("Line20").y1, 5 + 4 * std::floor((15 + 40 - 5) / 4.0));
}

TEST_F(Markering, GoesAwayAtAClickOnTheBackgroundOrTheHeading) {
    proef.klik("cmd2_1");
    druk(2, 10);
    QTest::mouseClick(proef.venster.get(), Qt::LeftButton, {}, QPoint(3, 3));
    EXPECT_FALSE(lijn("Line20").zichtbaar);
    druk(2, 10);
    proef.klik("lblResultKop");
    EXPECT_FALSE(lijn("Line21").zichtbaar);
    druk(2, 10);
    proef.klik("Frame1"); // no background
    EXPECT_TRUE(lijn("Line20").zichtbaar);
}

TEST_F(Markering, GoesAwayWithTheList) {
    proef.typ("txt1_1", "0");
    proef.klik("cmd2_1");
    druk(2, 10);
    proef.klik("cmd1_1");
    EXPECT_FALSE(lijn("Line20").zichtbaar);
}

TEST_F(Markering, GoesAwayWhenAControlListTakesThePlaceOfAnother) {
    proef.klik("cmd2_1");
    druk(2, 10);
    proef.klik("cmd2_0");
    EXPECT_FALSE(lijn("Line20").zichtbaar);
    druk(2, 10);
    proef.vind<QLineEdit>("txtPersoon").setText(QStringLiteral("smit"));
    proef.klik("cmdControleLijstLid");
    EXPECT_FALSE(lijn("Line21").zichtbaar);
}

TEST_F(Markering, AVisibleMarkFollowsTheTableWidth) {
    auto& raster = proef.venster->raster();
    proef.klik("cmd2_1");
    druk(2, 10);
    proef.venster->findChild<Streep*>(QStringLiteral("Line20"))->x2 = 1;
    raster.LijnBr_Aanpassen();
    EXPECT_DOUBLE_EQ(lijn("Line20").x2, raster.tabelBreedte());
    raster.verbergMarkering();
    proef.venster->findChild<Streep*>(QStringLiteral("Line21"))->x2 = 1;
    raster.LijnBr_Aanpassen();
    EXPECT_DOUBLE_EQ(lijn("Line21").x2, 1);
}

TEST_F(Markering, CtrlArrowsMoveItAndScrollToIt) {
    proef.klik("cmd2_1");
    auto& lijf = proef.vind<QWidget>("P21");
    for (int i = 0; i < 50; ++i)
        QTest::keyClick(&lijf, Qt::Key_Down, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(lijn("Line20").y1, 5 + 4 * 49);
    const double boven = proef.vind<TabelLijf>("P21").boven();
    EXPECT_LE(lijn("Line21").y1 + boven, maten::PixelsNaarMm(lijf.height()));
    for (int i = 0; i < 60; ++i)
        QTest::keyClick(&lijf, Qt::Key_Up, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(lijn("Line20").y1, 5);
    EXPECT_EQ(proef.vind<QScrollBar>("VScroll20").value(), 0);
}

TEST_F(Markering, CtrlWithPageHomeAndEndMoveItFurther) {
    proef.klik("cmd2_1");
    auto& lijf = proef.vind<QWidget>("P21");
    const auto ctrl = [&lijf](Qt::Key toets) {
        QTest::keyClick(&lijf, toets, Qt::ControlModifier);
    };
    ctrl(Qt::Key_Down);
    const double blad = std::floor((lijf.height() * 25.4 / 96 - 5) / 4) - 1; // rows
    ctrl(Qt::Key_PageDown);
    EXPECT_DOUBLE_EQ(lijn("Line20").y1, 5 + 4 * blad);
    ctrl(Qt::Key_PageUp);
    EXPECT_DOUBLE_EQ(lijn("Line20").y1, 5);
    ctrl(Qt::Key_End);
    EXPECT_DOUBLE_EQ(lijn("Line20").y1, 5 + 4 * 59);
    ctrl(Qt::Key_Home);
    EXPECT_DOUBLE_EQ(lijn("Line20").y1, 5);
    EXPECT_EQ(proef.vind<QScrollBar>("VScroll20").value(), 0);
}

TEST_F(Markering, TheFirstMarkIsSetOnTheUppermostRowInSight) {
    proef.klik("cmd2_1");
    proef.vind<QScrollBar>("VScroll20").setValue(41); // row 10 is cut off
    QTest::keyClick(&proef.vind<QWidget>("P21"), Qt::Key_Down, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(lijn("Line20").y1, 5 + 4 * 11);
    EXPECT_EQ(proef.vind<QScrollBar>("VScroll20").value(), 41);
}

TEST_F(Markering, EscapeTakesItAway) {
    proef.klik("cmd2_1");
    druk(2, 10);
    QTest::keyClick(&proef.vind<QWidget>("P21"), Qt::Key_Escape);
    EXPECT_FALSE(lijn("Line20").zichtbaar);
    EXPECT_FALSE(lijn("Line21").zichtbaar);
}

TEST_F(Markering, CtrlCCopiesTheListBetweenTabs) {
    proef.typ("txt1_1", "1");
    proef.klik("cmd1_1");
    QTest::keyClick(&proef.vind<QWidget>("P21"), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(),
              "Berekening voor lijn A\nNr\tLijn\tRang\tPaar\tAantZit\tGemid %\n1\tA\t1\tJan Smit - "
              "Piet Berk\t1\t60,000\n");
}

TEST_F(Markering, CtrlCInAnEmptyGridLeavesTheClipboardAsItIs) {
    QGuiApplication::clipboard()->setText(QStringLiteral("van mij"));
    QTest::keyClick(&proef.vind<QWidget>("P21"), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("van mij"));
}

} // namespace
} // namespace lauwerkrans::proef
