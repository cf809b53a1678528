#include "tools/generator_scores.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <numeric>

#include "tools/generator_leden.h"

namespace lauwerkrans::generator {

namespace {

constexpr int kMidden = 50000;       // thousandths of a percent
constexpr int kVerst = 19500;        // from the middle, before rounding to match points
constexpr int kBreedteSpeler = 3000; // of a player's strength
constexpr int kBreedteAvond = 4500;  // of the luck of an evening

// Divides by a number above 0 and rounds to the nearest whole number.
int Verdeel(long long teller, int noemer) {
    const long long half = teller < 0 ? -(noemer / 2) : noemer / 2;
    return static_cast<int>((teller + half) / noemer);
}

// The board counts; with an odd number of pairs one pair sits out in every round at the table.
void ZetSpellen(std::vector<ScoreRegel>& regels, Schema schema, Toeval& toeval) {
    for (ScoreRegel& regel : regels)
        regel.spellen = schema.beurten * schema.perBeurt;
    if (regels.size() % 2 == 0) return;
    std::vector<std::size_t> rust(regels.size());
    std::iota(rust.begin(), rust.end(), std::size_t{0});
    toeval.hussel(rust, rust.size());
    rust.resize(std::min(rust.size(), static_cast<std::size_t>(schema.beurten)));
    for (const std::size_t i : rust)
        regels[i].spellen -= schema.perBeurt;
}

// How far each pair ends from 50 %, in thousandths; about 0 on average, none beyond `kVerst`.
std::vector<int> Afwijkingen(std::span<const Plaats> paren, const Krachten& krachten,
                             Toeval& toeval) {
    std::vector<int> rij;
    for (const Plaats& paar : paren) {
        const int kracht = (krachten.at(paar.lid1) + krachten.at(paar.lid2)) / 2;
        rij.push_back(kracht + toeval.klok(kBreedteAvond));
    }
    const int midden = std::accumulate(rij.begin(), rij.end(), 0) / static_cast<int>(rij.size());
    int verst = kVerst;
    for (int& afwijking : rij) {
        afwijking -= midden;
        verst = std::max(verst, std::abs(afwijking));
    }
    for (int& afwijking : rij)
        afwijking = Verdeel(1LL * afwijking * kVerst, verst);
    return rij;
}

// The average of a pair in match points: on a board, one less than there are tables.
int Middenpunten(const ScoreRegel& regel, std::size_t paren) {
    const int tafels = std::max(2, static_cast<int>(paren / 2));
    return regel.spellen * (tafels - 1);
}

// The same in match points above or below a pair's average: whole numbers that add up to 0.
std::vector<int> Punten(const std::vector<ScoreRegel>& regels,
                        const std::vector<int>& afwijkingen) {
    std::vector<int> punten;
    for (std::size_t i = 0; i < regels.size(); ++i) {
        const int midden = Middenpunten(regels[i], regels.size());
        punten.push_back(Verdeel(1LL * afwijkingen[i] * midden, kMidden));
    }
    int som = std::accumulate(punten.begin(), punten.end(), 0);
    for (std::size_t i = 0; som != 0; i = (i + 1) % punten.size()) {
        const int stap = som > 0 ? -1 : 1;
        punten[i] += stap;
        som += stap;
    }
    return punten;
}

bool IsPaar(const ScoreRegel& regel, const Plaats& paar) {
    return (regel.lid1 == paar.lid1 && regel.lid2 == paar.lid2) ||
           (regel.lid1 == paar.lid2 && regel.lid2 == paar.lid1);
}

ScoreRegel* ZoekRegel(std::vector<ScoreRegel>& zitting, const Plaats& paar) {
    for (ScoreRegel& regel : zitting) {
        if (IsPaar(regel, paar)) return &regel;
    }
    return nullptr;
}

struct Stand {
    int totaal = 0;
    int zittingen = 0;
};

Stand StandVan(std::vector<std::vector<ScoreRegel>>& zittingen, const Plaats& paar) {
    Stand stand;
    for (auto& zitting : zittingen) {
        const ScoreRegel* const regel = ZoekRegel(zitting, paar);
        if (regel == nullptr) continue;
        stand.totaal += regel->duizendsten;
        ++stand.zittingen;
    }
    return stand;
}

// The pair of the line nearest to 50 %, neither of the two: there a small change shows least.
ScoreRegel& Tegenhanger(std::vector<ScoreRegel>& zitting, const Gelijken& gelijken) {
    ScoreRegel* beste = nullptr;
    for (ScoreRegel& regel : zitting) {
        if (regel.lijn != gelijken.tweede.lijn || IsPaar(regel, gelijken.eerste) ||
            IsPaar(regel, gelijken.tweede)) {
            continue;
        }
        if (beste == nullptr ||
            std::abs(regel.duizendsten - kMidden) < std::abs(beste->duizendsten - kMidden)) {
            beste = &regel;
        }
    }
    return *beste;
}

} // namespace

Krachten TrekKrachten(Toeval& toeval) {
    Krachten krachten;
    for (const Lid& lid : Clubleden())
        krachten[lid.nummer] = toeval.klok(kBreedteSpeler);
    return krachten;
}

std::vector<ScoreRegel> LijnScores(std::span<const Plaats> paren, Schema schema,
                                   const Krachten& krachten, Toeval& toeval) {
    std::vector<ScoreRegel> regels;
    for (const Plaats& paar : paren) {
        regels.push_back({paar.lijn, paar.nummer, paar.lid1, paar.lid2, kMidden, 0});
    }
    if (regels.empty()) return regels;
    ZetSpellen(regels, schema, toeval);
    const std::vector<int> punten = Punten(regels, Afwijkingen(paren, krachten, toeval));
    for (std::size_t i = 0; i < regels.size(); ++i) {
        const int midden = Middenpunten(regels[i], regels.size());
        regels[i].duizendsten = Verdeel(1LL * kMidden * (midden + punten[i]), midden);
    }
    return regels;
}

void MaakGelijk(std::vector<std::vector<ScoreRegel>>& zittingen, const Gelijken& gelijken) {
    const Stand stand = StandVan(zittingen, gelijken.tweede);
    int tekort = StandVan(zittingen, gelijken.eerste).totaal - stand.totaal;
    int rest = stand.zittingen;
    for (auto& zitting : zittingen) {
        ScoreRegel* const regel = ZoekRegel(zitting, gelijken.tweede);
        if (regel == nullptr) continue;
        const int stap = tekort / rest--; // an equal part of what is left to do
        regel->duizendsten += stap;
        Tegenhanger(zitting, gelijken).duizendsten -= stap;
        tekort -= stap;
    }
}

} // namespace lauwerkrans::generator
