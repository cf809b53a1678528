#include "ui/bijvenster.h"

#include <QScreen>
#include <QShortcut>

#include "ui/maten.h"

namespace lauwerkrans {

Bijvenster::Bijvenster() {
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
}

void Bijvenster::toonOver(const QWidget& venster) {
    const QWidget& buitenste = *venster.window();
    const QRect vrij = buitenste.screen()->availableGeometry();
    if (!geplaatst_ && KleinScherm::nodig(*this, vrij))
        kleinScherm_ = std::make_unique<KleinScherm>(*this);
    if (kleinScherm_) {
        kleinScherm_->toon(vrij);
    } else {
        if (!geplaatst_) plaats(buitenste, vrij);
        setWindowState(windowState() & ~Qt::WindowMinimized);
        show();
    }
    geplaatst_ = true;
    window()->raise();
    window()->activateWindow();
}

void Bijvenster::plaats(const QWidget& midden, const QRect& vrij) {
    QRect vak(QPoint(), maten::Buitenmaat(size()));
    const QSize kader = vak.size() - size();
    vak.moveCenter(midden.frameGeometry().center());
    vak = maten::BinnenScherm(vak, vrij);
    resize(vak.size() - kader);
    move(vak.topLeft());
}

} // namespace lauwerkrans
