#include "data/ronde_mappen.h"

#include <utility>

#include "data/tekstbestand.h"

namespace lauwerkrans {

namespace {

std::string RondeNaam(std::size_t ronde) { return "Ronde-" + std::to_string(ronde); }
std::string ZittingNaam(std::size_t zitting) { return "Zitting-" + std::to_string(zitting); }
std::string PercZitNaam(std::size_t zitting) {
    return "PercZit-" + std::to_string(zitting) + ".txt";
}

std::vector<std::string> Namen(const std::string& pad) {
    std::vector<std::string> namen;
    const std::error_code code = systeem::NamenInMap(pad, namen);
    if (code) GooiNietLeesbaar(pad, code);
    return namen;
}

/// The path of a session's percentage file in another letter case; empty when there is none.
std::optional<std::string> AndereLetterkast(const std::string& map, std::size_t zitting) {
    if (systeem::LetterkastTeltNiet()) return std::nullopt;
    const auto naam = ZoekNaam(Namen(map), PercZitNaam(zitting));
    return naam ? std::optional(VoegPad(map, *naam)) : std::nullopt;
}

} // namespace

std::string RondePad(const std::string& competitie, std::size_t ronde) {
    return VoegPad(competitie, RondeNaam(ronde));
}

std::string PercZitPad(const std::string& competitie, std::size_t ronde, std::size_t zitting) {
    return VoegPad(VoegPad(RondePad(competitie, ronde), ZittingNaam(zitting)),
                   PercZitNaam(zitting));
}

RondeMappen::RondeMappen(std::string competitie, std::size_t ronden)
    : competitie_(std::move(competitie)), mappen_(ronden) {
    if (ronden == 0) return;
    map_ = WerkelijkPad(competitie_);
    const auto namen = this->namen();
    for (std::size_t ronde = 1; ronde <= ronden; ++ronde) {
        const auto naam = ZoekNaam(namen, RondeNaam(ronde));
        if (!naam) continue;
        Map& deel = mappen_[ronde - 1];
        deel.pad = VoegPad(map_, *naam);
        deel.namen = Namen(deel.pad);
        if (deel.namen.empty()) controleer(); // a file of that name, or all of it gone
    }
}

/// What stands in the competition's folder. It was there when its data were read: a disk that is
/// gone must not pass for no scores. A folder has itself among its names.
std::vector<std::string> RondeMappen::namen() const {
    auto namen = Namen(map_);
    if (namen.empty())
        GooiNietLeesbaar(competitie_, std::make_error_code(std::errc::not_a_directory));
    return namen;
}

std::optional<std::string> RondeMappen::compBums(std::size_t ronde) const {
    const Map& map = mappen_.at(ronde - 1);
    const auto naam = ZoekNaam(map.namen, "CompBums.txt");
    return naam ? std::optional(VoegPad(map.pad, *naam)) : std::nullopt;
}

std::optional<std::string> RondeMappen::zittingMap(std::size_t ronde, std::size_t zitting) const {
    const Map& map = mappen_.at(ronde - 1);
    const auto naam = ZoekNaam(map.namen, ZittingNaam(zitting));
    return naam ? std::optional(VoegPad(map.pad, *naam)) : std::nullopt;
}

std::size_t RondeMappen::zittingMappen(std::size_t zittingen) const {
    std::size_t aantal = 0;
    for (std::size_t ronde = 1; ronde <= ronden(); ++ronde) {
        for (std::size_t zitting = 1; zitting <= zittingen; ++zitting) {
            if (zittingMap(ronde, zitting)) ++aantal;
        }
    }
    return aantal;
}

bool RondeMappen::heeftPercZit(std::size_t ronde, std::size_t zitting) const {
    const auto map = zittingMap(ronde, zitting);
    if (!map) return false;
    if (systeem::IsBestand(VoegPad(*map, PercZitNaam(zitting)))) return true;
    const auto ander = AndereLetterkast(*map, zitting);
    return ander && systeem::IsBestand(*ander);
}

bool RondeMappen::leesPercZit(std::size_t ronde, std::size_t zitting,
                              systeem::Leesbuffer& buffer) const {
    const auto map = zittingMap(ronde, zitting);
    if (!map) return false;
    const std::errc ontbreekt = std::errc::no_such_file_or_directory;
    std::error_code code = systeem::LeesBestand(VoegPad(*map, PercZitNaam(zitting)), buffer);
    if (code == ontbreekt) {
        const auto ander = AndereLetterkast(*map, zitting);
        if (ander) code = systeem::LeesBestand(*ander, buffer);
    }
    if (code == ontbreekt || code == std::errc::not_a_directory) {
        controleer(); // its folder was there: has it no file, or is all of it gone?
        return false;
    }
    if (code) GooiNietLeesbaar(PercZitPad(competitie_, ronde, zitting), code);
    return true;
}

RondeInfo MaakRondeInfo(const RondeMappen& mappen, std::size_t zittingen) {
    std::vector<bool> gespeeld;
    for (std::size_t ronde = 1; ronde <= mappen.ronden(); ++ronde) {
        for (std::size_t zitting = 1; zitting <= zittingen; ++zitting) {
            gespeeld.push_back(mappen.heeftPercZit(ronde, zitting));
        }
    }
    return {mappen.ronden(), zittingen, gespeeld};
}

} // namespace lauwerkrans
