#include "ui/sneltoets.h"

#include <QShortcut>

namespace lauwerkrans {

/// The button's own shortcut would go when its caption changes, and would press it with a delay.
void MaakSneltoets(QPushButton& knop, const QKeySequence& toets, Qt::ShortcutContext waar) {
    auto* sneltoets = new QShortcut(toets, knop.window());
    sneltoets->setContext(waar);
    sneltoets->setAutoRepeat(false);
    QObject::connect(sneltoets, &QShortcut::activated, &knop, [&knop] {
        if (knop.isVisible()) knop.click(); // a disabled one does nothing by itself
    });
}

} // namespace lauwerkrans
