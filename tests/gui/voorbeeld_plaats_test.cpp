// Where a preview opens, and that it comes back to the front.
#include <gtest/gtest.h>

#include "ui/maten.h"
#include "voorbeeldproef.h"

namespace lauwerkrans::proef {
namespace {

class VoorbeeldPlaats : public UitvoerTest {
protected:
    VoorbeeldPlaats() : venster(printers.omgeving()) { venster.vul(uitvoer); }

    Printproef printers;
    frmPrinten venster;
};

TEST_F(VoorbeeldPlaats, IsTheMiddleOfTheWindowThatTheMainWindowIsScrolledIn) {
    QWidget buitenste;
    buitenste.setGeometry(0, 100, 700, 660);
    QWidget hoofdvenster(&buitenste);
    hoofdvenster.setGeometry(0, -90, 900, 200);
    buitenste.show();
    venster.toonOver(hoofdvenster);
    const double midden = venster.y() + maten::Buitenmaat(venster.size()).height() / 2.0;
    EXPECT_NEAR(midden, buitenste.frameGeometry().center().y(), 1);
}

TEST_F(VoorbeeldPlaats, ComesBackWhenItWasMinimised) {
    QWidget hoofdvenster;
    hoofdvenster.show();
    venster.toonOver(hoofdvenster);
    venster.showMinimized();
    ASSERT_TRUE(venster.isMinimized());
    venster.toonOver(hoofdvenster);
    EXPECT_FALSE(venster.isMinimized());
    EXPECT_TRUE(venster.isVisible());
}

TEST_F(VoorbeeldPlaats, StaysMaximised) {
    QWidget hoofdvenster;
    hoofdvenster.show();
    venster.toonOver(hoofdvenster);
    venster.showMaximized();
    venster.toonOver(hoofdvenster);
    EXPECT_TRUE(venster.isMaximized());
}

} // namespace
} // namespace lauwerkrans::proef
