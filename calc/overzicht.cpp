#include "calc/overzicht.h"

#include <algorithm>
#include <utility>

#include "calc/modBereken.h"

namespace lauwerkrans {

namespace {

void NeemOver(Algemeen& algemeen, const RondeInfo& rondeInfo, Rij&& bumLijst) {
    algemeen.rondeInfo = rondeInfo;
    algemeen.BumLijst = std::move(bumLijst);
}

} // namespace

std::shared_ptr<const Uitslag> Bereken(Algemeen& algemeen, const std::string& lijnen,
                                       const Criteria& criteria, const Opties& opties) {
    Lezing lezing = LeesPercZitBestanden(algemeen, {lijnen, false, {}});
    auto uitslag = std::make_shared<Uitslag>();
    uitslag->GekozenLijnen = lijnen;
    uitslag->criteria = criteria;
    uitslag->opties = opties;
    uitslag->rondeInfo = lezing.rondeInfo;
    uitslag->resultaat =
        BerekenKampioenen(std::move(lezing.zitRegels), lezing.rondeInfo, criteria, opties);
    NeemOver(algemeen, lezing.rondeInfo, std::move(lezing.BumLijst));
    return uitslag;
}

bool Geldt(const Uitslag& uitslag, const Criteria& criteria, const Opties& opties) {
    Opties gelijk = opties;
    gelijk.zitDetails = uitslag.opties.zitDetails; // takes no part in the calculation
    return gelijk == uitslag.opties &&
           std::all_of(uitslag.GekozenLijnen.begin(), uitslag.GekozenLijnen.end(), [&](char lijn) {
               const std::size_t plaats = LijnNummer(lijn) - 1;
               return uitslag.criteria.at(plaats) == criteria.at(plaats);
           });
}

std::shared_ptr<const Controle> Controleer(Algemeen& algemeen, const Selectie& selectie) {
    Lezing lezing = LeesPercZitBestanden(algemeen, selectie);
    auto controle = std::make_shared<Controle>();
    controle->selectie = selectie;
    controle->zitRegels = std::move(lezing.zitRegels);
    NeemOver(algemeen, lezing.rondeInfo, std::move(lezing.BumLijst));
    return controle;
}

} // namespace lauwerkrans
