// Writes fictitious competitions as the club's administration suite writes them: Windows-1252
// bytes, lines ending in CR LF. The same call writes the same bytes on every system.
//
// Layout below the folder that is given:
//   Mappen.ini
//   ORVspelers/ORVspelers.txt
//   Competities/<name>/CompData.txt
//   Competities/<name>/Ronde-N/RondeData.txt, and CompBums.txt where a round has one
//   Competities/<name>/Ronde-N/Zitting-M/PercZit-M.txt, absent for a session not yet played
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace lauwerkrans::generator {

/// The active competition of the demo: five rounds of five sessions, lines A, B and C; the last
/// two sessions are not yet played.
inline constexpr std::string_view demoCompetitie = "Voorjaarscompetitie 2026";

/// The demo's other competition: two rounds of three sessions, one line, all played. Some of its
/// files and folders are named in another letter case.
inline constexpr std::string_view tweedeCompetitie = "Zomercompetitie 2025";

/// The competition that `SchrijfGroot` writes.
inline constexpr std::string_view groteCompetitie = "Grote competitie";

/// The seed of the demo, and of a competition of any size that asks for no other.
inline constexpr std::uint64_t gewoonZaad = 20260112;

/// The measures of a competition of any size.
struct Grootte {
    int ronden = 5;            // 1 to 99
    int zittingen = 5;         // per round, 1 to 99
    int parenPerZitting = 30;  // 1 to 160, over all lines together
    int leden = 1000;          // at least two per pair, at most 999999
    int lijnen = 3;            // 1 to 26, at most one per pair
    bool vastePartners = true; // false: partners drawn anew among all members in each session
    std::uint64_t zaad = gewoonZaad;
};

/// Writes the demo in `map`, which is made when it does not exist. `orvMap` and `competitieMap`
/// are the UTF-8 values that Mappen.ini gives for the suite's folder and the competitions' folder.
/// Files of these names are replaced, other files are left alone. Throws
/// std::filesystem::filesystem_error for a folder that cannot be made and std::runtime_error,
/// naming the file, for a file that cannot be written.
void SchrijfDemo(const std::filesystem::path& map, const std::string& orvMap,
                 const std::string& competitieMap);

/// The same, Mappen.ini naming `map` itself and its folder Competities by their absolute paths.
void SchrijfDemo(const std::filesystem::path& map);

/// Writes a competition of the given measures in `map`: every session is played by exactly
/// `parenPerZitting` pairs. Mappen.ini as in the second `SchrijfDemo`. Throws
/// std::invalid_argument, before anything is written, for a measure outside its range; further
/// errors as `SchrijfDemo`.
void SchrijfGroot(const std::filesystem::path& map, const Grootte& grootte);

} // namespace lauwerkrans::generator
