// Reading and calculating, and the layout of pages. Reading and calculating stand each beside the
// bare reading of the same files in the same run: open, read into one buffer, close. The counters
// are ratios to that bare reading. The peak memory is that of the process: run one competition at a
// time (--benchmark_filter) to get its own.
#include <benchmark/benchmark.h>

#include <utility>

#include "calc/lijnen.h"
#include "calc/modBereken.h"
#include "calc/overzicht.h"
#include "competitie.h"
#include "data/modORV_perczit.h"
#include "lijst.h"
#include "output/bladindeling_lijnen.h"
#include "output/bladindeling_totaal.h"

namespace {

using namespace lauwerkrans;
using namespace lauwerkrans::bench;

constexpr int keren = 5;

/// The first reading, then the median of five more, each beside a bare one; returns the median of
/// the bare ones in seconds.
double MeetLezen(benchmark::State& state, Competitie& competitie) {
    const Selectie selectie = {AlleLijnen(competitie.algemeen.LijnTabel), false, {}};
    std::vector<double> kale;
    std::vector<double> tijden;
    std::size_t rijen = 0;
    for (int i = 0; i <= keren; ++i) {
        kale.push_back(Duur([&] { benchmark::DoNotOptimize(LeesKaal(competitie)); }));
        tijden.push_back(Duur([&] {
            const Lezing lezing = LeesPercZitBestanden(competitie.algemeen, selectie);
            rijen = lezing.zitRegels.gevuld();
        }));
    }
    const double eerste = tijden.front();
    kale.erase(kale.begin());
    tijden.erase(tijden.begin());
    const double kaal = Mediaan(kale);
    const double lezen = Mediaan(tijden);
    state.counters["rijen"] = static_cast<double>(rijen);
    state.counters["kaal_ms"] = kaal * 1e3;
    state.counters["lezen_ms"] = lezen * 1e3;
    state.counters["lezen"] = lezen / kaal;
    state.counters["lezen_eerste"] = eerste / kaal;
    return kaal;
}

void MeetRekenen(benchmark::State& state, Competitie& competitie, double kaal) {
    const std::string letters = AlleLijnen(competitie.algemeen.LijnTabel);
    const Lezing lezing = LeesPercZitBestanden(competitie.algemeen, {letters, false, {}});
    const Criteria criteria(letters.size(), "1");
    for (const bool gewogen : {false, true}) {
        for (const bool alleLijnen : {false, true}) {
            Opties opties;
            opties.gewogen = gewogen;
            opties.gemAlleLijnen = alleLijnen;
            std::vector<double> tijden;
            std::size_t paren = 0;
            for (int i = 0; i < keren; ++i) {
                ZitRegels zitRegels = lezing.zitRegels; // the calculation lets go of them
                tijden.push_back(Duur([&] {
                    paren =
                        BerekenKampioenen(std::move(zitRegels), lezing.rondeInfo, criteria, opties)
                            .rijen.size();
                }));
            }
            const std::string naam =
                std::string(gewogen ? "gewogen" : "gewoon") + (alleLijnen ? "_samen" : "");
            state.counters["rekenen_" + naam] = Mediaan(tijden) / kaal;
            state.counters["rekenen_" + naam + "_ms"] = Mediaan(tijden) * 1e3;
            state.counters[alleLijnen ? "paren_samen" : "paren"] = static_cast<double>(paren);
        }
    }
}

/// As the window does it: the control list of all lines on show, and a ranking made beside it.
void BerekenNaastControle(Competitie& competitie) {
    const std::string letters = AlleLijnen(competitie.algemeen.LijnTabel);
    const auto getoond = Controleer(competitie.algemeen, {letters, false, {}});
    const Criteria criteria(letters.size(), "1");
    benchmark::DoNotOptimize(Bereken(competitie.algemeen, letters, criteria, {}));
}

void Meet(benchmark::State& state, const Maat& maat) {
    for (auto _ : state) {
        Competitie competitie(maat);
        static_cast<void>(LeesKaal(competitie)); // warms the system's file cache
        state.counters["bestanden"] = static_cast<double>(competitie.bestanden().size());
        const double kaal = MeetLezen(state, competitie);
        MeetRekenen(state, competitie, kaal);
        BerekenNaastControle(competitie);
        state.counters["piek_MB"] = PiekMegabytes();
    }
}

/// Lays a list out anew and fills its first page; the letters have one width.
template <class Indeling>
void DeelIn(benchmark::State& state) {
    const Uitvoer uitvoer = MaakLijst(static_cast<std::size_t>(state.range(0)));
    const auto meting = [](const std::string& tekst, const Letter& letter) {
        return static_cast<double>(tekst.size()) * letter.punten / 5;
    };
    for (auto _ : state) {
        const Indeling bladen(uitvoer, bladmaat::a4Hoogte);
        benchmark::DoNotOptimize(bladen.blad(1, meting).teksten.size());
        state.counters["bladen"] = static_cast<double>(bladen.aantal());
    }
}

} // namespace

BENCHMARK_TEMPLATE(DeelIn, BladenLijnen)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(DeelIn, BladenTotaal)->Arg(1000)->Unit(benchmark::kMillisecond);
#define LAUWERKRANS_MEET(naam, maat)                                                               \
    BENCHMARK_CAPTURE(Meet, naam, maat)->Iterations(1)->Unit(benchmark::kMillisecond)
LAUWERKRANS_MEET(club, club);
LAUWERKRANS_MEET(groot, groot);
LAUWERKRANS_MEET(grootst, grootst);
LAUWERKRANS_MEET(achtduizend_paren, achtduizend);
LAUWERKRANS_MEET(losse_paren, losseParen);
LAUWERKRANS_MEET(deel_1, Deel(1));
LAUWERKRANS_MEET(deel_5, Deel(5));
LAUWERKRANS_MEET(deel_25, Deel(25));
LAUWERKRANS_MEET(deel_50, Deel(50));
LAUWERKRANS_MEET(deel_99, Deel(99));

BENCHMARK_MAIN();
