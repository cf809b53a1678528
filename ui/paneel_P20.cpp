#include "ui/paneel_P20.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <unordered_map>
#include <utility>

#include "ui/frmMain_ontwerp.h"
#include "ui/maten.h"
#include "ui/raster_zoom.h"
#include "ui/schuiver.h"
#include "ui/stijl.h"

namespace lauwerkrans {

namespace {

constexpr int kleineStap = 40; // of both scroll bars, mm
constexpr int groteStap = 150;

/// The column positions of a list: each column as wide as its widest text, header or cell, plus a
/// margin on both sides.
std::vector<double> KolomPosities(const Lijst& lijst, const TabelLijf& lijf) {
    std::array<std::unordered_map<std::string, double>, 2> bekend; // by shape; plain and bold
    const Meter meet = [&](const std::string& tekst, bool vet) {
        const auto [plaats, nieuw] = bekend.at(vet ? 1 : 0).try_emplace(Vorm(tekst), 0.0);
        if (nieuw) plaats->second = lijf.tekstBreedte(QString::fromStdString(tekst), vet);
        return plaats->second;
    };
    std::vector<double> x = {rooster::zijMarge};
    for (std::size_t kolom = 1; kolom <= lijst.kolommen(); ++kolom) {
        const double breedte =
            std::max(lijst.breedsteCel(kolom, meet), meet(lijst.koppen()[kolom - 1], false));
        x.push_back(x.back() + breedte + 2 * rooster::tekstMarge);
    }
    return x;
}

} // namespace

PaneelP20::PaneelP20(QWidget& venster)
    : QObject(&venster), P20(Vind<QFrame>(venster, "P20")), P22(Vind<QFrame>(venster, "P22")),
      P21(Vind<TabelLijf>(venster, "P21")), Line20(Vind<Streep>(venster, "Line20")),
      Line21(Vind<Streep>(venster, "Line21")), cmd20_0(Vind<QPushButton>(venster, "cmd20_0")),
      VScroll20(Vind<QScrollBar>(venster, "VScroll20")),
      HScroll20(Vind<QScrollBar>(venster, "HScroll20")) {
    connect(VScroll20, &QScrollBar::sliderMoved, this, &PaneelP20::SubVscroll20_CS);
    connect(VScroll20, &QScrollBar::valueChanged, this, &PaneelP20::SubVscroll20_CH);
    connect(HScroll20, &QScrollBar::sliderMoved, this, &PaneelP20::SubHScroll20_CS);
    connect(HScroll20, &QScrollBar::valueChanged, this, &PaneelP20::SubHScroll20_CH);
    connect(P21, &TabelLijf::gedrukt, this, [this](double x, double y) {
        if (lijst_) AccentueerRegel(x, y);
    });
    P21->setFocusPolicy(Qt::StrongFocus);
    P21->installEventFilter(this);
    new Schuiver(*P21, *VScroll20, HScroll20);
    new RasterZoom(venster, {P20, P21, P22, VScroll20, HScroll20},
                   [this](int procent) { zetVergroting(procent); });
    P21->lower(); // below the header strip
}

double PaneelP20::zichtBreedte() const { return P21->mm(P20->contentsRect().width()); }
double PaneelP20::zichtHoogte() const { return P21->mm(P20->contentsRect().height()); }

void PaneelP20::InitP20() {
    const QWidget& venster = *P20->window();
    const Vak frame1 = maten::PlaatsVan(*Vind<QWidget>(venster, "Frame1"));
    const Vak frame4 = maten::PlaatsVan(*Vind<QWidget>(venster, "Frame4"));
    const double links = frame1.links + frame1.breedte + 100;
    const double boven = 350;
    const double breedte =
        maten::PixelsNaarTwips(venster.width()) - links - rooster::schuifDikte - 100;
    const double hoogte = frame4.boven - boven - rooster::schuifDikte - 50;
    maten::Plaats(*P20, {links, boven, breedte, hoogte});
    maten::Plaats(*VScroll20, {links + breedte, boven, rooster::schuifDikte, hoogte});
    // 20 higher than the layout rules put it.
    maten::Plaats(*HScroll20, {links, boven + hoogte - 20, breedte, rooster::schuifDikte});
    // Twips taken for millimetres: larger than any viewport until the first filling or emptying.
    P21->zetMaat(breedte - 500, hoogte - 500);
    for (QScrollBar* schuif : {VScroll20, HScroll20}) {
        schuif->setSingleStep(kleineStap);
        schuif->setPageStep(groteStap);
        schuif->setRange(static_cast<int>(rooster::schuifMarge), 0);
        schuif->setEnabled(false);
    }
    cmd20_0->hide();
    cmd20_0->move(0, 0);
}

void PaneelP20::ToonP20_leeg() {
    verbergMarkering();
    cmd20_0->hide();
    Verw_Headers();
    lijst_.reset();
    P21->setAccessibleName(QStringLiteral("Resultaat"));
    pasAan();
    HScroll20->setValue(0);
    VScroll20->setValue(0);
}

void PaneelP20::Verw_Headers() {
    VerwijderKopknoppen(cmd20_);
    metKnop_ = {};
}

void PaneelP20::toon(std::shared_ptr<const Lijst> lijst, Tabelbeeld beeld) {
    vul(std::move(lijst), std::move(beeld));
    HScroll20->setValue(0);
    VScroll20->setValue(0);
}

/// The widths of the columns hang on the letters, which have whole pixels; so the scroll position
/// is that of a column and no number of millimetres.
void PaneelP20::zetVergroting(int procent) {
    const std::size_t kolom = P21->kolommenInBeeld().van - 1;
    const double voorbij = HScroll20->value() - P21->beeld().x.at(kolom);
    const double factor = procent / 100.0;
    P21->zetVergroting(factor);
    P22->setFont(P21->font());
    for (QScrollBar* schuif : {VScroll20, HScroll20}) {
        schuif->setSingleStep(static_cast<int>(std::lround(kleineStap / factor)));
        schuif->setPageStep(static_cast<int>(std::lround(groteStap / factor)));
    }
    if (!lijst_) {
        pasAan();
        return;
    }
    vul(lijst_, beeldVan(lijst_));
    HScroll20->setValue(static_cast<int>(std::lround(P21->beeld().x.at(kolom) + voorbij)));
}

void PaneelP20::vul(std::shared_ptr<const Lijst> lijst, Tabelbeeld beeld) {
    std::vector<QPushButton*> knoppen(lijst->kolommen()); // may fail, so before all else
    Verw_Headers();
    lijst_ = std::move(lijst);
    cmd20_ = std::move(knoppen);
    tabelBreedte_ = beeld.x.back();
    const double hoogte = rooster::rijHoogte * static_cast<double>(beeld.rijen) +
                          rooster::kopHoogte + rooster::onderMarge;
    P21->zetMaat(tabelBreedte_, hoogte);
    P21->setAccessibleName(QString::fromStdString(lijst_->titel()));
    P21->toon(std::move(beeld));
    LijnBr_Aanpassen();
    pasAan();
}

Tabelbeeld PaneelP20::leegBeeld() const {
    Tabelbeeld beeld;
    beeld.lijnKleur = Schermkleur(kleuren::rasterLeeg, QPalette::Text);
    beeld.lijnen = static_cast<std::size_t>(zichtHoogte() / rooster::rijHoogte);
    return beeld;
}

Tabelbeeld PaneelP20::beeldVan(const std::shared_ptr<const Lijst>& lijst) const {
    Tabelbeeld beeld;
    beeld.x = KolomPosities(*lijst, *P21);
    beeld.rijen = lijst->rijen();
    beeld.lijnen = beeld.rijen + 1;
    beeld.lijnKleur = Schermkleur(kleuren::rasterGevuld, QPalette::Text);
    beeld.cel = [lijst](std::size_t rij, std::size_t kolom) {
        const bool vet = lijst->vet(kolom);
        return Celbeeld{QString::fromStdString(lijst->cel(rij, kolom)), vet,
                        vet ? LijnKleur(lijst->lijn(rij))
                            : Schermkleur(kleuren::zwart, QPalette::Text)};
    };
    beeld.uitleg = [lijst](std::size_t rij, std::size_t kolom) {
        return QString::fromStdString(lijst->uitleg(rij, kolom));
    };
    beeld.kop = [lijst](std::size_t kolom) {
        return QString::fromStdString(lijst->koppen()[kolom - 1]);
    };
    beeld.kopknop = [this](std::size_t kolom) { return cmd20_.at(kolom - 1); };
    return beeld;
}

void PaneelP20::pasAan() {
    P21->setGeometry(P20->contentsRect());
    if (!lijst_) {
        tabelBreedte_ = zichtBreedte();
        P21->zetMaat(tabelBreedte_, zichtHoogte());
        P21->toon(leegBeeld());
    }
    zetSchuiven();
    plaatsStrip();
}

void PaneelP20::zetSchuiven() {
    // One millimetre more below the content, two more beside it.
    VScroll20->setMaximum(
        maten::SchuifMaximum(P21->hoogte() + rooster::schuifMarge, zichtHoogte(), 1));
    HScroll20->setMaximum(
        maten::SchuifMaximum(P21->breedte() + rooster::schuifMarge, zichtBreedte(), 2));
    VScroll20->setEnabled(VScroll20->maximum() > 0);
    HScroll20->setEnabled(HScroll20->maximum() > 0);
}

void PaneelP20::plaatsStrip() {
    const QRect binnen = P20->contentsRect();
    const auto rond = [this](double mm) { return static_cast<int>(std::lround(P21->pixels(mm))); };
    P22->setGeometry(binnen.left() + rond(P21->links()), binnen.top(), rond(P21->breedte()),
                     rond(rooster::kopHoogte));
    maakKnoppen();
}

/// Gives the exposed columns their buttons and takes those of the others away: thousands of
/// controls would slow every step down.
void PaneelP20::maakKnoppen() {
    TabelLijf::Bereik zichtbaar = P21->kolommenInBeeld();
    zichtbaar.tot = std::min(zichtbaar.tot, cmd20_.size());
    const auto& x = P21->beeld().x;
    const double vergroting = P21->vergroting();
    for (std::size_t i = metKnop_.van; i <= metKnop_.tot; ++i) {
        if (!zichtbaar.heeft(i)) delete std::exchange(cmd20_[i - 1], nullptr);
    }
    for (std::size_t i = zichtbaar.van; i <= zichtbaar.tot; ++i) {
        if (cmd20_[i - 1] != nullptr) continue;
        cmd20_[i - 1] = MaakKopknop(*P22, QStringLiteral("cmd20_%1").arg(i),
                                    QString::fromStdString(lijst_->koppen()[i - 1]),
                                    x[i - 1] * vergroting, x[i] * vergroting);
    }
    metKnop_ = zichtbaar;
}

void PaneelP20::SubVscroll20_CS(int waarde) { P21->zetBoven(-waarde); }
void PaneelP20::SubVscroll20_CH(int waarde) { P21->zetBoven(-waarde); }

void PaneelP20::SubHScroll20_CS(int waarde) {
    P21->zetLinks(-waarde);
    plaatsStrip();
}

void PaneelP20::SubHScroll20_CH(int waarde) { SubHScroll20_CS(waarde); }

} // namespace lauwerkrans
