// From the press of a button to the painted list, on the real window: the control list of all
// lines and the ranking with session details, with the steps of their scroll bars; and the drawing
// of a list's first page. Run it with QT_QPA_PLATFORM=offscreen.
#include <QApplication>
#include <QCheckBox>
#include <QImage>
#include <QPainter>
#include <QScrollBar>

#include <benchmark/benchmark.h>

#include "app/frmMain_start.h"
#include "competitie.h"
#include "lijst.h"
#include "output/afdruk.h"
#include "output/bladindeling_lijnen.h"
#include "output/bladindeling_totaal.h"
#include "ui/ontwerp.h"
#include "ui/stijl.h"

namespace {

using namespace lauwerkrans;
using namespace lauwerkrans::bench;

/// Paints the result grid as the screen would.
void Teken(frmMain& venster) {
    benchmark::DoNotOptimize(Vind<QWidget>(venster, "P20")->grab().cacheKey());
}

const QSize kleinste(861, 480); // of the window, in logical pixels
const QSize heelScherm(1920, 1020);

constexpr int keren = 5;
constexpr int stappen = 101;

/// Milliseconds of one step of a scroll bar, to the painted grid: the median of steps from the
/// middle on.
double Stap(frmMain& venster, const char* naam) {
    auto& schuif = *Vind<QScrollBar>(venster, naam);
    schuif.setValue(schuif.maximum() / 2);
    std::vector<double> tijden;
    for (int i = 0; i < stappen; ++i) {
        tijden.push_back(Duur([&] {
            schuif.setValue(schuif.value() + schuif.singleStep());
            Teken(venster);
        }));
    }
    return Mediaan(tijden) * 1e3;
}

/// The window on a competition of its own; a message ends the benchmark.
struct Proefvenster {
    explicit Proefvenster(const Maat& maat) : competitie(maat) {
        algemeen.meld = [](const Melding& melding) { throw std::runtime_error(melding.tekst); };
    }

    void toon() {
        if (!Form_Load(venster, algemeen, instellingen, competitie.programmaMap())) std::abort();
        venster.show();
    }

    /// Every pair takes part.
    void zetCriteria() {
        for (std::size_t lijn = 1; lijn <= venster.rijen().lijnen(); ++lijn)
            venster.rijen().zetCriterium(lijn, "1");
    }

    Competitie competitie;
    Algemeen algemeen;
    Instellingen instellingen;
    frmMain venster{algemeen, instellingen, {}};
};

void Meet(benchmark::State& state, const Maat& maat) {
    for (auto _ : state) {
        Proefvenster proef(maat);
        const Competitie& competitie = proef.competitie;
        frmMain& venster = proef.venster;
        state.counters["start_ms"] = 1e3 * Duur([&] {
                                         proef.toon();
                                         benchmark::DoNotOptimize(venster.grab().cacheKey());
                                     });
        proef.zetCriteria();
        std::vector<double> kale;
        std::vector<double> berekenen;
        std::vector<double> controleren;
        std::vector<double> tonen;
        for (int i = 0; i < keren; ++i) {
            kale.push_back(Duur([&] { benchmark::DoNotOptimize(LeesKaal(competitie)); }));
            berekenen.push_back(Duur([&] { // the control list before it is still on show
                venster.cmd1_Click(0);
                Teken(venster);
            }));
            state.counters["paren"] = static_cast<double>(venster.raster().lijst()->rijen());
            controleren.push_back(Duur([&] {
                venster.cmd2_Click(0);
                Teken(venster);
            }));
            tonen.push_back(Duur([&] { // by itself, without the reading
                const auto lijst = venster.raster().lijst();
                venster.raster().toon(lijst, venster.raster().beeldVan(lijst));
                Teken(venster);
            }));
        }
        state.counters["kaal_ms"] = Mediaan(kale) * 1e3;
        state.counters["bereken_ms"] = Mediaan(berekenen) * 1e3;
        state.counters["controle_ms"] = Mediaan(controleren) * 1e3;
        state.counters["tonen_ms"] = Mediaan(tonen) * 1e3;
        state.counters["stap_ms"] = Stap(venster, "VScroll20");
        state.counters["rijen"] = static_cast<double>(venster.raster().lijst()->rijen());
        state.counters["piek_MB"] = PiekMegabytes();
    }
}

/// The ranking of all lines with details, on a window of the given size; apart from the press of
/// the button, showing it anew from the calculation that is there.
void MeetDetails(benchmark::State& state, const Maat& maat, QSize grootte) {
    for (auto _ : state) {
        Proefvenster proef(maat);
        frmMain& venster = proef.venster;
        venster.resize(grootte);
        proef.toon();
        Vind<QCheckBox>(venster, "chkZitDetails")->setChecked(true);
        proef.zetCriteria();
        std::vector<double> bereken;
        std::vector<double> tonen;
        for (int i = 0; i < keren; ++i) {
            bereken.push_back(Duur([&] {
                venster.cmd1_Click(0);
                Teken(venster);
            }));
            tonen.push_back(Duur([&] {
                venster.ToonLvwRes(venster.uitslag());
                Teken(venster);
            }));
        }
        state.counters["bereken_ms"] = Mediaan(bereken) * 1e3;
        state.counters["tonen_ms"] = Mediaan(tonen) * 1e3;
        state.counters["stap_neer_ms"] = Stap(venster, "VScroll20");
        state.counters["stap_opzij_ms"] = Stap(venster, "HScroll20");
        const auto& lijst = *venster.raster().lijst();
        state.counters["rijen"] = static_cast<double>(lijst.rijen());
        state.counters["kolommen"] = static_cast<double>(lijst.kolommen());
        state.counters["piek_MB"] = PiekMegabytes();
    }
}

/// Lays a list out anew and draws its first page at 100 %: of a long page the part of one sheet.
void TekenEersteBlad(const Bladen& bladen) {
    constexpr double schaal = 96 / 25.4; // pixels per millimetre
    QImage beeld(qRound(bladmaat::bladBreedte * schaal), qRound(bladmaat::a4Hoogte * schaal),
                 QImage::Format_RGB32);
    beeld.fill(Qt::white);
    QPainter schilder(&beeld);
    TekenBlad(schilder, bladen.blad(1, MeetBladtekst, {0, bladmaat::a4Hoogte}), schaal);
    schilder.end();
    benchmark::DoNotOptimize(beeld.constBits());
}

/// The first time, in which fonts are looked up, and the median of those after it.
template <class Maak>
void MeetBlad(benchmark::State& state, Maak maak) {
    const Uitvoer uitvoer = MaakLijst(1000);
    std::vector<double> tijden;
    for (auto _ : state) {
        for (int i = 0; i <= stappen; ++i)
            tijden.push_back(Duur([&] { TekenEersteBlad(maak(uitvoer)); }));
        state.counters["eerste_ms"] = tijden.front() * 1e3;
        tijden.erase(tijden.begin());
        state.counters["blad_ms"] = Mediaan(tijden) * 1e3;
    }
}

void BladLijnen(benchmark::State& state) {
    MeetBlad(state,
             [](const Uitvoer& uitvoer) { return BladenLijnen(uitvoer, bladmaat::a4Hoogte); });
}

void BladTotaal(benchmark::State& state) {
    MeetBlad(state, [](const Uitvoer& uitvoer) { return BladenTotaal(uitvoer); });
}

} // namespace

BENCHMARK(BladLijnen)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BladTotaal)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Meet, club, club)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Meet, groot, groot)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Meet, grootst, grootst)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Meet, losse_paren, losseParen)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(MeetDetails, club, club, kleinste)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(MeetDetails, grootst, grootst, kleinste)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(MeetDetails, groot_heel_scherm, groot, heelScherm)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(MeetDetails, grootst_heel_scherm, grootst, heelScherm)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(MeetDetails, losse_paren, losseParen, kleinste)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    QApplication toepassing(argc, argv);
    ZetStijl(toepassing);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
