#include "gegevens.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

#include "data/systeem.h"
#include "proef.h"
#include "tools/lijst_programma.h"

namespace lauwerkrans::proef {

namespace fs = std::filesystem;

namespace {

/// Words between blanks; double quotes keep blanks together.
std::vector<std::string> Woorden(const std::string& regel) {
    std::vector<std::string> woorden;
    bool inWoord = false;
    bool inAanhaling = false;
    for (const char teken : regel) {
        if (teken == ' ' && !inAanhaling) {
            inWoord = false;
            continue;
        }
        if (!inWoord) woorden.emplace_back();
        inWoord = true;
        if (teken == '"') {
            inAanhaling = !inAanhaling;
        } else {
            woorden.back() += teken;
        }
    }
    return woorden;
}

void LeesOpdrachten(const fs::path& pad, std::vector<Gegevens>& alle) {
    std::ifstream bestand(pad, std::ios::binary);
    for (std::string regel; std::getline(bestand, regel);) {
        auto woorden = Woorden(regel);
        if (woorden.empty() || woorden[0][0] == '#') continue;
        Gegevens deel;
        deel.map = pad.parent_path();
        deel.naam = fs::relative(deel.map, LAUWERKRANS_TESTGEGEVENS).generic_string();
        deel.verwacht = woorden[0];
        deel.woorden.assign(woorden.begin() + 1, woorden.end());
        deel.fout = deel.naam.starts_with("fout/");
        alle.push_back(deel);
    }
}

/// The one competition of the folder.
std::string Competitie(const fs::path& map) {
    const fs::directory_iterator begin(map / "Competities");
    if (begin == fs::directory_iterator()) throw std::runtime_error("no competition");
    return begin->path().filename().string();
}

std::vector<std::string> Regels(const std::string& tekst) {
    std::vector<std::string> regels;
    std::istringstream stroom(tekst);
    for (std::string regel; std::getline(stroom, regel);)
        regels.push_back(regel);
    if (!tekst.empty() && tekst.back() != '\n') regels.push_back("(no line end)");
    return regels;
}

std::string Zichtbaar(const std::string& regel) {
    std::string tekst;
    for (const char teken : regel)
        tekst += teken == '\t' ? std::string(" | ") : std::string(1, teken);
    return tekst;
}

/// Puts "<map>" for the folder in every path of the messages, and "/" for what joins its names.
void VervangMap(const std::string& map, std::string& meldingen) {
    for (auto plaats = meldingen.find(map); plaats != std::string::npos;
         plaats = meldingen.find(map, plaats)) {
        meldingen.replace(plaats, map.size(), "<map>");
        const auto einde = std::min(meldingen.find('\'', plaats), meldingen.size());
        for (; plaats < einde; ++plaats) {
            if (meldingen[plaats] == '\\') meldingen[plaats] = '/';
        }
    }
}

} // namespace

void PrintTo(const Gegevens& gegevens, std::ostream* uit) {
    *uit << gegevens.naam << "/" << gegevens.verwacht;
}

std::vector<Gegevens> AlleGegevens() {
    std::vector<fs::path> opdrachten;
    for (const auto& deel : fs::recursive_directory_iterator(LAUWERKRANS_TESTGEGEVENS)) {
        if (deel.path().filename() == "opdracht.txt") opdrachten.push_back(deel.path());
    }
    std::sort(opdrachten.begin(), opdrachten.end());
    std::vector<Gegevens> alle;
    for (const auto& pad : opdrachten)
        LeesOpdrachten(pad, alle);
    return alle;
}

Programmauitvoer MaakUitvoer(const Gegevens& gegevens) {
    const Proefmap programma;
    const std::string map = gegevens.map.string();
    programma.schrijf("Mappen.ini", "ORVMAP=" + map + "\r\nCOMMAP=" + map +
                                        "\\Competities\r\nACTCOM=" + Competitie(map) + "\r\n");
    std::vector<std::string> woorden = {programma.pad()};
    woorden.insert(woorden.end(), gegevens.woorden.begin(), gegevens.woorden.end());
    std::ostringstream lijst;
    std::ostringstream meldingen;
    Programmauitvoer uitvoer;
    uitvoer.uitgang = lijst::Voer(woorden, lijst, meldingen);
    uitvoer.lijst = lijst.str();
    uitvoer.meldingen = meldingen.str();
    VervangMap(systeem::Schrijfwijze(map), uitvoer.meldingen);
    return uitvoer;
}

std::string Inhoud(const fs::path& pad) {
    std::ifstream bestand(pad, std::ios::binary);
    return {std::istreambuf_iterator<char>(bestand), std::istreambuf_iterator<char>()};
}

std::string Verschil(const std::string& verwacht, const std::string& gekregen) {
    if (verwacht == gekregen) return {};
    const auto links = Regels(verwacht);
    const auto rechts = Regels(gekregen);
    constexpr int meeste = 10;
    std::ostringstream tekst;
    int getoond = 0;
    for (std::size_t i = 0; i < std::max(links.size(), rechts.size()) && getoond < meeste; ++i) {
        const std::string oud = i < links.size() ? links[i] : "(end)";
        const std::string nieuw = i < rechts.size() ? rechts[i] : "(end)";
        if (oud == nieuw) continue;
        ++getoond;
        tekst << "line " << i + 1 << "\n  expected " << Zichtbaar(oud) << "\n  got      "
              << Zichtbaar(nieuw) << "\n";
    }
    return getoond == 0 ? "only the line ends differ" : tekst.str();
}

} // namespace lauwerkrans::proef
