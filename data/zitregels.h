// `ZitRegels`: one row per pair and session. A table (1..R x Z x 160, 1..8) of texts to whoever
// asks for a cell; kept as typed rows, so that a million and a half of them fit.
//
//   column 1  line letter            5  empty
//          2  PaarSleutel            6  "BUM" when played out of competition
//          3  percentage as read     7  empty
//          4  row code R01-Z02-24    8  both names, in the order of the file
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "data/ledennamen.h"

namespace lauwerkrans {

/// Room of the table per session of the competition.
constexpr std::size_t parenPerZitting = 160;

constexpr std::size_t zitRegelKolommen = 8;

struct ZitRegel {
    std::uint32_t lid1 = 0; // member numbers in the order of the file
    std::uint32_t lid2 = 0;
    std::int32_t percentage = 0; // its digits as a whole number, or a place in ZitRegels
    std::int32_t spellen = 0;
    char lijn = ' ';
    std::uint8_t ronde = 0;
    std::uint8_t zitting = 0;
    std::uint8_t vorm : 7 = 0; // how the percentage is written
    bool bum : 1 = false;

    /// The members in the order of the key.
    [[nodiscard]] std::uint32_t laagste() const { return lid1 < lid2 ? lid1 : lid2; }
    [[nodiscard]] std::uint32_t hoogste() const { return lid1 < lid2 ? lid2 : lid1; }
};

class ZitRegels {
public:
    ZitRegels() = default;
    ZitRegels(std::size_t ruimte, std::shared_ptr<const LedenNamen> leden);

    /// The table's upper bound, and how many rows are filled: 1 to gevuld().
    [[nodiscard]] std::size_t ruimte() const { return ruimte_; }
    [[nodiscard]] std::size_t gevuld() const { return regels_.size(); }
    [[nodiscard]] bool vol() const { return regels_.size() == ruimte_; }

    /// Adds a row with a percentage as the file gives it (bytes of the code page).
    void voegToe(ZitRegel regel, std::string_view percentage);

    [[nodiscard]] const ZitRegel& regel(std::size_t i) const { return regels_.at(i - 1); }
    [[nodiscard]] const std::vector<ZitRegel>& regels() const { return regels_; }
    [[nodiscard]] const LedenNamen& leden() const { return *leden_; }
    [[nodiscard]] const std::shared_ptr<const LedenNamen>& gedeeldeLeden() const { return leden_; }

    static constexpr std::int32_t geenPercentage = -1;

    /// The percentage of a row in thousandths of a percent, or geenPercentage.
    [[nodiscard]] std::int32_t duizendsten(const ZitRegel& regel) const;

    /// Column 3: the percentage as the file gives it.
    [[nodiscard]] std::string percentage(const ZitRegel& regel) const;

    /// The text of a cell; empty in a row that is not filled.
    [[nodiscard]] std::string cel(std::size_t i, std::size_t kolom) const;

private:
    /// A percentage written in an unusual way.
    struct Apart {
        std::string tekst;
        std::int32_t duizendsten;
    };

    std::size_t ruimte_ = 0;
    std::vector<ZitRegel> regels_;
    std::vector<Apart> apart_;
    std::shared_ptr<const LedenNamen> leden_ = std::make_shared<const LedenNamen>();
};

/// Column 4: "R", round, "-Z", session, "-", boards, each with two digits at least.
[[nodiscard]] std::string RegelCode(const ZitRegel& regel);

} // namespace lauwerkrans
