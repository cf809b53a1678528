#include "tools/generator.h"

#include <algorithm>
#include <cstddef>
#include <stdexcept>
#include <utility>
#include <vector>

#include "tools/generator_leden.h"
#include "tools/generator_mappen.h"
#include "tools/generator_toeval.h"

namespace lauwerkrans::generator {

namespace fs = std::filesystem;

namespace {

constexpr int kSpellen = 24;

void EisTussen(const std::string& wat, int getal, int laag, int hoog) {
    if (getal >= laag && getal <= hoog) return;
    throw std::invalid_argument(wat + " moet tussen " + std::to_string(laag) + " en " +
                                std::to_string(hoog) + " liggen, niet " + std::to_string(getal));
}

void Keur(const Grootte& grootte) {
    EisTussen("Het aantal ronden", grootte.ronden, 1, 99);
    EisTussen("Het aantal zittingen", grootte.zittingen, 1, 99);
    EisTussen("Het aantal paren", grootte.parenPerZitting, 1, 160);
    EisTussen("Het aantal leden", grootte.leden, 2 * grootte.parenPerZitting, 999999);
    EisTussen("Het aantal lijnen", grootte.lijnen, 1, std::min(26, grootte.parenPerZitting));
}

// The pairs in equal shares over the lines, the first lines one more where it does not come out.
CompetitieVorm Vorm(const Grootte& grootte) {
    using namespace std::chrono;
    std::vector<int> paren;
    for (int lijn = 0; lijn < grootte.lijnen; ++lijn) {
        const int meer = lijn < grootte.parenPerZitting % grootte.lijnen ? 1 : 0;
        paren.push_back(grootte.parenPerZitting / grootte.lijnen + meer);
    }
    return {groteCompetitie,
            grootte.ronden,
            grootte.zittingen,
            std::move(paren),
            sys_days(2000y / January / 3),
            1};
}

// One line's scores: what the first pair of a table has above 50 %, the second has below.
void ZetLijn(std::vector<ScoreRegel>& regels, char lijn, int paren, Toeval& toeval) {
    for (int nummer = 1; nummer <= paren; nummer += 2) {
        const int afwijking = nummer == paren ? 0 : toeval.klok(4900);
        regels.push_back({lijn, nummer, 0, 0, 50000 + afwijking, kSpellen});
        if (nummer == paren) return;
        regels.push_back({lijn, nummer + 1, 0, 0, 50000 - afwijking, kSpellen});
    }
}

// Fills one session after the other; the members that play stand in front.
class Speelavonden {
public:
    Speelavonden(const Grootte& grootte, const CompetitieVorm& vorm, const std::vector<Lid>& leden)
        : vorm_(vorm), vastePartners_(grootte.vastePartners),
          spelers_(2 * static_cast<std::size_t>(grootte.parenPerZitting)), toeval_(grootte.zaad) {
        for (const Lid& lid : leden)
            nummers_.push_back(lid.nummer);
        toeval_.hussel(nummers_, spelers_);
    }

    const std::vector<ScoreRegel>& volgende() {
        if (!vastePartners_) toeval_.hussel(nummers_, spelers_);
        regels_.clear();
        char lijn = 'A';
        for (const int paren : vorm_.parenPerLijn)
            ZetLijn(regels_, lijn++, paren, toeval_);
        auto nummer = nummers_.begin();
        for (ScoreRegel& regel : regels_) {
            regel.lid1 = *nummer++;
            regel.lid2 = *nummer++;
        }
        return regels_;
    }

private:
    const CompetitieVorm& vorm_;
    bool vastePartners_;
    std::size_t spelers_;
    Toeval toeval_;
    std::vector<int> nummers_;
    std::vector<ScoreRegel> regels_;
};

} // namespace

void SchrijfGroot(const fs::path& map, const Grootte& grootte) {
    Keur(grootte);
    const std::vector<Lid> leden = VeelLeden(grootte.leden);
    const Mappen mappen{VolledigPad(map), VolledigPad(CompetitiesMap(map)), groteCompetitie,
                        grootte.ronden, grootte.zittingen};
    SchrijfSuite(map, mappen, leden.back().nummer, leden);
    const CompetitieVorm vorm = Vorm(grootte);
    const CompetitieSchrijver schrijver(map, vorm, [](const std::string& naam) { return naam; });
    const std::vector<int> tafels(static_cast<std::size_t>(grootte.ronden * grootte.zittingen),
                                  grootte.parenPerZitting / 2);
    schrijver.compData(tafels);
    Speelavonden avonden(grootte, vorm, leden);
    for (int ronde = 1; ronde <= grootte.ronden; ++ronde) {
        schrijver.ronde(ronde);
        for (int zitting = 1; zitting <= grootte.zittingen; ++zitting) {
            schrijver.zitting(ronde, zitting, avonden.volgende());
        }
    }
}

} // namespace lauwerkrans::generator
