// Eight bytes at a time: the percentage files hold millions of short fields, and looking at each
// byte by itself costs more than all the rest of their reading.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string_view>

namespace lauwerkrans::achttal {

/// Bytes that must be readable behind the text that is looked at.
constexpr std::size_t opvulling = 16;

/// The first byte of a text lies in the lowest bits only on these systems.
constexpr bool bruikbaar = std::endian::native == std::endian::little;

[[nodiscard]] constexpr std::uint64_t Herhaald(unsigned char byte) {
    return 0x0101010101010101U * byte;
}

[[nodiscard]] inline std::uint64_t Lees(const char* plaats) {
    std::uint64_t woord = 0;
    std::memcpy(&woord, plaats, sizeof woord);
    return woord;
}

/// The distance to the first byte that is `teken` or a control character up to 13 (line ends, tab,
/// NUL). One of them must stand there before the end of the padding.
[[nodiscard]] inline std::size_t Tot(const char* plaats, char teken) {
    constexpr std::uint64_t hoogste = Herhaald(0x80);
    const std::uint64_t gezocht = Herhaald(static_cast<unsigned char>(teken));
    for (std::size_t afstand = 0;; afstand += 8) {
        const std::uint64_t woord = Lees(plaats + afstand);
        const std::uint64_t anders = woord ^ gezocht;
        const std::uint64_t gelijk = (anders - Herhaald(1)) & ~anders;
        const std::uint64_t stuur = (woord - Herhaald(14)) & ~woord;
        const std::uint64_t raak = (gelijk | stuur) & hoogste;
        if (raak != 0) return afstand + static_cast<std::size_t>(std::countr_zero(raak)) / 8;
    }
}

/// The number that one to eight decimal digits write; empty for any other text. Eight bytes from
/// the start of the text must be readable.
[[nodiscard]] inline std::optional<std::uint32_t> Getal(std::string_view cijfers) {
    if (cijfers.empty() || cijfers.size() > 8) return std::nullopt;
    const auto leeg = static_cast<unsigned>(8 - cijfers.size()) * 8;
    const std::uint64_t nullen = leeg == 0 ? 0 : Herhaald('0') >> (64 - leeg);
    std::uint64_t woord = (Lees(cijfers.data()) << leeg) | nullen;
    const std::uint64_t geen = (woord + Herhaald(0x46)) | (woord - Herhaald('0'));
    if ((geen & Herhaald(0x80)) != 0) return std::nullopt;
    woord -= Herhaald('0');
    woord = woord * 10 + (woord >> 8U); // pairs, then fours, then all eight digits
    woord = (((woord & 0x000000FF000000FFU) * 0x000F424000000064U) +
             (((woord >> 16U) & 0x000000FF000000FFU) * 0x0000271000000001U)) >>
            32U;
    return static_cast<std::uint32_t>(woord);
}

} // namespace lauwerkrans::achttal
