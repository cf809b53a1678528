// The suite's list format. It accepts:
//   - fields that end at a comma or at a line end;
//   - a field in double quotes, blanks before the opening and after the closing quote ignored;
//     inside the quotes everything counts, commas and blanks too; what stands between the closing
//     quote and the comma is dropped;
//   - an unquoted field, taken as it stands, blanks included.
// A tab counts as a blank. A quote that is not closed ends with the text that is being read.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lauwerkrans {

/// The most bytes of a field that are kept to be shown. No name and no percentage comes near it;
/// one that does would keep windows and printers busy for minutes.
constexpr std::size_t langsteVeld = 1000;

/// Takes fields off a text, one by one, across its lines. The fields are bytes of the code page.
class LijstLezer {
public:
    explicit LijstLezer(std::string_view bytes) : rest_(bytes) {}

    /// The next field, or empty when the text has no further one. After a comma a field always
    /// follows, if only an empty one.
    [[nodiscard]] std::optional<std::string_view> volgende();

private:
    std::string_view rest_;
    bool naKomma_ = false;
};

/// Splits one line into its fields, the first `ruimte` of which are stored in `velden`. Returns
/// how many there are: one more than there are commas outside quotes.
[[nodiscard]] std::size_t SplitsRegel(std::string_view regel, std::string_view* velden,
                                      std::size_t ruimte);

/// Splits the first line of a text into seven fields, when it stands there in the usual form: no
/// blanks around quotes, no tabs, nothing between a closing quote and the comma, an LF or CR LF at
/// its end. Returns the length of the line with its end; 0 for a line in any other form. NUL bytes
/// must stand behind the text (achttal::opvulling).
[[nodiscard]] std::size_t SplitsGewoneRegel(std::string_view bytes,
                                            std::array<std::string_view, 7>& velden);

/// Reads the fields of one file of the suite; every error names the file.
class LijstBestand {
public:
    LijstBestand(std::string pad, std::string_view bytes);

    /// The next field as text (UTF-8). Throws Fout (BestandEindigtTeVroeg).
    [[nodiscard]] std::string tekst();

    /// The next field as a whole number from `laagste` to `hoogste`. Throws Fout.
    [[nodiscard]] std::int64_t getal(std::int64_t laagste, std::int64_t hoogste);

    /// Reads and drops `aantal` fields. Throws Fout (BestandEindigtTeVroeg).
    void slaOver(std::int64_t aantal);

private:
    [[nodiscard]] std::string_view veld();

    std::string pad_;
    LijstLezer lezer_;
};

} // namespace lauwerkrans
