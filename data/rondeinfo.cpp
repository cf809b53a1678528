#include "data/rondeinfo.h"

#include <algorithm>
#include <stdexcept>

namespace lauwerkrans {

RondeInfo::RondeInfo(std::size_t ronden, std::size_t zittingen, const std::vector<bool>& gespeeld)
    : zittingen_(zittingen), perRonde_(ronden, 0), volgnummers_(ronden * zittingen, 0) {
    for (std::size_t i = 0; i < volgnummers_.size(); ++i) {
        if (!gespeeld.at(i)) continue;
        volgnummers_[i] = ++totaal_;
        ++perRonde_[i / zittingen];
    }
}

std::size_t RondeInfo::volgnummer(std::size_t ronde, std::size_t zitting) const {
    if (ronde < 1 || zitting < 1 || zitting > zittingen_) throw std::out_of_range("RondeInfo");
    return volgnummers_.at((ronde - 1) * zittingen_ + zitting - 1);
}

std::pair<std::size_t, std::size_t> RondeInfo::zitting(std::size_t volgnummer) const {
    const auto plaats = std::find(volgnummers_.begin(), volgnummers_.end(), volgnummer);
    if (volgnummer == 0 || plaats == volgnummers_.end()) throw std::out_of_range("RondeInfo");
    const auto nummer = static_cast<std::size_t>(plaats - volgnummers_.begin());
    return {nummer / zittingen_ + 1, nummer % zittingen_ + 1};
}

std::string RondeInfo::cel(std::size_t ronde, std::size_t kolom) const {
    const std::size_t aantalGespeeld = gespeeld(ronde);
    switch (kolom) {
    case 1: // columns 1 and 2 are filled session by session, so not at all without sessions
        return zittingen_ == 0 ? std::string() : std::to_string(ronde);
    case 2:
        return zittingen_ == 0 ? std::string() : std::to_string(zittingen_);
    case 3:
        return std::to_string(zittingen_);
    case 4:
        return std::to_string(aantalGespeeld);
    default:
        throw std::out_of_range("RondeInfo");
    }
}

} // namespace lauwerkrans
