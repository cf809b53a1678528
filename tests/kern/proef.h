// What tests need around the readers: a folder of their own, a competition written in a few lines
// of code, and the messages that were shown.
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "data/modAlgemeen.h"

namespace lauwerkrans::proef {

/// A new folder for one test, removed with its owner.
class Proefmap {
public:
    Proefmap();
    Proefmap(const Proefmap&) = delete;
    Proefmap(Proefmap&&) = delete;
    Proefmap& operator=(const Proefmap&) = delete;
    Proefmap& operator=(Proefmap&&) = delete;
    ~Proefmap();

    [[nodiscard]] const std::filesystem::path& map() const { return map_; }
    [[nodiscard]] std::string pad() const; // UTF-8

    /// Writes the bytes to a file below the folder; makes the folders on the way.
    void schrijf(const std::string& naam, std::string_view bytes) const;

    /// Makes a folder, and those on the way.
    void maakMap(const std::string& naam) const;

    /// Makes a file that is there but that nobody can open, the administrator neither. Opening it
    /// gives `onleesbaarFout`.
    void maakOnleesbaar(const std::string& naam) const;

    /// Makes a folder, or what passes for one, whose names nobody can list.
    void maakOnleesbareMap(const std::string& naam) const;

    /// Lets go of what was made impossible to open, so that it can be taken away.
    void geefVrij() const { bezet_.clear(); }

    /// Takes a file or a folder with all that is in it away.
    void verwijder(const std::string& naam) const;

    /// The bytes of all files below the folder, by name.
    [[nodiscard]] std::map<std::string, std::string> inhoud() const;

private:
    std::filesystem::path map_;
    mutable std::vector<std::shared_ptr<void>> bezet_; // what keeps files from being opened
};

/// The error of opening what maakOnleesbaar made.
extern const std::errc onleesbaarFout;

/// Makes a file that cannot be opened, or a folder that cannot be listed, as long as the result
/// lives: a symbolic link to itself or, on Windows, one that another holds open. Its own folder
/// must be there.
[[nodiscard]] std::shared_ptr<void> MaakOnleesbaar(const std::filesystem::path& pad);
[[nodiscard]] std::shared_ptr<void> MaakOnleesbareMap(const std::filesystem::path& pad);

/// Messages as they were shown.
struct Meldingen {
    std::vector<Melding> getoond;

    [[nodiscard]] Melder melder() {
        return [this](const Melding& melding) { getoond.push_back(melding); };
    }
};

/// A competition called "Proef" in a Proefmap: Competities/Proef/Ronde-N/... and
/// ORVspelers/ORVspelers.txt, with an Algemeen whose folders point there.
class ProefCompetitie {
public:
    /// Writes CompData.txt (R, Z, K = 0) and RondeData.txt (L lines).
    ProefCompetitie(int ronden, int zittingen, int lijnen);

    /// One member: number and name parts.
    struct Lid {
        int nummer;
        std::string voornaam;
        std::string tussenvoegsel;
        std::string achternaam;
    };

    /// Writes the members file, in the code page, with `aantal` in its header. Names are UTF-8.
    void schrijfLeden(int aantal, const std::vector<Lid>& leden) const;

    /// Writes a percentage file: the lines as given, each ended with CR LF.
    void schrijfZitting(int ronde, int zitting, const std::vector<std::string>& regels) const;

    /// A line of a percentage file: pair identifier, members "12-305", percentage (quoted), boards.
    [[nodiscard]] static std::string regel(const std::string& paar, const std::string& leden,
                                           const std::string& percentage, int spellen = 24);

    /// Writes CompBums.txt of a round: pairs of members that play it out of competition.
    void schrijfBums(int ronde, const std::vector<std::pair<int, int>>& paren) const;

    /// Reads competition, rounds, lines and members, as the program's start does.
    void laad();

    [[nodiscard]] const Proefmap& map() const { return map_; }
    [[nodiscard]] std::string competitieMap() const { return "Competities/Proef/"; }

    Algemeen algemeen;
    Meldingen meldingen;

private:
    Proefmap map_;
};

} // namespace lauwerkrans::proef
