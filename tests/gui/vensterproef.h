// A main window over a competition of its own, started as the program starts it.
#pragma once

#include <QAbstractButton>
#include <QCheckBox>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>

#include <memory>
#include <string>
#include <vector>

#include "app/frmMain_start.h"
#include "kern/proef.h"
#include "ui/ontwerp.h"

namespace lauwerkrans::proef {

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

    /// Presses a button with the mouse.
    void klik(const char* naam) const;
    /// Types into a box after clicking it.
    void typ(const char* naam, const char* tekst) const;

    [[nodiscard]] std::string kop() const; // the title over the grid
    /// A row of the grid, its cells joined by "|".
    [[nodiscard]] std::string rij(std::size_t nummer) const;
    [[nodiscard]] std::size_t rijen() const;
    [[nodiscard]] std::string koppen() const;

    ProefCompetitie competitie;
    Instellingen instellingen;
    bool gestart = false;
    std::unique_ptr<frmMain> venster;
    int einde = 0; // how often the program was left
};

} // namespace lauwerkrans::proef
