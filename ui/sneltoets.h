// Keys that do what a button does, wherever the focus is.
#pragma once

#include <QKeySequence>
#include <QPushButton>

namespace lauwerkrans {

/// Lets a key press a button as the mouse would: never while it is hidden or disabled. It counts in
/// the window that the button is in, or with Qt::ApplicationShortcut in every window of the
/// program.
void MaakSneltoets(QPushButton& knop, const QKeySequence& toets,
                   Qt::ShortcutContext waar = Qt::WindowShortcut);

} // namespace lauwerkrans
