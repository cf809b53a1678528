// The criteria rows: their controls, the key filter and the message for a number that is too high.
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLabel>

#include "ui/stijl.h"
#include "vensterproef.h"

namespace lauwerkrans::proef {
namespace {

class CriteriaTest : public ::testing::Test {
protected:
    CriteriaTest() : proef(1, 1, 3) {
        proef.competitie.schrijfLeden(9, {});
        proef.start();
    }

    [[nodiscard]] const std::vector<Melding>& meldingen() const {
        return proef.competitie.meldingen.getoond;
    }
    [[nodiscard]] QString tekst(const char* naam) const {
        return proef.vind<QLineEdit>(naam).text();
    }

    Vensterproef proef;
};

TEST_F(CriteriaTest, HasARowPerLineBelowTheRowAlle) {
    EXPECT_EQ(proef.vind<QLabel>("lbl1_0").text(), QStringLiteral("Alle"));
    EXPECT_TRUE(proef.vind<QWidget>("lbl1_0").isVisible());
    EXPECT_FALSE(proef.vind<QWidget>("txt1_0").isVisible());
    for (int i = 1; i <= 3; ++i) {
        const std::string nummer = std::to_string(i);
        const auto& label = proef.vind<QLabel>(("lbl1_" + nummer).c_str());
        EXPECT_EQ(label.text(), QString(QChar('A' + i - 1)));
        EXPECT_EQ(maten::PlaatsVan(label), (Vak{120, 240.0 + 300 * i, 615, 255}));
        EXPECT_TRUE(proef.vind<QWidget>(("txt1_" + nummer).c_str()).isVisible());
        EXPECT_EQ(proef.vind<QAbstractButton>(("cmd1_" + nummer).c_str()).text(),
                  QStringLiteral("Bereken"));
        EXPECT_EQ(proef.vind<QAbstractButton>(("cmd2_" + nummer).c_str()).text(),
                  QStringLiteral("Controle"));
    }
    EXPECT_FALSE(proef.heeft("lbl1_4"));
    EXPECT_EQ(proef.vind<QWidget>("cmd1_0").palette().color(QPalette::Active, QPalette::Button),
              QColor(0, 255, 0));
}

TEST_F(CriteriaTest, RebuildingLeavesNoSurplusRows) {
    proef.venster->Verwijder_LblTxtCmds();
    EXPECT_FALSE(proef.heeft("lbl1_1"));
    EXPECT_TRUE(proef.heeft("lbl1_0"));
    proef.competitie.map().schrijf(proef.competitie.competitieMap() + "Ronde-1/RondeData.txt",
                                   "a,b,c,d,e,f,g,1\r\n");
    proef.venster->HaalCompLijnen_ORV();
    EXPECT_TRUE(proef.heeft("txt1_1"));
    EXPECT_FALSE(proef.heeft("txt1_2"));
    EXPECT_TRUE(meldingen().empty());
}

TEST_F(CriteriaTest, AcceptsDigitsOnlyAndNoBackspace) {
    proef.typ("txt1_1", "1a-, 7");
    EXPECT_EQ(tekst("txt1_1"), QStringLiteral("17"));
    auto& vak = proef.vind<QLineEdit>("txt1_1");
    QTest::keyClick(&vak, Qt::Key_Backspace);
    QTest::keyClick(&vak, Qt::Key_Backspace, Qt::ControlModifier);
    QTest::keyClick(&vak, Qt::Key_Return);
    EXPECT_EQ(vak.text(), QStringLiteral("17"));
    QTest::keyClick(&vak, Qt::Key_Home);
    QTest::keyClick(&vak, Qt::Key_Delete);
    EXPECT_EQ(vak.text(), QStringLiteral("7"));
}

TEST_F(CriteriaTest, NothingIsPasted) {
    QApplication::clipboard()->setText(QStringLiteral("12"));
    auto& vak = proef.vind<QLineEdit>("txt1_1");
    vak.setFocus();
    QTest::keyClick(&vak, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(&vak, Qt::Key_Insert, Qt::ShiftModifier);
    QTest::mouseClick(&vak, Qt::MiddleButton);
    EXPECT_EQ(vak.text(), QString());
    EXPECT_FALSE(vak.acceptDrops());
    EXPECT_EQ(vak.contextMenuPolicy(), Qt::NoContextMenu);
}

TEST_F(CriteriaTest, TypingReplacesWhatABoxHeld) {
    proef.typ("txt1_1", "12");
    QTest::keyClick(&proef.vind<QWidget>("txt1_1"), Qt::Key_Tab);
    proef.typ("txt1_1", "9");
    EXPECT_EQ(tekst("txt1_1"), QStringLiteral("9"));
}

/// The way to mend a slip of the finger, for there is no Backspace.
TEST_F(CriteriaTest, ADoubleClickLetsTheNumberBeTypedAgain) {
    proef.typ("txt1_1", "137");
    auto& vak = proef.vind<QWidget>("txt1_1");
    QTest::mouseDClick(&vak, Qt::LeftButton);
    QTest::keyClick(&vak, '1');
    QTest::keyClick(&vak, '3');
    EXPECT_EQ(tekst("txt1_1"), QStringLiteral("13"));
}

TEST_F(CriteriaTest, TwentyOneGivesTheMessageAndTheFocusBack) {
    proef.typ("txt1_2", "21");
    QTest::keyClick(&proef.vind<QWidget>("txt1_2"), Qt::Key_Tab);
    QCoreApplication::processEvents();
    ASSERT_EQ(meldingen().size(), 1U);
    EXPECT_EQ(meldingen()[0],
              (Melding{"21 aantal zittingen bij lijn B niet goed! Maximaal 20", Icoon::Geen}));
    EXPECT_TRUE(proef.vind<QWidget>("txt1_2").hasFocus());
    EXPECT_EQ(tekst("txt1_2"), QStringLiteral("21"));
}

TEST_F(CriteriaTest, TwentyGivesNone) {
    proef.typ("txt1_2", "20");
    QTest::keyClick(&proef.vind<QWidget>("txt1_2"), Qt::Key_Tab);
    QCoreApplication::processEvents();
    EXPECT_TRUE(meldingen().empty());
    EXPECT_TRUE(proef.vind<QWidget>("cmd1_2").hasFocus());
}

TEST_F(CriteriaTest, TheClickThatLeavesTheBoxIsHandledBeforeTheMessage) {
    proef.typ("txt1_1", "21");
    proef.competitie.meldingen.getoond.clear();
    proef.klik("cmd1_1"); // calculates with 21, then the message
    EXPECT_EQ(proef.kop(), "Berekening voor lijn A");
    ASSERT_EQ(meldingen().size(), 1U);
    EXPECT_EQ(meldingen()[0].tekst, "21 aantal zittingen bij lijn A niet goed! Maximaal 20");
    EXPECT_TRUE(proef.vind<QWidget>("txt1_1").hasFocus());
}

TEST_F(CriteriaTest, TwoBoxesThatAreTooHighDoNotLoop) {
    proef.vind<QLineEdit>("txt1_2").setText(QStringLiteral("40"));
    proef.typ("txt1_1", "30");
    proef.klik("txt1_2"); // leaves box 1; giving it back leaves box 2, which says nothing
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
    ASSERT_EQ(meldingen().size(), 1U);
    EXPECT_EQ(meldingen()[0].tekst, "30 aantal zittingen bij lijn A niet goed! Maximaal 20");
    EXPECT_TRUE(proef.vind<QWidget>("txt1_1").hasFocus());
}

TEST_F(CriteriaTest, EindeGivesNoMessage) {
    proef.typ("txt1_1", "21");
    proef.klik("cmdEinde");
    EXPECT_EQ(proef.einde, 1);
    EXPECT_TRUE(meldingen().empty());
    EXPECT_FALSE(proef.venster->isVisible());
}

TEST_F(CriteriaTest, TheTabOrderFollowsTheEye) {
    const std::array<const char*, 12> volgorde = {
        "txt1_1", "cmd1_1", "cmd2_1", "txt1_2",     "cmd1_2",        "cmd2_2",
        "txt1_3", "cmd1_3", "cmd2_3", "chkGewogen", "chkZitDetails", "chkGemAlleLijnen"};
    for (const char* naam : volgorde) {
        auto& element = proef.vind<QWidget>(naam);
        EXPECT_TRUE(element.hasFocus()) << naam;
        QTest::keyClick(&element, Qt::Key_Tab);
    }
}

TEST(CriteriaVeleLijnen, EveryRowCanBeReached) {
    Vensterproef proef(1, 1, 26);
    proef.competitie.schrijfLeden(9, {});
    proef.start();
    auto& schuif = proef.vind<QScrollBar>("VScroll1");
    EXPECT_TRUE(schuif.isEnabled());
    schuif.setValue(schuif.maximum());
    EXPECT_EQ(maten::PlaatsVan(proef.vind<QWidget>("P1")).boven, -10.0 - schuif.value());
    const auto& laatste = proef.vind<QWidget>("txt1_26");
    const auto& zicht = proef.vind<QWidget>("P0");
    EXPECT_LE(laatste.mapTo(&zicht, QPoint(0, laatste.height())).y(), zicht.height());
    schuif.setValue(0);
    proef.vind<QWidget>("txt1_26").setFocus();
    EXPECT_LE(laatste.mapTo(&zicht, QPoint(0, laatste.height())).y(), zicht.height());
}

} // namespace
} // namespace lauwerkrans::proef
