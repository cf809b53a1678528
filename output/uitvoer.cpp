#include "output/uitvoer.h"

#include "app/modInstellingen.h"
#include "data/fout.h"

namespace lauwerkrans {

std::vector<Uitvoerregel> Uitvoerregels(const Uitvoer& uitvoer) {
    std::vector<Uitvoerregel> regels;
    if (!uitvoer.uitslag) return regels;
    const ResultaatTabel& resultaat = uitvoer.uitslag->resultaat;
    for (std::size_t rij = 1; rij <= resultaat.bovengrens; ++rij) {
        std::string lijn = resultaat.cel(rij, 1);
        if (lijn.empty()) continue;
        regels.push_back({std::move(lijn), resultaat.cel(rij, 2), resultaat.cel(rij, 3),
                          resultaat.cel(rij, 4), resultaat.cel(rij, 5)});
    }
    return regels;
}

std::string Criterium(const Uitvoer& uitvoer, const std::string& lijn) {
    return uitvoer.uitslag->criteria.at(LijnNummer(lijn.at(0)) - 1);
}

bool OverAlleLijnen(const Uitvoer& uitvoer) {
    return uitvoer.uitslag ? uitvoer.uitslag->opties.gemAlleLijnen : uitvoer.leegOverAlleLijnen;
}

std::string Uitvoernaam(const Uitvoer& uitvoer, std::string_view extensie) {
    return std::string("Lauwr_")
        .append(MaakBestandsnaam(uitvoer.InstellingPrefix))
        .append("_Lijn")
        .append(uitvoer.uitslag ? uitvoer.uitslag->GekozenLijnen : "")
        .append(extensie);
}

Melding NietTeMaken(const std::string& naam) {
    return {"Het bestand '" + naam + "' kan niet worden gemaakt!", Icoon::Uitroep};
}

bool Geschreven(Uitvoer& uitvoer, const std::string& naam, const std::function<void()>& schrijf) {
    try {
        schrijf();
    } catch (const Fout&) {
        uitvoer.fout = 1;
        uitvoer.meld(NietTeMaken(naam));
        return false;
    }
    return true;
}

} // namespace lauwerkrans
