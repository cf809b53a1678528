#include "data/modORV_rondedata.h"

#include "data/fout.h"
#include "data/lijstformaat.h"
#include "data/ronde_mappen.h"
#include "data/tekstbestand.h"

namespace lauwerkrans {

std::string RondeDataPad(const std::string& competitie) {
    return VoegPad(RondePad(competitie, 1), "RondeData.txt");
}

Melding RondeDataFout(const std::string& competitie) {
    return {"Fout bij het inlezen van de rondegegevens.\r\n\r\n" +
                PadInMelding(RondeDataPad(competitie)),
            Icoon::Uitroep};
}

Tabel LeesLijnTabel(const std::string& competitie) {
    const std::string pad = RondeDataPad(competitie);
    const systeem::Leesbuffer buffer = LeesTekst(pad);
    LijstBestand bestand(pad, buffer.bytes());
    bestand.slaOver(7);
    const auto lijnen = static_cast<std::size_t>(bestand.getal(0, meesteLijnen));
    Tabel tabel(lijnen, 2);
    for (std::size_t i = 1; i <= lijnen; ++i) {
        tabel.zet(i, 1, std::to_string(i));
        tabel.zet(i, 2, "1");
    }
    return tabel;
}

} // namespace lauwerkrans
