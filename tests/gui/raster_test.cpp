// The result grid: set up, emptied, filled and scrolled.
#include <gtest/gtest.h>

#include <new>

#include "beeldproef.h"
#include "proeflijst.h"
#include "rasterproef.h"
#include "ui/frmMain_ontwerp.h"

namespace lauwerkrans::proef {
namespace {

const QColor wit(255, 255, 255);
const QColor leeg(200, 200, 200);
const QColor gevuld(210, 210, 210);

class Raster : public RasterProef {
protected:
    [[nodiscard]] std::size_t koppen() const {
        return static_cast<std::size_t>(P22.findChildren<QPushButton*>().size());
    }
    /// The ys of the first ruling lines.
    static std::vector<int> rooster(int aantal) {
        std::vector<int> ys;
        for (int k = 0; k < aantal; ++k)
            ys.push_back(Pixel(5 + 4 * k));
        return ys;
    }
};

TEST(RasterBegin, InitPutsPanelAndBarsInTheirPlaces) {
    QWidget venster;
    venster.resize(861, 480);
    MaakElementen(venster, OntwerpVanFrmMain());
    PaneelP20 raster(venster);
    raster.InitP20();
    const auto vak = [&venster](const char* naam) {
        return maten::PlaatsVan(*Vind<QWidget>(venster, naam));
    };
    // Frame4 stands at 5880 in the design; the window is 12915 wide.
    EXPECT_EQ(vak("P20"), (Vak{4675, 350, 7890, 5230}));
    EXPECT_EQ(vak("VScroll20"), (Vak{12565, 350, 250, 5230}));
    EXPECT_EQ(vak("HScroll20"), (Vak{4675, 5560, 7890, 250})); // 20 above the lower edge
    const auto* P21 = Vind<TabelLijf>(venster, "P21");
    EXPECT_EQ(P21->breedte(), 7390); // twips taken for millimetres
    EXPECT_EQ(P21->hoogte(), 4730);
    EXPECT_EQ(P21->links(), 0);
    EXPECT_EQ(P21->boven(), 0);
    const auto* kop = Vind<QPushButton>(venster, "cmd20_0");
    EXPECT_TRUE(kop->isHidden());
    EXPECT_EQ(kop->pos(), QPoint(0, 0));
    for (const char* naam : {"VScroll20", "HScroll20"}) {
        const auto* balk = Vind<QScrollBar>(venster, naam);
        EXPECT_EQ(balk->singleStep(), 40) << naam;
        EXPECT_EQ(balk->pageStep(), 150) << naam;
        EXPECT_EQ(balk->minimum(), 0) << naam;
        EXPECT_EQ(balk->maximum(), 0) << naam;
        EXPECT_EQ(balk->value(), 0) << naam;
        EXPECT_FALSE(balk->isEnabled()) << naam;
    }
}

TEST_F(Raster, IsEmptyAtTheStart) {
    EXPECT_EQ(proef.venster->raster().lijst(), nullptr);
    EXPECT_EQ(koppen(), 1U) << "element 0";
    EXPECT_FALSE(proef.vind<QWidget>("cmd20_0").isVisible());
    EXPECT_FALSE(proef.venster->findChild<Streep*>(QStringLiteral("Line20"))->zichtbaar);
    EXPECT_FALSE(proef.venster->findChild<Streep*>(QStringLiteral("Line21"))->zichtbaar);
}

TEST_F(Raster, AnEmptyBodyHasTheSizeOfTheViewport) {
    toon(MaakProefLijst(300, 9, 40));
    VScroll20.setValue(60);
    HScroll20.setValue(60);
    proef.venster->raster().ToonP20_leeg();
    EXPECT_DOUBLE_EQ(P21.breedte(), zichtBreedte());
    EXPECT_DOUBLE_EQ(P21.hoogte(), zichtHoogte());
    EXPECT_DOUBLE_EQ(proef.venster->raster().tabelBreedte(), zichtBreedte());
    EXPECT_EQ(P21.links(), 0);
    EXPECT_EQ(P21.boven(), 0);
    EXPECT_EQ(P22.geometry(), QRect(1, 1, P20.contentsRect().width(), 19));
    EXPECT_EQ(koppen(), 1U);
    EXPECT_FALSE(VScroll20.isEnabled());
    EXPECT_FALSE(HScroll20.isEnabled());
    EXPECT_EQ(VScroll20.maximum(), 0);
    EXPECT_EQ(HScroll20.maximum(), 0);
    EXPECT_EQ(proef.venster->raster().lijst(), nullptr);
}

TEST_F(Raster, AnEmptyBodyIsRuledFromTheHeaderHeight) {
    const QImage beeld = Beeld(P21);
    const int lijnen = static_cast<int>(zichtHoogte() / 4);
    std::vector<int> ys = rooster(lijnen);
    while (ys.back() >= beeld.height())
        ys.pop_back();
    ASSERT_GT(ys.size(), 20U);
    EXPECT_EQ(Lijnen(beeld, leeg, 0, beeld.width() - 1), ys);
    EXPECT_EQ(Lijnen(beeld, wit, 0, beeld.width() - 1).size() + ys.size(),
              static_cast<std::size_t>(beeld.height()))
        << "nothing else is drawn";
}

TEST_F(Raster, AnEmptyBodyIsRuledAnewWhenTheWindowGrows) {
    proef.venster->resize(1400, 1000);
    QCoreApplication::processEvents();
    const QImage beeld = Beeld(P21);
    EXPECT_EQ(beeld.width(), P20.contentsRect().width());
    const std::vector<int> ys = Lijnen(beeld, leeg, 0, beeld.width() - 1);
    ASSERT_FALSE(ys.empty());
    EXPECT_GE(ys.back(), beeld.height() - 31);
}

TEST_F(Raster, AFilledBodyIsAsLargeAsItsTable) {
    toon(MaakProefLijst(7, 3, 30));
    EXPECT_DOUBLE_EQ(P21.breedte(), 90);
    EXPECT_DOUBLE_EQ(P21.hoogte(), 33.6); // 4 x 7 + 5.6
    EXPECT_DOUBLE_EQ(proef.venster->raster().tabelBreedte(), 90);
    EXPECT_EQ(P22.geometry(), QRect(1, 1, Pixel(90), 19)); // 5.0 mm high
    EXPECT_FALSE(VScroll20.isEnabled()) << "it fits";
    EXPECT_FALSE(HScroll20.isEnabled());
}

TEST_F(Raster, ColumnsAreAsWideAsTheirWidestTextAndAMillimetreOnBothSides) {
    auto lijst = std::make_shared<ProefLijst>(
        1, std::vector<std::string>{"K", "Een brede kop boven smalle cellen"}, 12.5);
    toon(lijst);
    const auto& x = P21.beeld().x;
    EXPECT_DOUBLE_EQ(x[1] - x[0], 14.5);
    const double kop = P21.tekstBreedte(QString::fromStdString(lijst->koppen()[1]), false);
    ASSERT_GT(kop, 12.5);
    EXPECT_DOUBLE_EQ(x[2] - x[1], kop + 2);
}

TEST_F(Raster, AFilledBodyHasLinesAroundItsCellsAndNothingBesideThem) {
    auto lijst = MaakProefLijst(3, 2, 20);
    lijst->tekst = [](std::size_t, std::size_t) { return std::string(); };
    toon(lijst);
    const QImage beeld = Beeld(P20);
    const QPoint begin = P20.contentsRect().topLeft();
    const auto kleur = [&](double xMm, double yMm) {
        return beeld.pixelColor(begin.x() + Pixel(xMm), begin.y() + Pixel(yMm));
    };
    for (int k = 0; k <= 3; ++k) {
        EXPECT_EQ(kleur(10, 5 + 4 * k), gevuld) << k;
        EXPECT_EQ(kleur(1, 5 + 4 * k), gevuld) << k;
    }
    for (const double x : {0.0, 20.0, 40.0}) {
        EXPECT_EQ(kleur(x, 7), gevuld) << x;
        EXPECT_EQ(kleur(x, 15), gevuld) << x;
    }
    EXPECT_EQ(kleur(10, 7), wit);
    EXPECT_EQ(kleur(10, 17.4), wit) << "0.6 mm below the last row";
    const QColor achtergrond(180, 180, 180);
    EXPECT_EQ(kleur(41, 7), achtergrond);
    EXPECT_EQ(kleur(10, 19), achtergrond);
    EXPECT_EQ(kleur(60, 2), achtergrond) << "the header strip ends with the table";
}

TEST_F(Raster, EveryColumnHasAHeaderButtonThatDoesNothing) {
    auto lijst = std::make_shared<ProefLijst>(
        5, std::vector<std::string>{"Nr", "Lijn", "Rang", "Paar"}, 14.3);
    toon(lijst);
    ASSERT_EQ(koppen(), 5U) << "four and element 0";
    int vorige = 0;
    for (int i = 1; i <= 4; ++i) {
        auto& knop = proef.vind<QPushButton>(("cmd20_" + std::to_string(i)).c_str());
        EXPECT_EQ(knop.text().toStdString(), lijst->koppen()[static_cast<std::size_t>(i) - 1]);
        EXPECT_TRUE(knop.isVisible()) << i;
        EXPECT_EQ(knop.geometry(), QRect(vorige, 0, Pixel(16.3 * i) - vorige, 19)) << i;
        vorige = knop.geometry().right() + 1;
        QTest::mouseClick(&knop, Qt::LeftButton);
    }
    EXPECT_EQ(proef.venster->raster().lijst(), lijst);
    EXPECT_FALSE(proef.vind<QWidget>("cmd20_0").isVisible());
}

TEST_F(Raster, ANewListHasNoButtonOfTheOldOne) {
    toon(MaakProefLijst(5, 9, 20));
    toon(MaakProefLijst(5, 2, 20));
    EXPECT_EQ(koppen(), 3U);
    EXPECT_FALSE(proef.heeft("cmd20_3"));
    proef.venster->raster().Verw_Headers();
    EXPECT_EQ(koppen(), 1U);
    EXPECT_TRUE(proef.heeft("cmd20_0"));
}

TEST_F(Raster, AListWithoutRowsShowsItsHeaders) {
    toon(MaakProefLijst(0, 6, 20));
    EXPECT_EQ(koppen(), 7U);
    EXPECT_DOUBLE_EQ(P21.hoogte(), 5.6);
    EXPECT_EQ(Lijnen(Beeld(P21), gevuld, 1, 100), std::vector<int>{19});
}

TEST_F(Raster, ANewListStartsAtItsFirstCellWithItsOwnRanges) {
    toon(MaakProefLijst(500, 30, 40));
    VScroll20.setValue(700);
    HScroll20.setValue(300);
    toon(MaakProefLijst(400, 10, 40));
    EXPECT_EQ(VScroll20.value(), 0);
    EXPECT_EQ(HScroll20.value(), 0);
    EXPECT_EQ(P21.boven(), 0);
    EXPECT_EQ(P21.links(), 0);
    EXPECT_EQ(P22.x(), 1);
    EXPECT_EQ(VScroll20.maximum(), std::lround(1605.6 + 1 - zichtHoogte()));
    EXPECT_EQ(HScroll20.maximum(), std::lround(400 + 2 - zichtBreedte()));
    EXPECT_TRUE(VScroll20.isEnabled());
    EXPECT_TRUE(HScroll20.isEnabled());
}

TEST_F(Raster, AListThatCannotBeMeasuredLeavesTheOldOne) {
    class Kapot : public ProefLijst {
    public:
        Kapot() : ProefLijst(9, std::vector<std::string>(12, "K"), 20) {}
        [[nodiscard]] double breedsteCel(std::size_t, const Meter&) const override {
            throw std::bad_alloc();
        }
    };
    const auto oud = MaakProefLijst(300, 3, 40);
    toon(oud);
    EXPECT_THROW(toon(std::make_shared<Kapot>()), std::bad_alloc);
    EXPECT_EQ(proef.venster->raster().lijst(), oud);
    EXPECT_EQ(koppen(), 4U);
    EXPECT_EQ(P21.beeld().rijen, 300U);
    HScroll20.setValue(HScroll20.maximum());
    proef.venster->resize(1200, 800);
    QCoreApplication::processEvents();
    EXPECT_EQ(P21.beeld().cel(2, 1).tekst, QStringLiteral("2"));
}

} // namespace
} // namespace lauwerkrans::proef
