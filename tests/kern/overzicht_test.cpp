// "Bereken" and "Controle" on the files of a competition.
#include "calc/overzicht.h"

#include <gtest/gtest.h>

#include "calc/lijsten.h"
#include "data/fout.h"
#include "proef.h"
#include "scores.h"

namespace lauwerkrans {
namespace {

using proef::ProefCompetitie;
using proef::Stand;
using Teksten = std::vector<std::string>;

/// Two lines, two rounds of two sessions of which three were played. 1-2 play in A, then in B.
class Overzicht : public testing::Test {
protected:
    Overzicht() : proef(2, 2, 2) {
        proef.schrijfLeden(9, {{1, "An", "", "Aa"},
                               {2, "Ben", "van", "Bo"},
                               {3, "Cor", "", "Co"},
                               {4, "Dik", "", "Do"},
                               {5, "Els", "", "Ee"},
                               {6, "Fem", "", "Fa"}});
        proef.schrijfZitting(1, 1,
                             {ProefCompetitie::regel("A1", "1-2", "60,000"),
                              ProefCompetitie::regel("B1", "4-3", "50,000")});
        proef.schrijfZitting(1, 2,
                             {ProefCompetitie::regel("B2", "2-1", "40,000", 12),
                              ProefCompetitie::regel("A2", "5-6", "55,500")});
        proef.schrijfZitting(2, 1,
                             {ProefCompetitie::regel("A1", "1-2", "58,000"),
                              ProefCompetitie::regel("A2", "6-5", "70,000")});
        proef.schrijfBums(2, {{5, 6}});
        proef.laad();
    }

    Teksten stand(const std::string& lijnen, const Criteria& criteria, const Opties& opties = {}) {
        return Stand(Bereken(proef.algemeen, lijnen, criteria, opties)->resultaat);
    }

    Teksten controle(const Selectie& selectie) {
        const auto lijst = MaakControlelijst(Controleer(proef.algemeen, selectie));
        Teksten rijen;
        for (std::size_t rij = 1; rij <= lijst->rijen(); ++rij) {
            rijen.push_back(lijst->cel(rij, 2) + " " + lijst->cel(rij, 4) + " " +
                            lijst->cel(rij, 5) + " " + lijst->cel(rij, 7) + " " +
                            lijst->cel(rij, 9));
        }
        return rijen;
    }

    ProefCompetitie proef;
};

TEST_F(Overzicht, OfOneLineHoldsOnlyThatLine) {
    EXPECT_EQ(stand("A", {"1", ""}),
              (Teksten{"A|1|An Aa - Ben van Bo|2|59,000", "A|2|Els Ee - Fem Fa|1|55,500"}));
    EXPECT_EQ(stand("B", {"", "1"}),
              (Teksten{"B|1|Cor Co - Dik Do|1|50,000", "B|2|An Aa - Ben van Bo|1|40,000"}));
}

TEST_F(Overzicht, OfAllLinesGoesLineByLine) {
    EXPECT_EQ(stand("AB", {"2", "1"}),
              (Teksten{"A|1|An Aa - Ben van Bo|2|59,000", "B|1|Cor Co - Dik Do|1|50,000",
                       "B|2|An Aa - Ben van Bo|1|40,000"}));
}

TEST_F(Overzicht, OfOneLineOverAllLinesTogetherRanksOnlyThatLine) {
    EXPECT_EQ(stand("B", {"", "1"}, {.gemAlleLijnen = true}),
              (Teksten{"B|1|Cor Co - Dik Do|1|50,000", "B|2|An Aa - Ben van Bo|1|40,000"}));
}

TEST_F(Overzicht, TakesTheOptionsOfEachCalculation) {
    EXPECT_EQ(stand("AB", {"3", "2"}, {.gemAlleLijnen = true}),
              Teksten{"A|1|An Aa - Ben van Bo|3|52,667"});
    EXPECT_EQ(stand("AB", {"3", "2"}, {.gewogen = true, .gemAlleLijnen = true}),
              Teksten{"A|1|An Aa - Ben van Bo|3|55,200"});
    EXPECT_EQ(stand("AB", {"2", "2"}, {.buiMed = true}),
              (Teksten{"A|1|Els Ee - Fem Fa|2|62,750", "A|2|An Aa - Ben van Bo|2|59,000"}));
}

TEST_F(Overzicht, KeepsWhatItWasMadeWith) {
    const Opties opties{.gewogen = true};
    const auto uitslag = Bereken(proef.algemeen, "A", {"1", "x"}, opties);
    EXPECT_EQ(uitslag->GekozenLijnen, "A");
    EXPECT_EQ(uitslag->criteria, (Criteria{"1", "x"}));
    EXPECT_EQ(uitslag->opties, opties);
    EXPECT_EQ(uitslag->rondeInfo.totaal(), 3U);
}

TEST_F(Overzicht, WithASingleLineIsTheSameForTheLineAndForAlle) {
    ProefCompetitie een(1, 1, 1);
    een.schrijfZitting(1, 1, {ProefCompetitie::regel("A1", "1-2", "60,000")});
    een.laad();
    const std::string alle = LijnenVanRij(een.algemeen.LijnTabel, 0);
    EXPECT_EQ(alle, LijnenVanRij(een.algemeen.LijnTabel, 1));
    EXPECT_EQ(Stand(Bereken(een.algemeen, alle, {"1"}, {})->resultaat),
              Teksten{"A|1| - |1|60,000"});
}

TEST_F(Overzicht, ReadsTheFilesAfreshEachTime) {
    static_cast<void>(stand("A", {"1", ""}));
    proef.schrijfZitting(2, 2, {ProefCompetitie::regel("A1", "1-2", "74,000")});
    proef.schrijfBums(1, {{1, 2}});
    EXPECT_EQ(stand("A", {"2", ""}), Teksten{"A|1|An Aa - Ben van Bo|2|66,000"}); // 58 and 74
    EXPECT_EQ(proef.algemeen.rondeInfo.totaal(), 4U);
    EXPECT_EQ(proef.algemeen.BumLijst.bovengrens(), 2U);
}

TEST_F(Overzicht, ThatFailsLeavesTheRoundsAsTheyWere) {
    proef.schrijfZitting(2, 2, {ProefCompetitie::regel("A1", "1-2", "x")});
    EXPECT_THROW(static_cast<void>(stand("A", {"1", ""})), Fout);
    EXPECT_EQ(proef.algemeen.rondeInfo.totaal(), 3U);
    proef.schrijfZitting(2, 2, {"a,b"});
    EXPECT_THROW(static_cast<void>(controle({"A", false, {}})), Fout);
    EXPECT_EQ(proef.algemeen.rondeInfo.totaal(), 3U);
}

TEST_F(Overzicht, WithoutScoresIsEmptyWithoutAnError) {
    ProefCompetitie leeg(1, 1, 1);
    leeg.schrijfLeden(1, {{1, "An", "", "Aa"}});
    leeg.laad();
    EXPECT_TRUE(stand("", {"", ""}).empty());
    EXPECT_TRUE(Stand(Bereken(leeg.algemeen, "A", {""}, {})->resultaat).empty());
    EXPECT_TRUE(leeg.meldingen.getoond.empty());
}

TEST_F(Overzicht, ForCheckingShowsTheRowsAsTheFilesHaveThem) {
    EXPECT_EQ(controle({"AB", false, {}}), (Teksten{"A 60,0000 R01-Z01-24  An Aa - Ben van Bo",
                                                    "B 50,0000 R01-Z01-24  Dik Do - Cor Co",
                                                    "B 40,0000 R01-Z02-12  Ben van Bo - An Aa",
                                                    "A 55,5000 R01-Z02-24  Els Ee - Fem Fa",
                                                    "A 58,0000 R02-Z01-24  An Aa - Ben van Bo",
                                                    "A 70,0000 R02-Z01-24 BUM Fem Fa - Els Ee"}));
}

TEST_F(Overzicht, ForCheckingALineNeedsNoCriterion) {
    EXPECT_EQ(controle({"B", false, {}}), (Teksten{"B 50,0000 R01-Z01-24  Dik Do - Cor Co",
                                                   "B 40,0000 R01-Z02-12  Ben van Bo - An Aa"}));
}

TEST_F(Overzicht, ForCheckingAMemberHoldsOnlyThatMembersPairs) {
    EXPECT_EQ(controle({"AB", true, "FA"}), (Teksten{"A 55,5000 R01-Z02-24  Els Ee - Fem Fa",
                                                     "A 70,0000 R02-Z01-24 BUM Fem Fa - Els Ee"}));
    EXPECT_TRUE(controle({"AB", true, "ZZ"}).empty());
}

/// A calculation of lines A and C with the criteria 3, 4 and 5.
Uitslag Berekend() {
    Uitslag uitslag;
    uitslag.GekozenLijnen = "AC";
    uitslag.criteria = {"3", "4", "5"};
    return uitslag;
}

TEST(Geldt, ForTheCriteriaOfItsOwnLinesOnly) {
    EXPECT_TRUE(Geldt(Berekend(), {"3", "4", "5"}, {}));
    EXPECT_TRUE(Geldt(Berekend(), {"3", "9", "5"}, {}));
    EXPECT_FALSE(Geldt(Berekend(), {"2", "4", "5"}, {}));
    EXPECT_FALSE(Geldt(Berekend(), {"3", "4", ""}, {}));
}

TEST(Geldt, ForTheOptionsThatTakePartInTheCalculation) {
    const Criteria criteria = {"3", "4", "5"};
    Opties opties;
    opties.zitDetails = true;
    EXPECT_TRUE(Geldt(Berekend(), criteria, opties));
    for (bool Opties::*optie : {&Opties::gewogen, &Opties::gemAlleLijnen, &Opties::buiMed}) {
        Opties anders;
        anders.*optie = true;
        EXPECT_FALSE(Geldt(Berekend(), criteria, anders));
    }
}

} // namespace
} // namespace lauwerkrans
