#include "tools/generator_demo.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>

#include "tools/generator.h"

namespace lauwerkrans::generator {

namespace {

constexpr Moment kLaatste{5, 3}; // the last session played
constexpr Moment kNul{2, 3};     // C7 stopped at the start of this session

// A line of a list of out-of-competition pairs, by the seat in that round.
struct BuitenMededinging {
    int ronde;
    char lijn;
    int nummer;
    std::string_view merk;
};
constexpr std::array<BuitenMededinging, 7> kBuiten = {{
    {2, 'A', 5, "BUM"},
    {2, 'A', 6, ""},
    {2, 'B', 7, "BUM"},
    {2, 'C', 3, ""},
    {4, 'B', 9, "BUM"},
    {4, 'C', 1, ""},
    {4, 'C', 4, "bum"},
}};

CompetitieVorm Vorm() {
    using namespace std::chrono;
    return {demoCompetitie, 5, 5, ParenPerLijn(), sys_days(2026y / January / 12), 7};
}

// Most evenings have 24 boards; some have 28, 20 or 21.
Schema SchemaVan(Moment moment) {
    if (moment == Moment{1, 3} || moment == Moment{4, 1}) return {7, 4};
    if (moment == Moment{2, 2} || moment == Moment{4, 5}) return {5, 4};
    if (moment == Moment{3, 4}) return {7, 3};
    return {6, 4};
}

bool Gespeeld(Moment moment) {
    return moment.ronde < kLaatste.ronde ||
           (moment.ronde == kLaatste.ronde && moment.zitting <= kLaatste.zitting);
}

// Scores of one line. The pair that stopped takes no part in the scoring of the others.
std::vector<ScoreRegel> SpeelLijn(std::vector<Plaats> paren, Moment moment,
                                  const Krachten& krachten, Toeval& toeval) {
    const Schema schema = SchemaVan(moment);
    const auto gestopt = std::find_if(paren.begin(), paren.end(), [&](const Plaats& plaats) {
        return moment == kNul && plaats.lijn == 'C' && plaats.nummer == 7;
    });
    if (gestopt == paren.end()) return LijnScores(paren, schema, krachten, toeval);
    const Plaats plaats = *gestopt;
    const auto achter = std::distance(paren.begin(), gestopt);
    paren.erase(gestopt);
    std::vector<ScoreRegel> regels = LijnScores(paren, schema, krachten, toeval);
    regels.insert(regels.begin() + achter, {plaats.lijn, plaats.nummer, plaats.lid1, plaats.lid2, 0,
                                            schema.beurten * schema.perBeurt});
    return regels;
}

std::vector<ScoreRegel> Speel(Moment moment, const Krachten& krachten, Toeval& toeval) {
    const std::vector<Plaats> opstelling = Opstelling(moment, toeval);
    std::vector<ScoreRegel> regels;
    for (const char lijn : {'A', 'B', 'C'}) {
        std::vector<Plaats> paren;
        std::copy_if(opstelling.begin(), opstelling.end(), std::back_inserter(paren),
                     [lijn](const Plaats& plaats) { return plaats.lijn == lijn; });
        const auto scores = SpeelLijn(paren, moment, krachten, toeval);
        regels.insert(regels.end(), scores.begin(), scores.end());
    }
    return regels;
}

std::vector<BumRegel> Bums(int ronde) {
    const std::vector<Plaats> plaatsen = Indeling(ronde);
    std::vector<BumRegel> regels;
    for (const BuitenMededinging& buiten : kBuiten) {
        if (buiten.ronde != ronde) continue;
        const Plaats& plaats = plaatsen[Volgnummer(buiten.lijn, buiten.nummer)];
        // The partners the other way round than in the line-up: their order makes no difference.
        regels.push_back({plaats.lijn, plaats.nummer, plaats.lid2, plaats.lid1, buiten.merk});
    }
    return regels;
}

void MaakStanden(Zittingen& zittingen) {
    const std::vector<Plaats> plaatsen = Indeling(1);
    const auto plaats = [&](char lijn, int nummer) { return plaatsen[Volgnummer(lijn, nummer)]; };
    MaakGelijk(zittingen, {plaats('A', 3), plaats('A', 8)});
    MaakGelijk(zittingen, {plaats('C', 2), plaats('C', 5)});
}

} // namespace

Competitie Voorjaar() {
    Competitie competitie{Vorm(), {}, {}};
    Toeval toeval(gewoonZaad);
    const Krachten krachten = TrekKrachten(toeval);
    for (int ronde = 1; ronde <= competitie.vorm.ronden; ++ronde) {
        competitie.bums.push_back(Bums(ronde));
        for (int zitting = 1; zitting <= competitie.vorm.zittingen; ++zitting) {
            const Moment moment{ronde, zitting};
            competitie.zittingen.emplace_back();
            if (Gespeeld(moment)) competitie.zittingen.back() = Speel(moment, krachten, toeval);
        }
    }
    MaakStanden(competitie.zittingen);
    Schrijfwijzen(competitie.zittingen, toeval);
    return competitie;
}

} // namespace lauwerkrans::generator
