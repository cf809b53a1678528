// Scrolling the result grid: bars, wheel and keys, and lists of any length.
#include <gtest/gtest.h>

#include <QWheelEvent>

#include "beeldproef.h"
#include "proeflijst.h"
#include "rasterproef.h"

namespace lauwerkrans::proef {
namespace {

class RasterSchuif : public RasterProef {
protected:
    using RasterProef::toon;
    std::shared_ptr<ProefLijst> toon(std::size_t rijen, std::size_t kolommen) const {
        auto lijst = MaakProefLijst(rijen, kolommen, 40);
        toon(lijst);
        return lijst;
    }

    /// Turns the wheel over the grid, in eighths of a degree.
    void draai(QPoint hoek, Qt::KeyboardModifiers toetsen = Qt::NoModifier) const {
        const QPointF midden = P21.rect().center();
        QWheelEvent gebeurtenis(midden, P21.mapToGlobal(midden), QPoint(), hoek, Qt::NoButton,
                                toetsen, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&P21, &gebeurtenis);
    }
    void druk(Qt::Key toets) const { QTest::keyClick(&P21, toets); }
};

/// Its first position: the slider below the upper arrow, the bar's own ground above the lower one.
TEST_F(RasterSchuif, TheSliderStandsOutFromItsBar) {
    toon(300, 3);
    const QImage beeld = Beeld(VScroll20);
    const int pijl = VScroll20.width();
    const QColor schuif = beeld.pixelColor(beeld.width() / 2, pijl + 4);
    const QColor grond = beeld.pixelColor(beeld.width() / 2, beeld.height() - pijl - 5);
    EXPECT_GE(Contrast(schuif, grond), 1.5)
        << schuif.name().toStdString() << " on " << grond.name().toStdString();
}

TEST_F(RasterSchuif, TheVerticalBarMovesTheBodyAndLeavesTheHeaders) {
    toon(500, 20);
    VScroll20.setValue(123);
    EXPECT_EQ(P21.boven(), -123);
    EXPECT_EQ(P21.links(), 0);
    EXPECT_EQ(P22.pos(), QPoint(1, 1));
}

TEST_F(RasterSchuif, TheBodyScrollsUnderTheHeaders) {
    auto lijst = std::make_shared<ProefLijst>(500, std::vector<std::string>(4, "Kop"), 40);
    toon(lijst);
    const QRect kop(1, 1, P20.width() - 2, 19);
    const QImage eerst = Beeld(P20).copy(kop);
    EXPECT_FALSE(Omtrek(eerst, QRect(10, 3, 130, 13), IsInkt).isEmpty()) << "the word Kop";
    VScroll20.setValue(7);
    EXPECT_EQ(Beeld(P20).copy(kop), eerst);
}

TEST_F(RasterSchuif, TheHorizontalBarMovesBodyAndHeadersTogether) {
    toon(500, 20);
    HScroll20.setValue(123);
    EXPECT_EQ(P21.links(), -123);
    EXPECT_EQ(P21.boven(), 0);
    EXPECT_EQ(P22.pos(), QPoint(1 - Pixel(123), 1));
}

TEST_F(RasterSchuif, BodyAndHeadersFollowTheThumbWhileItIsDragged) {
    toon(500, 20);
    for (QScrollBar* balk : {&VScroll20, &HScroll20}) {
        balk->setTracking(false);
        balk->setSliderDown(true);
        balk->setSliderPosition(77);
    }
    EXPECT_EQ(P21.boven(), -77);
    EXPECT_EQ(P21.links(), -77);
    EXPECT_EQ(P22.x(), 1 - Pixel(77));
}

/// The places in the viewport (pixels) of the vertical grid lines between rows 2 and 3.
std::vector<int> Scheidingen(QWidget& paneel) {
    const QImage beeld = Beeld(paneel);
    std::vector<int> xs;
    for (int x = 1; x < beeld.width() - 1; ++x) {
        if (beeld.pixelColor(x, 1 + Pixel(9) + 1) == QColor(210, 210, 210)) xs.push_back(x);
    }
    return xs;
}

TEST_F(RasterSchuif, HeadersStandAboveTheirColumnsAtEveryPlace) {
    toon(500, 20);
    for (const int waarde : {0, 1, 39, 40, 222, HScroll20.maximum()}) {
        HScroll20.setValue(waarde);
        const std::vector<int> lijnen = Scheidingen(P20);
        std::size_t gezien = 0;
        for (int i = 1; i <= 20; ++i) {
            const QString naam = QStringLiteral("cmd20_%1").arg(i);
            const auto* knop = P22.findChild<QPushButton*>(naam);
            const int x = knop == nullptr ? 0 : knop->mapTo(&P20, QPoint(0, 0)).x();
            if (x < 2 || x > P20.width() - 3) continue;
            ++gezien;
            const bool erboven = std::any_of(lijnen.begin(), lijnen.end(),
                                             [x](int lijn) { return std::abs(lijn - x) <= 1; });
            EXPECT_TRUE(erboven) << "button " << i << " at " << waarde;
        }
        EXPECT_GE(gezien, 3U) << waarde;
    }
}

TEST_F(RasterSchuif, ColumnsThatComeIntoSightHaveTheirButtons) {
    toon(3, 200);
    HScroll20.setValue(HScroll20.maximum());
    const auto& laatste = proef.vind<QPushButton>("cmd20_200");
    EXPECT_TRUE(laatste.isVisible());
    EXPECT_LE(laatste.mapTo(&P20, QPoint(laatste.width(), 0)).x(), P20.width() - 1);
}

TEST_F(RasterSchuif, TheMaximumShowsTheLastRowAndColumnWholly) {
    auto lijst = MaakProefLijst(503, 21, 40);
    lijst->tekst = [](std::size_t rij, std::size_t kolom) {
        return rij == 503 && kolom == 21 ? std::string("H") : std::string();
    };
    toon(lijst);
    VScroll20.setValue(VScroll20.maximum());
    HScroll20.setValue(HScroll20.maximum());
    const QImage beeld = Beeld(P20);
    const double boven = VScroll20.maximum();
    const double links = HScroll20.maximum();
    const QRect cel(QPoint(1 + Pixel(20 * 40 - links), 1 + Pixel(5 + 502 * 4 - boven)),
                    QPoint(1 + Pixel(21 * 40 - links), 1 + Pixel(5 + 503 * 4 - boven)));
    ASSERT_TRUE(P20.contentsRect().contains(cel)) << "lines included";
    const QColor lijn(210, 210, 210);
    EXPECT_EQ(beeld.pixelColor(cel.center().x(), cel.bottom()), lijn);
    EXPECT_EQ(beeld.pixelColor(cel.right(), cel.center().y()), lijn);
    EXPECT_FALSE(Omtrek(beeld, cel, IsInkt).isEmpty()) << "its text is there";
}

TEST_F(RasterSchuif, AListBeyondSixteenBitsReachesItsLastRow) {
    toon(8200, 2); // 32,805.6 mm
    EXPECT_GT(VScroll20.maximum(), 32'000);
    VScroll20.setValue(VScroll20.maximum());
    EXPECT_LE(5 + 4.0 * 8200 + P21.boven(), zichtHoogte());
}

TEST_F(RasterSchuif, TheLargestListIsShownFromItsFirstToItsLastRow) {
    constexpr std::size_t rijen = 1'570'000;
    const auto lijst = toon(rijen, 6);
    EXPECT_EQ(lijst->gevraagd, 0U) << "showing asks for no cell before something is drawn";
    EXPECT_DOUBLE_EQ(P21.hoogte(), 4.0 * rijen + 5.6);
    EXPECT_EQ(VScroll20.maximum(), std::lround(4.0 * rijen + 5.6 + 1 - zichtHoogte()));
    static_cast<void>(Beeld(P21));
    EXPECT_EQ(lijst->eersteRij, 1U);
    lijst->vergeet();
    VScroll20.setValue(VScroll20.maximum());
    EXPECT_LE(5 + 4.0 * rijen + P21.boven(), zichtHoogte());
    static_cast<void>(Beeld(P21));
    EXPECT_EQ(lijst->laatsteRij, rijen);
    const auto zichtbaar = static_cast<std::size_t>(zichtHoogte() / 4) + 1;
    EXPECT_GE(lijst->eersteRij, rijen - zichtbaar);
}

TEST_F(RasterSchuif, OnePaintAsksForExposedCellsOnly) {
    const auto lijst = toon(100'000, 1'000);
    VScroll20.setValue(200'000); // row 49,999 is the first that shows below the headers
    HScroll20.setValue(10'000);  // column 251 starts here
    lijst->vergeet();
    static_cast<void>(Beeld(P21));
    const auto zichtbareRijen = static_cast<std::size_t>(zichtHoogte() / 4) + 2;
    const auto zichtbareKolommen = static_cast<std::size_t>(P21.width() * 25.4 / 96 / 40) + 2;
    EXPECT_GE(lijst->eersteRij, 49'998U);
    EXPECT_LE(lijst->laatsteRij, 49'998U + zichtbareRijen);
    EXPECT_EQ(lijst->eersteKolom, 251U);
    EXPECT_LE(lijst->laatsteKolom, 251U + zichtbareKolommen);
    EXPECT_GE(lijst->gevraagd, 20U * 3U);
    EXPECT_LE(lijst->gevraagd, zichtbareRijen * zichtbareKolommen);
}

TEST_F(RasterSchuif, APartThatIsDrawnAnewAsksForItsCellsOnly) {
    const auto lijst = toon(1'000, 5);
    QCoreApplication::processEvents();
    lijst->vergeet();
    P21.repaint(QRect(Pixel(45), Pixel(5 + 4 * 9 + 1), 10, 3)); // within column 2, row 10
    EXPECT_EQ(lijst->gevraagd, 1U);
    EXPECT_EQ(lijst->eersteRij, 10U);
    EXPECT_EQ(lijst->eersteKolom, 2U);
}

TEST_F(RasterSchuif, ANotchOfTheWheelIsThreeRows) {
    toon(500, 20);
    draai({0, -120});
    EXPECT_EQ(VScroll20.value(), 12);
    draai({0, -240});
    EXPECT_EQ(VScroll20.value(), 36);
    draai({0, 120});
    EXPECT_EQ(VScroll20.value(), 24);
    EXPECT_EQ(HScroll20.value(), 0);
}

TEST_F(RasterSchuif, TheWheelScrollsSidewaysWithShiftOrByItself) {
    toon(500, 20);
    draai({0, -120}, Qt::ShiftModifier);
    EXPECT_EQ(HScroll20.value(), 12);
    draai({-120, 0});
    EXPECT_EQ(HScroll20.value(), 24);
    EXPECT_EQ(VScroll20.value(), 0);
}

TEST_F(RasterSchuif, SmallTurnsOfATouchpadAddUp) {
    toon(500, 20);
    for (int i = 0; i < 60; ++i)
        draai({0, -2});
    EXPECT_EQ(VScroll20.value(), 12);
    for (int i = 0; i < 24; ++i)
        draai({-15, 0});
    EXPECT_EQ(HScroll20.value(), 36);
}

TEST_F(RasterSchuif, TheKeysScrollByRowPageAndEnd) {
    toon(500, 20);
    druk(Qt::Key_Down);
    EXPECT_EQ(VScroll20.value(), 4);
    druk(Qt::Key_Down);
    druk(Qt::Key_Up);
    EXPECT_EQ(VScroll20.value(), 4);
    const int heleRijen = static_cast<int>((zichtHoogte() - 5) / 4);
    druk(Qt::Key_PageDown);
    EXPECT_EQ(VScroll20.value(), 4 + 4 * (heleRijen - 1));
    druk(Qt::Key_PageUp);
    EXPECT_EQ(VScroll20.value(), 4);
    druk(Qt::Key_End);
    EXPECT_EQ(VScroll20.value(), VScroll20.maximum());
    druk(Qt::Key_Down);
    EXPECT_EQ(VScroll20.value(), VScroll20.maximum());
    druk(Qt::Key_Home);
    EXPECT_EQ(VScroll20.value(), 0);
    druk(Qt::Key_Right);
    EXPECT_EQ(HScroll20.value(), 40);
    druk(Qt::Key_Left);
    EXPECT_EQ(HScroll20.value(), 0);
}

TEST_F(RasterSchuif, WithShiftThePageKeysHomeAndEndGoSideways) {
    toon(500, 60);
    const auto shift = [this](Qt::Key toets) { QTest::keyClick(&P21, toets, Qt::ShiftModifier); };
    shift(Qt::Key_PageDown);
    EXPECT_EQ(HScroll20.value(), 150);
    shift(Qt::Key_End);
    EXPECT_EQ(HScroll20.value(), HScroll20.maximum());
    shift(Qt::Key_PageUp);
    EXPECT_EQ(HScroll20.value(), HScroll20.maximum() - 150);
    shift(Qt::Key_Home);
    EXPECT_EQ(HScroll20.value(), 0);
    EXPECT_EQ(VScroll20.value(), 0);
}

TEST_F(RasterSchuif, KeysAndWheelLeaveAnEmptyGridInPeace) {
    druk(Qt::Key_End);
    druk(Qt::Key_Right);
    draai({-120, -120});
    EXPECT_EQ(P21.boven(), 0);
    EXPECT_EQ(P21.links(), 0);
}

TEST_F(RasterSchuif, AClickGivesTheGridTheKeys) {
    toon(500, 20);
    QTest::mouseClick(&P21, Qt::LeftButton, {}, QPoint(40, 100));
    EXPECT_TRUE(P21.hasFocus());
}

} // namespace
} // namespace lauwerkrans::proef
