// The order of the ranking, ranks and ties.
#include "calc/modBereken.h"

#include <gtest/gtest.h>

#include "scores.h"

namespace lauwerkrans {
namespace {

using proef::Bereken;
using proef::Score;
using proef::Scores;
using proef::Stand;
using Rij = std::vector<std::string>;

const Opties alleLijnen{.gemAlleLijnen = true};

/// Scores of one session; pair n has the members 2n - 1 and 2n.
Scores EenZitting(const std::vector<std::pair<char, std::string>>& paren) {
    std::vector<Score> scores;
    for (const auto& [lijn, percentage] : paren) {
        const auto lid = static_cast<std::uint32_t>(2 * scores.size() + 1);
        scores.push_back({lijn, lid, lid + 1, 1, 1, percentage});
    }
    return {{"1"}, scores};
}

/// "B (2) 5-6 58,500" for every ranked row; the members by their number.
Rij Rangen(const std::vector<std::pair<char, std::string>>& paren, const Opties& opties = {}) {
    const auto resultaat = Bereken(EenZitting(paren), {"1", "1", "1"}, opties);
    Rij rijen;
    for (std::size_t i = 1; i <= resultaat.bovengrens; ++i) {
        const PaarRij& rij = resultaat.rijen.at(i - 1);
        rijen.push_back(resultaat.cel(i, 1) + " " + resultaat.cel(i, 2) + " " +
                        std::to_string(rij.lid1) + "-" + std::to_string(rij.lid2) + " " +
                        resultaat.cel(i, 5));
    }
    return rijen;
}

TEST(Volgorde, PerLineIsTheLineThenTheAverageDownwards) {
    EXPECT_EQ(Rangen({{'C', "70"}, {'A', "40"}, {'B', "60"}, {'A', "55"}, {'C', "71"}}),
              (Rij{"A 1 7-8 55,000", "A 2 3-4 40,000", "B 1 5-6 60,000", "C 1 9-10 71,000",
                   "C 2 1-2 70,000"}));
}

TEST(Volgorde, OverAllLinesIsTheAverageDownwardsThenTheLine) {
    EXPECT_EQ(Rangen({{'C', "60"}, {'A', "40"}, {'B', "60"}, {'A', "55"}, {'A', "60"}}, alleLijnen),
              (Rij{"A (1) 9-10 60,000", "B (1) 5-6 60,000", "C (1) 1-2 60,000", "A 4 7-8 55,000",
                   "A 5 3-4 40,000"}));
}

TEST(Volgorde, OfEqualAveragesIsThatOfTheFirstAppearance) {
    EXPECT_EQ(Rangen({{'A', "50"}, {'A', "61"}, {'A', "50"}, {'A', "50"}}),
              (Rij{"A 1 3-4 61,000", "A (2) 1-2 50,000", "A (2) 5-6 50,000", "A (2) 7-8 50,000"}));
}

TEST(Volgorde, OfEqualAveragesIsNotThatOfTheMemberNumbers) {
    const Scores scores({"11"}, {{'A', 8, 9, 1, 1, "50"},
                                 {'A', 1, 2, 1, 1, "50"},
                                 {'A', 8, 9, 1, 2, "50"},
                                 {'A', 3, 7, 1, 2, "50"}});
    EXPECT_EQ(Stand(Bereken(scores, {"1"})),
              (Rij{"A|(1)|Lid 8 - Lid 9|2|50,000", "A|(1)|Lid 1 - Lid 2|1|50,000",
                   "A|(1)|Lid 3 - Lid 7|1|50,000"}));
}

TEST(Volgorde, OfManyEqualAveragesIsThatOfTheFirstAppearance) {
    std::vector<Score> scores;
    for (std::uint32_t lid = 80; lid > 20; --lid)
        scores.push_back({'A', lid, 99, 1, 1, lid % 3 == 0 ? "60" : "50"});
    const auto resultaat = Bereken(Scores({"1"}, scores), {"1"});
    ASSERT_EQ(resultaat.rijen.size(), 60U);
    for (std::size_t i = 1; i < resultaat.rijen.size(); ++i) {
        const PaarRij& vorige = resultaat.rijen[i - 1];
        const PaarRij& rij = resultaat.rijen[i];
        EXPECT_TRUE(rij.gemiddelde < vorige.gemiddelde || rij.lid1 < vorige.lid1) << i;
    }
}

TEST(Volgorde, PutsAHundredPercentFirst) {
    EXPECT_EQ(Rangen({{'A', "99,999"}, {'A', "100"}, {'A', "9,5"}}),
              (Rij{"A 1 3-4 100,000", "A 2 1-2 99,999", "A 3 5-6 09,500"}));
}

/// The unrounded averages are 50,0004 and 50,0001: the same three decimals, so one rank and the
/// order of appearance.
TEST(Volgorde, GoesByTheThreeDecimalsThatAreShown) {
    const std::vector<std::string> laag = {"50,001", "50", "50", "50", "50", "50"};
    const std::vector<std::string> hoog = {"50,001", "50,001", "50", "50", "50", "50"};
    std::vector<Score> scores;
    for (std::uint8_t zitting = 1; zitting <= 6; ++zitting) {
        scores.push_back({'A', 1, 2, 1, zitting, laag[zitting - 1U]});
        scores.push_back({'A', 3, 4, 1, zitting, hoog[zitting - 1U]});
    }
    EXPECT_EQ(Stand(Bereken(Scores({"111111"}, scores), {"6"})),
              (Rij{"A|(1)|Lid 1 - Lid 2|6|50,000", "A|(1)|Lid 3 - Lid 4|6|50,000"}));
}

TEST(Volgorde, KeepsTheOrderAtExactHalves) {
    const Scores scores({"11"}, {{'A', 1, 2, 1, 1, "50"},
                                 {'A', 3, 4, 1, 1, "50,001"},
                                 {'A', 5, 6, 1, 1, "50,002"},
                                 {'A', 1, 2, 1, 2, "50,001"},
                                 {'A', 3, 4, 1, 2, "50,001"},
                                 {'A', 5, 6, 1, 2, "50,001"}});
    EXPECT_EQ(Stand(Bereken(scores, {"2"})), // 50,0005 50,001 50,0015
              (Rij{"A|1|Lid 5 - Lid 6|2|50,002", "A|(2)|Lid 1 - Lid 2|2|50,001",
                   "A|(2)|Lid 3 - Lid 4|2|50,001"}));
}

TEST(Rang, SkipsAfterATie) {
    EXPECT_EQ(Rangen({{'A', "60"}, {'A', "58,5"}, {'A', "58,5"}, {'A', "58,5"}, {'A', "55"}}),
              (Rij{"A 1 1-2 60,000", "A (2) 3-4 58,500", "A (2) 5-6 58,500", "A (2) 7-8 58,500",
                   "A 5 9-10 55,000"}));
}

TEST(Rang, OfATieForTheFirstPlaceIsOne) {
    EXPECT_EQ(Rangen({{'A', "60"}, {'A', "60"}, {'A', "55"}}),
              (Rij{"A (1) 1-2 60,000", "A (1) 3-4 60,000", "A 3 5-6 55,000"}));
}

TEST(Rang, GivesEachTieItsOwnLabel) {
    EXPECT_EQ(Rangen({{'A', "60"}, {'A', "60"}, {'A', "55"}, {'A', "55"}, {'A', "54"}}),
              (Rij{"A (1) 1-2 60,000", "A (1) 3-4 60,000", "A (3) 5-6 55,000", "A (3) 7-8 55,000",
                   "A 5 9-10 54,000"}));
}

TEST(Rang, IsNotTiedAcrossLines) {
    EXPECT_EQ(Rangen({{'A', "60"}, {'A', "50"}, {'B', "50"}, {'B', "40"}}),
              (Rij{"A 1 1-2 60,000", "A 2 3-4 50,000", "B 1 5-6 50,000", "B 2 7-8 40,000"}));
}

TEST(Rang, OfASinglePairIsOne) {
    EXPECT_EQ(Rangen({{'B', "60"}}), Rij{"B 1 1-2 60,000"});
    EXPECT_EQ(Rangen({{'B', "60"}}, alleLijnen), Rij{"B 1 1-2 60,000"});
}

ResultaatTabel Tabel(const std::vector<std::pair<char, std::int32_t>>& rijen) {
    ResultaatTabel resultaat;
    for (const auto& [lijn, gemiddelde] : rijen) {
        PaarRij rij;
        rij.lijn = lijn;
        rij.gemiddelde = gemiddelde;
        resultaat.rijen.push_back(rij);
    }
    resultaat.bovengrens = rijen.size();
    return resultaat;
}

Rij RangKolom(const ResultaatTabel& resultaat) {
    Rij rangen;
    for (std::size_t i = 1; i <= resultaat.bovengrens; ++i)
        rangen.push_back(resultaat.cel(i, 2));
    return rangen;
}

TEST(RangPerLijn, NumbersEachLineOfThePanelInTableOrder) {
    auto resultaat = Tabel({{'B', 60000}, {'A', 70000}, {'B', 60000}, {'A', 50000}, {'B', 10000}});
    RangPerLijn(resultaat, 2);
    EXPECT_EQ(RangKolom(resultaat), (Rij{"(1)", "1", "(1)", "2", "3"}));
}

TEST(RangPerLijn, NumbersNoLineBeyondThePanel) {
    auto resultaat = Tabel({{'A', 60000}, {'B', 50000}});
    RangPerLijn(resultaat, 1);
    EXPECT_EQ(resultaat.rijen[0].rang, 1U);
    EXPECT_EQ(resultaat.rijen[1].rang, 0U);
}

TEST(RangAlleLijnen, NumbersAllRowsAtOnce) {
    auto resultaat = Tabel({{'B', 60000}, {'A', 60000}, {'B', 50000}});
    RangAlleLijnen(resultaat);
    EXPECT_EQ(RangKolom(resultaat), (Rij{"(1)", "(1)", "3"}));
}

TEST(MarkeerGelijken, LeavesAnEmptyTableAndASingleRow) {
    RangTabel leeg;
    MarkeerGelijken(leeg);
    EXPECT_TRUE(leeg.empty());
    RangTabel een = {{1, 50000, false}};
    MarkeerGelijken(een);
    EXPECT_FALSE(een[0].gelijk);
}

TEST(MarkeerGelijken, MarksOnlyNeighbours) {
    RangTabel tabel = {{1, 5, false}, {2, 4, false}, {3, 5, false}, {4, 5, false}};
    MarkeerGelijken(tabel);
    EXPECT_FALSE(tabel[0].gelijk);
    EXPECT_FALSE(tabel[1].gelijk);
    EXPECT_TRUE(tabel[2].gelijk && tabel[3].gelijk);
    EXPECT_EQ(tabel[3].rang, 3U);
}

TEST(MarkeerNulScores, MakesADashOfEveryCellWithoutAScore) {
    ResultaatTabel resultaat;
    resultaat.cellen = {{0, 24, 1, false}, {1, 24, 2, false}, {100000, 0, 3, false}};
    MarkeerNulScores(resultaat);
    EXPECT_EQ(resultaat.cellen[0].tekst(), "-");
    EXPECT_EQ(resultaat.cellen[1].tekst(), "00,001_24");
    EXPECT_EQ(resultaat.cellen[2].tekst(), "100,000_00");
}

} // namespace
} // namespace lauwerkrans
