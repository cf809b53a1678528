// The suite's files are in a single-byte code page: the system's own, or Windows-1252 where the
// system has none. Inside, text is UTF-8. Every byte has a character of its own, so that what was
// read is written back the same.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "data/systeem.h"

namespace lauwerkrans {

/// A code page whose lower half is ASCII.
class Codetabel {
public:
    explicit Codetabel(const systeem::Bovenhelft& helft) : helft_(helft) {}

    /// Bytes of the code page as UTF-8.
    [[nodiscard]] std::string naarUtf8(std::string_view bytes) const;

    /// UTF-8 as bytes of the code page; a character that it lacks, or a malformed one, is "?".
    [[nodiscard]] std::string naarBytes(std::string_view utf8) const;

    /// UTF-8 text in capitals, the accented letters of the code page included.
    [[nodiscard]] std::string hoofdletters(std::string_view utf8) const;

private:
    [[nodiscard]] std::optional<std::size_t> plaatsVan(char32_t teken) const;

    systeem::Bovenhelft helft_;
};

/// Windows-1252. The five bytes that it leaves open become the control characters of the same
/// number (0x81 is U+0081).
[[nodiscard]] systeem::Bovenhelft Windows1252();

/// Bytes of the system's code page as UTF-8.
[[nodiscard]] std::string NaarUtf8(std::string_view bytes);

/// UTF-8 as bytes of the system's code page; a character that it lacks, or a malformed one, is "?".
[[nodiscard]] std::string NaarCodetabel(std::string_view utf8);

/// UTF-8 text in capitals, the accented letters of the system's code page included.
[[nodiscard]] std::string Hoofdletters(std::string_view utf8);

} // namespace lauwerkrans
