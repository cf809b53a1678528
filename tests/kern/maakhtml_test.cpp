// The list as a page, byte by byte.
#include "output/modMaakHtml.h"

#include <gtest/gtest.h>

#include "data/systeem.h"
#include "scores.h"
#include "uitvoerproef.h"

namespace lauwerkrans {
namespace {

using proef::AlleSamen;
using proef::MaakUitslag;
using proef::PerLijn;
using proef::Verwacht;

class MaakPagina : public proef::UitvoerTest {
protected:
    /// The page of the list.
    std::string pagina() {
        MaakHtml(uitvoer);
        const std::string naam = Uitvoernaam(uitvoer, ".HTML");
        std::string bytes = geschreven(naam);
        EXPECT_NE(bytes, "") << naam;
        return bytes;
    }
};

TEST_F(MaakPagina, LineByLineIsTheExpectedFile) { EXPECT_EQ(pagina(), Verwacht("lijnen.HTML")); }

TEST_F(MaakPagina, LineByLineDoesNotHeedTheSwitches) {
    schakel(true, true);
    EXPECT_EQ(pagina(), Verwacht("lijnen.HTML"));
}

TEST_F(MaakPagina, OverAllLinesIsTheExpectedFileForEachSwitch) {
    uitvoer.uitslag = AlleSamen();
    EXPECT_EQ(pagina(), Verwacht("totaal.HTML"));
    schakel(true, false);
    EXPECT_EQ(pagina(), Verwacht("totaal_lijn.HTML"));
    schakel(false, true);
    EXPECT_EQ(pagina(), Verwacht("totaal_zittingen.HTML"));
    schakel(true, true);
    EXPECT_EQ(pagina(), Verwacht("totaal_lijn_zittingen.HTML"));
}

TEST_F(MaakPagina, ASwitchThatIsNotOneIsOff) {
    uitvoer.uitslag = AlleSamen();
    uitvoer.ToonLijnen = 2;
    uitvoer.ToonZittingen = -1;
    EXPECT_EQ(pagina(), Verwacht("totaal.HTML"));
}

TEST_F(MaakPagina, OfAnEmptyListHasItsTitlesAndOverAllLinesItsHeaders) {
    const auto uitslag = MaakUitslag("ABC", {"1", "1", "1"}, {});
    uitvoer.uitslag = uitslag;
    EXPECT_EQ(pagina(), Verwacht("leeg_lijnen.HTML"));
    uitslag->opties.gemAlleLijnen = true;
    EXPECT_EQ(pagina(), Verwacht("leeg_totaal.HTML"));
    schakel(false, true);
    EXPECT_EQ(pagina(), Verwacht("leeg_totaal_zittingen.HTML"));
}

TEST_F(MaakPagina, OfNoListAtAllIsThatOfAnEmptyOne) {
    uitvoer.uitslag = nullptr;
    EXPECT_EQ(pagina(), Verwacht("leeg_lijnen.HTML"));
    EXPECT_EQ(map.inhoud().count("Lauwerkrans/Lauwr__Lijn.HTML"), 1U);
}

TEST_F(MaakPagina, PassesOverEmptyRows) {
    uitvoer.uitslag = PerLijn(3);
    EXPECT_EQ(pagina(), Verwacht("lijnen.HTML"));
    uitvoer.uitslag = AlleSamen(3);
    EXPECT_EQ(pagina(), Verwacht("totaal.HTML"));
    uitvoer.uitslag = MaakUitslag("ABC", {"0", "0", "0"}, {}, 2);
    EXPECT_EQ(pagina(), Verwacht("leeg_lijnen.HTML"));
}

TEST_F(MaakPagina, OfACalculationWithMinimumZeroHasNoRowForAPairWithoutScores) {
    const proef::Scores scores({"1"}, {{'A', 1, 2, 1, 1, "0"}, {'A', 3, 4, 1, 1, "50"}});
    const auto uitslag = MaakUitslag("A", {"0"}, {});
    uitslag->resultaat = proef::Bereken(scores, {"0"});
    ASSERT_EQ(uitslag->resultaat.bovengrens, 2U);
    uitvoer.uitslag = uitslag;
    EXPECT_TRUE(pagina().ends_with("</tr ><tr align=center><td><h5><b>1</b></td><td align=left><h5>"
                                   "Lid 3 - Lid 4</td><td><h5>1</td><td><h5><b>50,000</b></td></tr>"
                                   "</font></table></body> </html>\r\n"));
}

TEST_F(MaakPagina, OfALineThatComesBackHasANewHeadingAndHeaders) {
    uitvoer.uitslag = proef::Wisselend();
    EXPECT_EQ(pagina(), Verwacht("wissel.HTML"));
}

TEST_F(MaakPagina, HasItsThreeHeadingsInOrder) {
    uitvoer.KopTekst = "<Een> & twee";
    uitvoer.InstellingPrefix = "A/B 2024";
    uitvoer.ClubNaam = "De Club";
    EXPECT_NE(pagina().find(
                  "<tr ><td colspan=4 BGCOLOR=#99CCFF align=center><font size=5><b><Een> & twee"
                  "</b></font></td></tr><tr ><td colspan=4 align=center><font size=3><b>A/B 2024"
                  "</b></font></td></tr><tr ><td colspan=4 align=center><font size=1>Bridgeclub "
                  "De Club</font></td></tr>"),
              std::string::npos);
    EXPECT_EQ(map.inhoud().begin()->first, "Lauwerkrans/Lauwr_A_B_2024_LijnABC.HTML");
}

TEST_F(MaakPagina, IsOneLine) {
    const std::string bytes = pagina();
    EXPECT_EQ(bytes.find_first_of("\r\n"), bytes.size() - 2);
    EXPECT_TRUE(bytes.ends_with("\r\n"));
}

TEST_F(MaakPagina, IsItsHeadWithTheTableOfTheList) {
    std::string verwacht = HtmlKop();
    HtmlTabelPerLijn(verwacht, uitvoer);
    EXPECT_TRUE(BewaarHtml(uitvoer, "zelf.HTML", verwacht));
    EXPECT_EQ(geschreven("zelf.HTML"), pagina());
    uitvoer.uitslag = AlleSamen();
    verwacht = HtmlKop();
    HtmlTabelTotaal(verwacht, uitvoer);
    EXPECT_TRUE(BewaarHtml(uitvoer, "zelf.HTML", verwacht));
    EXPECT_EQ(geschreven("zelf.HTML"), pagina());
}

TEST_F(MaakPagina, TellsUnderWhichNameAndWhere) {
    MaakHtml(uitvoer);
    EXPECT_EQ(
        meldingen.getoond,
        (std::vector<Melding>{{"\r\nHet HTMLbestand heet: Lauwr__LijnABC.HTML en is opgeslagen "
                               "in de volgende map:\r\n\r\n" +
                                   systeem::Schrijfwijze(map.pad() + "/Lauwerkrans") + "\r\n",
                               Icoon::Informatie}}));
    EXPECT_EQ(uitvoer.fout, 0);
}

TEST_F(MaakPagina, ReplacesAnEarlierPageSilently) {
    map.schrijf("Lauwerkrans/Lauwr__LijnABC.HTML", std::string(5000, 'x'));
    EXPECT_EQ(pagina(), Verwacht("lijnen.HTML"));
    uitvoer.uitslag = AlleSamen();
    EXPECT_EQ(pagina(), Verwacht("totaal.HTML"));
    EXPECT_EQ(map.inhoud().size(), 1U);
    EXPECT_EQ(meldingen.getoond.size(), 2U); // each page its own, and no other
}

} // namespace
} // namespace lauwerkrans
