// The program's own settings file "Lauwr.ini" in the program's folder. A line is the prefix of the
// competition, two underscores, a key with its "=" and the value:
//   CHK1= CHK2= CHK3= CHK4=  the option boxes, 0 or 1
//   CHKTL= CHKTZ=            the options of the all-lines preview
//   TXTKOP=                  the heading of the lists
//   TXT<n>=                  the minimum number of sessions of line n
// The prefix is never given a value: one block of settings serves every competition.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "data/modAlgemeen.h"

namespace lauwerkrans {

/// The settings of this run.
struct Instellingen {
    std::string bestand;            // path of the settings file
    std::string InstellingPrefix;   // stays empty
    Rij IniRegels;                  // the lines of the file as they were read
    std::error_code onleesbaar;     // why the file that is there could not be read
    std::int16_t ToonLijnen = 0;    // the all-lines preview shows the line letter
    std::int16_t ToonZittingen = 0; // and the number of sessions
    std::string KopTekst;           // the heading of the lists
};

/// What the lines of the file say about the controls of the main window; what they do not mention
/// is empty.
struct IniWaarden {
    std::array<std::optional<bool>, 4> vinkjes; // CHK1= to CHK4=
    std::optional<std::string> KopTekst;
    std::map<std::size_t, std::string> criteria; // by line number
};

/// The state of the controls that is written.
struct IniStand {
    std::array<bool, 4> vinkjes{};
    std::vector<std::string> criteria; // element 0 is that of line "A"
    bool lijnenBekend = true; // false: the lines could not be read, their old lines are kept
};

/// The path of the settings file in a program folder.
[[nodiscard]] std::string InstellingenPad(std::string_view programmaMap);

/// Reads the lines of the file that are not blank into `instellingen.IniRegels`. A missing or
/// unreadable file leaves the list empty, without a message; why it was unreadable is kept. Clears
/// LeesFout.
void LeesInstellingen(Instellingen& instellingen, Algemeen& algemeen);

/// Takes ToonLijnen, ToonZittingen and KopTekst over and returns what the lines say about the
/// controls, with `lijnen` boxes for criteria. Only five characters of a key TXT<n>= are compared,
/// so that a tenth line and further ones find nothing.
[[nodiscard]] IniWaarden VerwerkIniVariabelen(Instellingen& instellingen, std::size_t lijnen);

/// Writes the settings, whole or not at all. Throws Fout (BestandNietSchrijfbaar), also when the
/// file that is there could not be read at the start: what it holds would be lost.
void SchrijfInstellingen(const Instellingen& instellingen, const IniStand& stand);

/// Makes a text fit for a file name: each of \/?:*><| and the blank becomes "_".
[[nodiscard]] std::string MaakBestandsnaam(std::string_view tekst);

} // namespace lauwerkrans
