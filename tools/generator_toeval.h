// Chance that is the same on every system: a generator that the standard fixes to the bit, and
// whole-number arithmetic of our own on top of it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <utility>
#include <vector>

namespace lauwerkrans::generator {

class Toeval {
public:
    explicit Toeval(std::uint64_t zaad) : motor_(zaad) {}

    /// A number from 0 up to `grens` - 1, each as likely; `grens` is at least 1.
    [[nodiscard]] int onder(int grens);

    /// A number from `laag` up to and including `hoog`, each as likely.
    [[nodiscard]] int tussen(int laag, int hoog);

    /// A number around 0, small ones more likely than large ones; never beyond 4 x `breedte`.
    [[nodiscard]] int klok(int breedte);

    /// True in `procent` of a hundred cases.
    [[nodiscard]] bool kans(int procent) { return onder(100) < procent; }

    /// Puts a random choice, in random order, on the first `aantal` places of `rij`.
    template <class T>
    void hussel(std::vector<T>& rij, std::size_t aantal) {
        for (std::size_t i = 0; i < aantal && i < rij.size(); ++i) {
            const auto rest = static_cast<int>(rij.size() - i);
            std::swap(rij[i], rij[i + static_cast<std::size_t>(onder(rest))]);
        }
    }

private:
    std::mt19937_64 motor_;
};

} // namespace lauwerkrans::generator
