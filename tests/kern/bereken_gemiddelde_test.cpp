// Averages, plain and weighted, and their three decimals.
#include "calc/modBereken.h"

#include <gtest/gtest.h>

#include "scores.h"

namespace lauwerkrans {
namespace {

using proef::Bereken;
using proef::Score;
using proef::Scores;

const Opties gewogen{.gewogen = true};

struct Gespeeld {
    std::string percentage;
    int spellen;
};

/// The average of one pair that played these sessions in turn.
std::string Gemiddelde(const std::vector<Gespeeld>& gespeeld, const Opties& opties = {}) {
    std::vector<Score> scores;
    for (const auto& [percentage, spellen] : gespeeld) {
        const auto zitting = static_cast<std::uint8_t>(scores.size() + 1);
        scores.push_back({'A', 1, 2, 1, zitting, percentage, spellen});
    }
    const auto resultaat =
        Bereken(Scores({std::string(gespeeld.size(), '1')}, scores), {"1"}, opties);
    return resultaat.cel(1, 5);
}

TEST(PercNaarDuizendsten, TakesOutTheFirstCommaAndReadsTheRest) {
    EXPECT_EQ(PercNaarDuizendsten("57,125"), 57125.0F);
    EXPECT_EQ(PercNaarDuizendsten("5,5"), 55.0F);
    EXPECT_EQ(PercNaarDuizendsten("100,000"), 100000.0F);
    EXPECT_EQ(PercNaarDuizendsten("00,000"), 0.0F);
    EXPECT_EQ(PercNaarDuizendsten("57"), 57.0F);
    EXPECT_EQ(PercNaarDuizendsten(""), 0.0F);
}

TEST(GemiddeldeTekst, HasTwoDigitsBeforeTheCommaAtLeastAndThreeBehind) {
    EXPECT_EQ(GemiddeldeTekst(57.125F), "57,125");
    EXPECT_EQ(GemiddeldeTekst(5.5F), "05,500");
    EXPECT_EQ(GemiddeldeTekst(100.0F), "100,000");
    EXPECT_EQ(GemiddeldeTekst(0.001F), "00,001");
}

TEST(GemiddeldeTekst, RoundsHalfAwayFromZero) {
    EXPECT_EQ(GemiddeldeTekst(57.0625F), "57,063");
    EXPECT_EQ(GemiddeldeTekst(57.0615F), "57,062");
    EXPECT_EQ(GemiddeldeTekst(57.06249F), "57,062");
}

TEST(GewoonGemiddelde, IsTheSumOverTheSessionsByTheirNumber) {
    EXPECT_EQ(Gemiddelde({{"60", 24}, {"40", 12}}), "50,000");
    EXPECT_EQ(Gemiddelde({{"60", 24}, {"40", 24}, {"45", 24}}), "48,333");
    EXPECT_EQ(Gemiddelde({{"57,125", 24}}), "57,125");
    EXPECT_EQ(Gemiddelde({{"57,062", 24}, {"57,063", 24}}), "57,063"); // 57,0625
}

TEST(GewoonGemiddelde, LeavesOutAScoreOfZero) {
    EXPECT_EQ(Gemiddelde({{"60", 24}, {"0", 24}, {"40", 24}}), "50,000");
}

TEST(GewoonGemiddelde, CountsAHundredPercentWhole) {
    EXPECT_EQ(Gemiddelde({{"100", 24}}), "100,000");
    EXPECT_EQ(Gemiddelde({{"100", 24}, {"50", 24}}), "75,000");
    EXPECT_EQ(Gemiddelde({{"99,999", 24}, {"50", 24}}), "75,000"); // 74,9995: no jump below 100
}

TEST(GewoonGemiddelde, AsksNothingOfTheBoards) {
    EXPECT_EQ(Gemiddelde({{"60", 0}, {"40", 99999}}), "50,000");
    EXPECT_EQ(Gemiddelde({{"60", -3}}), "60,000");
}

TEST(GewogenGemiddelde, WeighsEachSessionWithItsBoards) {
    EXPECT_EQ(Gemiddelde({{"60", 24}, {"40", 12}}, gewogen), "53,333");
    EXPECT_EQ(Gemiddelde({{"100", 1}, {"40", 3}}, gewogen), "55,000");
    EXPECT_EQ(Gemiddelde({{"61,250", 20}, {"48,125", 24}, {"45", 24}}, gewogen), "50,882");
}

TEST(GewogenGemiddelde, LeavesOutScoresOfZeroAndSessionsWithoutBoards) {
    EXPECT_EQ(Gemiddelde({{"60", 24}, {"0", 24}, {"40", 12}}, gewogen), "53,333");
    EXPECT_EQ(Gemiddelde({{"60", 24}, {"95", 0}, {"40", 12}}, gewogen), "53,333");
}

TEST(GewogenGemiddelde, StillCountsASessionWithoutBoardsAsPlayed) {
    const Scores scores({"11"}, {{'A', 1, 2, 1, 1, "60", 24}, {'A', 1, 2, 1, 2, "95", 0}});
    const auto resultaat = Bereken(scores, {"2"}, gewogen);
    EXPECT_EQ(resultaat.cel(1, 4), "2");
    EXPECT_EQ(resultaat.cel(1, 5), "60,000");
    EXPECT_EQ(resultaat.cel(1, 7), "95,000_00");
}

TEST(GewogenGemiddelde, ReadsBoardsOfThreeDigitsWhole) {
    EXPECT_EQ(Gemiddelde({{"60", 300}, {"40", 100}}, gewogen), "55,000");
}

TEST(GewogenGemiddelde, AddsMoreBoardsThanSixteenBitsHold) {
    EXPECT_EQ(Gemiddelde({{"60", 32767}, {"40", 32767}}, gewogen), "50,000");
}

/// 98304 x 128 + 65536 x 64 is 2 to the 24th; in single precision adding 1 leaves it as it is. The
/// whole sum of 16 777 249 would give 74,566.
TEST(Sommen, AreKeptInSinglePrecisionSessionAfterSession) {
    std::vector<Gespeeld> gespeeld = {{"98,304", 128}, {"65,536", 64}};
    gespeeld.insert(gespeeld.end(), 33, {"0,001", 1});
    EXPECT_EQ(Gemiddelde(gespeeld, gewogen), "74,565");
}

/// Far above 2 to the 24th each 50 001 is rounded as it is added.
TEST(Sommen, OfThePlainAverageAreKeptInSinglePrecisionToo) {
    std::vector<Score> scores;
    for (std::uint8_t ronde = 1; ronde <= 10; ++ronde) {
        for (std::uint8_t zitting = 1; zitting <= 99; ++zitting)
            scores.push_back({'A', 1, 2, ronde, zitting, "50,001"});
    }
    const std::vector<std::string> ronden(10, std::string(99, '1'));
    EXPECT_EQ(Bereken(Scores(ronden, scores), {"990"}).cel(1, 5), "50,000");
}

TEST(Sommen, AreMadeInTheOrderOfTheSessions) {
    std::vector<Gespeeld> gespeeld(33, {"0,001", 1});
    gespeeld.insert(gespeeld.end(), {{"98,304", 128}, {"65,536", 64}});
    EXPECT_EQ(Gemiddelde(gespeeld, gewogen), "74,566");
}

} // namespace
} // namespace lauwerkrans
