// The calculation once more, plain and slow: tables of texts, every step over all rows, no code
// of the program. What it gives must be what the program gives.
#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace lauwerkrans::naief {

/// Row 0 and column 0 are not used.
using Tabel = std::vector<std::vector<std::string>>;

/// A weighted average without boards.
struct GeenSpellen : std::runtime_error {
    GeenSpellen() : std::runtime_error("no boards") {}
};

struct Invoer {
    Tabel zitRegels;                                   // 8 columns
    std::vector<std::vector<bool>> gespeeld;           // [round][session], from 1
    const std::map<int, std::string>* leden = nullptr; // by member number
    std::map<std::string, int> minimum;                // by line letter
    bool gewogen = false;
    bool gemAlleLijnen = false;
    bool buiMed = false;
};

/// One row of `zitRegels`; the pair key and the row code are made here.
[[nodiscard]] std::vector<std::string> ZitRij(char lijn, int lid1, int lid2, int ronde, int zitting,
                                              const std::string& percentage, int spellen, bool bum);

/// The result table (0..M, 0..5 + S).
[[nodiscard]] Tabel Bereken(Invoer invoer);

/// The text "00.000" of a decimal text with comma or point, rounded half away from zero.
[[nodiscard]] std::string DrieDecimalen(const std::string& getal);

/// The shortest decimal text that names a single-precision number.
[[nodiscard]] std::string KortsteTekst(float getal);

} // namespace lauwerkrans::naief
