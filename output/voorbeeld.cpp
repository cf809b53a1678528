#include "output/voorbeeld.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

#include "output/afdruk.h"
#include "output/bladindeling_tekst.h"
#include "output/toegang_blad.h"
#include "ui/focusrand.h"
#include "ui/maten.h"
#include "ui/ontwerp.h"
#include "ui/stijl.h"

namespace lauwerkrans {

namespace {

constexpr int schaduw = 4;                        // pixels that the shadow sticks out
constexpr int regelStap = 20;                     // pixels
constexpr double normaal = 1 / maten::mmPerPixel; // pixels per millimetre at 100 %

/// Where a page of this length lies in a box: in the middle, or at minus the scroll value.
int Begin(int box, int lengte, int schuif) { return lengte > box ? -schuif : (box - lengte) / 2; }

void ZetSchuif(QScrollBar& schuif, int inhoud, int zicht) {
    const int hoogste = std::max(0, inhoud - zicht);
    schuif.setRange(0, hoogste);
    schuif.setPageStep(zicht);
    schuif.setSingleStep(regelStap);
    schuif.setEnabled(hoogste > 0);
}

} // namespace

BladVlak::BladVlak(QWidget* picP0) : QWidget(picP0) {
    setObjectName(QStringLiteral("P1"));
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    InstalleerBladToegang();
    setToolTip(QStringLiteral("Klik om het blad groter of kleiner te zien"));
}

void BladVlak::toon(std::shared_ptr<const Bladen> bladen, std::size_t nummer) {
    const std::optional<QString> gelezen = std::exchange(tekst_, std::nullopt);
    bladen_ = std::move(bladen);
    nummer_ = nummer;
    update();
    setAccessibleName(
        QStringLiteral("Afdrukvoorbeeld, pagina %1 van %2").arg(nummer_).arg(bladen_->aantal()));
    if (gelezen) MeldAnderBlad(*this, *gelezen); // else nobody reads the pages
}

const QString& BladVlak::tekst() const {
    if (!tekst_) {
        const Blad blad = bladen_ ? bladen_->blad(nummer_, MeetBladtekst) : Blad();
        tekst_ = QString::fromStdString(BladAlsTekst(blad));
    }
    return *tekst_;
}

void BladVlak::zetSchaal(double schaal) {
    schaal_ = schaal;
    resize(qRound(bladmaat::bladBreedte * schaal), qRound(bladen_->hoogte() * schaal));
    update();
}

void BladVlak::paintEvent(QPaintEvent* gebeurtenis) {
    QPainter schilder(this);
    const QRect deel = gebeurtenis->rect();
    schilder.fillRect(deel, Qt::white); // paper, in high contrast too
    const Uitsnede gezien{deel.top() / schaal_, (deel.bottom() + 1) / schaal_};
    TekenBlad(schilder, bladen_->blad(nummer_, MeetBladtekst, gezien), schaal_);
    TrekRand(schilder, rect(), kleuren::rand);
}

void BladVlak::mousePressEvent(QMouseEvent* gebeurtenis) {
    if (gebeurtenis->button() == Qt::LeftButton) emit geklikt();
}

void BladVlak::keyPressEvent(QKeyEvent* gebeurtenis) {
    switch (gebeurtenis->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit geklikt();
        break;
    default:
        QWidget::keyPressEvent(gebeurtenis);
    }
}

Voorbeeld::Voorbeeld(QWidget& venster)
    : QObject(&venster), picP0_(Vind<QWidget>(venster, "picP0")), P9_(new QWidget(picP0_)),
      P1_(new BladVlak(picP0_)), VScroll1_(Vind<QScrollBar>(venster, "VScroll1")),
      HScroll1_(Vind<QScrollBar>(venster, "HScroll1")) {
    P9_->setObjectName(QStringLiteral("P9"));
    P9_->setAutoFillBackground(true);
    QPalette palet = P9_->palette();
    palet.setColor(QPalette::Window, Schermkleur(kleuren::uitgeschakeld, QPalette::Window));
    P9_->setPalette(palet);
    connect(P1_, &BladVlak::geklikt, this, &Voorbeeld::vergroot);
    connect(VScroll1_, &QScrollBar::valueChanged, this, &Voorbeeld::schuif);
    connect(HScroll1_, &QScrollBar::valueChanged, this, &Voorbeeld::schuif);
    for (QObject* bron : {static_cast<QObject*>(picP0_), static_cast<QObject*>(P1_)})
        bron->installEventFilter(this);
    new FocusRand(*picP0_, *P1_); // the page may be larger than its box
}

void Voorbeeld::toon(std::shared_ptr<const Bladen> bladen, std::size_t nummer) {
    const bool ander = bladen != bladen_ || nummer != nummer_;
    nummer_ = nummer;
    vervang(std::move(bladen));
    if (ander) VScroll1_->setValue(0);
}

void Voorbeeld::vervang(std::shared_ptr<const Bladen> bladen) {
    bladen_ = std::move(bladen);
    P1_->toon(bladen_, nummer_);
    pasAan();
}

double Voorbeeld::gewensteSchaal() const {
    const double breed = picP0_->width() / bladmaat::bladBreedte;
    // A longer page than A4 is scrolled at the size of A4.
    const double hoog = picP0_->height() / std::min(bladen_->hoogte(), bladmaat::a4Hoogte);
    switch (vergroting_) {
    case Vergroting::HeelBlad:
        return std::min(breed, hoog);
    case Vergroting::BladBreedte:
        return breed;
    case Vergroting::Honderd:
        return normaal;
    case Vergroting::HonderdVijftig:
        break;
    }
    return 1.5 * normaal;
}

void Voorbeeld::pasAan() {
    if (!bladen_) return;
    P1_->zetSchaal(std::max(gewensteSchaal(), 0.1));
    P9_->resize(P1_->size());
    ZetSchuif(*VScroll1_, P1_->height(), picP0_->height());
    ZetSchuif(*HScroll1_, P1_->width(), picP0_->width());
    schuif();
}

void Voorbeeld::schuif() {
    const QPoint plaats(Begin(picP0_->width(), P1_->width(), HScroll1_->value()),
                        Begin(picP0_->height(), P1_->height(), VScroll1_->value()));
    P1_->move(plaats);
    P9_->move(plaats + QPoint(schaduw, schaduw));
}

void Voorbeeld::vergroot() {
    const int volgende =
        (static_cast<int>(vergroting_) + 1) % (static_cast<int>(Vergroting::HonderdVijftig) + 1);
    vergroting_ = static_cast<Vergroting>(volgende);
    pasAan();
}

/// A page key scrolls by the height of the box, and at the end of the page goes on.
bool Voorbeeld::blader(int richting) {
    if (VScroll1_->value() == (richting < 0 ? 0 : VScroll1_->maximum())) {
        emit voorbij(richting);
    } else {
        VScroll1_->triggerAction(richting < 0 ? QAbstractSlider::SliderPageStepSub
                                              : QAbstractSlider::SliderPageStepAdd);
    }
    return true;
}

void Voorbeeld::toonEinde() { VScroll1_->setValue(VScroll1_->maximum()); }

bool Voorbeeld::toets(int toets) {
    const auto stap = [](QScrollBar* schuif, QAbstractSlider::SliderAction actie) {
        schuif->triggerAction(actie);
        return true;
    };
    switch (toets) {
    case Qt::Key_Up:
        return stap(VScroll1_, QAbstractSlider::SliderSingleStepSub);
    case Qt::Key_Down:
        return stap(VScroll1_, QAbstractSlider::SliderSingleStepAdd);
    case Qt::Key_Left:
        return stap(HScroll1_, QAbstractSlider::SliderSingleStepSub);
    case Qt::Key_Right:
        return stap(HScroll1_, QAbstractSlider::SliderSingleStepAdd);
    case Qt::Key_PageUp:
        return blader(-1);
    case Qt::Key_PageDown:
        return blader(1);
    case Qt::Key_Home:
        return stap(VScroll1_, QAbstractSlider::SliderToMinimum);
    case Qt::Key_End:
        return stap(VScroll1_, QAbstractSlider::SliderToMaximum);
    default:
        return false;
    }
}

bool Voorbeeld::eventFilter(QObject* object, QEvent* gebeurtenis) {
    if (gebeurtenis->type() == QEvent::KeyPress) {
        return toets(static_cast<QKeyEvent*>(gebeurtenis)->key());
    }
    if (gebeurtenis->type() == QEvent::Wheel) {
        const auto* wiel = static_cast<QWheelEvent*>(gebeurtenis);
        const bool opzij = wiel->modifiers().testFlag(Qt::ShiftModifier) ||
                           std::abs(wiel->angleDelta().x()) > std::abs(wiel->angleDelta().y());
        QScrollBar* schuif = opzij ? HScroll1_ : VScroll1_;
        const int hoek =
            wiel->angleDelta().y() != 0 ? wiel->angleDelta().y() : wiel->angleDelta().x();
        schuif->setValue(schuif->value() - hoek / 2); // three lines a notch of 120
        return true;
    }
    return QObject::eventFilter(object, gebeurtenis);
}

} // namespace lauwerkrans
