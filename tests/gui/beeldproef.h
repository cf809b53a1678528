// What stands on the screen: the pixels of a control, and what is drawn in them.
#pragma once

#include <QColor>
#include <QImage>
#include <QPixmap>
#include <QRect>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <functional>
#include <vector>

namespace lauwerkrans::proef {

/// The whole pixel of a place in millimetres (1/96 inch).
inline int Pixel(double mm) { return static_cast<int>(std::lround(mm * 96.0 / 25.4)); }

/// A control with its children as it is drawn, one image pixel per logical pixel.
inline QImage Beeld(QWidget& element) {
    return element.grab().toImage().convertToFormat(QImage::Format_ARGB32);
}

/// The smallest rectangle around the pixels that `telt`; empty when there are none.
inline QRect Omtrek(const QImage& beeld, const QRect& vlak,
                    const std::function<bool(QColor)>& telt) {
    QRect omtrek;
    for (int y = vlak.top(); y <= vlak.bottom(); ++y) {
        for (int x = vlak.left(); x <= vlak.right(); ++x) {
            if (telt(beeld.pixelColor(x, y))) omtrek |= QRect(x, y, 1, 1);
        }
    }
    return omtrek;
}

/// How much lighter one colour is than another, from 1 to 21, as the web's guidelines for access
/// measure it; they ask 4.5 of a text.
inline double Contrast(QColor een, QColor ander) {
    const auto deel = [](int kleur) {
        const double waarde = kleur / 255.0;
        return waarde <= 0.04045 ? waarde / 12.92 : std::pow((waarde + 0.055) / 1.055, 2.4);
    };
    const auto helderheid = [&deel](QColor kleur) {
        return 0.2126 * deel(kleur.red()) + 0.7152 * deel(kleur.green()) +
               0.0722 * deel(kleur.blue());
    };
    const double x = helderheid(een);
    const double y = helderheid(ander);
    return (std::max(x, y) + 0.05) / (std::min(x, y) + 0.05);
}

/// Whether a pixel is dark enough to be part of a letter on a light ground.
inline bool IsInkt(QColor kleur) { return kleur.alpha() > 0 && kleur.lightness() < 170; }

/// The ys of the rows of pixels that have one colour from x = `van` to `tot`.
inline std::vector<int> Lijnen(const QImage& beeld, QColor kleur, int van, int tot) {
    std::vector<int> ys;
    for (int y = 0; y < beeld.height(); ++y) {
        bool heel = true;
        for (int x = van; x <= tot && heel; ++x)
            heel = beeld.pixelColor(x, y) == kleur;
        if (heel) ys.push_back(y);
    }
    return ys;
}

} // namespace lauwerkrans::proef
