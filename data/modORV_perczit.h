// The percentage files Ronde-<N>\Zitting-<M>\PercZit-<M>.txt: one line per pair, 7 fields in list
// format.
//   3  line letter and the pair's number in that line (A7)
//   4  both member numbers joined by "-" (12-305), blanks around them allowed
//   5  the percentage, with a decimal comma or point
//   6  the number of boards that the pair played
// Blank lines are skipped. A session without the file has not been played.
#pragma once

#include <string>

#include "data/modAlgemeen.h"
#include "data/zitregels.h"

namespace lauwerkrans {

/// Which score rows are read.
struct Selectie {
    std::string GekozenLijnen;     // letters of the lines that take part
    bool PersoonFilterAan = false; // keep only the pairs with a member whose name holds the filter
    std::string PersoonFilter;     // in capitals
};

/// What one reading gives. The sessions with a file are counted and the out-of-competition lists
/// read along with the scores, so that the three always fit together.
struct Lezing {
    ZitRegels zitRegels;
    RondeInfo rondeInfo;
    Rij BumLijst;
};

/// Reads the scores of all played sessions of the chosen competition. A member number that is
/// none gives its message and drops the line; from the hundred-and-first on, one closing message
/// says how many more there were. Tells its progress to `voortgang`. Clears LeesFout and changes
/// nothing else. Throws Fout: a file that cannot be read, a line without 7 fields, more rows than
/// there is room for.
[[nodiscard]] Lezing LeesPercZitBestanden(Algemeen& algemeen, const Selectie& selectie);

} // namespace lauwerkrans
