// Text as the suite's files hold it, and the writing of it.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace lauwerkrans::generator {

inline constexpr std::string_view regeleinde = "\r\n";

/// Appends a whole number in decimal.
void ZetGetal(std::string& tekst, int getal);

/// Appends a percentage given in thousandths: 57125 is 57,125 and 0 is 0,000.
void ZetProcent(std::string& tekst, int duizendsten);

/// A text field of the list format: between double quotes.
[[nodiscard]] std::string Veld(std::string_view waarde);

/// A number right-aligned in `breedte` characters; a longer one stands in full.
[[nodiscard]] std::string Rechts(int getal, std::size_t breedte);

/// UTF-8 as Windows-1252 bytes. Throws std::runtime_error for text that is not UTF-8 and for a
/// character that Windows-1252 lacks.
[[nodiscard]] std::string NaarWindows1252(std::string_view utf8);

/// A path as UTF-8 text, on every system.
[[nodiscard]] std::string PadTekst(const std::filesystem::path& pad);

/// Replaces the file by `utf8` in Windows-1252 bytes, in one write. Throws std::runtime_error,
/// naming the file, when that fails or when the code page lacks a character.
void SchrijfTekst(const std::filesystem::path& pad, std::string_view utf8);

} // namespace lauwerkrans::generator
