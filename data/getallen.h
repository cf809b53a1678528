// Numbers as the suite's files and the lists write them. No locale takes part: the separator is a
// comma in what is shown, a comma or a point in what is read.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lauwerkrans {

/// Takes blanks (space and tab) off both ends.
[[nodiscard]] std::string_view ZonderBlanks(std::string_view tekst);

/// The number at the start of a text: leading blanks, a sign, digits, one decimal point. 0 when
/// there is none.
[[nodiscard]] double LeidendGetal(std::string_view tekst);

/// LeidendGetal rounded half to even; empty when it does not fit 16 bits.
[[nodiscard]] std::optional<std::int16_t> LeidendGetal16(std::string_view tekst);

/// A whole number with blanks around it and perhaps a sign; empty when the text is anything else
/// or does not fit 64 bits.
[[nodiscard]] std::optional<std::int64_t> HeelGetal(std::string_view tekst);

/// A whole number of digits only, blanks around it allowed, at most `hoogste`.
[[nodiscard]] std::optional<std::int64_t> Cijfers(std::string_view tekst, std::int64_t hoogste);

/// A decimal number rounded half away from zero to `decimalen` places, as a count of the last
/// place (57.1245 at 3 gives 57125). `tekst`: a sign, digits, one comma or point. Empty when the
/// text is no number or the result does not fit.
[[nodiscard]] std::optional<std::int64_t> Afgerond(std::string_view tekst, int decimalen);

/// The same for a value: its shortest decimal text is what is rounded.
[[nodiscard]] std::int64_t Afgerond(float waarde, int decimalen);
[[nodiscard]] std::int64_t Afgerond(double waarde, int decimalen);

/// Writes a count of the last of `decimalen` places with at least `gehele` digits before the
/// comma: (57125, 3, 2) gives 57,125; (7, 0, 2) gives 07.
[[nodiscard]] std::string Patroon(std::int64_t aantal, int decimalen, int gehele);

/// Whether a text is a percentage: a number from 0 to 100 with a decimal comma or point, blanks
/// around it allowed. Empty text and blanks are 0.
[[nodiscard]] bool IsPercentage(std::string_view tekst);

/// A percentage in thousandths of a percent, or empty when it is none.
[[nodiscard]] std::optional<std::int32_t> PercentageDuizendsten(std::string_view tekst);

} // namespace lauwerkrans
