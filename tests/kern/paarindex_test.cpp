#include "calc/paarindex.h"

#include <gtest/gtest.h>

namespace lauwerkrans {
namespace {

/// Member numbers of up to eight digits and a line, as the pairs of a competition have them.
std::uint64_t Sleutel(std::uint64_t i) {
    return (std::uint64_t{'A'} + i % 26) << 56U | (7 * i + 1) << 28U | (99'999'999 - i);
}

TEST(PaarIndex, NumbersTheKeysInTheOrderInWhichTheyFirstCame) {
    PaarIndex index;
    EXPECT_EQ(index.nummer(300), 0U);
    EXPECT_EQ(index.nummer(100), 1U);
    EXPECT_EQ(index.nummer(300), 0U);
    EXPECT_EQ(index.nummer(0), 2U);
}

/// Far more pairs than the table first has room for: it grows, and no key loses its number.
TEST(PaarIndex, KeepsTheNumbersWhenItGrows) {
    constexpr std::uint32_t paren = 20'000;
    PaarIndex index;
    for (std::uint32_t i = 0; i < paren; ++i) {
        ASSERT_EQ(index.nummer(Sleutel(i)), i);
        ASSERT_EQ(index.nummer(Sleutel(i / 2)), i / 2);
    }
    for (std::uint32_t i = 0; i < paren; ++i)
        ASSERT_EQ(index.nummer(Sleutel(i)), i);
    EXPECT_EQ(index.nummer(Sleutel(paren)), paren);
}

/// Keys that begin at the same place of the table: the multiplier's inverse takes the spreading
/// out.
TEST(PaarIndex, TellsKeysOfOnePlaceApart) {
    PaarIndex index;
    for (std::uint32_t i = 0; i < 300; ++i)
        ASSERT_EQ(index.nummer(i * 0xF1DE83E19937733DU), i);
    for (std::uint32_t i = 0; i < 300; ++i)
        ASSERT_EQ(index.nummer(i * 0xF1DE83E19937733DU), i);
}

} // namespace
} // namespace lauwerkrans
