#include "ui/leeswacht.h"

#include <QApplication>
#include <QEvent>
#include <QWindow>

#include <exception>
#include <utility>

#include "ui/berichten.h"

namespace lauwerkrans {

namespace {

bool IsInvoer(QEvent::Type soort) {
    switch (soort) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::NonClientAreaMouseButtonPress:
    case QEvent::NonClientAreaMouseButtonRelease:
    case QEvent::NonClientAreaMouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

/// Runs later, not over a message that is on show.
void NaBericht(QObject* houder, const std::function<void()>& werk) {
    const auto doe = [houder, werk] {
        if (const QWidget* bericht = QApplication::activeModalWidget()) {
            QObject::connect(bericht, &QObject::destroyed, houder,
                             [houder, werk] { NaBericht(houder, werk); });
        } else {
            werk();
        }
    };
    QMetaObject::invokeMethod(houder, doe, Qt::QueuedConnection);
}

void Sluit(QObject* object) {
    if (auto* venster = qobject_cast<QWidget*>(object)) venster->close();
    if (auto* venster = qobject_cast<QWindow*>(object)) venster->close();
}

} // namespace

Leeswacht::Leeswacht(QWidget& venster, Voortgang& voortgang, Klok klok)
    : QObject(&venster), venster_(venster), voortgang_(voortgang), klok_(std::move(klok)) {}

void Leeswacht::bewaak(const std::function<void()>& lezing) {
    const Voortgang vorige = std::exchange(
        voortgang_, {[this] { return isTijd(); },
                     [this](std::size_t gelezen, std::size_t totaal) { toon(gelezen, totaal); }});
    bezig_ = true;
    volgende_ = klok_() + geduld;
    std::exception_ptr fout;
    try {
        lezing();
    } catch (...) {
        fout = std::current_exception();
    }
    voortgang_ = vorige;
    eindig();
    if (fout) std::rethrow_exception(fout);
}

bool Leeswacht::isTijd() const { return klok_() >= volgende_; }

void Leeswacht::toon(std::size_t gelezen, std::size_t totaal) {
    if (getoondIn_.isNull()) begin();
    getoondIn_->setWindowTitle(QStringLiteral("%1 - %2 van %3 zittingen gelezen")
                                   .arg(QLatin1String(programmaNaam))
                                   .arg(gelezen)
                                   .arg(totaal));
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                    QEventLoop::ExcludeSocketNotifiers);
    volgende_ = klok_() + tussenpoos;
}

void Leeswacht::begin() {
    getoondIn_ = venster_.window();
    bijschrift_ = getoondIn_->windowTitle();
    QCoreApplication::instance()->installEventFilter(this);
}

void Leeswacht::eindig() {
    if (!getoondIn_.isNull()) {
        // What was typed and clicked meanwhile comes in now, and goes no further than the filter.
        QCoreApplication::processEvents(QEventLoop::ExcludeSocketNotifiers);
        QCoreApplication::instance()->removeEventFilter(this);
        getoondIn_->setWindowTitle(bijschrift_);
        getoondIn_.clear();
    }
    bezig_ = false;
    for (const auto& werk : std::exchange(uitgesteld_, {}))
        NaBericht(this, werk);
}

void Leeswacht::daarna(const std::function<void()>& werk) {
    if (bezig_) {
        uitgesteld_.push_back(werk);
    } else {
        werk();
    }
}

bool Leeswacht::eventFilter(QObject* object, QEvent* gebeurtenis) {
    if (QApplication::activeModalWidget() != nullptr) return false; // a message of the reading
    if (gebeurtenis->type() == QEvent::Close) {
        gebeurtenis->ignore();
        daarna([venster = QPointer<QObject>(object)] {
            if (!venster.isNull()) Sluit(venster);
        });
        return true;
    }
    return IsInvoer(gebeurtenis->type());
}

} // namespace lauwerkrans
