// The main window as it stands on the screen: its size, its frames and buttons, what can never be
// seen, and where the keyboard goes.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetrics>
#include <QListWidget>
#include <QTextDocumentFragment>

#include "beeldproef.h"
#include "proeflijst.h"
#include "ui/stijl.h"
#include "vensterproef.h"

namespace lauwerkrans::proef {
namespace {

class VensterTest : public ::testing::Test {
protected:
    VensterTest() : proef(2, 2, 3) {
        proef.competitie.schrijfLeden(9, {});
        proef.start();
    }

    Vensterproef proef;
};

TEST_F(VensterTest, HasItsTitleAndItsStartSize) {
    EXPECT_EQ(proef.venster->windowTitle(),
              QStringLiteral("Bereken de Club- cq Lijnkampioenen van een parencompetitie."));
    EXPECT_EQ(proef.venster->size(), QSize(861, 480)); // 12915 x 7200 twips
}

TEST_F(VensterTest, CanGrowButNotShrinkBelowItsStartSize) {
    EXPECT_EQ(proef.venster->minimumSize(), QSize(861, 480));
    proef.venster->resize(600, 300);
    EXPECT_EQ(proef.venster->size(), QSize(861, 480));
    proef.venster->resize(861, 300);
    EXPECT_EQ(proef.venster->size(), QSize(861, 480));
    proef.venster->resize(2400, 1600);
    EXPECT_EQ(proef.venster->size(), QSize(2400, 1600));
}

bool IsBlauw(QColor kleur) { return kleur.blue() > kleur.red() + 60; }

TEST_F(VensterTest, FrameCaptionsAreBlueAndBold) {
    for (const char* naam : {"Frame1", "Frame3", "Frame4", "Frame5"}) {
        auto& kader = proef.vind<QGroupBox>(naam);
        const QRect titel(0, 0, kader.width(), 15);
        const QRect inkt = Omtrek(Beeld(kader), titel, IsBlauw);
        const QFontMetrics vet(Letters(11, true));
        const QFontMetrics gewoon(Letters(11, false));
        const int breedte = vet.boundingRect(kader.title()).width();
        ASSERT_GT(breedte - gewoon.boundingRect(kader.title()).width(), 2) << naam;
        EXPECT_NEAR(inkt.width(), breedte, 2) << naam;
        EXPECT_GE(inkt.top(), 1) << naam;
        EXPECT_LT(inkt.right(), kader.width() - 3) << naam;
    }
}

TEST_F(VensterTest, TheFrameOfTheSettingsHasABlackCaption) {
    auto& kader = proef.vind<QGroupBox>("Frame2");
    const QImage beeld = Beeld(kader);
    const QRect titel(0, 0, kader.width(), 15);
    EXPECT_TRUE(Omtrek(beeld, titel, IsBlauw).isEmpty());
    const QFontMetrics gewoon(Letters(11, false));
    const QRect inkt = Omtrek(beeld, titel, IsInkt);
    EXPECT_NEAR(inkt.width(), gewoon.boundingRect(kader.title()).width(), 2);
}

TEST_F(VensterTest, OnlyTheCaptionOfAFrameIsBlue) {
    const auto& kader = proef.vind<QGroupBox>("Frame5");
    EXPECT_EQ(kader.palette().color(QPalette::WindowText), QColor(0, 0, 0));
    EXPECT_EQ(proef.vind<QWidget>("Label4").palette().color(QPalette::WindowText), QColor(0, 0, 0));
}

TEST_F(VensterTest, ADisabledFrameHasNoBlueCaption) {
    auto& kader = proef.vind<QGroupBox>("Frame4");
    kader.setEnabled(false);
    EXPECT_TRUE(Omtrek(Beeld(kader), QRect(0, 0, kader.width(), 15), IsBlauw).isEmpty());
}

/// The colour of a button between its border and its caption.
QColor Knopkleur(QWidget& knop) { return Beeld(knop).pixelColor(5, knop.height() / 2); }

TEST_F(VensterTest, ButtonsAreSeenInTheirColours) {
    proef.vind<QWidget>("cmdPrinten").setEnabled(true);
    proef.vind<QWidget>("cmdToelichting").setEnabled(true);
    const std::vector<std::pair<const char*, QColor>> kleuren = {
        {"cmdPrinten", QColor(192, 255, 192)},
        {"cmdToelichting", QColor(255, 255, 192)},
        {"cmdEinde", QColor(128, 255, 128)},
        {"cmd1_0", QColor(0, 255, 0)}};
    for (const auto& [naam, kleur] : kleuren)
        EXPECT_EQ(Knopkleur(proef.vind<QWidget>(naam)), kleur) << naam;
}

TEST_F(VensterTest, AButtonThatIsHeldDownLooksDifferent) {
    auto& knop = proef.vind<QPushButton>("cmdEinde");
    const QColor los = Knopkleur(knop);
    knop.setDown(true);
    EXPECT_LT(Knopkleur(knop).lightness(), los.lightness());
}

TEST_F(VensterTest, ADisabledGreenButtonIsGrey) {
    auto& knop = proef.vind<QWidget>("cmdPrinten");
    ASSERT_FALSE(knop.isEnabled());
    const QColor kleur = Knopkleur(knop);
    EXPECT_NEAR(kleur.red(), kleur.green(), 2);
    EXPECT_NEAR(kleur.blue(), kleur.green(), 2);
}

/// The lengths (screen pixels) of the pieces of one colour along a row or a column of an image.
std::vector<int> Stukken(const QImage& beeld, QPoint begin, QPoint stap, QColor kleur) {
    std::vector<int> stukken;
    bool binnen = false;
    for (QPoint p = begin; beeld.rect().contains(p); p += stap) {
        const bool raak = beeld.pixelColor(p) == kleur;
        if (raak && !binnen) stukken.push_back(0);
        if (raak) ++stukken.back();
        binnen = raak;
    }
    return stukken;
}

QImage Vergroot(QWidget& element, double schaal) {
    QImage beeld((QSizeF(element.size()) * schaal).toSize(), QImage::Format_ARGB32);
    beeld.setDevicePixelRatio(schaal);
    element.render(&beeld);
    return beeld;
}

TEST_F(VensterTest, LinesAreEquallyThickAtEveryScaleOfTheScreen) {
    auto lijst = MaakProefLijst(30, 8, 17);
    lijst->tekst = [](std::size_t, std::size_t) { return std::string(); };
    proef.toon(lijst);
    for (const double schaal : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        const int dikte = static_cast<int>(schaal);
        const QColor lijn(210, 210, 210);
        const QImage raster = Vergroot(proef.vind<QWidget>("P20"), schaal);
        const auto midden = static_cast<int>(30 * schaal);
        const std::vector<int> rijen = Stukken(raster, {midden, midden}, {0, 1}, lijn);
        EXPECT_GE(rijen.size(), 20U);
        for (const int stuk : rijen)
            EXPECT_EQ(stuk, dikte) << "a row at " << schaal;
        const std::vector<int> kolommen = Stukken(raster, {midden, midden}, {1, 0}, lijn);
        EXPECT_GE(kolommen.size(), 7U);
        for (const int stuk : kolommen)
            EXPECT_EQ(stuk, dikte) << "a column at " << schaal;

        const QImage kader = Vergroot(proef.vind<QWidget>("Frame5"), schaal);
        const QColor rand(180, 180, 180);
        const std::vector<int> randen = {dikte, dikte};
        const QPoint links(0, static_cast<int>(53 * schaal)); // between its box and its button
        EXPECT_EQ(Stukken(kader, links, {1, 0}, rand), randen) << "a frame at " << schaal;
        const QPoint boven(static_cast<int>(157 * schaal), 0); // beside both
        EXPECT_EQ(Stukken(kader, boven, {0, 1}, rand), randen) << "a frame at " << schaal;
    }
}

TEST_F(VensterTest, WhatIsTooWideForAPanelLeavesItsBorder) {
    proef.toon(MaakProefLijst(300, 20, 40));
    const QColor rand(160, 160, 160);
    for (const char* naam : {"P0", "P10", "P20"}) {
        const QImage beeld = Beeld(proef.vind<QWidget>(naam));
        const int rechts = beeld.width() - 1;
        const int onder = beeld.height() - 1;
        EXPECT_EQ(Stukken(beeld, {0, 0}, {1, 0}, rand), std::vector<int>{rechts + 1}) << naam;
        EXPECT_EQ(Stukken(beeld, {0, onder}, {1, 0}, rand), std::vector<int>{rechts + 1}) << naam;
        EXPECT_EQ(Stukken(beeld, {0, 0}, {0, 1}, rand), std::vector<int>{onder + 1}) << naam;
        EXPECT_EQ(Stukken(beeld, {rechts, 0}, {0, 1}, rand), std::vector<int>{onder + 1}) << naam;
    }
}

TEST_F(VensterTest, TheLettersOfTheLinesStandOnYellow) {
    const QImage beeld = Beeld(proef.vind<QWidget>("lbl1_2"));
    EXPECT_EQ(beeld.pixelColor(3, 3), QColor(255, 255, 192));
    EXPECT_TRUE(IsInkt(beeld.pixelColor(0, 5))) << "a single border";
    EXPECT_TRUE(IsInkt(beeld.pixelColor(beeld.width() - 1, 5)));
}

TEST_F(VensterTest, WhatLiesBelowItsFrameOrWorksInSilenceIsNeverSeen) {
    for (const char* naam : {"HScroll1", "List1", "lstCompSort", "Command1"}) {
        EXPECT_TRUE(proef.vind<QWidget>(naam).visibleRegion().isEmpty()) << naam;
    }
    proef.venster->resize(1600, 1200);
    QCoreApplication::processEvents();
    EXPECT_TRUE(proef.vind<QWidget>("HScroll1").visibleRegion().isEmpty());
    EXPECT_TRUE(proef.vind<QWidget>("HScroll1").isHidden()) << "to a screen reader too";
}

TEST_F(VensterTest, TheListOfTheCompetitionIsYellowBoldAndLarge) {
    auto& List2 = proef.vind<QListWidget>("List2");
    EXPECT_EQ(List2.font().pixelSize(), 16);
    EXPECT_TRUE(List2.font().bold());
    EXPECT_EQ(List2.palette().color(QPalette::Base), QColor(255, 255, 192));
}

TEST_F(VensterTest, TheTabKeyGoesThroughTheRestOfTheWindow) {
    for (const char* naam : {"cmdControleLijstLid", "cmdPrinten", "cmdToelichting"})
        proef.vind<QWidget>(naam).setEnabled(true);
    proef.vind<QWidget>("chkGewogen").setFocus();
    for (const char* naam :
         {"chkGewogen", "chkZitDetails", "chkGemAlleLijnen", "chkBuiMed", "txtPersoon",
          "cmdControleLijstLid", "txtKop1", "cmdPrinten", "P21", "cmdToelichting", "cmdEinde"}) {
        auto& element = proef.vind<QWidget>(naam);
        EXPECT_TRUE(element.hasFocus()) << naam;
        QTest::keyClick(&element, Qt::Key_Tab);
    }
    EXPECT_TRUE(proef.vind<QWidget>("cmd1_0").hasFocus()) << "back at the first row";
}

TEST_F(VensterTest, ScrollBarsAndHeaderButtonsTakeNoFocus) {
    proef.klik("cmd2_0");
    for (const char* naam : {"VScroll1", "VScroll10", "VScroll20", "HScroll20", "cmd10_1",
                             "cmd10_4", "cmd20_1", "cmd20_9"}) {
        EXPECT_EQ(proef.vind<QWidget>(naam).focusPolicy(), Qt::NoFocus) << naam;
    }
}

TEST_F(VensterTest, ALongNameIsWrittenSmallerThenCutShort) {
    auto& kop = proef.vind<KopLabel>("lblResultKop");
    kop.zetBijschrift(QStringLiteral("Kort"));
    EXPECT_EQ(kop.font().pixelSize(), 16);
    EXPECT_EQ(kop.toolTip(), QString());
    const QString passend = QStringLiteral("Resultaat voor: ") + QString(42, QLatin1Char('n'));
    kop.zetBijschrift(passend);
    EXPECT_LT(kop.font().pixelSize(), 16);
    EXPECT_GE(kop.font().pixelSize(), 12);
    EXPECT_EQ(kop.text(), passend);
    const QString teLang(200, QLatin1Char('n'));
    kop.zetBijschrift(teLang);
    EXPECT_EQ(kop.font().pixelSize(), 12);
    EXPECT_NE(kop.text(), teLang);
    EXPECT_LE(kop.fontMetrics().horizontalAdvance(kop.text()), kop.width());
    EXPECT_EQ(kop.toolTip(), teLang);
    EXPECT_EQ(kop.bijschrift(), teLang);
}

TEST_F(VensterTest, ANameThatLooksLikeMarkupStaysAsItIs) {
    auto& kop = proef.vind<KopLabel>("Label1");
    EXPECT_EQ(kop.textFormat(), Qt::PlainText);
    const QString naam = QStringLiteral("<b>") + QString(200, QLatin1Char('n'));
    kop.zetBijschrift(naam);
    const QString tip = kop.toolTip();
    const QString gezien =
        Qt::mightBeRichText(tip) ? QTextDocumentFragment::fromHtml(tip).toPlainText() : tip;
    EXPECT_EQ(gezien, naam);
}

TEST_F(VensterTest, TheHiddenButtonReadsTheOutOfCompetitionListsAgain) {
    ASSERT_EQ(proef.competitie.algemeen.BumLijst.bovengrens(), 0U);
    proef.competitie.schrijfBums(2, {{3, 17}});
    proef.vind<QPushButton>("Command1").click();
    EXPECT_EQ(proef.competitie.algemeen.BumLijst.bovengrens(), 1U);
}

} // namespace
} // namespace lauwerkrans::proef
