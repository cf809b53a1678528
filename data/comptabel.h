// `CompTabel`: the cells of CompData.txt by round, session and item.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace lauwerkrans {

/// A table (1..R, 1..Z, 1..K) of texts, filled in the order of the file: item innermost, then
/// session, then round. Memory grows with the cells read, not with the bounds; a cell not reached
/// is the empty text.
class CompTabel {
public:
    CompTabel() = default;
    CompTabel(std::int64_t ronden, std::int64_t zittingen, std::int64_t items)
        : ronden_(ronden), zittingen_(zittingen), items_(items) {}

    [[nodiscard]] std::int64_t ronden() const { return ronden_; }
    [[nodiscard]] std::int64_t zittingen() const { return zittingen_; }
    [[nodiscard]] std::int64_t items() const { return items_; }

    void voegToe(std::string_view tekst) {
        teksten_.append(tekst);
        einden_.push_back(teksten_.size());
    }

    [[nodiscard]] std::string cel(std::int64_t ronde, std::int64_t zitting,
                                  std::int64_t item) const {
        const bool binnen = ronde >= 1 && ronde <= ronden_ && zitting >= 1 &&
                            zitting <= zittingen_ && item >= 1 && item <= items_;
        if (!binnen) throw std::out_of_range("CompTabel");
        const auto plaats =
            static_cast<std::size_t>(((ronde - 1) * zittingen_ + zitting - 1) * items_ + item - 1);
        if (plaats >= einden_.size()) return {};
        const std::size_t begin = plaats == 0 ? 0 : einden_[plaats - 1];
        return teksten_.substr(begin, einden_[plaats] - begin);
    }

private:
    std::int64_t ronden_ = 0;
    std::int64_t zittingen_ = 0;
    std::int64_t items_ = 0;
    std::string teksten_; // of all cells, one behind the other
    std::vector<std::size_t> einden_;
};

} // namespace lauwerkrans
