#include "output/bladindeling_totaal.h"

#include <algorithm>
#include <utility>

namespace lauwerkrans {

namespace {

using namespace bladmaat;

constexpr double lijstTop = boven + titelblok; // the column header
constexpr double rijenTop = lijstTop + kolomkop;
constexpr double boveStreep = 0.4; // a rule stands this far above the next row

constexpr double Kolom(std::size_t nummer) { return links + kolommenTotaal.at(nummer - 1); }

std::size_t AantalRijen(const std::shared_ptr<const Uitslag>& uitslag) {
    return uitslag ? uitslag->resultaat.rijen.size() : 0;
}

} // namespace

double LangBladHoogte(std::size_t rijen) {
    const double nodig = static_cast<double>(rijen + 2) * rij + boven + titelblok + kolomkop + voet;
    return std::max(a4Hoogte, nodig);
}

BladenTotaal::BladenTotaal(Uitvoer uitvoer, double hoogte)
    : uitvoer_(std::move(uitvoer)), hoogte_(hoogte), rijen_(AantalRijen(uitvoer_.uitslag)),
      opBlad_(RijenOpBlad(rijenTop, hoogte)) {}

BladenTotaal::BladenTotaal(Uitvoer uitvoer)
    : uitvoer_(std::move(uitvoer)), hoogte_(LangBladHoogte(AantalRijen(uitvoer_.uitslag))),
      rijen_(AantalRijen(uitvoer_.uitslag)), opBlad_(std::max<std::size_t>(rijen_, 1)) {}

std::size_t BladenTotaal::aantal() const { return AantalBladen(rijen_, opBlad_); }

Blad BladenTotaal::blad(std::size_t nummer, const Meting& meting, const Uitsnede& deel) const {
    Bladzetter zetter(meting);
    zetter.kader(uitvoer_, hoogte_, nummer);
    zetKolomkop(zetter);
    const std::size_t eerste = (nummer - 1) * opBlad_ + 1;
    const std::size_t laatste = std::min(rijen_, nummer * opBlad_);
    for (std::size_t i = eerste; i <= laatste; ++i) {
        const double y = rijenTop + static_cast<double>(i - eerste) * rij;
        if (y - boveStreep > deel.tot) break; // a row begins at the rule above it
        if (y + rij >= deel.van) zetRij(zetter, i, y);
    }
    return zetter.klaar();
}

void BladenTotaal::zetKolomkop(Bladzetter& zetter) const {
    constexpr Letter vet{10, true};
    const double basis = Bladzetter::midden(lijstTop, kolomkop - boveStreep, vet);
    zetter.tussen(Kolom(1), Kolom(2), basis, "Rang", vet);
    zetter.links(Kolom(2) + 1, basis, toonLijn() ? "    Paar" : "Paar", vet);
    if (toonZittingen()) zetter.tussen(Kolom(3), Kolom(4), basis, "Zittingen", vet);
    zetter.tussen(Kolom(4), Kolom(5), basis, "Perc", vet);
    zetter.streep(lijstTop);
    zetter.streep(rijenTop - boveStreep);
}

void BladenTotaal::zetRij(Bladzetter& zetter, std::size_t nummer, double y) const {
    constexpr Letter gewoon{10, false};
    const ResultaatTabel& resultaat = uitvoer_.uitslag->resultaat;
    const double basis = Bladzetter::midden(y - boveStreep, rij, gewoon);
    std::string paar = resultaat.cel(nummer, 3);
    if (toonLijn()) paar.insert(0, resultaat.cel(nummer, 1) + "   ");
    zetter.tussen(Kolom(1), Kolom(2), basis, resultaat.cel(nummer, 2), gewoon);
    zetter.links(Kolom(2), basis, std::move(paar), gewoon, Kolom(3) - Kolom(2));
    if (toonZittingen()) {
        zetter.tussen(Kolom(3), Kolom(4), basis, resultaat.cel(nummer, 4), gewoon);
    }
    zetter.tussen(Kolom(4), Kolom(5), basis,
                  BladPercentage(resultaat.rijen.at(nummer - 1).gemiddelde), gewoon);
    zetter.streep(y + rij - boveStreep);
}

} // namespace lauwerkrans
