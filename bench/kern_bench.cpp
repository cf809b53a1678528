// Reading and calculating, and the layout of pages. Reading and calculating stand each beside the
// bare reading of the same files in the same run: open, read into one buffer, close. The counters
// are ratios to that bare reading.
#include <benchmark/benchmark.h>

#include "calc/lijnen.h"
#include "calc/modBereken.h"
#include "competitie.h"
#include "data/modORV_perczit.h"
#include "lijst.h"
#include "output/bladindeling_lijnen.h"
#include "output/bladindeling_totaal.h"

namespace {

using namespace lauwerkrans;
using namespace lauwerkrans::bench;

constexpr int keren = 5;

double KaleTijd(const Competitie& competitie) {
    std::vector<double> tijden;
    for (int i = 0; i < keren; ++i) {
        tijden.push_back(Duur([&] { benchmark::DoNotOptimize(LeesKaal(competitie)); }));
    }
    return Mediaan(tijden);
}

/// The first reading, then the median of five more.
void MeetLezen(benchmark::State& state, Competitie& competitie, double kaal) {
    const Selectie selectie = {AlleLijnen(competitie.algemeen.LijnTabel), false, {}};
    std::vector<double> tijden;
    std::size_t rijen = 0;
    for (int i = 0; i <= keren; ++i) {
        tijden.push_back(Duur([&] {
            const Lezing lezing = LeesPercZitBestanden(competitie.algemeen, selectie);
            rijen = lezing.zitRegels.gevuld();
        }));
    }
    state.counters["rijen"] = static_cast<double>(rijen);
    state.counters["lezen_eerste"] = tijden.front() / kaal;
    tijden.erase(tijden.begin());
    const double lezen = Mediaan(tijden);
    state.counters["lezen_ms"] = lezen * 1e3;
    state.counters["lezen"] = lezen / kaal;
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
                tijden.push_back(Duur([&] {
                    paren = BerekenKampioenen(lezing.zitRegels, lezing.rondeInfo, criteria, opties)
                                .rijen.size();
                }));
            }
            const std::string naam = std::string("rekenen_") + (gewogen ? "gewogen" : "gewoon") +
                                     (alleLijnen ? "_samen" : "");
            state.counters[naam] = Mediaan(tijden) / kaal;
            state.counters["paren"] = static_cast<double>(paren);
        }
    }
}

void Meet(benchmark::State& state, const Maat& maat) {
    for (auto _ : state) {
        Competitie competitie(maat);
        static_cast<void>(LeesKaal(competitie)); // warms the system's file cache
        const double kaal = KaleTijd(competitie);
        state.counters["bestanden"] = static_cast<double>(competitie.bestanden().size());
        state.counters["kaal_ms"] = kaal * 1e3;
        MeetLezen(state, competitie, kaal);
        MeetRekenen(state, competitie, kaal);
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
BENCHMARK_CAPTURE(Meet, club, club)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Meet, groot, groot)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Meet, grootst, grootst)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Meet, achtduizend_paren, achtduizend)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Meet, losse_paren, losseParen)->Iterations(1)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
