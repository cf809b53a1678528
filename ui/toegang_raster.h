// A table body for screen readers: rows, columns, cells, headers and the marked row. Every row and
// column can be asked for, but only the cells in view are children: a list may have a million rows
// and a reader that walks the children must come to an end.
#pragma once

#include <cstddef>

namespace lauwerkrans {

class TabelLijf;

/// Teaches the toolkit how a TabelLijf is read. May be called any number of times.
void InstalleerRasterToegang();

/// Tells screen readers that a body shows another table.
void MeldAndereTabel(TabelLijf& lijf);

/// Tells screen readers that another row is marked than row `vorige` (0: none was). With the focus
/// in the body the reader goes to the marked row.
void MeldMarkering(TabelLijf& lijf, std::size_t vorige);

} // namespace lauwerkrans
