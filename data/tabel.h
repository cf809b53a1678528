// Tables of text cells: rectangular, with lower bound 0 in each dimension. Index 0 is never used,
// loops run from 1. A cell never filled is the empty text; an index past the bounds throws
// std::out_of_range.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <vector>

namespace lauwerkrans {

/// One-dimensional, 0..bovengrens(), grown cell by cell.
class Rij {
public:
    [[nodiscard]] std::size_t bovengrens() const { return cellen_.size() - 1; }
    [[nodiscard]] const std::string& cel(std::size_t i) const { return cellen_.at(i); }
    void voegToe(std::string tekst) { cellen_.push_back(std::move(tekst)); }

private:
    std::vector<std::string> cellen_ = std::vector<std::string>(1);
};

/// Two-dimensional, (0..rijen(), 0..kolommen()).
class Tabel {
public:
    Tabel() = default;
    Tabel(std::size_t rijen, std::size_t kolommen)
        : rijen_(rijen), kolommen_(kolommen), cellen_((rijen + 1) * (kolommen + 1)) {}

    [[nodiscard]] std::size_t rijen() const { return rijen_; }
    [[nodiscard]] std::size_t kolommen() const { return kolommen_; }
    [[nodiscard]] const std::string& cel(std::size_t rij, std::size_t kolom) const {
        return cellen_.at(plaats(rij, kolom));
    }
    void zet(std::size_t rij, std::size_t kolom, std::string tekst) {
        cellen_.at(plaats(rij, kolom)) = std::move(tekst);
    }

private:
    [[nodiscard]] std::size_t plaats(std::size_t rij, std::size_t kolom) const {
        if (rij > rijen_ || kolom > kolommen_) throw std::out_of_range("Tabel");
        return rij * (kolommen_ + 1) + kolom;
    }

    std::size_t rijen_ = 0;
    std::size_t kolommen_ = 0;
    std::vector<std::string> cellen_ = std::vector<std::string>(1);
};

} // namespace lauwerkrans
