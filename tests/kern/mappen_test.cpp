#include "app/modMappen.h"

#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "data/fout.h"
#include "data/modORV_compdata.h"
#include "data/tekstbestand.h"
#include "proef.h"

namespace lauwerkrans {
namespace {

/// A program folder "Club" with its Mappen.ini, and what reading it gives.
struct Gelezen {
    explicit Gelezen(const std::string& ini) {
        map.schrijf("Club/Mappen.ini", ini);
        lees();
    }
    void lees() { LeesMappenIni(algemeen, overig, map.pad() + "\\Club"); }

    proef::Proefmap map;
    Algemeen algemeen;
    OverigeMappen overig;
};

TEST(MappenIniPad, IsTheParentFolderWhenTheProgramHasAFolderOfItsOwn) {
    EXPECT_EQ(MappenIniPad("C:\\Suite\\Lauwerkrans"), "C:\\Suite\\Mappen.ini");
    EXPECT_EQ(MappenIniPad("C:\\Suite\\Lauwr"), "C:\\Suite\\Mappen.ini");
    EXPECT_EQ(MappenIniPad("C:\\Suite\\MijnLauwrMap"), "C:\\Suite\\Mappen.ini");
    EXPECT_EQ(MappenIniPad("/home/club/lauwerkrans"), "/home/club/Mappen.ini");
}

TEST(MappenIniPad, IsTheProgramFolderOtherwise) {
    EXPECT_EQ(MappenIniPad("C:\\Tools"), "C:\\Tools\\Mappen.ini");
    EXPECT_EQ(MappenIniPad("C:\\Suite\\Lauw"), "C:\\Suite\\Lauw\\Mappen.ini");
}

TEST(MappenIniPad, TakesAnyLetterCase) {
    for (const char* naam :
         {"LAUWERKRANS", "lauwerkrans", "LaUwErKrAnS", "LAUWR", "lauwr", "xLauwRx"}) {
        EXPECT_EQ(MappenIniPad(std::string("C:\\Suite\\") + naam), "C:\\Suite\\Mappen.ini") << naam;
    }
}

TEST(MappenIniPad, LooksForLauwrInTheWholePathAndForLauwerInTheLastNameOnly) {
    EXPECT_EQ(MappenIniPad("C:\\Lauwr\\Programma"), "C:\\Lauwr\\Mappen.ini");
    EXPECT_EQ(MappenIniPad("C:\\Users\\Lauwers\\Tools"), "C:\\Users\\Lauwers\\Tools\\Mappen.ini");
    EXPECT_EQ(MappenIniPad("/home/lauwers/tools"), "/home/lauwers/tools\\Mappen.ini");
    EXPECT_EQ(MappenIniPad("C:\\Users\\Lauwers\\Lauwerkrans"), "C:\\Users\\Lauwers\\Mappen.ini");
}

TEST(MappenIni, OfTheParentFolderIsReadForAProgramWithAFolderOfItsOwn) {
    const proef::Proefmap map;
    map.schrijf("Suite/Mappen.ini", "ACTCOM=van de suite\r\n");
    map.schrijf("Suite/Lauwerkrans/Mappen.ini", "ACTCOM=van het programma\r\n");
    Algemeen algemeen;
    OverigeMappen overig;
    LeesMappenIni(algemeen, overig, map.pad() + "\\Suite\\Lauwerkrans");
    EXPECT_EQ(algemeen.ActieveCompetitie, "van de suite");
    LeesMappenIni(algemeen, overig, map.pad() + "\\Suite");
    EXPECT_EQ(algemeen.ActieveCompetitie, "van de suite");
}

TEST(MappenIni, FillsFoldersAndCompetition) {
    const Gelezen gelezen("ORVMAP=D:\\ORV\r\nCOMMAP=D:\\Data\\Comp\r\nACTCOM=Voorjaar 2024\r\n");
    EXPECT_EQ(gelezen.algemeen.OrvMap, "D:\\ORV");
    EXPECT_EQ(gelezen.algemeen.CompetitieMap, "D:\\Data\\Comp");
    EXPECT_EQ(gelezen.algemeen.ActieveCompetitie, "Voorjaar 2024");
}

TEST(MappenIni, KeepsEveryTextKey) {
    const std::vector<std::pair<std::string, std::string OverigeMappen::*>> sleutels = {
        {"ZITMAP", &OverigeMappen::ZITMAP}, {"ADMMAP", &OverigeMappen::ADMMAP},
        {"INDMAP", &OverigeMappen::INDMAP}, {"SPEMAP", &OverigeMappen::SPEMAP},
        {"ACTZIT", &OverigeMappen::ACTZIT}, {"SCHETY", &OverigeMappen::SCHETY},
        {"SPINDE", &OverigeMappen::SPINDE}, {"RODAFI", &OverigeMappen::RODAFI},
        {"ROSPFI", &OverigeMappen::ROSPFI}, {"ZINFOF", &OverigeMappen::ZINFOF},
        {"ZSPEFI", &OverigeMappen::ZSPEFI}};
    std::string ini;
    for (const auto& [sleutel, veld] : sleutels)
        ini.append(sleutel).append("=12 is van ").append(sleutel).append("\r\n");
    const Gelezen gelezen(ini);
    for (const auto& [sleutel, veld] : sleutels)
        EXPECT_EQ(gelezen.overig.*veld, "12 is van " + sleutel);
    EXPECT_EQ(sleutels.size(), 11U);
}

TEST(MappenIni, KeepsEveryNumericKeyAsA16BitNumber) {
    const std::vector<std::pair<std::string, std::int16_t OverigeMappen::*>> sleutels = {
        {"ONELIN", &OverigeMappen::ONELIN}, {"INDIVI", &OverigeMappen::INDIVI},
        {"WIJZOK", &OverigeMappen::WIJZOK}, {"COMPET", &OverigeMappen::COMPET},
        {"ACTCRO", &OverigeMappen::ACTCRO}, {"ACTCZI", &OverigeMappen::ACTCZI},
        {"INDIPL", &OverigeMappen::INDIPL}};
    std::string ini;
    int waarde = 100;
    for (const auto& [sleutel, veld] : sleutels)
        ini.append(sleutel).append("=").append(std::to_string(++waarde)).append("\r\n");
    const Gelezen gelezen(ini);
    waarde = 100;
    for (const auto& [sleutel, veld] : sleutels)
        EXPECT_EQ(gelezen.overig.*veld, ++waarde) << sleutel;
    EXPECT_EQ(sleutels.size(), 7U);
}

TEST(MappenIni, ReadsTheLeadingNumberOfANumericKey) {
    const std::vector<std::pair<std::string, int>> gevallen = {
        {"12x", 12}, {" 7", 7},  {"-3", -3}, {"", 0},         {"x", 0},
        {"2.5", 2},  {"3.5", 4}, {"7,9", 7}, {"32767", 32767}};
    for (const auto& [tekst, getal] : gevallen) {
        Gelezen gelezen("WIJZOK=99\r\nWIJZOK=" + tekst + "\r\n");
        EXPECT_EQ(gelezen.overig.WIJZOK, getal) << "'" << tekst << "'";
    }
}

TEST(MappenIni, ANumberThatDoesNotFit16BitsBecomesZero) {
    for (const char* tekst : {"32768", "-32769", "65537", "99999999999999999999"}) {
        const Gelezen gelezen("WIJZOK=5\r\nWIJZOK=" + std::string(tekst) + "\r\n");
        EXPECT_EQ(gelezen.overig.WIJZOK, 0) << tekst;
    }
}

TEST(MappenIni, ComparesKeysInAnyLetterCase) {
    const Gelezen gelezen("orvmap=klein\r\nComMap=gemengd\r\nACTCOM=groot\r\nwijzok=4\r\n");
    EXPECT_EQ(gelezen.algemeen.OrvMap, "klein");
    EXPECT_EQ(gelezen.algemeen.CompetitieMap, "gemengd");
    EXPECT_EQ(gelezen.algemeen.ActieveCompetitie, "groot");
    EXPECT_EQ(gelezen.overig.WIJZOK, 4);
}

TEST(MappenIni, TakesNoKeyThatIsNotSixLettersAndAnEqualsSign) {
    const Gelezen gelezen(
        "ORVMAP =a\r\n ORVMAP=b\r\nORVMAP\r\nORVMA=c\r\nXORVMAP=d\r\nORVMAPS=e\r\n"
        "\"ORVMAP=f\r\nORVMAP:g\r\n");
    EXPECT_EQ(gelezen.algemeen.OrvMap, "");
}

TEST(MappenIni, IgnoresHeadersCommentsAndBlankLines) {
    const Gelezen gelezen("[Mappen]\r\n\r\n; ORVMAP=commentaar\r\n'x\r\n=\r\nORVMAP=juist\r\n\r\n"
                          "[ORVMAP=kop]\r\nONBEKE=x\r\n");
    EXPECT_EQ(gelezen.algemeen.OrvMap, "juist");
    EXPECT_EQ(gelezen.algemeen.CompetitieMap, "");
}

TEST(MappenIni, KeepsTheValueUntrimmed) {
    const Gelezen gelezen("ORVMAP=  D:\\ORV \t\r\nCOMMAP=\"D:\\Comp\", x\r\nACTCOM= \r\n");
    EXPECT_EQ(gelezen.algemeen.OrvMap, "  D:\\ORV \t");
    EXPECT_EQ(gelezen.algemeen.CompetitieMap, "\"D:\\Comp\", x");
    EXPECT_EQ(gelezen.algemeen.ActieveCompetitie, " ");
}

TEST(MappenIni, KeepsEverythingAfterTheFirstEqualsSign) {
    const Gelezen gelezen("ACTCOM=a=b==c=\r\nCOMMAP==\r\n");
    EXPECT_EQ(gelezen.algemeen.ActieveCompetitie, "a=b==c=");
    EXPECT_EQ(gelezen.algemeen.CompetitieMap, "=");
}

TEST(MappenIni, ALaterLineWithTheSameKeyOverwrites) {
    const Gelezen gelezen("ACTCOM=een\r\nORVMAP=x\r\nactcom=twee\r\n");
    EXPECT_EQ(gelezen.algemeen.ActieveCompetitie, "twee");
    EXPECT_EQ(Gelezen("ACTCOM=een\r\nACTCOM=\r\n").algemeen.ActieveCompetitie, "");
}

TEST(MappenIni, AMissingKeyLeavesItsValueAsItWas) {
    Gelezen gelezen(
        "ORVMAP=D:\\ORV\r\nCOMMAP=D:\\Comp\r\nACTCOM=Najaar\r\nZITMAP=Z\r\nACTCRO=3\r\n");
    gelezen.map.schrijf("Club/Mappen.ini", "ACTCOM=Voorjaar\r\n");
    gelezen.lees();
    EXPECT_EQ(gelezen.algemeen.ActieveCompetitie, "Voorjaar");
    EXPECT_EQ(gelezen.algemeen.OrvMap, "D:\\ORV");
    EXPECT_EQ(gelezen.algemeen.CompetitieMap, "D:\\Comp");
    EXPECT_EQ(gelezen.overig.ZITMAP, "Z");
    EXPECT_EQ(gelezen.overig.ACTCRO, 3);
}

TEST(MappenIni, WithoutAnyKeyLeavesTheDefaults) {
    const Gelezen gelezen("");
    EXPECT_EQ(gelezen.algemeen.OrvMap, "");
    EXPECT_EQ(gelezen.algemeen.CompetitieMap, "");
    EXPECT_EQ(gelezen.algemeen.ActieveCompetitie, "");
    EXPECT_EQ(gelezen.overig.ROSPFI, "");
    EXPECT_EQ(gelezen.overig.COMPET, 0);
    EXPECT_EQ(gelezen.overig.naam, "(naam ontbreekt)");
    EXPECT_EQ(gelezen.overig.standaard, 230);
}

TEST(MappenIni, IsInTheCodePage) {
    const Gelezen gelezen("ACTCOM=Z\xE9"
                          "ro \x80\r\nSCHETY=\x81\r\n");
    EXPECT_EQ(gelezen.algemeen.ActieveCompetitie, "Zéro €");
    EXPECT_EQ(gelezen.overig.SCHETY, "\u0081");
}

TEST(MappenIni, MayHaveAnyLineEndNoLastOneAndAByteOrderMark) {
    const Gelezen gelezen("\xEF\xBB\xBFORVMAP=a\nCOMMAP=b\rACTCOM=c");
    EXPECT_EQ(gelezen.algemeen.OrvMap, "a");
    EXPECT_EQ(gelezen.algemeen.CompetitieMap, "b");
    EXPECT_EQ(gelezen.algemeen.ActieveCompetitie, "c");
}

TEST(MappenIni, IsFoundInAnotherLetterCase) {
    const proef::Proefmap map;
    map.schrijf("CLUB/MAPPEN.INI", "ACTCOM=gevonden\r\n");
    Algemeen algemeen;
    OverigeMappen overig;
    LeesMappenIni(algemeen, overig, map.pad() + "\\Club");
    EXPECT_EQ(algemeen.ActieveCompetitie, "gevonden");
}

TEST(MappenIni, IsNeverWritten) {
    Gelezen gelezen("ORVMAP=a\nwijzok=99999\r\n\r\nACTCOM=\xE9");
    EXPECT_EQ(gelezen.map.inhoud(),
              (std::map<std::string, std::string>{
                  {"Club/Mappen.ini", "ORVMAP=a\nwijzok=99999\r\n\r\nACTCOM=\xE9"}}));
}

TEST(MappenIni, AFolderWithABackslashAtItsEndGivesPathsThatOpen) {
    const proef::ProefCompetitie proef(3, 2, 1);
    Gelezen gelezen("COMMAP=" + proef.algemeen.CompetitieMap + "\\\r\n");
    Algemeen& algemeen = gelezen.algemeen;
    EXPECT_EQ(algemeen.CompetitieMap, proef.algemeen.CompetitieMap + "\\");
    algemeen.competitie = VoegPad(algemeen.CompetitieMap, "Proef");
    EXPECT_EQ(algemeen.competitie, proef.algemeen.CompetitieMap + "\\\\Proef");
    LeesCompData(algemeen);
    EXPECT_EQ(algemeen.compTabel.ronden(), 3);
}

/// The error of a program folder "Club" without a readable Mappen.ini; what was known must stay.
Fout FoutVan(const proef::Proefmap& map) {
    Algemeen algemeen;
    algemeen.OrvMap = "blijft";
    OverigeMappen overig;
    try {
        LeesMappenIni(algemeen, overig, map.pad() + "\\Club");
        ADD_FAILURE() << "nothing was thrown";
    } catch (const Fout& fout) {
        EXPECT_EQ(algemeen.OrvMap, "blijft");
        return fout;
    }
    return Fout(FoutSoort::Criterium);
}

TEST(MappenIni, ThatIsMissingIsAnErrorWithPathAndReason) {
    const proef::Proefmap map;
    const Fout fout = FoutVan(map);
    EXPECT_EQ(fout.bestand, map.pad() + "\\Club\\Mappen.ini");
    EXPECT_EQ(FoutTekst(fout), "Het bestand '" +
                                   systeem::Schrijfwijze(map.pad() + "\\Club\\Mappen.ini") +
                                   "' kan niet worden gelezen: het bestand bestaat niet.");
}

TEST(MappenIni, AFolderOfThatNameCountsAsMissing) {
    const proef::Proefmap map;
    map.maakMap("Club/Mappen.ini");
    EXPECT_EQ(FoutVan(map).code, std::errc::no_such_file_or_directory);
}

TEST(MappenIni, ThatCannotBeOpenedIsAnErrorWithTheWordsOfTheSystem) {
    const proef::Proefmap map;
    map.maakOnleesbaar("Club/Mappen.ini");
    const Fout fout = FoutVan(map);
    EXPECT_EQ(fout.soort, FoutSoort::BestandNietLeesbaar);
    EXPECT_EQ(fout.reden, Reden(make_error_code(proef::onleesbaarFout)));
}

} // namespace
} // namespace lauwerkrans
