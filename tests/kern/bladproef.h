// Lists for the tests of the page layout, and what those tests look for on a page.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "calc/lijsten.h"
#include "output/bladindeling_lijnen.h"

namespace lauwerkrans::proef {

/// Positions on a page are right to this many millimetres.
constexpr double bladfout = 0.01;

/// The width of a text in letters as wide as in a table: at 10 points a character of Arial is 2 mm,
/// a bold one 2.25 mm and one of Arial Narrow 1.5 mm.
[[nodiscard]] double TabelBreedte(const std::string& tekst, const Letter& letter);

/// A list with lines of so many pairs, "A", "B" and again; pair n has the name PaarNaam(n).
[[nodiscard]] Uitvoer MetRijen(const std::vector<std::size_t>& rijenPerLijn);
[[nodiscard]] std::string PaarNaam(std::size_t nummer);

/// A list of one pair with this name of its first member; that of the second is "B".
[[nodiscard]] Uitvoer MetNaam(const std::string& naam);

/// The blocks of lines of these sizes on paper of this height.
[[nodiscard]] std::vector<Blok> Blokken(const std::vector<std::size_t>& lijnen,
                                        double hoogte = bladmaat::a4Hoogte);

/// The height of a block of so many rows: 4.8 mm each, 8 mm for its heading and 7 for its headers.
[[nodiscard]] double BlokHoogte(std::size_t rijen);

/// The texts on the page that read so.
[[nodiscard]] std::vector<BladTekst> Alle(const Blad& blad, const std::string& tekst);

/// The one text on the page that reads so. Throws std::runtime_error when there is none or another.
[[nodiscard]] BladTekst Vind(const Blad& blad, const std::string& tekst);

/// The end of a text at its right.
[[nodiscard]] double Einde(const BladTekst& tekst);

/// The heights of the rules across the printable width, downwards.
[[nodiscard]] std::vector<double> Strepen(const Blad& blad);

/// The pairs of a list of MetRijen on a page: their texts in the order of the page.
[[nodiscard]] std::vector<BladTekst> Paren(const Blad& blad);

/// The same on all pages.
[[nodiscard]] std::vector<std::string> ParenOpAlle(const Bladen& bladen);

/// The names of pairs 1 to `aantal`.
[[nodiscard]] std::vector<std::string> PaarNamen(std::size_t aantal);

/// Expects a text that starts at x, with its baseline at y, in this letter.
void VerwachtTekst(const BladTekst& tekst, double x, double y, const Letter& letter);

/// Expects rules at these heights and no others.
void VerwachtStrepen(const Blad& blad, const std::vector<double>& hoogten);

/// Expects all but the foot to stand inside the frame of a page of this height.
void VerwachtBinnenKader(const Blad& blad, double hoogte);

/// Whether two pages have the same texts and lines.
[[nodiscard]] bool Gelijk(const Blad& een, const Blad& ander);

} // namespace lauwerkrans::proef
