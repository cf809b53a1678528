// A cell or column header of a table body for screen readers. It holds its place alone; everything
// else is asked of the body.
#pragma once

#include <QAccessible>

#include "ui/tabellijf.h"

namespace lauwerkrans {

/// Where the cells of a table come from.
class CelBron {
public:
    CelBron() = default;
    CelBron(const CelBron&) = delete;
    CelBron(CelBron&&) = delete;
    CelBron& operator=(const CelBron&) = delete;
    CelBron& operator=(CelBron&&) = delete;
    virtual ~CelBron() = default;

    [[nodiscard]] virtual TabelLijf& lijf() const = 0;
    /// What is read as the header of a column: its button, where that has been made.
    [[nodiscard]] virtual QAccessibleInterface* kop(std::size_t kolom) const = 0;
};

/// Rows and columns are counted from 1; row 0 is that of the headers.
class RasterCel : public QAccessibleInterface, public QAccessibleTableCellInterface {
public:
    RasterCel(const CelBron& bron, std::size_t rij, std::size_t kolom)
        : bron_(bron), rij_(rij), kolom_(kolom) {}

    [[nodiscard]] std::size_t rij() const { return rij_; }
    [[nodiscard]] std::size_t kolom() const { return kolom_; }

    /// Whether the table still has this cell.
    [[nodiscard]] bool isValid() const override;
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QWindow* window() const override;
    [[nodiscard]] QAccessibleInterface* parent() const override;
    [[nodiscard]] QAccessibleInterface* child(int /*nummer*/) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* /*kind*/) const override {
        return -1;
    }
    [[nodiscard]] QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override {
        return nullptr;
    }
    /// The name is the cell's text; the description that of its tool tip, of a row's first cell the
    /// whole row.
    [[nodiscard]] QString text(QAccessible::Text soort) const override;
    void setText(QAccessible::Text /*soort*/, const QString& /*tekst*/) override {}
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QAccessible::Role role() const override;
    [[nodiscard]] QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType soort) override;

    [[nodiscard]] int columnExtent() const override { return 1; }
    [[nodiscard]] int rowExtent() const override { return 1; }
    [[nodiscard]] int columnIndex() const override { return static_cast<int>(kolom_) - 1; }
    [[nodiscard]] int rowIndex() const override { return static_cast<int>(rij_) - 1; }
    [[nodiscard]] QList<QAccessibleInterface*> columnHeaderCells() const override;
    [[nodiscard]] QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    [[nodiscard]] bool isSelected() const override;
    [[nodiscard]] QAccessibleInterface* table() const override { return parent(); }

private:
    const CelBron& bron_;
    std::size_t rij_;
    std::size_t kolom_;
};

/// A row as it is read out: headers and texts, the empty cells left out.
[[nodiscard]] QString RijTekst(const TabelLijf& lijf, std::size_t rij);

} // namespace lauwerkrans
