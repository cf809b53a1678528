#include "competitie.h"

#include <algorithm>
#include <stdexcept>

#include <sys/resource.h>
#include <unistd.h>

#include "app/modMappen.h"
#include "data/modORV_compbums.h"
#include "data/modORV_compdata.h"
#include "data/modORV_leden.h"
#include "data/modORV_rondedata.h"
#include "data/ronde_mappen.h"
#include "data/systeem.h"
#include "data/tekstbestand.h"
#include "tools/generator.h"

namespace lauwerkrans::bench {

namespace {

void Laad(Algemeen& algemeen, const std::string& programmaMap) {
    algemeen.meld = [](const Melding& melding) { throw std::runtime_error(melding.tekst); };
    OverigeMappen overig;
    LeesMappenIni(algemeen, overig, programmaMap);
    algemeen.competitie = VoegPad(algemeen.CompetitieMap, algemeen.ActieveCompetitie);
    LeesCompData(algemeen);
    BouwRondeInfo(algemeen);
    algemeen.LijnTabel = LeesLijnTabel(algemeen.competitie);
    LeesLeden(algemeen);
    LeesCompBums(algemeen);
}

} // namespace

Competitie::Competitie(const Maat& maat)
    : map_(std::filesystem::temp_directory_path() /
           ("lauwerkrans_bench_" + std::to_string(::getpid()))) {
    std::filesystem::create_directories(map_ / "Lauwerkrans");
    generator::Grootte grootte;
    grootte.ronden = maat.ronden;
    grootte.zittingen = maat.zittingen;
    grootte.parenPerZitting = maat.paren;
    grootte.leden = maat.leden;
    grootte.lijnen = maat.lijnen;
    grootte.vastePartners = maat.vastePartners;
    generator::SchrijfGroot(map_, grootte);
    Laad(algemeen, programmaMap());
    for (std::size_t r = 1; r <= algemeen.rondeInfo.ronden(); ++r) {
        for (std::size_t z = 1; z <= algemeen.rondeInfo.zittingen(); ++z) {
            if (algemeen.rondeInfo.volgnummer(r, z) == 0) continue;
            bestanden_.push_back(systeem::Schrijfwijze(PercZitPad(algemeen.competitie, r, z)));
        }
    }
}

Competitie::~Competitie() {
    std::error_code genegeerd;
    std::filesystem::remove_all(map_, genegeerd);
}

std::size_t LeesKaal(const Competitie& competitie) {
    static systeem::Leesbuffer buffer;
    std::size_t bytes = 0;
    for (const auto& pad : competitie.bestanden()) {
        if (systeem::LeesBestand(pad, buffer)) throw std::runtime_error(pad);
        bytes += buffer.lengte;
    }
    return bytes;
}

double PiekMegabytes() {
    struct ::rusage gebruik {};
    ::getrusage(RUSAGE_SELF, &gebruik);
    return static_cast<double>(gebruik.ru_maxrss) / 1024.0;
}

double Mediaan(std::vector<double> waarden) {
    std::sort(waarden.begin(), waarden.end());
    return waarden[waarden.size() / 2];
}

} // namespace lauwerkrans::bench
