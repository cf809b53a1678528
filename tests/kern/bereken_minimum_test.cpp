// The minimum number of sessions: who is ranked, and criteria that are no number.
#include "calc/modBereken.h"

#include <gtest/gtest.h>

#include "data/fout.h"
#include "scores.h"

namespace lauwerkrans {
namespace {

using proef::Bereken;
using proef::Scores;
using proef::Stand;
using Rij = std::vector<std::string>;

/// Pair 1-2 of line A played 3 sessions, 3-4 of line A 2 and 5-6 of line B 1.
Scores DrieParen() {
    return {{"111"},
            {{'A', 1, 2, 1, 1, "60"},
             {'A', 3, 4, 1, 1, "50"},
             {'B', 5, 6, 1, 1, "40"},
             {'A', 1, 2, 1, 2, "60"},
             {'A', 3, 4, 1, 2, "50"},
             {'A', 1, 2, 1, 3, "60"}}};
}

std::string Foutmelding(const Scores& scores, const Criteria& criteria, const Opties& opties = {}) {
    try {
        static_cast<void>(Bereken(scores, criteria, opties));
    } catch (const Fout& fout) {
        return FoutTekst(fout);
    }
    return "geen fout";
}

const std::string geefBijA = "Geef bij lijn A een heel getal als minimum aantal zittingen.";
const std::string geefBijB = "Geef bij lijn B een heel getal als minimum aantal zittingen.";

TEST(Minimum, RanksAPairThatPlayedExactlyAsManyAndDropsOneWithOneFewer) {
    EXPECT_EQ(Stand(Bereken(DrieParen(), {"2", "1"})),
              (Rij{"A|1|Lid 1 - Lid 2|3|60,000", "A|2|Lid 3 - Lid 4|2|50,000",
                   "B|1|Lid 5 - Lid 6|1|40,000"}));
    EXPECT_EQ(Stand(Bereken(DrieParen(), {"3", "2"})), Rij{"A|1|Lid 1 - Lid 2|3|60,000"});
}

TEST(Minimum, IsThatOfThePairsOwnLine) {
    EXPECT_EQ(Stand(Bereken(DrieParen(), {"4", "1"})), Rij{"B|1|Lid 5 - Lid 6|1|40,000"});
    EXPECT_EQ(Stand(Bereken(DrieParen(), {"3", "2"}, {.gemAlleLijnen = true})),
              Rij{"A|1|Lid 1 - Lid 2|3|60,000"});
}

TEST(Minimum, DropsAPairWithoutLeavingARow) {
    EXPECT_EQ(Bereken(DrieParen(), {"3", "2"}).bovengrens, 1U);
    EXPECT_EQ(Bereken(DrieParen(), {"21", "21"}).bovengrens, 0U);
}

TEST(Minimum, DoesNotCountAScoreOfZero) {
    const Scores scores({"11"}, {{'A', 1, 2, 1, 1, "60"}, {'A', 1, 2, 1, 2, "0"}});
    EXPECT_TRUE(Stand(Bereken(scores, {"2"})).empty());
    EXPECT_EQ(Stand(Bereken(scores, {"1"})), Rij{"A|1|Lid 1 - Lid 2|1|60,000"});
}

TEST(MinimumNul, NeverListsAPairWithoutACountedSessionButLeavesItsRowEmpty) {
    const Scores scores(
        {"11"},
        {{'A', 1, 2, 1, 1, "0"}, {'A', 3, 4, 1, 1, "70", 24, true}, {'A', 5, 6, 1, 2, "50"}});
    const auto resultaat = Bereken(scores, {"0"});
    EXPECT_EQ(resultaat.bovengrens, 3U);
    EXPECT_EQ(Stand(resultaat), (Rij{"A|1|Lid 5 - Lid 6|1|50,000", "||||", "||||"}));
}

TEST(MinimumEen, DropsAPairWithoutACountedSession) {
    const Scores scores({"1"}, {{'A', 1, 2, 1, 1, "0"}});
    EXPECT_EQ(Bereken(scores, {"1"}).bovengrens, 0U);
}

TEST(MinimumNul, NeedsNoBoardsOfAPairWithoutACountedSession) {
    const Scores scores({"1"}, {{'A', 1, 2, 1, 1, "0", 0}});
    EXPECT_EQ(Bereken(scores, {"0"}, {.gewogen = true}).bovengrens, 1U);
}

TEST(Criterium, MayHaveBlanksAroundItsDigits) {
    EXPECT_EQ(Minimum({" 13\t"}, 'A'), 13);
    EXPECT_EQ(Minimum({"0"}, 'A'), 0);
    EXPECT_EQ(Minimum({"", "007"}, 'B'), 7);
    EXPECT_EQ(Minimum({"32767"}, 'A'), 32767);
}

TEST(Criterium, ThatIsNoWholeNumberIsReportedWithItsLine) {
    for (const char* tekst :
         {"", " ", "x", "2x", "-1", "+2", "1,5", "1.0", "1 2", "32768", "99999999999999999999"}) {
        EXPECT_EQ(Foutmelding(DrieParen(), {tekst, "1"}), geefBijA) << "'" << tekst << "'";
    }
}

TEST(Criterium, IsReportedForTheFirstLineInTheOrderOfTheLetters) {
    const Scores scores({"1"}, {{'B', 1, 2, 1, 1, "60"}, {'A', 3, 4, 1, 1, "50"}});
    EXPECT_EQ(Foutmelding(scores, {"x", ""}), geefBijA);
    EXPECT_EQ(Foutmelding(scores, {"1", ""}), geefBijB);
}

TEST(Criterium, ThatHasNoBoxIsReported) { EXPECT_EQ(Foutmelding(DrieParen(), {"1"}), geefBijB); }

TEST(Criterium, OfALineWithoutPairsIsNotLookedAt) {
    EXPECT_EQ(Foutmelding(DrieParen(), {"1", "1", ""}), "geen fout");
    EXPECT_EQ(Stand(Bereken(DrieParen(), {"3", "9", "2"})), Rij{"A|1|Lid 1 - Lid 2|3|60,000"});
}

TEST(Criterium, OfALineWhosePairsAllJoinedAnotherIsNotLookedAt) {
    const Scores scores({"11"}, {{'A', 1, 2, 1, 1, "60"}, {'B', 1, 2, 1, 2, "50"}});
    EXPECT_EQ(Foutmelding(scores, {"1", "x"}, {.gemAlleLijnen = true}), "geen fout");
    EXPECT_EQ(Foutmelding(scores, {"1", "x"}), geefBijB);
}

TEST(Criterium, IsNeededByALineWithPairsThatDoNotCount) {
    const Scores scores({"1"}, {{'A', 1, 2, 1, 1, "0"}});
    EXPECT_EQ(Foutmelding(scores, {""}), geefBijA);
}

} // namespace
} // namespace lauwerkrans
