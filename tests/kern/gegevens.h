// The checked-in competitions in tests/gegevens: each a folder of the suite with the lists that
// are expected of it.
//
// `opdracht.txt` holds one list a line: the file with the expected list ("-": nothing is printed),
// then the words for the list program, in double quotes where they hold blanks; "#" starts a
// remark. `verwacht_melding.txt`, where it stands, is what goes to the error output in each of
// them, with <map> for the folder; without it nothing goes there.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

namespace lauwerkrans::proef {

struct Gegevens {
    std::filesystem::path map;
    std::string naam;                 // the folder below tests/gegevens
    std::string verwacht;             // file name or "-"
    std::vector<std::string> woorden; // behind the folder
    bool fout = false;                // a broken input: the program must say so in its exit status
};

/// How a test of it is called in a report.
void PrintTo(const Gegevens& gegevens, std::ostream* uit);

/// All lists of all competitions, in the order of their names.
[[nodiscard]] std::vector<Gegevens> AlleGegevens();

/// What the program printed, and its exit status.
struct Programmauitvoer {
    std::string lijst;
    std::string meldingen; // <map> for the folder
    int uitgang = 0;
};

/// Makes a list in this process, from a Mappen.ini of its own that points to the folder.
[[nodiscard]] Programmauitvoer MaakUitvoer(const Gegevens& gegevens);

/// The bytes of a file of the case; empty when there is none.
[[nodiscard]] std::string Inhoud(const std::filesystem::path& pad);

/// The first lines in which two texts differ, tabs and line ends made visible; empty when they are
/// the same.
[[nodiscard]] std::string Verschil(const std::string& verwacht, const std::string& gekregen);

} // namespace lauwerkrans::proef
