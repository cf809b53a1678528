// What a preview holds of the list on show, and what the two list files (CSV and HTML) share.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "calc/overzicht.h"
#include "data/melding.h"

namespace lauwerkrans {

/// A list with everything that its page and its files show.
struct Uitvoer {
    std::shared_ptr<const Uitslag> uitslag; // may be null: an empty list
    bool leegOverAlleLijnen = false;        // an empty list: one ranking over all lines together
    std::string KopTekst;                   // the three headings, in this order; the club never
    std::string InstellingPrefix;           // gives the second and the third a value
    std::string ClubNaam;
    std::int16_t ToonLijnen = 0;    // 1: the list over all lines shows the line letter
    std::int16_t ToonZittingen = 0; // 1: and the number of sessions
    std::string programmaMap;       // the program's folder
    Melder meld;                    // shows a message box
    std::int16_t fout = 0;          // 1: the last export or print did not come off
    std::string uitvoermap;         // the folder of the files; set by MaakUitvoerMap
};

/// A ranked pair, as texts.
struct Uitvoerregel {
    std::string lijn;
    std::string rang; // "(" n ")" in a tie
    std::string paar;
    std::string zittingen;
    std::string gemiddelde; // 57,125
};

/// The ranked pairs in the order of the list; its empty rows are passed over.
[[nodiscard]] std::vector<Uitvoerregel> Uitvoerregels(const Uitvoer& uitvoer);

/// The minimum number of sessions of a line, as it was typed when the list was made. Throws
/// std::out_of_range for a line without a criterion.
[[nodiscard]] std::string Criterium(const Uitvoer& uitvoer, const std::string& lijn);

/// Whether the list is one ranking over all lines together.
[[nodiscard]] bool OverAlleLijnen(const Uitvoer& uitvoer);

/// The name of a file of the list: "Lauwr_", the cleaned prefix, "_Lijn", the letters and the
/// extension (".CSV").
[[nodiscard]] std::string Uitvoernaam(const Uitvoer& uitvoer, std::string_view extensie);

/// The message for a file that cannot be made.
[[nodiscard]] Melding NietTeMaken(const std::string& naam);

/// Runs what writes the file `naam`. When that throws Fout: says that the file cannot be made, sets
/// the error flag and returns false.
[[nodiscard]] bool Geschreven(Uitvoer& uitvoer, const std::string& naam,
                              const std::function<void()>& schrijf);

} // namespace lauwerkrans
