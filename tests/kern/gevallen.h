// Competitions of a few score rows that both the program and the plain calculation work out.
#pragma once

#include <string>
#include <vector>

#include "scores.h"

namespace lauwerkrans::proef {

struct Geval {
    std::vector<std::string> ronden; // as in Scores
    std::vector<Score> scores;
    Criteria criteria;
};

/// All combinations of weighted, over all lines and out of competition.
[[nodiscard]] std::vector<Opties> AlleOpties();

/// The cells of the result, row by row, or "geen spellen" when a weighted average has no boards.
[[nodiscard]] std::vector<std::string> VolgensProgramma(const Geval& geval, const Opties& opties);
[[nodiscard]] std::vector<std::string> VolgensNaief(const Geval& geval, const Opties& opties);

/// A competition from a seed: the same seed gives the same one.
[[nodiscard]] Geval WillekeurigGeval(unsigned zaad);

/// The rows of a case, to print when it fails.
[[nodiscard]] std::string Beschrijving(const Geval& geval);

} // namespace lauwerkrans::proef
