#include "gevallen.h"

#include <algorithm>
#include <map>
#include <random>

#include "data/fout.h"
#include "naief.h"

namespace lauwerkrans::proef {

namespace {

const std::string geenSpellen = "geen spellen";

std::map<int, std::string> MaakLeden() {
    std::map<int, std::string> leden;
    for (int lid = 1; lid <= 99; ++lid)
        leden[lid] = "Lid " + std::to_string(lid);
    return leden;
}

naief::Invoer NaiefInvoer(const Geval& geval, const Opties& opties) {
    static const std::map<int, std::string> leden = MaakLeden();
    naief::Invoer invoer;
    invoer.leden = &leden;
    invoer.zitRegels.resize(1);
    for (const Score& score : geval.scores) {
        invoer.zitRegels.push_back(
            naief::ZitRij(score.lijn, static_cast<int>(score.lid1), static_cast<int>(score.lid2),
                          score.ronde, score.zitting, score.percentage, score.spellen, score.bum));
    }
    invoer.gespeeld.resize(1);
    for (const std::string& ronde : geval.ronden) {
        invoer.gespeeld.emplace_back(1, false);
        for (const char teken : ronde)
            invoer.gespeeld.back().push_back(teken == '1');
    }
    for (std::size_t i = 0; i < geval.criteria.size(); ++i)
        invoer.minimum[std::string(1, static_cast<char>('A' + i))] = std::stoi(geval.criteria[i]);
    invoer.gewogen = opties.gewogen;
    invoer.gemAlleLijnen = opties.gemAlleLijnen;
    invoer.buiMed = opties.buiMed;
    return invoer;
}

/// Random choices; the same on every system.
class Kiezer {
public:
    explicit Kiezer(unsigned zaad) : toeval_(zaad) {}

    int tot(int aantal) { return static_cast<int>(toeval_() % static_cast<unsigned>(aantal)); }
    bool een(int op) { return tot(op) == 0; }
    std::string percentage();

private:
    std::mt19937 toeval_;
};

std::string Kiezer::percentage() {
    static const std::vector<std::string> vast = {"50",  "50,000", "50.001", "60",     "0",      "",
                                                  "100", "0,0004", "0,0005", " 55,5 ", "99,9996"};
    if (een(2)) return vast[static_cast<std::size_t>(tot(static_cast<int>(vast.size())))];
    std::string tekst = std::to_string(tot(100));
    const int decimalen = tot(6);
    if (decimalen > 0) tekst += een(2) ? "," : ".";
    for (int i = 0; i < decimalen; ++i)
        tekst += static_cast<char>('0' + tot(10));
    return tekst;
}

std::vector<std::string> WillekeurigeRonden(Kiezer& kies) {
    const int ronden = 1 + kies.tot(4);
    const int zittingen = 1 + kies.tot(3);
    std::vector<std::string> marks;
    for (int ronde = 0; ronde < ronden; ++ronde) {
        std::string mark;
        for (int zitting = 0; zitting < zittingen; ++zitting)
            mark += kies.een(4) ? '0' : '1';
        marks.push_back(mark);
    }
    return marks;
}

Score WillekeurigeScore(Kiezer& kies, int lijnen, int leden) {
    static const std::vector<int> spellen = {24, 24, 24, 12, 7, 0, 100};
    Score score;
    score.lijn = static_cast<char>('A' + kies.tot(lijnen));
    score.lid1 = static_cast<std::uint32_t>(95 + kies.tot(leden));
    score.lid2 = static_cast<std::uint32_t>(95 + kies.tot(leden));
    score.percentage = kies.percentage();
    score.spellen = spellen[static_cast<std::size_t>(kies.tot(7))];
    score.bum = kies.een(6);
    return score;
}

} // namespace

std::vector<Opties> AlleOpties() {
    std::vector<Opties> alle;
    for (unsigned i = 0; i < 8; ++i) {
        Opties opties;
        opties.gewogen = (i & 1U) != 0;
        opties.gemAlleLijnen = (i & 2U) != 0;
        opties.buiMed = (i & 4U) != 0;
        alle.push_back(opties);
    }
    return alle;
}

std::vector<std::string> VolgensProgramma(const Geval& geval, const Opties& opties) {
    try {
        return Rijen(Bereken(Scores(geval.ronden, geval.scores), geval.criteria, opties));
    } catch (const Fout& fout) {
        if (fout.soort != FoutSoort::GeenSpellen) throw;
        return {geenSpellen};
    }
}

std::vector<std::string> VolgensNaief(const Geval& geval, const Opties& opties) {
    std::vector<std::string> rijen;
    try {
        const naief::Tabel tabel = naief::Bereken(NaiefInvoer(geval, opties));
        for (std::size_t r = 1; r < tabel.size(); ++r) {
            std::string tekst = tabel[r][1];
            for (std::size_t k = 2; k < tabel[r].size(); ++k)
                tekst += "|" + tabel[r][k];
            rijen.push_back(tekst);
        }
    } catch (const naief::GeenSpellen&) {
        return {geenSpellen};
    }
    return rijen;
}

Geval WillekeurigGeval(unsigned zaad) {
    Kiezer kies(zaad);
    Geval geval;
    geval.ronden = WillekeurigeRonden(kies);
    const int lijnen = 1 + kies.tot(3);
    const int leden = 2 + kies.tot(6);
    const int perZitting = kies.tot(9);
    for (int i = 0; i < lijnen; ++i)
        geval.criteria.push_back(std::to_string(kies.tot(4)));
    for (std::size_t ronde = 1; ronde <= geval.ronden.size(); ++ronde) {
        for (std::size_t zitting = 1; zitting <= geval.ronden[0].size(); ++zitting) {
            if (geval.ronden[ronde - 1][zitting - 1] == '0') continue;
            for (int i = 0; i < perZitting; ++i) {
                Score score = WillekeurigeScore(kies, lijnen, leden);
                score.ronde = static_cast<std::uint8_t>(ronde);
                score.zitting = static_cast<std::uint8_t>(zitting);
                geval.scores.push_back(score);
            }
        }
    }
    if (kies.een(2)) { // another order than that of the files
        for (std::size_t i = geval.scores.size(); i > 1; --i)
            std::swap(geval.scores[i - 1],
                      geval.scores[static_cast<std::size_t>(kies.tot(static_cast<int>(i)))]);
    }
    return geval;
}

std::string Beschrijving(const Geval& geval) {
    std::string tekst;
    for (const auto& ronde : geval.ronden)
        tekst += ronde + " ";
    for (const auto& criterium : geval.criteria)
        tekst += "[" + criterium + "]";
    for (const Score& score : geval.scores) {
        tekst += std::string("\n") + score.lijn + " " + std::to_string(score.lid1) + "-" +
                 std::to_string(score.lid2) + " R" + std::to_string(score.ronde) + "-Z" +
                 std::to_string(score.zitting) + " '" + score.percentage + "' " +
                 std::to_string(score.spellen) + (score.bum ? " BUM" : "");
    }
    return tekst;
}

} // namespace lauwerkrans::proef
