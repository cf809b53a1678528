// What a program asked of the system, from the record of strace, and a list of what it may ask.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace lauwerkrans::proef {

enum class Daad { Leest, Schrijft, Spreekt, Start };

/// One thing that was done, with the file, the address or the program.
struct Spoor {
    Daad daad;
    std::string wat;

    auto operator<=>(const Spoor&) const = default;
};

/// The options that strace needs for a record that LeesSporen can read.
extern const std::vector<std::string> straceOpties;

/// All that stands in the records of one run, one file per thread, whose paths begin with
/// `begin`. Reading counts where it succeeded, the rest also where it was only tried. The program's
/// own start is left out.
[[nodiscard]] std::vector<Spoor> LeesSporen(const std::filesystem::path& begin);

/// One row of the list: what may be done, always or only when printing.
struct Recht {
    Spoor patroon;
    bool bijPrinten;
};

/// The tables "Reads", "Writes" and "Talks to" of a document.
[[nodiscard]] std::vector<Recht> LeesRechten(const std::filesystem::path& document);

/// Whether a row allows it. `mappen` are the folders that the names in braces stand for; a folder
/// above one of these is "{above}".
[[nodiscard]] bool StaatToe(const Recht& recht, const Spoor& spoor,
                            const std::map<std::string, std::string>& mappen);

} // namespace lauwerkrans::proef
