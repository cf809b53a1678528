// The shapes of the session cells of a ranking: what their widths hang on.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "calc/lijsten.h"
#include "calc/resultaat.h"

namespace lauwerkrans {

/// Knows for each session which shapes (how many digits, a sign, a dash) its cells have. Looks at
/// every cell that was played once, so that the cost grows with these and not with pairs times
/// sessions.
class ZittingVormen {
public:
    explicit ZittingVormen(const ResultaatTabel& tabel);

    /// The width of the widest cell of a session (from 1), in the unit of `meet`; 0 without cells.
    [[nodiscard]] double breedste(std::size_t zitting, const Meter& meet) const;

private:
    static constexpr std::size_t vormen = 64;

    [[nodiscard]] static std::size_t vorm(const ZittingCel& cel);
    void kijk(const ZittingCel& cel);

    std::vector<std::uint64_t> gezien_; // element i - 1: a bit for every shape of session i
    std::array<std::string, vormen> voorbeelden_;
};

} // namespace lauwerkrans
