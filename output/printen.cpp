#include "output/printen.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include <algorithm>
#include <string_view>

#include "output/afdruk.h"
#include "output/uitvoer.h"
#include "ui/berichten.h"

namespace lauwerkrans {

namespace {

/// First and last page, and whether the last is printed first.
struct Bereik {
    std::size_t van = 1;
    std::size_t tot = 1;
    bool omgekeerd = false;
};

bool TeVeel(const Printopdracht& opdracht, const Bladen& bladen) {
    return opdracht.meesteBladen != 0 && bladen.aantal() > opdracht.meesteBladen;
}

std::size_t Hoogste(const Printopdracht& opdracht, const Bladen& bladen) {
    return TeVeel(opdracht, bladen) ? opdracht.meesteBladen : bladen.aantal();
}

/// A4 upright, measured from the paper's edge whatever the printer cannot reach.
void ZetPapier(QPagedPaintDevice& papier) {
    QPageLayout indeling(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF());
    indeling.setMode(QPageLayout::FullPageMode);
    papier.setPageLayout(indeling);
}

double Hoogte(const QPagedPaintDevice& papier) {
    return papier.pageLayout().fullRect(QPageLayout::Millimeter).height();
}

/// Draws the pages of a range; false when the paper gives out.
bool Teken(QPagedPaintDevice& papier, const Bladen& bladen, const Bereik& bereik) {
    QPainter schilder;
    if (!schilder.begin(&papier)) return false;
    const double breedte = papier.pageLayout().fullRect(QPageLayout::Millimeter).width();
    const double schaal = papier.width() / breedte;
    for (std::size_t i = 0; i <= bereik.tot - bereik.van; ++i) {
        if (i > 0 && !papier.newPage()) return false;
        const std::size_t nummer = bereik.omgekeerd ? bereik.tot - i : bereik.van + i;
        TekenBlad(schilder, bladen.blad(nummer, MeetBladtekst), schaal);
    }
    return schilder.end();
}

/// The range and the order that were chosen in the dialog, within the pages that there are.
Bereik GekozenBereik(const QPrinter& printer, std::size_t hoogste) {
    const bool omgekeerd = printer.pageOrder() == QPrinter::LastPageFirst;
    if (printer.printRange() != QPrinter::PageRange) return {1, hoogste, omgekeerd};
    const auto binnen = [hoogste](int blad) {
        return std::clamp<std::size_t>(static_cast<std::size_t>(std::max(blad, 1)), 1, hoogste);
    };
    const std::size_t van = binnen(printer.fromPage());
    return {van, std::max(van, binnen(printer.toPage())), omgekeerd};
}

/// Copies that the printer does not make by itself.
int Afdrukken(const QPrinter& printer) {
    return printer.supportsMultipleCopies() ? 1 : std::max(1, printer.copyCount());
}

Printeinde DrukAfOpPrinter(const Printopdracht& opdracht, const Printomgeving& omgeving,
                           QWidget* venster, const Melder& meld) {
    QPrinter printer(QPrinter::HighResolution);
    ZetPapier(printer);
    printer.setDocName(opdracht.naam);
    const auto opA4 = opdracht.bladen(Hoogte(printer));
    printer.setFromTo(1, static_cast<int>(Hoogste(opdracht, *opA4)));
    if (!omgeving.kiesPrinter(printer, venster)) return Printeinde::Geannuleerd;
    const Zandloper zandloper;
    const auto bladen = opdracht.bladen(Hoogte(printer)); // the paper may be another now
    if (TeVeel(opdracht, *bladen) && !TeVeel(opdracht, *opA4)) {
        meld({TeVeelBladenTekst(), Icoon::Uitroep});
    }
    printer.setFullPage(true);
    const Bereik bereik = GekozenBereik(printer, Hoogste(opdracht, *bladen));
    for (int i = 0; i < Afdrukken(printer); ++i) {
        if (Teken(printer, *bladen, bereik)) continue;
        meld({"Het afdrukken van '" + opdracht.naam.toStdString() + "' is mislukt!",
              Icoon::Uitroep});
        return Printeinde::Mislukt;
    }
    return Printeinde::Gedrukt;
}

/// Writes the PDF whole or not at all.
bool SchrijfPdf(const QString& pad, const Printopdracht& opdracht) {
    QSaveFile bestand(pad);
    if (!bestand.open(QIODevice::WriteOnly)) return false;
    {
        QPdfWriter papier(&bestand);
        ZetPapier(papier);
        papier.setTitle(opdracht.naam);
        papier.setCreator(QString::fromLatin1(programmaNaam));
        const auto bladen = opdracht.bladen(Hoogte(papier));
        if (!Teken(papier, *bladen, {1, Hoogste(opdracht, *bladen)})) return false;
    }
    return bestand.commit();
}

/// The name of the PDF: that of the document, without what no file name can hold.
QString PdfNaam(QString naam) {
    for (const char teken : std::string_view("\\/:*?\"<>|"))
        naam.replace(QLatin1Char(teken), QLatin1Char('_'));
    return naam + QStringLiteral(".pdf");
}

Printeinde DrukAfInPdf(const Printopdracht& opdracht, const Printomgeving& omgeving,
                       QWidget* venster, const Melder& meld) {
    const QString pad = omgeving.kiesPdf(PdfNaam(opdracht.naam), venster);
    if (pad.isEmpty()) return Printeinde::Geannuleerd;
    const Zandloper zandloper;
    if (SchrijfPdf(pad, opdracht)) return Printeinde::Gedrukt;
    meld(NietTeMaken(QFileInfo(pad).fileName().toStdString()));
    return Printeinde::Mislukt;
}

bool KiesPrinter(QPrinter& printer, QWidget* venster) {
    QPrintDialog dialoog(&printer, venster);
    dialoog.setOption(QAbstractPrintDialog::PrintPageRange, true);
    dialoog.setMinMax(printer.fromPage(), printer.toPage());
    return dialoog.exec() == QDialog::Accepted;
}

QString KiesPdf(const QString& naam, QWidget* venster) {
    const QDir map(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    QFileDialog dialoog(venster, QStringLiteral("Bewaren als PDF"), map.path(),
                        QStringLiteral("PDF (*.pdf)"));
    dialoog.setAcceptMode(QFileDialog::AcceptSave);
    dialoog.setDefaultSuffix(QStringLiteral("pdf"));
    dialoog.selectFile(naam);
    if (dialoog.exec() != QDialog::Accepted) return {};
    return dialoog.selectedFiles().value(0);
}

} // namespace

Printomgeving SysteemPrinters() {
    return {[] { return !QPrinterInfo::availablePrinterNames().isEmpty(); }, KiesPrinter, KiesPdf};
}

Printeinde DrukAf(const Printopdracht& opdracht, const Printomgeving& omgeving, QWidget* venster,
                  const Melder& meld) {
    return omgeving.heeftPrinter() ? DrukAfOpPrinter(opdracht, omgeving, venster, meld)
                                   : DrukAfInPdf(opdracht, omgeving, venster, meld);
}

} // namespace lauwerkrans
