// The Qt application, and the guard below all event handlers.
#pragma once

#include <QApplication>

#include "data/melding.h"

namespace lauwerkrans {

/// Every event of the program goes through here, so that no exception gets further: handlers with
/// something to keep or to restore are guarded themselves, and this is for what is thrown anywhere
/// else, such as while painting, scrolling or typing.
class Toepassing : public QApplication {
public:
    using QApplication::QApplication;

    /// Where an error is told.
    void zetMelder(Melder meld) { meld_ = std::move(meld); }

    /// Hands an event to its receiver; false when the handler threw.
    bool notify(QObject* ontvanger, QEvent* gebeurtenis) override;

private:
    void vangOp(const QEvent& gebeurtenis);
    void meldStraks(const Melding& melding);

    Melder meld_;
    bool bezig_ = false;     // a message waits or is up
    bool tekenfout_ = false; // an error while painting has been told
};

} // namespace lauwerkrans
