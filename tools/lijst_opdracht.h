// The command line of lauwerkrans_lijst.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "calc/lijnen.h"

namespace lauwerkrans::lijst {

enum class Soort { Ranglijst, Controle, Lid, Ronden };

struct Opdracht {
    std::string map; // the program's folder, or the suite's with Mappen.ini
    Soort soort = Soort::Ranglijst;
    std::string naamdeel;                       // of the member that is looked for
    std::string competitie;                     // empty: the active one
    std::string lijn;                           // one letter; empty: all lines
    std::map<std::string, std::string> minimum; // criterion by line letter
    Opties opties;
};

/// The words behind the program's name; empty when they are no proper command.
[[nodiscard]] std::optional<Opdracht> LeesOpdracht(const std::vector<std::string>& woorden);

/// How the program is used, to show when the words are wrong.
[[nodiscard]] const std::string& Gebruik();

} // namespace lauwerkrans::lijst
