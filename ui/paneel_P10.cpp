#include "ui/paneel_P10.h"

#include <array>
#include <cmath>
#include <utility>

#include "ui/maten.h"
#include "ui/ontwerp.h"
#include "ui/pictogram.h"
#include "ui/schuiver.h"
#include "ui/stijl.h"

namespace lauwerkrans {

using maten::MmNaarPixels;
using maten::PixelsNaarMm;

namespace {

struct Kolom {
    const char* kop;
    double breedte; // mm
};

constexpr std::array<Kolom, 4> kolommen = {
    {{"Ronde", 10}, {"Zittingen", 13}, {"---", 20}, {"met Perc", 12}}};

constexpr int plaatjeMaat = 32; // pixels
constexpr std::size_t plaatjeKolom = 3;

std::vector<double> KolomPosities() {
    std::vector<double> x = {0};
    for (const Kolom& kolom : kolommen)
        x.push_back(x.back() + kolom.breedte);
    return x;
}

} // namespace

PaneelP10::PaneelP10(QWidget& venster)
    : QObject(&venster), P10(Vind<QFrame>(venster, "P10")), P12(Vind<QFrame>(venster, "P12")),
      P11(Vind<TabelLijf>(venster, "P11")), cmd10_0(Vind<QPushButton>(venster, "cmd10_0")),
      VScroll10(Vind<QScrollBar>(venster, "VScroll10")) {
    connect(VScroll10, &QScrollBar::sliderMoved, this, &PaneelP10::SubVscroll10_CS);
    connect(VScroll10, &QScrollBar::valueChanged, this, &PaneelP10::SubVscroll10_CH);
    new Schuiver(*P11, *VScroll10, nullptr);
    P11->lower(); // below the header strip
}

double PaneelP10::zichtBreedte() const { return PixelsNaarMm(P10->contentsRect().width()); }
double PaneelP10::zichtHoogte() const { return PixelsNaarMm(P10->contentsRect().height()); }

void PaneelP10::InitP10() {
    const Vak vak = {300, 600, 3650, 1700};
    maten::Plaats(*P10, vak);
    maten::Plaats(*VScroll10,
                  {vak.links + vak.breedte, vak.boven, rooster::schuifDikte, vak.hoogte});
    // Twips taken for millimetres: larger than the viewport until the first filling or emptying.
    P11->zetMaat(vak.breedte - 500, vak.hoogte - 500);
    VScroll10->setSingleStep(250);
    VScroll10->setPageStep(2000);
    VScroll10->setRange(0, maten::SchuifMaximum(P11->hoogte(), vak.hoogte, 80));
    zetSchuifAan();
    cmd10_0->hide();
    cmd10_0->move(0, 0);
}

/// A table that scrolls can be reached with the Tab key; one that fits needs no stop there.
void PaneelP10::zetSchuifAan() {
    const bool schuift = VScroll10->maximum() > 0;
    VScroll10->setEnabled(schuift);
    P11->setFocusPolicy(schuift ? Qt::StrongFocus : Qt::ClickFocus);
}

void PaneelP10::ToonP10_leeg() {
    cmd10_0->hide();
    VerwijderKopknoppen(cmd10_);
    P11->setGeometry(P10->contentsRect());
    P11->zetMaat(zichtBreedte(), zichtHoogte());
    zetStrip(rooster::kopHoogte);
    Tabelbeeld beeld;
    beeld.lijnKleur = Schermkleur(kleuren::rasterLeeg, QPalette::Text);
    beeld.lijnen = static_cast<std::size_t>(P11->hoogte() / rooster::rijHoogte);
    P11->toon(std::move(beeld));
}

void PaneelP10::Toon_in_P10(const RondeInfo& rondeInfo) {
    cmd10_0->hide();
    VerwijderKopknoppen(cmd10_);
    Tabelbeeld beeld;
    beeld.x = KolomPosities();
    beeld.rijen = rondeInfo.ronden();
    beeld.lijnen = beeld.rijen + 1;
    beeld.lijnKleur = Schermkleur(kleuren::rasterGevuld, QPalette::Text);
    beeld.cel = [rondeInfo](std::size_t rij, std::size_t kolom) {
        const std::string tekst = rondeInfo.cel(rij, kolom);
        return Celbeeld{tekst == "0" ? QString() : QString::fromStdString(tekst), false,
                        Schermkleur(kleuren::zwart, QPalette::Text)};
    };
    beeld.kop = [](std::size_t kolom) { return QString::fromLatin1(kolommen.at(kolom - 1).kop); };
    beeld.kopknop = [this](std::size_t kolom) { return cmd10_.at(kolom - 1); };
    beeld.plaatje = Krans(plaatjeMaat * 2); // sharp up to twice the size
    beeld.plaatje.setDevicePixelRatio(2);
    beeld.plaatjeKolom = plaatjeKolom;
    P11->zetMaat(beeld.x.back() + 2 * rooster::zijMarge,
                 rooster::rijHoogte * static_cast<double>(beeld.rijen) + rooster::kopHoogte +
                     rooster::onderMarge);
    VScroll10->setMaximum(
        maten::SchuifMaximum(P11->hoogte() + rooster::schuifMarge, zichtHoogte(), 0));
    zetSchuifAan();
    VScroll10->setValue(0);
    zetStrip(rooster::kopHoogte + 0.4);
    for (std::size_t i = 1; i <= kolommen.size(); ++i) {
        cmd10_.push_back(MaakKopknop(*P12, QStringLiteral("cmd10_%1").arg(i),
                                     QString::fromLatin1(kolommen.at(i - 1).kop), beeld.x[i - 1],
                                     beeld.x[i]));
    }
    P11->toon(std::move(beeld));
}

void PaneelP10::zetStrip(double hoogteMm) {
    const QPoint begin = P10->contentsRect().topLeft();
    P12->setGeometry(begin.x(), begin.y(),
                     static_cast<int>(std::lround(MmNaarPixels(P11->breedte()))),
                     static_cast<int>(std::lround(MmNaarPixels(hoogteMm))));
}

void PaneelP10::SubVscroll10_CS(int waarde) { P11->zetBoven(-waarde); }
void PaneelP10::SubVscroll10_CH(int waarde) { P11->zetBoven(-waarde); }

} // namespace lauwerkrans
