#include "data/paarsleutel.h"

#include <algorithm>

#include "data/getallen.h"

namespace lauwerkrans {

namespace {

constexpr std::size_t breedte = 8;
constexpr std::int64_t hoogsteLidnummer = 99'999'999;

std::string Rechts(std::int32_t getal) {
    std::string cijfers = std::to_string(getal);
    if (cijfers.size() < breedte) cijfers.insert(0, breedte - cijfers.size(), ' ');
    return cijfers;
}

} // namespace

std::string MaakPaarSleutel(std::int32_t a, std::int32_t b) {
    return Rechts(std::min(a, b)) + Rechts(std::max(a, b));
}

std::optional<std::pair<std::uint32_t, std::uint32_t>> LeesPaarSleutel(std::string_view sleutel) {
    if (sleutel.size() != 2 * breedte) return std::nullopt;
    const auto a = Cijfers(sleutel.substr(0, breedte), hoogsteLidnummer);
    const auto b = Cijfers(sleutel.substr(breedte), hoogsteLidnummer);
    if (!a || !b) return std::nullopt;
    const bool heel =
        MaakPaarSleutel(static_cast<std::int32_t>(*a), static_cast<std::int32_t>(*b)) == sleutel;
    return heel ? std::optional(
                      std::pair(static_cast<std::uint32_t>(*a), static_cast<std::uint32_t>(*b)))
                : std::nullopt;
}

} // namespace lauwerkrans
