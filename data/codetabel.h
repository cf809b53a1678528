// The suite's files are in a single-byte code page (Windows-1252); inside, text is UTF-8. Every
// byte has a character of its own, so that what was read is written back the same.
#pragma once

#include <string>
#include <string_view>

namespace lauwerkrans {

/// Bytes of the code page as UTF-8. The five bytes that the code page leaves open become the
/// control characters of the same number (0x81 is U+0081).
[[nodiscard]] std::string NaarUtf8(std::string_view bytes);

/// UTF-8 as bytes of the code page; a character that it lacks, or a malformed one, is "?".
[[nodiscard]] std::string NaarCodetabel(std::string_view utf8);

/// UTF-8 text in capitals, the accented letters of the code page included.
[[nodiscard]] std::string Hoofdletters(std::string_view utf8);

} // namespace lauwerkrans
