// The ranking and the control list as the grid shows them.
#include "calc/lijsten.h"

#include <gtest/gtest.h>

#include "scores.h"

namespace lauwerkrans {
namespace {

using proef::Scores;
using Teksten = std::vector<std::string>;

std::shared_ptr<const Uitslag> MaakUitslag(const Scores& scores, const Criteria& criteria,
                                           const std::string& lijnen = "AB") {
    auto uitslag = std::make_shared<Uitslag>();
    uitslag->GekozenLijnen = lijnen;
    uitslag->criteria = criteria;
    uitslag->rondeInfo = scores.rondeInfo;
    uitslag->resultaat = proef::Bereken(scores, criteria);
    return uitslag;
}

std::shared_ptr<const Lijst> Ranglijst(const Scores& scores, const Criteria& criteria,
                                       bool zitDetails) {
    return MaakRanglijst(MaakUitslag(scores, criteria), zitDetails);
}

std::shared_ptr<const Lijst> Controlelijst(const Scores& scores, const Selectie& selectie = {}) {
    auto controle = std::make_shared<Controle>();
    controle->selectie = selectie;
    controle->zitRegels = scores.zitRegels;
    return MaakControlelijst(controle);
}

/// The cells of a row, joined by "|".
std::string Regel(const Lijst& lijst, std::size_t rij) {
    std::string tekst = lijst.cel(rij, 1);
    for (std::size_t kolom = 2; kolom <= lijst.kolommen(); ++kolom)
        tekst += "|" + lijst.cel(rij, kolom);
    return tekst;
}

Scores TweeLijnen() {
    return {{"11"},
            {{'B', 4, 3, 1, 1, "57,125", 24},
             {'A', 1, 2, 1, 1, "0", 24},
             {'A', 5, 6, 1, 1, "61", 20},
             {'A', 1, 2, 1, 2, "44,5", 8}}};
}

TEST(Ranglijst, HasTheLinesInItsTitle) {
    EXPECT_EQ(Ranglijst(TweeLijnen(), {"1", "1"}, false)->titel(), "Berekening voor lijn AB");
    const auto uitslag = MaakUitslag(TweeLijnen(), {"1", "1", ""}, "ABC");
    EXPECT_EQ(MaakRanglijst(uitslag, true)->titel(), "Berekening voor lijn ABC");
    EXPECT_EQ(MaakRanglijst(uitslag, true, true)->titel(), "Controlelijst voor lijn ABC");
}

TEST(Ranglijst, HasExactlySixColumnsWithoutDetails) {
    const auto lijst = Ranglijst(TweeLijnen(), {"1", "1"}, false);
    EXPECT_EQ(lijst->koppen(), (Teksten{"Nr", "Lijn", "Rang", "Paar", "AantZit", "Gemid %"}));
    EXPECT_EQ(lijst->kolommen(), 6U);
    EXPECT_EQ(Regel(*lijst, 1), "1|A|1|Lid 5 - Lid 6|1|61,000");
}

TEST(Ranglijst, HasAColumnPerSessionWithDetails) {
    const auto lijst = Ranglijst(TweeLijnen(), {"1", "1"}, true);
    EXPECT_EQ(lijst->koppen(), (Teksten{"Nr", "Lijn", "Rang", "Paar", "AantZit", "Gemid %",
                                        "R1-Z1-Sp", "R1-Z2-Sp"}));
    ASSERT_EQ(lijst->rijen(), 3U);
    EXPECT_EQ(Regel(*lijst, 1), "1|A|1|Lid 5 - Lid 6|1|61,000|61,000_20|");
    EXPECT_EQ(Regel(*lijst, 2), "2|A|2|Lid 1 - Lid 2|1|44,500|-|44,500_08");
    EXPECT_EQ(Regel(*lijst, 3), "3|B|1|Lid 3 - Lid 4|1|57,125|57,125_24|");
}

TEST(Ranglijst, ShowsNoEmptyRows) {
    const Scores scores({"1"}, {{'A', 1, 2, 1, 1, "0"}, {'A', 3, 4, 1, 1, "50"}});
    const auto uitslag = MaakUitslag(scores, {"0"});
    ASSERT_EQ(uitslag->resultaat.bovengrens, 2U);
    const auto lijst = MaakRanglijst(uitslag, false);
    ASSERT_EQ(lijst->rijen(), 1U);
    EXPECT_EQ(Regel(*lijst, 1), "1|A|1|Lid 3 - Lid 4|1|50,000");
}

TEST(Ranglijst, WithoutPairsHasItsHeadersAndNoRows) {
    const auto lijst = Ranglijst(Scores({"10"}, {}), {}, true);
    EXPECT_EQ(lijst->rijen(), 0U);
    EXPECT_EQ(lijst->kolommen(), 7U);
}

TEST(Ranglijst, KeepsItsColumnsWhateverTheOptionOfAnotherShowing) {
    const auto uitslag = MaakUitslag(TweeLijnen(), {"1", "1"});
    const auto zonder = MaakRanglijst(uitslag, false);
    const auto met = MaakRanglijst(uitslag, true);
    EXPECT_EQ(zonder->kolommen(), 6U);
    EXPECT_EQ(met->kolommen(), 8U);
}

TEST(Ranglijst, IsBoldFromLineToAverageInTheColourOfItsLine) {
    const auto lijst = Ranglijst(TweeLijnen(), {"1", "1"}, true);
    std::string vet;
    for (std::size_t kolom = 1; kolom <= lijst->kolommen(); ++kolom)
        vet += lijst->vet(kolom) ? 'v' : '-';
    EXPECT_EQ(vet, "-vvvvv--");
    EXPECT_EQ(lijst->lijn(1), 'A');
    EXPECT_EQ(lijst->lijn(3), 'B');
}

TEST(Ranglijst, ExplainsASessionInWords) {
    const Scores scores{
        {"11", "11"},
        {{'A', 1, 2, 1, 1, "54,32", 24}, {'A', 1, 2, 2, 2, "100", 1}, {'A', 1, 2, 2, 1, "0", 24}}};
    const auto lijst = Ranglijst(scores, {"1"}, true);
    ASSERT_EQ(Regel(*lijst, 1), "1|A|1|" + lijst->cel(1, 4) + "|2|77,160|54,320_24||-|100,000_01");
    EXPECT_EQ(lijst->uitleg(1, 7), "Ronde 1, zitting 1: 24 spellen, 54,320 %");
    EXPECT_EQ(lijst->uitleg(1, 8), "Ronde 1, zitting 2: niet gespeeld door dit paar");
    EXPECT_EQ(lijst->uitleg(1, 9), "Ronde 2, zitting 1: geen score die meetelt");
    EXPECT_EQ(lijst->uitleg(1, 10), "Ronde 2, zitting 2: 1 spel, 100,000 %");
    for (std::size_t kolom = 1; kolom <= 6; ++kolom)
        EXPECT_EQ(lijst->uitleg(1, kolom), "") << kolom;
    EXPECT_EQ(Controlelijst(scores)->uitleg(1, 5), "");
}

TEST(ZittingKoppen, RunOverRoundsAndSessionsWithoutLeadingZeros) {
    EXPECT_EQ(ZittingKoppen(Scores({"11", "11"}, {}).rondeInfo),
              (Teksten{"R1-Z1-Sp", "R1-Z2-Sp", "R2-Z1-Sp", "R2-Z2-Sp"}));
    const auto koppen = ZittingKoppen(Scores(Teksten(12, "1"), {}).rondeInfo);
    EXPECT_EQ(koppen.back(), "R12-Z1-Sp");
}

TEST(ZittingKoppen, TakeTheCountOfTheFirstRoundForEveryRound) {
    EXPECT_EQ(ZittingKoppen(Scores({"110", "111"}, {}).rondeInfo), // five columns, four headers
              (Teksten{"R1-Z1-Sp", "R1-Z2-Sp", "R2-Z1-Sp", "R2-Z2-Sp", ""}));
    EXPECT_EQ(ZittingKoppen(Scores({"111", "100"}, {}).rondeInfo), // six headers, four columns
              (Teksten{"R1-Z1-Sp", "R1-Z2-Sp", "R1-Z3-Sp", "R2-Z1-Sp"}));
}

TEST(ZittingKoppen, CountTheRoundsThatHaveASession) {
    EXPECT_EQ(ZittingKoppen(Scores({"10", "00", "11"}, {}).rondeInfo),
              (Teksten{"R1-Z1-Sp", "R2-Z1-Sp", ""}));
    EXPECT_EQ(ZittingKoppen(Scores({"00", "11"}, {}).rondeInfo), (Teksten{"", ""}));
    EXPECT_TRUE(ZittingKoppen(Scores({"00"}, {}).rondeInfo).empty());
    EXPECT_TRUE(ZittingKoppen(RondeInfo()).empty());
}

TEST(ZittingKoppen, StandAboveTheRealColumnsOfUnequalRounds) {
    const Scores scores(
        {"10", "11"}, {{'A', 1, 2, 1, 1, "51"}, {'A', 1, 2, 2, 1, "52"}, {'A', 1, 2, 2, 2, "53"}});
    const auto lijst = Ranglijst(scores, {"1"}, true);
    EXPECT_EQ(lijst->koppen().back(), "");
    EXPECT_EQ(Regel(*lijst, 1), "1|A|1|Lid 1 - Lid 2|3|52,000|51,000_24|52,000_24|53,000_24");
}

TEST(Controlelijst, OfALineCarriesTheTitleOfACalculation) {
    EXPECT_EQ(Controlelijst(TweeLijnen(), {"B", false, {}})->titel(), "Berekening voor lijn B");
    EXPECT_EQ(Controlelijst(TweeLijnen(), {"AB", false, "SMIT"})->titel(),
              "Berekening voor lijn AB");
}

TEST(Controlelijst, OfAMemberHasTheSearchTextInItsTitle) {
    EXPECT_EQ(Controlelijst(TweeLijnen(), {"ABC", true, "SMIT"})->titel(),
              "Controlelijst voor SMIT");
}

TEST(Controlelijst, HasNineColumns) {
    EXPECT_EQ(
        Controlelijst(TweeLijnen())->koppen(),
        (Teksten{"Nr", "Lijn", "Paarcode", "ZitPerc", "Ro-Zi-Sp", "-", "BUM", "-", "Paarnamen"}));
}

TEST(Controlelijst, ShowsTheScoreRowsAsTheyWereRead) {
    const Scores scores({"11", "11"}, {{'B', 305, 12, 1, 2, "57,125", 24},
                                       {'A', 1, 2, 2, 1, "44.5", 7, true},
                                       {'A', 98765432, 12345678, 1, 1, "60", 104}});
    const auto lijst = Controlelijst(scores);
    ASSERT_EQ(lijst->rijen(), 3U);
    EXPECT_EQ(Regel(*lijst, 1), "1|B|      12     305|57,1250|R01-Z02-24||||"
                                " - Lid 12");
    EXPECT_EQ(Regel(*lijst, 2), "2|A|       1       2|44,5000|R02-Z01-07||BUM||Lid 1 - Lid 2");
    EXPECT_EQ(Regel(*lijst, 3), "3|A|1234567898765432|60,0000|R01-Z01-104|||| - ");
}

TEST(Controlelijst, ShowsPercentagesWithFourDecimals) {
    const auto zitPerc = [](const std::string& tekst) {
        return Controlelijst(Scores({"1"}, {{'A', 1, 2, 1, 1, tekst}}))->cel(1, 4);
    };
    EXPECT_EQ(zitPerc("57,125"), "57,1250");
    EXPECT_EQ(zitPerc("5,5"), "5,5000");
    EXPECT_EQ(zitPerc(" 0.5 "), "0,5000");
    EXPECT_EQ(zitPerc("57,12345"), "57,1235");
    EXPECT_EQ(zitPerc("57,12344999"), "57,1234");
    EXPECT_EQ(zitPerc("100"), "100,0000");
    EXPECT_EQ(zitPerc("0"), "0,0000");
    EXPECT_EQ(zitPerc("05,"), "5,0000");
}

TEST(Controlelijst, ShowsWhatIsNoPercentageAsItStands) {
    const auto zitPerc = [](const std::string& tekst) {
        return Controlelijst(Scores({"1"}, {{'A', 1, 2, 1, 1, tekst}}))->cel(1, 4);
    };
    EXPECT_EQ(zitPerc(""), "");
    EXPECT_EQ(zitPerc("  "), "");
    EXPECT_EQ(zitPerc("niet gespeeld"), "niet gespeeld");
    EXPECT_EQ(zitPerc(" 101"), " 101");
    EXPECT_EQ(zitPerc("-5"), "-5");
    EXPECT_EQ(zitPerc("\xE9\xE9n"), "één");
}

TEST(Controlelijst, IsDrawnInNormalWeight) {
    const auto lijst = Controlelijst(TweeLijnen());
    for (std::size_t kolom = 1; kolom <= lijst->kolommen(); ++kolom)
        EXPECT_FALSE(lijst->vet(kolom)) << kolom;
    EXPECT_EQ(lijst->lijn(1), 'B');
}

TEST(Controlelijst, WithoutRowsHasItsHeaders) {
    const auto lijst = Controlelijst(Scores({"0"}, {}));
    EXPECT_EQ(lijst->rijen(), 0U);
    EXPECT_EQ(lijst->kolommen(), 9U);
}

} // namespace
} // namespace lauwerkrans
