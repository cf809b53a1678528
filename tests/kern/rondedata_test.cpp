#include "data/modORV_rondedata.h"

#include <string>

#include <gtest/gtest.h>

#include "data/fout.h"
#include "data/tekstbestand.h"
#include "proef.h"

namespace lauwerkrans {
namespace {

/// A competition folder "Comp" with this RondeData.txt in its first round.
struct Competitie {
    explicit Competitie(const std::string& bytes) {
        map.schrijf("Comp/Ronde-1/RondeData.txt", bytes);
    }
    [[nodiscard]] std::string pad() const { return VoegPad(map.pad(), "Comp"); }
    [[nodiscard]] std::size_t lijnen() const { return LeesLijnTabel(pad()).rijen(); }

    /// The error of the reading, which must name the file.
    [[nodiscard]] Fout fout() const {
        try {
            static_cast<void>(lijnen());
            ADD_FAILURE() << "nothing was thrown";
        } catch (const Fout& gegooid) {
            EXPECT_EQ(gegooid.bestand, pad() + "\\Ronde-1\\RondeData.txt");
            return gegooid;
        }
        return Fout(FoutSoort::Criterium);
    }

    proef::Proefmap map;
};

TEST(RondeData, LiesInTheFirstRound) {
    EXPECT_EQ(RondeDataPad("D:\\Comp\\Voorjaar 2024"),
              "D:\\Comp\\Voorjaar 2024\\Ronde-1\\RondeData.txt");
}

TEST(RondeData, GivesTheLinesInItsEighthField) {
    EXPECT_EQ(Competitie("\"11,12\",13,14\r\n15,16,17,18\r\n4,19,20\r\n").lijnen(), 4U);
    EXPECT_EQ(Competitie("9\r\n9\r\n9\r\n9\r\n9\r\n9\r\n9\r\n\" 5 \"").lijnen(), 5U);
    EXPECT_EQ(Competitie(",,,,,,,+6").lijnen(), 6U);
}

TEST(RondeData, MayHaveAnyLineEndAndAByteOrderMark) {
    EXPECT_EQ(Competitie("\xEF\xBB\xBF\"a\"\nb\rc\r\nd,e,f,g,3\r").lijnen(), 3U);
}

TEST(RondeData, GivesATableWithARowPerLine) {
    const Competitie comp("a,b,c,d,e,f,g,3");
    const Tabel tabel = LeesLijnTabel(comp.pad());
    EXPECT_EQ(tabel.rijen(), 3U);
    EXPECT_EQ(tabel.kolommen(), 2U);
    for (std::size_t rij = 1; rij <= 3; ++rij) {
        EXPECT_EQ(tabel.cel(rij, 0), "");
        EXPECT_EQ(tabel.cel(rij, 1), std::to_string(rij));
        EXPECT_EQ(tabel.cel(rij, 2), "1");
    }
    for (std::size_t kolom = 0; kolom <= 2; ++kolom)
        EXPECT_EQ(tabel.cel(0, kolom), "");
}

TEST(RondeData, OfTheFirstRoundOnlyCounts) {
    const Competitie comp("a,b,c,d,e,f,g,3");
    comp.map.schrijf("Comp/Ronde-2/RondeData.txt", "a,b,c,d,e,f,g,5");
    comp.map.schrijf("Comp/RondeData.txt", "a,b,c,d,e,f,g,6");
    EXPECT_EQ(comp.lijnen(), 3U);
    comp.map.verwijder("Comp/Ronde-1");
    EXPECT_EQ(comp.fout().code, std::errc::no_such_file_or_directory);
}

TEST(RondeData, MayGive0To26Lines) {
    EXPECT_EQ(Competitie("a,b,c,d,e,f,g,0").lijnen(), 0U);
    EXPECT_EQ(Competitie("a,b,c,d,e,f,g,26").lijnen(), 26U);
}

TEST(RondeData, RefusesAnyOtherNumber) {
    for (const char* aantal : {"27", "-1", "99999", "4294967297"}) {
        const Fout fout = Competitie("a,b,c,d,e,f,g," + std::string(aantal)).fout();
        EXPECT_EQ(fout.soort, FoutSoort::GetalBuitenGrenzen) << aantal;
        EXPECT_EQ(fout.tekst, aantal);
    }
}

TEST(RondeData, RefusesWhatIsNoNumber) {
    for (const char* aantal : {"", "x", "3 lijnen", "2.5", "A"}) {
        const Fout fout = Competitie("a,b,c,d,e,f,g," + std::string(aantal) + ",1").fout();
        EXPECT_EQ(fout.soort, FoutSoort::GeenHeelGetal) << aantal;
        EXPECT_EQ(fout.tekst, aantal);
    }
}

TEST(RondeData, ThatEndsTooEarlyIsAnError) {
    for (const char* bytes : {"", "a,b,c,d,e,f,g", "a,b,c,d,e,f,g\r\n", "\"a,b,c,d,e,f,g,3"}) {
        EXPECT_EQ(Competitie(bytes).fout().soort, FoutSoort::BestandEindigtTeVroeg) << bytes;
    }
}

TEST(RondeData, ThatIsMissingIsAnError) {
    const Competitie comp("");
    comp.map.verwijder("Comp/Ronde-1/RondeData.txt");
    EXPECT_EQ(comp.fout().soort, FoutSoort::BestandNietLeesbaar);
    comp.map.maakMap("Comp/Ronde-1/RondeData.txt");
    EXPECT_EQ(comp.fout().code, std::errc::no_such_file_or_directory);
}

TEST(RondeData, ThatCannotBeOpenedIsAnErrorWithItsReason) {
    const Competitie comp("");
    comp.map.verwijder("Comp/Ronde-1/RondeData.txt");
    comp.map.maakOnleesbaar("Comp/Ronde-1/RondeData.txt");
    const Fout fout = comp.fout();
    EXPECT_EQ(fout.soort, FoutSoort::BestandNietLeesbaar);
    EXPECT_EQ(fout.code, proef::onleesbaarFout);
}

TEST(RondeData, IsFoundInAnotherLetterCase) {
    const Competitie comp("");
    comp.map.verwijder("Comp");
    comp.map.schrijf("COMP/ronde-1/RONDEDATA.TXT", "a,b,c,d,e,f,g,7");
    EXPECT_EQ(comp.lijnen(), 7U);
}

} // namespace
} // namespace lauwerkrans
