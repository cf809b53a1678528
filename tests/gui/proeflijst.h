// A list of any size for the grid, made in memory: it has no texts but what it is asked for, and
// counts how often it is asked.
#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "calc/lijsten.h"

namespace lauwerkrans::proef {

class ProefLijst : public Lijst {
public:
    /// The header of every column; the cells of a column are `breedte` mm wide at most.
    ProefLijst(std::size_t rijen, const std::vector<std::string>& koppen, double breedte)
        : rijen_(rijen), breedte_(breedte) {
        titel_ = "Proef";
        koppen_ = koppen;
    }

    [[nodiscard]] std::size_t rijen() const override { return rijen_; }

    [[nodiscard]] std::string cel(std::size_t rij, std::size_t kolom) const override {
        ++gevraagd;
        eersteRij = std::min(eersteRij, rij);
        laatsteRij = std::max(laatsteRij, rij);
        eersteKolom = std::min(eersteKolom, kolom);
        laatsteKolom = std::max(laatsteKolom, kolom);
        return tekst ? tekst(rij, kolom) : std::to_string(rij);
    }

    [[nodiscard]] bool vet(std::size_t kolom) const override {
        return std::find(vetteKolommen.begin(), vetteKolommen.end(), kolom) != vetteKolommen.end();
    }

    [[nodiscard]] char lijn(std::size_t rij) const override {
        return static_cast<char>('A' + static_cast<int>((rij - 1) % 26));
    }

    [[nodiscard]] double breedsteCel(std::size_t /*kolom*/, const Meter& /*meet*/) const override {
        return breedte_;
    }

    /// Forgets what was asked for.
    void vergeet() const {
        gevraagd = 0;
        eersteRij = eersteKolom = static_cast<std::size_t>(-1);
        laatsteRij = laatsteKolom = 0;
    }

    std::function<std::string(std::size_t rij, std::size_t kolom)> tekst;
    std::vector<std::size_t> vetteKolommen;

    mutable std::size_t gevraagd = 0;
    mutable std::size_t eersteRij = static_cast<std::size_t>(-1);
    mutable std::size_t laatsteRij = 0;
    mutable std::size_t eersteKolom = static_cast<std::size_t>(-1);
    mutable std::size_t laatsteKolom = 0;

private:
    std::size_t rijen_;
    double breedte_;
};

/// A list of `kolommen` columns that are each `kolomMm` wide, margins included.
inline std::shared_ptr<ProefLijst> MaakProefLijst(std::size_t rijen, std::size_t kolommen,
                                                  double kolomMm) {
    constexpr double marges = 2.0;
    return std::make_shared<ProefLijst>(rijen, std::vector<std::string>(kolommen, "K"),
                                        kolomMm - marges);
}

} // namespace lauwerkrans::proef
