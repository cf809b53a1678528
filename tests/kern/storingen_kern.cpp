#include "storingen_kern.h"

#include "app/modMappen.h"
#include "data/fout.h"
#include "data/modORV_compbums.h"
#include "data/modORV_compdata.h"
#include "data/modORV_leden.h"
#include "data/modORV_rondedata.h"
#include "data/tekstbestand.h"

namespace lauwerkrans::proef::storingen {

KernSessie::KernSessie(const std::string& programmaMap) : programmaMap_(programmaMap) {
    algemeen_.meld = [this](const Melding& melding) { meldingen_.push_back(melding); };
}

void KernSessie::bewaak(const std::function<void()>& stap) {
    try {
        stap();
    } catch (const Fout& fout) {
        algemeen_.meld({FoutTekst(fout), Icoon::Uitroep});
    }
}

bool KernSessie::start() {
    instellingen_.bestand = InstellingenPad(programmaMap_);
    LeesInstellingen(instellingen_, algemeen_);
    OverigeMappen overig;
    try {
        LeesMappenIni(algemeen_, overig, programmaMap_);
    } catch (const Fout& fout) {
        algemeen_.meld({FoutTekst(fout), Icoon::Uitroep});
        return false;
    }
    if (algemeen_.ActieveCompetitie.empty()) {
        algemeen_.meld({"U hebt nog geen competitie(-zitting) gekozen.", Icoon::Uitroep});
    } else {
        laad();
    }
    return true;
}

void KernSessie::laad() {
    algemeen_.competitie = VoegPad(algemeen_.CompetitieMap, algemeen_.ActieveCompetitie);
    LeesCompData(algemeen_);
    bewaak([this] { BouwRondeInfo(algemeen_); });
    try {
        algemeen_.LijnTabel = LeesLijnTabel(algemeen_.competitie);
    } catch (const Fout& fout) {
        stand_.lijnenBekend = false;
        algemeen_.meld(RondeDataFout(algemeen_.competitie));
    }
    LeesLeden(algemeen_);
    LeesCompBums(algemeen_);
    const IniWaarden waarden = VerwerkIniVariabelen(instellingen_, algemeen_.LijnTabel.rijen());
    for (std::size_t i = 0; i < stand_.vinkjes.size(); ++i)
        stand_.vinkjes.at(i) = waarden.vinkjes.at(i).value_or(false);
    stand_.criteria.resize(algemeen_.LijnTabel.rijen());
    for (const auto& [lijn, tekst] : waarden.criteria)
        stand_.criteria.at(lijn - 1) = tekst;
    opties_ = {stand_.vinkjes[0], stand_.vinkjes[1], stand_.vinkjes[2], stand_.vinkjes[3]};
}

void KernSessie::bereken() {
    if (algemeen_.competitie.empty()) return;
    bewaak([this] {
        uitslag_ = Bereken(algemeen_, AlleLijnen(algemeen_.LijnTabel), stand_.criteria, opties_);
    });
}

void KernSessie::sluit() {
    if (algemeen_.competitie.empty()) return;
    bewaak([this] { SchrijfInstellingen(instellingen_, stand_); });
}

std::string KernSessie::lijst() const {
    if (!uitslag_) return geenLijst;
    std::string tekst;
    for (std::size_t rij = 1; rij <= uitslag_->resultaat.rijen.size(); ++rij) {
        for (std::size_t kolom = 1; kolom <= 5; ++kolom)
            tekst.append(uitslag_->resultaat.cel(rij, kolom)).append(kolom < 5 ? "|" : "\n");
    }
    return tekst;
}

std::string KernSessie::instellingen() const {
    std::string tekst = instellingen_.KopTekst;
    for (const bool vinkje : stand_.vinkjes)
        tekst += vinkje ? "1" : "0";
    for (const std::string& criterium : stand_.criteria)
        tekst += "|" + criterium;
    return tekst;
}

} // namespace lauwerkrans::proef::storingen
