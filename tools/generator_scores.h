// Scores as pairs scoring gives them: match points on every board, in a line 50 % on average.
#pragma once

#include <map>
#include <span>
#include <vector>

#include "tools/generator_opstelling.h"
#include "tools/generator_suite.h"
#include "tools/generator_toeval.h"

namespace lauwerkrans::generator {

/// The movement of an evening: rounds at the table and boards in each.
struct Schema {
    int beurten;
    int perBeurt;
};

/// A player's strength by member number, in thousandths of a percent above or below the middle.
using Krachten = std::map<int, int>;

/// Draws a strength for every member of the club.
[[nodiscard]] Krachten TrekKrachten(Toeval& toeval);

/// The scores of the pairs of one line in a session, in the order given. With an odd number of
/// pairs some sit out once and play fewer boards. Every score lies between 30 and 70 %.
[[nodiscard]] std::vector<ScoreRegel> LijnScores(std::span<const Plaats> paren, Schema schema,
                                                 const Krachten& krachten, Toeval& toeval);

/// Two regular pairs, by their first and second member as `Indeling` has them.
struct Gelijken {
    Plaats eerste;
    Plaats tweede;
};

/// Gives the second pair exactly the first one's total by a small change in each of its sessions;
/// another pair of the session gives or takes the same. Both played equally many sessions.
void MaakGelijk(std::vector<std::vector<ScoreRegel>>& zittingen, const Gelijken& gelijken);

} // namespace lauwerkrans::generator
