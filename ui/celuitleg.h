// The tool tip over a cell of a table.
#pragma once

#include <QHelpEvent>

#include "ui/tabellijf.h"

namespace lauwerkrans {

/// Shows what the cell under the pointer says in words; takes a tip away where there is nothing to
/// say. The tip goes when the pointer leaves the cell.
void ToonUitleg(TabelLijf& lijf, const QHelpEvent& vraag);

} // namespace lauwerkrans
