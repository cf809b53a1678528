// The faults of the two settings files: the suite's Mappen.ini and the program's own Lauwr.ini.
#include "storingen.h"

namespace lauwerkrans::proef::storingen {

namespace {

/// The folder's message, and the program ends.
Verwacht Einde(const std::string& reden) {
    return {
        {"Het bestand '<map>/Mappen.ini' kan niet worden gelezen: " + reden + "."}, {}, geenLijst};
}

const Verwacht geenCompetitie = {{"U hebt nog geen competitie(-zitting) gekozen."}, {}, geenLijst};

/// Without settings no line has its minimum; the user is asked for it.
const Verwacht zonderCriteria = {
    {}, {"Geef bij lijn A een heel getal als minimum aantal zittingen."}, geenLijst};

// A name that no path can hold: Windows finds no such file, elsewhere it is an error.
#ifdef _WIN32
const std::string langeNaam = "Geen bestand met competitiegegevens aanwezig.\r\n";
#else
const std::string langeNaam = "Fout bij het inlezen van de competitiegegevens.\r\n";
#endif

const std::string begin = "ORVMAP=<map>\r\nCOMMAP=<map>\\Competities\r\nACTCOM=";

} // namespace

std::vector<Storing> StoringenVanMappen() {
    auto rijen = Gewone(Einde("het bestand bestaat niet"), geenCompetitie, Einde("<reden>"));
    const std::vector<Storing> eigen = {
        {"a number out of range", Vervang("ONELIN=2", "ONELIN=99999999999999999999"), {}},
        {"a negative number", Vervang("ONELIN=2", "ONELIN=-5"), {}},
        {"no number", Vervang("ONELIN=2", "ONELIN=twee"), {}},
        {VanGroot("a name"),
         Groot(begin, "\r\n"),
         {{langeNaam, "Fout bij het inlezen van de rondegegevens.\r\n\r\n<map>/Competities/x* ..."},
          {},
          ""}}};
    rijen.insert(rijen.end(), eigen.begin(), eigen.end());
    return rijen;
}

std::vector<Storing> StoringenVanLauwr() {
    auto rijen = Gewone(zonderCriteria, zonderCriteria, zonderCriteria);
    // What stands in the way of the settings is said when they are written; what could not be read
    // is not replaced.
    for (Storing& rij : rijen) {
        if (rij.naam == onleesbaar) {
            rij.verwacht.einde = {"Het bestand '<map>/Lauwerkrans/Lauwr.ini' kan niet worden "
                                  "geschreven: <reden>."};
        }
        if (rij.naam == "a folder of that name") {
            rij.verwacht.einde = {"Het bestand '<map>/Lauwerkrans/Lauwr.ini' kan niet worden "
                                  "geschreven: er staat een map met die naam."};
        }
    }
    const std::vector<Storing> eigen = {
        {"a number out of range", Vervang("TXT1=1", "TXT1=32768"), zonderCriteria},
        {"an option out of range", Vervang("CHKTL=1", "CHKTL=99999999999999999999"), {}},
        {"a negative number", Vervang("TXT1=1", "TXT1=-1"), zonderCriteria},
        {"no number", Vervang("TXT1=1", "TXT1=een"), zonderCriteria},
        {VanGroot("a heading"), Groot("__TXT1=1\r\n__TXT2=2\r\n__TXTKOP=", "\r\n"), {}},
        {VanGroot("a minimum"), Groot("__TXT1=", "\r\n"), zonderCriteria}};
    rijen.insert(rijen.end(), eigen.begin(), eigen.end());
    return rijen;
}

} // namespace lauwerkrans::proef::storingen
