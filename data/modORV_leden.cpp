#include "data/modORV_leden.h"

#include <array>
#include <limits>
#include <memory>

#include "data/codetabel.h"
#include "data/fout.h"
#include "data/getallen.h"
#include "data/lijstformaat.h"
#include "data/tekstbestand.h"

namespace lauwerkrans {

namespace {

constexpr std::size_t veldenVanLid = 6;

std::string ZonderEersteStreepje(std::string_view naam) {
    std::string tekst(naam);
    const auto plaats = tekst.find('-');
    if (plaats != std::string::npos) tekst.erase(plaats, 1);
    return tekst;
}

Fout LedenFout(FoutSoort soort, std::string_view tekst) {
    Fout fout(soort);
    fout.tekst = Begin(tekst);
    return fout;
}

/// N from the first field of the file, the text after its first "=".
std::int64_t LeesAantal(std::string_view bytes) {
    const std::string_view kop = LijstLezer(bytes).volgende().value_or("");
    const auto is = kop.find('=');
    const auto aantal = is == std::string_view::npos ? std::nullopt : HeelGetal(kop.substr(is + 1));
    if (!aantal || *aantal < 0 || *aantal > std::numeric_limits<std::int32_t>::max()) {
        throw LedenFout(FoutSoort::GeenHeelGetal, kop);
    }
    return *aantal;
}

/// The first six fields of a member line; there may be more.
std::array<std::string_view, veldenVanLid> SplitsLid(std::string_view regel) {
    std::array<std::string_view, veldenVanLid> velden;
    std::string_view rest = regel;
    for (std::size_t i = 0; i < veldenVanLid; ++i) {
        const auto komma = rest.find(',');
        velden.at(i) = rest.substr(0, komma);
        if (komma == std::string_view::npos && i + 1 < veldenVanLid) {
            throw LedenFout(FoutSoort::AantalVelden, regel);
        }
        rest.remove_prefix(velden.at(i).size() + (komma == std::string_view::npos ? 0 : 1));
    }
    return velden;
}

void BewaarLid(LedenNamen& namen, std::string_view regel) {
    const auto velden = SplitsLid(regel);
    const auto nummer = HeelGetal(velden[1]);
    if (!nummer) throw LedenFout(FoutSoort::GeenHeelGetal, velden[1]);
    const std::string naam = WeergaveNaam(velden[3], velden[4], velden[5]);
    if (!namen.zet(*nummer, NaarUtf8(std::string_view(naam).substr(0, langsteVeld)))) {
        throw LedenFout(FoutSoort::GetalBuitenGrenzen, velden[1]);
    }
}

void LeesBestand(const std::string& pad, LedenNamen& namen) {
    const systeem::Leesbuffer buffer = LeesTekst(pad);
    const std::string_view bytes = ZonderBom(buffer.bytes());
    namen = LedenNamen(LeesAantal(bytes));
    Regels regels(bytes);
    static_cast<void>(regels.volgende());
    if (regels.klaar()) throw LedenFout(FoutSoort::BestandEindigtTeVroeg, {});
    while (const auto regel = regels.volgende()) {
        if (regels.klaar()) break; // the last line is never stored
        if (!ZonderBlanks(*regel).empty()) BewaarLid(namen, *regel);
    }
}

} // namespace

std::string LedenPad(const std::string& orvMap) {
    return VoegPad(VoegPad(orvMap, "ORVspelers"), "ORVspelers.txt");
}

std::string WeergaveNaam(std::string_view voornaam, std::string_view tussenvoegsel,
                         std::string_view achternaam) {
    std::string naam = ZonderEersteStreepje(voornaam) + " ";
    if (!ZonderBlanks(tussenvoegsel).empty()) naam.append(tussenvoegsel).append(" ");
    return naam + ZonderEersteStreepje(achternaam);
}

void LeesLeden(Algemeen& algemeen) {
    LedenNamen namen;
    try {
        LeesBestand(LedenPad(algemeen.OrvMap), namen);
    } catch (const Fout&) {
        algemeen.LeesFout = 1;
        algemeen.meld({"\r\nFout bij het lezen van de Groepen!\r\n", Icoon::Uitroep});
    }
    algemeen.ledenNamen = std::make_shared<const LedenNamen>(std::move(namen));
}

} // namespace lauwerkrans
