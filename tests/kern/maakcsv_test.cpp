// The list as a CSV file, byte by byte.
#include "output/modMaakCSV.h"

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

class MaakCsv : public proef::UitvoerTest {
protected:
    /// The file of the list line by line.
    std::string lijnen() {
        MaakCSV_Lijnen(uitvoer);
        return bestand();
    }

    /// The file of the running list.
    std::string totaal() {
        MaakCSV_Totaal(uitvoer);
        return bestand();
    }

    /// The lines of the file behind the three headings.
    static std::string tabel(const std::string& bytes) { return bytes.substr(bytes.find("Rang")); }

private:
    std::string bestand() {
        const std::string naam = Uitvoernaam(uitvoer, ".CSV");
        std::string bytes = geschreven(naam);
        EXPECT_NE(bytes, "") << naam;
        return bytes;
    }
};

TEST_F(MaakCsv, LineByLineIsTheExpectedFile) { EXPECT_EQ(lijnen(), Verwacht("lijnen.CSV")); }

TEST_F(MaakCsv, LineByLineDoesNotHeedTheSwitches) {
    schakel(true, true);
    EXPECT_EQ(lijnen(), Verwacht("lijnen.CSV"));
}

TEST_F(MaakCsv, AsOneListIsTheExpectedFileForEachSwitch) {
    uitvoer.uitslag = AlleSamen();
    EXPECT_EQ(totaal(), Verwacht("totaal.CSV"));
    schakel(true, false);
    EXPECT_EQ(totaal(), Verwacht("totaal_lijn.CSV"));
    schakel(false, true);
    EXPECT_EQ(totaal(), Verwacht("totaal_zittingen.CSV"));
    schakel(true, true);
    EXPECT_EQ(totaal(), Verwacht("totaal_lijn_zittingen.CSV"));
}

TEST_F(MaakCsv, ASwitchThatIsNotOneIsOff) {
    uitvoer.uitslag = AlleSamen();
    uitvoer.ToonLijnen = 2;
    uitvoer.ToonZittingen = -1;
    EXPECT_EQ(totaal(), Verwacht("totaal.CSV"));
}

TEST_F(MaakCsv, OfAnEmptyListHasHeadingsAndHeadersOnly) {
    uitvoer.uitslag = MaakUitslag("ABC", {"1", "1", "1"}, {});
    EXPECT_EQ(lijnen(), Verwacht("leeg_lijnen.CSV"));
    EXPECT_EQ(totaal(), Verwacht("leeg_totaal.CSV"));
    schakel(false, true);
    EXPECT_EQ(totaal(), Verwacht("leeg_totaal_zittingen.CSV"));
}

TEST_F(MaakCsv, OfNoListAtAllIsThatOfAnEmptyOne) {
    uitvoer.uitslag = nullptr;
    EXPECT_EQ(lijnen(), Verwacht("leeg_lijnen.CSV"));
    EXPECT_EQ(totaal(), Verwacht("leeg_totaal.CSV"));
    EXPECT_EQ(map.inhoud().count("Lauwerkrans/Lauwr__Lijn.CSV"), 1U);
}

TEST_F(MaakCsv, PassesOverEmptyRows) {
    uitvoer.uitslag = PerLijn(3);
    ASSERT_EQ(uitvoer.uitslag->resultaat.cel(9, 1), "");
    EXPECT_EQ(lijnen(), Verwacht("lijnen.CSV"));
    uitvoer.uitslag = AlleSamen(3);
    EXPECT_EQ(totaal(), Verwacht("totaal.CSV"));
    uitvoer.uitslag = MaakUitslag("ABC", {"0", "0", "0"}, {}, 2);
    EXPECT_EQ(lijnen(), Verwacht("leeg_lijnen.CSV"));
}

TEST_F(MaakCsv, OfACalculationWithMinimumZeroHasNoRowForAPairWithoutScores) {
    const proef::Scores scores({"1"}, {{'A', 1, 2, 1, 1, "0"}, {'A', 3, 4, 1, 1, "50"}});
    const auto uitslag = MaakUitslag("A", {"0"}, {});
    uitslag->resultaat = proef::Bereken(scores, {"0"});
    ASSERT_EQ(uitslag->resultaat.bovengrens, 2U);
    uitvoer.uitslag = uitslag;
    EXPECT_EQ(tabel(lijnen()), "Rang;Paar;Gemidd%;Zittingen\r\n;Lijn A\r\n"
                               ";----- criterium: 0 of meer zittingen -----\r\n"
                               "1;Lid 3 - Lid 4;50,000;1\r\n\r\n");
    EXPECT_EQ(tabel(totaal()), "Rang;Paar;Gemidd%\r\n1;Lid 3 - Lid 4;50,000\r\n\r\n");
}

TEST_F(MaakCsv, OfALineThatComesBackHasANewHeadingAndRank) {
    uitvoer.uitslag = proef::Wisselend();
    EXPECT_EQ(lijnen(), Verwacht("wissel.CSV"));
}

TEST_F(MaakCsv, NumbersPairsThatAreEqualOneAfterTheOther) {
    uitvoer.uitslag = MaakUitslag(
        "A", {"1"}, {{'A', 1, true, "a", "b", 1, 50000}, {'A', 1, true, "c", "d", 1, 50000}});
    EXPECT_NE(lijnen().find("1;a - b;50,000;1\r\n2;c - d;50,000;1\r\n"), std::string::npos);
    EXPECT_NE(totaal().find("1;a - b;50,000\r\n2;c - d;50,000\r\n"), std::string::npos);
}

TEST_F(MaakCsv, HasItsThreeHeadingsInOrder) {
    uitvoer.InstellingPrefix = "A/B 2024";
    uitvoer.ClubNaam = "De Club";
    const std::string koppen = "Lauwerkrans 2023\x96"
                               "2024, caf\xE9 \"\xC9\xE9n\"\r\nA/B 2024\r\nDe Club\r\n";
    EXPECT_EQ(lijnen(), koppen + tabel(Verwacht("lijnen.CSV")));
    EXPECT_TRUE(totaal().starts_with(koppen + "Rang;Paar;Gemidd%\r\n1;"));
    EXPECT_EQ(map.inhoud().begin()->first, "Lauwerkrans/Lauwr_A_B_2024_LijnABC.CSV");
}

TEST_F(MaakCsv, ShowsTheCriterionAsItWasTyped) {
    uitvoer.uitslag = MaakUitslag("B", {"", " 007 "}, {{'B', 1, false, "a", "b", 8, 50000}});
    EXPECT_NE(lijnen().find(";Lijn B\r\n;----- criterium:  007  of meer zittingen -----\r\n"),
              std::string::npos);
}

TEST_F(MaakCsv, ASemicolonInANameShiftsItsRow) {
    uitvoer.uitslag = MaakUitslag("A", {"1"}, {{'A', 1, false, "a;x", "b", 8, 50000}});
    EXPECT_NE(lijnen().find("\r\n1;a;x - b;50,000;8\r\n"), std::string::npos);
}

TEST_F(MaakCsv, TellsUnderWhichNameAndWhere) {
    MaakCSV_Lijnen(uitvoer);
    MaakCSV_Totaal(uitvoer);
    const Melding verwacht{"\r\nHet CSV-bestand 'Lauwr__LijnABC.CSV' is met succes aangemaakt."
                           "\r\n\r\nHet bevindt zich in de map: " +
                               systeem::Schrijfwijze(map.pad() + "/Lauwerkrans"),
                           Icoon::Informatie};
    EXPECT_EQ(meldingen.getoond, (std::vector<Melding>{verwacht, verwacht}));
    EXPECT_EQ(uitvoer.fout, 0);
}

TEST_F(MaakCsv, ReplacesAnEarlierFileOfThatName) {
    map.schrijf("Lauwerkrans/Lauwr__LijnABC.CSV", std::string(5000, 'x'));
    EXPECT_EQ(lijnen(), Verwacht("lijnen.CSV"));
    uitvoer.uitslag = AlleSamen();
    EXPECT_EQ(totaal(), Verwacht("totaal.CSV"));
    EXPECT_EQ(map.inhoud().size(), 1U);
}

} // namespace
} // namespace lauwerkrans
