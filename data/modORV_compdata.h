// The competition file CompData.txt, in list format: 7 text fields, a count n, n fields, R
// (rounds), Z (sessions per round), K (items per session), then R x Z x K text fields, item
// innermost.
#pragma once

#include <string>

#include "data/modAlgemeen.h"

namespace lauwerkrans {

/// Most rounds and sessions per round: their numbers have two digits in the row code.
constexpr int meesteRonden = 99;

/// Reads the bounds and cells of `algemeen.competitie` into `algemeen.compTabel`. A missing file
/// sets LeesFout 2, any other error 1, each with its message; what was read so far stays.
void LeesCompData(Algemeen& algemeen);

/// Makes `algemeen.rondeInfo` from the files that are there; none is opened. Throws Fout when a
/// round's folder cannot be read.
void BouwRondeInfo(Algemeen& algemeen);

} // namespace lauwerkrans
