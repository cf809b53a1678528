#include "ui/schuiver.h"

#include <QKeyEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace lauwerkrans {

Schuiver::Schuiver(TabelLijf& lijf, QScrollBar& opEnNeer, QScrollBar* opzij)
    : QObject(&lijf), lijf_(lijf), opEnNeer_(opEnNeer), opzij_(opzij) {
    lijf.installEventFilter(this);
    opEnNeer.installEventFilter(this);
    if (opzij != nullptr) opzij->installEventFilter(this);
}

bool Schuiver::eventFilter(QObject* object, QEvent* gebeurtenis) {
    if (gebeurtenis->type() == QEvent::KeyPress && object == &lijf_) {
        const auto* toetsdruk = static_cast<const QKeyEvent*>(gebeurtenis);
        const auto erbij = toetsdruk->modifiers() & ~Qt::KeypadModifier;
        if (erbij == Qt::NoModifier && toets(toetsdruk->key())) return true;
        if (erbij == Qt::ShiftModifier && toetsOpzij(toetsdruk->key())) return true;
    }
    if (gebeurtenis->type() == QEvent::Wheel) {
        const auto* draai = static_cast<const QWheelEvent*>(gebeurtenis);
        const bool opzij = (draai->modifiers() & Qt::ShiftModifier) != 0 || object == opzij_;
        const QPoint hoek = draai->angleDelta();
        wiel(opzij && hoek.x() == 0 ? QPoint(hoek.y(), 0) : hoek);
        return true;
    }
    return QObject::eventFilter(object, gebeurtenis);
}

double RijenPerBlad(const TabelLijf& lijf) {
    const double zicht = lijf.mm(lijf.height()) - rooster::kopHoogte;
    return std::max(1.0, std::floor(zicht / rooster::rijHoogte) - 1);
}

bool Schuiver::toets(int toets) {
    const auto rij = static_cast<int>(rooster::rijHoogte);
    const auto rijen = static_cast<int>(RijenPerBlad(lijf_));
    switch (toets) {
    case Qt::Key_Up:
        verschuif(-rij);
        return true;
    case Qt::Key_Down:
        verschuif(rij);
        return true;
    case Qt::Key_PageUp:
        verschuif(-rijen * rij);
        return true;
    case Qt::Key_PageDown:
        verschuif(rijen * rij);
        return true;
    case Qt::Key_Home:
        opEnNeer_.setValue(0);
        return true;
    case Qt::Key_End:
        opEnNeer_.setValue(opEnNeer_.maximum());
        return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
        if (opzij_ == nullptr) return false;
        verschuifOpzij(toets == Qt::Key_Left ? -opzij_->singleStep() : opzij_->singleStep());
        return true;
    default:
        return false;
    }
}

bool Schuiver::toetsOpzij(int toets) {
    if (opzij_ == nullptr) return false;
    switch (toets) {
    case Qt::Key_PageUp:
        verschuifOpzij(-opzij_->pageStep());
        return true;
    case Qt::Key_PageDown:
        verschuifOpzij(opzij_->pageStep());
        return true;
    case Qt::Key_Home:
        opzij_->setValue(0);
        return true;
    case Qt::Key_End:
        opzij_->setValue(opzij_->maximum());
        return true;
    default:
        return false;
    }
}

void Schuiver::verschuif(int mm) { opEnNeer_.setValue(opEnNeer_.value() + mm); }

void Schuiver::verschuifOpzij(int mm) {
    if (opzij_ != nullptr) opzij_->setValue(opzij_->value() + mm);
}

/// One notch (120) scrolls three rows (12 mm). Touchpads turn by less than a millimetre at a time.
void Schuiver::wiel(QPoint hoek) {
    constexpr int perMm = 10;
    wielRest_ += hoek;
    const QPoint mm(wielRest_.x() / perMm, wielRest_.y() / perMm);
    wielRest_ -= mm * perMm;
    verschuif(-mm.y());
    verschuifOpzij(-mm.x());
}

} // namespace lauwerkrans
