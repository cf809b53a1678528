// From typing a criterion to the list in the grid, with real events on the real window.
#include <gtest/gtest.h>

#include <QApplication>

#include "vensterproef.h"

namespace lauwerkrans::proef {
namespace {

/// Two lines, two rounds of two sessions, the last not played yet. In line A the pairs 3-17 and
/// 4-18 tie with 55,000 over three sessions; 5-19 played two. In line B one pair plays the second
/// round out of competition.
class Bereken : public ::testing::Test {
protected:
    Bereken() : proef(2, 2, 2) {
        proef.competitie.schrijfLeden(99, {{3, "Jan", "", "Smit"},
                                           {17, "Piet", "van", "Berkelo"},
                                           {4, "Ria", "", "Quast"},
                                           {18, "Zoë", "", "Tromp"},
                                           {5, "Wim", "de", "Wit"},
                                           {19, "Kees", "", "Ulft"},
                                           {6, "Els", "", "Vos"},
                                           {20, "Bas", "", "Yntema"}});
        using P = ProefCompetitie;
        proef.competitie.schrijfZitting(
            1, 1,
            {P::regel("A1", "3-17", "60,000", 24), P::regel("A2", "4-18", "50,000", 12),
             P::regel("A3", "5-19", "70,125", 24), P::regel("B1", "6-20", "45,500", 24)});
        proef.competitie.schrijfZitting(
            1, 2,
            {P::regel("A1", "17-3", "50,000", 24), P::regel("A2", "4-18", "60,000", 24),
             P::regel("A3", "5-19", "30,000", 24), P::regel("B1", "6-20", "54,500", 24)});
        proef.competitie.schrijfZitting(2, 1,
                                        {P::regel("A1", "3-17", "55,000", 24),
                                         P::regel("A2", "4-18", "55,000", 24),
                                         P::regel("B1", "6-20", "90,000", 24)});
        proef.competitie.schrijfBums(2, {{6, 20}});
        proef.start();
    }

    [[nodiscard]] const std::vector<Melding>& meldingen() const {
        return proef.competitie.meldingen.getoond;
    }

    Vensterproef proef;
};

TEST_F(Bereken, StartShowsTheCompetitionAndAnEmptyGrid) {
    EXPECT_TRUE(proef.gestart);
    EXPECT_TRUE(meldingen().empty());
    EXPECT_EQ(proef.kop(), "Resultaat voor: Proef");
    EXPECT_EQ(proef.vind<KopLabel>("Label1").bijschrift().toStdString(), "Proef");
    EXPECT_EQ(proef.rijen(), 0U);
    EXPECT_FALSE(proef.venster->printbaar());
    EXPECT_TRUE(proef.vind<QWidget>("txt1_1").hasFocus());
}

TEST_F(Bereken, OfOneLineShowsItsRanking) {
    proef.typ("txt1_1", "3");
    proef.klik("cmd1_1");
    EXPECT_EQ(proef.kop(), "Berekening voor lijn A");
    EXPECT_EQ(proef.koppen(), "Nr|Lijn|Rang|Paar|AantZit|Gemid %|");
    ASSERT_EQ(proef.rijen(), 2U);
    EXPECT_EQ(proef.rij(1), "1|A|(1)|Jan Smit - Piet van Berkelo|3|55,000");
    EXPECT_EQ(proef.rij(2), "2|A|(1)|Ria Quast - Zo\xC3\xAB Tromp|3|55,000");
    EXPECT_TRUE(proef.venster->printbaar());
    EXPECT_TRUE(meldingen().empty());
}

TEST_F(Bereken, OfAlleShowsAllLines) {
    proef.typ("txt1_1", "2");
    proef.typ("txt1_2", "2");
    proef.klik("cmd1_0");
    EXPECT_EQ(proef.kop(), "Berekening voor lijn AB");
    ASSERT_EQ(proef.rijen(), 4U);
    EXPECT_EQ(proef.rij(3), "3|A|3|Wim de Wit - Kees Ulft|2|50,063");
    EXPECT_EQ(proef.rij(4), "4|B|1|Els Vos - Bas Yntema|2|50,000");
}

TEST_F(Bereken, ReadsTheOptionsOfTheMomentOfThePress) {
    proef.typ("txt1_1", "3");
    proef.klik("chkGewogen");
    proef.klik("cmd1_1");
    // (12 x 50 + 24 x 60 + 24 x 55) / 60 = 56
    EXPECT_EQ(proef.rij(1), "1|A|1|Ria Quast - Zo\xC3\xAB Tromp|3|56,000");
    proef.klik("chkGewogen");
    EXPECT_EQ(proef.rij(1), "1|A|1|Ria Quast - Zo\xC3\xAB Tromp|3|56,000");
    proef.klik("cmd1_1");
    EXPECT_EQ(proef.rij(1), "1|A|(1)|Jan Smit - Piet van Berkelo|3|55,000");
}

TEST_F(Bereken, OverAllLinesRanksThemTogether) {
    proef.typ("txt1_1", "2");
    proef.typ("txt1_2", "2");
    proef.klik("chkGemAlleLijnen");
    proef.klik("chkBuiMed");
    proef.klik("cmd1_0");
    EXPECT_EQ(proef.rij(1), "1|B|1|Els Vos - Bas Yntema|3|63,333");
    EXPECT_EQ(proef.rij(2), "2|A|(2)|Jan Smit - Piet van Berkelo|3|55,000");
}

TEST_F(Bereken, SessionDetailsTakeEffectAtTheNextShowing) {
    proef.typ("txt1_2", "1");
    proef.klik("cmd1_2");
    proef.klik("chkZitDetails");
    EXPECT_EQ(proef.koppen(), "Nr|Lijn|Rang|Paar|AantZit|Gemid %|");
    proef.klik("cmd1_2");
    EXPECT_EQ(proef.koppen(), "Nr|Lijn|Rang|Paar|AantZit|Gemid %|R1-Z1-Sp|R1-Z2-Sp|R2-Z1-Sp|");
    EXPECT_EQ(proef.rij(1), "1|B|1|Els Vos - Bas Yntema|2|50,000|45,500_24|54,500_24|-");
}

TEST_F(Bereken, WithoutAPairThatReachesTheMinimumIsNotPrintable) {
    proef.typ("txt1_1", "9");
    proef.klik("cmd1_1");
    EXPECT_EQ(proef.rijen(), 0U);
    EXPECT_FALSE(proef.venster->printbaar());
}

TEST_F(Bereken, AnEmptyCriterionGivesItsMessageAndTheFocusAndKeepsTheList) {
    proef.typ("txt1_1", "3");
    proef.klik("cmd1_1");
    proef.klik("cmd1_0");
    ASSERT_EQ(meldingen().size(), 1U);
    EXPECT_EQ(
        meldingen()[0],
        (Melding{"Geef bij lijn B een heel getal als minimum aantal zittingen.", Icoon::Uitroep}));
    EXPECT_TRUE(proef.vind<QWidget>("txt1_2").hasFocus());
    EXPECT_EQ(proef.kop(), "Berekening voor lijn A");
    EXPECT_EQ(proef.rijen(), 2U);
    EXPECT_TRUE(proef.venster->printbaar());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Bereken, ACriterionThatCannotBeUsedIsReportedOnceThoughItIsTooHighAsWell) {
    proef.typ("txt1_1", "99999");
    proef.klik("cmd1_1");
    ASSERT_EQ(meldingen().size(), 1U);
    EXPECT_EQ(meldingen()[0].tekst, "Geef bij lijn A een heel getal als minimum aantal zittingen.");
    EXPECT_TRUE(proef.vind<QWidget>("txt1_1").hasFocus());
    QTest::keyClick(&proef.vind<QWidget>("txt1_1"), Qt::Key_Tab);
    QCoreApplication::processEvents();
    ASSERT_EQ(meldingen().size(), 2U) << "now it is left as it was";
    EXPECT_EQ(meldingen()[1].tekst, "99999 aantal zittingen bij lijn A niet goed! Maximaal 20");
}

TEST_F(Bereken, AMalformedFileIsReportedOnceAndKeepsTheList) {
    proef.typ("txt1_1", "3");
    proef.klik("cmd1_1");
    proef.competitie.schrijfZitting(2, 1, {"1,2,A1,3-17,55,000,24,0"});
    proef.klik("cmd1_1");
    ASSERT_EQ(meldingen().size(), 1U);
    EXPECT_EQ(meldingen()[0].icoon, Icoon::Uitroep);
    EXPECT_NE(meldingen()[0].tekst.find("PercZit-1.txt', regel 1:"), std::string::npos)
        << meldingen()[0].tekst;
    EXPECT_EQ(proef.rijen(), 2U);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Bereken, UsesWhatTheSuiteWroteMeanwhile) {
    proef.typ("txt1_1", "4");
    proef.klik("cmd1_1");
    EXPECT_EQ(proef.rijen(), 0U);
    proef.competitie.schrijfZitting(2, 2, {ProefCompetitie::regel("A1", "3-17", "35,000")});
    proef.klik("cmd1_1");
    ASSERT_EQ(proef.rijen(), 1U);
    EXPECT_EQ(proef.rij(1), "1|A|1|Jan Smit - Piet van Berkelo|4|50,000");
}

TEST_F(Bereken, ControleShowsTheRowsAsReadAndDisablesPrinting) {
    proef.typ("txt1_1", "3");
    proef.klik("cmd1_1");
    ASSERT_TRUE(proef.venster->printbaar());
    proef.klik("cmd2_2");
    EXPECT_FALSE(proef.venster->printbaar());
    EXPECT_EQ(proef.kop(), "Berekening voor lijn B");
    EXPECT_EQ(proef.koppen(), "Nr|Lijn|Paarcode|ZitPerc|Ro-Zi-Sp|-|BUM|-|Paarnamen|");
    ASSERT_EQ(proef.rijen(), 3U);
    EXPECT_EQ(proef.rij(1), "1|B|       6      20|45,5000|R01-Z01-24||||Els Vos - Bas Yntema");
    EXPECT_EQ(proef.rij(3), "3|B|       6      20|90,0000|R02-Z01-24||BUM||Els Vos - Bas Yntema");
    ASSERT_NE(proef.venster->uitslag(), nullptr);
    EXPECT_EQ(proef.venster->uitslag()->GekozenLijnen, "A");
}

TEST_F(Bereken, ControleOfAlleNeedsNoCriterion) {
    proef.klik("cmd2_0");
    EXPECT_EQ(proef.kop(), "Berekening voor lijn AB");
    EXPECT_EQ(proef.rijen(), 11U);
    EXPECT_EQ(proef.rij(3), "3|A|       5      19|70,1250|R01-Z01-24||||Wim de Wit - Kees Ulft");
    EXPECT_TRUE(meldingen().empty());
}

TEST_F(Bereken, EveryColumnHasItsHeaderButtonAboveItsCells) {
    proef.klik("cmd2_0");
    const auto& x = proef.vind<TabelLijf>("P21").beeld().x;
    ASSERT_EQ(x.size(), 10U);
    const auto& laatste = proef.vind<QPushButton>("cmd20_9");
    EXPECT_EQ(laatste.text(), QStringLiteral("Paarnamen"));
    EXPECT_NEAR(laatste.x(), maten::MmNaarPixels(x[8]), 0.5);
    EXPECT_FALSE(proef.vind<QPushButton>("cmd20_0").isVisible());
    proef.typ("txt1_1", "1");
    proef.klik("cmd1_1");
    EXPECT_TRUE(proef.heeft("cmd20_6"));
    EXPECT_FALSE(proef.heeft("cmd20_7"));
}

} // namespace
} // namespace lauwerkrans::proef
