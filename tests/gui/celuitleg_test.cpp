// The tool tip over the session cells of a ranking.
#include "ui/celuitleg.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QToolTip>

#include "vensterproef.h"

namespace lauwerkrans::proef {
namespace {

using P = ProefCompetitie;

/// Two rounds of two sessions, of which 1-2 was not played. The first pair plays 1-1, 2-1 and 2-2,
/// the other 1-1 and, out of competition, 2-2.
class Uitleg : public ::testing::Test {
protected:
    Uitleg() : proef(2, 2, 1) {
        proef.competitie.schrijfLeden(9, {{1, "Jan", "", "Een"},
                                          {2, "Piet", "", "Twee"},
                                          {3, "Els", "", "Drie"},
                                          {4, "Bas", "", "Vier"}});
        proef.competitie.schrijfZitting(
            1, 1, {P::regel("A1", "1-2", "54,32", 24), P::regel("A2", "3-4", "45,68", 1)});
        proef.competitie.schrijfZitting(2, 1, {P::regel("A1", "1-2", "100", 5)});
        proef.competitie.schrijfZitting(
            2, 2, {P::regel("A1", "1-2", "50", 24), P::regel("A2", "3-4", "50", 24)});
        proef.competitie.schrijfBums(2, {{3, 4}});
        proef.start();
        proef.typ("txt1_1", "1");
    }
    ~Uitleg() override { wegMetTip(); }

    static void wegMetTip() {
        QToolTip::hideText();
        static_cast<void>(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    }
    void toon(bool details) {
        if (details) proef.klik("chkZitDetails");
        proef.klik("cmd1_1");
    }
    /// The tip over a point of the grid; empty when there is none.
    [[nodiscard]] std::string tipOp(QPoint punt) const {
        auto& P21 = proef.vind<TabelLijf>("P21");
        wegMetTip();
        QHelpEvent vraag(QEvent::ToolTip, punt, P21.mapToGlobal(punt));
        QApplication::sendEvent(&P21, &vraag);
        return QToolTip::isVisible() ? QToolTip::text().toStdString() : std::string();
    }
    [[nodiscard]] std::string tip(std::size_t rij, std::size_t kolom) const {
        return tipOp(proef.vind<TabelLijf>("P21").celVak(rij, kolom).toAlignedRect().center());
    }

    Vensterproef proef;
};

TEST_F(Uitleg, SaysRoundSessionBoardsAndPercentageInWords) {
    toon(true);
    ASSERT_EQ(proef.rij(1), "1|A|1|Jan Een - Piet Twee|3|68,107|54,320_24|100,000_05|50,000_24");
    EXPECT_EQ(tip(1, 7), "Ronde 1, zitting 1: 24 spellen, 54,320 %");
    EXPECT_EQ(tip(1, 8), "Ronde 2, zitting 1: 5 spellen, 100,000 %");
    EXPECT_EQ(tip(1, 9), "Ronde 2, zitting 2: 24 spellen, 50,000 %");
    EXPECT_EQ(tip(2, 7), "Ronde 1, zitting 1: 1 spel, 45,680 %");
}

TEST_F(Uitleg, SaysSoWhenThePairDidNotPlayOrItDoesNotCount) {
    toon(true);
    ASSERT_EQ(proef.rij(2), "2|A|2|Els Drie - Bas Vier|1|45,680|45,680_01||-");
    EXPECT_EQ(tip(2, 8), "Ronde 2, zitting 1: niet gespeeld door dit paar");
    EXPECT_EQ(tip(2, 9), "Ronde 2, zitting 2: geen score die meetelt");
}

TEST_F(Uitleg, OtherCellsAndPlacesHaveNone) {
    EXPECT_EQ(tipOp({40, 60}), "") << "an empty grid";
    toon(true);
    for (std::size_t kolom = 1; kolom <= 6; ++kolom)
        EXPECT_EQ(tip(1, kolom), "") << kolom;
    auto& P21 = proef.vind<TabelLijf>("P21");
    EXPECT_EQ(tipOp(P21.celVak(3, 7).toAlignedRect().center()), "") << "below the last row";
    EXPECT_EQ(tipOp(P21.celVak(1, 9).toAlignedRect().center() + QPoint(100, 0)), "")
        << "beside the table";
}

TEST_F(Uitleg, OtherListsHaveNone) {
    toon(false);
    EXPECT_EQ(tip(1, 6), "");
    proef.klik("cmd2_1");
    for (std::size_t kolom = 1; kolom <= 9; ++kolom)
        EXPECT_EQ(tip(1, kolom), "") << kolom;
}

TEST_F(Uitleg, GoesByTheEnlargedAndScrolledGrid) {
    toon(true);
    for (int i = 0; i < 15; ++i)
        QTest::keyClick(proef.venster->focusWidget(), Qt::Key_Plus, Qt::ControlModifier);
    auto& HScroll20 = proef.vind<QScrollBar>("HScroll20");
    HScroll20.setValue(HScroll20.maximum());
    EXPECT_EQ(tip(1, 9), "Ronde 2, zitting 2: 24 spellen, 50,000 %");
}

TEST_F(Uitleg, GoesWhenThePointerLeavesTheCell) {
    toon(true);
    auto& P21 = proef.vind<TabelLijf>("P21");
    ASSERT_NE(tip(1, 7), "");
    QTest::mouseMove(proef.venster->windowHandle(),
                     P21.mapTo(proef.venster.get(), P21.celVak(2, 5).toAlignedRect().center()));
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
}

} // namespace
} // namespace lauwerkrans::proef
