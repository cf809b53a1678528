#include "data/modORV_compdata.h"

#include <limits>

#include "data/fout.h"
#include "data/lijstformaat.h"
#include "data/ronde_mappen.h"
#include "data/tekstbestand.h"

namespace lauwerkrans {

namespace {

constexpr std::int64_t meesteVelden = std::numeric_limits<std::int32_t>::max();

void LeesCellen(LijstBestand& bestand, CompTabel& tabel) {
    bestand.slaOver(7);
    bestand.slaOver(bestand.getal(0, meesteVelden));
    const std::int64_t ronden = bestand.getal(0, meesteRonden);
    const std::int64_t zittingen = bestand.getal(0, meesteRonden);
    const std::int64_t items = bestand.getal(0, meesteVelden);
    tabel = CompTabel(ronden, zittingen, items);
    for (std::int64_t i = 0; i < ronden * zittingen * items; ++i)
        tabel.voegToe(bestand.tekst());
}

} // namespace

void LeesCompData(Algemeen& algemeen) {
    algemeen.LeesFout = 0;
    algemeen.compTabel = CompTabel();
    const std::string pad = VoegPad(algemeen.competitie, "CompData.txt");
    try {
        const systeem::Leesbuffer buffer = LeesTekst(pad);
        LijstBestand bestand(pad, buffer.bytes());
        LeesCellen(bestand, algemeen.compTabel);
    } catch (const Fout& fout) {
        const bool ontbreekt = fout.code == std::errc::no_such_file_or_directory ||
                               fout.code == std::errc::not_a_directory;
        algemeen.LeesFout = ontbreekt ? 2 : 1;
        algemeen.meld({ontbreekt ? "Geen bestand met competitiegegevens aanwezig.\r\n"
                                 : "Fout bij het inlezen van de competitiegegevens.\r\n",
                       Icoon::Uitroep});
    }
}

void BouwRondeInfo(Algemeen& algemeen) {
    const auto ronden = static_cast<std::size_t>(algemeen.compTabel.ronden());
    const auto zittingen = static_cast<std::size_t>(algemeen.compTabel.zittingen());
    algemeen.rondeInfo = RondeInfo(ronden, zittingen, std::vector<bool>(ronden * zittingen));
    algemeen.rondeInfo = MaakRondeInfo(RondeMappen(algemeen.competitie, ronden), zittingen);
    if (ronden * zittingen > 0) {
        algemeen.PadPercZit = PercZitPad(algemeen.competitie, ronden, zittingen);
    }
}

} // namespace lauwerkrans
