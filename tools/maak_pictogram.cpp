// Writes the program's picture in all sizes as a Windows icon file: maak_pictogram FILE. The
// format: a header of 6 bytes (0, kind 1, number), 16 bytes an image (width and height, 0 for 256;
// colours, 0; planes; bits a pixel; length; place), then the images as PNG.
#include <QBuffer>
#include <QDataStream>
#include <QFile>
#include <QGuiApplication>

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

} // namespace

int main(int argc, char** argv) {
    const QGuiApplication toepassing(argc, argv);
    if (argc != 2) return 2;
    QFile bestand(QString::fromLocal8Bit(argv[1]));
    const QByteArray bytes = IcoBestand();
    return bestand.open(QIODevice::WriteOnly) && bestand.write(bytes) == bytes.size() ? 0 : 1;
}
