// The preview of the ranking over all lines: its options, its long page and its files.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QGroupBox>

#include "data/fout.h"
#include "voorbeeldproef.h"

namespace lauwerkrans::proef {
namespace {

class FrmPrintenTI : public UitvoerTest {
protected:
    FrmPrintenTI() { uitvoer.uitslag = AlleSamen(); }

    frmPrintenTI& toon() {
        venster =
            std::make_unique<frmPrintenTI>(printers.omgeving(), instellingen, [this] { bewaar(); });
        uitvoer.ToonLijnen = instellingen.ToonLijnen;
        uitvoer.ToonZittingen = instellingen.ToonZittingen;
        venster->vul(uitvoer);
        venster->show();
        QCoreApplication::processEvents();
        return *venster;
    }
    void bewaar() {
        ++bewaard;
        if (bewaarFout) throw Fout(FoutSoort::BestandNietSchrijfbaar);
    }
    template <class Element>
    [[nodiscard]] Element& vind(const char* naam) const {
        return *Vind<Element>(*venster, naam);
    }
    void vink(const char* naam) const {
        auto& vinkje = vind<QCheckBox>(naam);
        QTest::mouseClick(&vinkje, Qt::LeftButton, {}, QPoint(8, vinkje.height() / 2));
    }
    [[nodiscard]] QImage beeld() const { return vind<QWidget>("P1").grab().toImage(); }

    Printproef printers;
    Instellingen instellingen;
    int bewaard = 0;
    bool bewaarFout = false;
    std::unique_ptr<frmPrintenTI> venster;
};

TEST_F(FrmPrintenTI, HasItsControlsAndNoPageBar) {
    toon();
    EXPECT_EQ(venster->objectName(), QStringLiteral("frmPrintenTI"));
    EXPECT_EQ(venster->windowTitle(), QStringLiteral("Zittinguitslag"));
    auto* kader = qobject_cast<QGroupBox*>(vind<QWidget>("chkToonLijn").parentWidget());
    ASSERT_NE(kader, nullptr);
    EXPECT_EQ(kader->title(), QStringLiteral("Instellingen"));
    EXPECT_EQ(vind<QWidget>("chkToonAantZit").parentWidget(), kader);
    EXPECT_EQ(vind<QWidget>("cmdBewaren").parentWidget(), kader);
    EXPECT_EQ(qobject_cast<QGroupBox*>(vind<QWidget>("cmdPrinten").parentWidget())->title(),
              QStringLiteral("Printen"));
    EXPECT_EQ(vind<QWidget>("cmdEinde").parentWidget(), vind<QWidget>("cmdPrinten").parentWidget());
    const std::vector<std::pair<const char*, const char*>> knoppen = {
        {"chkToonLijn", "Toon lijn"}, {"chkToonAantZit", "Toon aantal zittingen"},
        {"cmdBewaren", "Bewaren"},    {"cmdMaakCSV", "MaakCSV"},
        {"cmdMaakHtml", "MaakHTML"},  {"cmdPrinten", "Print"},
        {"cmdEinde", "Terug"}};
    for (const auto& [naam, bijschrift] : knoppen) {
        EXPECT_EQ(vind<QAbstractButton>(naam).text(), QString::fromLatin1(bijschrift)) << naam;
    }
    for (const char* naam : {"Bladscroll", "txtBlad", "txtAantPages"}) {
        EXPECT_EQ(venster->findChild<QWidget*>(QLatin1String(naam)), nullptr) << naam;
    }
}

TEST_F(FrmPrintenTI, StartsWithTheStoredOptions) {
    instellingen.ToonZittingen = 1;
    toon();
    EXPECT_FALSE(vind<QCheckBox>("chkToonLijn").isChecked());
    EXPECT_TRUE(vind<QCheckBox>("chkToonAantZit").isChecked());
    EXPECT_EQ(bewaard, 0);
}

TEST_F(FrmPrintenTI, ATickRedrawsTheListAndHoldsForThisRun) {
    toon();
    const QImage kaal = beeld();
    vink("chkToonLijn");
    const QImage metLijn = beeld();
    EXPECT_NE(metLijn, kaal);
    EXPECT_EQ(instellingen.ToonLijnen, 1);
    vink("chkToonAantZit");
    EXPECT_NE(beeld(), metLijn);
    EXPECT_EQ(instellingen.ToonZittingen, 1);
    vink("chkToonLijn");
    vink("chkToonAantZit");
    EXPECT_EQ(beeld(), kaal);
    EXPECT_EQ(instellingen.ToonLijnen, 0);
    EXPECT_EQ(instellingen.ToonZittingen, 0);
    EXPECT_EQ(bewaard, 0);
}

TEST_F(FrmPrintenTI, ATickLeavesThePlaceInTheListAndANewListBeginsAtItsTop) {
    uitvoer.uitslag = GroteUitslag({200});
    toon();
    auto& balk = vind<QScrollBar>("VScroll1");
    balk.setValue(300);
    vink("chkToonLijn");
    EXPECT_EQ(balk.value(), 300);
    EXPECT_EQ(vind<QWidget>("P1").y(), -300);
    venster->vul(uitvoer);
    EXPECT_EQ(balk.value(), 0);
}

TEST_F(FrmPrintenTI, BewarenWritesTheSettings) {
    toon();
    Druk(*venster, "cmdBewaren");
    EXPECT_EQ(bewaard, 1);
    EXPECT_TRUE(meldingen.getoond.empty());
    bewaarFout = true;
    Druk(*venster, "cmdBewaren");
    ASSERT_EQ(meldingen.getoond.size(), 1U);
    EXPECT_EQ(meldingen.getoond[0].icoon, Icoon::Uitroep);
}

TEST_F(FrmPrintenTI, AShortListIsAPageOfA4) {
    toon();
    const double schaal = venster->voorbeeld().schaal();
    EXPECT_DOUBLE_EQ(schaal, vind<QWidget>("picP0").height() / 297.0);
    EXPECT_EQ(vind<QWidget>("P1").height(), vind<QWidget>("picP0").height());
    EXPECT_FALSE(vind<QScrollBar>("VScroll1").isEnabled());
}

TEST_F(FrmPrintenTI, ALongListIsOneLongPageAndItsLastPairCanBeReached) {
    uitvoer.uitslag = GroteUitslag({200, 200});
    toon();
    const double schaal = venster->voorbeeld().schaal();
    const double hoogte = (400 + 2) * 4.8 + 15 + 15 + 7 + 17;
    auto& blad = vind<QWidget>("P1");
    EXPECT_EQ(blad.height(), qRound(hoogte * schaal));
    auto& balk = vind<QScrollBar>("VScroll1");
    ASSERT_TRUE(balk.isEnabled());
    balk.setValue(balk.maximum());
    EXPECT_EQ(blad.y() + blad.height(), vind<QWidget>("picP0").height());
    // The row of the last pair has ink, the two rows' room below it has none.
    const QImage beeld = blad.grab().toImage();
    const auto inkt = [&](double mm) {
        const double dpr = beeld.devicePixelRatio();
        for (double y = mm; y < mm + 3.5; y += 0.3) {
            for (int x = qRound(36 * schaal); x < qRound(100 * schaal); ++x) {
                if (qGray(beeld.pixel(qRound(x * dpr), qRound(y * schaal * dpr))) < 128)
                    return true;
            }
        }
        return false;
    };
    EXPECT_TRUE(inkt(37 + 399 * 4.8));
    EXPECT_FALSE(inkt(37 + 400 * 4.8 + 0.6));
}

TEST_F(FrmPrintenTI, MakesTheFilesOfTheRunningListWithItsOptions) {
    toon();
    Druk(*venster, "cmdMaakCSV");
    EXPECT_EQ(geschreven("Lauwr__LijnABC.CSV"), Verwacht("totaal.CSV"));
    vink("chkToonLijn");
    vink("chkToonAantZit");
    Druk(*venster, "cmdMaakCSV");
    EXPECT_EQ(geschreven("Lauwr__LijnABC.CSV"), Verwacht("totaal_lijn_zittingen.CSV"));
    Druk(*venster, "cmdMaakHtml");
    EXPECT_EQ(geschreven("Lauwr__LijnABC.HTML"), Verwacht("totaal_lijn_zittingen.HTML"));
    EXPECT_EQ(meldingen.getoond.size(), 3U);
}

TEST_F(FrmPrintenTI, MoreThanThirtySixPagesAreSaidAtPrintOnly) {
    uitvoer.uitslag = GroteUitslag({1801}); // 50 rows a page
    toon();
    EXPECT_TRUE(meldingen.getoond.empty());
    Druk(*venster, "cmdPrinten");
    ASSERT_EQ(meldingen.getoond.size(), 1U);
    EXPECT_EQ(
        meldingen.getoond[0],
        (Melding{"\r\nEr worden niet meer dan 36 pagina's tegelijk geprint!\r\n", Icoon::Uitroep}));
    EXPECT_EQ(venster->uitvoer().fout, 1); // the save dialog was cancelled
}

} // namespace
} // namespace lauwerkrans::proef
