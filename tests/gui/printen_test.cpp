// Printing: to the file of a print dialog, to a PDF where there is no printer, and not at all.
#include <gtest/gtest.h>

#include <QFileDialog>
#include <QPrintDialog>
#include <QTimer>

#include "output/afdruk.h"
#include "output/bladindeling_lijnen.h"
#include "output/bladindeling_totaal.h"
#ifndef _WIN32
#include "kern/schrijfproef_posix.h"
#endif
#include "voorbeeldproef.h"

namespace lauwerkrans::proef {
namespace {

class Printen : public UitvoerTest {
protected:
    Printen() : venster(printers.omgeving()) {
        printers.pdf = QString::fromStdString(pad("lijst.pdf"));
    }

    void toon(const std::vector<std::size_t>& paren) {
        uitvoer.uitslag = GroteUitslag(paren);
        venster.vul(uitvoer);
        venster.show();
    }
    /// A printer that writes to lijst.pdf, with what the user does in its dialog.
    void metPrinter(std::function<bool(QPrinter&)> keuze) {
        printers.heeftPrinter = true;
        printers.kiesPrinter = [this, keuze = std::move(keuze)](QPrinter& printer) {
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(printers.pdf);
            return keuze(printer);
        };
    }
    [[nodiscard]] std::string pad(const char* naam) const { return (map.map() / naam).string(); }
    [[nodiscard]] std::string pdf() const { return printers.pdf.toStdString(); }
    [[nodiscard]] bool gemaakt() const { return std::filesystem::exists(pdf()); }

    Printproef printers;
    frmPrinten venster;
};

TEST_F(Printen, WithoutAPrinterOffersAPdfOfAllPages) {
    toon({30, 30, 30});
    Druk(venster, "cmdPrinten");
    ASSERT_EQ(printers.gevraagd.size(), 1U);
    EXPECT_EQ(printers.gevraagd[0], QStringLiteral("Lauwr__LijnABC.pdf"));
    EXPECT_EQ(PdfBladen(pdf()), 3);
    EXPECT_TRUE(meldingen.getoond.empty());
    EXPECT_EQ(venster.uitvoer().fout, 0);
}

TEST_F(Printen, CancellingThePdfPrintsNothingAndLeavesThePreview) {
    toon({30, 30, 30});
    Vind<QScrollBar>(venster, "Bladscroll")->setValue(2);
    printers.pdf.clear();
    Druk(venster, "cmdPrinten");
    EXPECT_EQ(venster.uitvoer().fout, 1);
    EXPECT_EQ(venster.bladnummer(), 2U);
    EXPECT_TRUE(meldingen.getoond.empty());
}

TEST_F(Printen, TheTextsOfThePdfStandWhereTheLayoutPutsThem) {
    uitvoer.uitslag = PerLijn();
    venster.vul(uitvoer);
    Druk(venster, "cmdPrinten");
    const auto woorden = LeesPdf(pdf());
    const Blad blad = BladenLijnen(uitvoer, bladmaat::a4Hoogte).blad(1, MeetBladtekst);
    ASSERT_GT(blad.teksten.size(), 30U);
    for (const BladTekst& tekst : blad.teksten) {
        const std::string eerste = tekst.tekst.substr(0, tekst.tekst.find(' '));
        const bool gevonden =
            std::any_of(woorden.begin(), woorden.end(), [&](const PdfTekst& woord) {
                return woord.tekst.starts_with(eerste) && std::abs(woord.x - tekst.x) < 0.2 &&
                       std::abs(woord.y - tekst.y) < 0.2;
            });
        EXPECT_TRUE(gevonden) << tekst.tekst << " at " << tekst.x << ", " << tekst.y;
    }
}

TEST_F(Printen, TheDialogOffersAllPagesUpToThirtySix) {
    std::pair<int, int> bereik;
    metPrinter([&](QPrinter& printer) {
        bereik = {printer.fromPage(), printer.toPage()};
        EXPECT_TRUE(printer.docName().startsWith(QStringLiteral("Lauwr__LijnABC")));
        EXPECT_EQ(printer.pageLayout().pageSize().id(), QPageSize::A4);
        EXPECT_EQ(printer.pageLayout().orientation(), QPageLayout::Portrait);
        return false;
    });
    toon({30, 30, 30});
    Druk(venster, "cmdPrinten");
    EXPECT_EQ(bereik, std::pair(1, 3));
    toon(std::vector<std::size_t>(13, 144));
    meldingen.getoond.clear();
    Druk(venster, "cmdPrinten");
    EXPECT_EQ(bereik, std::pair(1, 36));
    EXPECT_EQ(meldingen.getoond.size(), 1U); // more than 36 pages, said again
}

TEST_F(Printen, AllPagesArePrintedAndThePreviewGoesToTheFirst) {
    metPrinter([](QPrinter&) { return true; });
    toon({30, 30, 30});
    Vind<QScrollBar>(venster, "Bladscroll")->setValue(3);
    Druk(venster, "cmdPrinten");
    EXPECT_EQ(PdfBladen(pdf()), 3);
    EXPECT_NE(PdfBlad(pdf(), 3).find("Lijn C"), std::string::npos);
    EXPECT_EQ(venster.bladnummer(), 1U);
    EXPECT_EQ(venster.uitvoer().fout, 0);
    EXPECT_TRUE(printers.gevraagd.empty());
}

TEST_F(Printen, AChosenRangePrintsItsPagesOnly) {
    metPrinter([](QPrinter& printer) {
        printer.setPrintRange(QPrinter::PageRange);
        printer.setFromTo(2, 3);
        return true;
    });
    toon({30, 30, 30, 30});
    Druk(venster, "cmdPrinten");
    ASSERT_EQ(PdfBladen(pdf()), 2);
    EXPECT_NE(PdfBlad(pdf(), 1).find("Lijn B"), std::string::npos);
    EXPECT_NE(PdfBlad(pdf(), 2).find("Lijn C"), std::string::npos);
}

TEST_F(Printen, OnePageOutOfMany) {
    metPrinter([](QPrinter& printer) {
        printer.setPrintRange(QPrinter::PageRange);
        printer.setFromTo(3, 3);
        return true;
    });
    toon({30, 30, 30});
    Druk(venster, "cmdPrinten");
    ASSERT_EQ(PdfBladen(pdf()), 1);
    EXPECT_NE(PdfBlad(pdf(), 1).find("Lijn C"), std::string::npos);
}

TEST_F(Printen, CancellingTheDialogPrintsNothingAndLeavesThePreview) {
    metPrinter([](QPrinter&) { return false; });
    toon({30, 30, 30});
    Vind<QScrollBar>(venster, "Bladscroll")->setValue(2);
    Druk(venster, "cmdPrinten");
    EXPECT_FALSE(gemaakt());
    EXPECT_EQ(venster.bladnummer(), 2U);
    EXPECT_EQ(venster.uitvoer().fout, 1);
    EXPECT_TRUE(meldingen.getoond.empty());
}

TEST_F(Printen, AnotherPaperChosenInTheDialogIsDividedAnew) {
    metPrinter([](QPrinter& printer) {
        printer.setPageSize(QPageSize(QPageSize::A3)); // 420 mm high: two lines on a page
        return true;
    });
    toon({30, 30, 30});
    Druk(venster, "cmdPrinten");
    ASSERT_EQ(PdfBladen(pdf()), 2);
    EXPECT_NE(PdfBlad(pdf(), 1).find("Lijn B"), std::string::npos);
    EXPECT_EQ(venster.aantalBladen(), 3U);
}

TEST_F(Printen, SmallerPaperThatTakesMoreThanThirtySixPagesIsSaid) {
    metPrinter([](QPrinter& printer) {
        printer.setPageSize(QPageSize(QPageSize::A5)); // 210 mm high: one line on a page
        return true;
    });
    toon(std::vector<std::size_t>(26, 17)); // two lines on a page of A4
    ASSERT_EQ(venster.aantalBladen(), 13U);
    Druk(venster, "cmdPrinten");
    EXPECT_TRUE(meldingen.getoond.empty());
    EXPECT_EQ(PdfBladen(pdf()), 26);
    toon(std::vector<std::size_t>(12, 100)); // three pages of A4, four of A5
    ASSERT_EQ(venster.aantalBladen(), 36U);
    Druk(venster, "cmdPrinten");
    EXPECT_EQ(PdfBladen(pdf()), 36);
    EXPECT_EQ(meldingen.getoond, (std::vector<Melding>{{TeVeelBladenTekst(), Icoon::Uitroep}}));
}

TEST_F(Printen, InReverseOrderTheLastPageOfTheRangeComesFirst) {
    metPrinter([](QPrinter& printer) {
        printer.setPageOrder(QPrinter::LastPageFirst);
        printer.setPrintRange(QPrinter::PageRange);
        printer.setFromTo(2, 4);
        return true;
    });
    toon({30, 30, 30, 30});
    Druk(venster, "cmdPrinten");
    ASSERT_EQ(PdfBladen(pdf()), 3);
    EXPECT_NE(PdfBlad(pdf(), 1).find("Lijn D"), std::string::npos);
    EXPECT_NE(PdfBlad(pdf(), 2).find("Lijn C"), std::string::npos);
    EXPECT_NE(PdfBlad(pdf(), 3).find("Lijn B"), std::string::npos);
}

TEST_F(Printen, UnprintableMarginsDoNotMoveThePage) {
    metPrinter([](QPrinter& printer) {
        printer.setFullPage(false);
        printer.setPageMargins(QMarginsF(12, 12, 12, 12), QPageLayout::Millimeter);
        return true;
    });
    toon({3});
    Druk(venster, "cmdPrinten");
    const auto woorden = LeesPdf(pdf());
    const auto lijn = std::find_if(woorden.begin(), woorden.end(),
                                   [](const PdfTekst& woord) { return woord.tekst == "Lijn"; });
    ASSERT_NE(lijn, woorden.end());
    EXPECT_NEAR(lijn->x, 21, 0.1);
    EXPECT_NEAR(lijn->y, 36, 0.2);
}

TEST_F(Printen, APdfThatCannotBeWrittenIsSaidAndTheOldOneStays) {
    map.maakMap("lijst.pdf");
    toon({3});
    Druk(venster, "cmdPrinten");
    ASSERT_EQ(meldingen.getoond.size(), 1U);
    EXPECT_EQ(meldingen.getoond[0],
              (Melding{"Het bestand 'lijst.pdf' kan niet worden gemaakt!", Icoon::Uitroep}));
    EXPECT_EQ(venster.uitvoer().fout, 1);
    EXPECT_TRUE(std::filesystem::is_directory(pad("lijst.pdf")));
}

#ifndef _WIN32
TEST_F(Printen, APdfThatCannotGrowIsSaidAndLeavesNothing) {
    toon({3});
    {
        const KleineBestanden klein(1000);
        Druk(venster, "cmdPrinten");
    }
    EXPECT_EQ(meldingen.getoond,
              (std::vector<Melding>{
                  {"Het bestand 'lijst.pdf' kan niet worden gemaakt!", Icoon::Uitroep}}));
    EXPECT_FALSE(gemaakt());
}
#endif

TEST_F(Printen, OfTheRankingOverAllLinesHasEveryPairOnce) {
    Instellingen instellingen;
    frmPrintenTI totaal(printers.omgeving(), instellingen, [] {});
    uitvoer.uitslag = GroteUitslag({100, 7});
    totaal.vul(uitvoer);
    Druk(totaal, "cmdPrinten");
    ASSERT_EQ(PdfBladen(pdf()), 3); // 50 rows a page
    std::string alles;
    for (int blad = 1; blad <= 3; ++blad) {
        const std::string tekst = PdfBlad(pdf(), blad);
        EXPECT_NE(tekst.find("Rang Paar Perc"), std::string::npos) << blad;
        alles += " " + tekst;
    }
    for (int i = 1; i <= 100; ++i) {
        const std::string paar = " NoordA" + std::to_string(i) + " - ";
        const auto plaats = alles.find(paar);
        ASSERT_NE(plaats, std::string::npos) << i;
        EXPECT_EQ(alles.find(paar, plaats + 1), std::string::npos) << i;
    }
}

/// Answers the dialog that is up, once.
void Antwoord(const std::function<void(QWidget&)>& doe) {
    auto* klok = new QTimer(qApp);
    QObject::connect(klok, &QTimer::timeout, qApp, [klok, doe] {
        QWidget* dialoog = QApplication::activeModalWidget();
        if (dialoog == nullptr) return;
        klok->stop();
        klok->deleteLater();
        doe(*dialoog);
    });
    klok->start(10);
}

#ifndef _WIN32 // the dialog of Windows is none of the toolkit's, and needs a printer
TEST(Printdialogen, ThePrintDialogOffersTheRangeOfThePages) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setFromTo(1, 4);
    Antwoord([](QWidget& dialoog) {
        auto* print = qobject_cast<QPrintDialog*>(&dialoog);
        ASSERT_NE(print, nullptr);
        EXPECT_EQ(print->minPage(), 1);
        EXPECT_EQ(print->maxPage(), 4);
        EXPECT_TRUE(print->testOption(QAbstractPrintDialog::PrintPageRange));
        print->reject();
    });
    QWidget venster;
    EXPECT_FALSE(SysteemPrinters().kiesPrinter(printer, &venster));
}
#endif

TEST(Printdialogen, TheSaveDialogOffersTheNameAndCanBeCancelled) {
    QWidget venster;
    QString map;
    Antwoord([&](QWidget& dialoog) {
        auto* bewaar = qobject_cast<QFileDialog*>(&dialoog);
        ASSERT_NE(bewaar, nullptr);
        EXPECT_EQ(bewaar->acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(bewaar->selectedFiles().value(0).section(QLatin1Char('/'), -1),
                  QStringLiteral("Lauwr__LijnA.pdf"));
        bewaar->reject();
    });
    EXPECT_EQ(SysteemPrinters().kiesPdf(QStringLiteral("Lauwr__LijnA.pdf"), &venster), QString());
}

} // namespace
} // namespace lauwerkrans::proef
