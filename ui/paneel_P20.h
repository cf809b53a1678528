// The result grid: the viewport P20 with the body P21 and the header strip P22, and the scroll bars
// VScroll20 and HScroll20 beside it. Scroll values are millimetres.
#pragma once

#include <QFrame>
#include <QObject>
#include <QPushButton>
#include <QScrollBar>

#include <memory>
#include <vector>

#include "calc/lijsten.h"
#include "ui/elementen.h"
#include "ui/tabellijf.h"

namespace lauwerkrans {

class PaneelP20 : public QObject {
    Q_OBJECT
public:
    /// Takes the controls that the window made.
    explicit PaneelP20(QWidget& venster);

    /// Sets up the panel, once, before the window has its size.
    void InitP20();

    /// Empties the grid: no header buttons, no rows, the body as large as the viewport and ruled.
    void ToonP20_leeg();

    /// Removes all header buttons above element 0, from the highest index down to 1.
    void Verw_Headers();

    /// Marks the row under a point of the body (mm) with a red line above and below it. The x is
    /// not used.
    void AccentueerRegel(double x, double y);

    /// Lets a visible mark run to the width of the table.
    void LijnBr_Aanpassen();

    /// Takes the mark away.
    void verbergMarkering();

    /// The list on show as text for the clipboard: columns between tabs, a line per row, title and
    /// headers first.
    [[nodiscard]] QString alsTekst() const;

    /// How a list looks, its columns measured. Leaves what is shown as it is.
    [[nodiscard]] Tabelbeeld beeldVan(const std::shared_ptr<const Lijst>& lijst) const;

    /// Replaces what is shown by a list and its look, from its first row and column on.
    void toon(std::shared_ptr<const Lijst> lijst, Tabelbeeld beeld);

    /// The list on show; none while the grid is empty.
    [[nodiscard]] const std::shared_ptr<const Lijst>& lijst() const { return lijst_; }

    /// Shows the grid so many percent of its size, from the same row and column on.
    void zetVergroting(int procent);

    /// Fits the panel to the size of P20: body, header strip, scroll ranges, ruling.
    void pasAan();

    /// Width of the table in millimetres.
    [[nodiscard]] double tabelBreedte() const { return tabelBreedte_; }

public slots:
    void SubVscroll20_CS(int waarde);
    void SubVscroll20_CH(int waarde);
    void SubHScroll20_CS(int waarde);
    void SubHScroll20_CH(int waarde);

protected:
    bool eventFilter(QObject* object, QEvent* gebeurtenis) override;

private:
    [[nodiscard]] double zichtBreedte() const; // inner size of P20 in mm
    [[nodiscard]] double zichtHoogte() const;
    [[nodiscard]] Tabelbeeld leegBeeld() const;
    void vul(std::shared_ptr<const Lijst> lijst, Tabelbeeld beeld);
    void zetSchuiven();
    void plaatsStrip();
    void maakKnoppen();
    [[nodiscard]] bool ctrlToets(int toets);
    void markeerRij(double rij);
    void verzetMarkering(double rijen);

    QFrame* P20;
    QFrame* P22;
    TabelLijf* P21;
    Streep* Line20;
    Streep* Line21;
    QPushButton* cmd20_0;
    QScrollBar* VScroll20;
    QScrollBar* HScroll20;
    double tabelBreedte_ = 0;
    std::shared_ptr<const Lijst> lijst_;
    std::vector<QPushButton*> cmd20_; // element i - 1 is button i; there while it is exposed
    TabelLijf::Bereik metKnop_;       // the columns that have theirs
};

} // namespace lauwerkrans
