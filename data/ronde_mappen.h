// The folders of a competition:
//   <competition>\CompData.txt
//   <competition>\Ronde-<N>\RondeData.txt (read in Ronde-1 only), CompBums.txt
//   <competition>\Ronde-<N>\Zitting-<M>\PercZit-<M>.txt
// N and M are plain decimal numbers from 1.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "data/rondeinfo.h"
#include "data/systeem.h"

namespace lauwerkrans {

/// Paths as the suite writes them.
[[nodiscard]] std::string RondePad(const std::string& competitie, std::size_t ronde);
[[nodiscard]] std::string PercZitPad(const std::string& competitie, std::size_t ronde,
                                     std::size_t zitting);

/// The round folders of a competition, each listed once: finds their files in any letter case
/// without asking the system for every name.
class RondeMappen {
public:
    /// Lists the folders of rounds 1 to `ronden`. Throws Fout when one is there but not readable
    /// and, with rounds to look for, when the competition's folder is not there.
    RondeMappen(std::string competitie, std::size_t ronden);

    [[nodiscard]] const std::string& competitie() const { return competitie_; }
    [[nodiscard]] std::size_t ronden() const { return mappen_.size(); }

    /// The real path of a round's CompBums.txt; empty when the round has none.
    [[nodiscard]] std::optional<std::string> compBums(std::size_t ronde) const;

    /// How many of the sessions 1 to `zittingen` of all rounds have a folder.
    [[nodiscard]] std::size_t zittingMappen(std::size_t zittingen) const;

    /// Whether a session has a percentage file; the file is not opened.
    [[nodiscard]] bool heeftPercZit(std::size_t ronde, std::size_t zitting) const;

    /// Reads a session's percentage file; false when there is none. Throws Fout
    /// (BestandNietLeesbaar) when it is there but cannot be read, or when the competition's folder
    /// has gone meanwhile.
    [[nodiscard]] bool leesPercZit(std::size_t ronde, std::size_t zitting,
                                   systeem::Leesbuffer& buffer) const;

private:
    struct Map {
        std::string pad;
        std::vector<std::string> namen;
    };

    [[nodiscard]] std::vector<std::string> namen() const;
    void controleer() const { static_cast<void>(namen()); }
    [[nodiscard]] std::optional<std::string> zittingMap(std::size_t ronde,
                                                        std::size_t zitting) const;

    std::string competitie_;
    std::string map_; // where it really is
    std::vector<Map> mappen_;
};

/// Counts the sessions that have a percentage file; no file is opened.
[[nodiscard]] RondeInfo MaakRondeInfo(const RondeMappen& mappen, std::size_t zittingen);

} // namespace lauwerkrans
