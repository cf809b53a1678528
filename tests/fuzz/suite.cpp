#include "suite.h"

#include "calc/lijsten.h"
#include "data/fout.h"

namespace lauwerkrans::fuzz {

namespace {

/// Keeps the result of a call from being left out.
volatile std::size_t gezien = 0;

void LeesCellen(const Lijst& lijst) {
    constexpr std::size_t meeste = 200;
    const Meter meet = [](const std::string& tekst, bool /*vet*/) {
        return static_cast<double>(tekst.size());
    };
    for (std::size_t kolom = 1; kolom <= lijst.kolommen(); ++kolom) {
        gezien = gezien + static_cast<std::size_t>(lijst.breedsteCel(kolom, meet));
        for (std::size_t rij = 1; rij <= lijst.rijen() && rij <= meeste; ++rij)
            gezien = gezien + lijst.cel(rij, kolom).size();
    }
}

} // namespace

proef::ProefCompetitie& Suite() {
    using P = proef::ProefCompetitie;
    static P* const suite = [] {
        auto* nieuw = new P(2, 2, 2); // lives until the end, as the fuzzer's own data does
        nieuw->schrijfLeden(9, {{1, "Jan", "", "Een"},
                                {2, "Zoë", "de", "Twee"},
                                {3, "Piet", "", "Drie"},
                                {4, "Els", "van", "Vier"}});
        nieuw->schrijfZitting(1, 1,
                              {P::regel("A1", "1-2", "50,000"), P::regel("B1", "3-4", "60,000")});
        nieuw->schrijfBums(2, {{1, 2}});
        nieuw->laad();
        return nieuw;
    }();
    suite->meldingen.getoond.clear();
    return *suite;
}

void Probeer(const std::function<void()>& werk) {
    try {
        werk();
    } catch (const Fout& fout) {
        gezien = gezien + FoutTekst(fout).size();
    }
}

void LeesHeleControlelijst(proef::ProefCompetitie& suite) {
    for (const Selectie& selectie : {Selectie{"AB", false, {}}, Selectie{"AB", true, "E"}})
        Probeer([&] { LeesCellen(*MaakControlelijst(Controleer(suite.algemeen, selectie))); });
}

void RekenAlles(proef::ProefCompetitie& suite) {
    for (unsigned bits = 0; bits < 8; ++bits) {
        const Opties opties{(bits & 1U) != 0, true, (bits & 2U) != 0, (bits & 4U) != 0};
        Probeer([&] {
            LeesCellen(*MaakRanglijst(Bereken(suite.algemeen, "AB", {"0", "1"}, opties), true));
        });
    }
}

} // namespace lauwerkrans::fuzz
