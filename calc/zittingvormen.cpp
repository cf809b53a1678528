#include "calc/zittingvormen.h"

#include <algorithm>
#include <cstdlib>

namespace lauwerkrans {

ZittingVormen::ZittingVormen(const ResultaatTabel& tabel) : gezien_(tabel.zittingen) {
    for (const PaarRij& rij : tabel.rijen) {
        for (std::size_t i = 0; i < rij.aantalCellen; ++i)
            kijk(tabel.cellen[rij.eersteCel + i]);
    }
}

/// Percentages have two digits before the comma, or the three of 100; boards two to ten and perhaps
/// a sign: 37 shapes with that of the dash.
std::size_t ZittingVormen::vorm(const ZittingCel& cel) {
    constexpr std::int32_t honderd = 100'000;
    if (cel.streep) return 0;
    std::size_t meerCijfers = 0; // than two
    for (std::int64_t rest = std::abs(std::int64_t{cel.spellen}); rest >= 100; rest /= 10)
        ++meerCijfers;
    return 1 + meerCijfers * 4 + (cel.spellen < 0 ? 2 : 0) + (cel.duizendsten >= honderd ? 1 : 0);
}

void ZittingVormen::kijk(const ZittingCel& cel) {
    const std::size_t nummer = vorm(cel);
    gezien_.at(cel.kolom - 1U) |= std::uint64_t{1} << nummer;
    std::string& voorbeeld = voorbeelden_.at(nummer);
    if (voorbeeld.empty()) voorbeeld = cel.tekst();
}

double ZittingVormen::breedste(std::size_t zitting, const Meter& meet) const {
    double breedste = 0;
    for (std::size_t nummer = 0; nummer < vormen; ++nummer) {
        const bool komtVoor = (gezien_.at(zitting - 1) >> nummer & 1U) != 0;
        if (komtVoor) breedste = std::max(breedste, meet(voorbeelden_.at(nummer), false));
    }
    return breedste;
}

} // namespace lauwerkrans
