// The lines of a competition (its playing groups "A", "B", ...), their criteria and the options of
// a calculation.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "data/tabel.h"

namespace lauwerkrans {

/// Line number and letter belong together: "A" is 1.
[[nodiscard]] constexpr char LijnLetter(std::size_t nummer) {
    return static_cast<char>('A' + static_cast<int>(nummer) - 1);
}
[[nodiscard]] constexpr std::size_t LijnNummer(char letter) {
    return static_cast<std::size_t>(letter - 'A') + 1;
}

/// The letters of all rows of `LijnTabel` in row order: three lines give ABC.
[[nodiscard]] std::string AlleLijnen(const Tabel& lijnTabel);

/// The letters that "Bereken" and "Controle" choose: all lines for row 0 ("Alle"), else the one of
/// the row.
[[nodiscard]] std::string LijnenVanRij(const Tabel& lijnTabel, std::size_t rij);

/// The texts of the criteria boxes, as typed: element 0 is that of line "A".
using Criteria = std::vector<std::string>;

/// The minimum number of sessions of a line: digits, blanks around them allowed, at most 32767.
/// Throws Fout (Criterium) for any other text.
[[nodiscard]] std::int32_t Minimum(const Criteria& criteria, char lijn);

/// The most sessions that may be asked for.
constexpr int meesteMinimum = 20;

/// The text of the message for a criterion above 20, empty when there is none to give. The number
/// is the leading number of the box.
[[nodiscard]] std::string TeHoogTekst(const std::string& criterium, const std::string& lijn);

struct Opties {
    bool gewogen = false;       // averages weighted by boards
    bool zitDetails = false;    // a column per session in the ranking
    bool gemAlleLijnen = false; // one ranking over all lines together
    bool buiMed = false;        // scores out of competition count too

    bool operator==(const Opties&) const = default;
};

} // namespace lauwerkrans
