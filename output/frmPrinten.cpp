#include "output/frmPrinten.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpressionValidator>

#include <algorithm>
#include <array>
#include <utility>

#include "output/bladindeling_lijnen.h"
#include "output/modMaakCSV.h"
#include "ui/focusrand.h"
#include "ui/toegang_namen.h"

namespace lauwerkrans {

namespace {

// Places are left, top, width, height in twips.
const std::array tabel = std::to_array<Ontwerp>({
    {Soort::Kader, "frameAfdrukv", "", {120, 120, 2400, 1680}, "Afrdukvoorbeeld"},
    {Soort::SchuifHorizontaal, "Bladscroll", "frameAfdrukv", {120, 360, 2160, 255}},
    {Soort::Label, "Label1", "frameAfdrukv", {120, 780, 840, 255}, "Pagina:"},
    {Soort::Tekstvak, "txtBlad", "frameAfdrukv", {1080, 735, 1200, 315}, "", Midden},
    {Soort::Tekstvak, "txtAantPages", "frameAfdrukv", {120, 1200, 2160, 315}, "Aantal ...", Midden},
});

} // namespace

frmPrinten::frmPrinten(Printomgeving omgeving)
    : Printvenster("frmPrinten", tabel, std::move(omgeving)) {
    GeefNamen(
        *this,
        {{"Bladscroll", "Bladeren"}, {"txtBlad", "Pagina"}, {"txtAantPages", "Aantal pagina's"}});
    auto* Bladscroll = Vind<QScrollBar>(*this, "Bladscroll");
    Bladscroll->setFocusPolicy(Qt::StrongFocus);
    Bladscroll->setRange(1, 1);
    Bladscroll->setPageStep(1);
    Bladscroll->installEventFilter(this);
    connect(Bladscroll, &QScrollBar::valueChanged, this, &frmPrinten::toonBlad);
    new FocusRand(*Bladscroll, *Bladscroll);
    connect(&beeld(), &Voorbeeld::voorbij, this, &frmPrinten::slaOm);
    auto* txtBlad = Vind<QLineEdit>(*this, "txtBlad");
    txtBlad->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]{0,9}")), txtBlad));
    connect(txtBlad, &QLineEdit::editingFinished, this, &frmPrinten::neemBladOver);
    auto* txtAantPages = Vind<QLineEdit>(*this, "txtAantPages");
    txtAantPages->setReadOnly(true);
    txtAantPages->setFocusPolicy(Qt::NoFocus);
}

/// The box loses the focus once more when it is taken down.
frmPrinten::~frmPrinten() { Vind<QLineEdit>(*this, "txtBlad")->disconnect(this); }

/// The arrows left and right go the way they point; the toolkit's scroll bars turn them round.
bool frmPrinten::eventFilter(QObject* object, QEvent* gebeurtenis) {
    if (gebeurtenis->type() != QEvent::KeyPress)
        return Printvenster::eventFilter(object, gebeurtenis);
    const int toets = static_cast<QKeyEvent*>(gebeurtenis)->key();
    if (toets != Qt::Key_Left && toets != Qt::Key_Right) return false;
    Vind<QScrollBar>(*this, "Bladscroll")
        ->triggerAction(toets == Qt::Key_Left ? QAbstractSlider::SliderSingleStepSub
                                              : QAbstractSlider::SliderSingleStepAdd);
    return true;
}

void frmPrinten::pagineer() {
    bladen_ = bladen(bladmaat::a4Hoogte);
    const std::size_t aantal = bladen_->aantal();
    const auto hoogste = static_cast<int>(std::min(aantal, meesteBladen));
    auto* Bladscroll = Vind<QScrollBar>(*this, "Bladscroll");
    Bladscroll->setRange(1, hoogste);
    Bladscroll->setEnabled(hoogste > 1);
    if (aantal > meesteBladen) lijst().meld({TeVeelBladenTekst(), Icoon::Uitroep});
    Vind<QLineEdit>(*this, "txtAantPages")->setText(QStringLiteral("(Totaal %1)").arg(aantal));
    Bladscroll->setValue(1);
    toonBlad();
}

std::size_t frmPrinten::bladnummer() const {
    return static_cast<std::size_t>(Vind<QScrollBar>(*this, "Bladscroll")->value());
}

void frmPrinten::toonBlad() {
    Vind<QLineEdit>(*this, "txtBlad")->setText(QString::number(bladnummer()));
    beeld().toon(bladen_, bladnummer());
}

/// To the next page, or to the end of the one before.
void frmPrinten::slaOm(int richting) {
    auto* Bladscroll = Vind<QScrollBar>(*this, "Bladscroll");
    const int oud = Bladscroll->value();
    Bladscroll->setValue(oud + richting);
    if (Bladscroll->value() < oud) beeld().toonEinde();
}

void frmPrinten::neemBladOver() {
    const int gevraagd = Vind<QLineEdit>(*this, "txtBlad")->text().toInt();
    Vind<QScrollBar>(*this, "Bladscroll")->setValue(gevraagd); // within its range
    toonBlad();
}

void frmPrinten::leeg() {
    lijst().uitslag.reset();
    pagineer();
}

std::unique_ptr<Bladen> frmPrinten::bladen(double hoogte) const {
    return std::make_unique<BladenLijnen>(uitvoer(), hoogte);
}

void frmPrinten::maakCSV() { MaakCSV_Lijnen(lijst()); }

void frmPrinten::naPrinten() { Vind<QScrollBar>(*this, "Bladscroll")->setValue(1); }

} // namespace lauwerkrans
