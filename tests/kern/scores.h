// Score rows made in memory, as the readers would have made them, and results as plain texts.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "calc/lijnen.h"
#include "calc/resultaat.h"
#include "data/rondeinfo.h"
#include "data/zitregels.h"

namespace lauwerkrans::proef {

/// One line of a percentage file.
struct Score {
    char lijn = 'A';
    std::uint32_t lid1 = 1;
    std::uint32_t lid2 = 2;
    std::uint8_t ronde = 1;
    std::uint8_t zitting = 1;
    std::string percentage;
    std::int32_t spellen = 24;
    bool bum = false;
};

/// The rounds of a competition and its score rows. Members 1 to 99 are called "Lid 1" and so on.
struct Scores {
    /// `ronden`: per round a mark for each session, "101" when only the second was not played.
    Scores(const std::vector<std::string>& ronden, const std::vector<Score>& scores);

    RondeInfo rondeInfo;
    ZitRegels zitRegels;
};

/// Calculates with the same options in every test that says nothing else.
[[nodiscard]] ResultaatTabel Bereken(const Scores& scores, const Criteria& criteria,
                                     const Opties& opties = {});

/// Columns 1 to 5 + S of every row up to the table's bound, joined by "|".
[[nodiscard]] std::vector<std::string> Rijen(const ResultaatTabel& resultaat);

/// The same without the session cells: "A|(1)|Lid 1 - Lid 2|3|57,125".
[[nodiscard]] std::vector<std::string> Stand(const ResultaatTabel& resultaat);

} // namespace lauwerkrans::proef
