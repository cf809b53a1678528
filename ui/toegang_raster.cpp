#include "ui/toegang_raster.h"

#include <QAccessibleWidget>

#include <algorithm>
#include <deque>
#include <map>

#include "ui/toegang_cel.h"

namespace lauwerkrans {

namespace {

/// The cells that were asked for last. The toolkit keeps every interface that it is given, so old
/// ones are taken back.
class Celring {
public:
    Celring() = default;
    Celring(const Celring&) = delete;
    Celring(Celring&&) = delete;
    Celring& operator=(const Celring&) = delete;
    Celring& operator=(Celring&&) = delete;
    ~Celring() {
        while (!volgorde_.empty())
            verwijderOudste();
    }

    /// A cell that stays until `meeste` others were asked for.
    RasterCel* cel(const CelBron& bron, std::size_t rij, std::size_t kolom, std::size_t meeste) {
        const std::pair plaats(rij, kolom);
        if (const auto bekend = ids_.find(plaats); bekend != ids_.end())
            return static_cast<RasterCel*>(QAccessible::accessibleInterface(bekend->second));
        auto* cel = new RasterCel(bron, rij, kolom);
        ids_[plaats] = QAccessible::registerAccessibleInterface(cel);
        volgorde_.push_back(plaats);
        while (volgorde_.size() > meeste)
            verwijderOudste();
        return cel;
    }

private:
    using Plaats = std::pair<std::size_t, std::size_t>;

    void verwijderOudste() {
        const auto oudste = ids_.find(volgorde_.front());
        QAccessible::deleteAccessibleInterface(oudste->second);
        ids_.erase(oudste);
        volgorde_.pop_front();
    }

    std::map<Plaats, QAccessible::Id> ids_;
    std::deque<Plaats> volgorde_;
};

class RasterToegang : public QAccessibleWidget, public QAccessibleTableInterface, public CelBron {
public:
    explicit RasterToegang(QWidget* lijf) : QAccessibleWidget(lijf, QAccessible::Table) {}

    void* interface_cast(QAccessible::InterfaceType soort) override {
        if (soort == QAccessible::TableInterface)
            return static_cast<QAccessibleTableInterface*>(this);
        return QAccessibleWidget::interface_cast(soort);
    }

    // The children: the cells in view, row by row.
    [[nodiscard]] int childCount() const override {
        return static_cast<int>(lijf().rijenInBeeld().aantal() * lijf().kolommenInBeeld().aantal());
    }
    [[nodiscard]] QAccessibleInterface* child(int nummer) const override {
        if (nummer < 0 || nummer >= childCount()) return nullptr;
        const auto kolommen = lijf().kolommenInBeeld();
        const auto plaats = static_cast<std::size_t>(nummer);
        return cel(lijf().rijenInBeeld().van + plaats / kolommen.aantal(),
                   kolommen.van + plaats % kolommen.aantal());
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* kind) const override {
        const auto* cel = dynamic_cast<const RasterCel*>(kind);
        const auto rijen = lijf().rijenInBeeld();
        const auto kolommen = lijf().kolommenInBeeld();
        if (cel == nullptr || !rijen.heeft(cel->rij()) || !kolommen.heeft(cel->kolom())) return -1;
        return static_cast<int>((cel->rij() - rijen.van) * kolommen.aantal() + cel->kolom() -
                                kolommen.van);
    }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override {
        const auto plaats = lijf().celOp(lijf().mapFromGlobal(QPoint(x, y)));
        const bool inBeeld = plaats && lijf().rijenInBeeld().heeft(plaats->rij) &&
                             lijf().kolommenInBeeld().heeft(plaats->kolom);
        return inBeeld ? cel(plaats->rij, plaats->kolom) : nullptr;
    }
    /// The first cell of the marked row.
    [[nodiscard]] QAccessibleInterface* focusChild() const override {
        const std::size_t rij = lijf().gemarkeerdeRij();
        return rij != 0 && lijf().hasFocus() ? cel(rij, 1) : nullptr;
    }

    // The whole table, counted from 0.
    [[nodiscard]] int rowCount() const override { return static_cast<int>(lijf().beeld().rijen); }
    [[nodiscard]] int columnCount() const override {
        return static_cast<int>(lijf().beeld().x.size()) - 1;
    }
    /// Never nullptr, which the bridges do not expect; a cell outside the table is not valid.
    [[nodiscard]] QAccessibleInterface* cellAt(int rij, int kolom) const override {
        if (rij < 0 || kolom < 0 || rij >= rowCount() || kolom >= columnCount()) return cel(0, 0);
        return cel(static_cast<std::size_t>(rij) + 1, static_cast<std::size_t>(kolom) + 1);
    }
    [[nodiscard]] QString columnDescription(int kolom) const override {
        if (kolom < 0 || kolom >= columnCount()) return {};
        return lijf().beeld().kop(static_cast<std::size_t>(kolom) + 1);
    }
    [[nodiscard]] QString rowDescription(int rij) const override {
        if (rij < 0 || rij >= rowCount()) return {};
        return RijTekst(lijf(), static_cast<std::size_t>(rij) + 1);
    }
    [[nodiscard]] QAccessibleInterface* caption() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* summary() const override { return nullptr; }

    // The selection: the marked row, and of its cells those in view.
    [[nodiscard]] bool isRowSelected(int rij) const override {
        return rij >= 0 && selectedRows().contains(rij);
    }
    [[nodiscard]] int selectedRowCount() const override {
        return static_cast<int>(selectedRows().size());
    }
    [[nodiscard]] QList<int> selectedRows() const override {
        const std::size_t rij = lijf().gemarkeerdeRij();
        return rij == 0 ? QList<int>() : QList<int>{static_cast<int>(rij) - 1};
    }
    [[nodiscard]] int selectedCellCount() const override {
        return static_cast<int>(selectedCells().size());
    }
    [[nodiscard]] QList<QAccessibleInterface*> selectedCells() const override {
        QList<QAccessibleInterface*> cellen;
        const std::size_t rij = lijf().gemarkeerdeRij();
        const auto kolommen = lijf().kolommenInBeeld();
        for (std::size_t kolom = kolommen.van; rij != 0 && kolom <= kolommen.tot; ++kolom)
            cellen.append(cel(rij, kolom));
        return cellen;
    }
    [[nodiscard]] bool isColumnSelected(int /*kolom*/) const override { return false; }
    [[nodiscard]] int selectedColumnCount() const override { return 0; }
    [[nodiscard]] QList<int> selectedColumns() const override { return {}; }
    /// Marks the row as a press of the mouse on it does.
    bool selectRow(int rij) override {
        if (rij < 0 || rij >= rowCount()) return false;
        const double midden = rooster::kopHoogte + (rij + 0.5) * rooster::rijHoogte;
        emit lijf().gedrukt(0, midden);
        return isRowSelected(rij);
    }
    bool selectColumn(int /*kolom*/) override { return false; }
    bool unselectRow(int /*rij*/) override { return false; }
    bool unselectColumn(int /*kolom*/) override { return false; }
    /// A cell knows its place alone, so it may stay.
    void modelChange(QAccessibleTableModelChangeEvent* /*gebeurtenis*/) override {}

    [[nodiscard]] TabelLijf& lijf() const override { return static_cast<TabelLijf&>(*widget()); }
    [[nodiscard]] QAccessibleInterface* kop(std::size_t kolom) const override {
        QWidget* knop = lijf().beeld().kopknop(kolom);
        return knop != nullptr ? QAccessible::queryAccessibleInterface(knop) : cel(0, kolom);
    }

private:
    [[nodiscard]] RasterCel* cel(std::size_t rij, std::size_t kolom) const {
        constexpr std::size_t reserve = 1000; // beyond one round over the children
        return ring_.cel(*this, rij, kolom, reserve + static_cast<std::size_t>(childCount()));
    }

    mutable Celring ring_;
};

QAccessibleInterface* Maak(const QString& klasse, QObject* object) {
    if (klasse != QLatin1String(TabelLijf::staticMetaObject.className())) return nullptr;
    return new RasterToegang(static_cast<QWidget*>(object));
}

void Meld(QAccessibleInterface* cel, QAccessible::Event soort) {
    QAccessibleEvent gebeurtenis(cel, soort);
    QAccessible::updateAccessibility(&gebeurtenis);
}

} // namespace

void InstalleerRasterToegang() {
    static const bool klaar = (QAccessible::installFactory(Maak), true);
    static_cast<void>(klaar);
}

void MeldAndereTabel(TabelLijf& lijf) {
    QAccessibleTableModelChangeEvent gebeurtenis(&lijf,
                                                 QAccessibleTableModelChangeEvent::ModelReset);
    QAccessible::updateAccessibility(&gebeurtenis);
}

void MeldMarkering(TabelLijf& lijf, std::size_t vorige) {
    const auto* tabel = QAccessible::queryAccessibleInterface(&lijf)->tableInterface();
    const auto rij = static_cast<int>(lijf.gemarkeerdeRij());
    if (vorige != 0 && vorige <= lijf.beeld().rijen)
        Meld(tabel->cellAt(static_cast<int>(vorige) - 1, 0), QAccessible::SelectionRemove);
    if (rij == 0) return;
    Meld(tabel->cellAt(rij - 1, 0), QAccessible::SelectionAdd);
    if (lijf.hasFocus()) Meld(tabel->cellAt(rij - 1, 0), QAccessible::Focus);
}

} // namespace lauwerkrans
