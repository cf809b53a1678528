// A window as a table: every control with its kind, container, place, caption and colours. One
// function makes the controls of a table.
#pragma once

#include <QWidget>

#include <span>
#include <string_view>

#include "ui/maten.h"

namespace lauwerkrans {

enum class Soort {
    Kader,
    Knop,
    Lijst,
    Paneel,
    Tabel, // the body of a scrolling panel
    Label,
    KopLabel, // one line that shrinks, then is cut short
    Tekstvak,
    Criterium,
    Vinkje,
    SchuifVerticaal,
    SchuifHorizontaal,
    Streep,
    Dialoog,
};

/// Bits of Ontwerp::trek.
enum Trek : unsigned {
    Gewoon = 0,
    Vet = 1U << 0U,
    Midden = 1U << 1U,
    Blauw = 1U << 2U, // text; a frame's caption only
    Rood = 1U << 3U,  // text
    Groot = 1U << 4U, // 12 points instead of 8.25
    Rand = 1U << 5U,  // thin border
    Verborgen = 1U << 6U,
};

/// Backgrounds; the window's own when none is named.
enum class Vlak { Geen, Geel, LichtGroen, Groen, ActieveRand, Wit };

/// One row of a table. The places are twips in the container.
struct Ontwerp {
    Soort soort;
    const char* naam;   // objectName; "_0" for the template element of a control array
    const char* houder; // the container's name; empty for the window
    Vak plaats;
    const char* bijschrift = "";
    unsigned trek = Gewoon;
    Vlak vlak = Vlak::Geen;
    const char* hint = "";
};

/// Makes the controls of a table in its order, each a child of its container.
void MaakElementen(QWidget& venster, std::span<const Ontwerp> tabel);

/// Makes one more element of a control array: as the template row says, with its own name.
QWidget* MaakElement(QWidget& houder, const Ontwerp& ontwerp, const QString& naam);

/// Finds a control of a window by name; the table must have it.
template <class Element>
[[nodiscard]] Element* Vind(const QWidget& venster, const char* naam) {
    auto* element = venster.findChild<Element*>(QString::fromLatin1(naam));
    Q_ASSERT_X(element != nullptr, "Vind", naam);
    return element;
}

} // namespace lauwerkrans
