// The system's high contrast: for who asks for it, its few colours take the place of ours.
#pragma once

#include <QPalette>

#include <optional>

namespace lauwerkrans {

/// The colours of the desktop when it asks for high contrast: Windows says so itself; elsewhere a
/// desktop does when its windows are wholly black on white or white on black. To be asked before
/// ZetStijl, which replaces the desktop's colours.
[[nodiscard]] std::optional<QPalette> HoogContrast();

/// A palette of high contrast from the desktop's: planes, letters and what is chosen keep their
/// colours, every border gets that of the letters.
[[nodiscard]] QPalette HoogContrastPalet(const QPalette& bureaublad);

} // namespace lauwerkrans
