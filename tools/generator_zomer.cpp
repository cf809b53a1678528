#include "tools/generator_demo.h"

#include <array>
#include <cstddef>

#include "tools/generator.h"

namespace lauwerkrans::generator {

namespace {

// The pairs that go on in summer, by their place in the line-up of the spring.
constexpr std::array<std::size_t, 8> kZomerparen = {0, 4, 8, 12, 15, 18, 22, 25};
constexpr std::size_t kBuitenMededinging = 6;

std::vector<Plaats> Paren() {
    const std::vector<Plaats> indeling = Indeling(1);
    std::vector<Plaats> paren;
    for (const std::size_t plaats : kZomerparen) {
        const auto nummer = static_cast<int>(paren.size()) + 1;
        paren.push_back({'A', nummer, indeling[plaats].lid1, indeling[plaats].lid2});
    }
    return paren;
}

CompetitieVorm Vorm() {
    using namespace std::chrono;
    return {tweedeCompetitie,           2, 3, {static_cast<int>(kZomerparen.size())},
            sys_days(2025y / July / 7), 14};
}

} // namespace

Competitie Zomer() {
    Competitie competitie{Vorm(), {}, {}};
    Toeval toeval(gewoonZaad + 1);
    const Krachten krachten = TrekKrachten(toeval);
    const std::vector<Plaats> paren = Paren();
    const int zittingen = competitie.vorm.ronden * competitie.vorm.zittingen;
    for (int zitting = 0; zitting < zittingen; ++zitting) {
        competitie.zittingen.push_back(LijnScores(paren, {6, 4}, krachten, toeval));
    }
    const Plaats& gast = paren[kBuitenMededinging];
    competitie.bums = {{}, {{gast.lijn, gast.nummer, gast.lid1, gast.lid2, "Bum"}}};
    Schrijfwijzen(competitie.zittingen, toeval);
    return competitie;
}

} // namespace lauwerkrans::generator
