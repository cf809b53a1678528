// The arrows of the house: which source file may include which. A file may include its own layer
// and those below it:
//
//   data/ < app/modMappen, app/modInstellingen < calc/
//         < output/uitvoer, output/modMaak*, output/bladindeling*
//         < ui/ < the other files of output/ < the other files of app/
//
// The first four make the core, which knows no Qt and, but for data/systeem_posix.cpp and
// data/systeem_win.cpp, no header outside the standard library. The console programs
// (tools/lijst*, tools/generator*, tools/maak_competitie*) know no Qt and no window either.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace lauwerkrans::pijlen {

/// What is wrong with one line of a source file, or empty when it is no include or a right one.
/// `bestand` is the file's path below the project's folder, with "/".
[[nodiscard]] std::string Bezwaar(const std::string& bestand, const std::string& regel);

struct Onderzoek {
    std::size_t bestanden = 0;
    std::size_t insluitingen = 0;
    std::vector<std::string> bezwaren; // "file:line: what is wrong"
};

/// Looks through all source files of the project. A folder without any is an objection too.
[[nodiscard]] Onderzoek Onderzoeken(const std::filesystem::path& bron);

} // namespace lauwerkrans::pijlen
