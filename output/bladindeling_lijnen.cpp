#include "output/bladindeling_lijnen.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace lauwerkrans {

namespace {

using namespace bladmaat;

constexpr double begin = boven + titelblok; // of the first block on a page
constexpr double koppen = lijnkop + kolomkop;
constexpr double kleinsteFactor = 0.6;

double BlokHoogte(std::size_t rijen) { return static_cast<double>(rijen) * rij + koppen; }

/// Places blocks one below the other.
class Paginering {
public:
    explicit Paginering(double hoogte) : ruimte_(hoogte - begin - voet) {}

    void plaats(std::size_t eersteRij, std::size_t rijen) {
        const double hoogte = BlokHoogte(rijen);
        if (gevuld_ > 0 && !past(hoogte)) volgendBlad();
        if (past(hoogte)) {
            zet({eersteRij, rijen, blad_, begin + gevuld_, 1}, hoogte);
        } else if (ruimte_ >= kleinsteFactor * hoogte - speling) {
            zet({eersteRij, rijen, blad_, begin, ruimte_ / hoogte}, ruimte_);
        } else {
            verdeel(eersteRij, rijen);
        }
    }

    [[nodiscard]] std::vector<Blok> klaar() { return std::move(blokken_); }

private:
    /// What would end at the foot reserve does not fit.
    [[nodiscard]] bool past(double hoogte) const { return gevuld_ + hoogte < ruimte_ - speling; }

    void volgendBlad() {
        ++blad_;
        gevuld_ = 0;
    }

    void zet(const Blok& blok, double hoogte) {
        blokken_.push_back(blok);
        gevuld_ += hoogte;
    }

    /// A block of more rows than letters of a readable size can hold: in parts of a page each.
    void verdeel(std::size_t eersteRij, std::size_t rijen) {
        const double opBlad = std::ceil((ruimte_ - koppen) / rij - speling) - 1;
        const auto meeste = static_cast<std::size_t>(std::max(1.0, opBlad));
        while (rijen > 0) {
            if (gevuld_ > 0) volgendBlad();
            const std::size_t deel = std::min(rijen, meeste);
            zet({eersteRij, deel, blad_, begin, 1}, BlokHoogte(deel));
            eersteRij += deel;
            rijen -= deel;
        }
    }

    double ruimte_;
    double gevuld_ = 0;
    std::size_t blad_ = 1;
    std::vector<Blok> blokken_;
};

/// x of a column's left edge on the page; columns are counted from 1.
constexpr double Kolom(std::size_t nummer) { return links + kolommenLijnen.at(nummer - 1); }

void ZetKolomkop(Bladzetter& zetter, double y, double factor) {
    const Letter vet{10 * factor, true};
    const double basis = Bladzetter::midden(y, kolomkop * factor, vet);
    zetter.tussen(Kolom(1), Kolom(2), basis, "Rang", vet);
    zetter.links(Kolom(2) + 1, basis, "Paar", vet);
    zetter.tussen(Kolom(3), Kolom(4), basis, "Zittingen", vet);
    zetter.tussen(Kolom(4), Kolom(5), basis, "Perc", vet);
    zetter.streep(y);
    zetter.streep(y + kolomkop * factor);
}

void ZetLijnkop(Bladzetter& zetter, double y, double factor, char lijn, std::int32_t minimum) {
    constexpr double basislijn = 6;
    constexpr double tussenruimte = 3;
    const Letter groot{14 * factor, true};
    const std::string kop{'L', 'i', 'j', 'n', ' ', lijn};
    const double basis = y + basislijn * factor;
    zetter.links(links + 1, basis, kop, groot);
    zetter.links(links + 1 + zetter.breedte(kop, groot) + tussenruimte, basis,
                 "(Minimum=" + std::to_string(minimum) + ")",
                 {10 * factor, false, Lettertype::ArialNarrow});
}

void ZetRij(Bladzetter& zetter, const ResultaatTabel& resultaat, std::size_t nummer, double y,
            double factor) {
    const Letter gewoon{10 * factor, false};
    const double basis = Bladzetter::midden(y, rij * factor, gewoon);
    zetter.tussen(Kolom(1), Kolom(2), basis, resultaat.cel(nummer, 2), gewoon);
    zetter.links(Kolom(2), basis, resultaat.cel(nummer, 3), gewoon, Kolom(3) - Kolom(2));
    zetter.tussen(Kolom(3), Kolom(4), basis, resultaat.cel(nummer, 4), gewoon);
    zetter.tussen(Kolom(4), Kolom(5), basis,
                  BladPercentage(resultaat.rijen.at(nummer - 1).gemiddelde), gewoon);
}

} // namespace

std::vector<std::size_t> RijenPerLijn(const ResultaatTabel& resultaat) {
    std::vector<std::size_t> aantallen(resultaat.rijen.size(), 0);
    std::size_t eerste = 0;
    for (std::size_t i = 0; i < aantallen.size(); ++i) {
        if (resultaat.rijen[i].lijn != resultaat.rijen[eerste].lijn) eerste = i;
        ++aantallen[eerste];
    }
    return aantallen;
}

std::vector<Blok> Pagineer(const std::vector<std::size_t>& rijenPerLijn, double bladHoogte) {
    Paginering paginering(bladHoogte);
    for (std::size_t i = 0; i < rijenPerLijn.size(); ++i) {
        if (rijenPerLijn[i] > 0) paginering.plaats(i + 1, rijenPerLijn[i]);
    }
    return paginering.klaar();
}

BladenLijnen::BladenLijnen(Uitvoer uitvoer, double hoogte)
    : uitvoer_(std::move(uitvoer)), hoogte_(hoogte) {
    if (uitvoer_.uitslag) blokken_ = Pagineer(RijenPerLijn(uitvoer_.uitslag->resultaat), hoogte);
}

std::size_t BladenLijnen::aantal() const { return blokken_.empty() ? 1 : blokken_.back().blad; }

Blad BladenLijnen::blad(std::size_t nummer, const Meting& meting, const Uitsnede& /*deel*/) const {
    Bladzetter zetter(meting);
    zetter.kader(uitvoer_, hoogte_, nummer);
    for (const Blok& blok : blokken_) {
        if (blok.blad == nummer) zetBlok(zetter, blok);
    }
    return zetter.klaar();
}

void BladenLijnen::zetBlok(Bladzetter& zetter, const Blok& blok) const {
    const ResultaatTabel& resultaat = uitvoer_.uitslag->resultaat;
    const char lijn = resultaat.rijen.at(blok.eersteRij - 1).lijn;
    ZetLijnkop(zetter, blok.boven, blok.factor, lijn, Minimum(uitvoer_.uitslag->criteria, lijn));
    ZetKolomkop(zetter, blok.boven + lijnkop * blok.factor, blok.factor);
    double y = blok.boven + koppen * blok.factor;
    for (std::size_t i = 0; i < blok.rijen; ++i) {
        ZetRij(zetter, resultaat, blok.eersteRij + i, y, blok.factor);
        y += rij * blok.factor;
    }
    zetter.streep(y);
}

} // namespace lauwerkrans
