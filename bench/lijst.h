// A list of any length, for the layout of its pages.
#pragma once

#include <cstddef>

#include "output/uitvoer.h"

namespace lauwerkrans::bench {

/// A ranking of so many pairs, in lines of forty.
[[nodiscard]] Uitvoer MaakLijst(std::size_t paren);

} // namespace lauwerkrans::bench
