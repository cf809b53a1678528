#include "ui/elementen.h"

#include <QApplication>
#include <QChildEvent>
#include <QFontMetrics>
#include <QPainter>
#include <QTextDocument>

#include "ui/stijl.h"

namespace lauwerkrans {

namespace {
constexpr int randHoogte = 7;   // y of a frame's upper border, half the caption's height
constexpr int titelLinks = 8;   // x of a frame's caption
constexpr int grootsteKop = 16; // pixels
constexpr int kleinsteKop = 12;

/// The border of a panel; thicker and in the colour of a selection while the panel's body has the
/// focus.
class Randlijn : public QWidget {
public:
    explicit Randlijn(QWidget* paneel) : QWidget(paneel) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        connect(qApp, &QApplication::focusChanged, this, [this](QWidget* oud, QWidget* nieuw) {
            if (isLijf(oud) || isLijf(nieuw)) update();
        });
    }

protected:
    void paintEvent(QPaintEvent* /*gebeurtenis*/) override {
        QPainter schilder(this);
        const bool focus = isLijf(QApplication::focusWidget());
        const QColor kleur = focus ? palette().color(QPalette::Highlight)
                                   : Schermkleur(kleuren::rand, QPalette::WindowText);
        TrekRand(schilder, rect(), kleur);
        if (focus) TrekRand(schilder, rect().adjusted(1, 1, -1, -1), kleur);
    }

private:
    [[nodiscard]] bool isLijf(const QWidget* element) const {
        return element != nullptr && element->parentWidget() == parentWidget();
    }
};

} // namespace

Paneel::Paneel(QWidget* houder, bool metRand) : QFrame(houder) {
    if (!metRand) return;
    setContentsMargins(1, 1, 1, 1);
    rand_ = new Randlijn(this);
}

void Paneel::childEvent(QChildEvent* gebeurtenis) {
    QFrame::childEvent(gebeurtenis);
    if (gebeurtenis->added() && rand_ != nullptr && gebeurtenis->child() != rand_) rand_->raise();
}

void Paneel::resizeEvent(QResizeEvent* gebeurtenis) {
    QFrame::resizeEvent(gebeurtenis);
    if (rand_ != nullptr) rand_->resize(size());
}

Kader::Kader(QWidget* houder, bool vet, QColor titelKleur)
    : QGroupBox(houder), vet_(vet), titelKleur_(titelKleur) {}

void Kader::paintEvent(QPaintEvent* /*gebeurtenis*/) {
    QPainter schilder(this);
    QFont letters = font();
    letters.setBold(vet_);
    schilder.setFont(letters);
    const QFontMetrics maat(letters);
    const int breedte = maat.horizontalAdvance(title());
    const QRect titel(titelLinks - 3, 0, breedte + 6, 2 * randHoogte);
    schilder.setClipRegion(QRegion(rect()).subtracted(titel));
    TrekRand(schilder, rect().adjusted(0, randHoogte, 0, 0),
             Schermkleur(kleuren::actieveRand, QPalette::WindowText));
    schilder.setClipping(false);
    schilder.setPen(isEnabled() ? titelKleur_ : palette().color(QPalette::WindowText));
    schilder.drawText(titelLinks, randHoogte + (maat.ascent() - maat.descent()) / 2 + 1, title());
}

void KopLabel::zetBijschrift(const QString& tekst) {
    bijschrift_ = tekst;
    setAccessibleName(tekst); // the whole of it, whatever fits
    pasIn();
}

void KopLabel::resizeEvent(QResizeEvent* gebeurtenis) {
    QLabel::resizeEvent(gebeurtenis);
    pasIn();
}

void KopLabel::mousePressEvent(QMouseEvent* gebeurtenis) {
    QLabel::mousePressEvent(gebeurtenis);
    emit geklikt();
}

void KopLabel::pasIn() {
    int pixels = grootsteKop;
    const auto maat = [&pixels] { return QFontMetrics(Letters(pixels, true)); };
    while (pixels > kleinsteKop && maat().horizontalAdvance(bijschrift_) > width())
        --pixels;
    setFont(Letters(pixels, true));
    const QString getoond = maat().elidedText(bijschrift_, Qt::ElideRight, width());
    setText(getoond);
    const bool opmaak = Qt::mightBeRichText(bijschrift_); // a name, however it looks
    const QString heel = opmaak ? bijschrift_.toHtmlEscaped() : bijschrift_;
    setToolTip(getoond == bijschrift_ ? QString() : heel);
}

} // namespace lauwerkrans
