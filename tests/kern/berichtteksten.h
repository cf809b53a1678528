// The messages that the program can show, read from its own sources: every call of `meld`, and
// every message that is made to be given to one. What changes from time to time in a message (a
// name, a number, a path) is "…", and blanks and line ends together are one blank.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace lauwerkrans::berichten {

using Teksten = std::vector<std::string>;

/// The texts of functions that make messages elsewhere than where they are shown, by their name.
using Makers = std::map<std::string, Teksten>;

struct Oogst {
    std::size_t plaatsen = 0; // where the sources make a message
    Teksten teksten;
    Teksten bezwaren; // "file:line: what this check cannot follow"
};

/// Looks through app, calc, data, output and ui below `bron`. Objects to a message whose text is
/// neither written there nor that of a maker, and to message boxes shown in another way than by
/// `meld`.
[[nodiscard]] Oogst LeesBerichten(const std::filesystem::path& bron, const Makers& makers);

/// Blanks and line ends together are one blank; none at the ends.
[[nodiscard]] std::string EenRegel(const std::string& tekst);

} // namespace lauwerkrans::berichten
