// A main window over a competition of its own, started as the program starts it.
#pragma once

#include <QAbstractButton>
#include <QCheckBox>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "app/frmMain_start.h"
#include "kern/proef.h"
#include "ui/ontwerp.h"

namespace lauwerkrans::proef {

/// Answers for the system's printers and dialogs.
struct Printproef {
    bool heeftPrinter = false;
    /// The print dialog: changes the printer as a user would; false cancels.
    std::function<bool(QPrinter&)> kiesPrinter = [](QPrinter&) { return false; };
    QString pdf;                   // the answer of the save dialog; empty cancels
    std::vector<QString> gevraagd; // the names that the save dialog was asked with

    [[nodiscard]] Printomgeving omgeving();
};

class Vensterproef {
public:
    Vensterproef(int ronden, int zittingen, int lijnen);

    /// Writes Mappen.ini, starts the window on the competition and shows it.
    void start();

    /// The control of a name, e.g. "cmd1_0".
    template <class Element>
    [[nodiscard]] Element& vind(const char* naam) const {
        auto* element = venster->findChild<Element*>(QString::fromLatin1(naam));
        if (element == nullptr) throw std::runtime_error(naam);
        return *element;
    }
    [[nodiscard]] bool heeft(const char* naam) const {
        return venster->findChild<QWidget*>(QString::fromLatin1(naam)) != nullptr;
    }

    /// The preview of this name that is on show, or nullptr.
    [[nodiscard]] Printvenster* voorbeeld(const char* naam) const;

    /// Presses a button with the mouse.
    void klik(const char* naam) const;
    /// Types into a box after clicking it.
    void typ(const char* naam, const char* tekst) const;

    [[nodiscard]] std::string kop() const; // the title over the grid
    /// Shows a list in the grid.
    void toon(const std::shared_ptr<const Lijst>& lijst) const;

    /// A row of the grid, its cells joined by "|".
    [[nodiscard]] std::string rij(std::size_t nummer) const;
    [[nodiscard]] std::size_t rijen() const;
    [[nodiscard]] std::string koppen() const;

    ProefCompetitie competitie;
    Instellingen instellingen;
    Printproef printers;
    Uitvoervensters uitvoer;
    bool gestart = false;
    std::unique_ptr<frmMain> venster;
    int einde = 0; // how often the program was left
    Klok klok = [] { return std::chrono::steady_clock::time_point(); }; // stands still
};

} // namespace lauwerkrans::proef
