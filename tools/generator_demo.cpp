#include "tools/generator_demo.h"

#include <cstddef>
#include <utility>

#include "tools/generator.h"
#include "tools/generator_leden.h"
#include "tools/generator_mappen.h"

namespace lauwerkrans::generator {

namespace fs = std::filesystem;

namespace {

std::string ZoalsHetHoort(const std::string& naam) { return naam; }

// Names as they grow on a system that does not care about letter case.
std::string AndereLetters(const std::string& naam) {
    if (naam == "Ronde-2") return "RONDE-2";
    if (naam == "Zitting-2") return "zitting-2";
    if (naam == "PercZit-1.txt") return "perczit-1.TXT";
    if (naam == "CompBums.txt") return "compbums.txt";
    if (naam == "CompData.txt") return "COMPDATA.TXT";
    return naam;
}

void SchrijfCompetitie(const fs::path& map, const Competitie& competitie, NaamVorm naamVorm) {
    const CompetitieVorm& vorm = competitie.vorm;
    const CompetitieSchrijver schrijver(map, vorm, naamVorm);
    std::vector<int> tafels;
    auto regels = competitie.zittingen.begin();
    for (int ronde = 1; ronde <= vorm.ronden; ++ronde) {
        schrijver.ronde(ronde);
        const auto& bums = competitie.bums[static_cast<std::size_t>(ronde - 1)];
        if (!bums.empty()) schrijver.bums(ronde, bums);
        for (int zitting = 1; zitting <= vorm.zittingen; ++zitting, ++regels) {
            schrijver.zitting(ronde, zitting, *regels);
            tafels.push_back(static_cast<int>(regels->size() / 2));
        }
    }
    schrijver.compData(tafels);
}

} // namespace

void Schrijfwijzen(Zittingen& zittingen, Toeval& toeval) {
    for (auto& zitting : zittingen) {
        for (ScoreRegel& regel : zitting) {
            if (toeval.kans(10)) std::swap(regel.lid1, regel.lid2);
            regel.metBlanks = toeval.kans(2);
        }
    }
}

void SchrijfDemo(const fs::path& map, const std::string& orvMap, const std::string& competitieMap) {
    const Mappen mappen{orvMap, competitieMap, demoCompetitie, 5, 3};
    SchrijfSuite(map, mappen, hoogsteLidnummer, LedenOpNummer());
    SchrijfCompetitie(map, Voorjaar(), ZoalsHetHoort);
    SchrijfCompetitie(map, Zomer(), AndereLetters);
}

void SchrijfDemo(const fs::path& map) {
    SchrijfDemo(map, VolledigPad(map), VolledigPad(CompetitiesMap(map)));
}

} // namespace lauwerkrans::generator
