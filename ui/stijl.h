// The look: one style, one light palette and one family of letters on every system.
#pragma once

#include <QApplication>
#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPalette>
#include <QString>

#include <optional>

namespace lauwerkrans {

namespace kleuren {
constexpr QColor blauw(0, 0, 255);
constexpr QColor rood(255, 0, 0);
constexpr QColor zwart(0, 0, 0);
constexpr QColor wit(255, 255, 255);
constexpr QColor geel(255, 255, 192);
constexpr QColor lichtgroen(192, 255, 192);
constexpr QColor groen(128, 255, 128);
constexpr QColor puurGroen(0, 255, 0);
constexpr QColor venster(240, 240, 240);
constexpr QColor actieveRand(180, 180, 180);
constexpr QColor rand(160, 160, 160);
constexpr QColor uitgeschakeld(108, 108, 108);
constexpr QColor rasterLeeg(200, 200, 200);
constexpr QColor rasterGevuld(210, 210, 210);
} // namespace kleuren

/// A fixed colour as the screen shows it: itself, or in high contrast what the desktop has for this
/// role (a plane, letters, something chosen).
[[nodiscard]] QColor Schermkleur(QColor vast, QPalette::ColorRole rol);

/// The colour of a line's bold cells, by its letter; each has a contrast of at least 4.5:1 on
/// white. After the eighth line they start again. In high contrast that of all letters.
[[nodiscard]] QColor LijnKleur(char letter);

/// The letters of the windows (MS Sans Serif by its scalable successors), in logical pixels: 11
/// are 8.25 points, 16 are 12 points.
[[nodiscard]] QFont Letters(int pixels, bool vet);

/// Gives the application its style, palette and letters; the palette is that of high contrast when
/// there is one.
void ZetStijl(QApplication& toepassing, const std::optional<QPalette>& hoogContrast = {});

/// Background and text of one kind of control, with colours of their own while it is disabled. In
/// high contrast the palette as it is.
[[nodiscard]] QPalette MetKleuren(QPalette palet, QPalette::ColorRole vlak, QColor achtergrond,
                                  QPalette::ColorRole tekst, QColor voorgrond);

/// Draws a line straight across or down, its end included. It is everywhere equally thick:
/// `dikte` logical pixels, rounded down to whole pixels of the screen.
void TrekLijn(QPainter& schilder, QPointF van, QPointF tot, QColor kleur, double dikte = 1);

/// Draws such a line along the inside of a rectangle.
void TrekRand(QPainter& schilder, const QRect& vak, QColor kleur);

/// Condenses the letters of a font in steps of 5 % until `past` says that the text fits, at most to
/// three quarters. Every step is a font of its own, which takes the system time to find at the
/// start.
template <class Past>
[[nodiscard]] QFont Versmald(QFont letters, Past past) {
    constexpr int smalste = 75;
    constexpr int stap = 5;
    for (int rek = 100; rek > smalste && !past(letters); rek -= stap)
        letters.setStretch(rek - stap);
    return letters;
}

} // namespace lauwerkrans
