// Lines, their letters and the check of a criterion.
#include "calc/lijnen.h"

#include <gtest/gtest.h>

#include "data/fout.h"
#include "data/modORV_rondedata.h"
#include "proef.h"

namespace lauwerkrans {
namespace {

Tabel LijnTabelVan(int lijnen) {
    proef::ProefCompetitie proef(1, 1, lijnen);
    return LeesLijnTabel(proef.algemeen.competitie);
}

TEST(Lijnletter, IsTheLetterOfTheNumber) {
    EXPECT_EQ(LijnLetter(1), 'A');
    EXPECT_EQ(LijnLetter(26), 'Z');
    EXPECT_EQ(LijnNummer('A'), 1U);
    EXPECT_EQ(LijnNummer('C'), 3U);
}

TEST(LijnTabel, HoldsNumberAndOneOfEveryLine) {
    const Tabel tabel = LijnTabelVan(3);
    EXPECT_EQ(tabel.rijen(), 3U);
    EXPECT_EQ(tabel.kolommen(), 2U);
    EXPECT_EQ(tabel.cel(2, 1), "2");
    EXPECT_EQ(tabel.cel(3, 2), "1");
    EXPECT_EQ(tabel.cel(0, 1), "");
}

TEST(LijnTabel, ComesFromTheEighthFieldOfTheFirstRoundOnly) {
    proef::ProefCompetitie proef(2, 1, 1);
    proef.map().schrijf(proef.competitieMap() + "Ronde-1/RondeData.txt",
                        "\"a,1\",2,3\r\n4,5,6,7\r\n4,9\r\n");
    proef.map().schrijf(proef.competitieMap() + "Ronde-2/RondeData.txt", "1,2,3,4,5,6,7,2\r\n");
    EXPECT_EQ(LeesLijnTabel(proef.algemeen.competitie).rijen(), 4U);
}

TEST(GekozenLijnen, OfTheRowAlleAreAllLettersInOrder) {
    EXPECT_EQ(LijnenVanRij(LijnTabelVan(3), 0), "ABC");
    EXPECT_EQ(LijnenVanRij(LijnTabelVan(1), 0), "A");
    EXPECT_EQ(LijnenVanRij(LijnTabelVan(0), 0), "");
    EXPECT_EQ(AlleLijnen(LijnTabelVan(26)), "ABCDEFGHIJKLMNOPQRSTUVWXYZ");
}

TEST(GekozenLijnen, OfAnotherRowAreItsOwnLetter) {
    EXPECT_EQ(LijnenVanRij(LijnTabelVan(3), 1), "A");
    EXPECT_EQ(LijnenVanRij(LijnTabelVan(3), 3), "C");
}

TEST(TeHoogTekst, ComesAboveTwenty) {
    EXPECT_EQ(TeHoogTekst("21", "B"), "21 aantal zittingen bij lijn B niet goed! Maximaal 20");
    EXPECT_EQ(TeHoogTekst("20.5", "A"), "20.5 aantal zittingen bij lijn A niet goed! Maximaal 20");
    EXPECT_EQ(TeHoogTekst("99999999999", "A"),
              "99999999999 aantal zittingen bij lijn A niet goed! Maximaal 20");
}

TEST(TeHoogTekst, ShowsTheTextOfTheBoxAsItStands) {
    EXPECT_EQ(TeHoogTekst(" 30x", "C"), " 30x aantal zittingen bij lijn C niet goed! Maximaal 20");
}

TEST(TeHoogTekst, ShowsTheBeginningOfALongText) {
    EXPECT_EQ(TeHoogTekst(std::string(32767, '9'), "A"),
              std::string(120, '9') + " ... aantal zittingen bij lijn A niet goed! Maximaal 20");
}

TEST(TeHoogTekst, IsEmptyUpToTwentyAndForWhatIsNoNumber) {
    for (const char* tekst : {"20", "1", "0", "-5", "", "x", "x99"})
        EXPECT_EQ(TeHoogTekst(tekst, "A"), "") << tekst;
}

} // namespace
} // namespace lauwerkrans
