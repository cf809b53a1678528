#include "ui/criteriumveld.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>

namespace lauwerkrans {

namespace {

bool IsCijfer(const QString& tekst) {
    return tekst.size() == 1 && tekst[0] >= QLatin1Char('0') && tekst[0] <= QLatin1Char('9');
}

/// Keys that would bring in or take back text in another way than by typing a digit.
bool WordtGeslikt(const QKeyEvent& toets) {
    switch (toets.key()) {
    case Qt::Key_Backspace:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return true;
    default:
        break;
    }
    if (toets.matches(QKeySequence::Paste)) return true; // Shift+Insert too
    const QString tekst = toets.text();
    return !tekst.isEmpty() && tekst[0].isPrint() && !IsCijfer(tekst);
}

/// Whether the focus stays in the window: it went neither to another window nor to a popup.
bool BlijftInVenster(Qt::FocusReason reden) {
    return reden != Qt::ActiveWindowFocusReason && reden != Qt::PopupFocusReason &&
           reden != Qt::MenuBarFocusReason;
}

} // namespace

Criteriumveld::Criteriumveld(QWidget* houder) : QLineEdit(houder) {
    setContextMenuPolicy(Qt::NoContextMenu);
    setAcceptDrops(false);
    setAttribute(Qt::WA_InputMethodEnabled, false);
}

void Criteriumveld::keyPressEvent(QKeyEvent* gebeurtenis) {
    if (WordtGeslikt(*gebeurtenis)) {
        gebeurtenis->accept();
    } else {
        QLineEdit::keyPressEvent(gebeurtenis);
    }
}

void Criteriumveld::focusInEvent(QFocusEvent* gebeurtenis) {
    QLineEdit::focusInEvent(gebeurtenis);
    selectAll();
    kiesAllesNaKlik_ = gebeurtenis->reason() == Qt::MouseFocusReason;
}

void Criteriumveld::focusOutEvent(QFocusEvent* gebeurtenis) {
    QLineEdit::focusOutEvent(gebeurtenis);
    if (BlijftInVenster(gebeurtenis->reason())) emit verlaten();
}

void Criteriumveld::mousePressEvent(QMouseEvent* gebeurtenis) {
    if (gebeurtenis->button() == Qt::LeftButton) QLineEdit::mousePressEvent(gebeurtenis);
}

void Criteriumveld::mouseReleaseEvent(QMouseEvent* gebeurtenis) {
    if (gebeurtenis->button() != Qt::LeftButton) return; // the middle button would paste
    QLineEdit::mouseReleaseEvent(gebeurtenis);
    if (kiesAllesNaKlik_) selectAll();
    kiesAllesNaKlik_ = false;
}

} // namespace lauwerkrans
