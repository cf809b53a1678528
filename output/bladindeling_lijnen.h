// The pages of the champion list: a block per line, never torn where it fits a page.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "calc/overzicht.h"
#include "output/bladindeling.h"

namespace lauwerkrans {

/// Columns, from the left margin.
constexpr std::array<double, 8> kolommenLijnen = {0, 14, 96, 111, 128, 168, 168, 168};

/// An entry per row of the result, row 1 first: for the first row of a line the number of rows of
/// that line, 0 for the others. A line that comes again later in the list starts anew.
[[nodiscard]] std::vector<std::size_t> RijenPerLijn(const ResultaatTabel& resultaat);

/// A block on its page: the rows of one line or, when they do not fit a page, some of them.
struct Blok {
    std::size_t eersteRij = 1;
    std::size_t rijen = 0;
    std::size_t blad = 1;
    double boven = 0;  // y of its upper edge
    double factor = 1; // below 1 for a block that is made smaller to fit its page
};

/// Divides the lines over pages of this height.
[[nodiscard]] std::vector<Blok> Pagineer(const std::vector<std::size_t>& rijenPerLijn,
                                         double bladHoogte);

class BladenLijnen : public Bladen {
public:
    /// The list may be missing: one page with its head then.
    BladenLijnen(Uitvoer uitvoer, double hoogte);

    [[nodiscard]] std::size_t aantal() const override;
    [[nodiscard]] double hoogte() const override { return hoogte_; }
    [[nodiscard]] Blad blad(std::size_t nummer, const Meting& meting,
                            const Uitsnede& deel = {}) const override;

private:
    void zetBlok(Bladzetter& zetter, const Blok& blok) const;

    Uitvoer uitvoer_;
    double hoogte_;
    std::vector<Blok> blokken_;
};

} // namespace lauwerkrans
