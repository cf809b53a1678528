#include "ui/tekstvoorraad.h"

#include <cmath>

namespace lauwerkrans {

void Tekstvoorraad::teken(QPainter& schilder, double midden, double boven, const QString& tekst) {
    const Zetsel& gezet = zetsel(tekst);
    if (schilder.font() != letters_) schilder.setFont(letters_);
    const double hoogte = maat_.ascent();
    schilder.drawStaticText(
        QPointF(midden - gezet.breedte / 2, std::round(boven + hoogte) - hoogte), gezet.tekst);
}

const Tekstvoorraad::Zetsel& Tekstvoorraad::zetsel(const QString& tekst) {
    const auto bekend = zetsels_.find(tekst);
    if (bekend != zetsels_.end()) return bekend->second;
    if (aantal() >= meeste) zetsels_.clear();
    QStaticText nieuw(tekst);
    nieuw.setTextFormat(Qt::PlainText);
    nieuw.setPerformanceHint(QStaticText::AggressiveCaching);
    nieuw.prepare(QTransform(), letters_);
    return zetsels_.emplace(tekst, Zetsel{nieuw, maat_.horizontalAdvance(tekst)}).first->second;
}

} // namespace lauwerkrans
