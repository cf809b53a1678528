// Errors of a calculation: what they say, and which comes first.
#include "calc/modBereken.h"

#include <gtest/gtest.h>

#include "data/fout.h"
#include "scores.h"

namespace lauwerkrans {
namespace {

using proef::Bereken;
using proef::Score;
using proef::Scores;

const Opties gewogen{.gewogen = true};

std::string Foutmelding(const std::vector<Score>& scores, const Criteria& criteria,
                        const Opties& opties = {}) {
    try {
        static_cast<void>(Bereken(Scores({"111", "111"}, scores), criteria, opties));
    } catch (const Fout& fout) {
        return FoutTekst(fout);
    }
    return "geen fout";
}

std::string GeenPercentage(const std::string& tekst) {
    return "Het percentage '" + tekst +
           "' van Lid 1 - Lid 2 in ronde 2, zitting 3 is geen getal van 0 tot en met 100.";
}

const std::string geenSpellen =
    "Voor Lid 1 - Lid 2 is geen gewogen gemiddelde te berekenen, want het aantal gespeelde spellen "
    "is 0.\r\n\r\nOplossing: zet 'Gewogen gemiddelde' uit of verbeter de zitting in de "
    "administratie.";

TEST(PercentageFout, NamesTextPairRoundAndSession) {
    for (const char* tekst : {"x", "57,125x", "1e2", "1.000,5", "5 7", "100,001", "-1", ",", "inf"})
        EXPECT_EQ(Foutmelding({{'A', 2, 1, 2, 3, tekst}}, {"1"}), GeenPercentage(tekst)) << tekst;
}

TEST(PercentageFout, IsNoneForEmptyTextAndForABareEnd) {
    for (const char* tekst : {"", "  ", "5,", "5.", ",5", " 57,1 ", "0", "100,000", "+5"})
        EXPECT_EQ(Foutmelding({{'A', 1, 2, 2, 3, tekst}}, {"0"}), "geen fout") << tekst;
}

TEST(PercentageFout, ComesAlsoForAPairBelowTheMinimum) {
    EXPECT_EQ(Foutmelding({{'A', 1, 2, 2, 3, "x"}}, {"20"}), GeenPercentage("x"));
}

TEST(PercentageFout, ComesAlsoWhenALaterScoreTakesItsPlace) {
    EXPECT_EQ(Foutmelding({{'A', 1, 2, 2, 3, "x"}, {'A', 1, 2, 2, 3, "50"}}, {"1"}),
              GeenPercentage("x"));
}

TEST(PercentageFout, IsNoneForARowThatDoesNotCount) {
    const std::vector<Score> scores = {{'A', 1, 2, 2, 3, "x", 24, true}, {'A', 1, 2, 1, 1, "50"}};
    EXPECT_EQ(Foutmelding(scores, {"1"}), "geen fout");
    EXPECT_EQ(Foutmelding(scores, {"1"}, {.buiMed = true}), GeenPercentage("x"));
}

TEST(PercentageFout, IsThatOfTheFirstRow) {
    EXPECT_EQ(Foutmelding({{'A', 1, 2, 2, 3, "eerst"}, {'A', 3, 4, 1, 1, "later"}}, {"1"}),
              GeenPercentage("eerst"));
}

TEST(PercentageFout, ComesBeforeAnErrorInACriterion) {
    EXPECT_EQ(Foutmelding({{'A', 3, 4, 1, 1, "50"}, {'B', 1, 2, 2, 3, "x"}}, {"", ""}),
              GeenPercentage("x"));
}

TEST(SpellenFout, NamesThePairAndSaysWhatHelps) {
    EXPECT_EQ(Foutmelding({{'A', 1, 2, 1, 1, "60", 0}}, {"1"}, gewogen), geenSpellen);
    EXPECT_EQ(Foutmelding({{'A', 1, 2, 1, 1, "60", 0}, {'A', 1, 2, 1, 2, "0", 24}}, {"1"}, gewogen),
              geenSpellen);
}

TEST(SpellenFout, IsNoneInThePlainAverage) {
    EXPECT_EQ(Foutmelding({{'A', 1, 2, 1, 1, "60", 0}}, {"1"}), "geen fout");
    EXPECT_EQ(Foutmelding({{'A', 1, 2, 1, 1, "60", 32768}}, {"1"}), "geen fout");
}

TEST(SpellenFout, IsNoneForAPairBelowTheMinimum) {
    EXPECT_EQ(Foutmelding({{'A', 1, 2, 1, 1, "60", 0}}, {"2"}, gewogen), "geen fout");
    EXPECT_EQ(Foutmelding({{'A', 1, 2, 1, 1, "60", 32768}}, {"2"}, gewogen), "geen fout");
}

TEST(SpellenFout, NamesANumberOfBoardsThatDoesNotFitSixteenBits) {
    EXPECT_EQ(Foutmelding({{'A', 1, 2, 1, 1, "60", 32768}}, {"1"}, gewogen),
              "Het aantal spellen '32768' van Lid 1 - Lid 2 kan niet kloppen.");
    EXPECT_EQ(Foutmelding({{'A', 1, 2, 1, 1, "60", 32767}}, {"1"}, gewogen), "geen fout");
}

TEST(SpellenFout, NamesANumberOfBoardsBelowZero) {
    EXPECT_EQ(
        Foutmelding({{'A', 1, 2, 1, 1, "60", 24}, {'A', 1, 2, 1, 2, "50", -2}}, {"1"}, gewogen),
        "Het aantal spellen '-2' van Lid 1 - Lid 2 kan niet kloppen.");
}

TEST(SpellenFout, ComesAfterAnErrorInACriterion) {
    EXPECT_EQ(
        Foutmelding({{'A', 1, 2, 1, 1, "60", 0}, {'B', 3, 4, 1, 1, "50"}}, {"1", "x"}, gewogen),
        "Geef bij lijn B een heel getal als minimum aantal zittingen.");
}

} // namespace
} // namespace lauwerkrans
