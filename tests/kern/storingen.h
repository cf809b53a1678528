// A small club whose files are broken one at a time, and what the program must then say and show.
//
// The table of faults stands in storingen_tabel_*.cpp, a file of the club each; the tests of the
// core and of the window go through the same table.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "proef.h"

namespace lauwerkrans::proef::storingen {

/// A file (or folder) of the club that is broken.
struct Suitebestand {
    std::string naam;                   // in the table
    std::string pad;                    // below the folder
    std::string bytes;                  // "<map>" stands for the folder; empty for a folder
    bool bijElkeLezing;                 // read anew by every calculation, not only at the start
    std::vector<std::string> berichten; // the messages that belong to it; "*" is any text
};

/// The club, by the names in the table.
[[nodiscard]] const std::vector<Suitebestand>& Suitebestanden();
[[nodiscard]] const Suitebestand& Bestand(const std::string& naam);

[[nodiscard]] std::vector<std::string> Bestandsnamen();

/// The folder of the club; its program folder is "Lauwerkrans" in it.
class Suite {
public:
    Suite() { legAan(); }

    /// Lays everything out afresh; what stood there is gone.
    void legAan() const;

    /// Writes a file; "<map>" in the bytes becomes the folder.
    void schrijf(const std::string& pad, const std::string& bytes) const;

    /// A text with "<map>" for the folder and "/" in the path behind it.
    [[nodiscard]] std::string zonderMap(std::string tekst) const;

    [[nodiscard]] const Proefmap& map() const { return map_; }
    [[nodiscard]] std::string programmaMap() const { return map_.pad() + "/Lauwerkrans"; }

private:
    Proefmap map_;
};

/// A list as text: the columns line, rank, pair, sessions and average joined by "|", a row a line.
/// These are the lists of the good club, and what is on show when there is none.
constexpr const char* goedeLijst = "A|1|Jan Smit - Piet van Berkelo|3|56,000\n"
                                   "A|2|Els Mol - Zoë Quast|2|46,250\n"
                                   "B|1|Jan Smit - Els Mol|2|50,000\n";
constexpr const char* geenLijst = "(none)";

/// What the program must do. Messages are exact but for "*", which is any text; "<reden>" is the
/// system's reason why a file cannot be opened. All have the exclamation icon.
struct Verwacht {
    std::vector<std::string> start;      // at a fresh start
    std::vector<std::string> bereken;    // at "Bereken" of all lines after it
    std::string lijst = goedeLijst;      // and the list then on show
    std::vector<std::string> einde = {}; // when the program is left

    /// "Bereken" in a run that is under way, where that differs: its messages; the list stays.
    std::optional<std::vector<std::string>> lopend = {};
};

using Ingreep = std::function<void(const Suite&, const Suitebestand&)>;

struct Storing {
    std::string naam;
    Ingreep ingreep;
    Verwacht verwacht;
};

/// The faults of a file, in the order of the table.
[[nodiscard]] std::vector<Storing> Storingen(const std::string& bestand);

// The tables, a file of the club each.
[[nodiscard]] std::vector<Storing> StoringenVanMappen();
[[nodiscard]] std::vector<Storing> StoringenVanLauwr();
[[nodiscard]] std::vector<Storing> StoringenVanCompData();
[[nodiscard]] std::vector<Storing> StoringenVanRondeData();
[[nodiscard]] std::vector<Storing> StoringenVanCompBums();
[[nodiscard]] std::vector<Storing> StoringenVanLeden();
[[nodiscard]] std::vector<Storing> StoringenVanPercZit();
[[nodiscard]] std::vector<Storing> StoringenVanMap(const std::string& bestand);

constexpr const char* onleesbaar = "unreadable"; // the fault whose reason differs

/// The faults that every text file can have: it is missing or a folder of its name stands there;
/// its contents are not those of such a file; it cannot be opened; its line ends or its start are
/// those of another system.
[[nodiscard]] std::vector<Storing> Gewone(const Verwacht& ontbreekt, const Verwacht& kapot,
                                          const Verwacht& onleesbareVorm);

/// Replaces a text of the file, which must stand in it once.
[[nodiscard]] Ingreep Vervang(const std::string& oud, const std::string& nieuw);

/// How large a large file is, in megabytes. The sanitizers look at every byte, so theirs is less.
#ifdef __SANITIZE_ADDRESS__
constexpr std::size_t megabytes = 5;
#else
constexpr std::size_t megabytes = 100;
#endif

/// "... of 100 MB"
[[nodiscard]] std::string VanGroot(const std::string& wat);

/// The file becomes `voor`, so many megabytes of "x", and `na`.
[[nodiscard]] Ingreep Groot(const std::string& voor, const std::string& na);

/// The file becomes these bytes.
[[nodiscard]] Ingreep Wordt(const std::string& bytes);

/// A text so many times.
[[nodiscard]] std::string Herhaal(const std::string& tekst, std::size_t keren);

} // namespace lauwerkrans::proef::storingen
