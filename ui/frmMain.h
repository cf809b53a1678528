// The main window: it makes the controls of its table, hands their events to the calculation and
// shows what comes back.
#pragma once

#include <QCheckBox>
#include <QWidget>

#include <functional>
#include <memory>
#include <string>

#include "app/modInstellingen.h"
#include "calc/lijsten.h"
#include "calc/overzicht.h"
#include "data/modAlgemeen.h"
#include "ui/criteriarijen.h"
#include "ui/elementen.h"
#include "ui/frmToelichting.h"
#include "ui/leeswacht.h"
#include "ui/paneel_P10.h"
#include "ui/paneel_P20.h"

namespace lauwerkrans {

class frmMain : public QWidget {
    Q_OBJECT
public:
    /// What the window asks of those above it.
    struct Koppeling {
        using Werk = std::function<void(frmMain&)>;
        Werk bijEinde = [](frmMain&) {};     // saves the settings before the window closes
        Werk uitvoer = [](frmMain&) {};      // "Uitvoerlijsten ..."
        Werk leegLijst = [](frmMain&) {};    // empties the list in the preview
        Werk sluitUitvoer = [](frmMain&) {}; // closes the previews
        Klok nu = std::chrono::steady_clock::now;
    };

    frmMain(Algemeen& algemeen, Instellingen& instellingen, Koppeling koppeling);
    frmMain(const frmMain&) = delete;
    frmMain(frmMain&&) = delete;
    frmMain& operator=(const frmMain&) = delete;
    frmMain& operator=(frmMain&&) = delete;
    ~frmMain() override;

    /// Builds the criteria rows of the chosen competition from its first round's data. A file that
    /// cannot be read gives its message and leaves no line but "Alle".
    void HaalCompLijnen_ORV();

    /// Removes the criteria rows 1 and up.
    void Verwijder_LblTxtCmds();

    /// Empties results and grid before a new list is shown.
    void Resets();

    /// Makes a calculation the last one, and shows its ranking in the grid.
    void ToonLvwRes(std::shared_ptr<const Uitslag> uitslag);

    /// Shows the score rows of a reading in the grid.
    void ToonLvwR(const std::shared_ptr<const Controle>& controle);

    /// "Bereken" and "Controle" of a row: 0 is all lines.
    void cmd1_Click(std::size_t rij);
    void cmd2_Click(std::size_t rij);

    /// "Controlelijst voor dit lid": the score rows of the pairs with a member whose name holds
    /// the text of txtPersoon.
    void cmdControleLijstLid_Click();

    /// Whether the last calculation still is what the window says: its criteria and options. If
    /// not, calculates the same lines anew, as "Bereken" does. Throws Fout.
    void berekenZoNodig();

    /// The member's control list has been printed or not: from now on the output button opens a
    /// preview again.
    void ledenlijstKlaar();

    /// "Toelichting": shows the help window.
    void cmdToelichting_Click();

    /// The message for a minimum above 20 when its box was left.
    void txt1_LostFocus(std::size_t lijn);

    /// Hides and disables everything that needs a competition.
    void toonZonderCompetitie();

    /// Shows the name of the chosen competition.
    void toonCompetitie(const std::string& naam);

    /// Shows the rounds of the chosen competition.
    void Toon_in_P10();

    [[nodiscard]] Opties opties() const;

    /// Puts stored settings into the controls.
    void pasToe(const IniWaarden& waarden);

    /// The state of the controls that the settings keep; takes the heading of txtKop1 over.
    [[nodiscard]] IniStand stand();

    /// Takes the heading of txtKop1 over into the settings.
    void neemKopTekstOver();

    /// Puts the stored heading into txtKop1.
    void toonKopTekst();

    /// Whether the list on show is a member's control list.
    [[nodiscard]] bool PersoonFilterAan() const { return PersoonFilterAan_; }

    /// Whether there is something to print: what enables "Uitvoerlijsten ...".
    [[nodiscard]] bool printbaar() const;
    void zetPrintbaar(bool aan);

    /// The last calculation; none before the first and after emptying.
    [[nodiscard]] const std::shared_ptr<const Uitslag>& uitslag() const { return uitslag_; }
    [[nodiscard]] PaneelP20& raster() { return *raster_; }
    [[nodiscard]] Criteriarijen& rijen() { return *rijen_; }

    /// Runs an event handler: no exception leaves it. Does nothing during a reading.
    void bewaak(const std::function<void()>& handeling);

protected:
    void resizeEvent(QResizeEvent* gebeurtenis) override;
    void mousePressEvent(QMouseEvent* gebeurtenis) override;
    void closeEvent(QCloseEvent* gebeurtenis) override;

private:
    void verbindKnoppen();
    void maakSneltoetsen();
    void zetTabvolgorde();
    void deelIn(); // the layout rules
    void bereken(const std::string& lijnen);
    void toonControlelijst(const Selectie& selectie);
    void zoekLid();
    void toonLijst(const std::shared_ptr<const Lijst>& lijst,
                   const std::function<void()>& maakPlaats);
    void vervangLijst(const std::function<void()>& werk);
    void zetUitvoerBijschrift(bool ledenlijst);
    [[nodiscard]] bool aangevinkt(const char* naam) const;

    Algemeen& algemeen_;
    Instellingen& instellingen_;
    Koppeling koppeling_;
    std::unique_ptr<frmToelichting> toelichting_;
    Criteriarijen* rijen_ = nullptr;
    PaneelP10* ronden_ = nullptr;
    PaneelP20* raster_ = nullptr;
    Leeswacht* leeswacht_;
    std::shared_ptr<const Uitslag> uitslag_;
    std::int16_t ToonControle = 0; // 0 after "Bereken", 1 after "Controle"
    bool PersoonFilterAan_ = false;
    bool lijnenBekend_ = false; // the lines of the competition could be read
};

/// Smallest size of the window's client area, and its size at the start, in twips.
constexpr double breedteFrmMain = 12915;
constexpr double hoogteFrmMain = 7200;

} // namespace lauwerkrans
