// Competitions of several sizes, written once in a temporary folder and removed at the end.
#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include "data/modAlgemeen.h"

namespace lauwerkrans::bench {

/// One size. A club's year, a large archive, and the largest that the row code can hold.
struct Maat {
    const char* naam;
    int ronden;
    int zittingen;
    int paren; // per session
    int leden;
    int lijnen;
    bool vastePartners;
};

inline constexpr Maat club = {"club", 5, 5, 36, 80, 3, true};
inline constexpr Maat groot = {"groot", 30, 33, 80, 400, 5, true};
inline constexpr Maat grootst = {"grootst", 99, 99, 160, 1000, 8, true};
inline constexpr Maat achtduizend = {"8000 paren", 99, 99, 60, 128, 1, false};
/// So many of the 99 rounds of the largest: about as many percent of its files and rows.
constexpr Maat Deel(int ronden) { return {"deel", ronden, 99, 160, 1000, 8, true}; }
inline constexpr Maat losseParen = {"losse paren", 99, 99, 160, 1000, 8, false};

class Competitie {
public:
    explicit Competitie(const Maat& maat);
    Competitie(const Competitie&) = delete;
    Competitie(Competitie&&) = delete;
    Competitie& operator=(const Competitie&) = delete;
    Competitie& operator=(Competitie&&) = delete;
    ~Competitie();

    /// The program folder that a window may be started on.
    [[nodiscard]] std::string programmaMap() const { return (map_ / "Lauwerkrans").string(); }

    /// The percentage files that are there, as the system writes their paths.
    [[nodiscard]] const std::vector<std::string>& bestanden() const { return bestanden_; }

    Algemeen algemeen; // loaded

private:
    std::filesystem::path map_;
    std::vector<std::string> bestanden_;
};

/// Opens, reads into one buffer and closes all percentage files; returns the bytes read.
[[nodiscard]] std::size_t LeesKaal(const Competitie& competitie);

/// Seconds that `werk` takes.
template <class Werk>
[[nodiscard]] double Duur(Werk werk) {
    const auto begin = std::chrono::steady_clock::now();
    werk();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

/// Peak memory of the process so far, in megabytes.
[[nodiscard]] double PiekMegabytes();

/// The middle one of an odd number of values.
[[nodiscard]] double Mediaan(std::vector<double> waarden);

} // namespace lauwerkrans::bench
