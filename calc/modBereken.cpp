#include "calc/modBereken.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

#include "calc/paartabel.h"
#include "data/fout.h"
#include "data/getallen.h"

namespace lauwerkrans {

namespace {

using Minima = std::array<std::int32_t, 256>; // by line letter

/// The criteria of the lines that have a pair, in the order of the letters.
Minima LeesMinima(const PaarTabel& tabel, const Criteria& criteria) {
    std::array<bool, 256> heeftPaar{};
    for (const PaarRij& paar : tabel.paren)
        heeftPaar.at(static_cast<unsigned char>(paar.lijn)) = true;
    Minima minima{};
    for (std::size_t letter = 0; letter < minima.size(); ++letter) {
        if (heeftPaar.at(letter)) minima.at(letter) = Minimum(criteria, static_cast<char>(letter));
    }
    return minima;
}

template <class Doe>
void VoorElkeCel(const PaarTabel& tabel, const PaarRij& paar, Doe doe) {
    for (std::size_t i = 0; i < paar.aantalCellen; ++i)
        doe(tabel.cellen[paar.eersteCel + i]);
}

std::int32_t TelZittingen(const PaarTabel& tabel, const PaarRij& paar) {
    std::int32_t aantal = 0;
    VoorElkeCel(tabel, paar, [&aantal](const ZittingCel& cel) {
        if (cel.duizendsten != 0) ++aantal;
    });
    return aantal;
}

/// The sum is kept in single precision, session after session; the division is made in double
/// precision.
float Deel(float som, std::int64_t deler) {
    return static_cast<float>(static_cast<double>(som) / 1000.0 / static_cast<double>(deler));
}

float GewoonGemiddelde(const PaarTabel& tabel, const PaarRij& paar) {
    float som = 0;
    VoorElkeCel(tabel, paar,
                [&som](const ZittingCel& cel) { som += static_cast<float>(cel.duizendsten); });
    return Deel(som, paar.zittingen);
}

/// A number of boards weighs as a 16-bit number, and no session has fewer than none.
void ControleerSpellen(std::int32_t spellen, const PaarRij& paar, const LedenNamen& leden) {
    if (spellen >= 0 && spellen <= std::numeric_limits<std::int16_t>::max()) return;
    Fout fout(FoutSoort::SpellenBuitenGrenzen);
    fout.tekst = std::to_string(spellen);
    fout.wie = leden.paar(paar.lid1, paar.lid2);
    throw fout;
}

/// Each session weighs with its number of boards.
float GewogenGemiddelde(const PaarTabel& tabel, const PaarRij& paar, const LedenNamen& leden) {
    float som = 0;
    std::int64_t spellen = 0;
    VoorElkeCel(tabel, paar, [&](const ZittingCel& cel) {
        ControleerSpellen(cel.spellen, paar, leden);
        if (cel.duizendsten == 0 || cel.spellen == 0) return;
        som += static_cast<float>(cel.spellen) * static_cast<float>(cel.duizendsten);
        spellen += cel.spellen;
    });
    if (spellen == 0) {
        Fout fout(FoutSoort::GeenSpellen);
        fout.wie = leden.paar(paar.lid1, paar.lid2);
        throw fout;
    }
    return Deel(som, spellen);
}

/// Order, ties and what is shown all come from the three-decimal text.
std::int32_t Gemiddelde(const PaarTabel& tabel, const PaarRij& paar, const LedenNamen& leden,
                        bool gewogen) {
    const float gemiddelde =
        gewogen ? GewogenGemiddelde(tabel, paar, leden) : GewoonGemiddelde(tabel, paar);
    return static_cast<std::int32_t>(PercNaarDuizendsten(GemiddeldeTekst(gemiddelde)));
}

/// Counts, tests against the minimum and averages. Leaves the ranked pairs, in the order in which
/// they first appear; returns their number plus that of the pairs without a counted session that a
/// minimum of 0 keeps.
std::size_t KiesDeelnemers(PaarTabel& tabel, const Minima& minima, const LedenNamen& leden,
                           bool gewogen) {
    std::size_t bovengrens = 0;
    auto volgende = tabel.paren.begin();
    for (PaarRij& paar : tabel.paren) {
        paar.zittingen = TelZittingen(tabel, paar);
        if (paar.zittingen < minima.at(static_cast<unsigned char>(paar.lijn))) continue;
        ++bovengrens;
        if (paar.zittingen == 0) continue;
        paar.gemiddelde = Gemiddelde(tabel, paar, leden, gewogen);
        *volgende++ = paar;
    }
    tabel.paren.erase(volgende, tabel.paren.end());
    return bovengrens;
}

/// Per line: line, then average downwards. Over all lines: average downwards, then line. Equal
/// pairs keep the order of their first appearance.
std::vector<PaarRij> Gesorteerd(const std::vector<PaarRij>& paren, bool alleLijnen) {
    // All in one number, which sorts far quicker than the rows: a line takes 8 bits, an average
    // (0 to 100,000) 24 and the place 32.
    std::vector<std::uint64_t> sleutels;
    sleutels.reserve(paren.size());
    for (const PaarRij& paar : paren) {
        const std::uint64_t lijn = static_cast<unsigned char>(paar.lijn);
        const std::uint64_t laagte = 0xFFFFFFU - static_cast<std::uint32_t>(paar.gemiddelde);
        const std::uint64_t eerst = alleLijnen ? laagte << 8U | lijn : lijn << 24U | laagte;
        sleutels.push_back(eerst << 32U | sleutels.size());
    }
    std::sort(sleutels.begin(), sleutels.end());
    std::vector<PaarRij> gesorteerd;
    gesorteerd.reserve(paren.size());
    for (const std::uint64_t sleutel : sleutels)
        gesorteerd.push_back(paren[sleutel & 0xFFFFFFFFU]);
    return gesorteerd;
}

/// Ranks the rows that pass, as one group.
template <class Past>
void Rangschik(std::vector<PaarRij>& rijen, Past past) {
    RangTabel rangTabel;
    std::uint32_t rang = 0;
    for (const PaarRij& rij : rijen) {
        if (past(rij)) rangTabel.push_back({++rang, rij.gemiddelde, false});
    }
    MarkeerGelijken(rangTabel);
    auto bron = rangTabel.begin();
    for (PaarRij& rij : rijen) {
        if (!past(rij)) continue;
        rij.rang = bron->rang;
        rij.gelijk = bron->gelijk;
        ++bron;
    }
}

} // namespace

float PercNaarDuizendsten(std::string_view tekst) {
    std::string cijfers(tekst);
    const auto komma = cijfers.find(',');
    if (komma != std::string::npos) cijfers.erase(komma, 1);
    return static_cast<float>(LeidendGetal(cijfers));
}

std::string GemiddeldeTekst(float gemiddelde) {
    return PercentageTekst(static_cast<std::int32_t>(Afgerond(gemiddelde, 3)));
}

ResultaatTabel BerekenKampioenen(ZitRegels zitRegels, const RondeInfo& rondeInfo,
                                 const Criteria& criteria, const Opties& opties) {
    PaarTabel tabel = MaakPaarTabel(zitRegels, rondeInfo, opties);
    ResultaatTabel resultaat;
    resultaat.leden = zitRegels.gedeeldeLeden();
    zitRegels = ZitRegels(); // with a million and a half rows the memory counts
    resultaat.zittingen = rondeInfo.totaal();
    const Minima minima = LeesMinima(tabel, criteria);
    resultaat.bovengrens = KiesDeelnemers(tabel, minima, *resultaat.leden, opties.gewogen);
    resultaat.rijen = Gesorteerd(tabel.paren, opties.gemAlleLijnen);
    tabel.paren = std::vector<PaarRij>();
    resultaat.cellen = std::move(tabel.cellen);
    if (opties.gemAlleLijnen) {
        RangAlleLijnen(resultaat);
    } else {
        RangPerLijn(resultaat, criteria.size());
    }
    MarkeerNulScores(resultaat);
    return resultaat;
}

void RangPerLijn(ResultaatTabel& resultaat, std::size_t lijnen) {
    for (std::size_t nummer = 1; nummer <= lijnen; ++nummer) {
        const char letter = LijnLetter(nummer);
        Rangschik(resultaat.rijen, [letter](const PaarRij& rij) { return rij.lijn == letter; });
    }
}

void RangAlleLijnen(ResultaatTabel& resultaat) {
    Rangschik(resultaat.rijen, [](const PaarRij&) { return true; });
}

void MarkeerGelijken(RangTabel& rangTabel) {
    for (std::size_t i = 1; i < rangTabel.size(); ++i) {
        if (rangTabel[i].gemiddelde != rangTabel[i - 1].gemiddelde) continue;
        rangTabel[i - 1].gelijk = true;
        rangTabel[i].gelijk = true;
        rangTabel[i].rang = rangTabel[i - 1].rang;
    }
}

void MarkeerNulScores(ResultaatTabel& resultaat) {
    for (ZittingCel& cel : resultaat.cellen)
        cel.streep = cel.duizendsten == 0;
}

} // namespace lauwerkrans
