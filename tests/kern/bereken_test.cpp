// From score rows to pair rows: session cells, session columns, pairs gathered and joined.
#include "calc/modBereken.h"

#include <gtest/gtest.h>

#include "scores.h"

namespace lauwerkrans {
namespace {

using proef::Bereken;
using proef::Rijen;
using proef::Scores;
using proef::Stand;
using Rij = std::vector<std::string>;

const Opties alleLijnen{.gemAlleLijnen = true};
const Opties buiMed{.buiMed = true};

TEST(Zittingcel, IsThePercentageWithThreeDecimalsAndTheBoardsWithTwoDigits) {
    const Scores scores({"11111"}, {{'A', 1, 2, 1, 1, "57,125", 24},
                                    {'A', 1, 2, 1, 2, "5,5", 7},
                                    {'A', 1, 2, 1, 3, "61", 104},
                                    {'A', 1, 2, 1, 4, "100", 24},
                                    {'A', 1, 2, 1, 5, "0,0012", 0}});
    const auto rijen = Rijen(Bereken(scores, {"1"}));
    ASSERT_EQ(rijen.size(), 1U);
    EXPECT_EQ(rijen[0], "A|1|Lid 1 - Lid 2|5|44,725|57,125_24|05,500_07|61,000_104|100,000_24"
                        "|00,001_00");
}

TEST(Zittingcel, ReadsADecimalPointLikeADecimalComma) {
    const Scores scores({"11"}, {{'A', 1, 2, 1, 1, "57.125"}, {'A', 1, 2, 1, 2, " 42,875 "}});
    EXPECT_EQ(Rijen(Bereken(scores, {"1"})), Rij{"A|1|Lid 1 - Lid 2|2|50,000|57,125_24|42,875_24"});
}

TEST(Zittingcel, RoundsTheTextHalfAwayFromZero) {
    const Scores scores({"11"}, {{'A', 1, 2, 1, 1, "57,1245"}, {'A', 1, 2, 1, 2, "57,12449"}});
    EXPECT_EQ(Rijen(Bereken(scores, {"1"})),
              Rij{"A|1|Lid 1 - Lid 2|2|57,125|57,125_24|57,124_24"}); // 57,1245 again
}

TEST(Zittingcel, OfAScoreOfZeroIsADashWhateverItsBoards) {
    const Scores scores({"1111"}, {{'A', 1, 2, 1, 1, "0", 24},
                                   {'A', 1, 2, 1, 2, "0,000", 0},
                                   {'A', 1, 2, 1, 3, "", 24},
                                   {'A', 1, 2, 1, 4, "50", 24}});
    EXPECT_EQ(Rijen(Bereken(scores, {"1"})), Rij{"A|1|Lid 1 - Lid 2|1|50,000|-|-|-|50,000_24"});
}

TEST(Zittingcel, ThatRoundsToZeroIsAScoreOfZero) {
    const Scores scores({"11"}, {{'A', 1, 2, 1, 1, "0,0004"}, {'A', 1, 2, 1, 2, "50"}});
    EXPECT_EQ(Rijen(Bereken(scores, {"1"})), Rij{"A|1|Lid 1 - Lid 2|1|50,000|-|50,000_24"});
}

TEST(Zittingcel, OfASessionNotPlayedStaysEmpty) {
    const Scores scores({"111"}, {{'A', 1, 2, 1, 2, "50"}, {'A', 3, 4, 1, 1, "0"}});
    EXPECT_EQ(Rijen(Bereken(scores, {"0"})),
              (Rij{"A|1|Lid 1 - Lid 2|1|50,000||50,000_24|", "|||||||"}));
}

TEST(Zittingkolom, CountsTheSessionsOfTheEarlierRounds) {
    const Scores scores({"110", "100", "111"}, {{'A', 1, 2, 1, 2, "52"},
                                                {'A', 1, 2, 2, 1, "61"},
                                                {'A', 1, 2, 3, 1, "41"},
                                                {'A', 1, 2, 3, 3, "63"}});
    const auto resultaat = Bereken(scores, {"1"});
    EXPECT_EQ(resultaat.zittingen, 6U);
    EXPECT_EQ(Rijen(resultaat), Rij{"A|1|Lid 1 - Lid 2|4|54,250||52,000_24|61,000_24|41,000_24||"
                                    "63,000_24"});
}

TEST(Zittingkolom, OverAGapIsThePlaceAmongThePlayedSessionsOfTheRound) {
    const Scores scores(
        {"101", "001"},
        {{'A', 1, 2, 1, 1, "51"}, {'A', 1, 2, 1, 3, "53"}, {'A', 1, 2, 2, 3, "58"}});
    const auto resultaat = Bereken(scores, {"3"});
    EXPECT_EQ(resultaat.zittingen, 3U);
    EXPECT_EQ(Rijen(resultaat), Rij{"A|1|Lid 1 - Lid 2|3|54,000|51,000_24|53,000_24|58,000_24"});
}

TEST(Paarrij, GathersRowsOfAPairThatAreNotAdjacent) {
    const Scores scores({"11"}, {{'A', 1, 2, 1, 1, "60"},
                                 {'A', 3, 4, 1, 1, "40"},
                                 {'A', 1, 2, 1, 2, "50"},
                                 {'A', 3, 4, 1, 2, "44"}});
    EXPECT_EQ(Rijen(Bereken(scores, {"2"})),
              (Rij{"A|1|Lid 1 - Lid 2|2|55,000|60,000_24|50,000_24",
                   "A|2|Lid 3 - Lid 4|2|42,000|40,000_24|44,000_24"}));
}

TEST(Paarrij, IsTheSameWhateverTheOrderOfTheMembersAndNamesTheLowerFirst) {
    const Scores scores({"11"}, {{'A', 12, 3, 1, 1, "60"}, {'A', 3, 12, 1, 2, "50"}});
    EXPECT_EQ(Stand(Bereken(scores, {"2"})), Rij{"A|1|Lid 3 - Lid 12|2|55,000"});
}

TEST(Paarrij, NamesNoMemberOutsideTheMembersFile) {
    const Scores scores({"1"}, {{'A', 99999999, 7, 1, 1, "60"}, {'A', 12345678, 8, 1, 1, "50"}});
    EXPECT_EQ(Stand(Bereken(scores, {"1"})),
              (Rij{"A|1|Lid 7 - |1|60,000", "A|2|Lid 8 - |1|50,000"}));
}

TEST(Paarrij, TakesTheLaterScoreOfTheSameSession) {
    const Scores scores({"11"}, {{'A', 1, 2, 1, 1, "60", 12},
                                 {'A', 1, 2, 1, 1, "40", 24},
                                 {'A', 3, 4, 1, 1, "70"},
                                 {'A', 1, 2, 1, 2, "50", 24}});
    EXPECT_EQ(Rijen(Bereken(scores, {"2"})), Rij{"A|1|Lid 1 - Lid 2|2|45,000|40,000_24|50,000_24"});
}

TEST(Paarrij, TakesTheLaterScoreAlsoWhenAnotherPairStandsBetweenOrItIsZero) {
    const Scores scores({"11"}, {{'A', 1, 2, 1, 2, "60"},
                                 {'A', 3, 4, 1, 1, "70"},
                                 {'A', 1, 2, 1, 1, "50"},
                                 {'A', 3, 4, 1, 2, "48"},
                                 {'A', 1, 2, 1, 2, "0"}});
    EXPECT_EQ(Rijen(Bereken(scores, {"1"})), (Rij{"A|1|Lid 3 - Lid 4|2|59,000|70,000_24|48,000_24",
                                                  "A|2|Lid 1 - Lid 2|1|50,000|50,000_24|-"}));
}

TEST(Paarrij, TakesTheLastOfManyScoresOfOneSession) {
    std::vector<proef::Score> scores = {{'A', 1, 2, 1, 2, "40"}};
    for (int i = 1; i <= 60; ++i)
        scores.push_back({'A', 1, 2, 1, 1, std::to_string(i)});
    EXPECT_EQ(Rijen(Bereken(Scores({"11"}, scores), {"2"})),
              Rij{"A|1|Lid 1 - Lid 2|2|50,000|60,000_24|40,000_24"});
}

TEST(Lijnwissel, PerLineTheSameTwoMembersAreAPairOfEachLine) {
    const Scores scores(
        {"111"}, {{'A', 1, 2, 1, 1, "60"}, {'A', 1, 2, 1, 2, "50"}, {'B', 1, 2, 1, 3, "40"}});
    EXPECT_EQ(Rijen(Bereken(scores, {"1", "1"})),
              (Rij{"A|1|Lid 1 - Lid 2|2|55,000|60,000_24|50,000_24|",
                   "B|1|Lid 1 - Lid 2|1|40,000|||40,000_24"}));
}

TEST(Lijnwissel, OverAllLinesTheyAreOnePairWithTheLetterOfItsFirstRow) {
    const Scores scores({"111"}, {{'B', 1, 2, 1, 1, "60"},
                                  {'A', 3, 4, 1, 1, "45"},
                                  {'A', 1, 2, 1, 2, "50"},
                                  {'A', 2, 1, 1, 3, "40"}});
    EXPECT_EQ(Rijen(Bereken(scores, {"1", "3"}, alleLijnen)),
              (Rij{"B|1|Lid 1 - Lid 2|3|50,000|60,000_24|50,000_24|40,000_24",
                   "A|2|Lid 3 - Lid 4|1|45,000|45,000_24||"}));
}

TEST(Lijnwissel, OverAllLinesTheMinimumIsThatOfTheFirstRowsLine) {
    const std::vector<proef::Score> rijen = {{'B', 1, 2, 1, 1, "60"}, {'A', 1, 2, 1, 2, "50"}};
    const Scores scores({"11"}, rijen);
    EXPECT_EQ(Stand(Bereken(scores, {"9", "2"}, alleLijnen)), Rij{"B|1|Lid 1 - Lid 2|2|55,000"});
    EXPECT_TRUE(Stand(Bereken(scores, {"2", "3"}, alleLijnen)).empty());
}

TEST(BuitenMededinging, DoesNotCountAndShowsADash) {
    const Scores scores(
        {"111"},
        {{'A', 1, 2, 1, 1, "60"}, {'A', 1, 2, 1, 2, "90", 12, true}, {'A', 1, 2, 1, 3, "50"}});
    EXPECT_EQ(Rijen(Bereken(scores, {"2"})),
              Rij{"A|1|Lid 1 - Lid 2|2|55,000|60,000_24|-|50,000_24"});
    EXPECT_TRUE(Rijen(Bereken(scores, {"3"})).empty());
}

TEST(BuitenMededinging, CountsLikeAnyOtherWhenAskedFor) {
    const Scores scores(
        {"111"},
        {{'A', 1, 2, 1, 1, "60"}, {'A', 1, 2, 1, 2, "90", 12, true}, {'A', 1, 2, 1, 3, "51"}});
    EXPECT_EQ(Rijen(Bereken(scores, {"3"}, buiMed)),
              Rij{"A|1|Lid 1 - Lid 2|3|67,000|60,000_24|90,000_12|51,000_24"});
}

TEST(BuitenMededinging, DoesNotWeighEither) {
    const Scores scores({"11"}, {{'A', 1, 2, 1, 1, "60", 24}, {'A', 1, 2, 1, 2, "90", 12, true}});
    EXPECT_EQ(Stand(Bereken(scores, {"1"}, {.gewogen = true})), Rij{"A|1|Lid 1 - Lid 2|1|60,000"});
    EXPECT_EQ(Stand(Bereken(scores, {"1"}, {.gewogen = true, .buiMed = true})),
              Rij{"A|1|Lid 1 - Lid 2|2|70,000"});
}

TEST(Berekening, LeavesItsScoreRowsAndCountsAfreshEachTime) {
    const Scores scores({"11"}, {{'A', 1, 2, 1, 1, "60"}, {'A', 1, 2, 1, 2, "70", 24, true}});
    const auto eerst = Rijen(Bereken(scores, {"1"}, buiMed));
    EXPECT_NE(Rijen(Bereken(scores, {"1"})), eerst);
    EXPECT_EQ(Rijen(Bereken(scores, {"1"}, buiMed)), eerst);
    EXPECT_EQ(scores.zitRegels.cel(2, 3), "70");
}

TEST(Berekening, WithoutScoreRowsGivesAnEmptyTable) {
    const auto resultaat = Bereken(Scores({"00"}, {}), {""});
    EXPECT_EQ(resultaat.bovengrens, 0U);
    EXPECT_EQ(resultaat.zittingen, 0U);
    EXPECT_EQ(resultaat.cel(0, 5), "");
}

TEST(ResultaatTabel, HasAColumnPerSessionAndNoneBeyond) {
    const auto resultaat = Bereken(Scores({"11"}, {{'A', 1, 2, 1, 1, "60"}}), {"1"});
    EXPECT_EQ(resultaat.cel(1, 7), "");
    EXPECT_EQ(resultaat.cel(0, 1), "");
    EXPECT_EQ(resultaat.cel(1, 0), "");
    EXPECT_THROW(static_cast<void>(resultaat.cel(1, 8)), std::out_of_range);
    EXPECT_THROW(static_cast<void>(resultaat.cel(2, 1)), std::out_of_range);
}

} // namespace
} // namespace lauwerkrans
