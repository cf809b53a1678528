// The members file ORVspelers\ORVspelers.txt:
//   line 1   any text, "=", the size N of the member table (Aantal=612)
//   line 2.. one member a line, fields separated by commas, no quoting, numbered from 0:
//            1 member number (0..N), 3 first name, 4 particle, 5 surname
//   the last line is never read as a member, blank or not; other blank lines are skipped
#pragma once

#include <string>
#include <string_view>

#include "data/ledennamen.h"
#include "data/modAlgemeen.h"

namespace lauwerkrans {

/// The path of the members file below the suite's main folder.
[[nodiscard]] std::string LedenPad(const std::string& orvMap);

/// A member's display name from the fields as they stand in the file: the first "-" of first name
/// and surname is taken out, a particle that is not blank stands between them untrimmed.
[[nodiscard]] std::string WeergaveNaam(std::string_view voornaam, std::string_view tussenvoegsel,
                                       std::string_view achternaam);

/// Reads the members into `algemeen.ledenNamen`. On an error: LeesFout 1, the message "Fout bij het
/// lezen van de Groepen!", and the names read so far stay.
void LeesLeden(Algemeen& algemeen);

} // namespace lauwerkrans
