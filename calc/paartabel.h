// `PaarTabel`: one row per pair with the session scores that were read, in the order in which the
// pairs first appear.
#pragma once

#include <vector>

#include "calc/lijnen.h"
#include "calc/resultaat.h"
#include "data/rondeinfo.h"
#include "data/zitregels.h"

namespace lauwerkrans {

struct PaarTabel {
    std::vector<PaarRij> paren;
    std::vector<ZittingCel> cellen; // each pair's slice in the order of the sessions
};

/// Gathers the score rows per pair. Per line the same two members are a pair of each line they
/// played in; over all lines one pair, with the letter of its first row. A later row of the same
/// pair and session replaces an earlier one. A round out of competition counts as score 0 with 0
/// boards unless the option says that it counts. Throws Fout (PercentageGeenGetal).
[[nodiscard]] PaarTabel MaakPaarTabel(const ZitRegels& zitRegels, const RondeInfo& rondeInfo,
                                      const Opties& opties);

} // namespace lauwerkrans
