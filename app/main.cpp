// The program: the Qt application and its one main window.
#include <QDir>
#include <QScreen>

#include <optional>

#include "app/frmMain_start.h"
#include "ui/berichten.h"
#include "ui/hoog_contrast.h"
#include "ui/klein_scherm.h"
#include "ui/maten.h"
#include "ui/pictogram.h"
#include "ui/stijl.h"
#include "ui/taal.h"
#include "ui/toepassing.h"
#include "ui/voorgrond.h"

int main(int argc, char** argv) {
    using namespace lauwerkrans;
    Toepassing toepassing(argc, argv);
    ZetStijl(toepassing, HoogContrast());
    ZetTaal(toepassing);
    QApplication::setWindowIcon(Pictogram());

    Algemeen algemeen;
    Instellingen instellingen;
    frmMain* hoofdvenster = nullptr;
    const Voorgrond voorgrond;
    algemeen.meld = [&hoofdvenster, &voorgrond](const Melding& melding) {
        QWidget* voorop = voorgrond.venster();
        ToonMelding(voorop != nullptr ? voorop : hoofdvenster, melding);
    };
    toepassing.zetMelder(algemeen.meld);

    const systeem::EnigeKopie enigeKopie("lauwerkrans");
    if (!MagStarten(enigeKopie, algemeen.meld)) return 0;
    const std::string map =
        QDir::toNativeSeparators(QApplication::applicationDirPath()).toStdString();
    Uitvoervensters uitvoer(
        instellingen, {algemeen.meld, map, SysteemPrinters(), [&instellingen](frmMain& venster) {
                           BewaarInstellingen(venster, instellingen);
                       }});
    frmMain venster(algemeen, instellingen, MaakKoppeling(instellingen, uitvoer));

    bool geladen = true;
    venster.bewaak([&] { geladen = Form_Load(venster, algemeen, instellingen, map); });
    if (!geladen) return 1;
    hoofdvenster = &venster; // until now messages stand in the middle of the screen
    const QRect vrij = venster.screen()->availableGeometry();
    std::optional<KleinScherm> kleinScherm;
    if (KleinScherm::nodig(venster, vrij)) {
        kleinScherm.emplace(venster).toon(vrij);
    } else {
        QRect plaats(QPoint(), maten::Buitenmaat(venster.size()));
        plaats.moveCenter(vrij.center());
        venster.move(plaats.topLeft());
        venster.show();
    }
    return QApplication::exec();
}
