// The result grid with the largest lists: 1.57 million rows, 9,801 session columns. Their places
// in pixels are beyond what a control can have.
#include <gtest/gtest.h>

#include "beeldproef.h"
#include "proeflijst.h"
#include "rasterproef.h"

namespace lauwerkrans::proef {
namespace {

constexpr std::size_t meesteRijen = 1'570'000;
constexpr std::size_t meesteKolommen = 9'807;
constexpr double kolomMm = 17.3;

const QColor lijnkleur(210, 210, 210);

class RasterGroot : public RasterProef {
protected:
    RasterGroot() {
        lijst->tekst = [](std::size_t rij, std::size_t kolom) {
            return rij == meesteRijen && kolom == meesteKolommen ? std::string("H") : std::string();
        };
        toon(lijst);
    }

    [[nodiscard]] std::size_t koppen() const {
        return static_cast<std::size_t>(P22.findChildren<QPushButton*>().size()) - 1;
    }
    /// The pixel in the viewport of a place in the body (mm).
    [[nodiscard]] QPoint punt(double x, double y) const {
        return {1 + Pixel(x - HScroll20.value()), 1 + Pixel(y - VScroll20.value())};
    }

    std::shared_ptr<ProefLijst> lijst = MaakProefLijst(meesteRijen, meesteKolommen, kolomMm);
};

TEST_F(RasterGroot, TheRangesReachExactlyTheEnds) {
    EXPECT_EQ(VScroll20.maximum(), std::lround(4.0 * meesteRijen + 5.6 + 1 - zichtHoogte()));
    EXPECT_EQ(HScroll20.maximum(), std::lround(kolomMm * meesteKolommen + 2 - zichtBreedte()));
}

TEST_F(RasterGroot, TheLastCellIsWhollyInSightAtTheEnds) {
    VScroll20.setValue(VScroll20.maximum());
    HScroll20.setValue(HScroll20.maximum());
    const QImage beeld = Beeld(P20);
    const QRect cel(punt(kolomMm * (meesteKolommen - 1), 5 + 4.0 * (meesteRijen - 1)),
                    punt(kolomMm * meesteKolommen, 5 + 4.0 * meesteRijen));
    ASSERT_TRUE(P20.contentsRect().contains(cel)) << "lines included";
    EXPECT_EQ(beeld.pixelColor(cel.center().x(), cel.bottom()), lijnkleur);
    EXPECT_EQ(beeld.pixelColor(cel.right(), cel.center().y()), lijnkleur);
    const QRect inkt = Omtrek(beeld, cel, IsInkt);
    EXPECT_NEAR(inkt.center().x(), cel.center().x(), 1);
    EXPECT_NEAR(inkt.center().y(), cel.center().y(), 1);
}

TEST_F(RasterGroot, RulesStandAtTheirPixelsAtEveryPlace) {
    for (const int y : {0, 1, 8'191, 32'767, 32'768, 65'536, 4'439'040, 6'000'001}) {
        const int x = y % HScroll20.maximum();
        VScroll20.setValue(y);
        HScroll20.setValue(x);
        EXPECT_EQ(P21.boven(), -y);
        EXPECT_EQ(P21.links(), -x);
        const QImage beeld = Beeld(P20);
        const double rij = std::ceil((y + 10 - 5) / 4.0); // below the header strip
        const double kolom = std::ceil((x + 1) / kolomMm);
        const QPoint kruis = punt(kolomMm * kolom, 5 + 4 * rij);
        EXPECT_EQ(beeld.pixelColor(kruis.x() + 9, kruis.y()), lijnkleur) << y;
        EXPECT_NE(beeld.pixelColor(kruis.x() + 9, kruis.y() - 1), lijnkleur) << y;
        EXPECT_EQ(beeld.pixelColor(kruis.x(), kruis.y() + 5), lijnkleur) << x;
        EXPECT_NE(beeld.pixelColor(kruis.x() - 1, kruis.y() + 5), lijnkleur) << x;
    }
}

TEST_F(RasterGroot, APressMarksTheRowUnderItAtEveryPlace) {
    auto& Line20 = *proef.venster->findChild<Streep*>(QStringLiteral("Line20"));
    for (const int y : {0, 32'767, 4'439'041, VScroll20.maximum()}) {
        VScroll20.setValue(y);
        QTest::mouseClick(&P21, Qt::LeftButton, {}, QPoint(40, 200));
        const double rij = std::floor((200 * 25.4 / 96 + y - 5) / 4);
        EXPECT_DOUBLE_EQ(Line20.y1, 5 + 4 * rij) << y;
    }
}

TEST_F(RasterGroot, OnlyExposedColumnsHaveAHeaderButton) {
    const auto meeste = static_cast<std::size_t>(zichtBreedte() / kolomMm) + 2;
    for (int x = 0; x < 40'000; x += 97) {
        HScroll20.setValue(x);
        const auto eerste = static_cast<std::size_t>(x / kolomMm) + 1;
        ASSERT_LE(koppen(), meeste) << x;
        ASSERT_GE(koppen(), meeste - 2) << x;
        ASSERT_TRUE(proef.heeft(("cmd20_" + std::to_string(eerste)).c_str())) << x;
    }
    HScroll20.setValue(HScroll20.maximum());
    EXPECT_LE(koppen(), meeste);
    EXPECT_TRUE(proef.heeft("cmd20_9807"));
    EXPECT_FALSE(proef.heeft("cmd20_1"));
    HScroll20.setValue(0);
    EXPECT_TRUE(proef.heeft("cmd20_1"));
    EXPECT_LE(koppen(), meeste);
}

TEST_F(RasterGroot, ScrollingOnAfterTheHeadersWereRemovedMakesNone) {
    proef.venster->raster().Verw_Headers();
    HScroll20.setValue(5'000);
    EXPECT_EQ(koppen(), 0U);
}

TEST_F(RasterGroot, ThePlaceOfTheLastHeaderIsThatOfItsColumn) {
    HScroll20.setValue(HScroll20.maximum());
    const auto& knop = proef.vind<QPushButton>("cmd20_9807");
    const int links = knop.mapTo(&P20, QPoint(0, 0)).x();
    EXPECT_NEAR(links, punt(kolomMm * (meesteKolommen - 1), 0).x(), 1);
    EXPECT_NEAR(links + knop.width(), punt(kolomMm * meesteKolommen, 0).x(), 1);
}

} // namespace
} // namespace lauwerkrans::proef
