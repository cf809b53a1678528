// Draws a laid-out page on any surface: the same routine for printer, PDF and preview, with only
// the scale as a difference.
#pragma once

#include <QPainter>

#include "output/bladindeling.h"

namespace lauwerkrans {

/// The width of a text in millimetres, from the unhinted widths of the font that draws it.
[[nodiscard]] double MeetBladtekst(const std::string& tekst, const Letter& letter);

/// Draws a page from the painter's origin, in black, at `schaal` units of the painter per
/// millimetre.
void TekenBlad(QPainter& schilder, const Blad& blad, double schaal);

} // namespace lauwerkrans
