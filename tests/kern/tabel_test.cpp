#include "data/tabel.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace lauwerkrans {
namespace {

TEST(Rij, StartsEmptyWithUpperBound0) {
    const Rij rij;
    EXPECT_EQ(rij.bovengrens(), 0U);
    EXPECT_EQ(rij.cel(0), "");
}

TEST(Rij, GrowsByOneCellAndKeepsItsContents) {
    Rij rij;
    rij.voegToe("een");
    rij.voegToe("twee");
    EXPECT_EQ(rij.bovengrens(), 2U);
    EXPECT_EQ(rij.cel(0), "");
    EXPECT_EQ(rij.cel(1), "een");
    EXPECT_EQ(rij.cel(2), "twee");
    EXPECT_THROW(static_cast<void>(rij.cel(3)), std::out_of_range);
}

TEST(Tabel, HasEmptyCellsFromIndex0) {
    const Tabel tabel(2, 3);
    EXPECT_EQ(tabel.rijen(), 2U);
    EXPECT_EQ(tabel.kolommen(), 3U);
    for (std::size_t rij = 0; rij <= 2; ++rij) {
        for (std::size_t kolom = 0; kolom <= 3; ++kolom)
            EXPECT_EQ(tabel.cel(rij, kolom), "");
    }
    EXPECT_EQ(Tabel().cel(0, 0), "");
}

TEST(Tabel, KeepsEveryCellApart) {
    Tabel tabel(2, 3);
    for (std::size_t rij = 1; rij <= 2; ++rij) {
        for (std::size_t kolom = 1; kolom <= 3; ++kolom)
            tabel.zet(rij, kolom, std::to_string(rij * 10 + kolom));
    }
    EXPECT_EQ(tabel.cel(1, 3), "13");
    EXPECT_EQ(tabel.cel(2, 1), "21");
    EXPECT_EQ(tabel.cel(2, 3), "23");
    EXPECT_EQ(tabel.cel(2, 0), "");
}

TEST(Tabel, RefusesAnIndexPastItsBounds) {
    Tabel tabel(2, 3);
    EXPECT_THROW(static_cast<void>(tabel.cel(3, 1)), std::out_of_range);
    EXPECT_THROW(static_cast<void>(tabel.cel(1, 4)), std::out_of_range);
    EXPECT_THROW(tabel.zet(3, 1, "x"), std::out_of_range);
    EXPECT_THROW(tabel.zet(1, 4, "x"), std::out_of_range);
    EXPECT_THROW(static_cast<void>(Tabel().cel(0, 1)), std::out_of_range);
}

} // namespace
} // namespace lauwerkrans
