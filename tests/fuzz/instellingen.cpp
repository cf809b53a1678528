// The settings file: read, applied and written again.
#include <algorithm>

#include "app/modInstellingen.h"
#include "suite.h"

using namespace lauwerkrans;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* gegevens, std::size_t lengte) {
    const proef::ProefCompetitie& suite = fuzz::Suite();
    suite.map().schrijf("Lauwr.ini", fuzz::Bytes(gegevens, lengte));
    Algemeen algemeen;
    Instellingen instellingen;
    instellingen.bestand = InstellingenPad(suite.map().pad());
    LeesInstellingen(instellingen, algemeen);
    const IniWaarden waarden = VerwerkIniVariabelen(instellingen, 26);
    IniStand stand;
    for (const auto& [lijn, tekst] : waarden.criteria) {
        stand.criteria.resize(std::max(stand.criteria.size(), lijn));
        stand.criteria.at(lijn - 1) = tekst;
    }
    fuzz::Probeer([&] { SchrijfInstellingen(instellingen, stand); });
    return 0;
}
