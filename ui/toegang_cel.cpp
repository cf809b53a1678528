#include "ui/toegang_cel.h"

#include <QStringList>

#include <algorithm>

namespace lauwerkrans {

QString RijTekst(const TabelLijf& lijf, std::size_t rij) {
    constexpr std::size_t meeste = 16; // nobody listens to a thousand sessions
    const Tabelbeeld& beeld = lijf.beeld();
    QStringList delen;
    for (std::size_t kolom = 1; kolom < std::min(beeld.x.size(), meeste + 1); ++kolom) {
        const QString tekst = beeld.cel(rij, kolom).tekst;
        if (!tekst.isEmpty()) delen.append((beeld.kop(kolom) + QLatin1Char(' ') + tekst).trimmed());
    }
    return delen.join(QStringLiteral(", "));
}

bool RasterCel::isValid() const {
    const Tabelbeeld& beeld = bron_.lijf().beeld();
    return rij_ <= beeld.rijen && kolom_ >= 1 && kolom_ < beeld.x.size();
}

QAccessibleInterface* RasterCel::parent() const {
    return QAccessible::queryAccessibleInterface(&bron_.lijf());
}

QWindow* RasterCel::window() const { return parent()->window(); }

QString RasterCel::text(QAccessible::Text soort) const {
    if (!isValid()) return {};
    const Tabelbeeld& beeld = bron_.lijf().beeld();
    if (soort == QAccessible::Name) {
        return rij_ == 0 ? beeld.kop(kolom_) : beeld.cel(rij_, kolom_).tekst;
    }
    if (soort != QAccessible::Description || rij_ == 0) return {};
    if (kolom_ == 1) return RijTekst(bron_.lijf(), rij_);
    return beeld.uitleg ? beeld.uitleg(rij_, kolom_) : QString();
}

QRect RasterCel::rect() const {
    if (!isValid()) return {};
    const TabelLijf& lijf = bron_.lijf();
    QRect vak = lijf.celVak(std::max<std::size_t>(rij_, 1), kolom_).toRect();
    if (rij_ == 0) vak.moveBottom(vak.top() - 1);
    return vak.translated(lijf.mapToGlobal(QPoint()));
}

QAccessible::Role RasterCel::role() const {
    return rij_ == 0 ? QAccessible::ColumnHeader : QAccessible::Cell;
}

QAccessible::State RasterCel::state() const {
    QAccessible::State staat;
    staat.invalid = !isValid();
    if (staat.invalid) return staat;
    const TabelLijf& lijf = bron_.lijf();
    staat.readOnly = true;
    staat.selectable = rij_ > 0 && lijf.markeerbaar();
    staat.selected = isSelected();
    staat.focusable = staat.selectable;
    staat.focused = staat.selected && kolom_ == 1 && lijf.hasFocus();
    staat.invisible = !lijf.isVisible();
    staat.offscreen =
        !lijf.kolommenInBeeld().heeft(kolom_) || (rij_ > 0 && !lijf.rijenInBeeld().heeft(rij_));
    return staat;
}

void* RasterCel::interface_cast(QAccessible::InterfaceType soort) {
    if (soort != QAccessible::TableCellInterface) return nullptr;
    return static_cast<QAccessibleTableCellInterface*>(this);
}

QList<QAccessibleInterface*> RasterCel::columnHeaderCells() const {
    if (!isValid() || rij_ == 0) return {};
    return {bron_.kop(kolom_)};
}

bool RasterCel::isSelected() const { return rij_ > 0 && rij_ == bron_.lijf().gemarkeerdeRij(); }

} // namespace lauwerkrans
