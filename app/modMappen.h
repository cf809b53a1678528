// The suite's folder configuration "Mappen.ini": one "KEY=value" a line, the key 6 letters in any
// case. It is read once and never written.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "data/modAlgemeen.h"

namespace lauwerkrans {

/// The values that the suite keeps beside its folders; read and kept, not used further.
struct OverigeMappen {
    std::string ZITMAP, ADMMAP, INDMAP, SPEMAP, ACTZIT, SCHETY, SPINDE, RODAFI, ROSPFI, ZINFOF,
        ZSPEFI;
    std::int16_t ONELIN = 0, INDIVI = 0, WIJZOK = 0, COMPET = 0, ACTCRO = 0, ACTCZI = 0, INDIPL = 0;
    std::string naam = "(naam ontbreekt)";
    std::int16_t standaard = 230;
};

/// The path of Mappen.ini for a program folder (no separator at its end): in the parent folder when
/// the program has a folder of its own in the suite's, that is when the path contains "lauwr" or
/// its last name "lauwer", in any letter case; else in the program folder itself.
[[nodiscard]] std::string MappenIniPad(std::string_view programmaMap);

/// Reads Mappen.ini into `algemeen` and `overig`. A key that is missing leaves its value as it was.
/// Throws Fout (BestandNietLeesbaar).
void LeesMappenIni(Algemeen& algemeen, OverigeMappen& overig, std::string_view programmaMap);

} // namespace lauwerkrans
