// Every source file of the project follows the arrows, and the check sees one that does not.
#include "pijlen.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "proef.h"

namespace lauwerkrans {
namespace {

using pijlen::Bezwaar;

/// The objection to a file that includes a header of the project.
std::string Naar(const std::string& bestand, const std::string& doel) {
    return Bezwaar(bestand, "#include \"" + doel + "\"");
}

struct Lid {
    std::size_t laag;
    std::string bestand;
};

/// Files of every layer, from the lowest to the highest.
const std::vector<Lid> leden = {{0, "data/getallen.h"},
                                {0, "data/systeem_posix.cpp"},
                                {1, "app/modMappen.h"},
                                {1, "app/modInstellingen.cpp"},
                                {2, "calc/modBereken.h"},
                                {3, "output/uitvoer.h"},
                                {3, "output/modMaakCSV.h"},
                                {3, "output/modMaakHtml.cpp"},
                                {3, "output/bladindeling.h"},
                                {3, "output/bladindeling_TI.cpp"},
                                {4, "ui/frmMain.h"},
                                {4, "ui/paneel_P10.cpp"},
                                {5, "output/afdruk.h"},
                                {5, "output/frmPrinten.cpp"},
                                {5, "output/uitvoervensters.h"},
                                {6, "app/main.cpp"},
                                {6, "app/frmMain_start.h"}};
constexpr std::size_t hoogsteVanKern = 3;

TEST(Pijlen, AreFollowedByEveryFileOfTheProject) {
    const auto onderzoek = pijlen::Onderzoeken(LAUWERKRANS_BRON);
    for (const auto& bezwaar : onderzoek.bezwaren)
        ADD_FAILURE() << bezwaar;
    EXPECT_GT(onderzoek.bestanden, 60U);
    EXPECT_GT(onderzoek.insluitingen, 300U);
}

TEST(Pijlen, GoToTheOwnLayerAndDownwardsOnly) {
    for (const auto& van : leden) {
        for (const auto& naar : leden) {
            EXPECT_EQ(Naar(van.bestand, naar.bestand),
                      naar.laag > van.laag ? naar.bestand + " is of a higher layer" : "")
                << van.bestand;
        }
    }
}

TEST(Pijlen, GoByTheFileAndNotByItsFolder) {
    EXPECT_EQ(Naar("calc/x.cpp", "app/modMappen.h"), "");
    EXPECT_NE(Naar("calc/x.cpp", "app/frmMain_start.h"), "");
    EXPECT_NE(Naar("app/modMappen.cpp", "app/frmMain_start.h"), "");
    EXPECT_NE(Naar("app/modMappen.cpp", "calc/lijnen.h"), "");
    EXPECT_EQ(Naar("ui/x.cpp", "output/bladindeling.h"), "");
    EXPECT_NE(Naar("ui/x.cpp", "output/frmPrinten.h"), "");
    EXPECT_NE(Naar("output/modMaakCSV.cpp", "output/frmPrinten.h"), "");
    EXPECT_EQ(Naar("output/uitvoer.cpp", "app/modInstellingen.h"), "");
    EXPECT_NE(Naar("output/uitvoer.cpp", "output/afdruk.h"), "");
    EXPECT_NE(Naar("output/uitvoer.cpp", "output/uitvoervenster.h"), "");
    EXPECT_EQ(Naar("ui/x.cpp", "output/uitvoer.h"), "");
    EXPECT_NE(Naar("output/bladindeling.cpp", "ui/maten.h"), "");
    EXPECT_NE(Naar("data/x.cpp", "app/modMappen.h"), "");
}

TEST(Pijlen, LetNoQtIntoTheCore) {
    for (const char* qt : {"<QString>", "<QtCore/QString>", "<QtCore>", "<QtCore/qstring.h>",
                           "<qglobal.h>", "<QtGlobal>", "<qt6/QtCore/QString>", "\"QWidget\""}) {
        for (const auto& lid : leden) {
            const std::string bezwaar = Bezwaar(lid.bestand, "#include " + std::string(qt));
            EXPECT_EQ(bezwaar.ends_with(" is of Qt"), lid.laag <= hoogsteVanKern)
                << lid.bestand << " " << qt;
        }
    }
}

TEST(Pijlen, LetOnlyTheStandardLibraryIntoTheCore) {
    for (const char* kop : {"<queue>", "<string>", "<cstdint>", "<system_error>", "<filesystem>"})
        EXPECT_EQ(Bezwaar("calc/x.cpp", "#include " + std::string(kop)), "") << kop;
    for (const char* kop : {"<stdio.h>", "<poll.h>", "<gtest/gtest.h>", "<boost/any.hpp>",
                            "<zlib.h>", "<experimental/optional>"}) {
        EXPECT_NE(Bezwaar("calc/x.cpp", "#include " + std::string(kop)), "") << kop;
        EXPECT_EQ(Bezwaar("data/systeem_win.cpp", "#include " + std::string(kop)), "") << kop;
    }
}

TEST(Pijlen, LetTheSystemIntoTwoFilesOnly) {
    for (const char* kop : {"<unistd.h>", "<sys/stat.h>", "<sys/types.h>", "<fcntl.h>",
                            "<dirent.h>", "<windows.h>", "<Windows.h>"}) {
        const std::string regel = "#include " + std::string(kop);
        EXPECT_EQ(Bezwaar("data/systeem_posix.cpp", regel), "") << kop;
        EXPECT_EQ(Bezwaar("data/systeem_win.cpp", regel), "") << kop;
        for (const char* bestand :
             {"data/systeem.h", "data/tekstbestand.cpp", "calc/x.cpp", "data/sub/systeem_win.cpp",
              "app/modMappen.cpp", "output/modMaakCSV.cpp", "ui/frmMain.cpp", "output/afdruk.cpp",
              "app/main.cpp", "tools/lijst.cpp", "tools/generator_x.cpp"}) {
            EXPECT_NE(Bezwaar(bestand, regel), "") << bestand << " " << kop;
        }
    }
}

TEST(Pijlen, LetNoQtAndNoWindowIntoTheConsolePrograms) {
    for (const char* bestand : {"tools/lijst.cpp", "tools/lijst_programma.h",
                                "tools/generator_demo.cpp", "tools/maak_competitie.cpp"}) {
        EXPECT_NE(Bezwaar(bestand, "#include <QString>"), "") << bestand;
        for (const char* doel : {"ui/maten.h", "output/afdruk.h", "app/frmMain_start.h"})
            EXPECT_NE(Naar(bestand, doel), "") << bestand << " " << doel;
        for (const char* doel : {"data/fout.h", "calc/lijsten.h", "output/modMaakCSV.h",
                                 "app/modInstellingen.h", "tools/generator.h"}) {
            EXPECT_EQ(Naar(bestand, doel), "") << bestand << " " << doel;
        }
    }
    EXPECT_EQ(Bezwaar("tools/rondleiding.cpp", "#include <QString>"), "");
}

TEST(Pijlen, LetNothingOfToolsOrTestsIntoTheProgram) {
    for (const auto& lid : leden) {
        for (const char* doel : {"tools/generator.h", "tests/kern/proef.h", "bench/maat.h"})
            EXPECT_EQ(Naar(lid.bestand, doel), std::string(doel) + " is no part of the program");
    }
}

TEST(Pijlen, AreSeenThroughEveryWayOfWritingAnInclude) {
    for (const char* regel :
         {"#include \"ui/maten.h\"", "  #  include \"ui/maten.h\" // waarom",
          "#include<ui/maten.h>", "#include \"../ui/maten.h\"", "#include \"./../ui/maten.h\"",
          "#include <ui/maten.h>", "#include \"../calc/../ui/maten.h\"",
          "\t#include\t\"ui/../ui/maten.h\"", "#include MATEN", "#include \"ui/maten.h\"\r"}) {
        EXPECT_NE(Bezwaar("data/x.cpp", regel), "") << regel;
    }
    EXPECT_EQ(Naar("ui/x.cpp", "maten.h"), "");
    EXPECT_EQ(Naar("ui/x.cpp", "x.moc"), "");
    EXPECT_NE(Naar("output/modMaakCSV.cpp", "afdruk.h"), "");
}

TEST(Pijlen, LeaveOtherLinesAlone) {
    for (const char* regel :
         {"", "// #include <QString>", "const char* x = \"#include <QString>\";",
          "#define include <QString>", "#includes", "#ifdef QT_VERSION"}) {
        EXPECT_EQ(Bezwaar("data/x.cpp", regel), "") << regel;
    }
}

TEST(Pijlen, AreMissedWhereNoFilesAreFound) {
    const proef::Proefmap leeg;
    const auto onderzoek = pijlen::Onderzoeken(leeg.map());
    EXPECT_EQ(onderzoek.bestanden, 0U);
    EXPECT_EQ(
        onderzoek.bezwaren,
        (std::vector<std::string>{"data: no source files found", "app: no source files found",
                                  "calc: no source files found", "output: no source files found",
                                  "ui: no source files found", "tools: no source files found"}));
}

TEST(Pijlen, ThatAreWrongAreFoundWithFileAndLine) {
    const proef::Proefmap map;
    for (const char* naam :
         {"app/main.cpp", "calc/a.cpp", "output/a.h", "ui/a.cpp", "tools/lijst.cpp"})
        map.schrijf(naam, "#include \"data/a.h\"\n");
    map.schrijf("data/sub/a.h", "#pragma once\n\n#include <string>\n#include <QString>\r\n");
    map.schrijf("data/lees.txt", "#include <QString>\n");
    const auto onderzoek = pijlen::Onderzoeken(map.map());
    EXPECT_EQ(onderzoek.bestanden, 6U);
    EXPECT_EQ(onderzoek.insluitingen, 7U);
    EXPECT_EQ(onderzoek.bezwaren, std::vector<std::string>{"data/sub/a.h:4: QString is of Qt"});
}

} // namespace
} // namespace lauwerkrans
