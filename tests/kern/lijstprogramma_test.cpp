// The console program: its words, its folders, its exit status.
#include "tools/lijst_programma.h"

#include <gtest/gtest.h>

#include <sstream>

#include "proef.h"
#include "tools/lijst_opdracht.h"

namespace lauwerkrans {
namespace {

using lijst::LeesOpdracht;
using Woorden = std::vector<std::string>;

TEST(Opdracht, HoldsFolderListAndOptions) {
    const auto opdracht =
        LeesOpdracht({"m", "ranglijst", "--lijn", "B", "--minimum", "A=13,B=,C=x", "--gewogen",
                      "--details", "--alle-lijnen", "--buiten-mededinging", "--competitie", "W 1"});
    ASSERT_TRUE(opdracht);
    EXPECT_EQ(opdracht->map, "m");
    EXPECT_EQ(opdracht->soort, lijst::Soort::Ranglijst);
    EXPECT_EQ(opdracht->lijn, "B");
    EXPECT_EQ(opdracht->minimum,
              (std::map<std::string, std::string>{{"A", "13"}, {"B", ""}, {"C", "x"}}));
    EXPECT_EQ(opdracht->opties, (Opties{true, true, true, true}));
    EXPECT_EQ(opdracht->competitie, "W 1");
}

TEST(Opdracht, SetsOneOptionPerWord) {
    EXPECT_EQ(LeesOpdracht({"m", "ranglijst", "--gewogen"})->opties, (Opties{.gewogen = true}));
    EXPECT_EQ(LeesOpdracht({"m", "ranglijst", "--details"})->opties, (Opties{.zitDetails = true}));
    EXPECT_EQ(LeesOpdracht({"m", "ranglijst", "--alle-lijnen"})->opties,
              (Opties{.gemAlleLijnen = true}));
    EXPECT_EQ(LeesOpdracht({"m", "ranglijst", "--buiten-mededinging"})->opties,
              (Opties{.buiMed = true}));
}

TEST(Opdracht, ChoosesAllLinesWithoutALine) {
    EXPECT_EQ(LeesOpdracht({"m", "controle"})->lijn, "");
    EXPECT_EQ(LeesOpdracht({"m", "controle", "--lijn", "alle"})->lijn, "");
}

TEST(Opdracht, OfAMemberHoldsTheNamePart) {
    EXPECT_EQ(LeesOpdracht({"m", "lid", "--de Wit"})->naamdeel, "--de Wit");
}

TEST(Opdracht, IsNoneWhenTheWordsAreWrong) {
    const std::vector<Woorden> verkeerd = {{},
                                           {"m"},
                                           {"", "controle"},
                                           {"m", "lijst"},
                                           {"m", "lid"},
                                           {"m", "lid", "  "},
                                           {"m", "controle", "A"},
                                           {"m", "controle", "--lijn"},
                                           {"m", "controle", "--lijn", "a"},
                                           {"m", "controle", "--lijn", "AB"},
                                           {"m", "controle", "--lijn", ""},
                                           {"m", "controle", "--gewogen"},
                                           {"m", "lid", "x", "--minimum", "A=1"},
                                           {"m", "ronden", "--competitie", ""},
                                           {"m", "ranglijst", "--minimum", "13"},
                                           {"m", "ranglijst", "--minimum", "A=1,"},
                                           {"m", "ranglijst", "--minimum", "AB=1"},
                                           {"m", "ranglijst", "--Gewogen"}};
    for (std::size_t i = 0; i < verkeerd.size(); ++i)
        EXPECT_FALSE(LeesOpdracht(verkeerd[i])) << "number " << i;
}

/// A competition with a Mappen.ini beside it.
class Lijstprogramma : public testing::Test {
protected:
    Lijstprogramma() : proef(1, 1, 1) {
        proef.schrijfLeden(2, {{1, "An", "", "Aa"}, {2, "Ben", "", "B\tx"}});
        proef.schrijfZitting(1, 1, {proef::ProefCompetitie::regel("A1", "1-2", "60")});
        schrijfMappen("Mappen.ini", "Proef");
    }

    void schrijfMappen(const std::string& naam, const std::string& competitie) {
        proef.map().schrijf(naam, "ORVMAP=" + proef.map().pad() +
                                      "\r\nCOMMAP=" + proef.map().pad() +
                                      "\\Competities\r\nACTCOM=" + competitie + "\r\n");
    }

    lijst::Uitgang voer(const std::string& map, const Woorden& rest) {
        Woorden woorden = {proef.map().pad() + map};
        woorden.insert(woorden.end(), rest.begin(), rest.end());
        return lijst::Voer(woorden, uit, fouten);
    }

    proef::ProefCompetitie proef;
    std::ostringstream uit;
    std::ostringstream fouten;
};

const std::string kop = "Berekening voor lijn A\nNr\tLijn\tRang\tPaar\tAantZit\tGemid %\n";

TEST_F(Lijstprogramma, FindsMappenIniInTheSuitesFolderOrFromTheProgramsFolder) {
    for (const char* map : {"", "\\Lauwr", "\\Lauwerkrans"}) {
        uit.str("");
        EXPECT_EQ(voer(map, {"ranglijst", "--minimum", "A=1"}), lijst::Goed) << map;
        EXPECT_EQ(uit.str(), kop + "1\tA\t1\tAn Aa - Ben B x\t1\t60,000\n");
        EXPECT_EQ(fouten.str(), "");
    }
}

TEST_F(Lijstprogramma, ShowsHowItIsUsed) {
    EXPECT_EQ(voer("", {"onzin"}), lijst::VerkeerdGebruik);
    EXPECT_EQ(uit.str(), "");
    EXPECT_EQ(fouten.str(), lijst::Gebruik());
}

TEST_F(Lijstprogramma, TakesAnotherCompetition) {
    schrijfMappen("Mappen.ini", "Weg");
    EXPECT_EQ(voer("", {"ronden", "--competitie", "Proef"}), lijst::Goed);
    EXPECT_EQ(uit.str(), "Proef\nRonde\tZittingen\t---\tmet Perc\n1\t1\t1\t1\n");
}

TEST_F(Lijstprogramma, SaysThatNoCompetitionIsChosen) {
    schrijfMappen("Mappen.ini", "");
    EXPECT_EQ(voer("", {"ronden"}), lijst::Mislukt);
    EXPECT_EQ(uit.str(), "");
    EXPECT_EQ(fouten.str(), "U hebt nog geen competitie(-zitting) gekozen.\n");
}

TEST_F(Lijstprogramma, SaysThatMappenIniIsNotThere) {
    EXPECT_EQ(voer("\\Competities", {"ronden"}), lijst::Mislukt);
    EXPECT_NE(fouten.str().find("Mappen.ini' kan niet worden gelezen: het bestand bestaat niet."),
              std::string::npos)
        << fouten.str();
}

TEST_F(Lijstprogramma, SaysThatALineOfACriterionIsNotThere) {
    EXPECT_EQ(voer("", {"ranglijst", "--minimum", "A=1,B=1"}), lijst::Mislukt);
    EXPECT_EQ(uit.str(), "");
    EXPECT_EQ(fouten.str(), "Deze competitie heeft geen lijn B.\n");
}

} // namespace
} // namespace lauwerkrans
