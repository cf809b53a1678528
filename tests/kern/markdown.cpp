#include "markdown.h"

#include <algorithm>
#include <cctype>
#include <sstream>

#include "berichtteksten.h"
#include "gegevens.h"

namespace lauwerkrans::markdown {

namespace fs = std::filesystem;

namespace {

/// Whether a file has the heading that "#two-words" means; no anchor means the whole file.
bool HeeftKop(const fs::path& bestand, const std::string& anker) {
    if (anker.empty()) return true;
    std::istringstream stroom(proef::Inhoud(bestand));
    for (std::string regel; std::getline(stroom, regel);) {
        if (!regel.starts_with('#')) continue;
        std::string naam = "#";
        for (const char teken : regel.substr(regel.find_first_not_of("# ")))
            naam += teken == ' ' ? '-' : static_cast<char>(std::tolower(teken));
        if (naam == anker) return true;
    }
    return false;
}

} // namespace

std::vector<std::string> Aanhalingen(const std::string& tekst) {
    std::vector<std::string> aanhalingen;
    std::istringstream stroom(tekst);
    bool binnen = false;
    for (std::string regel; std::getline(stroom, regel);) {
        const bool hoort = regel.starts_with('>');
        if (hoort && !binnen) aanhalingen.emplace_back();
        if (hoort) aanhalingen.back() += regel.substr(1) + "\n";
        binnen = hoort;
    }
    for (std::string& aanhaling : aanhalingen)
        aanhaling = berichten::EenRegel(aanhaling);
    return aanhalingen;
}

std::vector<std::string> Doelen(const std::string& tekst) {
    std::vector<std::string> doelen;
    for (auto plaats = tekst.find("]("); plaats != std::string::npos;
         plaats = tekst.find("](", plaats)) {
        plaats += 2;
        doelen.push_back(tekst.substr(plaats, tekst.find(')', plaats) - plaats));
    }
    return doelen;
}

std::vector<std::string> DodeDoelen(const fs::path& bestand) {
    std::vector<std::string> dood;
    for (const std::string& doel : Doelen(proef::Inhoud(bestand))) {
        if (doel.find("://") != std::string::npos) continue;
        const auto hekje = std::min(doel.find('#'), doel.size());
        const fs::path pad = hekje == 0 ? bestand : bestand.parent_path() / doel.substr(0, hekje);
        if (!fs::exists(pad) || !HeeftKop(pad, doel.substr(hekje))) dood.push_back(doel);
    }
    return dood;
}

std::vector<fs::path> Bestanden(const fs::path& map) {
    std::vector<fs::path> bestanden;
    for (const auto& deel : fs::recursive_directory_iterator(map)) {
        if (deel.path().extension() == ".md") bestanden.push_back(deel.path());
    }
    std::sort(bestanden.begin(), bestanden.end());
    return bestanden;
}

} // namespace lauwerkrans::markdown
