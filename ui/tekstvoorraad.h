// The texts of a table, laid out and ready to be drawn again: while a table scrolls most of what it
// draws stood there before.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QStaticText>
#include <QString>

#include <cstddef>
#include <unordered_map>

namespace lauwerkrans {

/// Texts in one font and one weight.
class Tekstvoorraad {
public:
    explicit Tekstvoorraad(const QFont& letters) : letters_(letters), maat_(letters) {}

    [[nodiscard]] const QFont& letters() const { return letters_; }

    /// Draws a text with its middle at x = `midden` and its upper edge near y = `boven`: so that
    /// its baseline lies on a whole logical pixel.
    void teken(QPainter& schilder, double midden, double boven, const QString& tekst);

    /// The number of texts that are kept.
    [[nodiscard]] std::size_t aantal() const { return zetsels_.size(); }

    /// More than the cells of a screen full of small columns; some megabytes.
    static constexpr std::size_t meeste = 16'384;

private:
    /// A text as it is set, and what it takes of the line: letters that lean over it not counted.
    struct Zetsel {
        QStaticText tekst;
        double breedte;
    };

    [[nodiscard]] const Zetsel& zetsel(const QString& tekst);

    QFont letters_;
    QFontMetricsF maat_;
    std::unordered_map<QString, Zetsel> zetsels_;
};

} // namespace lauwerkrans
