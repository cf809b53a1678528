#include "ui/tabellijf.h"

#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

#include "ui/maten.h"
#include "ui/stijl.h"
#include "ui/tekstvoorraad.h"
#include "ui/toegang_raster.h"

namespace lauwerkrans {

using maten::MmNaarPixels;

namespace {
constexpr int knopRanden = 3; // pixels that a header button keeps beside its text
} // namespace

QPushButton* MaakKopknop(QWidget& strip, const QString& naam, const QString& tekst, double vanMm,
                         double totMm) {
    auto* knop = new QPushButton(tekst, &strip);
    knop->setObjectName(naam);
    knop->setFocusPolicy(Qt::NoFocus);
    const auto links = static_cast<int>(std::lround(MmNaarPixels(vanMm)));
    const auto rechts = static_cast<int>(std::lround(MmNaarPixels(totMm)));
    knop->setGeometry(links, 0, rechts - links, strip.height());
    knop->setFont(Versmald(knop->font(), [&](const QFont& letters) {
        return QFontMetrics(letters).horizontalAdvance(tekst) <= knop->width() - knopRanden;
    }));
    knop->show();
    return knop;
}

void VerwijderKopknoppen(std::vector<QPushButton*>& knoppen) {
    while (!knoppen.empty()) {
        delete knoppen.back();
        knoppen.pop_back();
    }
}

TabelLijf::TabelLijf(QWidget* houder, QColor achtergrond)
    : QWidget(houder), achtergrond_(achtergrond), gewonePixels_(font().pixelSize()) {
    InstalleerRasterToegang();
}

TabelLijf::~TabelLijf() = default;

double TabelLijf::mm(double pixels) const { return maten::PixelsNaarMm(pixels) / vergroting_; }
double TabelLijf::pixels(double mm) const { return MmNaarPixels(mm) * vergroting_; }
double TabelLijf::px(double xMm) const { return pixels(xMm + links_); }
double TabelLijf::py(double yMm) const { return pixels(yMm + boven_); }

void TabelLijf::zetVergroting(double factor) {
    vergroting_ = factor;
    QFont letters = font();
    letters.setPixelSize(static_cast<int>(std::lround(gewonePixels_ * factor)));
    setFont(letters);
    update();
}

void TabelLijf::zetLinks(double mm) {
    links_ = mm;
    update();
}

void TabelLijf::zetBoven(double mm) {
    boven_ = mm;
    update();
}

void TabelLijf::zetMaat(double breedteMm, double hoogteMm) {
    breedte_ = breedteMm;
    hoogte_ = hoogteMm;
    update();
}

void TabelLijf::toon(Tabelbeeld beeld) {
    beeld_ = std::move(beeld);
    update();
    MeldAndereTabel(*this);
}

TabelLijf::Bereik TabelLijf::rijenInBeeld() const {
    const auto strip = static_cast<int>(std::ceil(pixels(rooster::kopHoogte)));
    return rijenIn(rect().adjusted(0, strip, 0, 0));
}

TabelLijf::Bereik TabelLijf::kolommenInBeeld() const { return kolommenIn(rect()); }

QRectF TabelLijf::celVak(std::size_t rij, std::size_t kolom) const {
    const double boven = rooster::kopHoogte + rooster::rijHoogte * (static_cast<double>(rij) - 1);
    const double links = beeld_.x.at(kolom - 1);
    return {QPointF(px(links), py(boven)),
            QPointF(px(beeld_.x.at(kolom)), py(boven + rooster::rijHoogte))};
}

bool TabelLijf::markeerbaar() const {
    return findChild<Streep*>(QString(), Qt::FindDirectChildrenOnly) != nullptr;
}

/// The line above the marked row is the first one; a band above the first row is none.
std::size_t TabelLijf::gemarkeerdeRij() const {
    const auto* streep = findChild<Streep*>(QString(), Qt::FindDirectChildrenOnly);
    if (streep == nullptr || !streep->zichtbaar) return 0;
    const double rij = std::round((streep->y1 - rooster::kopHoogte) / rooster::rijHoogte) + 1;
    return rij >= 1 && rij <= static_cast<double>(beeld_.rijen) ? static_cast<std::size_t>(rij) : 0;
}

void TabelLijf::markeringGewijzigd() {
    update();
    const std::size_t rij = gemarkeerdeRij();
    if (rij != gemeldeRij_) MeldMarkering(*this, std::exchange(gemeldeRij_, rij));
}

double TabelLijf::tekstBreedte(const QString& tekst, bool vet) const {
    QFont letters = font();
    letters.setBold(vet);
    return mm(QFontMetricsF(letters).horizontalAdvance(tekst));
}

double TabelLijf::tekstHoogte() const { return mm(QFontMetricsF(font()).height()); }

void TabelLijf::mousePressEvent(QMouseEvent* gebeurtenis) {
    const QPointF punt = gebeurtenis->position();
    const double x = mm(punt.x()) - links_;
    const double y = mm(punt.y()) - boven_;
    if (x < breedte_ && y < hoogte_) emit gedrukt(x, y); // beside it lies the panel
}

std::optional<TabelLijf::Cel> TabelLijf::celOp(QPointF punt) const {
    const double x = mm(punt.x()) - links_;
    const double rij =
        std::floor((mm(punt.y()) - boven_ - rooster::kopHoogte) / rooster::rijHoogte);
    if (rij < 0 || rij >= static_cast<double>(beeld_.rijen)) return std::nullopt;
    if (x < beeld_.x.front() || x >= beeld_.x.back()) return std::nullopt;
    const auto volgende = std::upper_bound(beeld_.x.begin(), beeld_.x.end(), x);
    return Cel{static_cast<std::size_t>(rij) + 1,
               static_cast<std::size_t>(volgende - beeld_.x.begin())};
}

TabelLijf::Bereik TabelLijf::rijenIn(const QRect& vlak) const {
    const auto rij = [this](int y) {
        return std::floor((mm(y) - boven_ - rooster::kopHoogte) / rooster::rijHoogte);
    };
    const double van = std::max(rij(vlak.top()), 0.0) + 1;
    const double tot = std::min(rij(vlak.bottom() + 1) + 1, static_cast<double>(beeld_.rijen));
    if (tot < van) return {};
    return {static_cast<std::size_t>(van), static_cast<std::size_t>(tot)};
}

TabelLijf::Bereik TabelLijf::kolommenIn(const QRect& vlak) const {
    const auto& x = beeld_.x;
    const double van = mm(vlak.left()) - links_;
    const double tot = mm(vlak.right() + 1) - links_;
    const auto eerste = std::upper_bound(x.begin(), x.end(), van) - x.begin();
    const auto laatste = std::lower_bound(x.begin(), x.end(), tot) - x.begin();
    const auto kolommen = static_cast<std::ptrdiff_t>(x.size()) - 1;
    return {static_cast<std::size_t>(std::max<std::ptrdiff_t>(eerste, 1)),
            static_cast<std::size_t>(std::min(laatste, kolommen))};
}

void TabelLijf::paintEvent(QPaintEvent* gebeurtenis) {
    QPainter schilder(this);
    const QRect vlak = gebeurtenis->rect();
    const QRectF lijf(px(0), py(0), pixels(breedte_), pixels(hoogte_));
    schilder.fillRect(lijf.intersected(QRectF(vlak)), achtergrond_);
    tekenLijnen(schilder, vlak);
    tekenCellen(schilder, vlak);
    tekenStrepen(schilder);
    if (!beeld_.plaatje.isNull()) tekenPlaatje(schilder);
}

void TabelLijf::tekenPlaatje(QPainter& schilder) const {
    constexpr double tussenruimte = 3; // pixels
    const QSizeF maat = beeld_.plaatje.deviceIndependentSize();
    const double links = beeld_.x.at(beeld_.plaatjeKolom - 1);
    const double rechts = beeld_.x.at(beeld_.plaatjeKolom);
    const double boven = pixels(hoogte_) + tussenruimte;
    if (boven + maat.height() > height()) return;
    const QPointF plaats(px((links + rechts) / 2) - maat.width() / 2, boven);
    schilder.drawPixmap(plaats, beeld_.plaatje);
}

/// The highlight lines, red, two pixels from their y downwards.
void TabelLijf::tekenStrepen(QPainter& schilder) const {
    constexpr double dikte = 2;
    for (const Streep* streep : findChildren<Streep*>(Qt::FindDirectChildrenOnly)) {
        if (!streep->zichtbaar) continue;
        const double y = std::round(py(streep->y1));
        TrekLijn(schilder, {std::round(px(streep->x1)), y}, {std::round(px(streep->x2)), y},
                 Schermkleur(kleuren::rood, QPalette::Highlight), dikte);
    }
}

void TabelLijf::tekenLijnen(QPainter& schilder, const QRect& vlak) const {
    const auto lijn = [&](double x1, double y1, double x2, double y2) {
        TrekLijn(schilder, {std::round(x1), std::round(y1)}, {std::round(x2), std::round(y2)},
                 beeld_.lijnKleur);
    };
    const double tabelBreedte = beeld_.x.size() > 1 ? beeld_.x.back() : breedte_;
    const double eerste =
        std::floor((mm(vlak.top()) - boven_ - rooster::kopHoogte) / rooster::rijHoogte);
    for (auto k = static_cast<std::size_t>(std::max(eerste, 0.0)); k < beeld_.lijnen; ++k) {
        const double y = rooster::kopHoogte + rooster::rijHoogte * static_cast<double>(k);
        if (py(y) > vlak.bottom() + 1) break;
        lijn(px(rooster::zijMarge), py(y), px(tabelBreedte), py(y));
    }
    if (beeld_.x.size() < 2) return;
    const double onder =
        rooster::kopHoogte + rooster::rijHoogte * static_cast<double>(beeld_.rijen) + 0.1;
    const double van = std::max(py(rooster::kopHoogte), static_cast<double>(vlak.top()));
    const double tot = std::min(py(onder), static_cast<double>(vlak.bottom()) + 1);
    const Bereik kolommen = kolommenIn(vlak);
    for (std::size_t i = kolommen.van; i <= kolommen.tot + 1; ++i) {
        if (van < tot) lijn(px(beeld_.x.at(i - 1)), van, px(beeld_.x[i - 1]), tot);
    }
}

void TabelLijf::tekenCellen(QPainter& schilder, const QRect& vlak) {
    const Bereik rijen = rijenIn(vlak);
    const Bereik kolommen = kolommenIn(vlak);
    const double marge = (rooster::rijHoogte - tekstHoogte()) / 2;
    for (std::size_t kolom = kolommen.van; kolom <= kolommen.tot; ++kolom) {
        const double midden = px((beeld_.x[kolom - 1] + beeld_.x[kolom]) / 2);
        for (std::size_t rij = rijen.van; rij <= rijen.tot; ++rij) {
            const Celbeeld cel = beeld_.cel(rij, kolom);
            if (cel.tekst.isEmpty()) continue;
            const double boven =
                rooster::kopHoogte + marge + rooster::rijHoogte * static_cast<double>(rij - 1);
            schilder.setPen(cel.kleur);
            voorraad(cel.vet).teken(schilder, midden, py(boven), cel.tekst);
        }
    }
}

/// The texts in the body's present font.
Tekstvoorraad& TabelLijf::voorraad(bool vet) {
    std::unique_ptr<Tekstvoorraad>& voorraad = vet ? vet_ : gewoon_;
    if (!voorraad) {
        QFont letters = font();
        letters.setBold(vet);
        voorraad = std::make_unique<Tekstvoorraad>(letters);
    }
    return *voorraad;
}

void TabelLijf::changeEvent(QEvent* gebeurtenis) {
    if (gebeurtenis->type() == QEvent::FontChange) {
        gewoon_.reset();
        vet_.reset();
    }
    QWidget::changeEvent(gebeurtenis);
}

} // namespace lauwerkrans
