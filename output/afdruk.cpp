#include "output/afdruk.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPaintDevice>

#include <algorithm>
#include <array>
#include <cmath>

namespace lauwerkrans {

namespace {

constexpr double mmPerDuim = 25.4;
constexpr double puntenPerDuim = 72;

/// A font for a kind of letter; where there is no narrow one, a wide one is condensed by `rek`.
struct Lettersoort {
    QFont letters;
    double rek = 1;
};

Lettersoort MaakLettersoort(Lettertype type, bool vet) {
    constexpr double smal = 0.82;
    const QStringList gewone = {QStringLiteral("Arial"), QStringLiteral("Liberation Sans")};
    const QStringList smalle = {QStringLiteral("Arial Narrow"),
                                QStringLiteral("Liberation Sans Narrow")};
    const bool heeftSmal = std::any_of(smalle.begin(), smalle.end(), [](const QString& naam) {
        return QFontDatabase::families().contains(naam);
    });
    Lettersoort soort;
    const bool wilSmal = type == Lettertype::ArialNarrow;
    soort.letters.setFamilies(wilSmal && heeftSmal ? smalle : gewone);
    if (wilSmal && !heeftSmal) soort.rek = smal;
    soort.letters.setBold(vet);
    soort.letters.setHintingPreference(QFont::PreferNoHinting);
    return soort;
}

const Lettersoort& SoortVan(const Letter& letter) {
    static const std::array<Lettersoort, 4> soorten = {
        MaakLettersoort(Lettertype::Arial, false), MaakLettersoort(Lettertype::Arial, true),
        MaakLettersoort(Lettertype::ArialNarrow, false),
        MaakLettersoort(Lettertype::ArialNarrow, true)};
    const std::size_t smal = letter.type == Lettertype::ArialNarrow ? 2 : 0;
    return soorten.at(smal + (letter.vet ? 1 : 0));
}

/// The thickness of a rule in units of the painter: whole pixels of the device, at least one, else
/// one rule would look thicker or greyer than the next.
double Lijndikte(const QPaintDevice& vlak, double schaal) {
    constexpr double lijndikte = 0.2; // mm
    const double pixels = vlak.devicePixelRatioF();
    return std::max(1.0, std::round(lijndikte * schaal * pixels)) / pixels;
}

void TekenTekst(QPainter& schilder, const BladTekst& tekst, double schaal) {
    const Lettersoort& soort = SoortVan(tekst.letter);
    // The toolkit takes points at the device's own resolution, not at the painter's scale.
    const double hoogte = tekst.letter.punten * mmPerDuim / puntenPerDuim * schaal;
    QFont letters(soort.letters, schilder.device());
    letters.setPointSizeF(hoogte * puntenPerDuim / schilder.device()->logicalDpiY());
    schilder.save();
    schilder.setFont(letters);
    schilder.translate(tekst.x * schaal, tekst.y * schaal);
    schilder.scale(tekst.rek * soort.rek, 1);
    schilder.drawText(QPointF(0, 0), QString::fromStdString(tekst.tekst));
    schilder.restore();
}

} // namespace

double MeetBladtekst(const std::string& tekst, const Letter& letter) {
    constexpr int pixels = 1000;
    const Lettersoort& soort = SoortVan(letter);
    QFont letters = soort.letters;
    letters.setPixelSize(pixels);
    const double breedte = QFontMetricsF(letters).horizontalAdvance(QString::fromStdString(tekst));
    return breedte * soort.rek / pixels * letter.punten * mmPerDuim / puntenPerDuim;
}

void TekenBlad(QPainter& schilder, const Blad& blad, double schaal) {
    schilder.setRenderHint(QPainter::Antialiasing, false);
    schilder.setPen(
        QPen(Qt::black, Lijndikte(*schilder.device(), schaal), Qt::SolidLine, Qt::SquareCap));
    for (const BladLijn& lijn : blad.lijnen) {
        schilder.drawLine(QPointF(lijn.x1, lijn.y1) * schaal, QPointF(lijn.x2, lijn.y2) * schaal);
    }
    schilder.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    for (const BladTekst& tekst : blad.teksten)
        TekenTekst(schilder, tekst, schaal);
}

} // namespace lauwerkrans
