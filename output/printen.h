// Printing: the system's print dialog and printers or, where there is no printer, a PDF of the same
// pages.
#pragma once

#include <QPrinter>
#include <QString>
#include <QWidget>

#include <functional>
#include <memory>

#include "data/melding.h"
#include "output/bladindeling.h"

namespace lauwerkrans {

/// What the system offers; tests answer in its place.
struct Printomgeving {
    std::function<bool()> heeftPrinter;
    /// Shows the print dialog for a printer with its page range; false when cancelled.
    std::function<bool(QPrinter& printer, QWidget* venster)> kiesPrinter;
    /// Asks where to save the PDF of this name; empty when cancelled.
    std::function<QString(const QString& naam, QWidget* venster)> kiesPdf;
};

/// The dialogs and printers of this system.
[[nodiscard]] Printomgeving SysteemPrinters();

/// What is printed.
struct Printopdracht {
    QString naam; // of the document; also that of a PDF, without its extension
    std::function<std::unique_ptr<Bladen>(double bladHoogte)> bladen;
    std::size_t meesteBladen = 0; // 0: no limit
};

/// How a print ended.
enum class Printeinde { Gedrukt, Geannuleerd, Mislukt };

/// Asks for a printer or a file and prints the pages of the chosen range, one paper page each. What
/// fails is said.
[[nodiscard]] Printeinde DrukAf(const Printopdracht& opdracht, const Printomgeving& omgeving,
                                QWidget* venster, const Melder& meld);

} // namespace lauwerkrans
