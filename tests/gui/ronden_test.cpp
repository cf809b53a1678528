// The panel with the rounds of the competition.
#include <gtest/gtest.h>

#include "beeldproef.h"
#include "ui/frmMain_ontwerp.h"
#include "vensterproef.h"

namespace lauwerkrans::proef {
namespace {

const QColor geel(255, 255, 192);
const QColor leeg(200, 200, 200);
const QColor gevuld(210, 210, 210);

/// The panel alone, on a window that nothing was loaded in.
class RondenLeeg : public ::testing::Test {
protected:
    RondenLeeg() {
        kaal.resize(861, 480);
        MaakElementen(kaal, OntwerpVanFrmMain());
        paneel = std::make_unique<PaneelP10>(kaal);
    }
    template <class Element>
    [[nodiscard]] Element& vind(const char* naam) const {
        return *Vind<Element>(kaal, naam);
    }

    QWidget kaal;
    std::unique_ptr<PaneelP10> paneel;
};

TEST_F(RondenLeeg, InitPutsPanelAndBarInTheirPlaces) {
    paneel->InitP10();
    EXPECT_EQ(maten::PlaatsVan(vind<QWidget>("P10")), (Vak{300, 600, 3650, 1700}));
    const auto& balk = vind<QScrollBar>("VScroll10");
    EXPECT_EQ(maten::PlaatsVan(balk), (Vak{3950, 600, 250, 1700}));
    EXPECT_EQ(balk.singleStep(), 250);
    EXPECT_EQ(balk.pageStep(), 2000);
    EXPECT_EQ(balk.minimum(), 0);
    EXPECT_EQ(balk.maximum(), 0); // 1200 + 80 - 1700
    EXPECT_EQ(balk.value(), 0);
    EXPECT_FALSE(balk.isEnabled());
    const auto& P11 = vind<TabelLijf>("P11");
    EXPECT_EQ(P11.links(), 0);
    EXPECT_EQ(P11.boven(), 0);
    EXPECT_EQ(P11.breedte(), 3150); // twips taken for millimetres
    EXPECT_EQ(P11.hoogte(), 1200);
    EXPECT_TRUE(vind<QWidget>("cmd10_0").isHidden());
    EXPECT_EQ(vind<QWidget>("cmd10_0").pos(), QPoint(0, 0));
}

TEST_F(RondenLeeg, EmptyItHasTheSizeOfTheViewportAndIsRuled) {
    paneel->InitP10();
    paneel->ToonP10_leeg();
    const QRect binnen = vind<QFrame>("P10").contentsRect();
    auto& P11 = vind<TabelLijf>("P11");
    EXPECT_DOUBLE_EQ(P11.breedte(), binnen.width() * 25.4 / 96);
    EXPECT_DOUBLE_EQ(P11.hoogte(), binnen.height() * 25.4 / 96);
    EXPECT_EQ(vind<QWidget>("P12").geometry(), QRect(1, 1, binnen.width(), 19)); // 5.0 mm
    EXPECT_EQ(vind<QWidget>("P12").findChildren<QPushButton*>().size(), 1);
    EXPECT_TRUE(vind<QWidget>("cmd10_0").isHidden());

    const QImage beeld = Beeld(P11);
    std::vector<int> ys;
    for (int k = 0; Pixel(5 + 4 * k) < beeld.height(); ++k)
        ys.push_back(Pixel(5 + 4 * k));
    EXPECT_EQ(ys.size(), 7U);
    EXPECT_EQ(Lijnen(beeld, leeg, 0, beeld.width() - 1), ys);
    EXPECT_EQ(beeld.pixelColor(50, 30), geel);
}

class Ronden : public ::testing::Test {
protected:
    void start(int ronden, int zittingen) {
        proef = std::make_unique<Vensterproef>(ronden, zittingen, 1);
        proef->competitie.schrijfLeden(9, {});
        proef->start();
    }
    /// Shows rounds as they could be counted; every session of a round is played or none.
    void toon(std::size_t ronden, std::size_t zittingen, bool gespeeld = true) const {
        proef->competitie.algemeen.rondeInfo =
            RondeInfo(ronden, zittingen, std::vector<bool>(ronden * zittingen, gespeeld));
        proef->venster->Toon_in_P10();
    }
    [[nodiscard]] TabelLijf& P11() const { return proef->vind<TabelLijf>("P11"); }
    [[nodiscard]] QFrame& P10() const { return proef->vind<QFrame>("P10"); }
    [[nodiscard]] QScrollBar& balk() const { return proef->vind<QScrollBar>("VScroll10"); }
    [[nodiscard]] double zichtHoogte() const { return P10().contentsRect().height() * 25.4 / 96; }
    [[nodiscard]] std::string cel(std::size_t rij, std::size_t kolom) const {
        return P11().beeld().cel(rij, kolom).tekst.toStdString();
    }

    std::unique_ptr<Vensterproef> proef;
};

/// The inside of a cell in the body, in pixels.
QRect Cel(int rij, double vanMm, double totMm) {
    const QPoint begin(Pixel(vanMm) + 1, Pixel(5 + 4 * (rij - 1)) + 1);
    return {begin, QPoint(Pixel(totMm) - 1, Pixel(5 + 4 * rij) - 1)};
}

TEST_F(Ronden, ShowTheirSessionsAndHowManyHaveScores) {
    proef = std::make_unique<Vensterproef>(3, 4, 1);
    proef->competitie.schrijfLeden(9, {});
    proef->competitie.schrijfZitting(1, 1, {});
    proef->competitie.schrijfZitting(1, 2, {});
    proef->competitie.schrijfZitting(1, 4, {});
    proef->competitie.schrijfZitting(3, 2, {});
    proef->start();
    ASSERT_EQ(P11().beeld().rijen, 3U);
    const std::vector<std::vector<std::string>> verwacht = {
        {"1", "4", "4", "3"}, {"2", "4", "4", ""}, {"3", "4", "4", "1"}};
    for (std::size_t rij = 1; rij <= 3; ++rij) {
        for (std::size_t kolom = 1; kolom <= 4; ++kolom)
            EXPECT_EQ(cel(rij, kolom), verwacht[rij - 1][kolom - 1]) << rij << ", " << kolom;
    }
}

TEST_F(Ronden, ANoughtIsBlankInEveryColumnAndOtherTextsAreNot) {
    start(1, 1);
    toon(2, 3, false);
    EXPECT_EQ(proef->competitie.algemeen.rondeInfo.cel(1, 4), "0");
    EXPECT_EQ(cel(1, 4), "");
    EXPECT_EQ(cel(1, 3), "3");
    toon(2, 0);
    EXPECT_EQ(proef->competitie.algemeen.rondeInfo.cel(1, 3), "0");
    EXPECT_EQ(cel(1, 3), "");
    toon(10, 10);
    EXPECT_EQ(cel(10, 1), "10");
    EXPECT_EQ(cel(10, 4), "10");
}

TEST_F(Ronden, HaveFourColumnsWithTheirButtons) {
    start(3, 2);
    EXPECT_EQ(P11().beeld().x, (std::vector<double>{0, 10, 23, 43, 55}));
    EXPECT_DOUBLE_EQ(P11().breedte(), 55);
    EXPECT_EQ(proef->vind<QWidget>("P12").geometry(), QRect(1, 1, 208, 20)); // 55 x 5.4 mm
    const std::vector<std::pair<const char*, const char*>> koppen = {{"cmd10_1", "Ronde"},
                                                                     {"cmd10_2", "Zittingen"},
                                                                     {"cmd10_3", "---"},
                                                                     {"cmd10_4", "met Perc"}};
    const std::vector<int> xs = {0, 38, 87, 163, 208};
    for (std::size_t i = 0; i < 4; ++i) {
        const auto& knop = proef->vind<QPushButton>(koppen[i].first);
        EXPECT_EQ(knop.text(), QString::fromLatin1(koppen[i].second));
        EXPECT_EQ(knop.geometry(), QRect(xs[i], 0, xs[i + 1] - xs[i], 20)) << i;
        EXPECT_TRUE(knop.isVisible()) << i;
    }
    EXPECT_FALSE(proef->vind<QWidget>("cmd10_0").isVisible());
}

TEST_F(Ronden, AreDrawnBetweenLightGreyLines) {
    start(1, 1);
    toon(3, 0);
    const QImage beeld = Beeld(P10());
    const auto kleur = [&](double xMm, double yMm) {
        return beeld.pixelColor(1 + Pixel(xMm), 1 + Pixel(yMm));
    };
    for (int k = 1; k <= 3; ++k) { // the first line lies under the headers
        EXPECT_EQ(kleur(1, 5 + 4 * k), gevuld) << k;
        EXPECT_EQ(kleur(54, 5 + 4 * k), gevuld) << k;
    }
    for (const double x : {0.0, 10.0, 23.0, 43.0, 55.0}) {
        EXPECT_EQ(kleur(x, 7), gevuld) << x;
        EXPECT_EQ(kleur(x, 16), gevuld) << x;
    }
    EXPECT_EQ(kleur(30, 7), geel);
    EXPECT_EQ(kleur(30, 17.3), geel) << "0.6 mm below the last row";
    EXPECT_EQ(kleur(30, 19), QColor(240, 240, 240)) << "below the table";
    EXPECT_EQ(kleur(57, 7), QColor(240, 240, 240)) << "beside the table";
}

TEST_F(Ronden, AreTallerByFourMillimetresPerRound) {
    start(1, 1);
    for (const std::size_t ronden : {0U, 1U, 2U, 7U, 99U}) {
        toon(ronden, 3);
        EXPECT_DOUBLE_EQ(P11().hoogte(), 4.0 * static_cast<double>(ronden) + 5.6);
        EXPECT_EQ(P11().beeld().lijnen, ronden + 1);
    }
}

TEST_F(Ronden, TextsStandInTheMiddleOfTheirColumns) {
    start(1, 1);
    toon(5, 3);
    const QImage beeld = Beeld(P11());
    const auto& x = P11().beeld().x;
    for (std::size_t kolom = 1; kolom <= 4; ++kolom) {
        const QRect inkt = Omtrek(beeld, Cel(5, x[kolom - 1], x[kolom]), IsInkt);
        const double midden = (inkt.left() + inkt.right() + 1) / 2.0;
        EXPECT_NEAR(midden, Pixel((x[kolom - 1] + x[kolom]) / 2), 1.5) << kolom;
    }
}

TEST_F(Ronden, OneLeavesTheBarDisabled) {
    start(1, 1);
    EXPECT_FALSE(balk().isEnabled());
    EXPECT_EQ(balk().maximum(), 0);
}

TEST_F(Ronden, MoreThanFitCanBeScrolledToTheLast) {
    start(1, 1);
    for (std::size_t ronden = 1; ronden <= 99; ++ronden) {
        toon(ronden, 3);
        const double hoogte = 4.0 * static_cast<double>(ronden) + 5.6;
        const double laatste = hoogte - 0.6; // the line below the last row
        if (hoogte > zichtHoogte() + 0.5) {
            EXPECT_TRUE(balk().isEnabled()) << ronden;
            EXPECT_EQ(balk().maximum(), std::lround(hoogte - zichtHoogte())) << ronden;
        }
        balk().setValue(balk().maximum());
        EXPECT_EQ(P11().boven(), -balk().maximum()) << ronden;
        EXPECT_LT(Pixel(laatste + P11().boven()), P10().contentsRect().height()) << ronden;
    }
}

TEST_F(Ronden, TheLastOfManyIsDrawnAtTheMaximum) {
    start(1, 1);
    toon(40, 3);
    balk().setValue(balk().maximum());
    const QImage beeld = Beeld(P11());
    const int onder = Pixel(5 + 4.0 * 40 - balk().maximum());
    const QRect cel(QPoint(2, Pixel(5 + 4.0 * 39 - balk().maximum()) + 1), QPoint(36, onder - 1));
    EXPECT_FALSE(Omtrek(beeld, cel, IsInkt).isEmpty());
    EXPECT_EQ(beeld.pixelColor(20, onder), gevuld);
}

TEST_F(Ronden, FollowTheThumbUnderHeadersThatStay) {
    start(1, 1);
    toon(30, 3);
    const QRect strip = proef->vind<QWidget>("P12").geometry();
    balk().setTracking(false);
    balk().setSliderDown(true);
    balk().setSliderPosition(17);
    EXPECT_EQ(P11().boven(), -17);
    balk().setSliderDown(false);
    balk().setTracking(true);
    balk().setValue(23);
    EXPECT_EQ(P11().boven(), -23);
    EXPECT_EQ(proef->vind<QWidget>("P12").geometry(), strip);
}

TEST_F(Ronden, ScrollUnderTheirHeaders) {
    start(1, 1);
    toon(30, 3);
    const QRect kop(1, 1, 200, 20);
    const QImage eerst = Beeld(P10()).copy(kop);
    EXPECT_FALSE(Omtrek(eerst, QRect(5, 3, 28, 14), IsInkt).isEmpty()) << "the word Ronde";
    balk().setValue(7);
    EXPECT_EQ(Beeld(P10()).copy(kop), eerst);
}

TEST_F(Ronden, LoadedAgainHaveOneSetOfButtonsAndStartAtTheFirst) {
    start(1, 1);
    toon(60, 3);
    balk().setValue(100);
    toon(59, 3);
    EXPECT_EQ(P11().boven(), 0);
    balk().setValue(100);
    toon(2, 3);
    EXPECT_EQ(P11().boven(), 0);
    EXPECT_FALSE(balk().isEnabled());
    EXPECT_EQ(proef->vind<QWidget>("P12").findChildren<QPushButton*>().size(), 5);
    EXPECT_TRUE(proef->heeft("cmd10_0"));
    EXPECT_EQ(P11().beeld().rijen, 2U);
}

} // namespace
} // namespace lauwerkrans::proef
