// `RondeInfo`: the rounds of a competition and which of their sessions have been played.
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace lauwerkrans {

/// A table (1..R, 1..4) of texts: round number, sessions per round, the same again, number of
/// sessions whose percentage file exists.
class RondeInfo {
public:
    RondeInfo() = default;

    /// `gespeeld` holds one mark per session, round after round: R x Z of them.
    RondeInfo(std::size_t ronden, std::size_t zittingen, const std::vector<bool>& gespeeld);

    [[nodiscard]] std::size_t ronden() const { return perRonde_.size(); }
    [[nodiscard]] std::size_t zittingen() const { return zittingen_; }

    /// Column 4: the number of sessions of a round that have a percentage file.
    [[nodiscard]] std::size_t gespeeld(std::size_t ronde) const { return perRonde_.at(ronde - 1); }

    /// The number of played sessions of all rounds together.
    [[nodiscard]] std::size_t totaal() const { return totaal_; }

    /// The number of a session among the played ones: those of the earlier rounds plus its place
    /// among the played sessions of its own round, from 1; 0 when it has not been played.
    [[nodiscard]] std::size_t volgnummer(std::size_t ronde, std::size_t zitting) const;

    /// Round and session of such a number. Throws std::out_of_range when no session has it.
    [[nodiscard]] std::pair<std::size_t, std::size_t> zitting(std::size_t volgnummer) const;

    /// The text of a cell; columns 1 to 4.
    [[nodiscard]] std::string cel(std::size_t ronde, std::size_t kolom) const;

private:
    std::size_t zittingen_ = 0;
    std::size_t totaal_ = 0;
    std::vector<std::size_t> perRonde_;
    std::vector<std::size_t> volgnummers_;
};

} // namespace lauwerkrans
