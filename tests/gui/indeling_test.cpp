// The layout rules of the main window at several sizes, to the twip.
#include <gtest/gtest.h>

#include <cmath>

#include "beeldproef.h"
#include "proeflijst.h"
#include "vensterproef.h"

namespace lauwerkrans::proef {
namespace {

constexpr double schuif = 250; // thickness of the scroll bars
constexpr double marge = 100;

/// A window with five lines, so that the criteria rows do not always fit.
class Indeling : public ::testing::Test {
protected:
    Indeling() : proef(1, 1, 5) {
        proef.competitie.schrijfLeden(9, {});
        proef.start();
    }

    void maat(int breedte, int hoogte) const {
        proef.venster->resize(breedte, hoogte);
        QCoreApplication::processEvents();
    }
    /// Makes the viewport of the grid `breedte` x `hoogte` pixels inside its border.
    void zicht(int breedte, int hoogte) const {
        const QSize nu = paneel("P20").contentsRect().size();
        maat(proef.venster->width() + breedte - nu.width(),
             proef.venster->height() + hoogte - nu.height());
    }
    [[nodiscard]] Vak vak(const char* naam) const {
        return maten::PlaatsVan(proef.vind<QWidget>(naam));
    }
    [[nodiscard]] QFrame& paneel(const char* naam) const { return proef.vind<QFrame>(naam); }
    [[nodiscard]] QScrollBar& balk(const char* naam) const { return proef.vind<QScrollBar>(naam); }
    [[nodiscard]] double binnenBreedte() const { return proef.venster->width() * 15.0; }
    [[nodiscard]] double binnenHoogte() const { return proef.venster->height() * 15.0; }

    void toon(const std::shared_ptr<const Lijst>& lijst) const { proef.toon(lijst); }

    /// The rules, one after the other, for the window's size of this moment.
    void controleerRechts() const {
        const double boven = binnenHoogte() - 1215 - marge;
        EXPECT_EQ(vak("Frame4"), (Vak{7200, boven, 4335, 1215}));
        EXPECT_EQ(vak("Frame5"), (Vak{4680, boven, 2415, 1215}));
        const Vak einde = {binnenBreedte() - 1095 - marge, binnenHoogte() - 375 - marge, 1095, 375};
        EXPECT_EQ(vak("cmdEinde"), einde);
        EXPECT_EQ(vak("cmdToelichting"), (Vak{einde.links, einde.boven - 700, 1095, 375}));
        const Vak P20 = {4675, 350, binnenBreedte() - 4675 - schuif - marge,
                         boven - 350 - schuif - 50};
        EXPECT_EQ(vak("P20"), P20);
        EXPECT_EQ(vak("VScroll20"), (Vak{4675 + P20.breedte, 350, schuif, P20.hoogte}));
        EXPECT_EQ(vak("HScroll20"), (Vak{4675, 350 + P20.hoogte, P20.breedte, schuif}));
        EXPECT_EQ(vak("lblResultKop"), (Vak{5160, 0, 7335, 375}));
    }
    void controleerLinks() const {
        EXPECT_EQ(vak("Frame1"), (Vak{120, 120, 4455, 2415}));
        const double onder = binnenHoogte() - 855 - marge;
        EXPECT_EQ(vak("Frame2"), (Vak{120, onder, 4455, 855}));
        const double hoogte = onder - 2640 - marge;
        EXPECT_EQ(vak("Frame3"), (Vak{120, 2640, 4455, hoogte}));
        EXPECT_EQ(vak("Label5"), (Vak{120, hoogte - 615 - marge, 4215, 615}));
        EXPECT_EQ(vak("P0"), (Vak{120, 720, 3975, hoogte - 720 - 615 - 200}));
        EXPECT_EQ(vak("VScroll1"), (Vak{4080, 600, 255, vak("P0").hoogte}));
    }
    /// Every control lies on the pixels of its twips.
    void controleerPixels() const {
        for (const char* naam : {"Frame2", "Frame3", "Frame4", "Frame5", "Label5", "P0", "VScroll1",
                                 "P20", "VScroll20", "HScroll20", "cmdEinde", "cmdToelichting"}) {
            const Vak v = vak(naam);
            const auto rond = [](double twips) {
                return static_cast<int>(std::lround(twips / 15));
            };
            const QPoint begin(rond(v.links), rond(v.boven));
            const QPoint eind(rond(v.links + v.breedte), rond(v.boven + v.hoogte));
            const QRect verwacht(begin, QSize(eind.x() - begin.x(), eind.y() - begin.y()));
            EXPECT_EQ(proef.vind<QWidget>(naam).geometry(), verwacht) << naam;
        }
    }

    Vensterproef proef;
};

TEST_F(Indeling, HoldsAtEverySize) {
    const std::vector<QSize> maten = {{861, 480},  {862, 481},   {863, 482},  {1001, 703},
                                      {1366, 705}, {1920, 1017}, {3840, 2077}};
    for (const QSize& grootte : maten) {
        SCOPED_TRACE(std::to_string(grootte.width()) + "x" + std::to_string(grootte.height()));
        maat(grootte.width(), grootte.height());
        controleerRechts();
        controleerLinks();
        controleerPixels();
    }
}

TEST_F(Indeling, HoldsAtTheStartWithoutAResize) {
    ASSERT_EQ(proef.venster->size(), QSize(861, 480));
    controleerRechts();
    controleerLinks();
    controleerPixels();
}

TEST_F(Indeling, HoldsWhenMaximisedAndWhenRestored) {
    maat(900, 500);
    proef.venster->showMaximized();
    QCoreApplication::processEvents();
    ASSERT_NE(proef.venster->size(), QSize(900, 500));
    controleerRechts();
    controleerLinks();
    proef.venster->showNormal();
    QCoreApplication::processEvents();
    controleerRechts();
    controleerLinks();
}

TEST_F(Indeling, HoldsBeforeAListAsWellAsBehindIt) {
    toon(MaakProefLijst(50, 20, 30));
    maat(1203, 811);
    controleerRechts();
    maat(861, 480);
    controleerRechts();
}

TEST_F(Indeling, ResultBarsAreDisabledWhenTheBodyFitsExactly) {
    // 24 rows: 5 + 24 x 4 + 0.6 = 101.6 mm = 384 pixels; 3 columns of 50.8 mm = 576 pixels.
    zicht(576, 384);
    toon(MaakProefLijst(24, 3, 50.8));
    EXPECT_FALSE(balk("VScroll20").isEnabled());
    EXPECT_EQ(balk("VScroll20").maximum(), 0);
    EXPECT_FALSE(balk("HScroll20").isEnabled());
    EXPECT_EQ(balk("HScroll20").maximum(), 0);
}

TEST_F(Indeling, ResultBarsAreEnabledWhenTheBodyIsOnePixelTooLarge) {
    toon(MaakProefLijst(24, 3, 50.8));
    zicht(575, 383);
    EXPECT_TRUE(balk("VScroll20").isEnabled());
    EXPECT_EQ(balk("VScroll20").maximum(), 1); // 101.6 + 1 - 101.34
    EXPECT_TRUE(balk("HScroll20").isEnabled());
    EXPECT_EQ(balk("HScroll20").maximum(), 2); // 152.4 + 2 - 152.14
    zicht(576, 384);
    EXPECT_FALSE(balk("VScroll20").isEnabled());
    EXPECT_FALSE(balk("HScroll20").isEnabled());
}

TEST_F(Indeling, ResultBarsGoOneBelowAndTwoBesideTheBody) {
    zicht(576, 384); // 152.4 x 101.6 mm
    toon(MaakProefLijst(124, 5, 50.8));
    EXPECT_EQ(balk("VScroll20").maximum(), 401); // 501.6 + 1 - 101.6
    EXPECT_EQ(balk("HScroll20").maximum(), 104); // 254 + 2 - 152.4 = 103.6
    zicht(672, 480);                             // 177.8 x 127 mm
    EXPECT_EQ(balk("VScroll20").maximum(), 376);
    EXPECT_EQ(balk("HScroll20").maximum(), 78); // 78.2
}

TEST_F(Indeling, AListThatIsScrolledToItsEndStaysInSightWhenTheWindowGrows) {
    zicht(576, 384);
    toon(MaakProefLijst(124, 5, 50.8));
    balk("VScroll20").setValue(balk("VScroll20").maximum());
    balk("HScroll20").setValue(balk("HScroll20").maximum());
    zicht(672, 480);
    EXPECT_EQ(proef.vind<TabelLijf>("P21").boven(), -376);
    EXPECT_EQ(proef.vind<TabelLijf>("P21").links(), -78);
    zicht(1200, 2000);
    EXPECT_EQ(proef.vind<TabelLijf>("P21").boven(), 0);
    EXPECT_EQ(proef.vind<TabelLijf>("P21").links(), 0);
}

TEST_F(Indeling, CriteriaBarIsDisabledWhenTheRowsFitExactly) {
    // Five lines and "Alle": 240 + 5 x 300 + 285 + 150 = 2175 twips = 145 pixels.
    ASSERT_EQ(vak("P1").hoogte, 2175);
    maat(861, 480 + 145 - paneel("P0").contentsRect().height());
    ASSERT_EQ(paneel("P0").contentsRect().height(), 145);
    EXPECT_FALSE(balk("VScroll1").isEnabled());
    EXPECT_EQ(balk("VScroll1").maximum(), 0);
    maat(861, proef.venster->height() - 1);
    EXPECT_TRUE(balk("VScroll1").isEnabled());
    EXPECT_EQ(balk("VScroll1").maximum(), 16); // 2175 + 1 - 144 x 15
}

TEST_F(Indeling, CriteriaRowsComeBackWhenTheWindowGrows) {
    maat(861, 480);
    auto& VScroll1 = balk("VScroll1");
    ASSERT_TRUE(VScroll1.isEnabled());
    EXPECT_EQ(VScroll1.singleStep(), 300);
    EXPECT_EQ(VScroll1.pageStep(), 1500);
    VScroll1.setValue(VScroll1.maximum());
    EXPECT_EQ(vak("P1").boven, -10 - VScroll1.maximum());
    maat(861, 700);
    EXPECT_EQ(vak("P1").boven, -10);
}

TEST_F(Indeling, CriteriaRowsFollowTheThumbWhileItIsDragged) {
    auto& VScroll1 = balk("VScroll1");
    VScroll1.setTracking(false);
    VScroll1.setSliderDown(true);
    VScroll1.setSliderPosition(37);
    EXPECT_EQ(vak("P1").boven, -47);
    EXPECT_EQ(vak("P1").links, 0);
}

TEST(SchuifMaximum, RoundsHalvesToEven) {
    EXPECT_EQ(maten::SchuifMaximum(12.5, 10, 0), 2);
    EXPECT_EQ(maten::SchuifMaximum(13.5, 10, 0), 4);
    EXPECT_EQ(maten::SchuifMaximum(12.5, 10, 1), 4);
    EXPECT_EQ(maten::SchuifMaximum(12.5, 10, 2), 4);
    EXPECT_EQ(maten::SchuifMaximum(12.4, 10, 0), 2);
    EXPECT_EQ(maten::SchuifMaximum(12.6, 10, 0), 3);
}

TEST(SchuifMaximum, IsNothingForContentThatFits) {
    EXPECT_EQ(maten::SchuifMaximum(10, 10, 2), 0);
    EXPECT_EQ(maten::SchuifMaximum(3, 10, 2), 0);
    EXPECT_EQ(maten::SchuifMaximum(1200, 1700, 80), 0);
}

TEST(SchuifMaximum, GoesBeyondSixteenBits) {
    EXPECT_EQ(maten::SchuifMaximum(6'280'005.6, 100, 1), 6'279'907);
}

} // namespace
} // namespace lauwerkrans::proef
