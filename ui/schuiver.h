// Scrolling a panel's body by wheel and keys. The steps are rows of the table, not those of the
// scroll bars.
#pragma once

#include <QObject>
#include <QPoint>
#include <QScrollBar>

#include "ui/tabellijf.h"

namespace lauwerkrans {

/// How many rows a page of a body is: the visible ones less one, at least one.
[[nodiscard]] double RijenPerBlad(const TabelLijf& lijf);

/// Listens to a body and its scroll bars. Wheel: three rows a notch, sideways with Shift. Keys in
/// the body: arrows a row or a small step sideways, Page Up and Page Down a page,
/// Home and End; with Shift the Page keys, Home and End go sideways.
class Schuiver : public QObject {
    Q_OBJECT
public:
    /// `opzij` may be missing: the body then scrolls up and down only.
    Schuiver(TabelLijf& lijf, QScrollBar& opEnNeer, QScrollBar* opzij);

protected:
    bool eventFilter(QObject* object, QEvent* gebeurtenis) override;

private:
    [[nodiscard]] bool toets(int toets);
    [[nodiscard]] bool toetsOpzij(int toets);
    void wiel(QPoint hoek);
    void verschuif(int mm);
    void verschuifOpzij(int mm);

    TabelLijf& lijf_;
    QScrollBar& opEnNeer_;
    QScrollBar* opzij_;
    QPoint wielRest_; // turned by the wheel, not enough yet for a millimetre
};

} // namespace lauwerkrans
