// What the list files share: their names, their folder, and what happens when they cannot be made.
#include "output/uitvoer.h"

#include <array>
#include <ostream>

#include <gtest/gtest.h>

#include "data/modORV_compbums.h"
#include "data/modORV_compdata.h"
#include "data/modORV_leden.h"
#include "data/modORV_rondedata.h"
#include "data/tekstbestand.h"
#include "output/modMaakCSV.h"
#include "output/modMaakHtml.h"
#include "uitvoerproef.h"

namespace lauwerkrans {
namespace {

using proef::MaakUitslag;
using proef::UitvoerTest;
using proef::Verwacht;

class Uitvoernamen : public UitvoerTest {};

TEST_F(Uitvoernamen, HaveTheLettersOfTheList) {
    EXPECT_EQ(Uitvoernaam(uitvoer, ".CSV"), "Lauwr__LijnABC.CSV");
    uitvoer.uitslag = MaakUitslag("AB", {}, {});
    EXPECT_EQ(Uitvoernaam(uitvoer, ".CSV"), "Lauwr__LijnAB.CSV");
    EXPECT_EQ(Uitvoernaam(uitvoer, ".HTML"), "Lauwr__LijnAB.HTML");
    uitvoer.uitslag = nullptr;
    EXPECT_EQ(Uitvoernaam(uitvoer, ".HTML"), "Lauwr__Lijn.HTML");
}

TEST_F(Uitvoernamen, HaveTheCleanedPrefix) {
    uitvoer.uitslag = MaakUitslag("AB", {}, {});
    uitvoer.InstellingPrefix = "A/B 2024";
    EXPECT_EQ(Uitvoernaam(uitvoer, ".CSV"), "Lauwr_A_B_2024_LijnAB.CSV");
    EXPECT_EQ(Uitvoernaam(uitvoer, ".HTML"), "Lauwr_A_B_2024_LijnAB.HTML");
}

TEST_F(Uitvoernamen, StayInTheFolderWhateverThePrefixIs) {
    const std::vector<std::pair<std::string, std::string>> prefixen = {
        {"../../x", ".._.._x"}, {"..\\..\\x", ".._.._x"}, {"/etc/x", "_etc_x"},
        {"C:\\x", "C__x"},      {"a:b", "a_b"},           {"CON", "CON"},
        {"NUL", "NUL"},         {"%s%n", "%s%n"},         {"a|b > c?", "a_b___c_"}};
    for (const auto& [prefix, schoon] : prefixen) {
        uitvoer.InstellingPrefix = prefix;
        MaakCSV_Lijnen(uitvoer);
        MaakHtml(uitvoer);
        const auto inhoud = map.inhoud();
        EXPECT_EQ(inhoud.size(), 2U) << prefix;
        for (const char* extensie : {".CSV", ".HTML"}) {
            std::string naam = "Lauwerkrans/Lauwr_";
            EXPECT_EQ(inhoud.count(naam.append(schoon).append("_LijnABC").append(extensie)), 1U)
                << prefix;
        }
        map.verwijder("Lauwerkrans");
    }
}

class Uitvoermap : public UitvoerTest {};

TEST_F(Uitvoermap, IsMadeInTheProgramFolder) {
    MaakUitvoerMap(uitvoer);
    EXPECT_EQ(uitvoer.uitvoermap, map.pad() + "\\Lauwerkrans");
    EXPECT_TRUE(std::filesystem::is_directory(map.map() / "Lauwerkrans"));
}

TEST_F(Uitvoermap, IsLeftAsItIsWhenItIsThere) {
    map.schrijf("Lauwerkrans/oud.txt", "oud");
    std::filesystem::permissions(map.map() / "Lauwerkrans", std::filesystem::perms::owner_all);
    const auto rechten = std::filesystem::status(map.map() / "Lauwerkrans").permissions();
    MaakUitvoerMap(uitvoer);
    EXPECT_EQ(map.inhoud(), (std::map<std::string, std::string>{{"Lauwerkrans/oud.txt", "oud"}}));
    EXPECT_EQ(std::filesystem::status(map.map() / "Lauwerkrans").permissions(), rechten);
}

#ifndef _WIN32
TEST_F(Uitvoermap, InAnotherLetterCaseIsUsed) {
    map.maakMap("LAUWERKRANS");
    MaakCSV_Lijnen(uitvoer);
    EXPECT_EQ(map.inhoud(), (std::map<std::string, std::string>{
                                {"LAUWERKRANS/Lauwr__LijnABC.CSV", Verwacht("lijnen.CSV")}}));
    ASSERT_EQ(meldingen.getoond.size(), 1U);
    EXPECT_TRUE(meldingen.getoond[0].tekst.ends_with(": " + map.pad() + "/LAUWERKRANS"));
}

TEST_F(Uitvoermap, WithTheExactNameGoesBeforeAnother) {
    map.maakMap("LAUWERKRANS");
    map.maakMap("Lauwerkrans");
    MaakHtml(uitvoer);
    EXPECT_EQ(map.inhoud().begin()->first, "Lauwerkrans/Lauwr__LijnABC.HTML");
}

TEST_F(Uitvoermap, IsMadeBesideAFileInAnotherLetterCase) {
    map.schrijf("lauwerkrans", "het programma");
    MaakHtml(uitvoer);
    EXPECT_EQ(map.inhoud(), (std::map<std::string, std::string>{
                                {"Lauwerkrans/Lauwr__LijnABC.HTML", Verwacht("lijnen.HTML")},
                                {"lauwerkrans", "het programma"}}));
}
#endif

/// One of the three exports, and the file that it makes.
struct Export {
    const char* naam;
    const char* bestand;
    void (*maak)(Uitvoer&);
};

void PrintTo(const Export& export_, std::ostream* uit) { *uit << export_.naam; }

/// Each export in a place where its file cannot be made.
class Mislukt : public UitvoerTest, public testing::WithParamInterface<Export> {
protected:
    [[nodiscard]] std::string pad() const {
        return std::string("Lauwerkrans/") + GetParam().bestand;
    }

    /// Runs the export, which must fail with its message alone.
    void mislukt(const std::string& naam = GetParam().bestand) {
        uitvoer.fout = 0;
        meldingen.getoond.clear();
        GetParam().maak(uitvoer);
        const std::string tekst = "Het bestand '" + naam + "' kan niet worden gemaakt!";
        EXPECT_EQ(meldingen.getoond, (std::vector<Melding>{{tekst, Icoon::Uitroep}}));
        EXPECT_EQ(uitvoer.fout, 1);
    }

    /// The same; all files are as they were.
    void misluktZonderGevolg(const std::string& naam = GetParam().bestand) {
        const auto voor = map.inhoud();
        mislukt(naam);
        EXPECT_EQ(map.inhoud(), voor);
    }
};

TEST_P(Mislukt, WhereAFileStandsInThePlaceOfTheFolder) {
    map.schrijf("Lauwerkrans", "een bestand");
    misluktZonderGevolg();
}

TEST_P(Mislukt, WhereTheProgramFolderIsGone) {
    uitvoer.programmaMap = map.pad() + "\\geen\\map";
    misluktZonderGevolg();
    EXPECT_FALSE(std::filesystem::exists(map.map() / "geen"));
}

TEST_P(Mislukt, WhereAFolderHasTheNameOfTheFile) {
    map.schrijf(pad() + "/binnenin.txt", "blijft");
    misluktZonderGevolg();
    map.verwijder(pad() + "/binnenin.txt");
    misluktZonderGevolg();
    EXPECT_TRUE(std::filesystem::is_directory(map.map() / pad()));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(map.map() / "Lauwerkrans"), {}), 1);
}

TEST_P(Mislukt, WhereTheNameIsTooLong) {
    uitvoer.InstellingPrefix = std::string(300, 'x');
    map.maakMap("Lauwerkrans");
    std::string naam = GetParam().bestand;
    misluktZonderGevolg(naam.insert(naam.find('_') + 1, uitvoer.InstellingPrefix));
}

#ifndef _WIN32
TEST_P(Mislukt, WhereTheFolderCannotBeReached) {
    map.maakOnleesbaar("Lauwerkrans");
    mislukt();
}

TEST_P(Mislukt, WhereTheFolderTakesNoFiles) {
    std::filesystem::create_directory_symlink("/proc", map.map() / "Lauwerkrans");
    mislukt();
}
#endif

TEST_P(Mislukt, SucceedsWhenTheFaultIsGone) {
    map.schrijf("Lauwerkrans", "een bestand");
    misluktZonderGevolg();
    map.verwijder("Lauwerkrans");
    GetParam().maak(uitvoer);
    EXPECT_EQ(uitvoer.fout, 0);
    ASSERT_EQ(meldingen.getoond.size(), 2U); // of the failure and of the success
    EXPECT_EQ(meldingen.getoond[1].icoon, Icoon::Informatie);
    EXPECT_EQ(map.inhoud().size(), 1U);
    EXPECT_EQ(map.inhoud().count(pad()), 1U);
}

TEST_P(Mislukt, SetsTheFlagBeforeItSaysSoAndClearsItAtTheStart) {
    map.schrijf("Lauwerkrans", "een bestand");
    std::vector<int> vlaggen;
    uitvoer.meld = [&](const Melding&) { vlaggen.push_back(uitvoer.fout); };
    GetParam().maak(uitvoer);
    map.verwijder("Lauwerkrans");
    GetParam().maak(uitvoer);
    EXPECT_EQ(vlaggen, (std::vector<int>{1, 0}));
}

#ifdef _WIN32
TEST_P(Mislukt, WhereASpreadsheetHoldsTheFile) {
    map.maakOnleesbaar(pad());
    misluktZonderGevolg();
}
#endif

constexpr std::array<Export, 3> exports = {{{"CsvLijnen", "Lauwr__LijnABC.CSV", MaakCSV_Lijnen},
                                            {"CsvTotaal", "Lauwr__LijnABC.CSV", MaakCSV_Totaal},
                                            {"Html", "Lauwr__LijnABC.HTML", MaakHtml}}};

INSTANTIATE_TEST_SUITE_P(Exports, Mislukt, testing::ValuesIn(exports),
                         [](const auto& geval) { return std::string(geval.param.naam); });

/// The lists of a whole competition: ties, sessions with a zero, accented names.
class UitvoerVanBestanden : public UitvoerTest {
protected:
    UitvoerVanBestanden() {
        const std::string gegevens = std::string(LAUWERKRANS_TESTGEGEVENS) + "\\handwerk";
        algemeen.meld = meldingen.melder();
        algemeen.OrvMap = gegevens;
        algemeen.CompetitieMap = gegevens + "\\Competities";
        algemeen.ActieveCompetitie =
            std::filesystem::directory_iterator(std::string(LAUWERKRANS_TESTGEGEVENS) +
                                                "/handwerk/Competities")
                ->path()
                .filename()
                .string();
        algemeen.competitie = VoegPad(algemeen.CompetitieMap, algemeen.ActieveCompetitie);
        LeesCompData(algemeen);
        BouwRondeInfo(algemeen);
        algemeen.LijnTabel = LeesLijnTabel(algemeen.competitie);
        LeesLeden(algemeen);
        LeesCompBums(algemeen);
    }

    Algemeen algemeen;
};

TEST_F(UitvoerVanBestanden, LineByLineIsTheExpectedFiles) {
    uitvoer.uitslag = Bereken(algemeen, "AB", {"3", "2"}, {});
    ASSERT_EQ(uitvoer.uitslag->resultaat.cel(3, 6), "-");
    MaakCSV_Lijnen(uitvoer);
    EXPECT_EQ(geschreven("Lauwr__LijnAB.CSV"), Verwacht("handwerk_lijnen.CSV"));
    MaakHtml(uitvoer);
    EXPECT_EQ(geschreven("Lauwr__LijnAB.HTML"), Verwacht("handwerk_lijnen.HTML"));
}

TEST_F(UitvoerVanBestanden, OverAllLinesIsTheExpectedFiles) {
    uitvoer.uitslag = Bereken(algemeen, "AB", {"3", "2"}, {.gemAlleLijnen = true});
    schakel(true, true);
    MaakCSV_Totaal(uitvoer);
    EXPECT_EQ(geschreven("Lauwr__LijnAB.CSV"), Verwacht("handwerk_totaal.CSV"));
    MaakHtml(uitvoer);
    EXPECT_EQ(geschreven("Lauwr__LijnAB.HTML"), Verwacht("handwerk_totaal.HTML"));
}

} // namespace
} // namespace lauwerkrans
