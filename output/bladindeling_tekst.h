// A laid-out page as plain text, for those who hear it.
#pragma once

#include <string>

#include "output/bladindeling.h"

namespace lauwerkrans {

/// The texts of a page from top to bottom: what stands on one baseline is a line, from left to
/// right with two blanks between; lines end with "\n".
[[nodiscard]] std::string BladAlsTekst(const Blad& blad);

} // namespace lauwerkrans
