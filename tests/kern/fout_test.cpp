// The exact text of every error that the user can meet.
#include "data/fout.h"

#include <gtest/gtest.h>

#include "data/codetabel.h"
#include "data/systeem.h"

namespace lauwerkrans {
namespace {

/// An error with every field filled with something of its own.
Fout VolleFout(FoutSoort soort) {
    Fout fout(soort);
    fout.bestand = "D:\\Comp\\x.txt";
    fout.regel = 31;
    fout.aantal = 1600;
    fout.ronde = 4;
    fout.zitting = 7;
    fout.tekst = "abc";
    fout.wie = "Jan Smit - Pruskail";
    fout.reden = "geen toegang";
    return fout;
}

/// The path as it is shown on this system.
const std::string getoondPad = systeem::Schrijfwijze("D:\\Comp\\x.txt");

TEST(FoutTekst, OfAFileThatCannotBeRead) {
    EXPECT_EQ(FoutTekst(VolleFout(FoutSoort::BestandNietLeesbaar)),
              "Het bestand '" + getoondPad + "' kan niet worden gelezen: geen toegang.");
}

TEST(FoutTekst, OfAFileThatCannotBeWritten) {
    EXPECT_EQ(FoutTekst(VolleFout(FoutSoort::BestandNietSchrijfbaar)),
              "Het bestand '" + getoondPad + "' kan niet worden geschreven: geen toegang.");
}

TEST(FoutTekst, OfAFileThatEndsTooEarly) {
    Fout fout(FoutSoort::BestandEindigtTeVroeg);
    fout.bestand = "D:\\Comp\\x.txt";
    EXPECT_EQ(FoutTekst(fout),
              "Fout in het bestand '" + getoondPad + "':\r\n\r\nhet bestand is niet compleet.");
}

TEST(FoutTekst, OfAFieldThatIsNoWholeNumber) {
    Fout fout(FoutSoort::GeenHeelGetal);
    fout.bestand = "D:\\Comp\\x.txt";
    fout.tekst = "twee";
    EXPECT_EQ(FoutTekst(fout),
              "Fout in het bestand '" + getoondPad + "':\r\n\r\n'twee' is geen heel getal.");
}

TEST(FoutTekst, OfANumberThatCannotBeTrue) {
    Fout fout(FoutSoort::GetalBuitenGrenzen);
    fout.bestand = "D:\\Comp\\x.txt";
    fout.tekst = "-5";
    EXPECT_EQ(FoutTekst(fout),
              "Fout in het bestand '" + getoondPad + "':\r\n\r\nhet getal '-5' kan niet kloppen.");
}

TEST(FoutTekst, OfALineWithTheWrongNumberOfFields) {
    EXPECT_EQ(FoutTekst(VolleFout(FoutSoort::AantalVelden)),
              "Fout in het bestand '" + getoondPad +
                  "', regel 31:\r\n\r\ner staan 1600 velden in plaats van 7.\r\n\r\nabc");
}

TEST(FoutTekst, OfALineWithOneFieldIsInTheSingular) {
    Fout fout = VolleFout(FoutSoort::AantalVelden);
    fout.aantal = 1;
    EXPECT_EQ(FoutTekst(fout),
              "Fout in het bestand '" + getoondPad +
                  "', regel 31:\r\n\r\ner staat 1 veld in plaats van 7.\r\n\r\nabc");
}

TEST(FoutTekst, OfABoardCountThatCannotBeTrue) {
    EXPECT_EQ(FoutTekst(VolleFout(FoutSoort::TeVeelSpellen)),
              "Fout in het bestand '" + getoondPad +
                  "', regel 31:\r\n\r\nhet aantal spellen 'abc' kan niet kloppen.");
    EXPECT_EQ(FoutTekst(VolleFout(FoutSoort::SpellenBuitenGrenzen)),
              "Het aantal spellen 'abc' van Jan Smit - Pruskail kan niet kloppen.");
}

TEST(FoutTekst, OfMoreScoresThanThereIsRoomFor) {
    EXPECT_EQ(FoutTekst(VolleFout(FoutSoort::TeVeelRegels)),
              "Fout in het bestand '" + getoondPad +
                  "', regel 31:\r\n\r\ner zijn meer scores dan de 1600 waarvoor in deze "
                  "competitie plaats is.");
}

TEST(FoutTekst, OfAPercentageThatIsNone) {
    EXPECT_EQ(FoutTekst(VolleFout(FoutSoort::PercentageGeenGetal)),
              "Het percentage 'abc' van Jan Smit - Pruskail in ronde 4, zitting 7 is geen getal "
              "van 0 tot en met 100.");
}

TEST(FoutTekst, OfAWeightedAverageWithoutBoards) {
    EXPECT_EQ(FoutTekst(VolleFout(FoutSoort::GeenSpellen)),
              "Voor Jan Smit - Pruskail is geen gewogen gemiddelde te berekenen, want het aantal "
              "gespeelde spellen is 0.\r\n\r\nOplossing: zet 'Gewogen gemiddelde' uit of verbeter "
              "de zitting in de administratie.");
}

TEST(FoutTekst, OfACriterion) {
    Fout fout(FoutSoort::Criterium);
    fout.tekst = "C";
    EXPECT_EQ(FoutTekst(fout), "Geef bij lijn C een heel getal als minimum aantal zittingen.");
}

TEST(FoutTekst, NamesNoLineWhereThereIsNone) {
    Fout fout = VolleFout(FoutSoort::TeVeelSpellen);
    fout.regel = 0;
    EXPECT_EQ(FoutTekst(fout).find("regel"), std::string::npos);
    fout.regel = 1;
    EXPECT_NE(FoutTekst(fout).find("', regel 1:"), std::string::npos);
}

TEST(FoutTekst, ShowsTheBeginningOfALongText) {
    Fout fout = VolleFout(FoutSoort::SpellenBuitenGrenzen);
    fout.tekst = std::string(120, 'x');
    EXPECT_EQ(FoutTekst(fout), "Het aantal spellen '" + std::string(120, 'x') +
                                   "' van Jan Smit - Pruskail kan niet kloppen.");
    fout.tekst = std::string(121, 'x');
    EXPECT_EQ(FoutTekst(fout), "Het aantal spellen '" + std::string(120, 'x') +
                                   " ...' van Jan Smit - Pruskail kan niet kloppen.");
}

TEST(FoutTekst, CutsNoCharacterInTwo) {
    Fout fout = VolleFout(FoutSoort::SpellenBuitenGrenzen);
    fout.tekst = std::string(119, 'x') + "éé";
    EXPECT_EQ(FoutTekst(fout), "Het aantal spellen '" + std::string(119, 'x') +
                                   " ...' van Jan Smit - Pruskail kan niet kloppen.");
    fout.tekst = std::string(118, 'x') + "éé";
    EXPECT_EQ(FoutTekst(fout), "Het aantal spellen '" + std::string(118, 'x') +
                                   "é ...' van Jan Smit - Pruskail kan niet kloppen.");
}

TEST(FoutTekst, ShowsAQuestionMarkForAControlCharacter) {
    Fout fout = VolleFout(FoutSoort::SpellenBuitenGrenzen);
    fout.tekst = std::string("a\0b\x1B\r\n\x7F\tc", 9);
    EXPECT_EQ(FoutTekst(fout),
              "Het aantal spellen 'a?b????\tc' van Jan Smit - Pruskail kan niet kloppen.");
}

TEST(FoutTekst, ShowsTheBeginningOfLongNames) {
    Fout fout = VolleFout(FoutSoort::GeenSpellen);
    fout.wie = std::string(240, 'n');
    EXPECT_TRUE(FoutTekst(fout).starts_with("Voor " + fout.wie + " is geen"));
    fout.wie += 'n';
    EXPECT_TRUE(FoutTekst(fout).starts_with("Voor " + std::string(240, 'n') + " ... is geen"));
}

TEST(FoutTekst, ShowsTheBeginningOfAPathThatIsNone) {
    Fout fout = VolleFout(FoutSoort::BestandNietLeesbaar);
    fout.bestand = std::string(1000, 'p');
    EXPECT_EQ(FoutTekst(fout),
              "Het bestand '" + fout.bestand + "' kan niet worden gelezen: geen toegang.");
    fout.bestand += 'p';
    EXPECT_EQ(FoutTekst(fout), "Het bestand '" + std::string(1000, 'p') +
                                   " ...' kan niet worden gelezen: geen toegang.");
}

TEST(InMelding, OfBytesIsThatOfTheirText) {
    EXPECT_EQ(BytesInMelding("Zo\xEB"), "Zoë");
    EXPECT_EQ(BytesInMelding(std::string(120, 'x')), std::string(120, 'x'));
    EXPECT_EQ(BytesInMelding(std::string(121, 'x')), std::string(120, 'x') + " ...");
    EXPECT_EQ(BytesInMelding(std::string(5000, '\xEB')),
              InMelding(NaarUtf8(std::string(60, '\xEB'))) + " ...");
}

TEST(Reden, IsDutchForUsualErrors) {
    using std::errc;
    EXPECT_EQ(Reden(make_error_code(errc::no_such_file_or_directory)), "het bestand bestaat niet");
    EXPECT_EQ(Reden(make_error_code(errc::not_a_directory)), "de map bestaat niet");
    EXPECT_EQ(Reden(make_error_code(errc::permission_denied)), "geen toegang");
    EXPECT_EQ(Reden(make_error_code(errc::device_or_resource_busy)),
              "een ander programma gebruikt het bestand");
    EXPECT_EQ(Reden(make_error_code(errc::is_a_directory)), "er staat een map met die naam");
    EXPECT_EQ(Reden(make_error_code(errc::no_space_on_device)), "de schijf is vol");
    EXPECT_EQ(Reden(make_error_code(errc::read_only_file_system)), "de schijf is alleen te lezen");
    EXPECT_EQ(Reden(make_error_code(errc::io_error)), "leesfout op de schijf");
    EXPECT_EQ(Reden(make_error_code(errc::filename_too_long)), "de naam is te lang");
    EXPECT_EQ(Reden(make_error_code(errc::operation_not_permitted)), "geen toegang");
    EXPECT_EQ(Reden(make_error_code(errc::file_too_large)), "het bestand is te groot");
    EXPECT_EQ(Reden(make_error_code(errc::file_exists)), "er staat iets anders met die naam");
    EXPECT_EQ(Reden(make_error_code(errc::too_many_symbolic_link_levels)),
              "de naam verwijst naar zichzelf");
}

TEST(Reden, IsInTheWordsOfTheSystemForOthers) {
    const auto code = make_error_code(std::errc::owner_dead);
    EXPECT_EQ(Reden(code), code.message());
    EXPECT_NE(Reden(code), "");
}

#ifndef _WIN32
TEST(Schrijfwijze, TurnsEveryBackslashIntoASlash) {
    EXPECT_EQ(systeem::Schrijfwijze("D:\\Data\\\\Comp/x.txt"), "D:/Data//Comp/x.txt");
    EXPECT_EQ(systeem::Schrijfwijze(""), "");
}
#else
TEST(Schrijfwijze, TurnsEverySlashIntoABackslash) {
    EXPECT_EQ(systeem::Schrijfwijze("D:/Data/Comp\\x.txt"), "D:\\Data\\Comp\\x.txt");
}
#endif

} // namespace
} // namespace lauwerkrans
