#include "ui/pictogram.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace lauwerkrans {

namespace {

// The picture is drawn in a square of 100 by 100 around its middle.
constexpr double straal = 36;     // of the two branches
constexpr double onderHoek = 250; // degrees; where a branch starts, below
constexpr double bovenHoek = 110; // and ends, above
constexpr QColor blad(34, 120, 50);
constexpr QColor licht(96, 176, 84);
constexpr QColor tak(94, 68, 30);
constexpr QColor lint(196, 32, 32);

QPointF OpCirkel(double hoek, double r) {
    const double rad = hoek * std::numbers::pi / 180;
    return {r * std::cos(rad), -r * std::sin(rad)};
}

/// One leaf from `voet`, `lengte` long, pointing to `richting` (degrees).
void TekenBlad(QPainter& schilder, QPointF voet, double richting, double lengte, QColor kleur) {
    const QPointF punt = voet + OpCirkel(richting, lengte);
    const double breed = lengte * 0.42;
    const QPointF midden = (voet + punt) / 2;
    QPainterPath pad(voet);
    pad.quadTo(midden + OpCirkel(richting + 90, breed), punt);
    pad.quadTo(midden + OpCirkel(richting - 90, breed), voet);
    schilder.fillPath(pad, kleur);
}

/// The left branch; the right one is its mirror image.
void TekenTak(QPainter& schilder, int bladeren, double dikte) {
    const QRectF cirkel(-straal, -straal, 2 * straal, 2 * straal);
    schilder.setPen(QPen(tak, dikte, Qt::SolidLine, Qt::RoundCap));
    schilder.drawArc(cirkel, static_cast<int>(bovenHoek * 16),
                     static_cast<int>((onderHoek - bovenHoek) * 16));
    for (int i = 0; i < bladeren; ++i) {
        const double deel = (i + 0.4) / bladeren;
        const double hoek = onderHoek - deel * (onderHoek - bovenHoek);
        const double lengte = 22 - 6 * deel;
        const double langs = hoek - 90; // the way the branch grows
        TekenBlad(schilder, OpCirkel(hoek, straal), langs + 38, lengte, blad);
        TekenBlad(schilder, OpCirkel(hoek, straal), langs - 38, lengte, licht);
    }
}

/// Draws a size when it is asked for: at the start no more than the system wants.
class Kransmachine : public QIconEngine {
public:
    void paint(QPainter* schilder, const QRect& vak, QIcon::Mode /*stand*/,
               QIcon::State /*toestand*/) override {
        schilder->drawPixmap(vak, Krans(vak.width()));
    }

    QPixmap pixmap(const QSize& maat, QIcon::Mode /*stand*/, QIcon::State /*toestand*/) override {
        return Krans(std::min(maat.width(), maat.height()));
    }

    QList<QSize> availableSizes(QIcon::Mode /*stand*/, QIcon::State /*toestand*/) override {
        QList<QSize> maten;
        for (const int pixels : {16, 20, 24, 32, 40, 48, 64, 96, 128, 256})
            maten.append({pixels, pixels});
        return maten;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new Kransmachine(*this); }
};

} // namespace

QPixmap Krans(int pixels) {
    constexpr double vak = 100;
    constexpr int klein = 24; // below this size fewer and stouter strokes
    QPixmap beeld(pixels, pixels);
    beeld.fill(Qt::transparent);
    QPainter schilder(&beeld);
    schilder.setRenderHint(QPainter::Antialiasing);
    schilder.translate(pixels / 2.0, pixels / 2.0);
    schilder.scale(pixels / vak, pixels / vak);
    const int bladeren = pixels < klein ? 4 : 7;
    const double dikte = pixels < klein ? 6 : 3;
    for (const int kant : {1, -1}) {
        schilder.save();
        schilder.scale(kant, 1);
        TekenTak(schilder, bladeren, dikte);
        schilder.restore();
    }
    schilder.setPen(QPen(lint, 2 * dikte, Qt::SolidLine, Qt::RoundCap));
    schilder.drawLine(QPointF(-9, straal + 1), QPointF(9, straal + 1));
    return beeld;
}

QIcon Pictogram() { return QIcon(new Kransmachine); }

} // namespace lauwerkrans
