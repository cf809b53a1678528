// Texts that are kept laid out look like texts that are drawn afresh.
#include "ui/tekstvoorraad.h"

#include <gtest/gtest.h>

#include <QImage>

#include "proeflijst.h"
#include "rasterproef.h"
#include "ui/stijl.h"

namespace lauwerkrans::proef {
namespace {

const QString tekst = QStringLiteral("Zoë van den Berg <b> 57,125_24");

QImage Leeg() {
    QImage beeld(300, 30, QImage::Format_RGB32);
    beeld.fill(Qt::white);
    return beeld;
}

/// Drawn twice over: the second time from what is kept.
QImage UitVoorraad(bool vet) {
    Tekstvoorraad voorraad(Letters(11, vet));
    QImage beeld = Leeg();
    for (int i = 0; i < 2; ++i) {
        beeld = Leeg();
        QPainter schilder(&beeld);
        schilder.setPen(kleuren::blauw);
        voorraad.teken(schilder, 150.4, 5.3, tekst);
    }
    EXPECT_EQ(voorraad.aantal(), 1U);
    return beeld;
}

QImage Vers(bool vet) {
    QImage beeld = Leeg();
    QPainter schilder(&beeld);
    const QFont letters = Letters(11, vet);
    const QFontMetricsF maat(letters);
    schilder.setFont(letters);
    schilder.setPen(kleuren::blauw);
    schilder.drawText(
        QPointF(150.4 - maat.horizontalAdvance(tekst) / 2, std::round(5.3 + maat.ascent())), tekst);
    return beeld;
}

TEST(Tekstvoorraad, DrawsTheSamePixelsAsWithoutIt) {
    for (const bool vet : {false, true}) {
        EXPECT_NE(Vers(vet), Leeg());
        EXPECT_EQ(UitVoorraad(vet), Vers(vet)) << vet;
    }
}

TEST(Tekstvoorraad, KeepsNoMoreThanItsLimit) {
    Tekstvoorraad voorraad(Letters(11, false));
    QImage beeld = Leeg();
    QPainter schilder(&beeld);
    for (std::size_t i = 0; i <= Tekstvoorraad::meeste; ++i)
        voorraad.teken(schilder, 100, 5, QString::number(i));
    EXPECT_LE(voorraad.aantal(), Tekstvoorraad::meeste);
    EXPECT_GE(voorraad.aantal(), 1U);
}

using TabelLetters = RasterProef;

TEST_F(TabelLetters, ABodyDrawsWithTheLettersItHasNow) {
    toon(MaakProefLijst(20, 3, 40));
    const QImage klein = P21.grab().toImage();
    P21.setFont(Letters(13, false));
    EXPECT_NE(P21.grab().toImage(), klein);
    P21.setFont(Letters(11, false));
    EXPECT_EQ(P21.grab().toImage(), klein);
}

} // namespace
} // namespace lauwerkrans::proef
