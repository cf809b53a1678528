#include "tools/generator_opstelling.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

#include "tools/generator_leden.h"

namespace lauwerkrans::generator {

namespace {

constexpr std::array<int, 3> kParen = {12, 10, 8};
constexpr int kProcentPaarAfwezig = 7;
constexpr int kProcentSpelerAfwezig = 8;

// Pairs whose absences are chosen, not drawn: those that must end level or that carry another
// feature of the demo. The first member's number names the pair.
struct Afwezigheid {
    int lid1;
    std::array<Moment, 3> momenten;
};
constexpr Moment kNooit{0, 0};
constexpr std::array<Afwezigheid, 7> kAfwezig = {{
    {41, {{{1, 4}, {3, 2}, kNooit}}},  // A3, level with A8
    {9, {{{2, 5}, {4, 1}, kNooit}}},   // A8
    {199, {{{2, 1}, kNooit, kNooit}}}, // A12, later B1
    {21, {{{1, 3}, {5, 2}, kNooit}}},  // B1, later A12
    {188, {{{1, 2}, {2, 4}, {4, 5}}}}, // C2, level with C5
    {143, {{{1, 5}, {3, 3}, {5, 1}}}}, // C5
    {160, {{{3, 1}, {4, 2}, kNooit}}}, // C7, the pair with the zero
}};

const Afwezigheid* Gekozen(const Plaats& plaats) {
    const auto gevonden =
        std::find_if(kAfwezig.begin(), kAfwezig.end(),
                     [&](const Afwezigheid& afwezig) { return afwezig.lid1 == plaats.lid1; });
    return gevonden == kAfwezig.end() ? nullptr : &*gevonden;
}

enum class Komst { Beiden, Eerste, Tweede, Niemand };

Komst WieKomt(const Plaats& plaats, Moment moment, Toeval& toeval) {
    if (const Afwezigheid* const gekozen = Gekozen(plaats)) {
        const auto& momenten = gekozen->momenten;
        const bool weg = std::find(momenten.begin(), momenten.end(), moment) != momenten.end();
        return weg ? Komst::Niemand : Komst::Beiden;
    }
    if (toeval.kans(kProcentPaarAfwezig)) return Komst::Niemand;
    if (!toeval.kans(kProcentSpelerAfwezig)) return Komst::Beiden;
    return toeval.kans(50) ? Komst::Eerste : Komst::Tweede;
}

// The reserves, those who come first in front; some evenings one or two are there.
std::vector<int> Reserves(Toeval& toeval) {
    std::vector<int> nummers;
    const std::size_t vast = Indeling(1).size() * 2;
    for (const Lid& lid : Clubleden().subspan(vast))
        nummers.push_back(lid.nummer);
    toeval.hussel(nummers, nummers.size());
    nummers.resize(static_cast<std::size_t>(toeval.tussen(1, 2)));
    return nummers;
}

// The single players find each other, in the seat of the first of the two; who is left over in a
// line asks a reserve.
void Koppel(const std::vector<Plaats>& alleen, std::vector<int>& reserves,
            std::vector<Plaats>& spelend) {
    for (std::size_t i = 0; i < alleen.size(); ++i) {
        Plaats plaats = alleen[i];
        if (i + 1 < alleen.size() && alleen[i + 1].lijn == plaats.lijn) {
            plaats.lid2 = alleen[++i].lid1;
        } else if (!reserves.empty()) {
            plaats.lid2 = reserves.back();
            reserves.pop_back();
        } else {
            continue;
        }
        spelend.push_back(plaats);
    }
}

bool OpVolgorde(const Plaats& links, const Plaats& rechts) {
    return links.lijn != rechts.lijn ? links.lijn < rechts.lijn : links.nummer < rechts.nummer;
}

void RuilPartners(Plaats& links, Plaats& rechts) { std::swap(links.lid2, rechts.lid2); }

void RuilPlaatsen(Plaats& links, Plaats& rechts) {
    std::swap(links.lid1, rechts.lid1);
    std::swap(links.lid2, rechts.lid2);
}

} // namespace

std::vector<int> ParenPerLijn() { return {kParen.begin(), kParen.end()}; }

std::size_t Volgnummer(char lijn, int nummer) {
    const auto einde = kParen.begin() + (lijn - 'A');
    return static_cast<std::size_t>(std::accumulate(kParen.begin(), einde, nummer - 1));
}

std::vector<Plaats> Indeling(int ronde) {
    std::vector<Plaats> plaatsen;
    auto lid = Clubleden().begin();
    char letter = 'A';
    for (const int paren : kParen) {
        for (int nummer = 1; nummer <= paren; ++nummer, lid += 2) {
            plaatsen.push_back({letter, nummer, lid[0].nummer, lid[1].nummer});
        }
        ++letter;
    }
    const auto plaats = [&](char lijn, int nummer) -> Plaats& {
        return plaatsen[Volgnummer(lijn, nummer)];
    };
    if (ronde >= 3) RuilPartners(plaats('B', 3), plaats('B', 6));
    if (ronde >= 4) RuilPlaatsen(plaats('A', 12), plaats('B', 1));
    return plaatsen;
}

std::vector<Plaats> Opstelling(Moment moment, Toeval& toeval) {
    std::vector<Plaats> spelend;
    std::vector<Plaats> alleen;
    for (Plaats plaats : Indeling(moment.ronde)) {
        const Komst komst = WieKomt(plaats, moment, toeval);
        if (komst == Komst::Tweede) std::swap(plaats.lid1, plaats.lid2);
        if (komst == Komst::Beiden) {
            spelend.push_back(plaats);
        } else if (komst != Komst::Niemand) {
            alleen.push_back(plaats);
        }
    }
    std::vector<int> reserves = Reserves(toeval);
    Koppel(alleen, reserves, spelend);
    std::sort(spelend.begin(), spelend.end(), OpVolgorde);
    return spelend;
}

} // namespace lauwerkrans::generator
