// The real window over every broken file: its message boxes, the list and the settings that stay,
// and a window that can be used afterwards.
#include <QApplication>
#include <QMessageBox>
#include <QTest>

#include "app/frmMain_start.h"
#include "data/fout.h"
#include "kern/storingen_proef.h"
#include "ui/berichten.h"
#include "ui/ontwerp.h"
#include "vensterproef.h"

namespace lauwerkrans::proef::storingen {
namespace {

/// The main window, whose messages are real boxes that are answered at once.
class VensterSessie : public Sessie {
public:
    explicit VensterSessie(const Suite& suite)
        : programmaMap_(suite.programmaMap()),
          uitvoer_(instellingen_,
                   {[this](const Melding& melding) { meld(melding); }, programmaMap_,
                    printers_.omgeving(),
                    [this](frmMain& venster) { BewaarInstellingen(venster, instellingen_); }}) {
        algemeen_.meld = [this](const Melding& melding) { meld(melding); };
        venster_ = std::make_unique<frmMain>(algemeen_, instellingen_,
                                             MaakKoppeling(instellingen_, uitvoer_));
    }

    bool start() override {
        const bool gestart = Form_Load(*venster_, algemeen_, instellingen_, programmaMap_);
        if (gestart) venster_->show();
        QCoreApplication::processEvents();
        return gestart;
    }

    void bereken() override {
        Vind<QAbstractButton>(*venster_, "cmd1_0")->click();
        QCoreApplication::processEvents();
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    }

    void doeVerder() override {
        druk(*venster_, "cmdPrinten"); // the ranking, where there is one
        druk(*venster_, "cmd2_0");
        Vind<QLineEdit>(*venster_, "txtPersoon")->setText(QStringLiteral("mo"));
        druk(*venster_, "cmdControleLijstLid");
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    }

    void sluit() override { venster_->close(); }

    [[nodiscard]] std::string lijst() const override {
        const auto& lijst = venster_->raster().lijst();
        if (!lijst) return geenLijst;
        std::string tekst;
        for (std::size_t rij = 1; rij <= lijst->rijen(); ++rij) {
            for (std::size_t kolom = 2; kolom <= 6; ++kolom)
                tekst.append(lijst->cel(rij, kolom)).append(kolom < 6 ? "|" : "\n");
        }
        return tekst;
    }

    [[nodiscard]] std::string instellingen() const override {
        std::string tekst = Vind<QLineEdit>(*venster_, "txtKop1")->text().toStdString();
        for (const char* naam : {"chkGewogen", "chkZitDetails", "chkGemAlleLijnen", "chkBuiMed"})
            tekst += Vind<QCheckBox>(*venster_, naam)->isChecked() ? "1" : "0";
        for (const std::string& criterium : venster_->rijen().criteria())
            tekst += "|" + criterium;
        return tekst;
    }

private:
    /// Presses a button that can be pressed; that of the output opens a preview.
    void druk(const QWidget& venster, const char* naam) {
        auto* knop = Vind<QAbstractButton>(venster, naam);
        if (!knop->isEnabled()) return;
        knop->click();
        QCoreApplication::processEvents();
        const bool uitvoer = knop->objectName() == QLatin1String("cmdPrinten");
        EXPECT_EQ(schrijfLijsten(), uitvoer ? 1 : 0);
    }

    /// Writes both list files from each preview on show; how many there were.
    int schrijfLijsten() {
        int voorbeelden = 0;
        for (QWidget* voorbeeld : QApplication::topLevelWidgets()) {
            if (!voorbeeld->isVisible() || voorbeeld->objectName() != QLatin1String("frmPrinten"))
                continue;
            const std::size_t eerder = meldingen_.size();
            Vind<QAbstractButton>(*voorbeeld, "cmdMaakCSV")->click();
            Vind<QAbstractButton>(*voorbeeld, "cmdMaakHtml")->click();
            EXPECT_EQ(meldingen_.size(), eerder + 2);
            EXPECT_TRUE(Past("*met succes aangemaakt*", meldingen_.at(eerder).tekst));
            EXPECT_TRUE(Past("*HTMLbestand heet*", meldingen_.at(eerder + 1).tekst));
            voorbeeld->close();
            ++voorbeelden;
        }
        return voorbeelden;
    }

    void meld(const Melding& melding) {
        const auto antwoord = [this] {
            auto* vak = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(vak, nullptr);
            const QString tekst = vak->text().replace(QLatin1String("\n"), QLatin1String("\r\n"));
            const bool uitroep = vak->icon() == QMessageBox::Warning;
            meldingen_.push_back({tekst.toStdString(), uitroep ? Icoon::Uitroep : Icoon::Geen});
            EXPECT_EQ(vak->windowTitle(), QLatin1String("Lauwerkrans"));
            QTest::mouseClick(vak->button(QMessageBox::Ok), Qt::LeftButton);
        };
        QMetaObject::invokeMethod(qApp, antwoord, Qt::QueuedConnection);
        ToonMelding(venster_ && venster_->isVisible() ? venster_.get() : nullptr, melding);
    }

    std::string programmaMap_;
    Algemeen algemeen_;
    Instellingen instellingen_;
    Printproef printers_;
    Uitvoervensters uitvoer_;
    std::unique_ptr<frmMain> venster_;
};

std::unique_ptr<Sessie> MaakVensterSessie(const Suite& suite) {
    return std::make_unique<VensterSessie>(suite);
}

class Venster : public testing::TestWithParam<std::string> {};

TEST_P(Venster, WithstandsEveryFaultOfTheFile) {
    const Suitebestand& bestand = Bestand(GetParam());
    Proefbank bank(MaakVensterSessie);
    const std::string reden = Reden(std::make_error_code(onleesbaarFout));
    for (const Storing& storing : Storingen(bestand.naam)) {
        SCOPED_TRACE(storing.naam);
        bank.beproef(bestand, storing, reden, [](const std::function<void()>& werk) { werk(); });
    }
    DrukSamenAf(bestand.naam, bank.neemWaarneming());
}

INSTANTIATE_TEST_SUITE_P(Storingen, Venster, testing::ValuesIn(Bestandsnamen()), Testnaam);

} // namespace
} // namespace lauwerkrans::proef::storingen
