// `LedenNamen`: the members' display names by member number.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>

namespace lauwerkrans {

/// A table of names with indices 0..N. Memory grows with the members listed, not with N.
class LedenNamen {
public:
    explicit LedenNamen(std::int64_t hoogste = 0) : hoogste_(hoogste) {}

    /// N, the highest member number that the table can hold.
    [[nodiscard]] std::int64_t hoogste() const { return hoogste_; }

    /// Stores a name; a later name replaces an earlier one. False when the number is outside 0..N.
    [[nodiscard]] bool zet(std::int64_t nummer, std::string naam);

    /// A member's name; empty for every number that is not listed or lies outside the table.
    [[nodiscard]] const std::string& naam(std::int64_t nummer) const;

    /// The two names of a pair joined by " - ", in the order given.
    [[nodiscard]] std::string paar(std::int64_t lid1, std::int64_t lid2) const;

private:
    std::int64_t hoogste_ = 0;
    std::unordered_map<std::int64_t, std::string> namen_;
};

} // namespace lauwerkrans
