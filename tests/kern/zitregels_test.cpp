#include "data/zitregels.h"

#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "data/codetabel.h"
#include "data/getallen.h"

namespace lauwerkrans {
namespace {

ZitRegel Regel() {
    ZitRegel regel;
    regel.lijn = 'C';
    regel.lid1 = 305;
    regel.lid2 = 12;
    regel.ronde = 4;
    regel.zitting = 10;
    regel.spellen = 24;
    return regel;
}

/// A table whose rows differ in their percentage only.
ZitRegels Met(const std::vector<std::string>& percentages) {
    ZitRegels tabel(percentages.size(), std::make_shared<const LedenNamen>());
    for (const auto& percentage : percentages)
        tabel.voegToe(Regel(), percentage);
    return tabel;
}

TEST(ZitRegels, ShowARowInEightColumns) {
    auto leden = std::make_shared<LedenNamen>(999);
    EXPECT_TRUE(leden->zet(12, "Jan Smit") && leden->zet(305, "Pruskail"));
    ZitRegels tabel(5, leden);
    tabel.voegToe(Regel(), "57,125");
    ZitRegel bum = Regel();
    bum.bum = true;
    tabel.voegToe(bum, "57,125");
    const std::vector<std::string> kolommen = {
        "", "C", "      12     305", "57,125", "R04-Z10-24", "", "", "", "Pruskail - Jan Smit"};
    for (std::size_t kolom = 0; kolom <= zitRegelKolommen; ++kolom)
        EXPECT_EQ(tabel.cel(1, kolom), kolommen[kolom]) << kolom;
    EXPECT_EQ(tabel.cel(2, 6), "BUM");
    EXPECT_EQ(tabel.cel(2, 3), "57,125");
}

TEST(ZitRegels, ShowTheBeginningOfAnEndlessPercentageAndCountItWhole) {
    const std::string nullen(5000, '0');
    const ZitRegels tabel = Met({"57,125" + nullen, nullen + "57,125", nullen + "x"});
    EXPECT_EQ(tabel.cel(1, 3), "57,125" + nullen.substr(0, 994));
    EXPECT_EQ(tabel.cel(2, 3), nullen.substr(0, 1000));
    EXPECT_EQ(tabel.duizendsten(tabel.regel(1)), 57125);
    EXPECT_EQ(tabel.duizendsten(tabel.regel(2)), 57125);
    EXPECT_EQ(tabel.duizendsten(tabel.regel(3)), ZitRegels::geenPercentage);
}

TEST(ZitRegels, AreEmptyBeyondTheFilledRows) {
    ZitRegels tabel(3, std::make_shared<const LedenNamen>());
    tabel.voegToe(Regel(), "50");
    EXPECT_EQ(tabel.gevuld(), 1U);
    EXPECT_EQ(tabel.ruimte(), 3U);
    for (std::size_t kolom = 0; kolom <= zitRegelKolommen; ++kolom) {
        EXPECT_EQ(tabel.cel(0, kolom), "");
        EXPECT_EQ(tabel.cel(3, kolom), "");
    }
}

TEST(ZitRegels, RefuseAnIndexPastTheirBounds) {
    const ZitRegels tabel(3, std::make_shared<const LedenNamen>());
    EXPECT_THROW(static_cast<void>(tabel.cel(4, 1)), std::out_of_range);
    EXPECT_THROW(static_cast<void>(tabel.cel(1, 9)), std::out_of_range);
    EXPECT_THROW(static_cast<void>(tabel.regel(1)), std::out_of_range);
    EXPECT_EQ(ZitRegels().cel(0, 1), "");
}

TEST(ZitRegels, AreFullWhenTheirRoomIs) {
    ZitRegels tabel(2, std::make_shared<const LedenNamen>());
    EXPECT_FALSE(tabel.vol());
    tabel.voegToe(Regel(), "50");
    EXPECT_FALSE(tabel.vol());
    tabel.voegToe(Regel(), "50");
    EXPECT_TRUE(tabel.vol());
    EXPECT_TRUE(ZitRegels().vol());
}

TEST(ZitRegel, KnowsTheLowerAndTheHigherMember) {
    ZitRegel regel = Regel();
    EXPECT_EQ(regel.laagste(), 12U);
    EXPECT_EQ(regel.hoogste(), 305U);
    std::swap(regel.lid1, regel.lid2);
    EXPECT_EQ(regel.laagste(), 12U);
    EXPECT_EQ(regel.hoogste(), 305U);
}

TEST(Percentages, KeepTheirTextAndTheirValue) {
    const std::vector<std::pair<std::string, std::int32_t>> gevallen = {{"57,125", 57125},
                                                                        {"57.125", 57125},
                                                                        {"57,12", 57120},
                                                                        {"57.1", 57100},
                                                                        {"57", 57000},
                                                                        {"5,125", 5125},
                                                                        {"5", 5000},
                                                                        {"0", 0},
                                                                        {"00,000", 0},
                                                                        {"007,5", 7500},
                                                                        {"099", 99000},
                                                                        {"100", 100000},
                                                                        {"100,000", 100000},
                                                                        {"100.0", 100000},
                                                                        {"57,", 57000},
                                                                        {"57.", 57000},
                                                                        {",5", 500},
                                                                        {".5", 500},
                                                                        {"", 0},
                                                                        {"  ", 0},
                                                                        {" 57,1", 57100},
                                                                        {"57,1 ", 57100},
                                                                        {"+57,1", 57100},
                                                                        {"-0", 0},
                                                                        {"57,1245", 57125},
                                                                        {"0057,1", 57100},
                                                                        {"57,1250000000", 57125},
                                                                        {"\t57,125", 57125}};
    std::vector<std::string> teksten;
    teksten.reserve(gevallen.size());
    for (const auto& [tekst, duizendsten] : gevallen)
        teksten.push_back(tekst);
    const ZitRegels tabel = Met(teksten);
    for (std::size_t i = 0; i < gevallen.size(); ++i) {
        EXPECT_EQ(tabel.cel(i + 1, 3), gevallen[i].first);
        EXPECT_EQ(tabel.duizendsten(tabel.regel(i + 1)), gevallen[i].second) << teksten[i];
    }
}

TEST(Percentages, ThatAreNoneKeepTheirTextOnly) {
    const std::vector<std::string> teksten = {"abc",    "-1",     "101",    "100,001", "100.5",
                                              "999",    "57,12x", "57;125", "5 7,125", "57, 125",
                                              "1e1",    "5,,1",   "1.0,5",  "-57,125", "x7,125",
                                              "57,1-5", "57%",    ",",      "57,+12",  "+"};
    const ZitRegels tabel = Met(teksten);
    for (std::size_t i = 0; i < teksten.size(); ++i) {
        EXPECT_EQ(tabel.cel(i + 1, 3), teksten[i]);
        EXPECT_EQ(tabel.duizendsten(tabel.regel(i + 1)), ZitRegels::geenPercentage) << teksten[i];
    }
}

TEST(Percentages, AreInTheCodePage) { EXPECT_EQ(Met({"Zo\xEB \x81"}).cel(1, 3), "Zoë \u0081"); }

TEST(Percentages, OfAnyTextKeepItAndHaveTheValueOfTheText) {
    const std::string tekens = "0012345678905,,..+- \tx\xEB";
    std::mt19937 toeval(7);
    std::vector<std::string> teksten;
    for (int i = 0; i < 100'000; ++i) {
        std::string tekst;
        for (auto n = toeval() % 9; n > 0; --n)
            tekst += tekens[toeval() % tekens.size()];
        teksten.push_back(tekst);
    }
    const ZitRegels tabel = Met(teksten);
    int percentages = 0;
    for (std::size_t i = 0; i < teksten.size(); ++i) {
        const auto verwacht = PercentageDuizendsten(teksten[i]);
        ASSERT_EQ(tabel.cel(i + 1, 3), NaarUtf8(teksten[i]));
        ASSERT_EQ(tabel.duizendsten(tabel.regel(i + 1)),
                  verwacht.value_or(ZitRegels::geenPercentage))
            << teksten[i];
        if (verwacht) ++percentages;
    }
    EXPECT_GT(percentages, 10'000);
    EXPECT_LT(percentages, 90'000);
}

TEST(RegelCode, HasFixedPlacesForRoundSessionAndBoards) {
    ZitRegel regel = Regel();
    EXPECT_EQ(RegelCode(regel), "R04-Z10-24");
    regel.ronde = 99;
    regel.zitting = 1;
    regel.spellen = 7;
    EXPECT_EQ(RegelCode(regel), "R99-Z01-07");
    regel.spellen = 104;
    EXPECT_EQ(RegelCode(regel), "R99-Z01-104");
    regel.spellen = 0;
    EXPECT_EQ(RegelCode(regel), "R99-Z01-00");
}

} // namespace
} // namespace lauwerkrans
