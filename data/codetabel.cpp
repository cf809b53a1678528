#include "data/codetabel.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace lauwerkrans {

namespace {

/// Bytes 0x80 to 0x9F of Windows-1252; all others are the Unicode character of the same number.
constexpr std::array<char16_t, 32> hogeTekens = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char32_t geenTeken = 0xFFFFFFFF;

char32_t TekenVanByte(unsigned char byte) {
    return byte >= 0x80 && byte <= 0x9F ? hogeTekens.at(byte - 0x80U) : byte;
}

/// The byte of a character, or "?" when the code page lacks it.
char ByteVanTeken(char32_t teken) {
    if (teken < 0x80 || (teken >= 0xA0 && teken <= 0xFF)) return static_cast<char>(teken);
    const auto* plaats = std::find(hogeTekens.begin(), hogeTekens.end(), teken);
    if (plaats == hogeTekens.end()) return '?';
    return static_cast<char>(0x80 + (plaats - hogeTekens.begin()));
}

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

char32_t Hoofdletter(char32_t teken) {
    if (teken >= U'a' && teken <= U'z') return teken - 32;
    if (teken >= 0xE0 && teken <= 0xFE && teken != 0xF7) return teken - 32; // à to þ, not the ÷
    if (teken == 0xFF) return 0x178;                                        // ÿ
    if (teken == 0x161 || teken == 0x153 || teken == 0x17E) return teken - 1; // š œ ž
    return teken;
}

} // namespace

std::string NaarUtf8(std::string_view bytes) {
    if (IsAscii(bytes)) return std::string(bytes);
    std::string utf8;
    utf8.reserve(bytes.size() + bytes.size() / 8);
    for (const char byte : bytes)
        VoegToe(utf8, TekenVanByte(static_cast<unsigned char>(byte)));
    return utf8;
}

std::string NaarCodetabel(std::string_view utf8) {
    if (IsAscii(utf8)) return std::string(utf8);
    std::string bytes;
    while (!utf8.empty()) {
        bytes += ByteVanTeken(NeemTeken(utf8));
    }
    return bytes;
}

std::string Hoofdletters(std::string_view utf8) {
    std::string groot;
    while (!utf8.empty()) {
        const std::string_view voor = utf8;
        const char32_t teken = Hoofdletter(NeemTeken(utf8));
        if (teken < 0x10000) {
            VoegToe(groot, teken);
        } else { // beyond the code page or malformed: as it stands
            groot.append(voor.substr(0, voor.size() - utf8.size()));
        }
    }
    return groot;
}

} // namespace lauwerkrans
