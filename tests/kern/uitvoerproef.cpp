#include "uitvoerproef.h"

#include <stdexcept>

#include "gegevens.h"

namespace lauwerkrans::proef {

namespace {

const Paar vries{'A', 1, false, "Anneke de Vries", "José Müller", 14, 62417};
const Paar bos{'A', 2, true, "Piet Bos", "Kees; Jansen", 15, 58500};
const Paar smit{'A', 2, true, "Jan & Els <Smit>", "Théa Brönn", 13, 58500};
const Paar lukasz{'A', 4, false, "Łukasz", "Zoë van 't Veer", 13, 5500};
const Paar cent{'B', 1, false, "Bea Cent €", "Dirk de Dood", 10, 57125};
const Paar klaver{'C', 1, true, "Ab Klaver", "Cor Ruiten", 8, 100000};
const Paar harten{'C', 1, true, "Evi Harten", "Guus Schoppen", 9, 100000};

/// A pair at another place in the ranking.
Paar OpRang(Paar paar, std::size_t rang, bool gelijk) {
    paar.rang = rang;
    paar.gelijk = gelijk;
    return paar;
}

} // namespace

std::shared_ptr<Uitslag> MaakUitslag(const std::string& lijnen, const Criteria& criteria,
                                     const std::vector<Paar>& paren, std::size_t legeRijen) {
    auto uitslag = std::make_shared<Uitslag>();
    uitslag->GekozenLijnen = lijnen;
    uitslag->criteria = criteria;
    const auto hoogste = static_cast<std::uint32_t>(2 * paren.size());
    auto leden = std::make_shared<LedenNamen>(hoogste);
    std::uint32_t lid = 0;
    for (const Paar& paar : paren) {
        PaarRij rij;
        rij.lid1 = ++lid;
        rij.lid2 = ++lid;
        if (!leden->zet(rij.lid1, paar.lid1) || !leden->zet(rij.lid2, paar.lid2))
            throw std::out_of_range("MaakUitslag");
        rij.zittingen = paar.zittingen;
        rij.gemiddelde = paar.gemiddelde;
        rij.rang = static_cast<std::uint32_t>(paar.rang);
        rij.gelijk = paar.gelijk;
        rij.lijn = paar.lijn;
        uitslag->resultaat.rijen.push_back(rij);
    }
    uitslag->resultaat.bovengrens = paren.size() + legeRijen;
    uitslag->resultaat.leden = leden;
    return uitslag;
}

std::shared_ptr<Uitslag> PerLijn(std::size_t legeRijen) {
    return MaakUitslag("ABC", {"13", "10", "8"}, {vries, bos, smit, lukasz, cent, klaver, harten},
                       legeRijen);
}

std::shared_ptr<Uitslag> AlleSamen(std::size_t legeRijen) {
    auto uitslag =
        MaakUitslag("ABC", {"13", "10", "8"},
                    {OpRang(klaver, 1, true), OpRang(harten, 1, true), OpRang(vries, 3, false),
                     OpRang(bos, 4, true), OpRang(smit, 4, true), OpRang(cent, 6, false),
                     OpRang(lukasz, 7, false)},
                    legeRijen);
    uitslag->opties.gemAlleLijnen = true;
    return uitslag;
}

std::shared_ptr<Uitslag> Wisselend() {
    return MaakUitslag("AB", {"3", "20"},
                       {{'A', 1, false, "Een", "Twee", 3, 60000},
                        {'B', 1, false, "Drie", "Vier", 20, 55000},
                        {'A', 2, false, "Vijf", "Zes", 4, 50000},
                        {'A', 3, false, "Zeven", "Acht", 5, 40000}});
}

std::string Verwacht(const std::string& naam) {
    const std::string bytes =
        Inhoud(std::filesystem::path(LAUWERKRANS_TESTGEGEVENS) / "uitvoer" / naam);
    if (bytes.empty()) throw std::runtime_error("no expected file " + naam);
    return bytes;
}

UitvoerTest::UitvoerTest() {
    uitvoer.KopTekst = "Lauwerkrans 2023–2024, café \"Één\"";
    uitvoer.programmaMap = map.pad();
    uitvoer.meld = meldingen.melder();
    uitvoer.uitslag = PerLijn();
}

std::string UitvoerTest::geschreven(const std::string& naam) const {
    return Inhoud(map.map() / "Lauwerkrans" / naam);
}

void UitvoerTest::schakel(bool lijnen, bool zittingen) {
    uitvoer.ToonLijnen = lijnen ? 1 : 0;
    uitvoer.ToonZittingen = zittingen ? 1 : 0;
}

} // namespace lauwerkrans::proef
