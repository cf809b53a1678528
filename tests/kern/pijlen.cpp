#include "pijlen.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <optional>
#include <string_view>

#include "data/codetabel.h"

namespace lauwerkrans::pijlen {

namespace {

namespace fs = std::filesystem;

enum class Laag { Data, Instellingen, Calc, Lijstbestanden, Vensters, Uitvoervensters, Programma };
constexpr Laag hoogsteVanKern = Laag::Lijstbestanden;

struct Plaats {
    std::string_view begin; // of the path
    Laag laag;
};

/// The first that fits counts, so files come before their folder.
constexpr std::array<Plaats, 10> plaatsen = {{
    {"data/", Laag::Data},
    {"app/modMappen.", Laag::Instellingen},
    {"app/modInstellingen.", Laag::Instellingen},
    {"calc/", Laag::Calc},
    {"output/uitvoer.", Laag::Lijstbestanden},
    {"output/modMaak", Laag::Lijstbestanden},
    {"output/bladindeling", Laag::Lijstbestanden},
    {"ui/", Laag::Vensters},
    {"output/", Laag::Uitvoervensters},
    {"app/", Laag::Programma},
}};

constexpr std::array<std::string_view, 3> consoleprogrammas = {"tools/lijst", "tools/generator",
                                                               "tools/maak_competitie"};

struct Bronmap {
    const char* naam;
    bool gevuld; // whether it must hold source files
};

constexpr std::array<Bronmap, 6> bronmappen = {{
    {"data", true},
    {"app", true},
    {"calc", true},
    {"output", true},
    {"ui", true},
    {"tools", true},
}};

std::optional<Laag> LaagVan(std::string_view pad) {
    for (const auto& plaats : plaatsen) {
        if (pad.starts_with(plaats.begin)) return plaats.laag;
    }
    return std::nullopt;
}

bool IsConsoleprogramma(std::string_view pad) {
    return std::any_of(consoleprogrammas.begin(), consoleprogrammas.end(),
                       [pad](std::string_view begin) { return pad.starts_with(begin); });
}

bool MagSysteemAanroepen(std::string_view pad) {
    return pad == "data/systeem_posix.cpp" || pad == "data/systeem_win.cpp";
}

bool IsHoofdletter(char teken) { return teken >= 'A' && teken <= 'Z'; }

/// <QString>, <QtCore/QString>, <QtWidgets>, <qglobal.h>.
bool IsQt(const std::string& doel) {
    const fs::path pad(doel);
    const std::string naam = pad.filename().string();
    if (naam.starts_with('q') && naam.ends_with(".h")) return true;
    return std::any_of(pad.begin(), pad.end(), [](const fs::path& deel) {
        const std::string tekst = deel.string() + "..";
        return tekst[0] == 'Q' &&
               (IsHoofdletter(tekst[1]) || (tekst[1] == 't' && IsHoofdletter(tekst[2])));
    });
}

bool IsSysteem(const std::string& doel) {
    constexpr std::array<std::string_view, 4> koppen = {"UNISTD.H", "FCNTL.H", "DIRENT.H",
                                                        "WINDOWS.H"};
    const std::string groot = Hoofdletters(doel);
    return groot.starts_with("SYS/") ||
           std::find(koppen.begin(), koppen.end(), groot) != koppen.end();
}

bool IsEigenMap(std::string_view pad) {
    constexpr std::array<std::string_view, 8> mappen = {"data/", "app/",   "calc/",  "output/",
                                                        "ui/",   "tools/", "tests/", "bench/"};
    return std::any_of(mappen.begin(), mappen.end(),
                       [pad](std::string_view map) { return pad.starts_with(map); });
}

/// The path below the project's folder that an include means.
std::string Doelpad(const std::string& bestand, const std::string& doel, bool aangehaald) {
    std::string pad = fs::path(doel).lexically_normal().generic_string();
    if (!aangehaald || IsEigenMap(pad)) return pad;
    return (fs::path(bestand).parent_path() / doel).lexically_normal().generic_string();
}

std::string BezwaarVanLaag(Laag laag, const std::string& bestand, const std::string& doel,
                           bool aangehaald) {
    const std::string pad = Doelpad(bestand, doel, aangehaald);
    if (const auto ander = LaagVan(pad)) return *ander > laag ? "is of a higher layer" : "";
    if (aangehaald || IsEigenMap(pad)) return "is no part of the program";
    const bool gewoon = doel.find('.') == std::string::npos && doel.find('/') == std::string::npos;
    if (laag > hoogsteVanKern || MagSysteemAanroepen(bestand)) return "";
    return gewoon ? "" : "is no header of the standard library";
}

std::string BezwaarTegen(const std::string& bestand, const std::string& doel, bool aangehaald) {
    const auto laag = LaagVan(bestand);
    const bool console = IsConsoleprogramma(bestand);
    if (!laag && !console) return "";
    if ((console || *laag <= hoogsteVanKern) && IsQt(doel)) return "is of Qt";
    if (IsSysteem(doel) && !MagSysteemAanroepen(bestand)) return "is of the system";
    if (laag) return BezwaarVanLaag(*laag, bestand, doel, aangehaald);
    const auto ander = LaagVan(Doelpad(bestand, doel, aangehaald));
    return ander && *ander > hoogsteVanKern ? "is of a window" : "";
}

/// Takes a word off the start of a line, blanks before it too; false when it does not stand there.
bool Neem(std::string_view& rest, std::string_view woord) {
    rest.remove_prefix(std::min(rest.find_first_not_of(" \t"), rest.size()));
    if (!rest.starts_with(woord)) return false;
    rest.remove_prefix(woord.size());
    return true;
}

struct Doel {
    std::string naam; // empty when none can be read
    bool aangehaald = false;
};

/// What a line includes; empty for a line of another kind.
std::optional<Doel> Ingesloten(std::string_view regel) {
    if (!Neem(regel, "#") || !Neem(regel, "include")) return std::nullopt;
    if (regel.find_first_of(" \t\"<") != 0) return std::nullopt; // another word
    const bool aangehaald = Neem(regel, "\"");
    if (!aangehaald && !Neem(regel, "<")) return Doel{};
    const auto einde = std::min(regel.find(aangehaald ? '"' : '>'), regel.size());
    return Doel{std::string(regel.substr(0, einde)), aangehaald};
}

bool IsBron(const fs::path& pad) {
    const std::string staart = pad.extension().string();
    return staart == ".h" || staart == ".cpp";
}

void OnderzoekBestand(const fs::path& bron, const fs::path& pad, Onderzoek& onderzoek) {
    const std::string naam = pad.lexically_relative(bron).generic_string();
    std::ifstream bestand(pad);
    std::string regel;
    for (int nummer = 1; std::getline(bestand, regel); ++nummer) {
        if (regel.starts_with("#include")) ++onderzoek.insluitingen;
        const std::string bezwaar = Bezwaar(naam, regel);
        if (bezwaar.empty()) continue;
        onderzoek.bezwaren.push_back(naam + ":" + std::to_string(nummer) + ": " + bezwaar);
    }
    ++onderzoek.bestanden;
}

} // namespace

std::string Bezwaar(const std::string& bestand, const std::string& regel) {
    const auto doel = Ingesloten(regel);
    if (!doel) return "";
    if (doel->naam.empty()) return "an include that names no file";
    const std::string bezwaar = BezwaarTegen(bestand, doel->naam, doel->aangehaald);
    return bezwaar.empty() ? "" : doel->naam + " " + bezwaar;
}

Onderzoek Onderzoeken(const fs::path& bron) {
    Onderzoek onderzoek;
    for (const auto& map : bronmappen) {
        const std::size_t voor = onderzoek.bestanden;
        std::error_code geenMap; // leaves the walk empty
        for (const auto& deel : fs::recursive_directory_iterator(bron / map.naam, geenMap)) {
            if (IsBron(deel.path())) OnderzoekBestand(bron, deel.path(), onderzoek);
        }
        if (map.gevuld && onderzoek.bestanden == voor) {
            onderzoek.bezwaren.push_back(std::string(map.naam) + ": no source files found");
        }
    }
    return onderzoek;
}

} // namespace lauwerkrans::pijlen
