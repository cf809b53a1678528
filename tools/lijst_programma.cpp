#include "tools/lijst_programma.h"

#include <algorithm>
#include <stdexcept>

#include "app/modMappen.h"
#include "calc/lijsten.h"
#include "data/codetabel.h"
#include "data/fout.h"
#include "data/getallen.h"
#include "data/modORV_compdata.h"
#include "data/modORV_leden.h"
#include "data/modORV_rondedata.h"
#include "data/tekstbestand.h"
#include "tools/lijst_opdracht.h"

namespace lauwerkrans::lijst {

namespace {

/// Something that the user must know and that ends the run.
struct Afgebroken : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// A message box on a line of its own.
std::string Regels(std::string tekst) {
    tekst.erase(std::remove(tekst.begin(), tekst.end(), '\r'), tekst.end());
    const auto begin = tekst.find_first_not_of('\n');
    if (begin == std::string::npos) return "\n";
    return tekst.substr(begin, tekst.find_last_not_of('\n') + 1 - begin) + "\n";
}

void SchrijfRij(std::ostream& uit, std::vector<std::string> cellen) {
    const char* scheiding = "";
    for (std::string& cel : cellen) {
        std::replace(cel.begin(), cel.end(), '\t', ' ');
        uit << scheiding << cel;
        scheiding = "\t";
    }
    uit << '\n';
}

void SchrijfLijst(std::ostream& uit, const Lijst& lijst) {
    SchrijfRij(uit, {lijst.titel()});
    SchrijfRij(uit, lijst.koppen());
    for (std::size_t rij = 1; rij <= lijst.rijen(); ++rij) {
        std::vector<std::string> cellen;
        for (std::size_t kolom = 1; kolom <= lijst.kolommen(); ++kolom)
            cellen.push_back(lijst.cel(rij, kolom));
        SchrijfRij(uit, std::move(cellen));
    }
}

void SchrijfRonden(std::ostream& uit, const Algemeen& algemeen) {
    SchrijfRij(uit, {algemeen.ActieveCompetitie});
    SchrijfRij(uit, {"Ronde", "Zittingen", "---", "met Perc"});
    const RondeInfo& ronden = algemeen.rondeInfo;
    for (std::size_t ronde = 1; ronde <= ronden.ronden(); ++ronde) {
        SchrijfRij(uit, {ronden.cel(ronde, 1), ronden.cel(ronde, 2), ronden.cel(ronde, 3),
                         ronden.cel(ronde, 4)});
    }
}

/// A folder with Mappen.ini is the suite's: a program folder in it would look there.
std::string ProgrammaMap(const std::string& map) {
    const bool vanSuite = systeem::IsBestand(WerkelijkPad(VoegPad(map, "Mappen.ini")));
    return vanSuite ? VoegPad(map, "Lauwr") : map;
}

void Laad(Algemeen& algemeen, const Opdracht& opdracht) {
    OverigeMappen overig;
    LeesMappenIni(algemeen, overig, ProgrammaMap(opdracht.map));
    if (!opdracht.competitie.empty()) algemeen.ActieveCompetitie = opdracht.competitie;
    if (algemeen.ActieveCompetitie.empty()) {
        throw Afgebroken("U hebt nog geen competitie(-zitting) gekozen.");
    }
    algemeen.competitie = VoegPad(algemeen.CompetitieMap, algemeen.ActieveCompetitie);
    LeesCompData(algemeen);
    algemeen.LijnTabel = LeesLijnTabel(algemeen.competitie);
    LeesLeden(algemeen);
    // Every other list reads the percentage files, and counts their sessions on the way.
    if (opdracht.soort == Soort::Ronden) BouwRondeInfo(algemeen);
}

void ControleerLijn(const std::string& lijnen, const std::string& lijn) {
    if (lijnen.find(lijn) == std::string::npos) {
        throw Afgebroken("Deze competitie heeft geen lijn " + lijn + ".");
    }
}

std::shared_ptr<const Lijst> MaakLijst(Algemeen& algemeen, const Opdracht& opdracht) {
    const std::string alle = AlleLijnen(algemeen.LijnTabel);
    ControleerLijn(alle, opdracht.lijn);
    const std::string lijnen = opdracht.lijn.empty() ? alle : opdracht.lijn;
    if (opdracht.soort == Soort::Lid) {
        const std::string filter = Hoofdletters(ZonderBlanks(opdracht.naamdeel));
        return MaakControlelijst(Controleer(algemeen, {lijnen, true, filter}));
    }
    if (opdracht.soort == Soort::Controle) {
        return MaakControlelijst(Controleer(algemeen, {lijnen, false, {}}));
    }
    Criteria criteria(alle.size());
    for (const auto& [lijn, minimum] : opdracht.minimum) {
        ControleerLijn(alle, lijn);
        criteria[LijnNummer(lijn[0]) - 1] = minimum;
    }
    const auto uitslag = Bereken(algemeen, lijnen, criteria, opdracht.opties);
    return MaakRanglijst(uitslag, opdracht.opties.zitDetails);
}

Uitgang VoerUit(const Opdracht& opdracht, std::ostream& uit, std::ostream& fouten) {
    Algemeen algemeen;
    algemeen.meld = [&fouten](const Melding& melding) { fouten << Regels(melding.tekst); };
    Laad(algemeen, opdracht);
    const Uitgang uitgang = algemeen.LeesFout == 0 ? Goed : Mislukt;
    if (opdracht.soort == Soort::Ronden) {
        SchrijfRonden(uit, algemeen);
    } else {
        SchrijfLijst(uit, *MaakLijst(algemeen, opdracht));
    }
    return uitgang;
}

} // namespace

Uitgang Voer(const std::vector<std::string>& woorden, std::ostream& uit, std::ostream& fouten) {
    const auto opdracht = LeesOpdracht(woorden);
    if (!opdracht) {
        fouten << Gebruik();
        return VerkeerdGebruik;
    }
    try {
        return VoerUit(*opdracht, uit, fouten);
    } catch (const Fout& fout) {
        fouten << Regels(FoutTekst(fout));
    } catch (const std::exception& fout) {
        fouten << Regels(fout.what());
    }
    return Mislukt;
}

} // namespace lauwerkrans::lijst
