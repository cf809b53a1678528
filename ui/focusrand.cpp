#include "ui/focusrand.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>

#include "ui/stijl.h"

namespace lauwerkrans {

FocusRand::FocusRand(QWidget& over, QWidget& wie) : QWidget(&over) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    resize(over.size());
    hide();
    over.installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this,
            [this, &wie](const QWidget* /*oud*/, const QWidget* nieuw) {
                setVisible(nieuw == &wie);
                raise();
            });
}

void FocusRand::paintEvent(QPaintEvent* /*gebeurtenis*/) {
    QPainter schilder(this);
    const QColor kleur = palette().color(QPalette::Highlight);
    TrekRand(schilder, rect(), kleur);
    TrekRand(schilder, rect().adjusted(1, 1, -1, -1), kleur);
}

bool FocusRand::eventFilter(QObject* object, QEvent* gebeurtenis) {
    if (gebeurtenis->type() == QEvent::Resize) resize(parentWidget()->size());
    return QWidget::eventFilter(object, gebeurtenis);
}

} // namespace lauwerkrans
