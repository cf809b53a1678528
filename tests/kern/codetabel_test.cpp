#include "data/codetabel.h"

#include <set>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace lauwerkrans {
namespace {

std::string EenByte(int nummer) { return {static_cast<char>(nummer)}; }

TEST(Codetabel, EveryByteReadIsWrittenBackTheSame) {
    std::string alle;
    for (int byte = 0; byte <= 255; ++byte) {
        EXPECT_EQ(NaarCodetabel(NaarUtf8(EenByte(byte))), EenByte(byte)) << "byte " << byte;
        alle += EenByte(byte);
    }
    EXPECT_EQ(NaarCodetabel(NaarUtf8(alle)), alle);
}

TEST(Codetabel, EveryByteHasACharacterOfItsOwn) {
    std::set<std::string> tekens;
    for (int byte = 0; byte <= 255; ++byte)
        tekens.insert(NaarUtf8(EenByte(byte)));
    EXPECT_EQ(tekens.size(), 256U);
}

TEST(Codetabel, AsciiStaysAsItIs) {
    EXPECT_EQ(NaarUtf8("Jan Smit, 57,125\t\r\n"), "Jan Smit, 57,125\t\r\n");
    EXPECT_EQ(NaarCodetabel("Jan Smit, 57,125\t\r\n"), "Jan Smit, 57,125\t\r\n");
}

TEST(Codetabel, KnowsTheLettersOfNames) {
    EXPECT_EQ(NaarUtf8("Ren\xE9 Fran\xE7ois Zo\xEB"), "René François Zoë");
    EXPECT_EQ(NaarCodetabel("René François Zoë"), "Ren\xE9 Fran\xE7ois Zo\xEB");
}

TEST(Codetabel, KnowsTheSignsBetween0x80And0x9F) {
    const std::vector<std::pair<int, std::string>> tekens = {
        {0x80, "€"}, {0x82, "‚"}, {0x83, "ƒ"}, {0x84, "„"}, {0x85, "…"}, {0x86, "†"}, {0x87, "‡"},
        {0x88, "ˆ"}, {0x89, "‰"}, {0x8A, "Š"}, {0x8B, "‹"}, {0x8C, "Œ"}, {0x8E, "Ž"}, {0x91, "‘"},
        {0x92, "’"}, {0x93, "“"}, {0x94, "”"}, {0x95, "•"}, {0x96, "–"}, {0x97, "—"}, {0x98, "˜"},
        {0x99, "™"}, {0x9A, "š"}, {0x9B, "›"}, {0x9C, "œ"}, {0x9E, "ž"}, {0x9F, "Ÿ"}};
    for (const auto& [byte, teken] : tekens) {
        EXPECT_EQ(NaarUtf8(EenByte(byte)), teken);
        EXPECT_EQ(NaarCodetabel(teken), EenByte(byte));
    }
}

TEST(Codetabel, TheFiveOpenBytesAreControlCharactersOfTheSameNumber) {
    EXPECT_EQ(NaarUtf8("\x81\x8D\x8F\x90\x9D"), "\u0081\u008D\u008F\u0090\u009D");
    EXPECT_EQ(NaarCodetabel("\u0081\u008D\u008F\u0090\u009D"), "\x81\x8D\x8F\x90\x9D");
}

TEST(Codetabel, ACharacterThatTheCodePageLacksIsAQuestionMark) {
    EXPECT_EQ(NaarCodetabel("a♠b"), "a?b");
    EXPECT_EQ(NaarCodetabel("ő"), "?");
    EXPECT_EQ(NaarCodetabel("\u0080"), "?"); // byte 0x80 is the euro sign
    EXPECT_EQ(NaarCodetabel("😀"), "?");
}

TEST(Codetabel, MalformedUtf8IsAQuestionMark) {
    EXPECT_EQ(NaarCodetabel("a\xE9"
                            "b"),
              "a?b");
    EXPECT_EQ(NaarCodetabel("\x80"), "?");
    EXPECT_EQ(NaarCodetabel("\xFF"), "?");
    EXPECT_EQ(NaarCodetabel("\xC3"), "?");         // cut off after the first of two bytes
    EXPECT_EQ(NaarCodetabel("\xE2\x82"), "??");    // after the second of three
    EXPECT_EQ(NaarCodetabel("\xC3(x"), "?(x");     // the next character is not swallowed
    EXPECT_EQ(NaarCodetabel("\xED\xA0\x80"), "?"); // half of a pair of 16-bit units
    EXPECT_EQ(NaarCodetabel("\xF5\x80\x80\x80"), "????");
}

TEST(Codetabel, AnOverlongFormIsMalformedToo) {
    EXPECT_EQ(NaarCodetabel("\xC1\x81"), "??");        // an A in two bytes
    EXPECT_EQ(NaarCodetabel("\xE0\x81\x81"), "?");     // in three
    EXPECT_EQ(NaarCodetabel("\xF0\x80\x81\x81"), "?"); // in four
    EXPECT_EQ(NaarCodetabel("x\xE0\x80\x80y"), "x?y"); // no NUL slips in
    EXPECT_EQ(NaarCodetabel("x\xE0\x80\xAFy"), "x?y"); // no "/" either
    EXPECT_EQ(NaarCodetabel("\xE0\x83\xA9"), "?");     // nor an é
    EXPECT_EQ(NaarCodetabel("\xF4\x90\x80\x80"), "?"); // beyond the last character
}

/// A part of the code page of Russian (1251): А to я are the bytes 0xC0 to 0xFF.
Codetabel Russisch() {
    systeem::Bovenhelft helft = Windows1252();
    for (std::size_t i = 0; i < 64; ++i) {
        helft.tekens.at(64 + i) = static_cast<char16_t>(0x410 + i);
        helft.hoofdletters.at(64 + i) = static_cast<char16_t>(0x410 + i % 32);
    }
    return Codetabel(helft);
}

TEST(Codetabel, MayBeThatOfAnotherLanguage) {
    const Codetabel tabel = Russisch();
    EXPECT_EQ(tabel.naarUtf8("\xCF\xE5\xF2\xFF 1 \x80"), "Петя 1 €");
    EXPECT_EQ(tabel.naarBytes("Петя 1 €"), "\xCF\xE5\xF2\xFF 1 \x80");
    EXPECT_EQ(tabel.naarBytes("René"), "Ren?"); // no é there
    EXPECT_EQ(tabel.hoofdletters("Петя en é"), "ПЕТЯ EN é");
}

TEST(Codetabel, OfAnotherLanguageGivesEveryByteBackToo) {
    const Codetabel tabel = Russisch();
    for (int byte = 0; byte <= 255; ++byte)
        EXPECT_EQ(tabel.naarBytes(tabel.naarUtf8(EenByte(byte))), EenByte(byte)) << byte;
}

TEST(Hoofdletters, CoverAToZ) {
    EXPECT_EQ(Hoofdletters("abcdefghijklmnopqrstuvwxyz"), "ABCDEFGHIJKLMNOPQRSTUVWXYZ");
    EXPECT_EQ(Hoofdletters("Van der Berg 3-`{|}~@["), "VAN DER BERG 3-`{|}~@[");
    EXPECT_EQ(Hoofdletters(""), "");
}

TEST(Hoofdletters, CoverTheAccentedLettersOfTheCodePage) {
    EXPECT_EQ(Hoofdletters("àáâãäåæçèéêëìíîïðñòóôõöøùúûüýþ"), "ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝÞ");
    EXPECT_EQ(Hoofdletters("ÿšœž"), "ŸŠŒŽ");
    EXPECT_EQ(Hoofdletters("José Müller"), "JOSÉ MÜLLER");
}

TEST(Hoofdletters, LeaveWhatHasNoCapitalInTheCodePage) {
    EXPECT_EQ(Hoofdletters("ß÷×µƒ€“"), "ß÷×µƒ€“");
    EXPECT_EQ(Hoofdletters("♠😀ő"), "♠😀ő");
}

TEST(Hoofdletters, LeaveMalformedUtf8AsItStands) {
    EXPECT_EQ(Hoofdletters("a\xE9 b"), "A\xE9 B");
    EXPECT_EQ(Hoofdletters("\xC3"), "\xC3");
    EXPECT_EQ(Hoofdletters("\xE0\x81\xA1"), "\xE0\x81\xA1"); // an overlong a
}

TEST(Hoofdletters, GiveEveryByteOfTheCodePageACharacterThatItHas) {
    for (int byte = 0; byte <= 255; ++byte) {
        const std::string groot = Hoofdletters(NaarUtf8(EenByte(byte)));
        EXPECT_EQ(NaarUtf8(NaarCodetabel(groot)), groot) << "byte " << byte;
        EXPECT_EQ(Hoofdletters(groot), groot) << "byte " << byte;
    }
}

} // namespace
} // namespace lauwerkrans
