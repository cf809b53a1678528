// What holds for every competition, tried on seeded random ones.
#include <gtest/gtest.h>

#include <algorithm>

#include "gevallen.h"
#include "naief.h"

namespace lauwerkrans {
namespace {

using proef::AlleOpties;
using proef::Bereken;
using proef::Geval;
using proef::Scores;
using proef::Stand;
using proef::VolgensNaief;
using proef::VolgensProgramma;
using proef::WillekeurigGeval;

constexpr unsigned gevallen = 1500;

template <class Doe>
void VoorElkGeval(Doe doe) {
    for (unsigned zaad = 1; zaad <= gevallen; ++zaad) {
        const Geval geval = WillekeurigGeval(zaad);
        doe(geval);
        ASSERT_FALSE(testing::Test::HasFailure()) << "seed " << zaad << "\n" << Beschrijving(geval);
    }
}

TEST(Eigenschap, TheResultIsThatOfThePlainCalculation) {
    std::size_t rijen = 0;
    std::size_t gelijk = 0;
    VoorElkGeval([&](const Geval& geval) {
        for (const Opties& opties : AlleOpties()) {
            const auto programma = VolgensProgramma(geval, opties);
            EXPECT_EQ(programma, VolgensNaief(geval, opties));
            rijen += programma.size();
            gelijk += static_cast<std::size_t>(
                std::count_if(programma.begin(), programma.end(), [](const std::string& rij) {
                    return rij.find("|(") != std::string::npos;
                }));
        }
    });
    EXPECT_GT(rijen, 10000U); // the cases are not empty
    EXPECT_GT(gelijk, 1000U); // and have ties
}

TEST(Eigenschap, TheOrderOfTheTwoMembersDoesNotMatter) {
    VoorElkGeval([](const Geval& geval) {
        Geval andersom = geval;
        for (std::size_t i = 0; i < andersom.scores.size(); i += 2)
            std::swap(andersom.scores[i].lid1, andersom.scores[i].lid2);
        for (const Opties& opties : AlleOpties())
            EXPECT_EQ(VolgensProgramma(andersom, opties), VolgensProgramma(geval, opties));
    });
}

/// A rank is one more than the number of pairs that are ranked with it and did better; it is
/// marked exactly when another pair did as well.
void ControleerRangen(const ResultaatTabel& tabel, bool alleLijnen) {
    for (const PaarRij& rij : tabel.rijen) {
        std::size_t beter = 0;
        std::size_t evenGoed = 0;
        for (const PaarRij& ander : tabel.rijen) {
            if (!alleLijnen && ander.lijn != rij.lijn) continue;
            beter += ander.gemiddelde > rij.gemiddelde ? 1U : 0U;
            evenGoed += ander.gemiddelde == rij.gemiddelde ? 1U : 0U;
        }
        EXPECT_EQ(rij.rang, beter + 1);
        EXPECT_EQ(rij.gelijk, evenGoed > 1);
    }
}

TEST(Eigenschap, RanksAreAPermutationWithTiesExpanded) {
    VoorElkGeval([](const Geval& geval) {
        for (const Opties& opties : AlleOpties()) {
            if (opties.gewogen) continue;
            const auto tabel = Bereken(Scores(geval.ronden, geval.scores), geval.criteria, opties);
            ControleerRangen(tabel, opties.gemAlleLijnen);
        }
    });
}

/// 12 sessions of 13 boards and 100 % are below 2 to the 24th thousandths: sums are exact.
TEST(Eigenschap, WithEqualBoardsTheWeightedAverageIsThePlainOne) {
    VoorElkGeval([](Geval geval) {
        for (auto& score : geval.scores)
            score.spellen = 13;
        for (const Opties& opties : AlleOpties()) {
            if (opties.gewogen) continue;
            Opties gewogen = opties;
            gewogen.gewogen = true;
            EXPECT_EQ(VolgensProgramma(geval, gewogen), VolgensProgramma(geval, opties));
        }
    });
}

TEST(Eigenschap, ASessionOfAnAbsentPairChangesNothingForTheOthers) {
    VoorElkGeval([](Geval geval) {
        geval.criteria.assign(geval.criteria.size(), "2");
        Geval langer = geval;
        langer.ronden.push_back("1" + std::string(geval.ronden[0].size() - 1, '0'));
        const auto ronde = static_cast<std::uint8_t>(langer.ronden.size());
        langer.scores.push_back({'A', 1, 2, ronde, 1, "99", 24});
        for (const Opties& opties : AlleOpties()) {
            auto rijen = VolgensProgramma(geval, opties);
            if (!rijen.empty() && rijen[0] == "geen spellen") continue;
            for (auto& rij : rijen)
                rij += "|"; // one more session that they did not play
            EXPECT_EQ(VolgensProgramma(langer, opties), rijen);
        }
    });
}

TEST(Eigenschap, AScoreOfZeroChangesNoRankCountOrAverage) {
    VoorElkGeval([](Geval geval) {
        geval.criteria.assign(geval.criteria.size(), "1");
        Geval met = geval;
        met.ronden.push_back("1" + std::string(geval.ronden[0].size() - 1, '0'));
        const auto ronde = static_cast<std::uint8_t>(met.ronden.size());
        for (const auto& score : geval.scores)
            met.scores.push_back({score.lijn, score.lid1, score.lid2, ronde, 1, "0", 24});
        for (const bool alle : {false, true}) {
            const Opties opties{.gemAlleLijnen = alle};
            EXPECT_EQ(Stand(Bereken(Scores(met.ronden, met.scores), met.criteria, opties)),
                      Stand(Bereken(Scores(geval.ronden, geval.scores), geval.criteria, opties)));
        }
    });
}

/// The plain calculation must know the rules itself: a few answers worked out by hand.
TEST(Naief, KnowsItsTexts) {
    EXPECT_EQ(naief::DrieDecimalen("57,1245"), "57,125");
    EXPECT_EQ(naief::DrieDecimalen("9.9995"), "10,000");
    EXPECT_EQ(naief::DrieDecimalen("99,9996"), "100,000");
    EXPECT_EQ(naief::DrieDecimalen(""), "00,000");
    EXPECT_EQ(naief::KortsteTekst(57.0625F), "57.0625");
    EXPECT_EQ(naief::KortsteTekst(53.33333F), "53.33333");
    EXPECT_EQ(naief::DrieDecimalen(naief::KortsteTekst(100.0F)), "100,000");
}

TEST(Naief, MarksTies) {
    const Geval geval{{"1"},
                      {{'A', 1, 2, 1, 1, "60"},
                       {'A', 3, 4, 1, 1, "58,5"},
                       {'A', 5, 6, 1, 1, "58,5"},
                       {'A', 7, 8, 1, 1, "55"}},
                      {"1"}};
    EXPECT_EQ(VolgensNaief(geval, {}),
              (std::vector<std::string>{"A|1|Lid 1 - Lid 2|1|60,000|60,000_24",
                                        "A|(2)|Lid 3 - Lid 4|1|58,500|58,500_24",
                                        "A|(2)|Lid 5 - Lid 6|1|58,500|58,500_24",
                                        "A|4|Lid 7 - Lid 8|1|55,000|55,000_24"}));
}

} // namespace
} // namespace lauwerkrans
