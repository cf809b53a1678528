#include "data/getallen.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace lauwerkrans {

namespace {

bool IsCijfer(char teken) { return teken >= '0' && teken <= '9'; }
bool IsBlank(char teken) { return teken == ' ' || teken == '\t'; }

/// The parts of a decimal text: sign, digits before and digits after the separator.
struct Decimaal {
    bool negatief = false;
    std::string_view gehele;
    std::string_view breuk;
};

std::size_t AantalCijfers(std::string_view tekst) {
    const auto* einde = std::find_if_not(tekst.begin(), tekst.end(), IsCijfer);
    return static_cast<std::size_t>(einde - tekst.begin());
}

bool NeemTeken(std::string_view& tekst) {
    if (tekst.empty() || (tekst[0] != '-' && tekst[0] != '+')) return false;
    const bool negatief = tekst[0] == '-';
    tekst.remove_prefix(1);
    return negatief;
}

std::optional<Decimaal> Ontleed(std::string_view tekst) {
    Decimaal deel;
    deel.negatief = NeemTeken(tekst);
    deel.gehele = tekst.substr(0, AantalCijfers(tekst));
    tekst.remove_prefix(deel.gehele.size());
    if (!tekst.empty() && (tekst[0] == ',' || tekst[0] == '.')) {
        tekst.remove_prefix(1);
        deel.breuk = tekst.substr(0, AantalCijfers(tekst));
        tekst.remove_prefix(deel.breuk.size());
    }
    if (!tekst.empty() || deel.gehele.size() + deel.breuk.size() == 0) return std::nullopt;
    return deel;
}

/// Fifteen digits name the same number as the double nearest to them, so their text is rounded as
/// it stands; a longer text first becomes the shortest text of its double.
constexpr std::size_t exacteCijfers = 15;

std::optional<std::int64_t> RondAf(const Decimaal& deel, int decimalen) {
    std::int64_t aantal = 0;
    for (const char cijfer : deel.gehele)
        aantal = aantal * 10 + (cijfer - '0');
    const auto plaatsen = static_cast<std::size_t>(decimalen);
    for (std::size_t i = 0; i < plaatsen; ++i) {
        aantal = aantal * 10 + (i < deel.breuk.size() ? deel.breuk[i] - '0' : 0);
    }
    if (plaatsen < deel.breuk.size() && deel.breuk[plaatsen] >= '5') ++aantal;
    return deel.negatief ? -aantal : aantal;
}

template <class Getal>
std::string KortsteTekst(Getal waarde) {
    std::array<char, 400> tekst{};
    const auto uit =
        std::to_chars(tekst.data(), tekst.data() + tekst.size(), waarde, std::chars_format::fixed);
    return {tekst.data(), uit.ptr};
}

bool AllesNul(std::string_view cijfers) {
    return std::all_of(cijfers.begin(), cijfers.end(), [](char teken) { return teken == '0'; });
}

double AlsDouble(const Decimaal& deel) {
    std::string tekst(deel.gehele.empty() ? "0" : deel.gehele);
    if (!deel.breuk.empty()) tekst.append(".").append(deel.breuk);
    // What stays when the number does not fit: too large, or a fraction too close to 0.
    double waarde = AllesNul(deel.gehele) ? 0 : std::numeric_limits<double>::infinity();
    std::from_chars(tekst.data(), tekst.data() + tekst.size(), waarde);
    return deel.negatief ? -waarde : waarde;
}

/// Above this many digits before the comma a count of thousandths could leave 64 bits.
constexpr std::size_t meesteGehele = 14;

std::int64_t AfgerondeTekst(const std::string& kortste, int decimalen) {
    const auto deel = Ontleed(kortste);
    if (!deel || deel->gehele.size() > meesteGehele) return 0;
    return RondAf(*deel, decimalen).value_or(0);
}

std::string_view ZonderVoorloopnullen(std::string_view cijfers) {
    const auto eerste = cijfers.find_first_not_of('0');
    return eerste == std::string_view::npos ? std::string_view{} : cijfers.substr(eerste);
}

bool TussenNulEnHonderd(const Decimaal& deel) {
    const std::string_view gehele = ZonderVoorloopnullen(deel.gehele);
    if (deel.negatief) return gehele.empty() && AllesNul(deel.breuk);
    return gehele.size() < 3 || (gehele == "100" && AllesNul(deel.breuk));
}

} // namespace

std::string_view ZonderBlanks(std::string_view tekst) {
    while (!tekst.empty() && IsBlank(tekst.front()))
        tekst.remove_prefix(1);
    while (!tekst.empty() && IsBlank(tekst.back()))
        tekst.remove_suffix(1);
    return tekst;
}

double LeidendGetal(std::string_view tekst) {
    tekst = ZonderBlanks(tekst);
    Decimaal deel;
    deel.negatief = NeemTeken(tekst);
    deel.gehele = tekst.substr(0, AantalCijfers(tekst));
    tekst.remove_prefix(deel.gehele.size());
    if (!tekst.empty() && tekst[0] == '.') {
        deel.breuk = tekst.substr(1, AantalCijfers(tekst.substr(1)));
    }
    return AlsDouble(deel);
}

std::optional<std::int16_t> LeidendGetal16(std::string_view tekst) {
    const double waarde = std::nearbyint(LeidendGetal(tekst));
    using Grens = std::numeric_limits<std::int16_t>;
    if (waarde < Grens::min() || waarde > Grens::max()) return std::nullopt;
    return static_cast<std::int16_t>(waarde);
}

std::optional<std::int64_t> HeelGetal(std::string_view tekst) {
    tekst = ZonderBlanks(tekst);
    const bool negatief = NeemTeken(tekst);
    const auto waarde = Cijfers(tekst, std::numeric_limits<std::int64_t>::max());
    if (!waarde || tekst != ZonderBlanks(tekst)) return std::nullopt;
    return negatief ? -*waarde : *waarde;
}

std::optional<std::int64_t> Cijfers(std::string_view tekst, std::int64_t hoogste) {
    tekst = ZonderBlanks(tekst);
    std::int64_t waarde = 0;
    if (tekst.empty() || AantalCijfers(tekst) != tekst.size()) return std::nullopt;
    const auto uit = std::from_chars(tekst.data(), tekst.data() + tekst.size(), waarde);
    if (uit.ec != std::errc{} || waarde > hoogste) return std::nullopt;
    return waarde;
}

std::optional<std::int64_t> Afgerond(std::string_view tekst, int decimalen) {
    auto deel = Ontleed(tekst);
    if (!deel) return std::nullopt;
    deel->gehele = ZonderVoorloopnullen(deel->gehele);
    if (deel->gehele.size() > meesteGehele) return std::nullopt;
    if (deel->gehele.size() + deel->breuk.size() <= exacteCijfers) return RondAf(*deel, decimalen);
    return Afgerond(AlsDouble(*deel), decimalen);
}

std::int64_t Afgerond(float waarde, int decimalen) {
    return AfgerondeTekst(KortsteTekst(waarde), decimalen);
}

std::int64_t Afgerond(double waarde, int decimalen) {
    return AfgerondeTekst(KortsteTekst(waarde), decimalen);
}

std::string Patroon(std::int64_t aantal, int decimalen, int gehele) {
    std::string cijfers = std::to_string(aantal < 0 ? -aantal : aantal);
    const auto minstens = static_cast<std::size_t>(decimalen) + static_cast<std::size_t>(gehele);
    if (cijfers.size() < minstens) cijfers.insert(0, minstens - cijfers.size(), '0');
    if (decimalen > 0) cijfers.insert(cijfers.size() - static_cast<std::size_t>(decimalen), 1, ',');
    return aantal < 0 ? "-" + cijfers : cijfers;
}

bool IsPercentage(std::string_view tekst) {
    tekst = ZonderBlanks(tekst);
    if (tekst.empty()) return true;
    const auto deel = Ontleed(tekst);
    return deel && TussenNulEnHonderd(*deel);
}

std::optional<std::int32_t> PercentageDuizendsten(std::string_view tekst) {
    tekst = ZonderBlanks(tekst);
    if (tekst.empty()) return 0;
    if (!IsPercentage(tekst)) return std::nullopt;
    const auto duizendsten = Afgerond(tekst, 3);
    return duizendsten ? std::optional(static_cast<std::int32_t>(*duizendsten)) : std::nullopt;
}

} // namespace lauwerkrans
