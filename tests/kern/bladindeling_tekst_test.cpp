// A page as plain text.
#include <gtest/gtest.h>

#include "output/bladindeling_tekst.h"

namespace lauwerkrans {
namespace {

BladTekst Tekst(double x, double y, const char* tekst) { return {x, y, tekst, {}, 1}; }

TEST(BladAlsTekst, ReadsFromTopToBottomAndFromLeftToRight) {
    Blad blad;
    blad.teksten = {Tekst(30, 50, "Paar"), Tekst(20, 50, "Rang"), Tekst(21, 15, "Kop"),
                    Tekst(20, 54.8, "1")};
    EXPECT_EQ(BladAlsTekst(blad), "Kop\nRang  Paar\n1\n");
}

TEST(BladAlsTekst, LettersOfTwoSizesBesideEachOtherAreOneLine) {
    Blad blad;
    blad.teksten = {Tekst(40, 30.4, "(Minimum=5)"), Tekst(20, 30.9, "Lijn A"),
                    Tekst(20, 31.4, "x")};
    EXPECT_EQ(BladAlsTekst(blad), "Lijn A  (Minimum=5)\nx\n");
}

TEST(BladAlsTekst, AnEmptyPageHasNoText) { EXPECT_EQ(BladAlsTekst({}), ""); }

} // namespace
} // namespace lauwerkrans
