#include "calc/lijnen.h"

#include "data/fout.h"
#include "data/getallen.h"

namespace lauwerkrans {

std::string AlleLijnen(const Tabel& lijnTabel) {
    std::string letters;
    for (std::size_t i = 1; i <= lijnTabel.rijen(); ++i) {
        letters += LijnLetter(static_cast<std::size_t>(HeelGetal(lijnTabel.cel(i, 1)).value_or(0)));
    }
    return letters;
}

std::string LijnenVanRij(const Tabel& lijnTabel, std::size_t rij) {
    return rij == 0 ? AlleLijnen(lijnTabel) : std::string(1, LijnLetter(rij));
}

std::int32_t Minimum(const Criteria& criteria, char lijn) {
    constexpr std::int64_t hoogste = 32767;
    const std::size_t nummer = LijnNummer(lijn);
    const auto minimum = nummer >= 1 && nummer <= criteria.size()
                             ? Cijfers(criteria[nummer - 1], hoogste)
                             : std::nullopt;
    if (!minimum) {
        Fout fout(FoutSoort::Criterium);
        fout.tekst = lijn;
        throw fout;
    }
    return static_cast<std::int32_t>(*minimum);
}

std::string TeHoogTekst(const std::string& criterium, const std::string& lijn) {
    if (LeidendGetal(criterium) <= meesteMinimum) return {};
    return InMelding(criterium) + " aantal zittingen bij lijn " + lijn + " niet goed! Maximaal 20";
}

} // namespace lauwerkrans
