// C++ sources as words: names, texts and signs, without comments.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace lauwerkrans::berichten {

struct Woord {
    enum Soort { Naam, Tekst, Teken };
    Soort soort;
    std::string tekst; // a text without its quotes, \r, \n and \" resolved
    int regel;         // from 1

    [[nodiscard]] bool is(std::string_view teken) const { return soort == Teken && tekst == teken; }
    /// The name (or number), empty for a text or a sign.
    [[nodiscard]] std::string naam() const { return soort == Naam ? tekst : std::string(); }
};

using Woorden = std::vector<Woord>;

/// The words of a source file. "::" and "->" are one sign, others stand alone; texts that follow
/// each other are one.
[[nodiscard]] Woorden LeesWoorden(const std::filesystem::path& pad);
[[nodiscard]] Woorden SplitsWoorden(std::string_view bron);

} // namespace lauwerkrans::berichten
