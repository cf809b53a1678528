// Lengths. Frames and controls are placed in twips (1/1440 inch), the contents of the scrolling
// panels in millimetres; logical pixels (1/96 inch) appear only where the toolkit is called. The
// platform's scaling makes device pixels of them.
#pragma once

#include <QRect>
#include <QWidget>

namespace lauwerkrans {

/// A place in a container: left, top, width, height, all in one unit.
struct Vak {
    double links = 0;
    double boven = 0;
    double breedte = 0;
    double hoogte = 0;

    bool operator==(const Vak&) const = default;
};

namespace maten {

constexpr double twipsPerPixel = 15.0;
constexpr double mmPerPixel = 25.4 / 96.0;

[[nodiscard]] constexpr double TwipsNaarPixels(double twips) { return twips / twipsPerPixel; }
[[nodiscard]] constexpr double PixelsNaarTwips(double pixels) { return pixels * twipsPerPixel; }
[[nodiscard]] constexpr double MmNaarPixels(double mm) { return mm / mmPerPixel; }
[[nodiscard]] constexpr double PixelsNaarMm(double pixels) { return pixels * mmPerPixel; }
[[nodiscard]] constexpr double TwipsNaarMm(double twips) { return twips * 25.4 / 1440.0; }

/// A place in twips as whole pixels: round(left), round(top), round(right) - left, round(bottom)
/// - top, so that what touches in twips touches in pixels.
[[nodiscard]] QRect Pixels(const Vak& twips);

/// What a window's frame and title bar take of its outer size, on every system (twips).
constexpr double kaderBreedte = 85;
constexpr double kaderHoogte = 440;

/// The size of a window with its frame and title bar, from that of its client area; both in pixels.
[[nodiscard]] QSize Buitenmaat(QSize binnen);

/// The client area of a window of this outer size (twips), in pixels.
[[nodiscard]] QSize Binnenmaat(double breedte, double hoogte);

/// A window's outer place, made smaller where the free area of the screen is smaller, and moved so
/// that it lies wholly within that area; in pixels.
[[nodiscard]] QRect BinnenScherm(QRect buiten, const QRect& vrij);

/// Puts a control at its place in twips within its container's border and remembers those.
void Plaats(QWidget& element, const Vak& twips);

/// The place in twips that a control was given last.
[[nodiscard]] Vak PlaatsVan(const QWidget& element);

/// The largest value of a scroll bar: what of the content lies outside the viewport, plus `extra`,
/// all in one unit; rounded half to even. 0 when the content fits.
[[nodiscard]] int SchuifMaximum(double inhoud, double zicht, double extra);

} // namespace maten
} // namespace lauwerkrans
