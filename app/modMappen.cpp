#include "app/modMappen.h"

#include <array>
#include <variant>

#include "data/codetabel.h"
#include "data/getallen.h"
#include "data/tekstbestand.h"

namespace lauwerkrans {

namespace {

constexpr std::size_t sleutelLengte = 7;     // 6 letters and "="
constexpr std::size_t langsteWaarde = 32767; // bytes; no system has a longer path

struct Sleutel {
    std::string_view tekst;
    std::variant<std::string Algemeen::*, std::string OverigeMappen::*,
                 std::int16_t OverigeMappen::*>
        waarde;
};

const std::array<Sleutel, 21> sleutels = {{
    {"ORVMAP=", &Algemeen::OrvMap},        {"ZITMAP=", &OverigeMappen::ZITMAP},
    {"ADMMAP=", &OverigeMappen::ADMMAP},   {"INDMAP=", &OverigeMappen::INDMAP},
    {"SPEMAP=", &OverigeMappen::SPEMAP},   {"ACTZIT=", &OverigeMappen::ACTZIT},
    {"ONELIN=", &OverigeMappen::ONELIN},   {"INDIVI=", &OverigeMappen::INDIVI},
    {"SCHETY=", &OverigeMappen::SCHETY},   {"WIJZOK=", &OverigeMappen::WIJZOK},
    {"COMMAP=", &Algemeen::CompetitieMap}, {"COMPET=", &OverigeMappen::COMPET},
    {"SPINDE=", &OverigeMappen::SPINDE},   {"RODAFI=", &OverigeMappen::RODAFI},
    {"ROSPFI=", &OverigeMappen::ROSPFI},   {"ACTCOM=", &Algemeen::ActieveCompetitie},
    {"ACTCRO=", &OverigeMappen::ACTCRO},   {"ACTCZI=", &OverigeMappen::ACTCZI},
    {"ZINFOF=", &OverigeMappen::ZINFOF},   {"ZSPEFI=", &OverigeMappen::ZSPEFI},
    {"INDIPL=", &OverigeMappen::INDIPL},
}};

/// Puts a value where its key belongs.
struct Bewaarder {
    Algemeen& algemeen;
    OverigeMappen& overig;
    std::string_view waarde;

    void operator()(std::string Algemeen::*veld) const { algemeen.*veld = waarde; }
    void operator()(std::string OverigeMappen::*veld) const { overig.*veld = waarde; }
    void operator()(std::int16_t OverigeMappen::*veld) const {
        overig.*veld = LeidendGetal16(waarde).value_or(0);
    }
};

bool HeeftEigenMap(std::string_view programmaMap) {
    const std::string pad = Hoofdletters(programmaMap);
    const std::string naam = pad.substr(pad.find_last_of("\\/") + 1);
    return pad.find("LAUWR") != std::string::npos || naam.find("LAUWER") != std::string::npos;
}

} // namespace

std::string MappenIniPad(std::string_view programmaMap) {
    if (!HeeftEigenMap(programmaMap)) return VoegPad(programmaMap, "Mappen.ini");
    const auto scheiding = programmaMap.find_last_of("\\/");
    return std::string(programmaMap.substr(0, scheiding + 1)) + "Mappen.ini";
}

void LeesMappenIni(Algemeen& algemeen, OverigeMappen& overig, std::string_view programmaMap) {
    const systeem::Leesbuffer buffer = LeesTekst(MappenIniPad(programmaMap));
    Regels regels(ZonderBom(buffer.bytes()));
    while (const auto regel = regels.volgende()) {
        const std::string begin = Hoofdletters(regel->substr(0, sleutelLengte));
        for (const Sleutel& sleutel : sleutels) {
            if (begin != sleutel.tekst) continue;
            const std::string waarde = NaarUtf8(regel->substr(sleutelLengte, langsteWaarde));
            std::visit(Bewaarder{algemeen, overig, waarde}, sleutel.waarde);
        }
    }
}

} // namespace lauwerkrans
