#include "data/paarsleutel.h"

#include <limits>

#include <gtest/gtest.h>

namespace lauwerkrans {
namespace {

using Paar = std::pair<std::uint32_t, std::uint32_t>;

TEST(PaarSleutel, HoldsBothNumbersRightAlignedInEight) {
    EXPECT_EQ(MaakPaarSleutel(3, 17), "       3      17");
    EXPECT_EQ(MaakPaarSleutel(12, 305), "      12     305");
    EXPECT_EQ(MaakPaarSleutel(12345678, 99999999), "1234567899999999");
    EXPECT_EQ(MaakPaarSleutel(0, 1), "       0       1");
}

TEST(PaarSleutel, IsTheSameInEitherOrder) {
    EXPECT_EQ(MaakPaarSleutel(305, 12), MaakPaarSleutel(12, 305));
    EXPECT_EQ(MaakPaarSleutel(9, 10), "       9      10"); // by number, not by text
    EXPECT_EQ(MaakPaarSleutel(10, 9), "       9      10");
    EXPECT_EQ(MaakPaarSleutel(7, 7), "       7       7");
}

TEST(PaarSleutel, TakesNumbersOf32Bits) {
    constexpr auto hoogste = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(MaakPaarSleutel(hoogste, 1), "       12147483647");
    EXPECT_EQ(MaakPaarSleutel(5, -3), "      -3       5");
}

TEST(PaarSleutel, IsReadFromItsTwoHalves) {
    EXPECT_EQ(LeesPaarSleutel("       3      17"), Paar(3, 17));
    EXPECT_EQ(LeesPaarSleutel("1234567899999999"), Paar(12345678, 99999999));
    EXPECT_EQ(LeesPaarSleutel("       0       0"), Paar(0, 0));
}

TEST(PaarSleutel, IsNoOtherText) {
    for (const char* tekst :
         {"", "3-17", "      17       3", "      3      17", "        3      17",
          "       3     17 ", "      3       17", "00000003      17", "      +3      17",
          "               3", "       x      17", "       3\t     17"}) {
        EXPECT_EQ(LeesPaarSleutel(tekst), std::nullopt) << "'" << tekst << "'";
    }
}

} // namespace
} // namespace lauwerkrans
