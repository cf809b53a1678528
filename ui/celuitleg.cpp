#include "ui/celuitleg.h"

#include <QToolTip>

namespace lauwerkrans {

void ToonUitleg(TabelLijf& lijf, const QHelpEvent& vraag) {
    const auto plaats = lijf.celOp(vraag.pos());
    const auto& uitleg = lijf.beeld().uitleg;
    const QString tekst = uitleg && plaats ? uitleg(plaats->rij, plaats->kolom) : QString();
    if (tekst.isEmpty()) {
        QToolTip::hideText();
        return;
    }
    QToolTip::showText(vraag.globalPos(), tekst, &lijf,
                       lijf.celVak(plaats->rij, plaats->kolom).toAlignedRect());
}

} // namespace lauwerkrans
