#include "ui/toepassing.h"

#include <QEvent>

#include "ui/berichten.h"

namespace lauwerkrans {

bool Toepassing::notify(QObject* ontvanger, QEvent* gebeurtenis) {
    try {
        return QApplication::notify(ontvanger, gebeurtenis);
    } catch (...) {
        vangOp(*gebeurtenis);
        return false;
    }
}

/// Called while an exception is being handled. A picture that cannot be drawn is asked for again
/// and again, also by the box that says so; it is told once.
void Toepassing::vangOp(const QEvent& gebeurtenis) {
    const bool tekenen = gebeurtenis.type() == QEvent::Paint;
    if (tekenen && tekenfout_) return;
    tekenfout_ = tekenfout_ || tekenen;
    try {
        Bewaak([this](const Melding& melding) { meldStraks(melding); }, [] { throw; });
    } catch (...) {
        return; // there is no room for a message either; the program goes on
    }
}

/// The message comes when the event has been left: a box in the middle of painting or resizing
/// would start both anew. One at a time; what goes wrong under a box has the same cause.
void Toepassing::meldStraks(const Melding& melding) {
    if (bezig_ || !meld_) return;
    const auto toon = [this, melding] {
        Bewaak([](const Melding&) {}, [&] { meld_(melding); });
        bezig_ = false;
    };
    bezig_ = QMetaObject::invokeMethod(this, toon, Qt::QueuedConnection);
}

} // namespace lauwerkrans
