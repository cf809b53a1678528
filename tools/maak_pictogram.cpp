// Writes the program's picture in all sizes: as a Windows icon file (maak_pictogram FILE), or as
// PNG files of the sizes that a Linux desktop looks for (maak_pictogram FOLDER). The format of an
// icon file: a header of 6 bytes (0, kind 1, number), 16 bytes an image (width and height, 0 for
// 256; colours, 0; planes; bits a pixel; length; place), then the images as PNG.
#include <QBuffer>
#include <QDataStream>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>

#include <algorithm>
#include <array>

#include "ui/pictogram.h"

namespace {

QByteArray Png(int pixels) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    lauwerkrans::Krans(pixels).save(&buffer, "PNG");
    return bytes;
}

QByteArray IcoBestand() {
    const QList<QSize> maten = lauwerkrans::Pictogram().availableSizes();
    QByteArray begin;
    QByteArray beelden;
    QDataStream stroom(&begin, QIODevice::WriteOnly);
    stroom.setByteOrder(QDataStream::LittleEndian);
    stroom << quint16{0} << quint16{1} << static_cast<quint16>(maten.size());
    const auto eerste = static_cast<quint32>(6 + 16 * maten.size());
    for (const QSize& maat : maten) {
        const QByteArray png = Png(maat.width());
        const auto zijde = static_cast<quint8>(maat.width() % 256);
        stroom << zijde << zijde << quint8{0} << quint8{0} << quint16{1} << quint16{32}
               << static_cast<quint32>(png.size()) << eerste + static_cast<quint32>(beelden.size());
        beelden += png;
    }
    return begin + beelden;
}

bool Schrijf(const QString& naam, const QByteArray& bytes) {
    QFile bestand(naam);
    return bestand.open(QIODevice::WriteOnly) && bestand.write(bytes) == bytes.size();
}

/// One file for each of the desktop's own sizes, named after it: 16x16.png and so on.
bool SchrijfPngs(const QString& map) {
    constexpr std::array maten = {16, 22, 24, 32, 48, 64, 96, 128, 256};
    return std::all_of(maten.begin(), maten.end(), [&map](int pixels) {
        return Schrijf(QStringLiteral("%1/%2x%2.png").arg(map).arg(pixels), Png(pixels));
    });
}

} // namespace

int main(int argc, char** argv) {
    const QGuiApplication toepassing(argc, argv);
    if (argc != 2) return 2;
    const QString naam = QString::fromLocal8Bit(argv[1]);
    const bool gelukt = QFileInfo(naam).isDir() ? SchrijfPngs(naam) : Schrijf(naam, IcoBestand());
    return gelukt ? 0 : 1;
}
