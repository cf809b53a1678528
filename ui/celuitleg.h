// The tool tip over a cell of the result grid.
#pragma once

#include <QHelpEvent>

#include "calc/lijsten.h"
#include "ui/tabellijf.h"

namespace lauwerkrans {

/// Shows what the cell under the pointer says in words; takes a tip away where there is nothing to
/// say. The tip goes when the pointer leaves the cell.
void ToonUitleg(TabelLijf& lijf, const Lijst* lijst, const QHelpEvent& vraag);

} // namespace lauwerkrans
