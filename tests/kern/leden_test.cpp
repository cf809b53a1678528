#include "data/modORV_leden.h"

#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "proef.h"

namespace lauwerkrans {
namespace {

const Melding groepenMelding = {"\r\nFout bij het lezen van de Groepen!\r\n", Icoon::Uitroep};

/// A members file with these bytes, and what reading it gives.
struct Gelezen {
    explicit Gelezen(const std::string& bytes) {
        map.schrijf("ORVspelers/ORVspelers.txt", bytes);
        algemeen.OrvMap = map.pad();
        algemeen.meld = meldingen.melder();
        LeesLeden(algemeen);
    }
    [[nodiscard]] const std::string& naam(std::int64_t nummer) const {
        return algemeen.ledenNamen->naam(nummer);
    }
    [[nodiscard]] std::int64_t hoogste() const { return algemeen.ledenNamen->hoogste(); }
    [[nodiscard]] bool foutloos() const {
        return meldingen.getoond.empty() && algemeen.LeesFout == 0;
    }
    /// Whether exactly the one message came, with its flag.
    [[nodiscard]] bool mislukt() const {
        return meldingen.getoond == std::vector{groepenMelding} && algemeen.LeesFout == 1;
    }

    proef::Proefmap map;
    proef::Meldingen meldingen;
    Algemeen algemeen;
};

/// Two members, and a line between them.
Gelezen MetRegelErtussen(const std::string& regel) {
    return Gelezen("Aantal=50\r\nx,3,y,Jan,,Smit\r\n" + regel +
                   "\r\nx,4,y,Piet,,Klaassen\r\neinde\r\n");
}

TEST(Ledenbestand, LiesInAFolderOfItsOwnBelowTheSuite) {
    EXPECT_EQ(LedenPad("D:\\ORV"), "D:\\ORV\\ORVspelers\\ORVspelers.txt");
}

TEST(Ledenbestand, GivesNumberFirstNameParticleAndSurname) {
    const Gelezen gelezen(
        "Aantal=612\r\n7,12,8,Jan,,Smit,9,10\r\n1,13,2,Piet,van der,Berg,3\r\neinde\r\n");
    EXPECT_TRUE(gelezen.foutloos());
    EXPECT_EQ(gelezen.hoogste(), 612);
    EXPECT_EQ(gelezen.naam(12), "Jan Smit");
    EXPECT_EQ(gelezen.naam(13), "Piet van der Berg");
    for (const int nummer : {0, 1, 2, 3, 7, 8, 9, 10, 11, 14, 612}) {
        EXPECT_EQ(gelezen.naam(nummer), "") << nummer;
    }
}

TEST(Ledenbestand, HoldsNumbersFrom0ToN) {
    const Gelezen gelezen("Aantal=5\r\nx,0,y,Nul,,Laagste\r\nx,5,y,Vijf,,Hoogste\r\neinde\r\n");
    EXPECT_TRUE(gelezen.foutloos());
    EXPECT_EQ(gelezen.naam(0), "Nul Laagste");
    EXPECT_EQ(gelezen.naam(5), "Vijf Hoogste");
}

TEST(Ledenbestand, TakesBlanksAndASignAroundNumbers) {
    const Gelezen gelezen("Aantal= 50 \r\nx, 12 ,y,Jan,,Smit\r\nx,+13,y,Piet,,Bos\r\neinde");
    EXPECT_TRUE(gelezen.foutloos());
    EXPECT_EQ(gelezen.hoogste(), 50);
    EXPECT_EQ(gelezen.naam(12), "Jan Smit");
    EXPECT_EQ(gelezen.naam(13), "Piet Bos");
}

TEST(Ledenbestand, TakesTheSizeAfterTheFirstEqualsSignOfTheFirstField) {
    EXPECT_EQ(Gelezen("Aantal leden (max)=612\r\nx\r\n").hoogste(), 612);
    EXPECT_EQ(Gelezen("=7\r\nx\r\n").hoogste(), 7);
    EXPECT_EQ(Gelezen("\"Aantal=8\"\r\nx\r\n").hoogste(), 8);
    EXPECT_EQ(Gelezen("Aantal=9,10\r\nx\r\n").hoogste(), 9);
    EXPECT_TRUE(Gelezen("Aantal=9=10\r\nx\r\n").mislukt());
}

TEST(Ledenbestand, IsReadInTheCodePage) {
    const Gelezen gelezen("Aantal=20\r\nx,1,y,Ren\xE9,\xE0,Fran\xE7ois\r\nx,2,y,Zo\xEB,,\x8A"
                          "im\r\neinde\r\n");
    EXPECT_EQ(gelezen.naam(1), "René à François");
    EXPECT_EQ(gelezen.naam(2), "Zoë Šim");
}

TEST(Ledenbestand, KnowsNoQuotesInItsLines) {
    const Gelezen gelezen = MetRegelErtussen("x,12,y,\"Jan\",\"\",\"Smit\"");
    EXPECT_TRUE(gelezen.foutloos());
    EXPECT_EQ(gelezen.naam(12), "\"Jan\" \"\" \"Smit\"");
    EXPECT_EQ(MetRegelErtussen("x,12,y,\"J,a\",n").naam(12), "\"J a\" n");
}

TEST(Ledenbestand, ALaterLineWithTheSameNumberOverwrites) {
    const Gelezen gelezen = MetRegelErtussen("x,3,y,Joop,de,Wit");
    EXPECT_TRUE(gelezen.foutloos());
    EXPECT_EQ(gelezen.naam(3), "Joop de Wit");
}

TEST(Ledenbestand, ItsLastLineIsNeverStored) {
    const std::string leden = "Aantal=9\r\nx,1,y,Jan,,Smit\r\nx,2,y,Piet,,Bos";
    for (const char* einde : {"", "\r\n"}) {
        const Gelezen gelezen(leden + einde);
        EXPECT_TRUE(gelezen.foutloos());
        EXPECT_EQ(gelezen.naam(1), "Jan Smit");
        EXPECT_EQ(gelezen.naam(2), "");
    }
}

TEST(Ledenbestand, ABlankLastLineIsTheLastLineToo) {
    for (const char* einde : {"\r\n\r\n", "\r\n \r\n", "\r\n "}) {
        const Gelezen gelezen("Aantal=9\r\nx,1,y,Jan,,Smit\r\nx,2,y,Piet,,Bos" +
                              std::string(einde));
        EXPECT_TRUE(gelezen.foutloos());
        EXPECT_EQ(gelezen.naam(2), "Piet Bos");
    }
}

TEST(Ledenbestand, ItsLastLineIsNotLookedAt) {
    EXPECT_TRUE(Gelezen("Aantal=9\r\nx,1,y,Jan,,Smit\r\nx,twaalf").foutloos());
}

TEST(Ledenbestand, WithAHeaderAndOneMemberStoresNone) {
    const Gelezen gelezen("Aantal=5\r\nx,1,y,Jan,,Smit\r\n");
    EXPECT_TRUE(gelezen.foutloos());
    EXPECT_EQ(gelezen.hoogste(), 5);
    EXPECT_EQ(gelezen.naam(1), "");
}

TEST(Ledenbestand, SkipsBlankLines) {
    for (const char* regel : {"", "  ", "\t"}) {
        const Gelezen gelezen = MetRegelErtussen(regel);
        EXPECT_TRUE(gelezen.foutloos());
        EXPECT_EQ(gelezen.naam(3), "Jan Smit");
        EXPECT_EQ(gelezen.naam(4), "Piet Klaassen");
    }
}

TEST(Ledenbestand, MayHaveAnyLineEndAndAByteOrderMark) {
    const Gelezen gelezen("\xEF\xBB\xBF"
                          "\"Aantal=9\"\nx,1,y,Jan,,Smit\rx,2,y,Piet,,Bos\r\neinde");
    EXPECT_TRUE(gelezen.foutloos());
    EXPECT_EQ(gelezen.naam(1), "Jan Smit");
    EXPECT_EQ(gelezen.naam(2), "Piet Bos");
}

TEST(Ledenbestand, ALineThatIsWrongEndsTheReadingWithItsMessage) {
    for (const char* regel :
         {"x,51,y,A,,B", "x,-1,y,A,,B", "x,Z12,y,A,,B", "x,,y,A,,B", "x,1.5,y,A,,B", "x,1 2,y,A,,B",
          "x,12,y,A,B", "alleen tekst", ",", "x,99999999999999999999,y,A,,B"}) {
        const Gelezen gelezen = MetRegelErtussen(regel);
        EXPECT_TRUE(gelezen.mislukt()) << regel;
        EXPECT_EQ(gelezen.hoogste(), 50) << regel;
        EXPECT_EQ(gelezen.naam(3), "Jan Smit") << regel;
        EXPECT_EQ(gelezen.naam(4), "") << regel;
    }
}

TEST(Ledenbestand, AMemberAboveNIsAnErrorAndThoseBeforeItStay) {
    const Gelezen gelezen(
        "Aantal=5\r\nx,5,y,Jan,,Smit\r\nx,6,y,Zes,,Teveel\r\nx,4,y,Na,,Fout\r\neinde\r\n");
    EXPECT_TRUE(gelezen.mislukt());
    EXPECT_EQ(gelezen.naam(5), "Jan Smit");
    EXPECT_EQ(gelezen.naam(6), "");
    EXPECT_EQ(gelezen.naam(4), "");
}

TEST(Ledenbestand, AHeaderWithoutAUsableSizeIsAnError) {
    for (const char* kop : {"Aantal", "Aantal=", "Aantal=veel", "Aantal=-1", "Aantal=6.5",
                            "Aantal=6 leden", "Aantal=99999999999", "", "x,Aantal=6"}) {
        const Gelezen gelezen(std::string(kop) + "\r\nx,1,y,Jan,,Smit\r\neinde\r\n");
        EXPECT_TRUE(gelezen.mislukt()) << kop;
        EXPECT_EQ(gelezen.hoogste(), 0) << kop;
        EXPECT_EQ(gelezen.naam(1), "") << kop;
    }
}

TEST(Ledenbestand, ThatIsEmptyOrOnlyAHeaderIsAnError) {
    EXPECT_TRUE(Gelezen("").mislukt());
    EXPECT_TRUE(Gelezen("Aantal=5").mislukt());
    EXPECT_TRUE(Gelezen("Aantal=5\r\n").mislukt());
}

TEST(Ledenbestand, AnEnormousSizeCostsNoMemory) {
    const auto meest = std::numeric_limits<std::int32_t>::max();
    const Gelezen gelezen("Aantal=2147483647\r\nx,2147483647,y,Jan,,Smit\r\neinde\r\n");
    EXPECT_TRUE(gelezen.foutloos());
    EXPECT_EQ(gelezen.naam(meest), "Jan Smit");
    EXPECT_TRUE(Gelezen("Aantal=2147483648\r\nx\r\n").mislukt());
}

TEST(Ledenbestand, ThatIsMissingGivesTheMessage) {
    Gelezen gelezen("Aantal=9\r\nx,1,y,Jan,,Smit\r\neinde\r\n");
    gelezen.map.verwijder("ORVspelers/ORVspelers.txt");
    LeesLeden(gelezen.algemeen);
    EXPECT_TRUE(gelezen.mislukt());
    EXPECT_EQ(gelezen.naam(1), "") << "the table is made anew";
    gelezen.map.verwijder("ORVspelers");
    LeesLeden(gelezen.algemeen);
    EXPECT_EQ(gelezen.meldingen.getoond, (std::vector{groepenMelding, groepenMelding}));
}

TEST(Ledenbestand, AFolderInItsPlaceCountsAsMissing) {
    Gelezen gelezen("Aantal=9\r\neinde\r\n");
    gelezen.map.verwijder("ORVspelers/ORVspelers.txt");
    gelezen.map.maakMap("ORVspelers/ORVspelers.txt");
    LeesLeden(gelezen.algemeen);
    EXPECT_TRUE(gelezen.mislukt());
}

TEST(Ledenbestand, ThatCannotBeOpenedGivesTheMessage) {
    Gelezen gelezen("Aantal=9\r\neinde\r\n");
    gelezen.map.verwijder("ORVspelers/ORVspelers.txt");
    gelezen.map.maakOnleesbaar("ORVspelers/ORVspelers.txt");
    LeesLeden(gelezen.algemeen);
    EXPECT_TRUE(gelezen.mislukt());
}

TEST(Ledenbestand, IsFoundInAnotherLetterCase) {
    const proef::Proefmap map;
    map.schrijf("orvSPELERS/ORVSPELERS.TXT", "Aantal=9\r\nx,1,y,Jan,,Smit\r\neinde\r\n");
    Algemeen algemeen;
    algemeen.OrvMap = map.pad();
    LeesLeden(algemeen);
    EXPECT_EQ(algemeen.ledenNamen->naam(1), "Jan Smit");
}

TEST(Ledenbestand, ReplacesTheTableWholeAndLeavesWhoHoldsTheOldOne) {
    Gelezen gelezen("Aantal=90\r\nx,1,y,Jan,,Smit\r\nx,80,y,Oud,,Lid\r\neinde\r\n");
    const auto oud = gelezen.algemeen.ledenNamen;
    gelezen.map.schrijf("ORVspelers/ORVspelers.txt", "Aantal=9\r\nx,1,y,Nieuw,,Lid\r\neinde\r\n");
    LeesLeden(gelezen.algemeen);
    EXPECT_EQ(gelezen.hoogste(), 9);
    EXPECT_EQ(gelezen.naam(1), "Nieuw Lid");
    EXPECT_EQ(gelezen.naam(80), "");
    EXPECT_EQ(oud->naam(80), "Oud Lid");
}

TEST(Ledenbestand, LeavesTheFlagOfAnotherReaderWhenAllIsWell) {
    Gelezen gelezen("Aantal=9\r\neinde\r\n");
    gelezen.algemeen.LeesFout = 2;
    LeesLeden(gelezen.algemeen);
    EXPECT_EQ(gelezen.algemeen.LeesFout, 2);
}

} // namespace
} // namespace lauwerkrans
