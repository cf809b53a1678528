// The pages of the ranking over all lines: one running list, in pages for the printer, as one long
// page for the preview.
#pragma once

#include <array>
#include <memory>

#include "calc/overzicht.h"
#include "output/bladindeling.h"

namespace lauwerkrans {

/// Columns, from the left margin.
constexpr std::array<double, 6> kolommenTotaal = {0, 14, 96, 111, 130, 170};

/// The height of the one long page that shows so many rows; never below that of A4.
[[nodiscard]] double LangBladHoogte(std::size_t rijen);

class BladenTotaal : public Bladen {
public:
    /// In pages of this height. The list may be missing.
    BladenTotaal(Uitvoer uitvoer, double hoogte);
    /// As one long page.
    explicit BladenTotaal(Uitvoer uitvoer);

    [[nodiscard]] std::size_t aantal() const override;
    [[nodiscard]] double hoogte() const override { return hoogte_; }
    [[nodiscard]] Blad blad(std::size_t nummer, const Meting& meting,
                            const Uitsnede& deel = {}) const override;

private:
    [[nodiscard]] bool toonLijn() const { return uitvoer_.ToonLijnen == 1; }
    [[nodiscard]] bool toonZittingen() const { return uitvoer_.ToonZittingen == 1; }
    void zetKolomkop(Bladzetter& zetter) const;
    void zetRij(Bladzetter& zetter, std::size_t nummer, double y) const;

    Uitvoer uitvoer_;
    double hoogte_;
    std::size_t rijen_;
    std::size_t opBlad_; // rows on a page
};

} // namespace lauwerkrans
