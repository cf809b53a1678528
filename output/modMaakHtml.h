// The list as a page for the club's web site, and the folder that all list files go to. The page is
// one line, in the code page and without a declaration of it; texts stand in it as they are.
#pragma once

#include <string>

#include "output/uitvoer.h"

namespace lauwerkrans {

/// Writes the page of the list and tells where it is, or that it cannot be made; then the error
/// flag is 1 and an earlier page stands as it was.
void MaakHtml(Uitvoer& uitvoer);

/// Sets `uitvoermap` to the folder "Lauwerkrans" in the program's folder and makes it when it is
/// not there. Throws Fout (BestandNietSchrijfbaar).
void MaakUitvoerMap(Uitvoer& uitvoer);

/// The start of a page, up to its body.
[[nodiscard]] std::string HtmlKop();

/// Adds one ranking over all lines to the page, and its end.
void HtmlTabelTotaal(std::string& pagina, const Uitvoer& uitvoer);

/// Adds the rankings line by line to the page, and its end.
void HtmlTabelPerLijn(std::string& pagina, const Uitvoer& uitvoer);

/// Writes the page to a file in the output folder, whole or not at all. False when it could not be
/// made; that has then been said and the error flag set.
[[nodiscard]] bool BewaarHtml(Uitvoer& uitvoer, const std::string& naam, const std::string& pagina);

/// Tells under which name the page was written, and where.
void MeldHtml(const Uitvoer& uitvoer, const std::string& naam);

} // namespace lauwerkrans
