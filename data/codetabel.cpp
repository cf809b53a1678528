#include "data/codetabel.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace lauwerkrans {

namespace {

constexpr char32_t geenTeken = 0xFFFFFFFF;
constexpr char32_t eersteHoge = 0x80; // characters below are those of ASCII

/// Appends a character below U+10000 as UTF-8.
void VoegToe(std::string& tekst, char32_t teken) {
    const auto byte = [&tekst](char32_t waarde) { tekst += static_cast<char>(waarde); };
    if (teken < 0x80) {
        byte(teken);
    } else if (teken < 0x800) {
        byte(0xC0U | (teken >> 6U));
        byte(0x80U | (teken & 0x3FU));
    } else {
        byte(0xE0U | (teken >> 12U));
        byte(0x80U | ((teken >> 6U) & 0x3FU));
        byte(0x80U | (teken & 0x3FU));
    }
}

std::size_t LengteVanReeks(unsigned char eerste) {
    if (eerste < 0x80) return 1;
    if (eerste >= 0xC2 && eerste < 0xE0) return 2;
    if (eerste >= 0xE0 && eerste < 0xF0) return 3;
    if (eerste >= 0xF0 && eerste < 0xF5) return 4;
    return 0;
}

/// The first character that needs so many bytes; a longer form of a lower one is malformed.
constexpr std::array<char32_t, 5> eersteVanLengte = {0, 0, 0x80, 0x800, 0x10000};

/// Takes the first character off a UTF-8 text; a byte that starts none is taken off alone.
char32_t NeemTeken(std::string_view& utf8) {
    const auto eerste = static_cast<unsigned char>(utf8.front());
    const std::size_t lengte = LengteVanReeks(eerste);
    if (lengte <= 1 || lengte > utf8.size()) {
        utf8.remove_prefix(1);
        return lengte == 1 ? eerste : geenTeken;
    }
    char32_t teken = eerste & (0x7FU >> lengte);
    for (std::size_t i = 1; i < lengte; ++i) {
        const auto byte = static_cast<unsigned char>(utf8[i]);
        if ((byte & 0xC0U) != 0x80U) {
            utf8.remove_prefix(1);
            return geenTeken;
        }
        teken = (teken << 6U) | (byte & 0x3FU);
    }
    utf8.remove_prefix(lengte);
    return teken < eersteVanLengte.at(lengte) ? geenTeken : teken;
}

bool IsAscii(std::string_view tekst) {
    return std::all_of(tekst.begin(), tekst.end(),
                       [](char teken) { return static_cast<unsigned char>(teken) < 0x80; });
}

char16_t HoofdletterIn1252(char16_t teken) {
    const bool heeftEen = teken >= 0xE0 && teken <= 0xFE && teken != 0xF7; // à to þ, not the ÷
    if (heeftEen) return static_cast<char16_t>(teken - 32);
    if (teken == 0xFF) return 0x178;                                             // ÿ
    const bool naastElkaar = teken == 0x161 || teken == 0x153 || teken == 0x17E; // š œ ž
    return naastElkaar ? static_cast<char16_t>(teken - 1) : teken;
}

/// That of the system where it is of one byte a character, else Windows-1252.
const Codetabel& Eigen() {
    static const Codetabel eigen(systeem::EigenCodetabel().value_or(Windows1252()));
    return eigen;
}

} // namespace

systeem::Bovenhelft Windows1252() {
    // Bytes 0x80 to 0x9F; all others are the Unicode character of the same number.
    constexpr std::array<char16_t, 32> begin = {
        0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
        0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
        0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
    systeem::Bovenhelft helft;
    for (std::size_t i = 0; i < helft.tekens.size(); ++i) {
        const auto teken = i < begin.size() ? begin.at(i) : static_cast<char16_t>(0x80 + i);
        helft.tekens.at(i) = teken;
        helft.hoofdletters.at(i) = HoofdletterIn1252(teken);
    }
    return helft;
}

std::string Codetabel::naarUtf8(std::string_view bytes) const {
    if (IsAscii(bytes)) return std::string(bytes);
    std::string utf8;
    utf8.reserve(bytes.size() + bytes.size() / 8);
    for (const char teken : bytes) {
        const auto byte = static_cast<unsigned char>(teken);
        VoegToe(utf8, byte < eersteHoge ? byte : helft_.tekens.at(byte - eersteHoge));
    }
    return utf8;
}

std::string Codetabel::naarBytes(std::string_view utf8) const {
    if (IsAscii(utf8)) return std::string(utf8);
    std::string bytes;
    bytes.reserve(utf8.size());
    while (!utf8.empty()) {
        const char32_t teken = NeemTeken(utf8);
        if (teken < eersteHoge) {
            bytes += static_cast<char>(teken);
        } else {
            const auto plaats = plaatsVan(teken);
            bytes += plaats ? static_cast<char>(eersteHoge + *plaats) : '?';
        }
    }
    return bytes;
}

std::string Codetabel::hoofdletters(std::string_view utf8) const {
    std::string groot;
    groot.reserve(utf8.size());
    while (!utf8.empty()) {
        const std::string_view voor = utf8;
        const char32_t teken = NeemTeken(utf8);
        if (teken >= U'a' && teken <= U'z') {
            VoegToe(groot, teken - 32);
        } else if (const auto plaats = plaatsVan(teken)) {
            VoegToe(groot, helft_.hoofdletters.at(*plaats));
        } else { // one without a capital, beyond the code page, or malformed: as it stands
            groot.append(voor.substr(0, voor.size() - utf8.size()));
        }
    }
    return groot;
}

/// Most characters stand at the place of their number; the others are looked for.
std::optional<std::size_t> Codetabel::plaatsVan(char32_t teken) const {
    if (teken < eersteHoge) return std::nullopt;
    const auto& tekens = helft_.tekens;
    if (teken < 0x100 && tekens.at(teken - eersteHoge) == teken) return teken - eersteHoge;
    const auto* gevonden = std::find(tekens.begin(), tekens.end(), teken);
    if (gevonden == tekens.end()) return std::nullopt;
    return static_cast<std::size_t>(gevonden - tekens.begin());
}

std::string NaarUtf8(std::string_view bytes) { return Eigen().naarUtf8(bytes); }

std::string NaarCodetabel(std::string_view utf8) { return Eigen().naarBytes(utf8); }

std::string Hoofdletters(std::string_view utf8) { return Eigen().hoofdletters(utf8); }

} // namespace lauwerkrans
