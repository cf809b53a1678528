// The rows of the criteria panel: the row "Alle" and one row per line with its letter, the minimum
// number of sessions and the buttons "Bereken" and "Controle".
#pragma once

#include <QFrame>
#include <QLabel>
#include <QObject>
#include <QPushButton>
#include <QScrollBar>

#include <vector>

#include "calc/lijnen.h"
#include "ui/criteriumveld.h"

namespace lauwerkrans {

class Criteriarijen : public QObject {
    Q_OBJECT
public:
    /// Takes the controls that the window made.
    explicit Criteriarijen(QWidget& venster);

    /// Makes the rows 1 to L of `lijnTabel`, visible, and shows the row "Alle".
    void maak(const Tabel& lijnTabel);

    /// Removes the rows from the highest down to 1; row 0 stays.
    void Verwijder_LblTxtCmds();

    /// The number of lines that have a row.
    [[nodiscard]] std::size_t lijnen() const { return rijen_.size() - 1; }

    /// The texts of the boxes 1 to L.
    [[nodiscard]] Criteria criteria() const;

    /// Puts a text into the box of a line, 1 to L.
    void zetCriterium(std::size_t lijn, const std::string& tekst);

    /// Gives the box of a line the focus.
    void kies(std::size_t lijn);

    /// The height of P0 changed: fits the scroll bar.
    void pasAan();

    /// From now on no message about a number that is too high is shown: the window is closing.
    void zwijg() { zwijgt_ = true; }

signals:
    void bereken(std::size_t rij);
    void controleer(std::size_t rij);
    /// The focus left the box of a line; sent after the click that took it was handled.
    void verlaten(std::size_t lijn);

protected:
    bool eventFilter(QObject* object, QEvent* gebeurtenis) override;

private:
    struct Rij {
        QLabel* lbl1;
        Criteriumveld* txt1;
        QPushButton* cmd1;
        QPushButton* cmd2;
    };

    [[nodiscard]] Rij maakRij(std::size_t nummer);
    void zetTabvolgorde();
    void verbind(const Rij& rij, std::size_t nummer);
    void veldVerlaten(std::size_t lijn);
    [[nodiscard]] bool heeftFocus(std::size_t lijn) const;
    void meldVerlaten(std::size_t lijn);
    void schuif(int waarde);
    void toonMetFocus(const QWidget* oud, const QWidget* nieuw);
    void toonRij(std::size_t lijn);

    QFrame* P0;
    QFrame* P1;
    QScrollBar* VScroll1;
    std::vector<Rij> rijen_;      // element 0 is the row "Alle"
    std::size_t wachtOpKlik_ = 0; // line whose box was left by a mouse press; 0 is none
    bool zwijgt_ = false;
    bool geeftTerug_ = false; // the focus is being given back to a box
};

} // namespace lauwerkrans
