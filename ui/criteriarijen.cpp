#include "ui/criteriarijen.h"

#include <QApplication>
#include <QEvent>

#include <algorithm>

#include "ui/frmMain_ontwerp.h"
#include "ui/maten.h"
#include "ui/stijl.h"
#include "ui/tabellijf.h"

namespace lauwerkrans {

namespace {

constexpr int kleineStap = 300; // of VScroll1, twips
constexpr int groteStap = 1500;
constexpr double bovenP1 = -10; // top of P1 at scroll value 0, twips

/// One element of a control array, on the row of its number.
template <class Element>
Element* MaakRijElement(QWidget& paneel, const char* sjabloon, std::size_t nummer) {
    Ontwerp ontwerp = OntwerpVan(sjabloon);
    ontwerp.plaats.boven += rijPitch * static_cast<double>(nummer);
    QString naam = QString::fromLatin1(sjabloon);
    naam.replace(QStringLiteral("_0"), QStringLiteral("_%1").arg(nummer));
    auto* element = static_cast<Element*>(MaakElement(paneel, ontwerp, naam));
    element->show();
    return element;
}

} // namespace

Criteriarijen::Criteriarijen(QWidget& venster)
    : QObject(&venster), P0(Vind<QFrame>(venster, "P0")), P1(Vind<QFrame>(venster, "P1")),
      VScroll1(Vind<QScrollBar>(venster, "VScroll1")),
      rijen_({{Vind<QLabel>(venster, "lbl1_0"), Vind<Criteriumveld>(venster, "txt1_0"),
               Vind<QPushButton>(venster, "cmd1_0"), Vind<QPushButton>(venster, "cmd2_0")}}) {
    VScroll1->setSingleStep(kleineStap);
    VScroll1->setPageStep(groteStap);
    connect(VScroll1, &QScrollBar::sliderMoved, this, &Criteriarijen::schuif);
    connect(VScroll1, &QScrollBar::valueChanged, this, &Criteriarijen::schuif);
    connect(qApp, &QApplication::focusChanged, this, &Criteriarijen::toonMetFocus);
    P0->installEventFilter(this);
    verbind(rijen_[0], 0);
}

void Criteriarijen::maak(const Tabel& lijnTabel) {
    for (std::size_t i = 1; i <= lijnTabel.rijen(); ++i) {
        Rij rij = maakRij(i);
        const QString letter(QLatin1Char(LijnLetter(i)));
        rij.lbl1->setText(letter);
        rij.txt1->setAccessibleName(QStringLiteral("Minimum aantal zittingen lijn ") + letter);
        rij.cmd1->setAccessibleName(QStringLiteral("Bereken lijn ") + letter);
        rij.cmd2->setAccessibleName(QStringLiteral("Controle lijn ") + letter);
        verbind(rij, i);
        rijen_.push_back(rij);
    }
    const Rij& alle = rijen_[0];
    alle.lbl1->setText(QStringLiteral("Alle"));
    alle.cmd1->setAccessibleName(QStringLiteral("Bereken alle lijnen"));
    alle.cmd2->setAccessibleName(QStringLiteral("Controle alle lijnen"));
    alle.txt1->hide();
    alle.cmd1->setPalette(MetKleuren(alle.cmd1->palette(), QPalette::Button, kleuren::puurGroen,
                                     QPalette::ButtonText, kleuren::zwart));
    for (QWidget* element : {static_cast<QWidget*>(alle.lbl1), static_cast<QWidget*>(alle.cmd1),
                             static_cast<QWidget*>(alle.cmd2)}) {
        element->show();
    }
    zetTabvolgorde();
    pasAan();
}

/// Row after row, before what follows the buttons of row 0.
void Criteriarijen::zetTabvolgorde() {
    QWidget* vorige = nullptr;
    for (const Rij& rij : rijen_) {
        for (QWidget* element : {static_cast<QWidget*>(rij.txt1), static_cast<QWidget*>(rij.cmd1),
                                 static_cast<QWidget*>(rij.cmd2)}) {
            if (vorige != nullptr) QWidget::setTabOrder(vorige, element);
            vorige = element;
        }
    }
}

Criteriarijen::Rij Criteriarijen::maakRij(std::size_t nummer) {
    return {MaakRijElement<QLabel>(*P1, "lbl1_0", nummer),
            MaakRijElement<Criteriumveld>(*P1, "txt1_0", nummer),
            MaakRijElement<QPushButton>(*P1, "cmd1_0", nummer),
            MaakRijElement<QPushButton>(*P1, "cmd2_0", nummer)};
}

void Criteriarijen::verbind(const Rij& rij, std::size_t nummer) {
    connect(rij.cmd1, &QPushButton::clicked, this, [this, nummer] { emit bereken(nummer); });
    connect(rij.cmd2, &QPushButton::clicked, this, [this, nummer] { emit controleer(nummer); });
    connect(rij.txt1, &Criteriumveld::verlaten, this, [this, nummer] { veldVerlaten(nummer); });
}

void Criteriarijen::Verwijder_LblTxtCmds() {
    wachtOpKlik_ = 0;
    while (rijen_.size() > 1) {
        const Rij rij = rijen_.back();
        rijen_.pop_back();
        delete rij.lbl1;
        delete rij.txt1;
        delete rij.cmd1;
        delete rij.cmd2;
    }
}

Criteria Criteriarijen::criteria() const {
    Criteria criteria;
    for (std::size_t i = 1; i < rijen_.size(); ++i) {
        criteria.push_back(rijen_[i].txt1->text().toStdString());
    }
    return criteria;
}

void Criteriarijen::zetCriterium(std::size_t lijn, const std::string& tekst) {
    rijen_.at(lijn).txt1->setText(QString::fromStdString(tekst));
}

void Criteriarijen::kies(std::size_t lijn) {
    geeftTerug_ = true;
    rijen_.at(lijn).txt1->setFocus();
    geeftTerug_ = false;
}

void Criteriarijen::pasAan() {
    const Vak laatste = maten::PlaatsVan(*rijen_.back().txt1);
    const double hoogte =
        std::max(OntwerpVan("P1").plaats.hoogte, laatste.boven + laatste.hoogte + rijPitch / 2);
    const double zicht = maten::PixelsNaarTwips(P0->contentsRect().height());
    VScroll1->setRange(0, maten::SchuifMaximum(hoogte + rooster::schuifMarge, zicht, 1));
    VScroll1->setEnabled(VScroll1->maximum() > 0);
    const Vak ontwerp = OntwerpVan("P1").plaats;
    maten::Plaats(*P1, {ontwerp.links, bovenP1 - VScroll1->value(), ontwerp.breedte, hoogte});
}

void Criteriarijen::schuif(int waarde) {
    Vak plaats = maten::PlaatsVan(*P1);
    plaats.boven = bovenP1 - waarde;
    maten::Plaats(*P1, plaats);
}

/// Scrolls the row into view that got the focus with its box or with one of its buttons; a button
/// must not move away under the mouse that presses it.
void Criteriarijen::toonMetFocus(const QWidget* /*oud*/, const QWidget* nieuw) {
    const bool muis = QApplication::mouseButtons() != Qt::NoButton;
    for (std::size_t i = 0; nieuw != nullptr && i < rijen_.size(); ++i) {
        const Rij& rij = rijen_[i];
        const bool knop = nieuw == rij.cmd1 || nieuw == rij.cmd2;
        if (nieuw == rij.txt1 || (knop && !muis)) toonRij(i);
    }
}

/// Scrolls a row into view.
void Criteriarijen::toonRij(std::size_t lijn) {
    const Vak vak = maten::PlaatsVan(*rijen_.at(lijn).txt1);
    const double zicht = maten::PixelsNaarTwips(P0->contentsRect().height());
    const double boven = vak.boven + bovenP1;
    const double onder = boven + vak.hoogte;
    if (boven < VScroll1->value()) VScroll1->setValue(static_cast<int>(boven));
    if (onder > VScroll1->value() + zicht) VScroll1->setValue(static_cast<int>(onder - zicht) + 1);
}

/// A message must not swallow the click that took the focus, so it waits for the mouse button to
/// be up and the click to be handled.
void Criteriarijen::veldVerlaten(std::size_t lijn) {
    if (geeftTerug_ || zwijgt_) return;
    if (QApplication::mouseButtons() == Qt::NoButton) {
        meldVerlaten(lijn);
        return;
    }
    wachtOpKlik_ = lijn;
    QCoreApplication::instance()->installEventFilter(this);
}

bool Criteriarijen::eventFilter(QObject* object, QEvent* gebeurtenis) {
    if (object == P0 && gebeurtenis->type() == QEvent::Wheel) {
        return QCoreApplication::sendEvent(VScroll1, gebeurtenis);
    }
    if (gebeurtenis->type() == QEvent::MouseButtonRelease) {
        QCoreApplication::instance()->removeEventFilter(this);
        if (wachtOpKlik_ != 0) meldVerlaten(wachtOpKlik_);
        wachtOpKlik_ = 0;
    }
    return QObject::eventFilter(object, gebeurtenis);
}

/// Whether the focus is back: the click itself gave a message about this box.
bool Criteriarijen::heeftFocus(std::size_t lijn) const {
    return rijen_[lijn].txt1 == P0->window()->focusWidget();
}

void Criteriarijen::meldVerlaten(std::size_t lijn) {
    const auto zend = [this, lijn] {
        // A message of the click itself comes first; this one waits until it is gone.
        if (const QWidget* bericht = QApplication::activeModalWidget()) {
            connect(bericht, &QObject::destroyed, this, [this, lijn] { meldVerlaten(lijn); });
        } else if (!zwijgt_ && lijn < rijen_.size() && !heeftFocus(lijn)) {
            emit verlaten(lijn);
        }
    };
    QMetaObject::invokeMethod(this, zend, Qt::QueuedConnection);
}

} // namespace lauwerkrans
