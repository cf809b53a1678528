#include "calc/paartabel.h"

#include <algorithm>
#include <cstdint>
#include <stdexcept>

#include "calc/paarindex.h"
#include "data/fout.h"

namespace lauwerkrans {

namespace {

/// Two numbers of up to eight digits (27 bits each) and a letter.
std::uint64_t Sleutel(const ZitRegel& regel, bool alleLijnen) {
    const std::uint64_t lijn = alleLijnen ? 0 : static_cast<unsigned char>(regel.lijn);
    return (lijn << 56U) | (std::uint64_t{regel.laagste()} << 28U) | regel.hoogste();
}

/// Which pair each score row belongs to, and how many rows each pair has.
struct Indeling {
    std::vector<std::uint32_t> paarVanRegel;
    std::vector<std::uint32_t> aantallen;
};

/// Divides the score rows over the pairs; makes the pairs on the way.
Indeling DeelIn(const ZitRegels& zitRegels, bool alleLijnen, std::vector<PaarRij>& paren) {
    PaarIndex index;
    Indeling indeling;
    // Every row may be a pair of its own. Room that stays empty is no memory.
    paren.reserve(zitRegels.gevuld());
    indeling.aantallen.reserve(zitRegels.gevuld());
    indeling.paarVanRegel.reserve(zitRegels.gevuld());
    for (const ZitRegel& regel : zitRegels.regels()) {
        const std::uint32_t nummer = index.nummer(Sleutel(regel, alleLijnen));
        if (nummer == paren.size()) {
            PaarRij paar;
            paar.lijn = regel.lijn;
            paar.lid1 = regel.laagste();
            paar.lid2 = regel.hoogste();
            paren.push_back(paar);
            indeling.aantallen.push_back(0);
        }
        ++indeling.aantallen[nummer];
        indeling.paarVanRegel.push_back(nummer);
    }
    return indeling;
}

/// Gives every pair its slice of the cells; returns where each slice begins.
std::vector<std::uint32_t> VerdeelRuimte(const Indeling& indeling, std::vector<PaarRij>& paren) {
    std::vector<std::uint32_t> begin;
    begin.reserve(paren.size());
    std::uint32_t volgende = 0;
    for (std::size_t i = 0; i < paren.size(); ++i) {
        begin.push_back(volgende);
        paren[i].eersteCel = volgende;
        paren[i].aantalCellen = indeling.aantallen[i];
        volgende += indeling.aantallen[i];
    }
    return begin;
}

ZittingCel MaakCel(const ZitRegels& zitRegels, const ZitRegel& regel, const RondeInfo& rondeInfo,
                   bool buiMed) {
    ZittingCel cel;
    const std::size_t kolom = rondeInfo.volgnummer(regel.ronde, regel.zitting);
    if (kolom == 0) throw std::out_of_range("a score of a session that was not played");
    cel.kolom = static_cast<std::uint16_t>(kolom);
    if (regel.bum && !buiMed) return cel;
    cel.duizendsten = zitRegels.duizendsten(regel);
    if (cel.duizendsten == ZitRegels::geenPercentage) {
        Fout fout(FoutSoort::PercentageGeenGetal);
        fout.tekst = zitRegels.percentage(regel);
        fout.wie = zitRegels.leden().paar(regel.laagste(), regel.hoogste());
        fout.ronde = regel.ronde;
        fout.zitting = regel.zitting;
        throw fout;
    }
    cel.spellen = regel.spellen;
    return cel;
}

/// Puts a pair's cells in column order and leaves only the last row of each session.
void Orden(PaarRij& paar, std::vector<ZittingCel>& cellen) {
    const auto begin = cellen.begin() + paar.eersteCel;
    const auto einde = begin + paar.aantalCellen;
    const auto nietVerder = [](const auto& a, const auto& b) { return a.kolom >= b.kolom; };
    if (std::adjacent_find(begin, einde, nietVerder) == einde) return; // as the files are read
    std::stable_sort(begin, einde, [](const auto& a, const auto& b) { return a.kolom < b.kolom; });
    auto uit = begin;
    for (auto cel = begin; cel != einde; ++cel) {
        if (cel != begin && uit->kolom != cel->kolom) ++uit;
        *uit = *cel;
    }
    paar.aantalCellen = static_cast<std::uint32_t>(uit - begin) + 1;
}

} // namespace

PaarTabel MaakPaarTabel(const ZitRegels& zitRegels, const RondeInfo& rondeInfo,
                        const Opties& opties) {
    PaarTabel tabel;
    const Indeling indeling = DeelIn(zitRegels, opties.gemAlleLijnen, tabel.paren);
    auto plaats = VerdeelRuimte(indeling, tabel.paren);
    tabel.cellen.resize(zitRegels.gevuld());
    for (std::size_t i = 0; i < indeling.paarVanRegel.size(); ++i) {
        tabel.cellen[plaats[indeling.paarVanRegel[i]]++] =
            MaakCel(zitRegels, zitRegels.regels()[i], rondeInfo, opties.buiMed);
    }
    for (PaarRij& paar : tabel.paren)
        Orden(paar, tabel.cellen);
    return tabel;
}

} // namespace lauwerkrans
