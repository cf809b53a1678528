#include "calc/resultaat.h"

#include <algorithm>
#include <stdexcept>

#include "data/getallen.h"

namespace lauwerkrans {

std::string PercentageTekst(std::int32_t duizendsten) { return Patroon(duizendsten, 3, 2); }

std::string ZittingCel::tekst() const {
    if (streep) return "-";
    return PercentageTekst(duizendsten) + "_" + Patroon(spellen, 0, 2);
}

std::string ZittingCel::uitleg() const {
    if (streep) return "geen score die meetelt";
    const std::string aantal = std::to_string(spellen) + (spellen == 1 ? " spel" : " spellen");
    return aantal + ", " + PercentageTekst(duizendsten) + " %";
}

const ZittingCel* ResultaatTabel::zitting(const PaarRij& rij, std::size_t kolom) const {
    const auto* const begin = cellen.data() + rij.eersteCel;
    const auto* const einde = begin + rij.aantalCellen;
    const auto* const gevonden =
        std::lower_bound(begin, einde, kolom, [](const ZittingCel& cel, std::size_t gezocht) {
            return cel.kolom < gezocht;
        });
    return gevonden != einde && gevonden->kolom == kolom ? gevonden : nullptr;
}

std::string ResultaatTabel::cel(std::size_t rij, std::size_t kolom) const {
    constexpr std::size_t vasteKolommen = 5;
    if (rij > bovengrens || kolom > vasteKolommen + zittingen) {
        throw std::out_of_range("ResultaatTabel");
    }
    if (rij < 1 || kolom < 1 || rij > rijen.size()) return {};
    const PaarRij& paar = rijen[rij - 1];
    switch (kolom) {
    case 1:
        return {paar.lijn};
    case 2:
        return paar.gelijk ? "(" + std::to_string(paar.rang) + ")" : std::to_string(paar.rang);
    case 3:
        return leden->paar(paar.lid1, paar.lid2);
    case 4:
        return std::to_string(paar.zittingen);
    case 5:
        return PercentageTekst(paar.gemiddelde);
    default:
        const ZittingCel* gespeeld = zitting(paar, kolom - vasteKolommen);
        return gespeeld == nullptr ? std::string() : gespeeld->tekst();
    }
}

} // namespace lauwerkrans
