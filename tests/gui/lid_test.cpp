// The control list of one member.
#include <gtest/gtest.h>

#include "vensterproef.h"

namespace lauwerkrans::proef {
namespace {

class Lid : public ::testing::Test {
protected:
    Lid() : proef(1, 2, 2) {
        proef.competitie.schrijfLeden(99, {{3, "Jan", "", "Jansen"},
                                           {17, "Piet", "van", "Berkelo"},
                                           {4, "René", "", "Quast"},
                                           {18, "Jansje", "", "Tromp"}});
        using P = ProefCompetitie;
        proef.competitie.schrijfZitting(
            1, 1, {P::regel("A1", "3-17", "60,000"), P::regel("B1", "4-18", "50,000")});
        proef.competitie.schrijfZitting(
            1, 2, {P::regel("A1", "3-4", "55,000"), P::regel("B1", "17-18", "45,000")});
        proef.start();
    }

    void zoek(const char* tekst) const {
        proef.vind<QLineEdit>("txtPersoon").setText(QString::fromUtf8(tekst));
        proef.klik("cmdControleLijstLid");
    }
    [[nodiscard]] std::string uitvoer() const {
        return proef.vind<QAbstractButton>("cmdPrinten").text().toStdString();
    }

    Vensterproef proef;
};

TEST_F(Lid, ShowsTheRowsOfEveryPairWithAMatchingNameInAllLines) {
    zoek(" jans ");
    EXPECT_EQ(proef.kop(), "Controlelijst voor JANS");
    EXPECT_EQ(proef.koppen(), "Nr|Lijn|Paarcode|ZitPerc|Ro-Zi-Sp|-|BUM|-|Paarnamen|");
    ASSERT_EQ(proef.rijen(), 4U);
    zoek("Jansen");
    ASSERT_EQ(proef.rijen(), 2U);
    EXPECT_EQ(proef.rij(2), "2|A|       3       4|55,0000|R01-Z02-24||||Jan Jansen - "
                            "Ren\xC3\xA9 Quast");
    EXPECT_EQ(uitvoer(), "Print deze controlelijst");
    EXPECT_TRUE(proef.venster->printbaar());
    EXPECT_TRUE(proef.venster->PersoonFilterAan());
}

TEST_F(Lid, AccentsAndAnyPartOfTheNameCount) {
    zoek("REN\xC3\x89");
    EXPECT_EQ(proef.rijen(), 2U);
    zoek("n\xC3\xA9 q");
    EXPECT_EQ(proef.rijen(), 2U);
    zoek("van berk");
    EXPECT_EQ(proef.rijen(), 2U);
}

TEST_F(Lid, EnterInTheBoxStartsTheSearch) {
    proef.typ("txtPersoon", "tromp");
    QTest::keyClick(&proef.vind<QWidget>("txtPersoon"), Qt::Key_Return);
    EXPECT_EQ(proef.kop(), "Controlelijst voor TROMP");
}

TEST_F(Lid, WithoutATextComesAMessageAndNothingElse) {
    proef.klik("cmd2_1");
    zoek("   ");
    ASSERT_EQ(proef.competitie.meldingen.getoond.size(), 1U);
    EXPECT_EQ(proef.competitie.meldingen.getoond[0],
              (Melding{"U moet eerst een achternaam of een gedeelte van de achternaam intypen!",
                       Icoon::Uitroep}));
    EXPECT_EQ(proef.kop(), "Berekening voor lijn A");
    EXPECT_EQ(proef.rijen(), 2U);
    EXPECT_EQ(uitvoer(), "Uitvoerlijsten ...");
    EXPECT_FALSE(proef.venster->PersoonFilterAan());
}

TEST_F(Lid, TheCaptionOfTheButtonHasChangedWhenTheMessageComes) {
    std::string tijdens;
    proef.competitie.algemeen.meld = [&](const Melding&) { tijdens = uitvoer(); };
    zoek("");
    EXPECT_EQ(tijdens, "Print deze controlelijst");
}

TEST_F(Lid, ANameThatNobodyHasGivesAnEmptyListThatIsNotPrintable) {
    proef.typ("txt1_1", "1");
    proef.klik("cmd1_1");
    ASSERT_TRUE(proef.venster->printbaar());
    zoek("xyz");
    EXPECT_EQ(proef.kop(), "Controlelijst voor XYZ");
    EXPECT_EQ(proef.rijen(), 0U);
    EXPECT_FALSE(proef.venster->printbaar());
    EXPECT_TRUE(proef.competitie.meldingen.getoond.empty());
}

TEST_F(Lid, BerekenAndControleEndTheMemberList) {
    proef.typ("txt1_1", "1");
    zoek("jansen");
    proef.klik("cmd1_1");
    EXPECT_FALSE(proef.venster->PersoonFilterAan());
    EXPECT_EQ(uitvoer(), "Uitvoerlijsten ...");
    EXPECT_EQ(proef.rijen(), 2U);
    zoek("jansen");
    proef.klik("cmd2_0");
    EXPECT_FALSE(proef.venster->PersoonFilterAan());
    EXPECT_EQ(uitvoer(), "Uitvoerlijsten ...");
    EXPECT_EQ(proef.rijen(), 4U);
}

TEST_F(Lid, TheLastRankingStaysBehindTheMemberList) {
    proef.typ("txt1_1", "1");
    proef.klik("cmd1_1");
    zoek("tromp");
    ASSERT_NE(proef.venster->uitslag(), nullptr);
    EXPECT_EQ(proef.venster->uitslag()->GekozenLijnen, "A");
}

} // namespace
} // namespace lauwerkrans::proef
