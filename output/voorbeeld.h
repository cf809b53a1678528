// The picture of a page in a preview: box, page, shadow and scroll bars, at four sizes.
#pragma once

#include <QObject>
#include <QScrollBar>
#include <QWidget>

#include <memory>
#include <optional>

#include "output/bladindeling.h"

namespace lauwerkrans {

/// The sizes in the order of the clicks on the page.
enum class Vergroting { HeelBlad, BladBreedte, Honderd, HonderdVijftig };

/// The page itself.
class BladVlak : public QWidget {
    Q_OBJECT
public:
    explicit BladVlak(QWidget* picP0);

    void toon(std::shared_ptr<const Bladen> bladen, std::size_t nummer);
    /// Gives the page its size: so many pixels to a millimetre.
    void zetSchaal(double schaal);
    [[nodiscard]] double schaal() const { return schaal_; }
    /// The texts of the page, a line each; made when first asked for.
    [[nodiscard]] const QString& tekst() const;

signals:
    void geklikt();

protected:
    void paintEvent(QPaintEvent* gebeurtenis) override;
    void mousePressEvent(QMouseEvent* gebeurtenis) override;
    void keyPressEvent(QKeyEvent* gebeurtenis) override;

private:
    std::shared_ptr<const Bladen> bladen_;
    std::size_t nummer_ = 1;
    double schaal_ = 1;
    mutable std::optional<QString> tekst_;
};

/// Lays the page out in its box and scrolls it. The controls picP0, VScroll1 and HScroll1 are the
/// window's; the page `P1` and its shadow `P9` are made in picP0.
class Voorbeeld : public QObject {
    Q_OBJECT
public:
    explicit Voorbeeld(QWidget& venster);

    /// Shows a page; from its top when it is another than before.
    void toon(std::shared_ptr<const Bladen> bladen, std::size_t nummer);

    /// Shows the same page of the same list made in another way, at the same place.
    void vervang(std::shared_ptr<const Bladen> bladen);

    /// Fits the page to its box again.
    void pasAan();

    /// Scrolls to the end of the page.
    void toonEinde();

    [[nodiscard]] Vergroting vergroting() const { return vergroting_; }
    /// Pixels per millimetre.
    [[nodiscard]] double schaal() const { return P1_->schaal(); }

signals:
    /// A page key was pressed at the end of the page (1) or at its top (-1).
    void voorbij(int richting);

protected:
    bool eventFilter(QObject* object, QEvent* gebeurtenis) override;

private:
    void vergroot();
    void schuif();
    [[nodiscard]] bool toets(int toets);
    bool blader(int richting);
    [[nodiscard]] double gewensteSchaal() const;

    QWidget* picP0_;
    QWidget* P9_;
    BladVlak* P1_;
    QScrollBar* VScroll1_;
    QScrollBar* HScroll1_;
    std::shared_ptr<const Bladen> bladen_;
    std::size_t nummer_ = 1;
    Vergroting vergroting_ = Vergroting::HeelBlad;
};

} // namespace lauwerkrans
