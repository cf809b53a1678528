#include "output/bladindeling_tekst.h"

#include <algorithm>

namespace lauwerkrans {

namespace {

/// Baselines nearer than this are one: letters of several sizes beside each other (mm).
constexpr double regelAfstand = 1;

} // namespace

std::string BladAlsTekst(const Blad& blad) {
    std::vector<const BladTekst*> teksten;
    for (const BladTekst& tekst : blad.teksten)
        teksten.push_back(&tekst);
    std::stable_sort(teksten.begin(), teksten.end(),
                     [](const auto* a, const auto* b) { return a->y < b->y; });
    std::string alles;
    for (auto begin = teksten.begin(); begin != teksten.end();) {
        const double y = (*begin)->y;
        const auto eind = std::find_if(
            begin, teksten.end(), [y](const auto* tekst) { return tekst->y >= y + regelAfstand; });
        std::sort(begin, eind, [](const auto* a, const auto* b) { return a->x < b->x; });
        for (; begin != eind; ++begin)
            alles.append((*begin)->tekst).append(begin + 1 == eind ? "\n" : "  ");
    }
    return alles;
}

} // namespace lauwerkrans
