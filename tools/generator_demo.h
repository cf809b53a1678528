// The two competitions of the demo.
#pragma once

#include <vector>

#include "tools/generator_scores.h"
#include "tools/generator_suite.h"

namespace lauwerkrans::generator {

/// The lines of every session, rounds outermost; none for a session not yet played.
using Zittingen = std::vector<std::vector<ScoreRegel>>;

struct Competitie {
    CompetitieVorm vorm;
    Zittingen zittingen;
    std::vector<std::vector<BumRegel>> bums; // by round, none where a round has no such list
};

/// Five rounds of five sessions in three lines, with everything that a club meets in a season:
/// absences, substitutes, new partnerships, pairs that change lines, pairs out of competition,
/// equal averages in A and C, evenings with more or fewer boards, a score of 0,000 and two
/// sessions not yet played.
[[nodiscard]] Competitie Voorjaar();

/// Two rounds of three sessions with eight pairs in one line, all played.
[[nodiscard]] Competitie Zomer();

/// Now and then writes the partners the other way round, or with blanks around the hyphen.
void Schrijfwijzen(Zittingen& zittingen, Toeval& toeval);

} // namespace lauwerkrans::generator
