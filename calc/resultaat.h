// `ResultaatTabel`: the ranking as it was calculated. A table (0..M, 0..5 + S) of texts to whoever
// asks for a cell; session cells are kept only where played.
//
//   column 1  line letter                 4  number of sessions counted
//          2  rank, "(" n ")" in a tie    5  average percentage (57,125)
//          3  both names                  6..5 + S  session cells (57,125_24, "-" or empty)
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "data/ledennamen.h"

namespace lauwerkrans {

/// A session that a pair played.
struct ZittingCel {
    std::int32_t duizendsten = 0; // percentage in thousandths of a percent; 0: no score
    std::int32_t spellen = 0;
    std::uint16_t kolom = 0; // global number of the session, from 1
    bool streep = false;     // shown as "-"

    /// The text of the cell: percentage "00.000", "_", boards "00".
    [[nodiscard]] std::string tekst() const;

    /// The same in words: "24 spellen, 57,125 %".
    [[nodiscard]] std::string uitleg() const;
};

/// A pair with its sessions, a slice of ResultaatTabel::cellen in the order of their columns.
struct PaarRij {
    std::uint32_t lid1 = 0; // in the order of the key: the lower number first
    std::uint32_t lid2 = 0;
    std::uint32_t eersteCel = 0;
    std::uint32_t aantalCellen = 0;
    std::int32_t zittingen = 0;  // counted sessions
    std::int32_t gemiddelde = 0; // thousandths of a percent
    std::uint32_t rang = 0;      // 1, 2, ...; of the first pair of the group in a tie
    bool gelijk = false;         // part of a tie
    char lijn = ' ';
};

struct ResultaatTabel {
    std::vector<PaarRij> rijen; // the ranked pairs, row 1 first
    std::vector<ZittingCel> cellen;
    std::size_t bovengrens = 0; // M: the ranked pairs and the empty rows behind them
    std::size_t zittingen = 0;  // S: the played sessions
    std::shared_ptr<const LedenNamen> leden = std::make_shared<const LedenNamen>();

    /// The text of a cell: row 1 to bovengrens, column 1 to 5 + S. Throws std::out_of_range.
    [[nodiscard]] std::string cel(std::size_t rij, std::size_t kolom) const;

    /// The cell of a session, or nullptr when the pair did not play it.
    [[nodiscard]] const ZittingCel* zitting(const PaarRij& rij, std::size_t kolom) const;
};

/// An average or percentage in thousandths of a percent as text: 57125 is 57,125.
[[nodiscard]] std::string PercentageTekst(std::int32_t duizendsten);

} // namespace lauwerkrans
