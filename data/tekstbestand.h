// Text files of the suite: bytes of the code page, lines ending in CR LF, LF or CR alone. Paths
// are joined with "\"; where the system tells letter cases apart, a name that does not stand as
// written is looked for in another case.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "data/systeem.h"

namespace lauwerkrans {

/// Joins a folder and a name with "\", whatever the folder ends in.
[[nodiscard]] std::string VoegPad(std::string_view map, std::string_view naam);

/// The name among `namen` (sorted) that is meant by `naam`: the exact one, else the first that
/// differs only in letter case.
[[nodiscard]] std::optional<std::string> ZoekNaam(const std::vector<std::string>& namen,
                                                  std::string_view naam);

/// The path as it really stands: `pad` itself when a file or folder is there, else with each part
/// looked up in another letter case. `pad` again when nothing is found.
[[nodiscard]] std::string WerkelijkPad(const std::string& pad);

/// The bytes of a file after a UTF-8 byte order mark, if one stands at its start.
[[nodiscard]] std::string_view ZonderBom(std::string_view bytes);

/// Reads a file, its name in any letter case. Throws Fout (BestandNietLeesbaar).
[[nodiscard]] systeem::Leesbuffer LeesTekst(const std::string& pad);

/// The error of a file that could not be read, as Fout (BestandNietLeesbaar).
[[noreturn]] void GooiNietLeesbaar(const std::string& pad, const std::error_code& code);

/// The error of a file that cannot be written, as Fout (BestandNietSchrijfbaar).
[[noreturn]] void GooiNietSchrijfbaar(const std::string& pad, const std::error_code& code);

/// Whether anything but a missing file stands there, its name in any letter case: what can be read,
/// and what cannot be for any other reason.
[[nodiscard]] bool StaatEr(const std::string& pad);

/// Replaces the contents of a file by a text, written in the code page, whole or not at all.
/// Throws Fout (BestandNietSchrijfbaar); the earlier file then stands as it was.
void VervangTekst(const std::string& pad, std::string_view utf8);

/// Makes a folder unless one of that name stands there, in any letter case. Returns the path that
/// it really has. Throws Fout (BestandNietSchrijfbaar), also when a file of that name stands there.
[[nodiscard]] std::string MaakMap(const std::string& pad);

/// Walks through the lines of a text. An end of line at the end of the text starts no further
/// line.
class Regels {
public:
    explicit Regels(std::string_view bytes) : rest_(bytes) {}

    /// The next line without its end, or empty when there is none.
    [[nodiscard]] std::optional<std::string_view> volgende();

    /// What has not been given yet.
    [[nodiscard]] std::string_view rest() const { return rest_; }

    /// Passes over the bytes of one line, its end included, that the caller has read from rest().
    void neemRegel(std::size_t lengte) {
        rest_.remove_prefix(lengte);
        ++nummer_;
    }

    /// The number of the line that was given or taken last, from 1.
    [[nodiscard]] std::int64_t nummer() const { return nummer_; }

    /// Whether no further line follows.
    [[nodiscard]] bool klaar() const { return rest_.empty(); }

private:
    /// Length up to the next LF (or the end); each LF is looked for once, so that a text with CR
    /// alone costs no more than another.
    [[nodiscard]] std::size_t totLf();

    std::string_view rest_;
    const char* lf_ = nullptr;
    std::int64_t nummer_ = 0;
};

} // namespace lauwerkrans
