// The championship calculation: from score rows to the ranking.
//
// A session cell without a score (0 after rounding to three decimals, the text "00,000") neither
// counts as a session nor enters the average.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "calc/lijnen.h"
#include "calc/resultaat.h"
#include "data/rondeinfo.h"
#include "data/zitregels.h"

namespace lauwerkrans {

/// A percentage text in thousandths of a percent: the first comma is taken out and the rest read
/// as a number (57,125 gives 57125; 5,5 gives 55; empty gives 0).
[[nodiscard]] float PercNaarDuizendsten(std::string_view tekst);

/// The text "00.000" of an average held in single precision.
[[nodiscard]] std::string GemiddeldeTekst(float gemiddelde);

/// Calculates the ranking of the given score rows, and lets go of them on the way. `criteria` also
/// says which lines the ranks per line run over. Throws Fout: a percentage that is no number, a
/// line without a usable criterion, boards that do not fit 16 bits or add up to 0 in a weighted
/// average.
[[nodiscard]] ResultaatTabel BerekenKampioenen(ZitRegels zitRegels, const RondeInfo& rondeInfo,
                                               const Criteria& criteria, const Opties& opties);

/// Numbers the rows of each line 1, 2, 3, ... in table order, line after line, and marks ties.
void RangPerLijn(ResultaatTabel& resultaat, std::size_t lijnen);

/// Numbers all rows 1, 2, 3, ... in table order and marks ties.
void RangAlleLijnen(ResultaatTabel& resultaat);

/// `RangTabel`: rank and average of the pairs that are ranked at once, in order.
struct RangRij {
    std::uint32_t rang = 0;
    std::int32_t gemiddelde = 0; // thousandths: equal exactly when the three-decimal texts are
    bool gelijk = false;
};
using RangTabel = std::vector<RangRij>;

/// Gives every group of rows with the same average the rank of its first row, marked as a tie:
/// 60,000 58,500 58,500 58,500 55,000 get 1 (2) (2) (2) 5.
void MarkeerGelijken(RangTabel& rangTabel);

/// Replaces every session cell without a score by "-".
void MarkeerNulScores(ResultaatTabel& resultaat);

} // namespace lauwerkrans
