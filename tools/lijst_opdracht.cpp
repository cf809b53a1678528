#include "tools/lijst_opdracht.h"

#include <array>
#include <utility>

#include "data/getallen.h"

namespace lauwerkrans::lijst {

namespace {

constexpr std::array<std::pair<const char*, Soort>, 4> soorten = {{
    {"ranglijst", Soort::Ranglijst},
    {"controle", Soort::Controle},
    {"lid", Soort::Lid},
    {"ronden", Soort::Ronden},
}};

bool IsLijn(const std::string& tekst) {
    return tekst.size() == 1 && tekst[0] >= 'A' && tekst[0] <= 'Z';
}

bool ZetCompetitie(Opdracht& opdracht, const std::string& waarde) {
    opdracht.competitie = waarde;
    return !waarde.empty();
}

bool ZetLijn(Opdracht& opdracht, const std::string& waarde) {
    opdracht.lijn = waarde == "alle" ? "" : waarde;
    return waarde == "alle" || IsLijn(waarde);
}

/// A=13,B=10. What stands behind "=" is checked by the calculation, as the text of a box is.
bool ZetMinimum(Opdracht& opdracht, const std::string& waarde) {
    for (std::size_t begin = 0;;) {
        const auto komma = waarde.find(',', begin);
        const std::string deel = waarde.substr(begin, komma - begin);
        const auto is = deel.find('=');
        if (is == std::string::npos || !IsLijn(deel.substr(0, is))) return false;
        opdracht.minimum[deel.substr(0, is)] = deel.substr(is + 1);
        if (komma == std::string::npos) return true;
        begin = komma + 1;
    }
}

/// An option is a tick, or takes the next word as its value.
struct Optie {
    const char* naam;
    bool alleenRanglijst;
    bool Opties::*vink;
    bool (*zet)(Opdracht&, const std::string&);
};

const std::array<Optie, 7> opties = {{
    {"--competitie", false, nullptr, ZetCompetitie},
    {"--lijn", false, nullptr, ZetLijn},
    {"--minimum", true, nullptr, ZetMinimum},
    {"--gewogen", true, &Opties::gewogen, nullptr},
    {"--details", true, &Opties::zitDetails, nullptr},
    {"--alle-lijnen", true, &Opties::gemAlleLijnen, nullptr},
    {"--buiten-mededinging", true, &Opties::buiMed, nullptr},
}};

const Optie* ZoekOptie(const Opdracht& opdracht, const std::string& naam) {
    for (const Optie& optie : opties) {
        const bool past = !optie.alleenRanglijst || opdracht.soort == Soort::Ranglijst;
        if (past && naam == optie.naam) return &optie;
    }
    return nullptr;
}

bool LeesOpties(Opdracht& opdracht, const std::vector<std::string>& woorden, std::size_t begin) {
    for (std::size_t i = begin; i < woorden.size(); ++i) {
        const Optie* optie = ZoekOptie(opdracht, woorden[i]);
        if (optie == nullptr) return false;
        if (optie->vink != nullptr) {
            opdracht.opties.*(optie->vink) = true;
        } else if (++i == woorden.size() || !optie->zet(opdracht, woorden[i])) {
            return false;
        }
    }
    return true;
}

} // namespace

std::optional<Opdracht> LeesOpdracht(const std::vector<std::string>& woorden) {
    if (woorden.size() < 2) return std::nullopt;
    Opdracht opdracht;
    opdracht.map = woorden[0];
    std::size_t begin = 2;
    bool bekend = false;
    for (const auto& [naam, soort] : soorten) {
        if (woorden[1] != naam) continue;
        opdracht.soort = soort;
        bekend = true;
    }
    if (!bekend || opdracht.map.empty()) return std::nullopt;
    if (opdracht.soort == Soort::Lid) {
        if (woorden.size() < 3 || ZonderBlanks(woorden[2]).empty()) return std::nullopt;
        opdracht.naamdeel = woorden[2];
        begin = 3;
    }
    if (!LeesOpties(opdracht, woorden, begin)) return std::nullopt;
    return opdracht;
}

const std::string& Gebruik() {
    static const std::string tekst =
        "Gebruik: lauwerkrans_lijst MAP LIJST [OPTIES]\n"
        "\n"
        "MAP is de map van het programma, of die van de administratie met Mappen.ini.\n"
        "\n"
        "LIJST is een van deze:\n"
        "  ranglijst             het klassement\n"
        "  controle              de scores zoals ze gelezen zijn\n"
        "  lid NAAMDEEL          de scores van wie dit in zijn naam heeft\n"
        "  ronden                de ronden en hun zittingen\n"
        "\n"
        "OPTIES bij elke lijst:\n"
        "  --competitie NAAM     deze competitie in plaats van de actieve\n"
        "  --lijn A|alle         alleen deze lijn; zonder deze optie alle lijnen\n"
        "\n"
        "OPTIES bij de ranglijst:\n"
        "  --minimum A=13,B=10   minimum aantal zittingen per lijn\n"
        "  --gewogen             gewogen gemiddelde\n"
        "  --details             een kolom per zitting\n"
        "  --alle-lijnen         een klassement van alle lijnen samen\n"
        "  --buiten-mededinging  ook wat buiten mededinging is gespeeld\n";
    return tekst;
}

} // namespace lauwerkrans::lijst
