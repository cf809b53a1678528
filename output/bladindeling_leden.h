// The pages of a member's control list: its score rows in columns below the list's title.
#pragma once

#include <array>
#include <memory>

#include "calc/lijsten.h"
#include "output/bladindeling.h"

namespace lauwerkrans {

/// Columns, from the left margin: the eight of a score row.
constexpr std::array<double, 8> kolommenLeden = {0, 8, 34, 50, 74, 76, 86, 88};

class BladenLeden : public Bladen {
public:
    BladenLeden(std::shared_ptr<const Lijst> lijst, double hoogte);

    [[nodiscard]] std::size_t aantal() const override;
    [[nodiscard]] double hoogte() const override { return hoogte_; }
    [[nodiscard]] Blad blad(std::size_t nummer, const Meting& meting,
                            const Uitsnede& deel = {}) const override;

private:
    std::shared_ptr<const Lijst> lijst_;
    double hoogte_;
    std::size_t opBlad_; // rows on a page
};

} // namespace lauwerkrans
