// The suite's files, each as one UTF-8 text with CR LF line ends. What the fields mean that no
// reader looks at is made up here.
#pragma once

#include <chrono>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lauwerkrans::generator {

struct Lid {
    int nummer;
    std::string_view voornaam;
    std::string_view voorvoegsel;
    std::string_view achternaam;
};

/// One line of a percentage file: a pair in a session.
struct ScoreRegel {
    char lijn;
    int nummer; // of the pair in its line
    int lid1;
    int lid2;
    int duizendsten; // the percentage
    int spellen;
    bool metBlanks = false; // blanks around the hyphen between the member numbers
};

/// One line of a list of out-of-competition pairs.
struct BumRegel {
    char lijn;
    int nummer;
    int lid1;
    int lid2;
    std::string_view merk; // "BUM" in any letter case, or something else
};

/// The shape of a competition.
struct CompetitieVorm {
    std::string_view naam;
    int ronden;
    int zittingen; // per round
    std::vector<int> parenPerLijn;
    std::chrono::sys_days eersteDag;
    int dagenTussen;
};

struct Mappen {
    std::string orv;
    std::string competities;
    std::string_view actief; // the active competition
    int ronde;               // its last round and session played
    int zitting;
};

/// Mappen.ini: the keys in the order in which the suite writes them.
[[nodiscard]] std::string MappenIni(const Mappen& mappen);

/// ORVspelers.txt. `hoogste` is the size of the table that the header gives. A line of empty
/// fields closes the file, since its last line never counts as a member.
[[nodiscard]] std::string LedenBestand(int hoogste, std::span<const Lid> leden);

/// CompData.txt; `tafels` holds the tables of every session, rounds outermost.
[[nodiscard]] std::string CompData(const CompetitieVorm& vorm, std::span<const int> tafels);

/// RondeData.txt of one round.
[[nodiscard]] std::string RondeData(const CompetitieVorm& vorm, int ronde);

/// PercZit-M.txt: the lines in the given order.
[[nodiscard]] std::string PercZit(std::span<const ScoreRegel> regels);

/// CompBums.txt: seven fields a line, both member numbers right-aligned in six characters.
[[nodiscard]] std::string CompBums(std::span<const BumRegel> regels);

} // namespace lauwerkrans::generator
