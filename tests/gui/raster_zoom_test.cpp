// The result grid enlarged: keys, wheel, places and letters.
#include "ui/raster_zoom.h"

#include <gtest/gtest.h>

#include <QWheelEvent>

#include "beeldproef.h"
#include "kern/proef.h"
#include "proeflijst.h"
#include "rasterproef.h"

namespace lauwerkrans::proef {
namespace {

const QColor lijnkleur(210, 210, 210);

/// A list whose columns are as wide as their texts.
class GemetenLijst : public ProefLijst {
public:
    using ProefLijst::ProefLijst;
    [[nodiscard]] double breedsteCel(std::size_t kolom, const Meter& meet) const override {
        double breedste = 0;
        for (std::size_t rij = 1; rij <= rijen(); ++rij)
            breedste = std::max(breedste, meet(cel(rij, kolom), vet(kolom)));
        return breedste;
    }
};

class Zoom : public RasterProef {
protected:
    static constexpr auto ctrl = Qt::ControlModifier;

    void druk(Qt::Key toets, Qt::KeyboardModifiers met = ctrl) const {
        QTest::keyClick(proef.venster->focusWidget(), toets, met);
    }
    void groter(int stappen) const {
        for (int i = 0; i < stappen; ++i)
            druk(Qt::Key_Plus);
    }
    static void draai(QWidget& boven, int hoek, Qt::KeyboardModifiers toetsen = ctrl) {
        const QPointF midden = boven.rect().center();
        QWheelEvent gebeurtenis(midden, boven.mapToGlobal(midden), QPoint(), QPoint(0, hoek),
                                Qt::NoButton, toetsen, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&gebeurtenis); // as the system's go to the parents too
        qApp->notify(&boven, &gebeurtenis);
    }
    [[nodiscard]] int procent() const { return qRound(P21.vergroting() * 100); }
    /// A list of names in `kolommen` columns.
    std::shared_ptr<ProefLijst> toonNamen(std::size_t rijen, std::size_t kolommen) const {
        auto lijst =
            std::make_shared<GemetenLijst>(rijen, std::vector<std::string>(kolommen, "Gemid %"), 0);
        lijst->tekst = [](std::size_t rij, std::size_t kolom) {
            return "Joop Quaedvlieg " + std::to_string(rij * kolom);
        };
        lijst->vetteKolommen = {2};
        toon(lijst);
        return lijst;
    }
};

TEST_F(Zoom, GoesInStepsFromAHundredToTwoHundredAndFiftyPercent) {
    EXPECT_EQ(procent(), 100);
    druk(Qt::Key_Minus);
    EXPECT_EQ(procent(), 100) << "no smaller";
    groter(1);
    EXPECT_EQ(procent(), 110);
    groter(14);
    EXPECT_EQ(procent(), 250);
    groter(1);
    EXPECT_EQ(procent(), 250) << "no larger";
    druk(Qt::Key_Minus);
    EXPECT_EQ(procent(), 240);
    druk(Qt::Key_0);
    EXPECT_EQ(procent(), 100);
}

TEST_F(Zoom, EveryKeyThatReadsPlusMinusOrZeroWorks) {
    druk(Qt::Key_Equal);
    EXPECT_EQ(procent(), 110) << "the plus without Shift";
    druk(Qt::Key_Plus, ctrl | Qt::ShiftModifier);
    EXPECT_EQ(procent(), 120);
    druk(Qt::Key_Plus, ctrl | Qt::KeypadModifier);
    EXPECT_EQ(procent(), 130);
    druk(Qt::Key_Minus, ctrl | Qt::KeypadModifier);
    EXPECT_EQ(procent(), 120);
    druk(Qt::Key_0, ctrl | Qt::KeypadModifier);
    EXPECT_EQ(procent(), 100);
    for (const Qt::Key toets : {Qt::Key_Plus, Qt::Key_Equal, Qt::Key_Minus}) {
        P21.setFocus();
        druk(toets, Qt::NoModifier);
        EXPECT_EQ(procent(), 100) << "not without Ctrl";
    }
}

TEST_F(Zoom, WorksFromEveryControlAndTypesNothingThere) {
    for (const char* naam : {"txt1_1", "txtPersoon", "txtKop1", "cmd1_0", "chkGewogen", "P21"}) {
        auto& element = proef.vind<QWidget>(naam);
        element.setFocus();
        const auto* vak = qobject_cast<QLineEdit*>(&element);
        const QString tekst = vak != nullptr ? vak->text() : QString();
        druk(Qt::Key_Plus);
        EXPECT_EQ(procent(), 110) << naam;
        druk(Qt::Key_0);
        EXPECT_EQ(procent(), 100) << naam;
        EXPECT_EQ(vak != nullptr ? vak->text() : QString(), tekst) << naam;
    }
}

TEST_F(Zoom, CtrlAndTheWheelEnlargeAndDoNotScroll) {
    toon(MaakProefLijst(500, 20, 40));
    int verwacht = 100;
    for (const char* naam : {"P21", "cmd20_1", "VScroll20", "HScroll20"}) {
        draai(proef.vind<QWidget>(naam), 120);
        EXPECT_EQ(procent(), verwacht += 10) << naam;
    }
    draai(P21, -240);
    EXPECT_EQ(procent(), 120);
    for (int i = 0; i < 8; ++i)
        draai(P21, 15); // a touchpad
    EXPECT_EQ(procent(), 130);
    EXPECT_EQ(VScroll20.value(), 0);
    EXPECT_EQ(HScroll20.value(), 0);
    draai(P21, -120, Qt::NoModifier);
    EXPECT_EQ(VScroll20.value(), 12) << "three rows as always";
    EXPECT_EQ(procent(), 130);
}

TEST_F(Zoom, RowsColumnsHeadersAndLettersFollow) {
    toon(MaakProefLijst(9, 3, 20));
    const int letters = P21.font().pixelSize();
    groter(5);
    std::vector<int> ys;
    for (int k = 0; k <= 9; ++k)
        ys.push_back(Pixel(1.5 * (5 + 4 * k)));
    EXPECT_EQ(Lijnen(Beeld(P21), lijnkleur, 2, Pixel(20)), ys);
    EXPECT_EQ(P21.font().pixelSize(), qRound(letters * 1.5));
    EXPECT_EQ(P22.height(), Pixel(7.5));
    for (int i = 1; i <= 3; ++i) {
        const auto& knop = proef.vind<QPushButton>(("cmd20_" + std::to_string(i)).c_str());
        EXPECT_EQ(knop.geometry(),
                  QRect(QPoint(Pixel(30 * (i - 1)), 0), QPoint(Pixel(30 * i) - 1, Pixel(7.5) - 1)));
        EXPECT_EQ(knop.font().pixelSize(), qRound(letters * 1.5));
    }
    EXPECT_DOUBLE_EQ(P21.hoogte(), 41.6) << "the millimetres stay those at 100 %";
    EXPECT_DOUBLE_EQ(P21.breedte(), 60);
}

TEST_F(Zoom, NoTextTouchesTheEdgeOfItsCellAtAnySize) {
    toonNamen(30, 3);
    proef.venster->resize(1600, 900);
    QCoreApplication::processEvents();
    for (int stap = 0; stap <= 15; ++stap) {
        const QImage beeld = Beeld(P21);
        const auto vak = [&](std::size_t rij, std::size_t kolom) {
            return P21.celVak(rij, kolom).toAlignedRect().intersected(beeld.rect());
        };
        for (std::size_t kolom = 1; kolom <= 2; ++kolom) {
            const QRect cel = vak(7, kolom).adjusted(1, 1, -1, -1);
            const QRect inkt = Omtrek(beeld, cel, IsInkt);
            EXPECT_GT(inkt.height(), cel.height() / 3) << procent();
            EXPECT_GE(inkt.left() - cel.left(), 2) << procent();
            EXPECT_GE(cel.right() - inkt.right(), 2) << procent();
            EXPECT_GE(inkt.top() - cel.top(), 0) << procent();
            EXPECT_GE(cel.bottom() - inkt.bottom(), 1) << procent();
        }
        const auto& kop = proef.vind<QPushButton>("cmd20_1");
        EXPECT_LE(QFontMetrics(kop.font()).horizontalAdvance(kop.text()), kop.width() - 3);
        EXPECT_LE(QFontMetrics(kop.font()).ascent(), kop.height() - 4);
        groter(1);
    }
}

TEST_F(Zoom, TheLastRowAndColumnStayReachable) {
    for (const int stappen : {0, 5, 10}) {
        groter(stappen); // to 100, 150 and 250 %
        toon(MaakProefLijst(1'570'000, 9'807, 17));
        EXPECT_EQ(VScroll20.maximum(),
                  std::lround(4.0 * 1'570'000 + 5.6 + 1 - zichtHoogte() / P21.vergroting()));
        VScroll20.setValue(VScroll20.maximum());
        HScroll20.setValue(HScroll20.maximum());
        const QRect laatste = P21.celVak(1'570'000, 9'807).toAlignedRect();
        EXPECT_TRUE(P21.rect().contains(laatste)) << procent();
        const QRect onder(laatste.right() - 9, laatste.bottom() - 1, 1, 3);
        const auto isLijn = [](QColor kleur) { return kleur == lijnkleur; };
        EXPECT_EQ(Omtrek(Beeld(P21), onder, isLijn).height(), 1) << "its lower line";
        EXPECT_TRUE(proef.heeft("cmd20_9807")) << procent();
        EXPECT_LE(P22.findChildren<QPushButton*>().size(), P21.width() / Pixel(17) + 3);
    }
}

TEST_F(Zoom, TheSameRowAndColumnStayAtTheTopLeft) {
    toonNamen(500, 200);
    VScroll20.setValue(402); // row 100 and a half
    HScroll20.setValue(3'000);
    const auto eerste = *P21.celOp({1, 40});
    groter(3);
    EXPECT_EQ(VScroll20.value(), 402);
    EXPECT_EQ(P21.celOp({1, 40})->kolom, eerste.kolom);
    druk(Qt::Key_0);
    EXPECT_NEAR(HScroll20.value(), 3'000, 1);
}

TEST_F(Zoom, APressAndTheMarkGoByTheEnlargedRows) {
    toon(MaakProefLijst(500, 3, 20));
    groter(10);
    QTest::mouseClick(&P21, Qt::LeftButton, {}, QPoint(40, Pixel(2 * (5 + 4 * 6)) + 1));
    const auto& Line20 = *proef.venster->findChild<Streep*>(QStringLiteral("Line20"));
    EXPECT_DOUBLE_EQ(Line20.y1, 5 + 4 * 6);
    druk(Qt::Key_0);
    EXPECT_DOUBLE_EQ(Line20.y1, 5 + 4 * 6) << "the same row";
    EXPECT_TRUE(Line20.zichtbaar);
}

TEST_F(Zoom, ThePageKeysGoByTheVisibleRows) {
    toon(MaakProefLijst(500, 3, 20));
    groter(10);
    P21.setFocus();
    druk(Qt::Key_PageDown, Qt::NoModifier);
    const int heleRijen = static_cast<int>((zichtHoogte() / 2 - 5) / 4);
    EXPECT_EQ(VScroll20.value(), 4 * (heleRijen - 1));
}

TEST_F(Zoom, AStepOfABarIsTheSameDistanceOnTheScreen) {
    groter(10);
    for (const QScrollBar* balk : {&VScroll20, &HScroll20}) {
        EXPECT_EQ(balk->singleStep(), 20);
        EXPECT_EQ(balk->pageStep(), 75);
    }
    druk(Qt::Key_0);
    EXPECT_EQ(VScroll20.singleStep(), 40);
    EXPECT_EQ(VScroll20.pageStep(), 150);
}

TEST_F(Zoom, AHundredPercentIsAsItWasBefore) {
    toonNamen(100, 8);
    const QImage eerst = Beeld(P20);
    groter(7);
    EXPECT_NE(Beeld(P20), eerst);
    druk(Qt::Key_0);
    EXPECT_EQ(Beeld(P20), eerst);
}

TEST_F(Zoom, IsKeptForTheNextListAndAnEmptyGrid) {
    groter(5);
    toon(MaakProefLijst(5, 3, 20));
    EXPECT_EQ(procent(), 150);
    EXPECT_EQ(proef.vind<QWidget>("cmd20_1").width(), Pixel(30));
    proef.venster->raster().ToonP20_leeg();
    EXPECT_EQ(procent(), 150);
    const auto ys = Lijnen(Beeld(P21), QColor(200, 200, 200), 0, P21.width() - 1);
    ASSERT_GE(ys.size(), 2U);
    EXPECT_EQ(ys[0], Pixel(7.5));
    EXPECT_EQ(ys[1], Pixel(13.5));
}

TEST_F(Zoom, IsNotPartOfTheSettings) {
    const auto inhoud = [this] {
        BewaarInstellingen(*proef.venster, proef.instellingen);
        return proef.competitie.map().inhoud().at("Lauwerkrans/Lauwr.ini");
    };
    const std::string eerst = inhoud();
    groter(5);
    EXPECT_EQ(inhoud(), eerst);
    EXPECT_FALSE(eerst.empty());
}

} // namespace
} // namespace lauwerkrans::proef
