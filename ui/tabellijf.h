// The body of a scrolling panel: a table drawn as text between grid lines, as tall and wide as it
// needs. Only what the panel lets see is drawn, so that the height is a number and no picture.
#pragma once

#include <QColor>
#include <QPixmap>
#include <QPushButton>
#include <QString>
#include <QWidget>

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "ui/elementen.h"

namespace lauwerkrans {

class Tekstvoorraad;

/// Measures that the panels share, in millimetres.
namespace rooster {
constexpr double schuifDikte = 250.0; // twips: thickness of the scroll bars
constexpr double schuifMarge = 0.0;   // added to content sizes in the scroll arithmetic
constexpr double tekstMarge = 1.0;    // on both sides of the widest text of a column
constexpr double rijHoogte = 4.0;
constexpr double kopHoogte = 5.0;  // above the first row
constexpr double onderMarge = 0.6; // below the last row
constexpr double zijMarge = 0.0;
} // namespace rooster

/// How one cell looks.
struct Celbeeld {
    QString tekst;
    bool vet = false;
    QColor kleur;
};

/// What a body shows.
struct Tabelbeeld {
    std::vector<double> x = {0}; // column positions in mm; one more than there are columns
    std::size_t rijen = 0;
    std::size_t lijnen = 0; // horizontal grid lines, the first at the header height
    QColor lijnKleur;
    std::function<Celbeeld(std::size_t rij, std::size_t kolom)> cel; // both from 1
    std::function<QString(std::size_t kolom)> kop;                   // the header of a column
    /// A cell in words, empty where there is no more to say; may be left out.
    std::function<QString(std::size_t rij, std::size_t kolom)> uitleg;
    std::function<QWidget*(std::size_t kolom)> kopknop; // its button, or nullptr: not made yet
    QPixmap plaatje;              // drawn below the rows, when there is room for it
    std::size_t plaatjeKolom = 0; // in the middle of this column, from 1
};

/// Makes a header button over a column of a header strip: `naam` and `tekst`, from `vanMm` to
/// `totMm` and as high as the strip.
[[nodiscard]] QPushButton* MaakKopknop(QWidget& strip, const QString& naam, const QString& tekst,
                                       double vanMm, double totMm);

/// Removes header buttons, from the last to the first; places without a button are passed over.
void VerwijderKopknoppen(std::vector<QPushButton*>& knoppen);

/// The body fills its panel; `links` and `boven` say where its logical place is (mm, 0 or less),
/// `breedte` and `hoogte` how large it is (mm).
class TabelLijf : public QWidget {
    Q_OBJECT
    Q_PROPERTY(double links READ links WRITE zetLinks)
    Q_PROPERTY(double boven READ boven WRITE zetBoven)
    Q_PROPERTY(double breedte READ breedte)
    Q_PROPERTY(double hoogte READ hoogte)
public:
    TabelLijf(QWidget* houder, QColor achtergrond);
    TabelLijf(const TabelLijf&) = delete;
    TabelLijf(TabelLijf&&) = delete;
    TabelLijf& operator=(const TabelLijf&) = delete;
    TabelLijf& operator=(TabelLijf&&) = delete;
    ~TabelLijf() override;

    [[nodiscard]] double links() const { return links_; }
    [[nodiscard]] double boven() const { return boven_; }
    [[nodiscard]] double breedte() const { return breedte_; }
    [[nodiscard]] double hoogte() const { return hoogte_; }
    void zetLinks(double mm);
    void zetBoven(double mm);
    void zetMaat(double breedteMm, double hoogteMm);

    /// Draws everything so many times as large, the letters too; the millimetres of this class
    /// stay those of the size 1.
    void zetVergroting(double factor);
    [[nodiscard]] double vergroting() const { return vergroting_; }
    /// Lengths on the screen (logical pixels) and in the table (mm).
    [[nodiscard]] double mm(double pixels) const;
    [[nodiscard]] double pixels(double mm) const;

    /// Replaces what is shown and draws it anew.
    void toon(Tabelbeeld beeld);

    [[nodiscard]] const Tabelbeeld& beeld() const { return beeld_; }

    /// Rows or columns from..to (from 1) of which something is exposed; none when from > to.
    struct Bereik {
        std::size_t van = 1;
        std::size_t tot = 0;

        [[nodiscard]] std::size_t aantal() const { return tot < van ? 0 : tot + 1 - van; }
        [[nodiscard]] bool heeft(std::size_t nummer) const {
            return van <= nummer && nummer <= tot;
        }
    };

    /// The rows of which something is to be seen below the header strip, and the columns.
    [[nodiscard]] Bereik rijenInBeeld() const;
    [[nodiscard]] Bereik kolommenInBeeld() const;

    /// The place of a cell in pixels of the widget; it may lie outside.
    [[nodiscard]] QRectF celVak(std::size_t rij, std::size_t kolom) const;

    /// Whether rows can be marked here, and the row that is, or 0.
    [[nodiscard]] bool markeerbaar() const;
    [[nodiscard]] std::size_t gemarkeerdeRij() const;

    /// The mark was set, moved or taken away: draws it and tells a screen reader.
    void markeringGewijzigd();

    /// Row and column, both from 1.
    struct Cel {
        std::size_t rij;
        std::size_t kolom;
    };
    /// The cell at a point of this control (pixels), if there is one.
    [[nodiscard]] std::optional<Cel> celOp(QPointF punt) const;

    /// The width of a text in mm, as it is drawn.
    [[nodiscard]] double tekstBreedte(const QString& tekst, bool vet) const;
    /// The height of the text "Aa" in mm.
    [[nodiscard]] double tekstHoogte() const;

signals:
    /// A mouse button was pressed at this point of the body (mm).
    void gedrukt(double x, double y);

protected:
    void paintEvent(QPaintEvent* gebeurtenis) override;
    void mousePressEvent(QMouseEvent* gebeurtenis) override;
    void changeEvent(QEvent* gebeurtenis) override;

private:
    /// The rows or columns of which something is exposed.
    [[nodiscard]] Bereik rijenIn(const QRect& vlak) const;
    [[nodiscard]] Bereik kolommenIn(const QRect& vlak) const;
    void tekenLijnen(QPainter& schilder, const QRect& vlak) const;
    void tekenCellen(QPainter& schilder, const QRect& vlak);
    [[nodiscard]] Tekstvoorraad& voorraad(bool vet);
    void tekenStrepen(QPainter& schilder) const;
    void tekenPlaatje(QPainter& schilder) const;
    [[nodiscard]] double px(double xMm) const;
    [[nodiscard]] double py(double yMm) const;

    QColor achtergrond_;
    Tabelbeeld beeld_;
    double vergroting_ = 1;
    int gewonePixels_ = 0; // height of the letters at size 1
    double links_ = 0;
    double boven_ = 0;
    double breedte_ = 0;
    double hoogte_ = 0;
    std::size_t gemeldeRij_ = 0;            // the marked row that a screen reader knows of
    std::unique_ptr<Tekstvoorraad> gewoon_; // made when first drawn
    std::unique_ptr<Tekstvoorraad> vet_;
};

} // namespace lauwerkrans
