#include "vensterproef.h"

#include <QApplication>

namespace lauwerkrans::proef {

Printomgeving Printproef::omgeving() {
    return {[this] { return heeftPrinter; },
            [this](QPrinter& printer, QWidget*) { return kiesPrinter(printer); },
            [this](const QString& naam, QWidget*) {
                gevraagd.push_back(naam);
                return pdf;
            }};
}

Vensterproef::Vensterproef(int ronden, int zittingen, int lijnen)
    : competitie(ronden, zittingen, lijnen),
      uitvoer(instellingen, {competitie.algemeen.meld, competitie.map().pad() + "/Lauwerkrans",
                             printers.omgeving(), [this](frmMain& hoofdvenster) {
                                 BewaarInstellingen(hoofdvenster, instellingen);
                             }}) {
    std::filesystem::create_directory(competitie.map().map() / "Lauwerkrans");
    auto koppeling = MaakKoppeling(instellingen, uitvoer);
    koppeling.bijEinde = [this, bewaar = koppeling.bijEinde](frmMain& hoofdvenster) {
        ++einde;
        bewaar(hoofdvenster);
    };
    koppeling.nu = [this] { return klok(); };
    venster = std::make_unique<frmMain>(competitie.algemeen, instellingen, std::move(koppeling));
}

Printvenster* Vensterproef::voorbeeld(const char* naam) const {
    for (QWidget* kandidaat : QApplication::topLevelWidgets()) {
        auto* gevonden = qobject_cast<Printvenster*>(kandidaat);
        if (gevonden != nullptr && gevonden->isVisible() &&
            gevonden->objectName() == QLatin1String(naam)) {
            return gevonden;
        }
    }
    return nullptr;
}

void Vensterproef::start() {
    const std::string map = competitie.map().pad();
    competitie.map().schrijf("Mappen.ini", "ORVMAP=" + map + "\r\nCOMMAP=" + map +
                                               "\\Competities\r\nACTCOM=Proef\r\n");
    gestart = Form_Load(*venster, competitie.algemeen, instellingen, map + "/Lauwerkrans");
    venster->show();
    venster->activateWindow();
    static_cast<void>(QTest::qWaitForWindowActive(venster.get()));
}

void Vensterproef::klik(const char* naam) const {
    QTest::mouseClick(&vind<QWidget>(naam), Qt::LeftButton);
    QCoreApplication::processEvents();
}

void Vensterproef::typ(const char* naam, const char* tekst) const {
    auto& vak = vind<QLineEdit>(naam);
    QTest::mouseClick(&vak, Qt::LeftButton);
    QTest::keyClicks(&vak, QString::fromLatin1(tekst));
}

std::string Vensterproef::kop() const {
    return vind<KopLabel>("lblResultKop").bijschrift().toStdString();
}

void Vensterproef::toon(const std::shared_ptr<const Lijst>& lijst) const {
    PaneelP20& raster = venster->raster();
    raster.toon(lijst, raster.beeldVan(lijst));
}

std::string Vensterproef::rij(std::size_t nummer) const {
    const auto& lijst = *venster->raster().lijst();
    std::string tekst;
    for (std::size_t kolom = 1; kolom <= lijst.kolommen(); ++kolom) {
        tekst += (kolom == 1 ? "" : "|") + lijst.cel(nummer, kolom);
    }
    return tekst;
}

std::size_t Vensterproef::rijen() const {
    const auto& lijst = venster->raster().lijst();
    return lijst ? lijst->rijen() : 0;
}

std::string Vensterproef::koppen() const {
    std::string tekst;
    for (const auto& kop : venster->raster().lijst()->koppen())
        tekst += kop + "|";
    return tekst;
}

} // namespace lauwerkrans::proef
