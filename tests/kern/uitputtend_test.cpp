// Every small table there is: the ranking is that of the plain calculation.
#include <gtest/gtest.h>

#include "gevallen.h"

namespace lauwerkrans {
namespace {

using proef::Geval;

/// Counts through all ways to give each place one of the scores.
class Teller {
public:
    Teller(std::size_t plaatsen, std::size_t scores) : keuze_(plaatsen), scores_(scores) {}

    [[nodiscard]] bool volgende() {
        for (auto& keuze : keuze_) {
            if (++keuze < scores_) return true;
            keuze = 0;
        }
        return false;
    }
    [[nodiscard]] std::size_t keuze(std::size_t plaats) const { return keuze_[plaats]; }

private:
    std::vector<std::size_t> keuze_;
    std::size_t scores_;
};

/// Session after session, pair after pair; pair 2 plays in line B.
Geval MaakGeval(const Teller& teller, std::size_t paren, std::size_t zittingen,
                const std::vector<std::string>& scores) {
    Geval geval;
    geval.ronden = {std::string(zittingen, '1')};
    geval.criteria = {"2", "1"};
    for (std::size_t plaats = 0; plaats < paren * zittingen; ++plaats) {
        const std::string& score = scores[teller.keuze(plaats)];
        if (score.empty()) continue;
        const std::size_t paar = plaats % paren;
        const auto lid = static_cast<std::uint32_t>(10 + 2 * paar);
        const auto zitting = static_cast<std::uint8_t>(1 + plaats / paren);
        const int spellen = zitting == 2 ? 12 : 24;
        geval.scores.push_back(
            {paar == 1 ? 'B' : 'A', lid, lid + 1, 1, zitting, score, spellen, false});
    }
    return geval;
}

/// Compares all tables of this size; returns their number.
std::size_t VergelijkAlle(std::size_t paren, std::size_t zittingen,
                          const std::vector<std::string>& scores, const Opties& opties) {
    Teller teller(paren * zittingen, scores.size());
    std::size_t aantal = 0;
    do {
        const Geval geval = MaakGeval(teller, paren, zittingen, scores);
        ++aantal;
        const auto programma = VolgensProgramma(geval, opties);
        const auto naief = VolgensNaief(geval, opties);
        if (programma == naief) continue;
        EXPECT_EQ(programma, naief) << Beschrijving(geval);
        return aantal;
    } while (teller.volgende());
    return aantal;
}

// "" is a session not played.
const std::vector<std::string> welOfNiet = {"", "50"};
const std::vector<std::string> altijd = {"50", "60"};
const std::vector<std::string> tweeScores = {"", "50", "60"};
const std::vector<std::string> drieScores = {"", "0", "50", "60"};

/// None of the scores is out of competition.
std::vector<Opties> ZonderBuiMed() {
    auto alle = proef::AlleOpties();
    std::erase_if(alle, [](const Opties& opties) { return opties.buiMed; });
    return alle;
}

TEST(AlleKleineTabellen, OfUpToThreePairsAndTwoSessionsAreRankedAlike) {
    for (std::size_t paren = 1; paren <= 3; ++paren) {
        for (std::size_t zittingen = 1; zittingen <= 2; ++zittingen) {
            for (const Opties& opties : ZonderBuiMed())
                EXPECT_GT(VergelijkAlle(paren, zittingen, drieScores, opties), 3U);
        }
    }
}

TEST(AlleKleineTabellen, OfThreePairsAndThreeSessionsAreRankedAlike) {
    for (const bool gewogen : {false, true})
        EXPECT_EQ(VergelijkAlle(3, 3, tweeScores, {.gewogen = gewogen}), 19683U);
}

TEST(AlleKleineTabellen, OfFourPairsAndTwoSessionsAreRankedAlike) {
    for (const Opties& opties : ZonderBuiMed())
        EXPECT_EQ(VergelijkAlle(4, 2, tweeScores, opties), 6561U);
}

TEST(AlleKleineTabellen, OfFourPairsAndThreeSessionsAreRankedAlike) {
    for (const Opties& opties : ZonderBuiMed()) {
        EXPECT_EQ(VergelijkAlle(4, 3, welOfNiet, opties), 4096U);
        EXPECT_EQ(VergelijkAlle(4, 3, altijd, opties), 4096U);
    }
}

} // namespace
} // namespace lauwerkrans
