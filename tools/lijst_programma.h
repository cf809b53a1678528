// lauwerkrans_lijst: prints a list of the suite's folder. The first line is the title, the second
// the headers, then the rows; fields are separated by tabs, UTF-8.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace lauwerkrans::lijst {

enum Uitgang { Goed = 0, Mislukt = 1, VerkeerdGebruik = 2 };

/// Runs the program: lists go to `uit`, messages to `fouten`. Mislukt also when a list could be
/// made but the competition or the members file was not read whole.
[[nodiscard]] Uitgang Voer(const std::vector<std::string>& woorden, std::ostream& uit,
                           std::ostream& fouten);

} // namespace lauwerkrans::lijst
