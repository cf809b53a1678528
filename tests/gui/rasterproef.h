// A started window over a small competition, with the parts of its result grid.
#pragma once

#include <gtest/gtest.h>

#include "vensterproef.h"

namespace lauwerkrans::proef {

class GestartVenster : public ::testing::Test {
protected:
    GestartVenster() : proef(1, 1, 1) {
        proef.competitie.schrijfLeden(9, {});
        proef.start();
    }

    Vensterproef proef;
};

class RasterProef : public GestartVenster {
protected:
    void toon(const std::shared_ptr<const Lijst>& lijst) const { proef.toon(lijst); }
    /// The size of the viewport inside its border (mm).
    [[nodiscard]] double zichtBreedte() const { return P20.contentsRect().width() * 25.4 / 96; }
    [[nodiscard]] double zichtHoogte() const { return P20.contentsRect().height() * 25.4 / 96; }

    QFrame& P20 = proef.vind<QFrame>("P20");
    TabelLijf& P21 = proef.vind<TabelLijf>("P21");
    QFrame& P22 = proef.vind<QFrame>("P22");
    QScrollBar& VScroll20 = proef.vind<QScrollBar>("VScroll20");
    QScrollBar& HScroll20 = proef.vind<QScrollBar>("HScroll20");
};

} // namespace lauwerkrans::proef
