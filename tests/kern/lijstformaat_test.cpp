#include "data/lijstformaat.h"

#include <array>
#include <vector>

#include <gtest/gtest.h>

#include "data/fout.h"

namespace lauwerkrans {
namespace {

using Velden = std::vector<std::string>;

/// All fields of a text, read across its lines.
Velden AlleVelden(std::string_view bytes) {
    LijstLezer lezer(bytes);
    Velden velden;
    while (const auto veld = lezer.volgende())
        velden.emplace_back(*veld);
    return velden;
}

/// All fields of one line.
Velden VeldenVanRegel(std::string_view regel) {
    std::array<std::string_view, 20> velden;
    const std::size_t aantal = SplitsRegel(regel, velden.data(), velden.size());
    return {velden.begin(), velden.begin() + static_cast<std::ptrdiff_t>(aantal)};
}

/// What a piece of code throws; the test fails when it throws nothing.
template <class Werk>
Fout GegooideFout(Werk werk) {
    try {
        werk();
    } catch (const Fout& fout) {
        return fout;
    }
    ADD_FAILURE() << "nothing was thrown";
    return Fout(FoutSoort::Criterium);
}

TEST(Lijstformaat, FieldsEndAtCommasAndAtLineEnds) {
    EXPECT_EQ(AlleVelden("a,b\r\nc\r\nd,e\r\n"), (Velden{"a", "b", "c", "d", "e"}));
}

TEST(Lijstformaat, LinesEndInCrLfLfOrCrAlone) {
    EXPECT_EQ(AlleVelden("a\r\nb\nc\rd"), (Velden{"a", "b", "c", "d"}));
    EXPECT_EQ(AlleVelden("a\n\rb"), (Velden{"a", "", "b"}));
}

TEST(Lijstformaat, TheLastLineEndMayBeMissing) {
    EXPECT_EQ(AlleVelden("a,b"), AlleVelden("a,b\r\n"));
    EXPECT_EQ(AlleVelden("a,\"b\""), AlleVelden("a,\"b\"\r\n"));
}

TEST(Lijstformaat, AnEmptyTextHasNoField) { EXPECT_EQ(AlleVelden(""), Velden{}); }

TEST(Lijstformaat, EmptyFieldsCount) {
    EXPECT_EQ(AlleVelden("a,,b\r\n"), (Velden{"a", "", "b"}));
    EXPECT_EQ(AlleVelden(",a"), (Velden{"", "a"}));
    EXPECT_EQ(AlleVelden("a\r\n\r\nb"), (Velden{"a", "", "b"}));
}

TEST(Lijstformaat, AfterACommaAFieldFollowsIfOnlyAnEmptyOne) {
    EXPECT_EQ(AlleVelden("a,"), (Velden{"a", ""}));
    EXPECT_EQ(AlleVelden("a,\r\n"), (Velden{"a", ""}));
    EXPECT_EQ(AlleVelden("a,\r\nb"), (Velden{"a", "", "b"}));
    EXPECT_EQ(AlleVelden(","), (Velden{"", ""}));
}

TEST(Lijstformaat, TheQuotesAreNoPartOfTheValue) {
    EXPECT_EQ(AlleVelden("\"a\",\"b\"\r\n\"c\""), (Velden{"a", "b", "c"}));
    EXPECT_EQ(AlleVelden("\"\",\"\""), (Velden{"", ""}));
}

TEST(Lijstformaat, InsideQuotesEverythingCounts) {
    EXPECT_EQ(AlleVelden("\" a, b \",c"), (Velden{" a, b ", "c"}));
    EXPECT_EQ(AlleVelden("\"a\r\nb\",c"), (Velden{"a\r\nb", "c"}));
    EXPECT_EQ(AlleVelden("\"57,125\""), (Velden{"57,125"}));
}

TEST(Lijstformaat, BlanksAroundTheQuotesAreIgnored) {
    EXPECT_EQ(AlleVelden("  \"a\"  ,\t\"b\"\t\r\nc"), (Velden{"a", "b", "c"}));
}

TEST(Lijstformaat, TextAfterTheClosingQuoteIsDropped) {
    EXPECT_EQ(AlleVelden("\"a\"bc,d"), (Velden{"a", "d"}));
    EXPECT_EQ(AlleVelden("\"a\" \"b\",c"), (Velden{"a", "c"}));
    EXPECT_EQ(AlleVelden("\"a\"\"b\",c"), (Velden{"a", "c"}));
    EXPECT_EQ(AlleVelden("\"a\"bc\r\nd"), (Velden{"a", "d"}));
}

TEST(Lijstformaat, AnUnquotedFieldIsTakenAsItStands) {
    EXPECT_EQ(AlleVelden("  a b\t, c "), (Velden{"  a b\t", " c "}));
    EXPECT_EQ(AlleVelden("a\"b\",c"), (Velden{"a\"b\"", "c"}));
    EXPECT_EQ(AlleVelden("  ,\t\r\n  "), (Velden{"  ", "\t", "  "}));
    EXPECT_EQ(AlleVelden("'a',b"), (Velden{"'a'", "b"}));
}

TEST(Lijstformaat, AQuoteThatIsNotClosedEndsWithTheFile) {
    EXPECT_EQ(AlleVelden("a,\"b,c\r\nd,e\r\n"), (Velden{"a", "b,c\r\nd,e\r\n"}));
    EXPECT_EQ(AlleVelden("a,\""), (Velden{"a", ""}));
}

TEST(Lijstformaat, ALineSplitsLikeAFile) {
    EXPECT_EQ(VeldenVanRegel("1,\"NZ\", \"A7\" ,12 - 305,\"57,125\"x,24,"),
              (Velden{"1", "NZ", "A7", "12 - 305", "57,125", "24", ""}));
    EXPECT_EQ(VeldenVanRegel(""), Velden{""});
    EXPECT_EQ(VeldenVanRegel(","), (Velden{"", ""}));
    EXPECT_EQ(VeldenVanRegel(" \t"), Velden{" \t"});
}

TEST(Lijstformaat, AQuoteThatIsNotClosedInALineEndsWithTheLine) {
    EXPECT_EQ(VeldenVanRegel("a,\"b,c"), (Velden{"a", "b,c"}));
    EXPECT_EQ(VeldenVanRegel("a,\"b,c,"), (Velden{"a", "b,c,"}));
}

TEST(Lijstformaat, SplittingCountsFieldsBeyondTheRoomWithoutStoringThem) {
    std::array<std::string_view, 3> velden = {"", "", "onaangeroerd"};
    EXPECT_EQ(SplitsRegel("a,b,c,\"d,e\",f", velden.data(), 2), 5U);
    EXPECT_EQ(velden, (std::array<std::string_view, 3>{"a", "b", "onaangeroerd"}));
}

TEST(Lijstbestand, GivesFieldsAsUtf8AndNumbers) {
    LijstBestand bestand("C:\\x.txt", "Zo\xEB,\" 12 \"\r\n-3,+4");
    EXPECT_EQ(bestand.tekst(), "Zoë");
    EXPECT_EQ(bestand.getal(0, 12), 12);
    EXPECT_EQ(bestand.getal(-3, 0), -3);
    EXPECT_EQ(bestand.getal(4, 4), 4);
}

TEST(Lijstbestand, SkipsAByteOrderMark) {
    LijstBestand bestand("x", "\xEF\xBB\xBF"
                              "7,8");
    EXPECT_EQ(bestand.getal(0, 9), 7);
}

TEST(Lijstbestand, SkipsFields) {
    LijstBestand bestand("x", "1,\"2,x\"\r\n3,4,5");
    bestand.slaOver(0);
    bestand.slaOver(3);
    EXPECT_EQ(bestand.tekst(), "4");
    bestand.slaOver(-1);
    EXPECT_EQ(bestand.tekst(), "5");
}

TEST(Lijstbestand, NamesItselfWhenItEndsTooEarly) {
    LijstBestand bestand("C:\\x.txt", "a,b\r\n");
    bestand.slaOver(1);
    const Fout fout = GegooideFout([&] { bestand.slaOver(2); });
    EXPECT_EQ(fout.soort, FoutSoort::BestandEindigtTeVroeg);
    EXPECT_EQ(fout.bestand, "C:\\x.txt");
    EXPECT_EQ(GegooideFout([&] { static_cast<void>(bestand.tekst()); }).soort,
              FoutSoort::BestandEindigtTeVroeg);
    EXPECT_EQ(GegooideFout([&] { static_cast<void>(bestand.getal(0, 1)); }).soort,
              FoutSoort::BestandEindigtTeVroeg);
}

TEST(Lijstbestand, NamesItselfAndTheTextThatIsNoWholeNumber) {
    for (const char* tekst : {"", "x", "1x", "1.5", "Zo\xEB", "99999999999999999999"}) {
        const std::string bytes = std::string(tekst) + ",1";
        LijstBestand bestand("C:\\x.txt", bytes);
        const Fout fout = GegooideFout([&] { static_cast<void>(bestand.getal(0, 9)); });
        EXPECT_EQ(fout.soort, FoutSoort::GeenHeelGetal) << tekst;
        EXPECT_EQ(fout.bestand, "C:\\x.txt");
    }
    LijstBestand bestand("C:\\x.txt", "Zo\xEB");
    EXPECT_EQ(GegooideFout([&] { static_cast<void>(bestand.getal(0, 9)); }).tekst, "Zoë");
}

TEST(Lijstbestand, RefusesANumberOutsideItsBounds) {
    for (const char* tekst : {"0", "4", "-1"}) {
        LijstBestand bestand("C:\\x.txt", tekst);
        const Fout fout = GegooideFout([&] { static_cast<void>(bestand.getal(1, 3)); });
        EXPECT_EQ(fout.soort, FoutSoort::GetalBuitenGrenzen) << tekst;
        EXPECT_EQ(fout.bestand, "C:\\x.txt");
        EXPECT_EQ(fout.tekst, tekst);
    }
}

} // namespace
} // namespace lauwerkrans
