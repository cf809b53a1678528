// The round data file Ronde-1\RondeData.txt, in list format: 7 text fields, then the number of
// lines. Only the first round's file is read: all rounds have the same lines.
#pragma once

#include <string>

#include "data/melding.h"
#include "data/tabel.h"

namespace lauwerkrans {

/// Most lines of a competition: one letter each.
constexpr int meesteLijnen = 26;

/// The path of the round data file of a competition's folder.
[[nodiscard]] std::string RondeDataPad(const std::string& competitie);

/// The message of a round data file that could not be read.
[[nodiscard]] Melding RondeDataFout(const std::string& competitie);

/// Reads the lines as a table (0..L, 0..2): row i holds "i" in column 1 and "1" in column 2.
/// Throws Fout when the file cannot be read or gives no number from 0 to 26.
[[nodiscard]] Tabel LeesLijnTabel(const std::string& competitie);

} // namespace lauwerkrans
