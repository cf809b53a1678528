// The few calls that differ from system to system. Paths are UTF-8 and may be joined with "\" or,
// where the system does so, with "/". No other file of the core calls the system.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace lauwerkrans::systeem {

/// The bytes of one file, with NUL bytes behind them (achttal::opvulling). Its room is used again
/// for the next file.
struct Leesbuffer {
    std::vector<char> ruimte;
    std::size_t lengte = 0;

    [[nodiscard]] std::string_view bytes() const { return {ruimte.data(), lengte}; }
};

/// Reads a whole file, replacing what stood in the buffer. The error of the system otherwise (the
/// buffer is then empty); a folder of that name counts as no such file.
[[nodiscard]] std::error_code LeesBestand(const std::string& pad, Leesbuffer& buffer);

/// Replaces a file by one with these bytes: written beside it, flushed to the disk, then renamed.
/// On an error the earlier file stands as it was and nothing is left beside it.
[[nodiscard]] std::error_code VervangBestand(const std::string& pad, std::string_view bytes);

/// Makes a folder; one that stands there already is left as it is. The error of the system
/// otherwise, also when a file of that name stands there.
[[nodiscard]] std::error_code MaakMap(const std::string& pad);

/// Whether a file stands at exactly this path; a folder is none.
[[nodiscard]] bool IsBestand(const std::string& pad);

/// Whether the system asks programs for high contrast. Only Windows has a call for it.
[[nodiscard]] bool VraagtHoogContrast();

/// Whether a file or a folder stands at exactly this path.
[[nodiscard]] bool Bestaat(const std::string& pad);

/// Fills `namen` with the names in a folder, sorted; with none when there is no such folder. The
/// error of the system when it is there but cannot be read.
[[nodiscard]] std::error_code NamenInMap(const std::string& pad, std::vector<std::string>& namen);

/// A path as the system's users write it: "\" on Windows, "/" elsewhere.
[[nodiscard]] std::string Schrijfwijze(std::string_view pad);

/// Held by the one running copy of the program per user; the system drops it with the process, so
/// that a crash keeps nobody out.
class EnigeKopie {
public:
    /// Tries to be the one copy of the program of this name.
    explicit EnigeKopie(const std::string& programma);
    EnigeKopie(const EnigeKopie&) = delete;
    EnigeKopie(EnigeKopie&&) = delete;
    EnigeKopie& operator=(const EnigeKopie&) = delete;
    EnigeKopie& operator=(EnigeKopie&&) = delete;
    ~EnigeKopie();

    /// False when another copy is running.
    [[nodiscard]] bool gelukt() const { return gelukt_; }

private:
    std::intptr_t greep_ = -1; // the system's name for it
    bool gelukt_ = true;
};

/// Whether names that differ only in letter case name the same file.
[[nodiscard]] bool LetterkastTeltNiet();

/// The upper half of a code page of one byte a character: the characters of the bytes 0x80 to 0xFF
/// and the capital of each (itself when it has none).
struct Bovenhelft {
    std::array<char16_t, 128> tekens{};
    std::array<char16_t, 128> hoofdletters{};
};

/// The code page of the system's own text files; empty where the system has none, or one that
/// takes more than one byte a character.
[[nodiscard]] std::optional<Bovenhelft> EigenCodetabel();

} // namespace lauwerkrans::systeem
