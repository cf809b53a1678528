// Finds the number of a pair by its key, a million and a half times in one reading.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace lauwerkrans {

/// A hash table from keys to the numbers 0, 1, 2, ... in the order in which the keys first came.
/// Open addressing in one piece of memory, at most three quarters full.
class PaarIndex {
public:
    PaarIndex() : plaatsen_(std::size_t{1} << bits_) {}

    /// The number of a key; a key not seen before gets the next one.
    [[nodiscard]] std::uint32_t nummer(std::uint64_t sleutel) {
        Plaats& plaats = zoek(sleutel);
        if (plaats.nummer != leeg) return plaats.nummer;
        const auto nieuw = aantal_++;
        plaats = {sleutel, nieuw};
        if (4 * std::size_t{aantal_} > 3 * plaatsen_.size()) verdubbel();
        return nieuw;
    }

private:
    static constexpr std::uint32_t leeg = 0xFFFFFFFF;

    struct Plaats {
        std::uint64_t sleutel = 0;
        std::uint32_t nummer = leeg;
    };

    /// The place of a key, or the empty one where it belongs.
    [[nodiscard]] Plaats& zoek(std::uint64_t sleutel) {
        // Neighbours far apart; only the highest bits of the product hang on every bit of the key.
        const std::uint64_t gespreid = sleutel * 0x9E3779B97F4A7C15U;
        const std::size_t masker = plaatsen_.size() - 1;
        auto i = static_cast<std::size_t>(gespreid >> (64U - bits_));
        while (plaatsen_[i].nummer != leeg && plaatsen_[i].sleutel != sleutel)
            i = (i + 1) & masker;
        return plaatsen_[i];
    }

    void verdubbel() {
        ++bits_;
        std::vector<Plaats> oud(2 * plaatsen_.size());
        oud.swap(plaatsen_);
        for (const Plaats& plaats : oud) {
            if (plaats.nummer != leeg) zoek(plaats.sleutel) = plaats;
        }
    }

    unsigned bits_ = 10; // of a place's number
    std::vector<Plaats> plaatsen_;
    std::uint32_t aantal_ = 0;
};

} // namespace lauwerkrans
