#include "data/tekstbestand.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "data/fout.h"
#include "data/systeem.h"
#include "proef.h"

namespace lauwerkrans {
namespace {

using Namen = std::vector<std::string>;

Namen AlleRegels(std::string_view tekst) {
    Regels regels(tekst);
    Namen alle;
    while (const auto regel = regels.volgende())
        alle.emplace_back(*regel);
    return alle;
}

/// What LeesTekst reads from a path.
std::string Gelezen(const std::string& pad) { return std::string(LeesTekst(pad).bytes()); }

/// The error that LeesTekst throws for a path.
Fout LeesFoutVan(const std::string& pad) {
    try {
        static_cast<void>(LeesTekst(pad));
    } catch (const Fout& fout) {
        return fout;
    }
    ADD_FAILURE() << "nothing was thrown for " << pad;
    return Fout(FoutSoort::Criterium);
}

TEST(Regels, EndInCrLfLfOrCrAlone) {
    EXPECT_EQ(AlleRegels("een\r\ntwee\ndrie\rvier\r\n"), (Namen{"een", "twee", "drie", "vier"}));
    EXPECT_EQ(AlleRegels("een\rtwee\rdrie"), (Namen{"een", "twee", "drie"}));
    EXPECT_EQ(AlleRegels("een\rtwee\n"), (Namen{"een", "twee"}));
}

TEST(Regels, TheLastLineEndMayBeMissing) {
    EXPECT_EQ(AlleRegels("een\r\ntwee"), AlleRegels("een\r\ntwee\r\n"));
    EXPECT_EQ(AlleRegels("een"), Namen{"een"});
    EXPECT_EQ(AlleRegels("een\r"), Namen{"een"});
}

TEST(Regels, AnEmptyTextHasNone) { EXPECT_EQ(AlleRegels(""), Namen{}); }

TEST(Regels, BlankLinesCount) {
    EXPECT_EQ(AlleRegels("\r\n\r\neen\r\n\r\n"), (Namen{"", "", "een", ""}));
    EXPECT_EQ(AlleRegels("een\n\rtwee"), (Namen{"een", "", "twee"}));
    EXPECT_EQ(AlleRegels("\r\r\n\n"), (Namen{"", "", ""}));
}

TEST(Regels, AreNumberedFromOne) {
    Regels regels("een\r\n\r\ndrie");
    EXPECT_EQ(regels.nummer(), 0);
    for (int nummer = 1; nummer <= 3; ++nummer) {
        EXPECT_FALSE(regels.klaar());
        static_cast<void>(regels.volgende());
        EXPECT_EQ(regels.nummer(), nummer);
    }
    EXPECT_TRUE(regels.klaar());
    EXPECT_EQ(regels.volgende(), std::nullopt);
    EXPECT_EQ(regels.nummer(), 3);
}

TEST(Regels, GoOnBehindALineThatTheCallerReadItself) {
    Regels regels("een\r\ntwee\r\ndrie");
    static_cast<void>(regels.volgende());
    EXPECT_EQ(regels.rest(), "twee\r\ndrie");
    regels.neemRegel(6);
    EXPECT_EQ(regels.nummer(), 2);
    EXPECT_EQ(regels.volgende(), "drie");
    EXPECT_EQ(regels.nummer(), 3);
}

TEST(Regels, WithCrAloneCostNoMoreThanOthers) {
    std::string tekst;
    for (int i = 0; i < 400'000; ++i)
        tekst += "a\r";
    EXPECT_EQ(AlleRegels(tekst).size(), 400'000U); // a search of the rest per line takes minutes
}

TEST(Bom, IsSkippedAtTheStartOnly) {
    EXPECT_EQ(ZonderBom("\xEF\xBB\xBFtekst"), "tekst");
    EXPECT_EQ(ZonderBom("tekst\xEF\xBB\xBF"), "tekst\xEF\xBB\xBF");
    EXPECT_EQ(ZonderBom("\xEF\xBB"), "\xEF\xBB");
    EXPECT_EQ(ZonderBom("\xEF\xBB\xBF"), "");
    EXPECT_EQ(ZonderBom(""), "");
}

TEST(Pad, IsJoinedWithABackslashWhateverTheFolderEndsIn) {
    EXPECT_EQ(VoegPad("D:\\Data", "Mappen.ini"), "D:\\Data\\Mappen.ini");
    EXPECT_EQ(VoegPad("D:\\Data\\", "Mappen.ini"), "D:\\Data\\\\Mappen.ini");
    EXPECT_EQ(VoegPad("", "x"), "\\x");
}

TEST(ZoekNaam, TakesTheExactNameBeforeAnother) {
    const Namen namen = {"COMPDATA.TXT", "CompData.txt", "compdata.txt"};
    EXPECT_EQ(ZoekNaam(namen, "CompData.txt"), "CompData.txt");
    EXPECT_EQ(ZoekNaam(namen, "compdata.txt"), "compdata.txt");
    EXPECT_EQ(ZoekNaam(namen, "COMPDATA.txt"), "COMPDATA.TXT");
}

TEST(ZoekNaam, FindsADifferenceInLetterCaseOnly) {
    EXPECT_EQ(ZoekNaam({"Ronde-10", "ronde-1"}, "Ronde-1"), "ronde-1");
    EXPECT_EQ(ZoekNaam({"Ronde-10", "ronde-1"}, "Ronde-2"), std::nullopt);
    EXPECT_EQ(ZoekNaam({"É.txt"}, "é.TXT"), "É.txt");
    EXPECT_EQ(ZoekNaam({}, "x"), std::nullopt);
}

TEST(Tekstbestand, GivesAllBytesAsTheyAre) {
    const proef::Proefmap map;
    std::string bytes;
    for (int byte = 0; byte <= 255; ++byte)
        bytes += static_cast<char>(byte);
    map.schrijf("x.txt", bytes);
    EXPECT_EQ(Gelezen(map.pad() + "\\x.txt"), bytes);
    map.schrijf("leeg.txt", "");
    EXPECT_EQ(Gelezen(map.pad() + "\\leeg.txt"), "");
}

TEST(Tekstbestand, MayBeLargerThanTheFirstRoom) {
    const proef::Proefmap map;
    std::string bytes;
    for (int i = 0; i < 300'000; ++i)
        bytes += static_cast<char>(i * 7 + i / 251);
    for (const std::size_t lengte : {65'519U, 65'520U, 65'521U, 65'536U, 131'072U, 300'000U}) {
        map.schrijf("x.txt", bytes.substr(0, lengte));
        EXPECT_EQ(Gelezen(map.pad() + "\\x.txt"), bytes.substr(0, lengte)) << lengte;
    }
}

TEST(Tekstbestand, AShorterFileReplacesALongerOneInTheSameRoom) {
    const proef::Proefmap map;
    map.schrijf("lang.txt", "een hele lange tekst");
    map.schrijf("kort.txt", "kort");
    systeem::Leesbuffer buffer;
    EXPECT_FALSE(systeem::LeesBestand(map.pad() + "\\lang.txt", buffer));
    EXPECT_FALSE(systeem::LeesBestand(map.pad() + "\\kort.txt", buffer));
    EXPECT_EQ(buffer.bytes(), "kort");
    EXPECT_TRUE(systeem::LeesBestand(map.pad() + "\\geen.txt", buffer));
    EXPECT_EQ(buffer.bytes(), "");
}

TEST(Tekstbestand, IsFoundByBackslashSlashAndDoubleBackslash) {
    const proef::Proefmap map;
    map.schrijf("Data/Comp/x.txt", "gevonden");
    for (const char* pad : {"\\Data\\Comp\\x.txt", "/Data/Comp/x.txt", "/Data\\Comp/x.txt",
                            "\\Data\\\\Comp\\\\x.txt", "\\\\Data\\.\\Comp\\..\\Comp\\x.txt"}) {
        EXPECT_EQ(Gelezen(map.pad() + pad), "gevonden") << pad;
    }
}

TEST(Tekstbestand, IsFoundInAnotherLetterCase) {
    const proef::Proefmap map;
    map.schrijf("Data/COMP/X.TXT", "gevonden");
    for (const char* pad : {"\\Data\\COMP\\X.TXT", "\\data\\comp\\x.txt", "/DATA/Comp/x.Txt",
                            "\\data\\\\Comp\\\\X.txt", "\\.\\data\\..\\DATA\\comp\\x.txt"}) {
        EXPECT_EQ(Gelezen(map.pad() + pad), "gevonden") << pad;
    }
}

TEST(Tekstbestand, IsFoundUnderAnAccentedNameInAnotherLetterCase) {
    const proef::Proefmap map;
    map.schrijf("Café Müller/x.txt", "gevonden");
    EXPECT_EQ(Gelezen(map.pad() + "\\CAFÉ MÜLLER\\x.txt"), "gevonden");
}

#ifndef _WIN32
TEST(Tekstbestand, TheExactNameWins) {
    const proef::Proefmap map;
    map.schrijf("DATA/x.txt", "ander");
    map.schrijf("Data/X.TXT", "ook ander");
    map.schrijf("Data/x.txt", "juist");
    EXPECT_EQ(Gelezen(map.pad() + "\\Data\\x.txt"), "juist");
    EXPECT_EQ(Gelezen(map.pad() + "\\Data\\X.TXT"), "ook ander");
    EXPECT_EQ(Gelezen(map.pad() + "\\DATA\\x.txt"), "ander");
}
#endif

TEST(Tekstbestand, ThatCannotBeOpenedIsAnErrorOfItsOwn) {
    const proef::Proefmap map;
    map.maakOnleesbaar("x.txt");
    const Fout fout = LeesFoutVan(map.pad() + "\\x.txt");
    EXPECT_EQ(fout.soort, FoutSoort::BestandNietLeesbaar);
    EXPECT_EQ(fout.bestand, map.pad() + "\\x.txt");
    EXPECT_EQ(fout.code, proef::onleesbaarFout);
    EXPECT_NE(fout.reden, "");
}

TEST(WerkelijkPad, IsThePathItselfWhenNothingIsFound) {
    const proef::Proefmap map;
    map.schrijf("Data/X.TXT", "");
    EXPECT_EQ(WerkelijkPad(map.pad() + "\\data\\y.txt"),
              map.pad() + (systeem::LetterkastTeltNiet() ? "\\data\\y.txt" : "\\Data\\y.txt"));
    EXPECT_EQ(WerkelijkPad(map.pad() + "\\Geen\\y.txt"), map.pad() + "\\Geen\\y.txt");
    EXPECT_EQ(WerkelijkPad(map.pad() + "\\Data\\X.TXT"), map.pad() + "\\Data\\X.TXT");
    EXPECT_EQ(WerkelijkPad(""), "");
}

TEST(Tekstbestand, ThatIsMissingIsAnErrorThatNamesIt) {
    const proef::Proefmap map;
    const Fout fout = LeesFoutVan(map.pad() + "\\geen.txt");
    EXPECT_EQ(fout.soort, FoutSoort::BestandNietLeesbaar);
    EXPECT_EQ(fout.bestand, map.pad() + "\\geen.txt");
    EXPECT_EQ(fout.reden, "het bestand bestaat niet");
    EXPECT_EQ(fout.code, std::errc::no_such_file_or_directory);
    EXPECT_EQ(LeesFoutVan(map.pad() + "\\geen\\map.txt").code,
              std::errc::no_such_file_or_directory);
}

TEST(Tekstbestand, AFolderOfThatNameCountsAsMissing) {
    const proef::Proefmap map;
    map.maakMap("x.txt");
    const Fout fout = LeesFoutVan(map.pad() + "\\x.txt");
    EXPECT_EQ(fout.reden, "het bestand bestaat niet");
    EXPECT_EQ(fout.code, std::errc::no_such_file_or_directory);
}

TEST(MaakMap, ReturnsThePathThatTheFolderReallyHas) {
    const proef::Proefmap map;
    EXPECT_EQ(MaakMap(map.pad() + "\\Lijsten"), map.pad() + "\\Lijsten");
    EXPECT_EQ(MaakMap(map.pad() + "\\LIJSTEN"),
              map.pad() + (systeem::LetterkastTeltNiet() ? "\\LIJSTEN" : "\\Lijsten"));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(map.map()), {}), 1);
}

TEST(MaakMap, ThatFailsNamesTheFolderAndTheReason) {
    const proef::Proefmap map;
    map.schrijf("Lijsten", "een bestand");
    try {
        static_cast<void>(MaakMap(map.pad() + "\\Lijsten"));
        FAIL() << "made over a file";
    } catch (const Fout& fout) {
        EXPECT_EQ(fout.soort, FoutSoort::BestandNietSchrijfbaar);
        EXPECT_EQ(fout.bestand, map.pad() + "\\Lijsten");
        EXPECT_EQ(fout.code, std::errc::file_exists);
        EXPECT_NE(fout.reden, "");
    }
}

TEST(Systeem, TellsFilesFromFolders) {
    const proef::Proefmap map;
    map.schrijf("map/x.txt", "");
    EXPECT_TRUE(systeem::IsBestand(map.pad() + "\\map\\x.txt"));
    EXPECT_FALSE(systeem::IsBestand(map.pad() + "\\map"));
    EXPECT_FALSE(systeem::IsBestand(map.pad() + "\\map\\y.txt"));
    EXPECT_TRUE(systeem::Bestaat(map.pad() + "\\map\\x.txt"));
    EXPECT_TRUE(systeem::Bestaat(map.pad() + "\\map"));
    EXPECT_FALSE(systeem::Bestaat(map.pad() + "\\map\\y.txt"));
}

TEST(Systeem, ListsTheNamesInAFolderSorted) {
    const proef::Proefmap map;
    map.schrijf("c.txt", "");
    map.schrijf("a/x.txt", "");
    map.schrijf("b.txt", "");
    Namen namen = {"oud"};
    EXPECT_FALSE(systeem::NamenInMap(map.pad(), namen));
    std::erase(namen, ".");
    std::erase(namen, "..");
    EXPECT_EQ(namen, (Namen{"a", "b.txt", "c.txt"}));
}

TEST(Systeem, ListsNothingWhereNoFolderStands) {
    const proef::Proefmap map;
    map.schrijf("bestand", "");
    for (const char* naam : {"\\geen", "\\bestand", "\\bestand\\geen"}) {
        Namen namen = {"oud"};
        EXPECT_FALSE(systeem::NamenInMap(map.pad() + naam, namen)) << naam;
        EXPECT_EQ(namen, Namen{}) << naam;
    }
}

} // namespace
} // namespace lauwerkrans
