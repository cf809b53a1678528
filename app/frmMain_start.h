// The start of the main window: from the program's folder to the loaded competition.
#pragma once

#include <string>

#include "app/modMappen.h"
#include "data/systeem.h"
#include "output/uitvoervensters.h"
#include "ui/frmMain.h"

namespace lauwerkrans {

/// Whether this copy of the program may go on: when another one runs, it says so and may not.
[[nodiscard]] bool MagStarten(const systeem::EnigeKopie& kopie, const Melder& meld);

/// What the main window asks of the settings and of the output.
[[nodiscard]] frmMain::Koppeling MaakKoppeling(const Instellingen& instellingen,
                                               Uitvoervensters& uitvoer);

/// Runs the start-up: reads the settings and Mappen.ini of the program folder and, when a
/// competition is active, loads it with its members and applies the settings. False when there is
/// no readable Mappen.ini: after the message the program ends with exit status 1.
[[nodiscard]] bool Form_Load(frmMain& venster, Algemeen& algemeen, Instellingen& instellingen,
                             const std::string& programmaMap);

/// Loads the competition that is chosen in List2: its data, rounds, lines and results.
void KiesCompetitie(frmMain& venster, Algemeen& algemeen);

/// What leaving the program does first: writes the settings, when a competition is loaded. Throws
/// Fout when they cannot be written.
void BewaarInstellingen(frmMain& venster, const Instellingen& instellingen);

} // namespace lauwerkrans
