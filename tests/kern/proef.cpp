#include "proef.h"

#include <fstream>
#include <iterator>
#include <random>

#include "data/codetabel.h"
#include "data/modORV_compbums.h"
#include "data/modORV_compdata.h"
#include "data/modORV_leden.h"
#include "data/modORV_rondedata.h"
#include "data/tekstbestand.h"

namespace lauwerkrans::proef {

namespace {

std::filesystem::path NieuweMap() {
    std::random_device toeval;
    for (;;) {
        auto map = std::filesystem::temp_directory_path() /
                   ("lauwerkrans_proef_" + std::to_string(toeval()));
        if (std::filesystem::create_directory(map)) return map;
    }
}

/// A path from UTF-8 on every system; from a std::string Windows takes byte after byte.
std::filesystem::path Utf8Pad(const std::string& naam) {
    return std::u8string(naam.begin(), naam.end());
}

std::string Tekst(const std::u8string& utf8) { return {utf8.begin(), utf8.end()}; }

std::string Rechts(int nummer) {
    std::string tekst = std::to_string(nummer);
    return std::string(tekst.size() < 6 ? 6 - tekst.size() : 0, ' ') + tekst;
}

std::string Samen(const std::vector<std::string>& regels) {
    std::string tekst;
    for (const auto& regel : regels)
        tekst += regel + "\r\n";
    return tekst;
}

} // namespace

Proefmap::Proefmap() : map_(NieuweMap()) {}

std::string Proefmap::pad() const { return Tekst(map_.u8string()); }

Proefmap::~Proefmap() {
    bezet_.clear();
    std::error_code genegeerd; // a folder that stays behind fails no test
    std::filesystem::remove_all(map_, genegeerd);
}

void Proefmap::schrijf(const std::string& naam, std::string_view bytes) const {
    const auto pad = map_ / Utf8Pad(naam);
    std::filesystem::create_directories(pad.parent_path());
    std::ofstream bestand(pad, std::ios::binary);
    bestand.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bestand.close();
    if (!bestand) throw std::runtime_error("cannot write " + pad.string());
}

void Proefmap::maakMap(const std::string& naam) const {
    std::filesystem::create_directories(map_ / Utf8Pad(naam));
}

void Proefmap::maakOnleesbaar(const std::string& naam) const {
    const auto pad = map_ / Utf8Pad(naam);
    std::filesystem::create_directories(pad.parent_path());
    bezet_.push_back(MaakOnleesbaar(pad));
}

void Proefmap::maakOnleesbareMap(const std::string& naam) const {
    const auto pad = map_ / Utf8Pad(naam);
    std::filesystem::create_directories(pad.parent_path());
    bezet_.push_back(MaakOnleesbareMap(pad));
}

void Proefmap::verwijder(const std::string& naam) const {
    std::filesystem::remove_all(map_ / Utf8Pad(naam));
}

std::map<std::string, std::string> Proefmap::inhoud() const {
    std::map<std::string, std::string> bestanden;
    for (const auto& deel : std::filesystem::recursive_directory_iterator(map_)) {
        if (!deel.is_regular_file()) continue;
        std::ifstream bestand(deel.path(), std::ios::binary);
        bestanden[Tekst(deel.path().lexically_relative(map_).generic_u8string())] =
            std::string(std::istreambuf_iterator<char>(bestand), {});
    }
    return bestanden;
}

ProefCompetitie::ProefCompetitie(int ronden, int zittingen, int lijnen) {
    algemeen.meld = meldingen.melder();
    algemeen.OrvMap = map_.pad();
    algemeen.CompetitieMap = map_.pad() + "\\Competities";
    algemeen.ActieveCompetitie = "Proef";
    algemeen.competitie = VoegPad(algemeen.CompetitieMap, algemeen.ActieveCompetitie);
    map_.schrijf(competitieMap() + "CompData.txt", "a,b,c,d,e,f,g,0," + std::to_string(ronden) +
                                                       "," + std::to_string(zittingen) + ",0\r\n");
    map_.schrijf(competitieMap() + "Ronde-1/RondeData.txt",
                 "a,b,c,d,e,f,g," + std::to_string(lijnen) + "\r\n");
}

void ProefCompetitie::schrijfLeden(int aantal, const std::vector<Lid>& leden) const {
    std::vector<std::string> regels = {"Aantal=" + std::to_string(aantal)};
    for (const auto& lid : leden) {
        regels.push_back("x," + std::to_string(lid.nummer) + ",y," + lid.voornaam + "," +
                         lid.tussenvoegsel + "," + lid.achternaam);
    }
    regels.emplace_back("einde");
    map_.schrijf("ORVspelers/ORVspelers.txt", NaarCodetabel(Samen(regels)));
}

void ProefCompetitie::schrijfZitting(int ronde, int zitting,
                                     const std::vector<std::string>& regels) const {
    const std::string nummer = std::to_string(zitting);
    map_.schrijf(competitieMap() + "Ronde-" + std::to_string(ronde) + "/Zitting-" + nummer +
                     "/PercZit-" + nummer + ".txt",
                 Samen(regels));
}

std::string ProefCompetitie::regel(const std::string& paar, const std::string& leden,
                                   const std::string& percentage, int spellen) {
    return "1,\"NZ\",\"" + paar + "\",\"" + leden + "\",\"" + percentage + "\"," +
           std::to_string(spellen) + ",0";
}

void ProefCompetitie::schrijfBums(int ronde, const std::vector<std::pair<int, int>>& paren) const {
    std::vector<std::string> regels = {std::to_string(paren.size()), "6"};
    for (const auto& [lid1, lid2] : paren) {
        regels.push_back("1,2,3,\"" + Rechts(lid1) + "\",\"" + Rechts(lid2) + "\",\"BUM\"");
    }
    map_.schrijf(competitieMap() + "Ronde-" + std::to_string(ronde) + "/CompBums.txt",
                 Samen(regels));
}

void ProefCompetitie::laad() {
    LeesCompData(algemeen);
    BouwRondeInfo(algemeen);
    algemeen.LijnTabel = LeesLijnTabel(algemeen.competitie);
    LeesLeden(algemeen);
    LeesCompBums(algemeen);
}

} // namespace lauwerkrans::proef
