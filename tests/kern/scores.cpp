#include "scores.h"

#include <memory>
#include <stdexcept>

#include "calc/modBereken.h"

namespace lauwerkrans::proef {

namespace {

constexpr int proefLeden = 99;

RondeInfo MaakRonden(const std::vector<std::string>& ronden) {
    std::vector<bool> gespeeld;
    for (const std::string& ronde : ronden) {
        for (const char teken : ronde)
            gespeeld.push_back(teken == '1');
    }
    return {ronden.size(), ronden.empty() ? 0 : ronden.front().size(), gespeeld};
}

std::shared_ptr<const LedenNamen> MaakLeden() {
    auto leden = std::make_shared<LedenNamen>(proefLeden);
    for (int lid = 1; lid <= proefLeden; ++lid) {
        if (!leden->zet(lid, "Lid " + std::to_string(lid))) throw std::out_of_range("MaakLeden");
    }
    return leden;
}

const std::shared_ptr<const LedenNamen>& Leden() {
    static const std::shared_ptr<const LedenNamen> leden = MaakLeden();
    return leden;
}

std::vector<std::string> Kolommen(const ResultaatTabel& resultaat, std::size_t laatste) {
    std::vector<std::string> rijen;
    for (std::size_t rij = 1; rij <= resultaat.bovengrens; ++rij) {
        std::string tekst = resultaat.cel(rij, 1);
        for (std::size_t kolom = 2; kolom <= laatste; ++kolom)
            tekst += "|" + resultaat.cel(rij, kolom);
        rijen.push_back(tekst);
    }
    return rijen;
}

} // namespace

Scores::Scores(const std::vector<std::string>& ronden, const std::vector<Score>& scores)
    : rondeInfo(MaakRonden(ronden)), zitRegels(scores.size(), Leden()) {
    for (const Score& score : scores) {
        ZitRegel regel;
        regel.lijn = score.lijn;
        regel.lid1 = score.lid1;
        regel.lid2 = score.lid2;
        regel.ronde = score.ronde;
        regel.zitting = score.zitting;
        regel.spellen = score.spellen;
        regel.bum = score.bum;
        zitRegels.voegToe(regel, score.percentage);
    }
}

ResultaatTabel Bereken(const Scores& scores, const Criteria& criteria, const Opties& opties) {
    return BerekenKampioenen(scores.zitRegels, scores.rondeInfo, criteria, opties);
}

std::vector<std::string> Rijen(const ResultaatTabel& resultaat) {
    return Kolommen(resultaat, 5 + resultaat.zittingen);
}

std::vector<std::string> Stand(const ResultaatTabel& resultaat) { return Kolommen(resultaat, 5); }

} // namespace lauwerkrans::proef
