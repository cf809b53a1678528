#include "ui/bijvenster.h"

#include <QScreen>
#include <QShortcut>

#include "ui/maten.h"

namespace lauwerkrans {

Bijvenster::Bijvenster() {
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
}

void Bijvenster::toonOver(const QWidget& venster) {
    if (!geplaatst_) {
        const QWidget& buitenste = *venster.window();
        QRect vak(QPoint(), maten::Buitenmaat(size()));
        const QSize kader = vak.size() - size();
        vak.moveCenter(buitenste.frameGeometry().center());
        vak = maten::BinnenScherm(vak, buitenste.screen()->availableGeometry());
        resize(vak.size() - kader);
        move(vak.topLeft());
        geplaatst_ = true;
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

} // namespace lauwerkrans
