#include "tools/generator_tekst.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <fstream>
#include <stdexcept>

namespace lauwerkrans::generator {

namespace {

// The characters of the bytes 0x80 to 0x9F; 0 where Windows-1252 has none.
constexpr std::array<char32_t, 32> kBijzonder = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

std::uint8_t Byte(char teken) { return static_cast<std::uint8_t>(teken); }

[[noreturn]] void Weiger() {
    throw std::runtime_error("er staat een teken in dat Windows-1252 niet kent");
}

// The length of the character that starts with this byte, 0 when none of the code page does:
// those take two or three bytes.
std::size_t Lengte(std::uint8_t eerste) {
    if (eerste >= 0xC2 && eerste <= 0xDF) return 2;
    return eerste >= 0xE0 && eerste <= 0xEF ? 3 : 0;
}

// The character of two or three bytes at `plaats`; moves `plaats` behind it.
char32_t Karakter(std::string_view utf8, std::size_t& plaats) {
    const std::size_t lengte = Lengte(Byte(utf8[plaats]));
    if (lengte == 0 || plaats + lengte > utf8.size()) Weiger();
    char32_t teken = Byte(utf8[plaats]) & (lengte == 2 ? 0x1FU : 0x0FU);
    for (std::size_t i = 1; i < lengte; ++i) {
        const std::uint8_t vervolg = Byte(utf8[plaats + i]);
        if ((vervolg & 0xC0U) != 0x80U) Weiger();
        teken = (teken << 6U) | (vervolg & 0x3FU);
    }
    plaats += lengte;
    return teken;
}

char Codeplaats(char32_t teken) {
    if (teken >= 0xA0 && teken <= 0xFF) return static_cast<char>(teken);
    const auto gevonden = std::find(kBijzonder.begin(), kBijzonder.end(), teken);
    if (teken == 0 || gevonden == kBijzonder.end()) Weiger();
    return static_cast<char>(0x80 + (gevonden - kBijzonder.begin()));
}

void SchrijfBytes(const std::filesystem::path& pad, const std::string& bytes) {
    std::ofstream bestand(pad, std::ios::binary | std::ios::trunc);
    if (!bestand) throw std::runtime_error("het bestand gaat niet open");
    bestand.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bestand.close();
    if (!bestand) throw std::runtime_error("het bestand komt niet heel op de schijf");
}

} // namespace

void ZetGetal(std::string& tekst, int getal) {
    std::array<char, 12> cijfers{};
    const auto einde = std::to_chars(cijfers.data(), cijfers.data() + cijfers.size(), getal);
    tekst.append(cijfers.data(), einde.ptr);
}

void ZetProcent(std::string& tekst, int duizendsten) {
    ZetGetal(tekst, duizendsten / 1000);
    tekst += ',';
    for (int deler = 100; deler > 0; deler /= 10) {
        tekst += static_cast<char>('0' + duizendsten / deler % 10);
    }
}

std::string Veld(std::string_view waarde) {
    std::string tekst;
    tekst.reserve(waarde.size() + 2);
    tekst += '"';
    tekst += waarde;
    tekst += '"';
    return tekst;
}

std::string Rechts(int getal, std::size_t breedte) {
    const std::string cijfers = std::to_string(getal);
    return std::string(breedte - std::min(breedte, cijfers.size()), ' ') + cijfers;
}

std::string NaarWindows1252(std::string_view utf8) {
    std::string bytes;
    bytes.reserve(utf8.size());
    for (std::size_t plaats = 0; plaats < utf8.size();) {
        if (Byte(utf8[plaats]) < 0x80) {
            bytes += utf8[plaats++];
        } else {
            bytes += Codeplaats(Karakter(utf8, plaats));
        }
    }
    return bytes;
}

std::string PadTekst(const std::filesystem::path& pad) {
    const std::u8string tekst = pad.u8string();
    return {tekst.begin(), tekst.end()};
}

void SchrijfTekst(const std::filesystem::path& pad, std::string_view utf8) {
    try {
        SchrijfBytes(pad, NaarWindows1252(utf8));
    } catch (const std::runtime_error& fout) {
        throw std::runtime_error("Kan niet schrijven: " + PadTekst(pad) + ": " + fout.what());
    }
}

} // namespace lauwerkrans::generator
