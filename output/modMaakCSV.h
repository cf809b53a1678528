// The list as a text file for a spreadsheet: fields between semicolons, never quoted, CR LF behind
// every line and once more at the end. The rank is a running number, also in a tie.
#pragma once

#include "output/uitvoer.h"

namespace lauwerkrans {

/// Writes the list with a heading per line and tells where the file is, or that it cannot be made;
/// then the error flag is 1 and an earlier file stands as it was.
void MaakCSV_Lijnen(Uitvoer& uitvoer);

/// The same as one running list, with the line letters and the numbers of sessions if the switches
/// say so.
void MaakCSV_Totaal(Uitvoer& uitvoer);

} // namespace lauwerkrans
