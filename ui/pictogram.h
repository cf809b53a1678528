// The program's picture: a laurel wreath, drawn for every size by itself.
#pragma once

#include <QIcon>
#include <QPixmap>

namespace lauwerkrans {

/// The wreath as a square picture of so many device pixels.
[[nodiscard]] QPixmap Krans(int pixels);

/// The icon of the windows, in all usual sizes.
[[nodiscard]] QIcon Pictogram();

} // namespace lauwerkrans
