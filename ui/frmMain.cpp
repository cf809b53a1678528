#include "ui/frmMain.h"

#include <QCloseEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>

#include <array>
#include <utility>

#include "data/codetabel.h"
#include "data/fout.h"
#include "data/modORV_compbums.h"
#include "data/modORV_rondedata.h"
#include "ui/berichten.h"
#include "ui/frmMain_ontwerp.h"
#include "ui/maten.h"
#include "ui/sneltoets.h"
#include "ui/toegang_namen.h"

namespace lauwerkrans {

namespace {

void Zet(const QWidget& venster, const char* naam, bool ingeschakeld) {
    Vind<QWidget>(venster, naam)->setEnabled(ingeschakeld);
}

} // namespace

frmMain::frmMain(Algemeen& algemeen, Instellingen& instellingen, Koppeling koppeling)
    : algemeen_(algemeen), instellingen_(instellingen), koppeling_(std::move(koppeling)),
      leeswacht_(new Leeswacht(*this, algemeen.voortgang, koppeling_.nu)) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QStringLiteral("Bereken de Club- cq Lijnkampioenen van een parencompetitie."));
    const QSize kleinste = maten::Pixels({0, 0, breedteFrmMain, hoogteFrmMain}).size();
    resize(kleinste);
    MaakElementen(*this, OntwerpVanFrmMain());
    rijen_ = new Criteriarijen(*this);
    ronden_ = new PaneelP10(*this);
    ronden_->InitP10();
    ronden_->ToonP10_leeg();
    raster_ = new PaneelP20(*this);
    raster_->InitP20();
    raster_->ToonP20_leeg();
    setMinimumSize(kleinste);
    GeefNamen(*this, {{"P11", "Ronden van de competitie"},
                      {"VScroll10", "Ronden op en neer"},
                      {"VScroll1", "Criteria op en neer"},
                      {"txtPersoon", "Achternaam (of deels)"},
                      {"txtKop1", "Koptekst"},
                      {"VScroll20", "Resultaat op en neer"},
                      {"HScroll20", "Resultaat opzij"}});
    verbindKnoppen();
    maakSneltoetsen();
    zetTabvolgorde();
}

/// The box loses the focus once more when it is taken down.
frmMain::~frmMain() { Vind<QLineEdit>(*this, "txtKop1")->disconnect(this); }

void frmMain::verbindKnoppen() {
    const auto klik = [this](const char* naam, auto werk) {
        connect(Vind<QPushButton>(*this, naam), &QPushButton::clicked, this,
                [this, werk] { bewaak(werk); });
    };
    klik("cmdEinde", [this] { close(); });
    klik("cmdPrinten", [this] { koppeling_.uitvoer(*this); });
    klik("cmdControleLijstLid", [this] { cmdControleLijstLid_Click(); });
    klik("cmdToelichting", [this] { cmdToelichting_Click(); });
    klik("Command1", [this] { LeesCompBums(algemeen_); });
    connect(Vind<QLineEdit>(*this, "txtPersoon"), &QLineEdit::returnPressed,
            Vind<QPushButton>(*this, "cmdControleLijstLid"), &QPushButton::click);
    connect(Vind<QLineEdit>(*this, "txtKop1"), &QLineEdit::editingFinished, this,
            &frmMain::neemKopTekstOver);
    connect(Vind<KopLabel>(*this, "lblResultKop"), &KopLabel::geklikt, raster_,
            &PaneelP20::verbergMarkering);
    zetPrintbaar(false);
    connect(rijen_, &Criteriarijen::bereken, this, &frmMain::cmd1_Click);
    connect(rijen_, &Criteriarijen::controleer, this, &frmMain::cmd2_Click);
    connect(rijen_, &Criteriarijen::verlaten, this, &frmMain::txt1_LostFocus);
}

void frmMain::maakSneltoetsen() {
    MaakSneltoets(*Vind<QPushButton>(*this, "cmd1_0"), Qt::Key_F5);
    MaakSneltoets(*Vind<QPushButton>(*this, "cmdPrinten"), QKeySequence::Print);
    MaakSneltoets(*Vind<QPushButton>(*this, "cmdToelichting"), Qt::Key_F1, Qt::ApplicationShortcut);
}

void frmMain::zetTabvolgorde() {
    constexpr std::array volgorde = {"chkGewogen",     "chkZitDetails", "chkGemAlleLijnen",
                                     "chkBuiMed",      "txtPersoon",    "cmdControleLijstLid",
                                     "txtKop1",        "cmdPrinten",    "P21",
                                     "cmdToelichting", "cmdEinde"};
    for (std::size_t i = 1; i < volgorde.size(); ++i) {
        setTabOrder(Vind<QWidget>(*this, volgorde.at(i - 1)), Vind<QWidget>(*this, volgorde.at(i)));
    }
}

void frmMain::bewaak(const std::function<void()>& handeling) {
    if (leeswacht_->bezig()) return; // reached without mouse or keyboard, as by a screen reader
    Bewaak(algemeen_.meld, handeling, [this](char lijn) { rijen_->kies(LijnNummer(lijn)); });
}

void frmMain::HaalCompLijnen_ORV() {
    algemeen_.LijnTabel = Tabel();
    lijnenBekend_ = false;
    try {
        algemeen_.LijnTabel = LeesLijnTabel(algemeen_.competitie);
        lijnenBekend_ = true;
    } catch (const Fout&) {
        algemeen_.meld(RondeDataFout(algemeen_.competitie));
    }
    rijen_->maak(algemeen_.LijnTabel);
}

void frmMain::Verwijder_LblTxtCmds() { rijen_->Verwijder_LblTxtCmds(); }

void frmMain::Resets() {
    uitslag_.reset();
    raster_->ToonP20_leeg();
    if (!PersoonFilterAan_ && !opties().gemAlleLijnen) koppeling_.leegLijst(*this);
}

Opties frmMain::opties() const {
    Opties opties;
    opties.gewogen = aangevinkt("chkGewogen");
    opties.zitDetails = aangevinkt("chkZitDetails");
    opties.gemAlleLijnen = aangevinkt("chkGemAlleLijnen");
    opties.buiMed = aangevinkt("chkBuiMed");
    return opties;
}

bool frmMain::aangevinkt(const char* naam) const {
    return Vind<QCheckBox>(*this, naam)->isChecked();
}

/// Puts another list on show. When that fails the last one stays, with what belongs to it: caption
/// and state of the output button, what kind of list it is and whether it is a member's.
void frmMain::vervangLijst(const std::function<void()>& werk) {
    const bool ledenlijst = PersoonFilterAan_;
    const bool aan = printbaar();
    const std::int16_t soort = ToonControle;
    try {
        werk();
    } catch (...) {
        PersoonFilterAan_ = ledenlijst;
        zetUitvoerBijschrift(ledenlijst);
        zetPrintbaar(aan);
        ToonControle = soort;
        throw;
    }
}

void frmMain::cmd1_Click(std::size_t rij) {
    const Zandloper zandloper;
    bewaak([this, rij] {
        vervangLijst([this, rij] {
            ledenlijstKlaar();
            bereken(LijnenVanRij(algemeen_.LijnTabel, rij));
        });
    });
}

void frmMain::bereken(const std::string& lijnen) {
    std::shared_ptr<const Uitslag> uitslag;
    leeswacht_->bewaak([&] { uitslag = Bereken(algemeen_, lijnen, rijen_->criteria(), opties()); });
    Toon_in_P10();
    ToonControle = 0;
    ToonLvwRes(std::move(uitslag));
    zetPrintbaar(uitslag_->resultaat.bovengrens > 0);
}

void frmMain::berekenZoNodig() {
    if (!uitslag_ || Geldt(*uitslag_, rijen_->criteria(), opties())) return;
    const Zandloper zandloper;
    bereken(std::string(uitslag_->GekozenLijnen)); // a copy: the calculation replaces its owner
}

void frmMain::cmd2_Click(std::size_t rij) {
    const Zandloper zandloper;
    bewaak([this, rij] {
        vervangLijst([this, rij] {
            ledenlijstKlaar();
            zetPrintbaar(false);
            toonControlelijst({LijnenVanRij(algemeen_.LijnTabel, rij), false, {}});
        });
    });
}

void frmMain::toonControlelijst(const Selectie& selectie) {
    std::shared_ptr<const Controle> controle;
    leeswacht_->bewaak([&] { controle = Controleer(algemeen_, selectie); });
    Toon_in_P10();
    ToonControle = 1;
    ToonLvwR(controle);
}

void frmMain::cmdControleLijstLid_Click() {
    vervangLijst([this] { zoekLid(); });
}

void frmMain::zoekLid() {
    zetUitvoerBijschrift(true);
    PersoonFilterAan_ = false;
    const std::string gezocht =
        Hoofdletters(Vind<QLineEdit>(*this, "txtPersoon")->text().trimmed().toStdString());
    if (gezocht.empty()) {
        algemeen_.meld({"U moet eerst een achternaam of een gedeelte van de achternaam intypen!",
                        Icoon::Uitroep});
        zetUitvoerBijschrift(false);
        return;
    }
    const Zandloper zandloper;
    toonControlelijst({AlleLijnen(algemeen_.LijnTabel), true, gezocht});
    PersoonFilterAan_ = true;
    zetPrintbaar(raster_->lijst()->rijen() > 0);
}

void frmMain::ledenlijstKlaar() {
    PersoonFilterAan_ = false;
    zetUitvoerBijschrift(false);
}

void frmMain::cmdToelichting_Click() {
    if (!toelichting_) toelichting_ = std::make_unique<frmToelichting>();
    toelichting_->toonOver(*this);
}

void frmMain::zetUitvoerBijschrift(bool ledenlijst) {
    Vind<QPushButton>(*this, "cmdPrinten")
        ->setText(ledenlijst ? QStringLiteral("Print deze controlelijst")
                             : QString::fromUtf8(OntwerpVan("cmdPrinten").bijschrift));
}

void frmMain::ToonLvwRes(std::shared_ptr<const Uitslag> uitslag) {
    toonLijst(MaakRanglijst(uitslag, uitslag->opties.zitDetails, ToonControle == 1), [&] {
        Resets();
        uitslag_ = std::move(uitslag);
    });
}

void frmMain::ToonLvwR(const std::shared_ptr<const Controle>& controle) {
    // The last ranking stays behind the list.
    toonLijst(MaakControlelijst(controle), [this] { raster_->ToonP20_leeg(); });
}

/// Measures a list, for which there may be no memory, before the one on show gives way to it.
void frmMain::toonLijst(const std::shared_ptr<const Lijst>& lijst,
                        const std::function<void()>& maakPlaats) {
    Tabelbeeld beeld = raster_->beeldVan(lijst);
    maakPlaats();
    Vind<KopLabel>(*this, "lblResultKop")->zetBijschrift(QString::fromStdString(lijst->titel()));
    raster_->toon(lijst, std::move(beeld));
}

void frmMain::txt1_LostFocus(std::size_t lijn) {
    if (leeswacht_->bezig()) {
        leeswacht_->daarna([this, lijn] {
            if (isVisible()) txt1_LostFocus(lijn);
        });
        return;
    }
    const std::string letter(1, LijnLetter(lijn));
    const std::string tekst = TeHoogTekst(rijen_->criteria().at(lijn - 1), letter);
    if (tekst.empty()) return;
    algemeen_.meld({tekst, Icoon::Geen});
    rijen_->kies(lijn);
}

void frmMain::zetPrintbaar(bool aan) { Zet(*this, "cmdPrinten", aan); }

bool frmMain::printbaar() const { return Vind<QWidget>(*this, "cmdPrinten")->isEnabled(); }

void frmMain::toonZonderCompetitie() {
    for (const char* naam : {"Frame1", "P20", "VScroll20", "HScroll20", "lblResultKop"}) {
        Vind<QWidget>(*this, naam)->hide();
    }
    for (const char* naam : {"Frame2", "Frame3", "Frame4", "Frame5"})
        Zet(*this, naam, false);
}

void frmMain::toonCompetitie(const std::string& naam) {
    Vind<KopLabel>(*this, "Label1")->zetBijschrift(QString::fromStdString(naam));
    Vind<QListWidget>(*this, "List2")->hide();
}

void frmMain::Toon_in_P10() { ronden_->Toon_in_P10(algemeen_.rondeInfo); }

void frmMain::resizeEvent(QResizeEvent* gebeurtenis) {
    QWidget::resizeEvent(gebeurtenis);
    if (raster_ != nullptr) deelIn();
}

void frmMain::mousePressEvent(QMouseEvent* gebeurtenis) {
    QWidget::mousePressEvent(gebeurtenis);
    if (childAt(gebeurtenis->position().toPoint()) == nullptr) raster_->verbergMarkering();
}

void frmMain::closeEvent(QCloseEvent* gebeurtenis) {
    rijen_->zwijg();
    bewaak([this] { koppeling_.bijEinde(*this); });
    if (toelichting_) toelichting_->close();
    koppeling_.sluitUitvoer(*this);
    QWidget::closeEvent(gebeurtenis);
}

} // namespace lauwerkrans
