// The language of what the toolkit itself shows: standard buttons, dialogs for printing and saving.
#pragma once

#include <QCoreApplication>

namespace lauwerkrans {

/// Gives the toolkit its Dutch texts, whatever the system's language, and those that its own
/// catalogue leaves in English. Without a catalogue only these are Dutch.
void ZetTaal(QCoreApplication& toepassing);

} // namespace lauwerkrans
