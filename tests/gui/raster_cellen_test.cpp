// The cells of the result grid as they are drawn: where, how thick and in which colours.
#include <gtest/gtest.h>

#include <QFontMetricsF>

#include <array>
#include <set>

#include "beeldproef.h"
#include "proeflijst.h"
#include "rasterproef.h"
#include "ui/stijl.h"

namespace lauwerkrans::proef {
namespace {

using RasterCellen = RasterProef;

/// The inside of a cell in the body (pixels), between its grid lines.
QRect Cel(int rij, double vanMm, double totMm) {
    const QPoint begin(Pixel(vanMm) + 1, Pixel(5 + 4 * (rij - 1)) + 1);
    return {begin, QPoint(Pixel(totMm) - 1, Pixel(5 + 4 * rij) - 1)};
}

/// The pixel of a cell that differs most from its white ground: the colour of its letters.
QColor Inktkleur(const QImage& beeld, const QRect& cel) {
    QColor kleur = Qt::white;
    const auto som = [](QColor c) { return c.red() + c.green() + c.blue(); };
    for (int y = cel.top(); y <= cel.bottom(); ++y) {
        for (int x = cel.left(); x <= cel.right(); ++x) {
            if (som(beeld.pixelColor(x, y)) < som(kleur)) kleur = beeld.pixelColor(x, y);
        }
    }
    return kleur;
}

bool LijktOp(QColor kleur, QColor verwacht) {
    return std::abs(kleur.red() - verwacht.red()) < 40 &&
           std::abs(kleur.green() - verwacht.green()) < 40 &&
           std::abs(kleur.blue() - verwacht.blue()) < 40;
}

std::shared_ptr<ProefLijst> Overal(const std::string& tekst, std::size_t rijen) {
    auto lijst = MaakProefLijst(rijen, 2, 30);
    lijst->tekst = [tekst](std::size_t, std::size_t) { return tekst; };
    lijst->vetteKolommen = {2};
    return lijst;
}

TEST_F(RasterCellen, BoldOnesHaveTheColourOfTheirLineAndTheOthersAreBlack) {
    toon(Overal("HLTE", 9)); // row 1 is line A, row 9 line I
    const QImage beeld = Beeld(P21);
    const std::array<QColor, 9> kleuren = {
        QColor(0, 0, 255),   QColor(192, 0, 0),   QColor(0, 110, 0),
        QColor(128, 0, 128), QColor(0, 110, 110), QColor(139, 69, 19),
        QColor(80, 80, 80),  QColor(0, 0, 128),   QColor(0, 0, 255)};
    for (int rij = 1; rij <= 9; ++rij) {
        const QColor vet = Inktkleur(beeld, Cel(rij, 30, 60));
        EXPECT_TRUE(LijktOp(vet, kleuren.at(static_cast<std::size_t>(rij) - 1)))
            << "row " << rij << " is " << vet.name().toStdString();
        const QColor gewoon = Inktkleur(beeld, Cel(rij, 0, 30));
        EXPECT_TRUE(LijktOp(gewoon, Qt::black)) << rij;
    }
}

double Helderheid(QColor kleur) {
    const auto deel = [](double c) {
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * deel(kleur.redF()) + 0.7152 * deel(kleur.greenF()) +
           0.0722 * deel(kleur.blueF());
}

TEST(LijnKleuren, EightDifferOnWhiteAndThenBeginAgain) {
    std::set<std::string> namen;
    for (char lijn = 'A'; lijn <= 'H'; ++lijn) {
        const QColor kleur = LijnKleur(lijn);
        namen.insert(kleur.name().toStdString());
        EXPECT_GE(1.05 / (Helderheid(kleur) + 0.05), 4.5) << lijn;
        EXPECT_EQ(LijnKleur(static_cast<char>(lijn + 8)), kleur) << lijn;
    }
    EXPECT_EQ(namen.size(), 8U);
    EXPECT_EQ(LijnKleur('A'), QColor(0, 0, 255));
}

TEST_F(RasterCellen, BoldOnesAreDrawnAndMeasuredInBoldLetters) {
    const std::string tekst = "Ria Quast - Wim Tromp";
    auto lijst = MaakProefLijst(1, 2, 60);
    lijst->tekst = [tekst](std::size_t, std::size_t) { return tekst; };
    lijst->vetteKolommen = {2};
    toon(lijst);
    const QImage beeld = Beeld(P21);
    const int gewoon = Omtrek(beeld, Cel(1, 0, 60), IsInkt).width();
    const int vet = Omtrek(beeld, Cel(1, 60, 120), IsInkt).width();
    const QString q = QString::fromStdString(tekst);
    EXPECT_NEAR(gewoon, Pixel(P21.tekstBreedte(q, false)), 3);
    EXPECT_NEAR(vet, Pixel(P21.tekstBreedte(q, true)), 3);
    EXPECT_GT(vet, gewoon + 3);
}

TEST_F(RasterCellen, TextsStandInTheMiddleOfTheirColumns) {
    auto lijst = MaakProefLijst(3, 2, 40);
    lijst->tekst = [](std::size_t rij, std::size_t) { return std::string(3 * rij, 'H'); };
    toon(lijst);
    const QImage beeld = Beeld(P21);
    for (int rij = 1; rij <= 3; ++rij) {
        for (const double links : {0.0, 40.0}) {
            const QRect inkt = Omtrek(beeld, Cel(rij, links, links + 40), IsInkt);
            const double midden = (inkt.left() + inkt.right() + 1) / 2.0;
            EXPECT_NEAR(midden, Pixel(links + 20), 1.0) << rij << " at " << links;
        }
    }
}

TEST_F(RasterCellen, TextsStandInTheMiddleOfTheirRows) {
    toon(Overal("Hg", 20));
    const QFontMetricsF maat(P21.font());
    const QImage beeld = Beeld(P21);
    for (int rij = 1; rij <= 20; ++rij) {
        const double boven = (5 + 4 * (rij - 1)) * 96 / 25.4;
        const double marge = (4 * 96 / 25.4 - maat.height()) / 2;
        const double voet = boven + marge + maat.ascent(); // of the H
        const QRect inkt = Omtrek(beeld, Cel(rij, 0, 30), IsInkt);
        EXPECT_NEAR(inkt.top(), voet - maat.capHeight(), 1.5) << rij;
        EXPECT_NEAR(inkt.bottom() + 1, voet + 2, 1.6) << rij << ": the tail of the g";
    }
}

TEST_F(RasterCellen, NoLetterTouchesTheLinesOfItsCell) {
    auto lijst = std::make_shared<ProefLijst>(
        12, std::vector<std::string>{"Nr", "Paar"},
        P21.tekstBreedte(QStringLiteral("\u00C5\u00C9jgq Wim van der \u00D1y"), true));
    lijst->tekst = [](std::size_t, std::size_t) {
        return std::string("\u00C5\u00C9jgq Wim van der \u00D1y");
    };
    lijst->vetteKolommen = {2};
    toon(lijst);
    const QImage beeld = Beeld(P21);
    const auto& x = P21.beeld().x;
    for (int rij = 1; rij <= 12; ++rij) {
        for (const int kolom : {0, 1}) {
            const auto k = static_cast<std::size_t>(kolom);
            const QRect cel = Cel(rij, x[k], x[k + 1]);
            const QRect inkt = Omtrek(beeld, cel, IsInkt);
            EXPECT_GT(inkt.left(), cel.left()) << rij;
            EXPECT_LT(inkt.right(), cel.right()) << rij;
            EXPECT_GE(inkt.top(), cel.top()) << rij;
            EXPECT_LT(inkt.bottom(), cel.bottom()) << rij;
        }
    }
}

TEST_F(RasterCellen, AnEmptyTextLeavesItsCellWhite) {
    auto lijst = MaakProefLijst(2, 2, 30);
    lijst->tekst = [](std::size_t rij, std::size_t kolom) {
        return rij == kolom ? std::string("H") : std::string();
    };
    toon(lijst);
    const QImage beeld = Beeld(P21);
    EXPECT_FALSE(Omtrek(beeld, Cel(1, 0, 30), IsInkt).isEmpty());
    EXPECT_TRUE(Omtrek(beeld, Cel(1, 30, 60), IsInkt).isEmpty());
    EXPECT_TRUE(Omtrek(beeld, Cel(2, 0, 30), IsInkt).isEmpty());
    EXPECT_FALSE(Omtrek(beeld, Cel(2, 30, 60), IsInkt).isEmpty());
}

TEST_F(RasterCellen, AListThatReplacesAnotherLeavesNothingOfIt) {
    toon(Overal("HHHH", 30));
    toon(Overal("", 2));
    const QImage beeld = Beeld(P20);
    EXPECT_TRUE(Omtrek(beeld, QRect(2, 30, 400, 200), IsInkt).isEmpty());
}

} // namespace
} // namespace lauwerkrans::proef
