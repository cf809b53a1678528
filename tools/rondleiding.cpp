// A short tour of the real windows: starts the main window on a program folder, presses its
// buttons and keeps a picture of every state. Arguments: the program folder, the folder for the
// pictures, the suite's folder with the example of the manual, and perhaps "hoog-contrast": as on a
// desktop of white letters on black.
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>

#include <array>

#include "app/frmMain_start.h"
#include "tools/generator.h"
#include "tools/zwart_bureaublad.h"
#include "ui/berichten.h"
#include "ui/hoog_contrast.h"
#include "ui/klein_scherm.h"
#include "ui/ontwerp.h"
#include "ui/stijl.h"
#include "ui/taal.h"

namespace {

using namespace lauwerkrans;

/// The main window on one program folder.
class Rondleiding {
public:
    Rondleiding(const QString& programmaMap, const QString& beeldenMap)
        : beelden_(beeldenMap), uitvoerMap_(programmaMap + QStringLiteral("/Lauwerkrans")),
          uitvoer_(instellingen_, {[this](const Melding& melding) { algemeen_.meld(melding); },
                                   programmaMap.toStdString(), geenPrinter(), [](frmMain&) {}}),
          venster_(algemeen_, instellingen_, MaakKoppeling(instellingen_, uitvoer_)) {
        algemeen_.meld = [this](const Melding& melding) { meldingen_.push_back(melding); };
        gelukt_ = Form_Load(venster_, algemeen_, instellingen_, programmaMap.toStdString());
        venster_.show();
    }

    /// Every state of the window with a competition of three lines.
    void loopRond() {
        vulMinima();
        Vind<QLineEdit>(venster_, "txtKop1")
            ->setText(QStringLiteral("Kampioenen van de voorjaarscompetitie"));
        bewaar("00-start");
        bewaarDeel("Frame1", "15-competitie");
        bewaarDeel("Frame3", "16-criteria");
        bewaarDeel("Frame2", "17-instellingen");
        bewaarDeel("Frame5", "18-lid");
        druk("cmd1_1");
        bewaar("01-lijn-A");
        druk("cmd1_0");
        bewaar("02-alle-lijnen");
        bewaarDeel("Frame4", "19-uitvoer");
        voerUit("frmPrinten", "13-voorbeeld-per-lijn");
        vink("chkGemAlleLijnen");
        druk("cmd1_0");
        bewaar("25-ongeacht-de-lijn");
        vink("chkGemAlleLijnen");
        vink("chkGewogen");
        vink("chkZitDetails");
        druk("cmd1_1");
        bewaar("03-lijn-A-gewogen-details");
        vink("chkGemAlleLijnen");
        druk("cmd1_0");
        bewaar("04-ongeacht-de-lijn-gewogen");
        voerUit("frmPrintenTI", "14-voorbeeld-alle-lijnen");
        druk("cmd2_0");
        bewaar("05-controle");
        venster_.raster().AccentueerRegel(0, 5 + 4 * 6 + 1);
        bewaar("06-controle-gemarkeerde-rij");
        Vind<QLineEdit>(venster_, "txtPersoon")->setText(QStringLiteral("klaver"));
        druk("cmdControleLijstLid");
        bewaar("07-controle-van-een-lid");
        druk("cmd1_0");
        venster_.resize(1400, 900);
        bewaar("08-groot-venster");
        druk("cmdToelichting");
        bewaarAndere("frmToelichting", "09-toelichting");
    }

    /// The example of the manual: one line of eight pairs, three sessions of which one is short.
    void loopVoorbeeldDoor() {
        venster_.rijen().zetCriterium(1, "3");
        vink("chkZitDetails");
        druk("cmd1_1");
        bewaar("20-voorbeeld-gewoon");
        vink("chkGewogen");
        druk("cmd1_1");
        bewaar("21-voorbeeld-gewogen");
        vink("chkGewogen");
        vink("chkBuiMed");
        druk("cmd1_1");
        bewaar("22-voorbeeld-buiten-mededinging");
        druk("cmd2_1");
        bewaar("23-voorbeeld-controle");
    }

    /// A laptop of 1366 x 768 at 150 % has this place within a window's frame.
    void toonOpKleinScherm() {
        vulMinima();
        druk("cmd1_0");
        KleinScherm scherm(venster_);
        scherm.resize(910, 435);
        scherm.show();
        bewaarVenster(scherm, "26-klein-scherm");
    }

    void bewaar(const char* naam) { bewaarVenster(venster_, naam); }

    /// The message of a calculation without a minimum, as its box shows it.
    void bewaarMelding(const char* naam) {
        venster_.rijen().zetCriterium(1, "");
        druk("cmd1_1");
        QTimer::singleShot(0, [this, naam] {
            QWidget& vak = *QApplication::activeModalWidget();
            bewaarVenster(vak, naam);
            vak.close();
        });
        ToonMelding(&venster_, meldingen_.at(0));
    }

    /// Prints the messages that were shown. False when there were others than expected, or when a
    /// picture could not be written.
    [[nodiscard]] bool klaar(std::size_t verwachteMeldingen) const {
        for (const Melding& melding : meldingen_) {
            QTextStream(stdout) << "melding: " << QString::fromStdString(melding.tekst) << Qt::endl;
        }
        return gelukt_ && meldingen_.size() == verwachteMeldingen;
    }

private:
    void vulMinima() {
        constexpr std::array<const char*, 3> minima = {"13", "10", "8"};
        for (std::size_t i = 0; i < minima.size(); ++i) {
            venster_.rijen().zetCriterium(i + 1, minima.at(i));
        }
    }

    void druk(const char* naam) { Vind<QPushButton>(venster_, naam)->click(); }
    void vink(const char* naam) { Vind<QCheckBox>(venster_, naam)->click(); }

    void bewaarVenster(QWidget& venster, const char* naam) {
        QApplication::processEvents();
        const QString pad = beelden_.filePath(QStringLiteral("%1.png").arg(QLatin1String(naam)));
        if (venster.grab().save(pad)) return;
        QTextStream(stderr) << pad << " kan niet worden geschreven." << Qt::endl;
        gelukt_ = false;
    }

    /// A part of the main window.
    void bewaarDeel(const char* deel, const char* naam) {
        bewaarVenster(*Vind<QWidget>(venster_, deel), naam);
    }

    /// The window of this name that is on show, or the main window when there is none.
    QWidget& anderVenster(const char* venster) {
        for (QWidget* kandidaat : QApplication::topLevelWidgets()) {
            if (kandidaat->isVisible() && kandidaat->objectName() == QLatin1String(venster))
                return *kandidaat;
        }
        QTextStream(stderr) << "Er is geen venster " << venster << "." << Qt::endl;
        gelukt_ = false;
        return venster_;
    }

    void bewaarAndere(const char* venster, const char* naam) {
        bewaarVenster(anderVenster(venster), naam);
    }

    /// Opens a preview, keeps its picture and leaves its PDF, CSV and HTML.
    void voerUit(const char* voorbeeld, const char* naam) {
        druk("cmdPrinten");
        QWidget& venster = anderVenster(voorbeeld);
        bewaarVenster(venster, naam);
        pdf_ = beelden_.filePath(QStringLiteral("%1.pdf").arg(QLatin1String(naam)));
        for (const char* knop : {"cmdPrinten", "cmdMaakCSV", "cmdMaakHtml", "cmdEinde"})
            Vind<QPushButton>(venster, knop)->click();
        for (const char* soort : {"CSV", "HTML"}) {
            const QString pad =
                uitvoerMap_.filePath(QStringLiteral("Lauwr__LijnABC.%1").arg(QLatin1String(soort)));
            const QString naar = beelden_.filePath(
                QStringLiteral("%1.%2").arg(QLatin1String(naam), QLatin1String(soort)));
            gelukt_ = QFile::copy(pad, naar) && gelukt_;
        }
    }

    /// Every print goes to the PDF beside the pictures.
    Printomgeving geenPrinter() {
        return {[] { return false; }, [](QPrinter&, QWidget*) { return false; },
                [this](const QString&, QWidget*) { return pdf_; }};
    }

    QDir beelden_;
    QDir uitvoerMap_;
    Algemeen algemeen_;
    Instellingen instellingen_;
    QString pdf_;
    Uitvoervensters uitvoer_;
    frmMain venster_;
    std::vector<Melding> meldingen_;
    bool gelukt_ = true;
};

/// A program folder of its own beside a Mappen.ini with this text.
QString ProgrammaMap(const QTemporaryDir& map, const QByteArray& mappenIni) {
    QFile bestand(map.filePath(QStringLiteral("Mappen.ini")));
    if (bestand.open(QIODevice::WriteOnly)) bestand.write(mappenIni);
    return map.filePath(QStringLiteral("Lauwerkrans"));
}

/// The pictures of the manual's example; `suite` is the suite's folder.
bool ToonVoorbeeld(const QString& suite, const QString& beelden) {
    const QByteArray map = QDir(suite).absolutePath().toUtf8();
    const QTemporaryDir eigen;
    const QString programmaMap = ProgrammaMap(eigen, "ORVMAP=" + map + "\r\nCOMMAP=" + map +
                                                         "\\Competities\r\nACTCOM=Voorbeeld\r\n");
    Rondleiding rondleiding(programmaMap, beelden);
    rondleiding.loopVoorbeeldDoor();
    rondleiding.bewaarMelding("24-melding");
    return rondleiding.klaar(1);
}

bool ToonKleinScherm(const QString& programmaMap, const QString& beelden) {
    Rondleiding rondleiding(programmaMap, beelden);
    rondleiding.toonOpKleinScherm();
    return rondleiding.klaar(0);
}

/// One picture of the window as it starts on a program folder.
bool ToonStart(const QString& programmaMap, const QString& beelden, const char* naam,
               std::size_t verwachteMeldingen) {
    Rondleiding rondleiding(programmaMap, beelden);
    rondleiding.bewaar(naam);
    return rondleiding.klaar(verwachteMeldingen);
}

bool ToonAndereCompetities(const QString& programmaMap, const QString& beelden) {
    QFile bron(programmaMap + QStringLiteral("/../Mappen.ini"));
    if (!bron.open(QIODevice::ReadOnly)) return false;
    QByteArray eenLijn = bron.readAll();
    eenLijn += "\r\nACTCOM=" + QByteArray(generator::tweedeCompetitie.data()) + "\r\n";
    const QTemporaryDir leeg;
    const QTemporaryDir een;
    const QTemporaryDir veel;
    generator::Grootte grootte;
    grootte.lijnen = 26;
    grootte.parenPerZitting = 52;
    generator::SchrijfGroot(veel.path().toStdString(), grootte);
    const QString veelLijnen = veel.filePath(QStringLiteral("Lauwerkrans"));
    return ToonStart(ProgrammaMap(leeg, "ACTCOM=\r\n"), beelden, "10-geen-competitie", 1) &&
           ToonStart(ProgrammaMap(een, eenLijn), beelden, "11-een-lijn", 0) &&
           ToonStart(veelLijnen, beelden, "12-zesentwintig-lijnen", 0);
}

} // namespace

int main(int argc, char** argv) {
    QApplication toepassing(argc, argv);
    const QStringList woorden = QApplication::arguments();
    const bool hoogContrast = woorden.size() == 5 && woorden[4] == QStringLiteral("hoog-contrast");
    if (woorden.size() != 4 && !hoogContrast) {
        QTextStream(stderr) << "gebruik: rondleiding PROGRAMMAMAP BEELDENMAP VOORBEELD "
                               "[hoog-contrast]"
                            << Qt::endl;
        return 2;
    }
    if (hoogContrast) QApplication::setPalette(ZwartBureaublad());
    ZetStijl(toepassing, HoogContrast());
    ZetTaal(toepassing);
    QDir().mkpath(woorden[2]);
    Rondleiding rondleiding(woorden[1], woorden[2]);
    rondleiding.loopRond();
    const bool gelukt = rondleiding.klaar(4); // two lists, each as CSV and as HTML
    return ToonKleinScherm(woorden[1], woorden[2]) &&
                   ToonAndereCompetities(woorden[1], woorden[2]) &&
                   ToonVoorbeeld(woorden[3], woorden[2]) && gelukt
               ? 0
               : 1;
}
