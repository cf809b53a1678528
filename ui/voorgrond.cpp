#include "ui/voorgrond.h"

#include <QApplication>

namespace lauwerkrans {

Voorgrond::Voorgrond() {
    const auto volg = [this](const QWidget* /*oud*/, QWidget* nieuw) {
        if (nieuw == nullptr) return;
        while (nieuw->parentWidget() != nullptr)
            nieuw = nieuw->parentWidget();
        laatste_ = nieuw;
    };
    QObject::connect(qApp, &QApplication::focusChanged, &volger_, volg);
}

QWidget* Voorgrond::venster() const {
    if (QWidget* actief = QApplication::activeWindow()) return actief;
    return laatste_ != nullptr && laatste_->isVisible() ? laatste_.data() : nullptr;
}

} // namespace lauwerkrans
