// Who sits where in a session of the club's competition: regular pairs, changes between rounds,
// absences, substitutes.
#pragma once

#include <cstddef>
#include <vector>

#include "tools/generator_suite.h"
#include "tools/generator_toeval.h"

namespace lauwerkrans::generator {

/// A session of a competition; both count from 1.
struct Moment {
    int ronde;
    int zitting;

    friend bool operator==(const Moment&, const Moment&) = default;
};

/// A seat: the pair `nummer` of line `lijn`, and the members who take it.
struct Plaats {
    char lijn;
    int nummer;
    int lid1;
    int lid2;
};

/// The number of pairs of the lines A, B and C.
[[nodiscard]] std::vector<int> ParenPerLijn();

/// The regular pairs of a round, line after line, by number. From round 3 on two pairs of line B
/// have exchanged partners; from round 4 on B1 has taken the place of A12 and the other way round.
[[nodiscard]] std::vector<Plaats> Indeling(int ronde);

/// The place of a seat in the list of `Indeling`, from 0.
[[nodiscard]] std::size_t Volgnummer(char lijn, int nummer);

/// The pairs that play a session, in the order of `Indeling`. A pair stays away as a whole, or one
/// player does: then the other plays with another single player of the line, with a reserve, or
/// not at all.
[[nodiscard]] std::vector<Plaats> Opstelling(Moment moment, Toeval& toeval);

} // namespace lauwerkrans::generator
