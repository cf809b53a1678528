#include "tools/generator_mappen.h"

#include "tools/generator_tekst.h"

namespace lauwerkrans::generator {

namespace fs = std::filesystem;

fs::path CompetitiesMap(const fs::path& map) { return map / "Competities"; }

std::string VolledigPad(const fs::path& map) {
    fs::path pad = fs::absolute(map).lexically_normal().make_preferred();
    if (!pad.has_filename() && pad.has_relative_path()) pad = pad.parent_path();
    return PadTekst(pad);
}

CompetitieSchrijver::CompetitieSchrijver(const fs::path& map, const CompetitieVorm& vorm,
                                         NaamVorm naamVorm)
    : map_(CompetitiesMap(map) / vorm.naam), vorm_(vorm), naamVorm_(naamVorm) {
    fs::create_directories(map_);
}

fs::path CompetitieSchrijver::rondeMap(int ronde) const {
    return map_ / naamVorm_("Ronde-" + std::to_string(ronde));
}

void CompetitieSchrijver::compData(std::span<const int> tafels) const {
    SchrijfTekst(map_ / naamVorm_("CompData.txt"), CompData(vorm_, tafels));
}

void CompetitieSchrijver::ronde(int ronde) const {
    fs::create_directory(rondeMap(ronde));
    SchrijfTekst(rondeMap(ronde) / naamVorm_("RondeData.txt"), RondeData(vorm_, ronde));
}

void CompetitieSchrijver::bums(int ronde, std::span<const BumRegel> regels) const {
    SchrijfTekst(rondeMap(ronde) / naamVorm_("CompBums.txt"), CompBums(regels));
}

void CompetitieSchrijver::zitting(int ronde, int zitting,
                                  std::span<const ScoreRegel> regels) const {
    const std::string nummer = std::to_string(zitting);
    const fs::path map = rondeMap(ronde) / naamVorm_("Zitting-" + nummer);
    fs::create_directory(map);
    if (regels.empty()) return;
    SchrijfTekst(map / naamVorm_("PercZit-" + nummer + ".txt"), PercZit(regels));
}

void SchrijfSuite(const fs::path& map, const Mappen& mappen, int hoogste,
                  std::span<const Lid> leden) {
    fs::create_directories(map / "ORVspelers");
    SchrijfTekst(map / "Mappen.ini", MappenIni(mappen));
    SchrijfTekst(map / "ORVspelers" / "ORVspelers.txt", LedenBestand(hoogste, leden));
}

} // namespace lauwerkrans::generator
