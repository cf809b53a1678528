// The keys of a preview.
#include "toetsproef.h"
#include "voorbeeldproef.h"

namespace lauwerkrans::proef {
namespace {

/// The preview of a list over several pages.
class ToetsenVoorbeeld : public UitvoerTest {
protected:
    ToetsenVoorbeeld() : venster(printers.omgeving()) {
        uitvoer.uitslag = GroteUitslag({30, 30, 30}); // a page each
        venster.vul(uitvoer);
        venster.show();
        venster.activateWindow();
    }
    void SetUp() override { Wacht(venster); }

    Printproef printers;
    frmPrinten venster;
};

TEST_F(ToetsenVoorbeeld, TheTabKeyGoesInTheOrderOfTheEye) {
    EXPECT_EQ(Rondgang(), (std::vector<std::string>{"P1", "Bladscroll", "txtBlad", "cmdPrinten",
                                                    "cmdEinde", "cmdMaakCSV", "cmdMaakHtml"}));
}

TEST_F(ToetsenVoorbeeld, ThePageKeysGoOnToTheNextPageAndBackToTheEndOfTheLast) {
    Toets(Qt::Key_PageDown);
    EXPECT_EQ(venster.bladnummer(), 2U);
    Toets(Qt::Key_Space); // as wide as the box: the page scrolls
    const auto& balk = *Vind<QScrollBar>(venster, "VScroll1");
    ASSERT_GT(balk.maximum(), 0);
    Toets(Qt::Key_PageDown);
    EXPECT_EQ(venster.bladnummer(), 2U);
    Toets(Qt::Key_End);
    Toets(Qt::Key_PageDown);
    EXPECT_EQ(venster.bladnummer(), 3U);
    EXPECT_EQ(balk.value(), 0);
    Toets(Qt::Key_PageUp);
    EXPECT_EQ(venster.bladnummer(), 2U);
    EXPECT_EQ(balk.value(), balk.maximum());
    Toets(Qt::Key_Home);
    Toets(Qt::Key_PageUp);
    EXPECT_EQ(venster.bladnummer(), 1U);
    Toets(Qt::Key_Home);
    Toets(Qt::Key_PageUp);
    EXPECT_EQ(venster.bladnummer(), 1U);
    EXPECT_EQ(balk.value(), 0);
}

TEST_F(ToetsenVoorbeeld, BothEnterKeysAndTheSpaceBarChangeTheSize) {
    for (const auto& [toets, maat] : {std::pair(Qt::Key_Return, Vergroting::BladBreedte),
                                      std::pair(Qt::Key_Enter, Vergroting::Honderd),
                                      std::pair(Qt::Key_Space, Vergroting::HonderdVijftig)}) {
        Toets(toets);
        EXPECT_EQ(venster.voorbeeld().vergroting(), maat);
    }
}

TEST_F(ToetsenVoorbeeld, EscapeClosesItFromAnyStop) {
    for (const auto& stop : Rondgang()) {
        venster.show();
        venster.activateWindow();
        Wacht(venster);
        TabNaar(stop);
        Toets(Qt::Key_Escape);
        EXPECT_FALSE(venster.isVisible()) << stop;
    }
}

} // namespace
} // namespace lauwerkrans::proef
