#include "ui/maten.h"

#include <QFrame>
#include <QRectF>
#include <QVariant>

#include <algorithm>
#include <cmath>

namespace lauwerkrans::maten {

namespace {
constexpr const char* eigenschap = "twips";
} // namespace

QRect Pixels(const Vak& twips) {
    const auto rond = [](double waarde) {
        return static_cast<int>(std::lround(TwipsNaarPixels(waarde)));
    };
    const int links = rond(twips.links);
    const int boven = rond(twips.boven);
    return {links, boven, rond(twips.links + twips.breedte) - links,
            rond(twips.boven + twips.hoogte) - boven};
}

QSize Buitenmaat(QSize binnen) {
    return Pixels({0, 0, PixelsNaarTwips(binnen.width()) + kaderBreedte,
                   PixelsNaarTwips(binnen.height()) + kaderHoogte})
        .size();
}

QSize Binnenmaat(double breedte, double hoogte) {
    return Pixels({0, 0, breedte - kaderBreedte, hoogte - kaderHoogte}).size();
}

QRect BinnenScherm(QRect buiten, const QRect& vrij) {
    buiten.setSize(buiten.size().boundedTo(vrij.size()));
    buiten.moveLeft(std::clamp(buiten.left(), vrij.left(), vrij.right() - buiten.width() + 1));
    buiten.moveTop(std::clamp(buiten.top(), vrij.top(), vrij.bottom() - buiten.height() + 1));
    return buiten;
}

void Plaats(QWidget& element, const Vak& twips) {
    element.setProperty(eigenschap, QRectF(twips.links, twips.boven, twips.breedte, twips.hoogte));
    const auto* paneel = qobject_cast<const QFrame*>(element.parentWidget());
    const QPoint begin = paneel == nullptr ? QPoint() : paneel->contentsRect().topLeft();
    element.setGeometry(Pixels(twips).translated(begin));
}

Vak PlaatsVan(const QWidget& element) {
    const QRectF twips = element.property(eigenschap).toRectF();
    return {twips.x(), twips.y(), twips.width(), twips.height()};
}

int SchuifMaximum(double inhoud, double zicht, double extra) {
    if (inhoud <= zicht) return 0;
    return std::max(0, static_cast<int>(std::nearbyint(inhoud + extra - zicht)));
}

} // namespace lauwerkrans::maten
