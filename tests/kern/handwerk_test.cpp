// One competition worked out by hand: 2 lines, 3 rounds of 2 sessions of which the last was not
// yet played. Cells are percentage/boards; "bum": out of competition; "-": not played.
//
//   pair    members  line  1: R1-Z1   2: R1-Z2   3: R2-Z1   4: R2-Z2   5: R3-Z1
//   Bos     1-2      A     60/24      55/24      50/12      -          59/24
//   Wit     3-4      A     52,5/24    -          57,5/24    58/24      56/24
//   Kok     5-6      A     0/24       61,25/20   48,125/24  45/24      70/24 bum
//   Smit    7-8      A     65/24      40/12      -          -          -
//   Smit    7-8      B     -          -          62/24      50,5/24    -
//   Veen    9-10     B     51/24      57,375/24  -          60,375/24  -
//   Ruiter  11-12    B     66,666/24  33,333/8   50,001/24  -          50/24
//   Zand    13-14    B     -          48/24      52/24      0/0        50/12
//   Pool    15-16    B     -          -          75/24      -          49/24 bum
//
// The files name Wit before Bos, and Veen before Smit's first session in line B. Minimum: A 3, B 2.
//
//                     sessions   sum       plain    weighted sum           weighted
//   Bos               4          224       56,000   4776 / 84              56,857
//   Wit               4          224       56,000   equal boards           56,000
//   Kok               3          154,375   51,458   3460 / 68              50,882
//   Kok with bum      4          224,375   56,094   5140 / 92              55,870
//   Smit in A         2          below the minimum
//   Smit in B         2          112,5     56,250   equal boards           56,250
//   Smit in A and B   4          217,5     54,375   4740 / 84              56,429
//   Veen              3          168,75    56,250   equal boards           56,250
//   Ruiter            4          200       50,000   4266,672 / 80          53,333
//   Zand              3          150       50,000   3000 / 60              50,000
//   Pool              1          below the minimum
//   Pool with bum     2          124       62,000   equal boards           62,000
#include <gtest/gtest.h>

#include "scores.h"

namespace lauwerkrans {
namespace {

using proef::Rijen;
using proef::Scores;
using Rij = std::vector<std::string>;

Scores Competitie() {
    return {{"11", "11", "10"},
            {{'A', 3, 4, 1, 1, "52,5", 24},
             {'A', 1, 2, 1, 1, "60,000", 24},
             {'A', 5, 6, 1, 1, "0", 24},
             {'A', 8, 7, 1, 1, "65,000", 24},
             {'B', 9, 10, 1, 1, "51.000", 24},
             {'B', 12, 11, 1, 1, "66,666", 24},
             {'A', 2, 1, 1, 2, "55,000", 24},
             {'A', 5, 6, 1, 2, "61,250", 20},
             {'A', 7, 8, 1, 2, "40", 12},
             {'B', 10, 9, 1, 2, "57,375", 24},
             {'B', 11, 12, 1, 2, "33,333", 8},
             {'B', 13, 14, 1, 2, "48,000", 24},
             {'A', 1, 2, 2, 1, "50,000", 12},
             {'A', 4, 3, 2, 1, "57.5", 24},
             {'A', 6, 5, 2, 1, "48,125", 24},
             {'B', 7, 8, 2, 1, "62,000", 24},
             {'B', 11, 12, 2, 1, "50,001", 24},
             {'B', 13, 14, 2, 1, "52,000", 24},
             {'B', 15, 16, 2, 1, "75,000", 24},
             {'A', 3, 4, 2, 2, "58,000", 24},
             {'A', 5, 6, 2, 2, "45,000", 24},
             {'B', 9, 10, 2, 2, "60,375", 24},
             {'B', 8, 7, 2, 2, "50,5", 24},
             {'B', 14, 13, 2, 2, "00,000", 0},
             {'A', 1, 2, 3, 1, "59,000", 24},
             {'A', 3, 4, 3, 1, "56,000", 24},
             {'A', 5, 6, 3, 1, "70,000", 24, true},
             {'B', 11, 12, 3, 1, "50,000", 24},
             {'B', 14, 13, 3, 1, "50,000", 12},
             {'B', 15, 16, 3, 1, "49,000", 24, true}}};
}

Rij Lijst(const Opties& opties) { return Rijen(proef::Bereken(Competitie(), {"3", "2"}, opties)); }

// What follows the average: the sessions.
const std::string bos = "|60,000_24|55,000_24|50,000_12||59,000_24";
const std::string wit = "|52,500_24||57,500_24|58,000_24|56,000_24";
const std::string kok = "|-|61,250_20|48,125_24|45,000_24|-";
const std::string kokBum = "|-|61,250_20|48,125_24|45,000_24|70,000_24";
const std::string smitB = "|||62,000_24|50,500_24|";
const std::string smitAB = "|65,000_24|40,000_12|62,000_24|50,500_24|";
const std::string veen = "|51,000_24|57,375_24||60,375_24|";
const std::string ruiter = "|66,666_24|33,333_08|50,001_24||50,000_24";
const std::string zand = "||48,000_24|52,000_24|-|50,000_12";
const std::string poolBum = "|||75,000_24||49,000_24";

TEST(Handwerk, PerLine) {
    EXPECT_EQ(
        Lijst({}),
        (Rij{"A|(1)|Lid 3 - Lid 4|4|56,000" + wit, "A|(1)|Lid 1 - Lid 2|4|56,000" + bos,
             "A|3|Lid 5 - Lid 6|3|51,458" + kok, "B|(1)|Lid 9 - Lid 10|3|56,250" + veen,
             "B|(1)|Lid 7 - Lid 8|2|56,250" + smitB, "B|(3)|Lid 11 - Lid 12|4|50,000" + ruiter,
             "B|(3)|Lid 13 - Lid 14|3|50,000" + zand}));
}

TEST(Handwerk, PerLineWeighted) {
    EXPECT_EQ(Lijst({.gewogen = true}),
              (Rij{"A|1|Lid 1 - Lid 2|4|56,857" + bos, "A|2|Lid 3 - Lid 4|4|56,000" + wit,
                   "A|3|Lid 5 - Lid 6|3|50,882" + kok, "B|(1)|Lid 9 - Lid 10|3|56,250" + veen,
                   "B|(1)|Lid 7 - Lid 8|2|56,250" + smitB, "B|3|Lid 11 - Lid 12|4|53,333" + ruiter,
                   "B|4|Lid 13 - Lid 14|3|50,000" + zand}));
}

TEST(Handwerk, OverAllLines) {
    EXPECT_EQ(Lijst({.gemAlleLijnen = true}),
              (Rij{"B|1|Lid 9 - Lid 10|3|56,250" + veen, "A|(2)|Lid 3 - Lid 4|4|56,000" + wit,
                   "A|(2)|Lid 1 - Lid 2|4|56,000" + bos, "A|4|Lid 7 - Lid 8|4|54,375" + smitAB,
                   "A|5|Lid 5 - Lid 6|3|51,458" + kok, "B|(6)|Lid 11 - Lid 12|4|50,000" + ruiter,
                   "B|(6)|Lid 13 - Lid 14|3|50,000" + zand}));
}

TEST(Handwerk, OverAllLinesWeighted) {
    EXPECT_EQ(Lijst({.gewogen = true, .gemAlleLijnen = true}),
              (Rij{"A|1|Lid 1 - Lid 2|4|56,857" + bos, "A|2|Lid 7 - Lid 8|4|56,429" + smitAB,
                   "B|3|Lid 9 - Lid 10|3|56,250" + veen, "A|4|Lid 3 - Lid 4|4|56,000" + wit,
                   "B|5|Lid 11 - Lid 12|4|53,333" + ruiter, "A|6|Lid 5 - Lid 6|3|50,882" + kok,
                   "B|7|Lid 13 - Lid 14|3|50,000" + zand}));
}

TEST(Handwerk, PerLineWithScoresOutOfCompetition) {
    EXPECT_EQ(
        Lijst({.buiMed = true}),
        (Rij{"A|1|Lid 5 - Lid 6|4|56,094" + kokBum, "A|(2)|Lid 3 - Lid 4|4|56,000" + wit,
             "A|(2)|Lid 1 - Lid 2|4|56,000" + bos, "B|1|Lid 15 - Lid 16|2|62,000" + poolBum,
             "B|(2)|Lid 9 - Lid 10|3|56,250" + veen, "B|(2)|Lid 7 - Lid 8|2|56,250" + smitB,
             "B|(4)|Lid 11 - Lid 12|4|50,000" + ruiter, "B|(4)|Lid 13 - Lid 14|3|50,000" + zand}));
}

TEST(Handwerk, PerLineWeightedWithScoresOutOfCompetition) {
    EXPECT_EQ(
        Lijst({.gewogen = true, .buiMed = true}),
        (Rij{"A|1|Lid 1 - Lid 2|4|56,857" + bos, "A|2|Lid 3 - Lid 4|4|56,000" + wit,
             "A|3|Lid 5 - Lid 6|4|55,870" + kokBum, "B|1|Lid 15 - Lid 16|2|62,000" + poolBum,
             "B|(2)|Lid 9 - Lid 10|3|56,250" + veen, "B|(2)|Lid 7 - Lid 8|2|56,250" + smitB,
             "B|4|Lid 11 - Lid 12|4|53,333" + ruiter, "B|5|Lid 13 - Lid 14|3|50,000" + zand}));
}

TEST(Handwerk, OverAllLinesWithScoresOutOfCompetition) {
    EXPECT_EQ(
        Lijst({.gemAlleLijnen = true, .buiMed = true}),
        (Rij{"B|1|Lid 15 - Lid 16|2|62,000" + poolBum, "B|2|Lid 9 - Lid 10|3|56,250" + veen,
             "A|3|Lid 5 - Lid 6|4|56,094" + kokBum, "A|(4)|Lid 3 - Lid 4|4|56,000" + wit,
             "A|(4)|Lid 1 - Lid 2|4|56,000" + bos, "A|6|Lid 7 - Lid 8|4|54,375" + smitAB,
             "B|(7)|Lid 11 - Lid 12|4|50,000" + ruiter, "B|(7)|Lid 13 - Lid 14|3|50,000" + zand}));
}

TEST(Handwerk, OverAllLinesWeightedWithScoresOutOfCompetition) {
    EXPECT_EQ(
        Lijst({.gewogen = true, .gemAlleLijnen = true, .buiMed = true}),
        (Rij{"B|1|Lid 15 - Lid 16|2|62,000" + poolBum, "A|2|Lid 1 - Lid 2|4|56,857" + bos,
             "A|3|Lid 7 - Lid 8|4|56,429" + smitAB, "B|4|Lid 9 - Lid 10|3|56,250" + veen,
             "A|5|Lid 3 - Lid 4|4|56,000" + wit, "A|6|Lid 5 - Lid 6|4|55,870" + kokBum,
             "B|7|Lid 11 - Lid 12|4|53,333" + ruiter, "B|8|Lid 13 - Lid 14|3|50,000" + zand}));
}

} // namespace
} // namespace lauwerkrans
