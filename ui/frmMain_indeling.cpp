// The layout rules of the main window, in twips of its client area. They run on every resize, in
// this order.
#include "ui/frmMain.h"
#include "ui/ontwerp.h"

namespace lauwerkrans {

namespace {

constexpr double marge = 100;

/// Changes the place of one control.
template <class Wijzig>
Vak Verplaats(const QWidget& venster, const char* naam, Wijzig wijzig) {
    auto* element = Vind<QWidget>(venster, naam);
    Vak vak = maten::PlaatsVan(*element);
    wijzig(vak);
    maten::Plaats(*element, vak);
    return vak;
}

} // namespace

void frmMain::deelIn() {
    const double binnenHoogte = maten::PixelsNaarTwips(height());
    const double binnenBreedte = maten::PixelsNaarTwips(width());
    const auto verplaats = [this](const char* naam, auto wijzig) {
        return Verplaats(*this, naam, wijzig);
    };

    const Vak frame4 =
        verplaats("Frame4", [&](Vak& vak) { vak.boven = binnenHoogte - vak.hoogte - marge; });
    verplaats("Frame5", [&](Vak& vak) { vak.boven = frame4.boven; });
    const Vak einde = verplaats("cmdEinde", [&](Vak& vak) {
        vak.boven = binnenHoogte - vak.hoogte - marge;
        vak.links = binnenBreedte - vak.breedte - marge;
    });
    verplaats("cmdToelichting", [&](Vak& vak) {
        vak.boven = einde.boven - 700;
        vak.links = einde.links;
    });
    const Vak p20 = verplaats("P20", [&](Vak& vak) {
        vak.breedte = binnenBreedte - vak.links - rooster::schuifDikte - marge;
        vak.hoogte = frame4.boven - vak.boven - rooster::schuifDikte - 50;
    });
    verplaats("VScroll20", [&](Vak& vak) {
        vak.hoogte = p20.hoogte;
        vak.links = p20.links + p20.breedte;
    });
    verplaats("HScroll20", [&](Vak& vak) {
        vak.boven = p20.boven + p20.hoogte;
        vak.breedte = p20.breedte;
    });
    raster_->pasAan();
    const Vak frame2 =
        verplaats("Frame2", [&](Vak& vak) { vak.boven = binnenHoogte - vak.hoogte - marge; });
    const Vak frame3 =
        verplaats("Frame3", [&](Vak& vak) { vak.hoogte = frame2.boven - vak.boven - marge; });
    const Vak label5 =
        verplaats("Label5", [&](Vak& vak) { vak.boven = frame3.hoogte - vak.hoogte - marge; });
    const Vak p0 = verplaats(
        "P0", [&](Vak& vak) { vak.hoogte = frame3.hoogte - vak.boven - label5.hoogte - 200; });
    verplaats("VScroll1", [&](Vak& vak) { vak.hoogte = p0.hoogte; });
    rijen_->pasAan();
}

} // namespace lauwerkrans
