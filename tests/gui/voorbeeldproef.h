// A preview over made-up lists, with answers for printers and dialogs.
#pragma once

#include <QByteArray>
#include <QPushButton>

#include "kern/uitvoerproef.h"
#include "output/frmPrinten.h"
#include "output/frmPrintenTI.h"
#include "vensterproef.h"

namespace lauwerkrans::proef {

/// A list of lines "A", "B", ... with so many pairs each.
[[nodiscard]] std::shared_ptr<Uitslag> GroteUitslag(const std::vector<std::size_t>& paren);

/// Presses a button of a window with the mouse.
void Druk(const QWidget& venster, const char* naam);

/// What a command that reads a PDF (pdftotext with options, pdfinfo) says about one. These are
/// programs of the building machine; on Windows they are reached through wine. Throws
/// std::runtime_error when it fails.
[[nodiscard]] QByteArray LeesMet(const std::string& opdracht, const std::string& pad);

/// A word of a PDF with its place in millimetres: its left end and its baseline, and its
/// page.
struct PdfTekst {
    int blad = 1;
    double x = 0;
    double y = 0;
    std::string tekst;
};

/// The words of a PDF, line by line.
[[nodiscard]] std::vector<PdfTekst> LeesPdf(const std::string& pad);

/// The number of pages of a PDF.
[[nodiscard]] int PdfBladen(const std::string& pad);

/// The words of one page, joined by blanks.
[[nodiscard]] std::string PdfBlad(const std::string& pad, int blad);

} // namespace lauwerkrans::proef
