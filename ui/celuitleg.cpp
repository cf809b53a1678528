#include "ui/celuitleg.h"

#include <QToolTip>

namespace lauwerkrans {

void ToonUitleg(TabelLijf& lijf, const Lijst* lijst, const QHelpEvent& vraag) {
    const auto plaats = lijf.celOp(vraag.pos());
    const std::string tekst =
        lijst != nullptr && plaats ? lijst->uitleg(plaats->rij, plaats->kolom) : std::string();
    if (tekst.empty()) {
        QToolTip::hideText();
        return;
    }
    QToolTip::showText(vraag.globalPos(), QString::fromStdString(tekst), &lijf,
                       lijf.celVak(plaats->rij, plaats->kolom).toAlignedRect());
}

} // namespace lauwerkrans
