#include "data/getallen.h"

#include <limits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace lauwerkrans {
namespace {

/// Each text with what it must give.
template <class Uitkomst>
using Gevallen = std::vector<std::pair<std::string, Uitkomst>>;

constexpr std::int64_t int64Max = std::numeric_limits<std::int64_t>::max();

TEST(ZonderBlanks, TakesSpacesAndTabsOffBothEndsOnly) {
    EXPECT_EQ(ZonderBlanks(" \t a b\t "), "a b");
    EXPECT_EQ(ZonderBlanks(" \t "), "");
    EXPECT_EQ(ZonderBlanks(""), "");
    EXPECT_EQ(ZonderBlanks("\r\n5"), "\r\n5");
}

TEST(LeidendGetal, ReadsBlanksASignDigitsAndOnePoint) {
    const Gevallen<double> gevallen = {{"20", 20},
                                       {"  7", 7},
                                       {"\t7", 7},
                                       {"-3", -3},
                                       {"+4", 4},
                                       {"20x", 20},
                                       {"7 boards", 7},
                                       {"1.5", 1.5},
                                       {"1.5.9", 1.5},
                                       {".25", 0.25},
                                       {"5.", 5},
                                       {"-.5", -0.5},
                                       {"12abc34", 12},
                                       {"007", 7},
                                       {"7,9", 7},
                                       {"1e3", 1},
                                       {"123456789012", 123456789012.0}};
    for (const auto& [tekst, getal] : gevallen) {
        EXPECT_DOUBLE_EQ(LeidendGetal(tekst), getal) << "'" << tekst << "'";
    }
}

TEST(LeidendGetal, IsZeroWhereNoDigitsStandAtTheStart) {
    for (const char* tekst : {"", "   ", "x", "-", "+", ".", "-.", "--5", "+-5", "- 5", ",5", "e5",
                              "x12", "inf", "nan", "0x10"}) {
        EXPECT_DOUBLE_EQ(LeidendGetal(tekst), 0) << "'" << tekst << "'";
    }
}

TEST(LeidendGetal, TakesDigitsBeyondWhatANumberHoldsAsInfinite) {
    EXPECT_EQ(LeidendGetal(std::string(400, '9')), std::numeric_limits<double>::infinity());
    EXPECT_EQ(LeidendGetal("-" + std::string(400, '9')), -std::numeric_limits<double>::infinity());
}

TEST(LeidendGetal, TakesAFractionTooSmallToHoldAsZero) {
    EXPECT_DOUBLE_EQ(LeidendGetal("0." + std::string(400, '0') + "1"), 0);
    EXPECT_DOUBLE_EQ(LeidendGetal("-." + std::string(400, '0') + "1"), 0);
    EXPECT_DOUBLE_EQ(LeidendGetal(std::string(400, '0') + "." + std::string(400, '0') + "1"), 0);
    EXPECT_DOUBLE_EQ(LeidendGetal(std::string(400, '0') + "12.5"), 12.5);
}

TEST(LeidendGetal16, RoundsHalvesToTheEvenNumber) {
    const Gevallen<int> gevallen = {
        {"2.5", 2}, {"3.5", 4},       {"-2.5", -2},       {"2.51", 3},
        {"", 0},    {"x", 0},         {"12 x", 12},       {" 230", 230},
        {"-7", -7}, {"32767", 32767}, {"-32768", -32768}, {"32767.4", 32767}};
    for (const auto& [tekst, getal] : gevallen) {
        EXPECT_EQ(LeidendGetal16(tekst), getal) << "'" << tekst << "'";
    }
}

TEST(LeidendGetal16, RefusesWhatDoesNotFitAndNeverWrapsAround) {
    for (const std::string& tekst :
         {std::string("32768"), std::string("-32769"), std::string("32767.5"), std::string("65536"),
          std::string("70000"), std::string(400, '9')}) {
        EXPECT_EQ(LeidendGetal16(tekst), std::nullopt) << "'" << tekst << "'";
    }
}

TEST(HeelGetal, AcceptsBlanksAroundAndASign) {
    const Gevallen<std::int64_t> gevallen = {{"0", 0},
                                             {"612", 612},
                                             {"  612 ", 612},
                                             {"\t8\t", 8},
                                             {"+5", 5},
                                             {"-5", -5},
                                             {" -5 ", -5},
                                             {"007", 7},
                                             {"-0", 0},
                                             {"9223372036854775807", int64Max},
                                             {"-9223372036854775807", -int64Max}};
    for (const auto& [tekst, getal] : gevallen) {
        EXPECT_EQ(HeelGetal(tekst), getal) << "'" << tekst << "'";
    }
}

TEST(HeelGetal, RefusesEverythingElse) {
    for (const char* tekst : {"", "  ", "x", "5x", "x5", "5 6", "5.0", "5,", "1e3", "- 5", "+ 5",
                              "--5", "+-5", "-", "0x10", "9223372036854775808", "5\r"}) {
        EXPECT_EQ(HeelGetal(tekst), std::nullopt) << "'" << tekst << "'";
    }
}

TEST(Cijfers, AcceptsDigitsUpToTheHighest) {
    const Gevallen<std::int64_t> gevallen = {
        {"0", 0}, {"5", 5}, {" 5\t", 5}, {"00020", 20}, {"32767", 32767}};
    for (const auto& [tekst, getal] : gevallen) {
        EXPECT_EQ(Cijfers(tekst, 32767), getal) << "'" << tekst << "'";
    }
}

TEST(Cijfers, RefusesASignAndWhatIsTooHigh) {
    for (const char* tekst :
         {"", " ", "+5", "-5", "5.", "5,0", "1 2", "x", "32768", "99999999999999999999"}) {
        EXPECT_EQ(Cijfers(tekst, 32767), std::nullopt) << "'" << tekst << "'";
    }
}

TEST(Afgerond, RoundsTheDecimalTextHalfAwayFromZero) {
    EXPECT_EQ(Afgerond("57,1245", 3), 57125);
    EXPECT_EQ(Afgerond("57.1244999", 3), 57124);
    EXPECT_EQ(Afgerond("-2,5", 0), -3);
    EXPECT_EQ(Afgerond("5,", 3), 5000);
    EXPECT_EQ(Afgerond(57.0625F, 3), 57063);
    EXPECT_EQ(Afgerond("x", 3), std::nullopt);
}

TEST(Afgerond, CountsTheLastOfTheDecimalPlaces) {
    const Gevallen<std::int64_t> gevallen = {
        {"0", 0},         {",5", 500},         {".0005", 1},
        {"0,00049", 0},   {"+1,5", 1500},      {"-57,1245", -57125},
        {"00057", 57000}, {"99,9995", 100000}, {"12345678901234", 12345678901234000}};
    for (const auto& [tekst, aantal] : gevallen) {
        EXPECT_EQ(Afgerond(tekst, 3), aantal) << "'" << tekst << "'";
    }
    EXPECT_EQ(Afgerond("00000000000000000057,1", 3), 57100);
    EXPECT_EQ(Afgerond("7,4999", 0), 7);
    EXPECT_EQ(Afgerond("6,5", 0), 7);
}

TEST(Afgerond, RoundsALongTextAsTheShortestTextOfItsNumber) {
    EXPECT_EQ(Afgerond("57,12450000000000000000", 3), 57125);
    EXPECT_EQ(Afgerond("57,12449999999999999999", 3), 57125); // the number nearest is 57,1245
    EXPECT_EQ(Afgerond("57,1244999999999", 3), 57124);
    EXPECT_EQ(Afgerond("0," + std::string(400, '0') + "1", 3), 0);
}

TEST(Afgerond, RefusesATextThatIsNoNumberOrTooLarge) {
    for (const char* tekst : {"", " 5", "5 ", ",", ".", "-", "1,2,3", "1.000,5", "1e3", "--1",
                              "123456789012345", "5x"}) {
        EXPECT_EQ(Afgerond(tekst, 3), std::nullopt) << "'" << tekst << "'";
    }
}

TEST(Afgerond, RoundsTheShortestTextOfAValue) {
    EXPECT_EQ(Afgerond(57.1245F, 3), 57125); // held as 57.12450027...
    EXPECT_EQ(Afgerond(2.675, 2), 268);      // held as 2.67499999...
    EXPECT_EQ(Afgerond(1.005, 2), 101);      // held as 1.00499999...
    EXPECT_EQ(Afgerond(-0.0005, 3), -1);
    EXPECT_EQ(Afgerond(7.5, 0), 8);
    EXPECT_EQ(Afgerond(6.5, 0), 7);
    EXPECT_EQ(Afgerond(1e-7F, 3), 0);
}

TEST(Patroon, WritesTheComma) {
    EXPECT_EQ(Patroon(57125, 3, 2), "57,125");
    EXPECT_EQ(Patroon(5500, 3, 2), "05,500");
    EXPECT_EQ(Patroon(0, 3, 2), "00,000");
    EXPECT_EQ(Patroon(7, 0, 2), "07");
    EXPECT_EQ(Patroon(104, 0, 2), "104");
    EXPECT_EQ(Patroon(5, 4, 1), "0,0005");
}

TEST(Patroon, PutsTheSignBeforeAllDigits) {
    EXPECT_EQ(Patroon(-7, 0, 2), "-07");
    EXPECT_EQ(Patroon(-5, 3, 2), "-00,005");
    EXPECT_EQ(Patroon(100000, 3, 2), "100,000");
}

TEST(Percentage, IsANumberFrom0To100WithAPointOrAComma) {
    const Gevallen<std::int32_t> gevallen = {{"57,125", 57125},
                                             {"57.125", 57125},
                                             {" 57,125\t", 57125},
                                             {"5,5", 5500},
                                             {"5,", 5000},
                                             {"5.", 5000},
                                             {",5", 500},
                                             {"0", 0},
                                             {"00,000", 0},
                                             {"100", 100000},
                                             {"100,000", 100000},
                                             {"0100,0", 100000},
                                             {"+50", 50000},
                                             {"-0", 0},
                                             {"-0,000", 0},
                                             {"99,9999", 100000},
                                             {"57,1245", 57125},
                                             {"57,12449", 57124},
                                             {"", 0},
                                             {"  \t ", 0},
                                             {"0,00049", 0},
                                             {"0000057,1", 57100},
                                             {"33,33333333333333333333", 33333}};
    for (const auto& [tekst, duizendsten] : gevallen) {
        EXPECT_TRUE(IsPercentage(tekst)) << "'" << tekst << "'";
        EXPECT_EQ(PercentageDuizendsten(tekst), duizendsten) << "'" << tekst << "'";
    }
}

TEST(Percentage, IsNoOtherText) {
    for (const char* tekst : {"100,001", "100.0001", "101", "1000",  "-1",      "-0,001",  "x",
                              "57,125%", "57 125",   "1e1", "5,5,5", "1.000,5", "1,000.5", ",",
                              ".",       "-",        "- 5", "NaN",   "57;1",    "57,1x"}) {
        EXPECT_FALSE(IsPercentage(tekst)) << "'" << tekst << "'";
        EXPECT_EQ(PercentageDuizendsten(tekst), std::nullopt) << "'" << tekst << "'";
    }
}

TEST(Percentage, HoldsNoBlanksOtherThanSpacesAndTabs) {
    EXPECT_FALSE(IsPercentage("57,1\r"));
    EXPECT_FALSE(IsPercentage("\xA0"
                              "57,1"));
}

} // namespace
} // namespace lauwerkrans
