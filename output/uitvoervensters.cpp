#include "output/uitvoervensters.h"

#include <utility>

#include "output/bladindeling_leden.h"

namespace lauwerkrans {

Uitvoervensters::Uitvoervensters(Instellingen& instellingen, Uitvoeromgeving omgeving)
    : instellingen_(instellingen), omgeving_(std::move(omgeving)) {}

void Uitvoervensters::cmdPrinten_Click(frmMain& hoofdvenster) {
    if (hoofdvenster.PersoonFilterAan()) {
        PrintZDregels(hoofdvenster);
        hoofdvenster.ledenlijstKlaar(); // printed or cancelled
    } else {
        hoofdvenster.neemKopTekstOver();
        hoofdvenster.berekenZoNodig();
        toonVoorbeeld(hoofdvenster);
    }
}

void Uitvoervensters::PrintZDregels(frmMain& hoofdvenster) const {
    const auto lijst = hoofdvenster.raster().lijst();
    const Printopdracht opdracht{QString::fromStdString(lijst->titel()),
                                 [&lijst](double hoogte) -> std::unique_ptr<Bladen> {
                                     return std::make_unique<BladenLeden>(lijst, hoogte);
                                 }};
    static_cast<void>(DrukAf(opdracht, omgeving_.printers, &hoofdvenster, omgeving_.meld));
}

Uitvoer Uitvoervensters::maakUitvoer(const frmMain& hoofdvenster) const {
    Uitvoer uitvoer;
    uitvoer.uitslag = hoofdvenster.uitslag();
    uitvoer.leegOverAlleLijnen = hoofdvenster.opties().gemAlleLijnen;
    uitvoer.KopTekst = instellingen_.KopTekst;
    uitvoer.InstellingPrefix = instellingen_.InstellingPrefix;
    uitvoer.ToonLijnen = instellingen_.ToonLijnen;
    uitvoer.ToonZittingen = instellingen_.ToonZittingen;
    uitvoer.programmaMap = omgeving_.programmaMap;
    uitvoer.meld = omgeving_.meld;
    return uitvoer;
}

Printvenster& Uitvoervensters::voorbeeldVoor(frmMain& hoofdvenster) {
    if (!hoofdvenster.opties().gemAlleLijnen) {
        if (!perLijn_) perLijn_ = std::make_unique<frmPrinten>(omgeving_.printers);
        return *perLijn_;
    }
    if (!totaal_) {
        totaal_ = std::make_unique<frmPrintenTI>(
            omgeving_.printers, instellingen_,
            [this, &hoofdvenster] { omgeving_.bewaar(hoofdvenster); });
    }
    return *totaal_;
}

void Uitvoervensters::toonVoorbeeld(frmMain& hoofdvenster) {
    Printvenster& voorbeeld = voorbeeldVoor(hoofdvenster);
    voorbeeld.vul(maakUitvoer(hoofdvenster));
    voorbeeld.toonOver(hoofdvenster);
}

void Uitvoervensters::leegLijst() {
    if (perLijn_) perLijn_->leeg();
}

void Uitvoervensters::sluit() {
    if (perLijn_) perLijn_->close();
    if (totaal_) totaal_->close();
}

} // namespace lauwerkrans
