#include "app/frmMain_start.h"

#include <QListWidget>

#include "data/fout.h"
#include "data/modORV_compbums.h"
#include "data/modORV_compdata.h"
#include "data/modORV_leden.h"
#include "data/tekstbestand.h"
#include "ui/ontwerp.h"

namespace lauwerkrans {

namespace {

bool LeesMappen(Algemeen& algemeen, const std::string& programmaMap) {
    OverigeMappen overig;
    try {
        LeesMappenIni(algemeen, overig, programmaMap);
        return true;
    } catch (const Fout& fout) {
        algemeen.meld({FoutTekst(fout), Icoon::Uitroep});
        return false;
    }
}

} // namespace

bool MagStarten(const systeem::EnigeKopie& kopie, const Melder& meld) {
    if (!kopie.gelukt()) meld({"Het programma is al gestart!...", Icoon::Geen});
    return kopie.gelukt();
}

frmMain::Koppeling MaakKoppeling(const Instellingen& instellingen, Uitvoervensters& uitvoer) {
    return {[&instellingen](frmMain& venster) { BewaarInstellingen(venster, instellingen); },
            [&uitvoer](frmMain& venster) { uitvoer.cmdPrinten_Click(venster); },
            [&uitvoer](frmMain& /*venster*/) { uitvoer.leegLijst(); },
            [&uitvoer](frmMain& /*venster*/) { uitvoer.sluit(); }};
}

bool Form_Load(frmMain& venster, Algemeen& algemeen, Instellingen& instellingen,
               const std::string& programmaMap) {
    instellingen.bestand = InstellingenPad(programmaMap);
    LeesInstellingen(instellingen, algemeen);
    if (!LeesMappen(algemeen, programmaMap)) return false;
    if (algemeen.ActieveCompetitie.empty()) {
        venster.toonZonderCompetitie();
        Vind<QWidget>(venster, "cmdToelichting")->setFocus();
        algemeen.meld({"U hebt nog geen competitie(-zitting) gekozen.", Icoon::Uitroep});
        return true;
    }
    auto* List2 = Vind<QListWidget>(venster, "List2");
    List2->addItem(QString::fromStdString(algemeen.ActieveCompetitie));
    List2->setCurrentRow(0);
    // Each step is guarded by itself: what fails gives its message and the next one runs.
    venster.bewaak([&] { KiesCompetitie(venster, algemeen); });
    venster.toonCompetitie(algemeen.ActieveCompetitie);
    venster.bewaak([&] { LeesLeden(algemeen); });
    venster.bewaak([&] { LeesCompBums(algemeen); });
    venster.zetPrintbaar(false);
    venster.pasToe(VerwerkIniVariabelen(instellingen, venster.rijen().lijnen()));
    venster.toonKopTekst();
    if (venster.rijen().lijnen() > 0) venster.rijen().kies(1);
    return true;
}

void BewaarInstellingen(frmMain& venster, const Instellingen& instellingen) {
    if (Vind<QListWidget>(venster, "List2")->count() == 0) return;
    const IniStand stand = venster.stand();
    SchrijfInstellingen(instellingen, stand);
}

void KiesCompetitie(frmMain& venster, Algemeen& algemeen) {
    const std::string naam =
        Vind<QListWidget>(venster, "List2")->currentItem()->text().toStdString();
    algemeen.competitie = VoegPad(algemeen.CompetitieMap, naam);
    LeesCompData(algemeen);
    Vind<KopLabel>(venster, "lblResultKop")
        ->zetBijschrift(QString::fromStdString("Resultaat voor: " + naam));
    venster.Resets();
    venster.bewaak([&] { BouwRondeInfo(algemeen); });
    venster.Verwijder_LblTxtCmds();
    venster.HaalCompLijnen_ORV();
    venster.Toon_in_P10();
}

} // namespace lauwerkrans
