// The preview of the champion list: its controls, its pages, and what its buttons do.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>

#include "output/bladindeling_lijnen.h"
#include "voorbeeldproef.h"

namespace lauwerkrans::proef {
namespace {

class FrmPrinten : public UitvoerTest {
protected:
    FrmPrinten() : venster(printers.omgeving()) {}

    void toon(const std::vector<std::size_t>& paren) {
        uitvoer.uitslag = GroteUitslag(paren);
        toon();
    }
    void toon() {
        venster.vul(uitvoer);
        venster.show();
        QCoreApplication::processEvents();
    }
    template <class Element>
    [[nodiscard]] Element& vind(const char* naam) const {
        return *Vind<Element>(venster, naam);
    }
    [[nodiscard]] std::string tekst(const char* naam) const {
        return vind<QLineEdit>(naam).text().toStdString();
    }
    void typBlad(const char* nummer) const {
        auto& vak = vind<QLineEdit>("txtBlad");
        vak.setFocus();
        vak.selectAll();
        QTest::keyClicks(&vak, QString::fromLatin1(nummer));
    }
    /// The page on show as a picture.
    [[nodiscard]] QImage beeld() const { return vind<QWidget>("P1").grab().toImage(); }

    Printproef printers;
    frmPrinten venster;
};

TEST_F(FrmPrinten, HasItsControlsWithTheirCaptions) {
    EXPECT_EQ(venster.objectName(), QStringLiteral("frmPrinten"));
    EXPECT_EQ(venster.windowTitle(), QStringLiteral("Zittinguitslag"));
    EXPECT_EQ(vind<QGroupBox>("frameAfdrukv").title(), QStringLiteral("Afrdukvoorbeeld"));
    EXPECT_EQ(vind<QGroupBox>("framePrint").title(), QStringLiteral("Printen"));
    EXPECT_EQ(vind<QLabel>("Label1").text(), QStringLiteral("Pagina:"));
    EXPECT_EQ(tekst("txtAantPages"), "Aantal ...");
    const std::vector<std::pair<const char*, const char*>> knoppen = {{"cmdMaakCSV", "MaakCSV"},
                                                                      {"cmdMaakHtml", "MaakHTML"},
                                                                      {"cmdPrinten", "Print"},
                                                                      {"cmdEinde", "Terug"}};
    for (const auto& [naam, bijschrift] : knoppen) {
        EXPECT_EQ(vind<QPushButton>(naam).text(), QString::fromLatin1(bijschrift)) << naam;
    }
    const std::vector<std::pair<const char*, const char*>> houders = {
        {"Bladscroll", "frameAfdrukv"},
        {"Label1", "frameAfdrukv"},
        {"txtBlad", "frameAfdrukv"},
        {"txtAantPages", "frameAfdrukv"},
        {"cmdPrinten", "framePrint"},
        {"cmdEinde", "framePrint"},
        {"P1", "picP0"},
        {"P9", "picP0"},
        {"picP0", "frmPrinten"},
        {"VScroll1", "frmPrinten"},
        {"HScroll1", "frmPrinten"}};
    for (const auto& [naam, houder] : houders) {
        EXPECT_EQ(vind<QWidget>(naam).parentWidget()->objectName(), QLatin1String(houder)) << naam;
    }
}

TEST_F(FrmPrinten, TerugClosesIt) {
    toon();
    Druk(venster, "cmdEinde");
    EXPECT_FALSE(venster.isVisible());
}

TEST_F(FrmPrinten, CountsThePagesAndShowsTheFirst) {
    toon({30, 30, 30}); // 159 mm each: a page each
    EXPECT_EQ(venster.aantalBladen(), 3U);
    EXPECT_EQ(tekst("txtAantPages"), "(Totaal 3)");
    EXPECT_EQ(tekst("txtBlad"), "1");
    EXPECT_EQ(vind<QScrollBar>("Bladscroll").maximum(), 3);
    EXPECT_EQ(venster.bladnummer(), 1U);
    EXPECT_TRUE(meldingen.getoond.empty());
    EXPECT_TRUE(vind<QLineEdit>("txtAantPages").isReadOnly());
}

TEST_F(FrmPrinten, TheBarPicksAPageAndTheBoxShowsItsNumber) {
    toon({30, 30, 30});
    const QImage eerste = beeld();
    auto& balk = vind<QScrollBar>("Bladscroll");
    balk.setFocus();
    QTest::keyClick(&balk, Qt::Key_Right);
    EXPECT_EQ(venster.bladnummer(), 2U);
    EXPECT_EQ(tekst("txtBlad"), "2");
    EXPECT_NE(beeld(), eerste);
    QTest::keyClick(&balk, Qt::Key_Left);
    EXPECT_EQ(beeld(), eerste);
    QTest::keyClick(&balk, Qt::Key_PageDown);
    EXPECT_EQ(venster.bladnummer(), 2U);
    QTest::keyClick(&balk, Qt::Key_Home);
    EXPECT_EQ(venster.bladnummer(), 1U);
}

TEST_F(FrmPrinten, ATypedNumberCountsAfterEnterAndStaysWithinThePages) {
    toon({30, 30, 30});
    typBlad("3");
    EXPECT_EQ(venster.bladnummer(), 1U);
    QTest::keyClick(&vind<QWidget>("txtBlad"), Qt::Key_Return);
    EXPECT_EQ(venster.bladnummer(), 3U);
    typBlad("99");
    QTest::keyClick(&vind<QWidget>("txtBlad"), Qt::Key_Return);
    EXPECT_EQ(venster.bladnummer(), 3U);
    EXPECT_EQ(tekst("txtBlad"), "3");
    typBlad("0");
    QTest::keyClick(&vind<QWidget>("txtBlad"), Qt::Key_Return);
    EXPECT_EQ(venster.bladnummer(), 1U);
    EXPECT_EQ(tekst("txtBlad"), "1");
}

TEST_F(FrmPrinten, ATypedNumberCountsWhenTheBoxIsLeftAndAnEmptyBoxIsPageOne) {
    toon({30, 30, 30});
    venster.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&venster));
    typBlad("2");
    vind<QWidget>("cmdPrinten").setFocus();
    EXPECT_EQ(venster.bladnummer(), 2U);
    typBlad("x");
    EXPECT_EQ(tekst("txtBlad"), "2");
    vind<QWidget>("txtBlad").setFocus();
    vind<QLineEdit>("txtBlad").selectAll();
    QTest::keyClick(&vind<QWidget>("txtBlad"), Qt::Key_Delete);
    vind<QWidget>("cmdPrinten").setFocus();
    EXPECT_EQ(tekst("txtBlad"), "1");
}

TEST_F(FrmPrinten, ThirtySixPagesGiveNoMessage) {
    toon(std::vector<std::size_t>(12, 144)); // three pages of 48 rows each
    EXPECT_EQ(venster.aantalBladen(), 36U);
    EXPECT_TRUE(meldingen.getoond.empty());
    EXPECT_EQ(vind<QScrollBar>("Bladscroll").maximum(), 36);
}

TEST_F(FrmPrinten, ThirtySevenPagesGiveTheMessageAndTheBarEndsAtThirtySix) {
    auto paren = std::vector<std::size_t>(12, 144);
    paren.push_back(1);
    toon(paren);
    EXPECT_EQ(venster.aantalBladen(), 37U);
    ASSERT_EQ(meldingen.getoond.size(), 1U);
    EXPECT_EQ(
        meldingen.getoond[0],
        (Melding{"\r\nEr worden niet meer dan 36 pagina's tegelijk geprint!\r\n", Icoon::Uitroep}));
    EXPECT_EQ(tekst("txtAantPages"), "(Totaal 37)");
    EXPECT_EQ(vind<QScrollBar>("Bladscroll").maximum(), 36);
    typBlad("37");
    QTest::keyClick(&vind<QWidget>("txtBlad"), Qt::Key_Return);
    EXPECT_EQ(venster.bladnummer(), 36U);
}

TEST_F(FrmPrinten, AnEmptyListIsOnePageWithoutRows) {
    toon({5});
    const QImage vol = beeld();
    venster.leeg();
    EXPECT_EQ(venster.aantalBladen(), 1U);
    EXPECT_EQ(tekst("txtAantPages"), "(Totaal 1)");
    EXPECT_NE(beeld(), vol);
    EXPECT_EQ(vind<QScrollBar>("Bladscroll").maximum(), 1);
}

TEST_F(FrmPrinten, AClickGoesFromWholePageToWidthToHundredToHundredFiftyAndBack) {
    toon({30});
    const QWidget& doos = vind<QWidget>("picP0");
    auto& blad = vind<QWidget>("P1");
    const auto schaal = [this] { return venster.voorbeeld().schaal(); };
    EXPECT_DOUBLE_EQ(schaal(), std::min(doos.width() / 210.0, doos.height() / 297.0));
    EXPECT_FALSE(vind<QScrollBar>("VScroll1").isEnabled());
    QTest::mouseClick(&blad, Qt::LeftButton);
    EXPECT_DOUBLE_EQ(schaal(), doos.width() / 210.0);
    EXPECT_TRUE(vind<QScrollBar>("VScroll1").isEnabled());
    EXPECT_FALSE(vind<QScrollBar>("HScroll1").isEnabled());
    QTest::mouseClick(&blad, Qt::LeftButton);
    EXPECT_DOUBLE_EQ(schaal(), 96 / 25.4);
    QTest::mouseClick(&blad, Qt::LeftButton);
    EXPECT_DOUBLE_EQ(schaal(), 1.5 * 96 / 25.4);
    EXPECT_TRUE(vind<QScrollBar>("HScroll1").isEnabled());
    EXPECT_EQ(blad.size(), QSize(1191, 1684)); // 210 x 297 mm
    EXPECT_EQ(vind<QScrollBar>("VScroll1").maximum(), 1684 - doos.height());
    EXPECT_EQ(vind<QScrollBar>("HScroll1").maximum(), 1191 - doos.width());
    QTest::mouseClick(&blad, Qt::LeftButton);
    EXPECT_EQ(venster.voorbeeld().vergroting(), Vergroting::HeelBlad);
}

TEST_F(FrmPrinten, TheKeyboardEnlargesAndScrollsThePage) {
    toon({30});
    venster.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&venster));
    auto& blad = vind<QWidget>("P1");
    blad.setFocus();
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(&blad, Qt::Key_Space);
    ASSERT_EQ(venster.voorbeeld().vergroting(), Vergroting::HonderdVijftig);
    const auto& op = vind<QScrollBar>("VScroll1");
    QTest::keyClick(&blad, Qt::Key_End);
    EXPECT_EQ(op.value(), op.maximum());
    EXPECT_EQ(blad.y() + blad.height(), vind<QWidget>("picP0").height());
    QTest::keyClick(&blad, Qt::Key_PageUp);
    EXPECT_EQ(op.value(), op.maximum() - vind<QWidget>("picP0").height());
    QTest::keyClick(&blad, Qt::Key_Home);
    EXPECT_EQ(blad.y(), 0);
    QTest::keyClick(&blad, Qt::Key_Right);
    EXPECT_LT(blad.x(), 0);
}

TEST_F(FrmPrinten, ResizingLaysOutAndDrawsAnew) {
    toon({30});
    const double voor = venster.voorbeeld().schaal();
    venster.resize(1200, 900);
    QCoreApplication::processEvents();
    const Vak doos = maten::PlaatsVan(vind<QWidget>("picP0"));
    EXPECT_EQ(doos, (Vak{2640, 120, 1200 * 15 - 2640 - 350, 900 * 15 - 120 - 350}));
    EXPECT_EQ(maten::PlaatsVan(vind<QWidget>("VScroll1")),
              (Vak{1200 * 15 - 350, 120, 255, doos.hoogte}));
    EXPECT_EQ(maten::PlaatsVan(vind<QWidget>("HScroll1")),
              (Vak{2640, 900 * 15 - 350, doos.breedte, 255}));
    EXPECT_GT(venster.voorbeeld().schaal(), voor);
    EXPECT_EQ(vind<QWidget>("P1").height(), vind<QWidget>("picP0").height());
}

TEST_F(FrmPrinten, OpensAtItsSizeInTheMiddleOfTheMainWindow) {
    QWidget hoofdvenster;
    hoofdvenster.setGeometry(10, 20, 700, 500);
    hoofdvenster.show();
    EXPECT_EQ(venster.size(), QSize(861, 571)); // 13000 x 9000 twips less the frame
    venster.vul(uitvoer);
    venster.toonOver(hoofdvenster);
    EXPECT_TRUE(venster.isVisible());
    EXPECT_FALSE(venster.isModal());
    const QRect vrij = venster.screen()->availableGeometry();
    EXPECT_TRUE(vrij.contains(venster.geometry())) << "on a screen of 800 x 800";
    venster.move(33, 44);
    venster.close();
    venster.toonOver(hoofdvenster);
    EXPECT_EQ(venster.pos(), QPoint(33, 44));
}

TEST_F(FrmPrinten, MakesTheFilesOfTheListByLine) {
    toon();
    Druk(venster, "cmdMaakCSV");
    EXPECT_EQ(geschreven("Lauwr__LijnABC.CSV"), Verwacht("lijnen.CSV"));
    Druk(venster, "cmdMaakHtml");
    EXPECT_EQ(geschreven("Lauwr__LijnABC.HTML"), Verwacht("lijnen.HTML"));
    ASSERT_EQ(meldingen.getoond.size(), 2U);
    EXPECT_EQ(meldingen.getoond[0].icoon, Icoon::Informatie);
    EXPECT_EQ(venster.uitvoer().fout, 0);
}

TEST_F(FrmPrinten, AFileThatCannotBeMadeIsSaidAndTheWindowGoesOn) {
    map.maakMap("Lauwerkrans/Lauwr__LijnABC.CSV");
    toon();
    Druk(venster, "cmdMaakCSV");
    ASSERT_EQ(meldingen.getoond.size(), 1U);
    EXPECT_EQ(
        meldingen.getoond[0],
        (Melding{"Het bestand 'Lauwr__LijnABC.CSV' kan niet worden gemaakt!", Icoon::Uitroep}));
    EXPECT_EQ(venster.uitvoer().fout, 1);
    Druk(venster, "cmdMaakHtml");
    EXPECT_EQ(venster.uitvoer().fout, 0);
    EXPECT_TRUE(venster.isVisible());
}

} // namespace
} // namespace lauwerkrans::proef
