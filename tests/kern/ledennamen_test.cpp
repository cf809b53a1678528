// The table of names, and how a name is put together.
#include "data/ledennamen.h"

#include <gtest/gtest.h>

#include "data/modORV_leden.h"

namespace lauwerkrans {
namespace {

TEST(LedenNamen, KeepNamesByNumberAndEmptyForTheRest) {
    LedenNamen namen(5);
    EXPECT_TRUE(namen.zet(0, "Nul"));
    EXPECT_TRUE(namen.zet(5, "Vijf"));
    EXPECT_FALSE(namen.zet(6, "Zes"));
    EXPECT_FALSE(namen.zet(-1, "Min"));
    EXPECT_EQ(namen.naam(0), "Nul");
    EXPECT_EQ(namen.naam(5), "Vijf");
    for (const std::int64_t nummer : {-1, 1, 6, 99'999'999}) {
        EXPECT_EQ(namen.naam(nummer), "") << nummer;
    }
    EXPECT_EQ(namen.hoogste(), 5);
}

TEST(LedenNamen, JoinAPairInTheOrderGiven) {
    LedenNamen namen(20);
    EXPECT_TRUE(namen.zet(3, "Jan Smit"));
    EXPECT_TRUE(namen.zet(17, "Pruskail"));
    EXPECT_EQ(namen.paar(3, 17), "Jan Smit - Pruskail");
    EXPECT_EQ(namen.paar(17, 3), "Pruskail - Jan Smit");
    EXPECT_EQ(namen.paar(3, 18), "Jan Smit - ");
    EXPECT_EQ(namen.paar(99, 18), " - ");
}

TEST(WeergaveNaam, JoinsFirstNameAndSurname) {
    EXPECT_EQ(WeergaveNaam("Jan", "", "Smit"), "Jan Smit");
    EXPECT_EQ(WeergaveNaam("", "", "Pruskail"), " Pruskail");
    EXPECT_EQ(WeergaveNaam(" Jan ", "", " Smit "), " Jan   Smit ");
}

TEST(WeergaveNaam, PutsAParticleBetweenThemUntrimmed) {
    EXPECT_EQ(WeergaveNaam("Jan", "van", "Dam"), "Jan van Dam");
    EXPECT_EQ(WeergaveNaam("Jan", " van der ", "Dam"), "Jan  van der  Dam");
}

TEST(WeergaveNaam, TakesAParticleOfBlanksForNone) {
    EXPECT_EQ(WeergaveNaam("Jan", " ", "Dam"), "Jan Dam");
    EXPECT_EQ(WeergaveNaam("Jan", " \t ", "Dam"), "Jan Dam");
}

TEST(WeergaveNaam, TakesTheFirstHyphenOutOfFirstNameAndSurname) {
    EXPECT_EQ(WeergaveNaam("Anne-Marie", "", "Smit-Bos"), "AnneMarie SmitBos");
    EXPECT_EQ(WeergaveNaam("A-b-c", "", "D-e-f-"), "Ab-c De-f-");
    EXPECT_EQ(WeergaveNaam("-Jan", "", "Smit-"), "Jan Smit");
}

TEST(WeergaveNaam, LeavesTheHyphenOfTheParticle) {
    EXPECT_EQ(WeergaveNaam("Jan", "v-d", "Berg"), "Jan v-d Berg");
}

} // namespace
} // namespace lauwerkrans
