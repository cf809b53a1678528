// The lists CompBums.txt of pairs that play a round out of competition, one in each round's
// folder, in list format: number of rows, number of fields a row, then the rows. Of a row: field 4
// and 5 the member numbers right-aligned in 6 characters, field 6 "BUM" in any letter case.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "data/modAlgemeen.h"
#include "data/ronde_mappen.h"

namespace lauwerkrans {

/// Reads the lists of all rounds. Cell: round "00", ",", field 4, ",", field 5, ",", field 6. A
/// malformed or unreadable file is passed over without a message.
[[nodiscard]] Rij LeesCompBums(const RondeMappen& mappen);

/// The same into `algemeen.BumLijst`. A round's folder that cannot be listed leaves it empty.
void LeesCompBums(Algemeen& algemeen);

/// Answers which pairs play a round out of competition.
class BumZoeker {
public:
    explicit BumZoeker(const Rij& bumLijst);

    /// `lid1` <= `lid2`: the two member numbers of the pair's key.
    [[nodiscard]] bool heeft(std::size_t ronde, std::uint32_t lid1, std::uint32_t lid2) const;

private:
    using Paar = std::pair<std::uint32_t, std::uint32_t>;
    std::vector<std::vector<Paar>> perRonde_; // sorted
};

} // namespace lauwerkrans
