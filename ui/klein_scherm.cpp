#include "ui/klein_scherm.h"

#include <QCloseEvent>

#include "ui/focusrand.h"
#include "ui/maten.h"

namespace lauwerkrans {

KleinScherm::KleinScherm(QWidget& venster) : venster_(venster) {
    setWindowTitle(venster.windowTitle());
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    QWidget* focus = venster.focusWidget();
    setWidget(&venster);
    if (focus != nullptr) focus->setFocus();
    new FocusRand(*this, *this); // the arrow keys scroll it
    venster.installEventFilter(this);
}

KleinScherm::~KleinScherm() {
    venster_.removeEventFilter(this);
    takeWidget();
}

bool KleinScherm::nodig(const QWidget& venster, const QRect& vrij) {
    const QSize kleinste = maten::Buitenmaat(venster.minimumSize());
    return kleinste.width() > vrij.width() || kleinste.height() > vrij.height();
}

void KleinScherm::toon(const QRect& vrij) {
    venster_.show(); // it may have been closed before
    resize(vrij.size() - (maten::Buitenmaat(vrij.size()) - vrij.size()));
    move(vrij.topLeft());
    showMaximized();
}

void KleinScherm::closeEvent(QCloseEvent* gebeurtenis) {
    QScrollArea::closeEvent(gebeurtenis);
    venster_.close();
}

bool KleinScherm::eventFilter(QObject* object, QEvent* gebeurtenis) {
    // A hiding that comes from outside is this window being minimised.
    const bool weg = gebeurtenis->type() == QEvent::Hide && !gebeurtenis->spontaneous();
    if (object == &venster_ && weg) close();
    return QScrollArea::eventFilter(object, gebeurtenis);
}

} // namespace lauwerkrans
