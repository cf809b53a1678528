// The result grid under the user's hands: the mark on a row and the clipboard.
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>

#include <algorithm>
#include <cmath>
#include <limits>

#include "ui/celuitleg.h"
#include "ui/paneel_P20.h"
#include "ui/schuiver.h"

namespace lauwerkrans {

void PaneelP20::AccentueerRegel(double /*x*/, double y) {
    markeerRij(std::floor((y - rooster::kopHoogte) / rooster::rijHoogte));
}

/// Row 0 is the first; a click in the header band gives a row above it.
void PaneelP20::markeerRij(double rij) {
    for (Streep* streep : {Line20, Line21}) {
        const double onder = streep == Line21 ? 1 : 0;
        streep->x1 = 0;
        streep->x2 = tabelBreedte_;
        streep->y1 = rooster::kopHoogte + (rij + onder) * rooster::rijHoogte;
        streep->y2 = streep->y1;
        streep->zichtbaar = true;
    }
    P21->markeringGewijzigd();
}

void PaneelP20::LijnBr_Aanpassen() {
    if (!Line20->zichtbaar) return;
    Line20->x2 = tabelBreedte_;
    Line21->x2 = tabelBreedte_;
    P21->update();
}

void PaneelP20::verbergMarkering() {
    Line20->zichtbaar = false;
    Line21->zichtbaar = false;
    P21->markeringGewijzigd();
}

/// Moves the mark by rows and scrolls to it. When nothing is marked, the uppermost row that is
/// wholly to be seen is.
void PaneelP20::verzetMarkering(double rijen) {
    if (!lijst_ || lijst_->rijen() == 0) return;
    const double nu = Line20->zichtbaar
                          ? (Line20->y1 - rooster::kopHoogte) / rooster::rijHoogte + rijen
                          : std::ceil(VScroll20->value() / rooster::rijHoogte);
    const double rij = std::clamp(nu, 0.0, static_cast<double>(lijst_->rijen() - 1));
    markeerRij(rij);
    const double boven = rij * rooster::rijHoogte;
    const double onder = boven + rooster::kopHoogte + rooster::rijHoogte + rooster::onderMarge;
    if (boven < VScroll20->value()) VScroll20->setValue(static_cast<int>(std::floor(boven)));
    if (onder > VScroll20->value() + zichtHoogte()) {
        VScroll20->setValue(static_cast<int>(std::ceil(onder - zichtHoogte())));
    }
}

QString PaneelP20::alsTekst() const {
    if (!lijst_) return {};
    std::string tekst = lijst_->titel() + "\n";
    for (const auto& kop : lijst_->koppen())
        tekst.append(kop).append("\t");
    for (std::size_t rij = 1; rij <= lijst_->rijen(); ++rij) {
        tekst.back() = '\n';
        for (std::size_t kolom = 1; kolom <= lijst_->kolommen(); ++kolom) {
            tekst.append(lijst_->cel(rij, kolom)).append("\t");
        }
    }
    tekst.back() = '\n';
    return QString::fromStdString(tekst);
}

bool PaneelP20::eventFilter(QObject* object, QEvent* gebeurtenis) {
    if (gebeurtenis->type() == QEvent::KeyPress) {
        const auto* toetsdruk = static_cast<const QKeyEvent*>(gebeurtenis);
        const bool ctrl = (toetsdruk->modifiers() & ~Qt::KeypadModifier) == Qt::ControlModifier;
        if (ctrl && ctrlToets(toetsdruk->key())) return true;
        if (toetsdruk->key() == Qt::Key_Escape && Line20->zichtbaar) {
            verbergMarkering();
            return true;
        }
    }
    if (gebeurtenis->type() == QEvent::ToolTip) {
        ToonUitleg(*P21, *static_cast<const QHelpEvent*>(gebeurtenis));
        return true;
    }
    return QObject::eventFilter(object, gebeurtenis);
}

/// The mark moves by as many rows as the view does without Ctrl.
bool PaneelP20::ctrlToets(int toets) {
    constexpr double alle = std::numeric_limits<double>::max();
    const double blad = RijenPerBlad(*P21);
    switch (toets) {
    case Qt::Key_Up:
        verzetMarkering(-1);
        return true;
    case Qt::Key_Down:
        verzetMarkering(1);
        return true;
    case Qt::Key_PageUp:
        verzetMarkering(-blad);
        return true;
    case Qt::Key_PageDown:
        verzetMarkering(blad);
        return true;
    case Qt::Key_Home:
        verzetMarkering(-alle);
        return true;
    case Qt::Key_End:
        verzetMarkering(alle);
        return true;
    case Qt::Key_C:
        if (lijst_) QGuiApplication::clipboard()->setText(alsTekst());
        return true;
    default:
        return false;
    }
}

} // namespace lauwerkrans
