// The picture of the program's file on Windows is that of its window.
#include <gtest/gtest.h>

#include <QDataStream>
#include <QFile>
#include <QImage>

#include <algorithm>
#include <cstdlib>

#include "ui/pictogram.h"

namespace lauwerkrans {
namespace {

/// The images of the icon file, each a PNG at a place of its own.
QList<QImage> Beelden() {
    QFile bestand(QStringLiteral(LAUWERKRANS_BRON "/packaging/windows/lauwerkrans.ico"));
    EXPECT_TRUE(bestand.open(QIODevice::ReadOnly));
    const QByteArray bytes = bestand.readAll();
    QDataStream stroom(bytes);
    stroom.setByteOrder(QDataStream::LittleEndian);
    quint16 aantal = 0;
    stroom.skipRawData(4);
    stroom >> aantal;
    QList<QImage> beelden;
    for (int i = 0; i < aantal; ++i) {
        quint32 lengte = 0;
        quint32 plaats = 0;
        stroom.skipRawData(8);
        stroom >> lengte >> plaats;
        beelden.append(QImage::fromData(bytes.mid(plaats, lengte), "PNG"));
    }
    return beelden;
}

/// The largest difference of a channel of a pixel.
int Verschil(const QImage& een, const QImage& ander) {
    int grootste = 0;
    for (int y = 0; y < een.height(); ++y) {
        for (int x = 0; x < een.width(); ++x) {
            const QColor a = een.pixelColor(x, y);
            const QColor b = ander.pixelColor(x, y);
            grootste = std::max({grootste, std::abs(a.alpha() - b.alpha()),
                                 std::abs(a.red() - b.red()) * a.alpha() / 255,
                                 std::abs(a.green() - b.green()) * a.alpha() / 255,
                                 std::abs(a.blue() - b.blue()) * a.alpha() / 255});
        }
    }
    return grootste;
}

TEST(Pictogrambestand, HasThePictureOfTheWindowInEverySize) {
    QList<int> maten;
    for (const QImage& beeld : Beelden()) {
        ASSERT_FALSE(beeld.isNull());
        maten.append(beeld.width());
        const QImage krans = Krans(beeld.width()).toImage();
        ASSERT_EQ(beeld.size(), krans.size());
        EXPECT_LE(Verschil(beeld, krans), 8) << beeld.width();
    }
    QList<int> vanVenster;
    for (const QSize& maat : Pictogram().availableSizes())
        vanVenster.append(maat.width());
    EXPECT_EQ(maten, vanVenster);
    EXPECT_GE(maten.size(), 8);
}

} // namespace
} // namespace lauwerkrans
