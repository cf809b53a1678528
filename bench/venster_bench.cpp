// From the press of a button to the painted list, on the real window: the control list of all
// lines, and one step of its scroll bar. Run it with QT_QPA_PLATFORM=offscreen.
#include <QApplication>
#include <QScrollBar>

#include <benchmark/benchmark.h>

#include "app/frmMain_start.h"
#include "competitie.h"
#include "ui/ontwerp.h"
#include "ui/stijl.h"

namespace {

using namespace lauwerkrans;
using namespace lauwerkrans::bench;

/// Paints the result grid as the screen would.
void Teken(frmMain& venster) {
    benchmark::DoNotOptimize(Vind<QWidget>(venster, "P20")->grab().cacheKey());
}

void Meet(benchmark::State& state, const Maat& maat) {
    constexpr int keren = 5;
    for (auto _ : state) {
        const Competitie competitie(maat);
        Algemeen algemeen;
        algemeen.meld = [](const Melding& melding) { throw std::runtime_error(melding.tekst); };
        Instellingen instellingen;
        frmMain venster(algemeen, instellingen, {});
        state.counters["start_ms"] =
            1e3 * Duur([&] {
                if (!Form_Load(venster, algemeen, instellingen, competitie.programmaMap()))
                    std::abort();
                venster.show();
                benchmark::DoNotOptimize(venster.grab().cacheKey());
            });
        const double kaal = Duur([&] { benchmark::DoNotOptimize(LeesKaal(competitie)); });
        std::vector<double> tonen;
        std::vector<double> rollen;
        auto& schuif = *Vind<QScrollBar>(venster, "VScroll20");
        for (int i = 0; i < keren; ++i) {
            tonen.push_back(Duur([&] {
                venster.cmd2_Click(0);
                Teken(venster);
            }));
            schuif.setValue(schuif.maximum() / 2);
            rollen.push_back(Duur([&] {
                schuif.setValue(schuif.value() + schuif.singleStep());
                Teken(venster);
            }));
        }
        state.counters["kaal_ms"] = kaal * 1e3;
        state.counters["controle_ms"] = Mediaan(tonen) * 1e3;
        state.counters["stap_ms"] = Mediaan(rollen) * 1e3;
        state.counters["rijen"] = static_cast<double>(venster.raster().lijst()->rijen());
        state.counters["piek_MB"] = PiekMegabytes();
    }
}

} // namespace

BENCHMARK_CAPTURE(Meet, club, club)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Meet, groot, groot)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Meet, grootst, grootst)->Iterations(1)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    QApplication toepassing(argc, argv);
    ZetStijl(toepassing);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
