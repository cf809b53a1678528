#include "ui/raster_zoom.h"

#include <QShortcut>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace lauwerkrans {

RasterZoom::RasterZoom(QWidget& venster, std::initializer_list<QObject*> metWiel,
                       std::function<void(int procent)> zet)
    : QObject(&venster), zet_(std::move(zet)) {
    const auto toets = [&](QKeyCombination toetsen, auto procent) {
        auto* sneltoets = new QShortcut(QKeySequence(toetsen), &venster);
        connect(sneltoets, &QShortcut::activated, this,
                [this, procent] { stel(procent(procent_)); });
    };
    const auto groter = [](int nu) { return nu + stap; };
    const auto kleiner = [](int nu) { return nu - stap; };
    const auto gewoon = [](int /*nu*/) { return kleinste; };
    // The plus shares a key with the equals sign on many keyboards, with Shift or without.
    toets(Qt::CTRL | Qt::Key_Plus, groter);
    toets(Qt::CTRL | Qt::SHIFT | Qt::Key_Plus, groter);
    toets(Qt::CTRL | Qt::Key_Equal, groter);
    toets(Qt::CTRL | Qt::Key_Minus, kleiner);
    toets(Qt::CTRL | Qt::Key_0, gewoon);
    for (QObject* object : metWiel)
        object->installEventFilter(this);
}

bool RasterZoom::eventFilter(QObject* object, QEvent* gebeurtenis) {
    if (gebeurtenis->type() == QEvent::Wheel) {
        const auto* draai = static_cast<const QWheelEvent*>(gebeurtenis);
        if (draai->modifiers() == Qt::ControlModifier) {
            constexpr int klik = 120; // eighths of a degree
            wielRest_ += draai->angleDelta().y();
            const int stappen = wielRest_ / klik;
            wielRest_ -= stappen * klik;
            stel(procent_ + stappen * stap);
            return true;
        }
    }
    return QObject::eventFilter(object, gebeurtenis);
}

void RasterZoom::stel(int procent) {
    procent = std::clamp(procent, kleinste, grootste);
    if (procent == procent_) return;
    procent_ = procent;
    zet_(procent);
}

} // namespace lauwerkrans
