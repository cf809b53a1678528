#include "data/zitregels.h"

#include <algorithm>
#include <array>
#include <limits>
#include <stdexcept>
#include <utility>

#include "data/codetabel.h"
#include "data/getallen.h"
#include "data/lijstformaat.h"
#include "data/paarsleutel.h"

namespace lauwerkrans {

namespace {

// The usual percentages, one to three digits and up to three decimals behind a comma or a point,
// are kept as a number and this form: (decimals) + 4 x (digits before) + 16 for a point.
constexpr unsigned punt = 16;
constexpr unsigned meesteDecimalen = 3;
constexpr unsigned vormApart = 0x7F;          // `percentage` is then an index into apart_
constexpr unsigned vormKommaDrie = 3 + 4 * 2; // 57,125
constexpr std::array<std::int32_t, 4> schaal = {1000, 100, 10, 1}; // to thousandths, by decimals

struct Geschreven {
    std::int32_t getal = 0;
    unsigned vorm = vormApart;
};

/// 57,125: two digits, a comma, three decimals.
bool LeesKommaDrie(std::string_view tekst, std::int32_t& getal) {
    if (tekst.size() != 6 || tekst[2] != ',') return false;
    std::int32_t waarde = 0;
    for (const std::size_t i : {0U, 1U, 3U, 4U, 5U}) {
        const auto cijfer = static_cast<unsigned>(tekst[i] - '0');
        if (cijfer > 9) return false;
        waarde = waarde * 10 + static_cast<std::int32_t>(cijfer);
    }
    getal = waarde;
    return true;
}

/// Any of the usual forms; vormApart for every other text.
Geschreven LeesVorm(std::string_view tekst) {
    const auto scheiding = std::min(tekst.find_first_of(",."), tekst.size());
    const std::size_t decimalen = tekst.size() - std::min(scheiding + 1, tekst.size());
    const bool metScheiding = scheiding < tekst.size();
    if (scheiding < 1 || scheiding > 3 || decimalen > meesteDecimalen) return {};
    if (metScheiding && decimalen == 0) return {}; // the bare end would get lost
    std::string cijfers(tekst);
    if (metScheiding) cijfers.erase(scheiding, 1);
    const auto getal = Cijfers(cijfers, std::numeric_limits<std::int32_t>::max());
    if (!getal || ZonderBlanks(tekst) != tekst || !IsPercentage(tekst)) return {};
    const bool metPunt = metScheiding && tekst[scheiding] == '.';
    return {static_cast<std::int32_t>(*getal),
            static_cast<unsigned>(decimalen + 4 * scheiding) + (metPunt ? punt : 0)};
}

} // namespace

ZitRegels::ZitRegels(std::size_t ruimte, std::shared_ptr<const LedenNamen> leden)
    : ruimte_(ruimte), leden_(std::move(leden)) {
    regels_.reserve(ruimte);
}

void ZitRegels::voegToe(ZitRegel regel, std::string_view percentage) {
    if (LeesKommaDrie(percentage, regel.percentage)) {
        regel.vorm = vormKommaDrie;
        regels_.push_back(regel);
        return;
    }
    Geschreven geschreven = LeesVorm(percentage);
    if (geschreven.vorm == vormApart) {
        geschreven.getal = static_cast<std::int32_t>(apart_.size());
        apart_.push_back({NaarUtf8(percentage.substr(0, langsteVeld)),
                          PercentageDuizendsten(percentage).value_or(geenPercentage)});
    }
    regel.percentage = geschreven.getal;
    regel.vorm = geschreven.vorm & 0x7FU;
    regels_.push_back(regel);
}

std::int32_t ZitRegels::duizendsten(const ZitRegel& regel) const {
    if (regel.vorm == vormKommaDrie) return regel.percentage;
    if (regel.vorm == vormApart)
        return apart_.at(static_cast<std::size_t>(regel.percentage)).duizendsten;
    return regel.percentage * schaal.at(regel.vorm & meesteDecimalen);
}

std::string ZitRegels::percentage(const ZitRegel& regel) const {
    if (regel.vorm == vormApart) return apart_.at(static_cast<std::size_t>(regel.percentage)).tekst;
    const auto decimalen = static_cast<int>(regel.vorm & meesteDecimalen);
    const int gehele = (regel.vorm / 4) & 3;
    std::string tekst = Patroon(regel.percentage, decimalen, gehele);
    if ((regel.vorm & punt) != 0) std::replace(tekst.begin(), tekst.end(), ',', '.');
    return tekst;
}

std::string RegelCode(const ZitRegel& regel) {
    return "R" + Patroon(regel.ronde, 0, 2) + "-Z" + Patroon(regel.zitting, 0, 2) + "-" +
           Patroon(regel.spellen, 0, 2);
}

std::string ZitRegels::cel(std::size_t i, std::size_t kolom) const {
    if (i > ruimte_ || kolom > zitRegelKolommen) throw std::out_of_range("ZitRegels");
    if (i < 1 || i > gevuld()) return {};
    const ZitRegel& rij = regel(i);
    switch (kolom) {
    case 1:
        return {rij.lijn};
    case 2:
        return MaakPaarSleutel(static_cast<std::int32_t>(rij.lid1),
                               static_cast<std::int32_t>(rij.lid2));
    case 3:
        return percentage(rij);
    case 4:
        return RegelCode(rij);
    case 6:
        return rij.bum ? "BUM" : "";
    case 8:
        return leden_->paar(rij.lid1, rij.lid2);
    default:
        return {};
    }
}

} // namespace lauwerkrans
