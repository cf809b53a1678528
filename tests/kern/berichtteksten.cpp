#include "berichtteksten.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include "bronwoorden.h"

namespace lauwerkrans::berichten {

namespace {

namespace fs = std::filesystem;

constexpr std::array<const char*, 5> bronmappen = {"app", "calc", "data", "output", "ui"};

/// Words that put texts together and add nothing to them.
bool IsLijm(const std::string& naam) {
    return naam == "std" || naam == "string" || naam == "append";
}

bool Opent(const Woord& woord) { return woord.is("(") || woord.is("{") || woord.is("["); }
bool Sluit(const Woord& woord) { return woord.is(")") || woord.is("}") || woord.is("]"); }

/// One source file.
class Lezer {
public:
    Lezer(std::string bestand, Woorden woorden, const Makers& makers, Oogst& oogst)
        : bestand_(std::move(bestand)), woorden_(std::move(woorden)), makers_(makers),
          oogst_(oogst) {}

    void lees();

private:
    [[nodiscard]] std::size_t einde(std::size_t begin, std::string_view grens) const;
    [[nodiscard]] std::optional<std::size_t> toewijzing(std::size_t voor,
                                                        const std::string& naam) const;
    void bericht(std::size_t begin, std::size_t eind);
    void tak(std::size_t begin, std::size_t eind);
    [[nodiscard]] bool vanMaker(std::size_t begin, std::size_t eind);
    void onderzoekUitweg(std::size_t plaats);
    void bezwaar(std::size_t plaats, const std::string& wat);

    std::string bestand_;
    Woorden woorden_;
    const Makers& makers_;
    Oogst& oogst_;
};

void Lezer::bezwaar(std::size_t plaats, const std::string& wat) {
    oogst_.bezwaren.push_back(bestand_ + ":" + std::to_string(woorden_[plaats].regel) + ": " + wat);
}

/// Where an expression ends: at `grens` or a closing bracket that is not its own.
std::size_t Lezer::einde(std::size_t begin, std::string_view grens) const {
    int diepte = 0;
    std::size_t i = begin;
    for (; i < woorden_.size(); ++i) {
        if (diepte == 0 && (woorden_[i].is(grens) || Sluit(woorden_[i]))) break;
        if (Opent(woorden_[i])) ++diepte;
        if (Sluit(woorden_[i])) --diepte;
    }
    return i;
}

/// The expression that a name was last given before a place.
std::optional<std::size_t> Lezer::toewijzing(std::size_t voor, const std::string& naam) const {
    for (std::size_t i = voor; i-- > 1;) {
        if (woorden_[i].is("=") && woorden_[i - 1].naam() == naam) return i + 1;
    }
    return std::nullopt;
}

/// A condition chooses between two texts.
void Lezer::bericht(std::size_t begin, std::size_t eind) {
    ++oogst_.plaatsen;
    const std::size_t vraag = einde(begin, "?");
    if (vraag >= eind) return tak(begin, eind);
    const std::size_t dubbelepunt = einde(vraag + 1, ":");
    tak(vraag + 1, dubbelepunt);
    tak(dubbelepunt + 1, eind);
}

void Lezer::tak(std::size_t begin, std::size_t eind) {
    std::string tekst;
    bool geschreven = false;
    bool wisselt = false;
    const auto sluitWissel = [&] {
        if (wisselt) tekst += "…";
        wisselt = false;
    };
    for (std::size_t i = begin; i < eind; ++i) {
        if (woorden_[i].soort == Woord::Tekst) {
            sluitWissel();
            tekst += woorden_[i].tekst;
            geschreven = true;
        } else if (!woorden_[i].naam().empty() && !IsLijm(woorden_[i].naam())) {
            wisselt = true;
        }
    }
    sluitWissel();
    if (geschreven) {
        oogst_.teksten.push_back(EenRegel(tekst));
    } else if (!vanMaker(begin, eind)) {
        bezwaar(begin, "the text of this message cannot be found");
    }
}

/// The expression calls a maker, or it is a name that was given the call of one.
bool Lezer::vanMaker(std::size_t begin, std::size_t eind) {
    for (std::size_t i = begin; i < eind; ++i) {
        const auto maker = makers_.find(woorden_[i].naam());
        if (maker == makers_.end()) continue;
        oogst_.teksten.insert(oogst_.teksten.end(), maker->second.begin(), maker->second.end());
        return true;
    }
    if (eind - begin != 1) return false;
    const auto bron = toewijzing(begin, woorden_[begin].naam());
    return bron && vanMaker(*bron, einde(*bron, ";"));
}

void Lezer::lees() {
    for (std::size_t i = 1; i + 2 < woorden_.size(); ++i) {
        const std::string naam = woorden_[i].naam();
        if (naam == "meld" && woorden_[i + 1].is("(")) {
            const std::size_t begin = i + (woorden_[i + 2].is("{") ? 3 : 2);
            i = einde(begin, ",");
            bericht(begin, i);
            ++i; // the icon behind the comma is its own
        } else if (naam == "Icoon" && woorden_[i - 1].is(",")) {
            std::size_t begin = i - 1;
            while (begin > 0 && !woorden_[begin - 1].is("{"))
                --begin;
            bericht(begin, i - 1);
        } else {
            onderzoekUitweg(i);
        }
    }
}

/// Another way to show a message than by a call of `meld`.
void Lezer::onderzoekUitweg(std::size_t plaats) {
    const std::string naam = woorden_[plaats].naam();
    const bool vakken = bestand_.starts_with("ui/berichten.");
    if (naam == "QMessageBox" && !vakken) bezwaar(plaats, "a message box of its own");
    if (naam == "ToonMelding" && !vakken && bestand_ != "app/main.cpp")
        bezwaar(plaats, "a message that does not pass through meld");
    if (naam != "Melder") return;
    const Woord& volgende = woorden_[plaats + (woorden_[plaats + 1].is("&") ? 2 : 1)];
    const std::string genoemd = volgende.naam();
    // A class may keep one and pass messages on; one of its own is found by its icon.
    if (!genoemd.empty() && genoemd != "meld" && genoemd != "meld_")
        bezwaar(plaats, "a Melder of another name than meld");
}

bool IsBron(const fs::path& pad) { return pad.extension() == ".h" || pad.extension() == ".cpp"; }

} // namespace

Oogst LeesBerichten(const fs::path& bron, const Makers& makers) {
    Oogst oogst;
    for (const char* map : bronmappen) {
        std::error_code geenMap; // leaves the walk empty
        for (const auto& deel : fs::recursive_directory_iterator(bron / map, geenMap)) {
            if (!IsBron(deel.path())) continue;
            const std::string naam = deel.path().lexically_relative(bron).generic_string();
            Lezer(naam, LeesWoorden(deel.path()), makers, oogst).lees();
        }
    }
    std::sort(oogst.teksten.begin(), oogst.teksten.end());
    const auto dubbel = std::unique(oogst.teksten.begin(), oogst.teksten.end());
    oogst.teksten.erase(dubbel, oogst.teksten.end());
    return oogst;
}

std::string EenRegel(const std::string& tekst) {
    std::string regel;
    bool blank = false;
    for (const char teken : tekst) {
        if (teken == ' ' || teken == '\r' || teken == '\n' || teken == '\t') {
            blank = !regel.empty();
            continue;
        }
        if (blank) regel += ' ';
        blank = false;
        regel += teken;
    }
    return regel;
}

} // namespace lauwerkrans::berichten
