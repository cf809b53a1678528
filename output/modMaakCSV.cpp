#include "output/modMaakCSV.h"

#include <string>

#include "data/systeem.h"
#include "data/tekstbestand.h"
#include "output/modMaakHtml.h"

namespace lauwerkrans {

namespace {

std::string Koppen(const Uitvoer& uitvoer) {
    return uitvoer.KopTekst + "\r\n" + uitvoer.InstellingPrefix + "\r\n" + uitvoer.ClubNaam +
           "\r\n";
}

/// Writes the text as one line, so that a line end follows that of its last line.
void Bewaar(Uitvoer& uitvoer, const std::string& tekst) {
    uitvoer.fout = 0;
    const std::string naam = Uitvoernaam(uitvoer, ".CSV");
    const auto schrijf = [&] {
        MaakUitvoerMap(uitvoer);
        VervangTekst(VoegPad(uitvoer.uitvoermap, naam), tekst + "\r\n");
    };
    if (!Geschreven(uitvoer, naam, schrijf)) return;
    uitvoer.meld({std::string("\r\nHet CSV-bestand '")
                      .append(naam)
                      .append("' is met succes aangemaakt.\r\n\r\nHet bevindt zich in de map: ")
                      .append(systeem::Schrijfwijze(uitvoer.uitvoermap)),
                  Icoon::Informatie});
}

} // namespace

void MaakCSV_Lijnen(Uitvoer& uitvoer) {
    std::string tekst = Koppen(uitvoer) + "Rang;Paar;Gemidd%;Zittingen\r\n";
    std::string vorigeLijn;
    int rang = 0;
    for (const Uitvoerregel& regel : Uitvoerregels(uitvoer)) {
        if (regel.lijn != vorigeLijn) {
            tekst += ";Lijn " + regel.lijn +
                     "\r\n;----- criterium: " + Criterium(uitvoer, regel.lijn) +
                     " of meer zittingen -----\r\n";
            rang = 0;
        }
        ++rang;
        tekst += std::to_string(rang) + ";" + regel.paar + ";" + regel.gemiddelde + ";" +
                 regel.zittingen + "\r\n";
        vorigeLijn = regel.lijn;
    }
    Bewaar(uitvoer, tekst);
}

void MaakCSV_Totaal(Uitvoer& uitvoer) {
    const bool metLijn = uitvoer.ToonLijnen == 1;
    const bool metZittingen = uitvoer.ToonZittingen == 1;
    std::string tekst = Koppen(uitvoer) + "Rang;Paar;Gemidd%";
    tekst += metZittingen ? ";Zittingen\r\n" : "\r\n";
    int rang = 0;
    for (const Uitvoerregel& regel : Uitvoerregels(uitvoer)) {
        ++rang;
        tekst += std::to_string(rang) + ";" + (metLijn ? regel.lijn + "   " : "") + regel.paar +
                 ";" + regel.gemiddelde + (metZittingen ? ";" + regel.zittingen : "") + "\r\n";
    }
    Bewaar(uitvoer, tekst);
}

} // namespace lauwerkrans
