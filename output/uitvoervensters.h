// The output button of the main window: the two previews, and a member's control list that is
// printed without one.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "output/frmPrinten.h"
#include "output/frmPrintenTI.h"
#include "ui/frmMain.h"

namespace lauwerkrans {

/// What the output needs of the program.
struct Uitvoeromgeving {
    Melder meld;
    std::string programmaMap;
    Printomgeving printers;
    std::function<void(frmMain&)> bewaar; // writes the settings file; may throw Fout
};

class Uitvoervensters {
public:
    Uitvoervensters(Instellingen& instellingen, Uitvoeromgeving omgeving);

    /// The output button: prints the member's control list that is on show, else opens the preview
    /// of the last ranking. Its criteria and options are those of the window: when they have
    /// changed, it is calculated anew first.
    void cmdPrinten_Click(frmMain& hoofdvenster);

    /// Empties the champion list on show, before another one is calculated.
    void leegLijst();

    /// Closes both previews.
    void sluit();

private:
    void PrintZDregels(frmMain& hoofdvenster) const;
    void toonVoorbeeld(frmMain& hoofdvenster);
    [[nodiscard]] Uitvoer maakUitvoer(const frmMain& hoofdvenster) const;
    [[nodiscard]] Printvenster& voorbeeldVoor(frmMain& hoofdvenster);

    Instellingen& instellingen_;
    Uitvoeromgeving omgeving_;
    std::unique_ptr<frmPrinten> perLijn_;
    std::unique_ptr<frmPrintenTI> totaal_;
};

} // namespace lauwerkrans
