#include "lijst.h"

#include <stdexcept>

namespace lauwerkrans::bench {

Uitvoer MaakLijst(std::size_t paren) {
    constexpr std::size_t perLijn = 40;
    constexpr std::size_t letters = 26;
    auto uitslag = std::make_shared<Uitslag>();
    auto leden = std::make_shared<LedenNamen>(static_cast<std::int64_t>(2 * paren));
    uitslag->criteria.assign(letters, "13");
    for (std::size_t i = 0; i < paren; ++i) {
        PaarRij rij;
        rij.lid1 = static_cast<std::uint32_t>(2 * i + 1);
        rij.lid2 = rij.lid1 + 1;
        rij.zittingen = 14;
        rij.gemiddelde = static_cast<std::int32_t>(70'000 - i);
        rij.rang = static_cast<std::uint32_t>(i % perLijn + 1);
        rij.lijn = static_cast<char>('A' + i / perLijn % letters);
        const std::string nummer = std::to_string(i);
        if (!leden->zet(rij.lid1, "Annemarie van den Berg " + nummer) ||
            !leden->zet(rij.lid2, "Willem-Jan Hoogendoorn " + nummer))
            throw std::out_of_range("MaakLijst");
        uitslag->resultaat.rijen.push_back(rij);
    }
    uitslag->resultaat.bovengrens = paren;
    uitslag->resultaat.leden = leden;
    Uitvoer uitvoer;
    uitvoer.KopTekst = "Lauwerkrans";
    uitvoer.uitslag = uitslag;
    uitvoer.ToonLijnen = 1;
    uitvoer.ToonZittingen = 1;
    return uitvoer;
}

} // namespace lauwerkrans::bench
