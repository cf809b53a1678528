#include "ui/stijl.h"

#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <QToolTip>

#include <algorithm>
#include <array>
#include <cmath>

namespace lauwerkrans {

namespace {

QPalette LichtPalet() {
    QPalette palet;
    const auto zet = [&palet](QPalette::ColorRole rol, QColor kleur, QColor uit) {
        palet.setColor(QPalette::All, rol, kleur);
        palet.setColor(QPalette::Disabled, rol, uit);
    };
    zet(QPalette::Window, kleuren::venster, kleuren::venster);
    zet(QPalette::Base, kleuren::wit, kleuren::venster);
    zet(QPalette::AlternateBase, kleuren::venster, kleuren::venster);
    zet(QPalette::Button, kleuren::venster, kleuren::venster);
    zet(QPalette::WindowText, kleuren::zwart, kleuren::uitgeschakeld);
    zet(QPalette::Text, kleuren::zwart, kleuren::uitgeschakeld);
    zet(QPalette::ButtonText, kleuren::zwart, kleuren::uitgeschakeld);
    zet(QPalette::PlaceholderText, kleuren::uitgeschakeld, kleuren::uitgeschakeld);
    zet(QPalette::BrightText, kleuren::wit, kleuren::wit);
    zet(QPalette::ToolTipBase, QColor(255, 255, 225), QColor(255, 255, 225));
    zet(QPalette::ToolTipText, kleuren::zwart, kleuren::zwart);
    zet(QPalette::Highlight, QColor(0, 90, 180), kleuren::rand);
    zet(QPalette::HighlightedText, kleuren::wit, kleuren::wit);
    zet(QPalette::Light, kleuren::wit, kleuren::wit);
    zet(QPalette::Midlight, QColor(227, 227, 227), QColor(227, 227, 227));
    zet(QPalette::Mid, kleuren::actieveRand, kleuren::actieveRand);
    zet(QPalette::Dark, kleuren::rand, kleuren::rand);
    zet(QPalette::Shadow, QColor(105, 105, 105), QColor(105, 105, 105));
    zet(QPalette::Link, kleuren::blauw, kleuren::uitgeschakeld);
    return palet;
}

/// Fusion with the small check boxes that the stated widths count with, with coloured buttons in
/// exactly their colour, where Fusion makes a paler shade of it, with a focus on buttons that is
/// seen, and with one palette for every class of controls, whatever the desktop's theme gives it
/// and whenever: the light one. In high contrast the plain style, whose borders have the colours of
/// the palette, where Fusion shades that of the plane, and with that palette.
class Stijl : public QProxyStyle {
public:
    explicit Stijl(const std::optional<QPalette>& hoogContrast)
        : QProxyStyle(QStyleFactory::create(hoogContrast ? QStringLiteral("Windows")
                                                         : QStringLiteral("Fusion"))),
          palet_(hoogContrast.value_or(LichtPalet())), hoogContrast_(hoogContrast.has_value()) {}

    [[nodiscard]] const QPalette& palet() const { return palet_; }
    [[nodiscard]] bool hoogContrast() const { return hoogContrast_; }

    using QProxyStyle::polish;
    void polish(QPalette& palet) override { palet = palet_; }

    [[nodiscard]] int pixelMetric(PixelMetric maat, const QStyleOption* optie,
                                  const QWidget* element) const override {
        switch (maat) {
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
            return 13;
        case PM_CheckBoxLabelSpacing:
            return 4;
        default:
            return QProxyStyle::pixelMetric(maat, optie, element);
        }
    }

    /// A caption that cannot be pressed is drawn once, without a white shadow.
    int styleHint(StyleHint wens, const QStyleOption* optie, const QWidget* element,
                  QStyleHintReturn* antwoord) const override {
        if (wens == SH_EtchDisabledText) return 0;
        return QProxyStyle::styleHint(wens, optie, element, antwoord);
    }

    /// The slider of a scroll bar stands out from what it slides in.
    void drawComplexControl(ComplexControl deel, const QStyleOptionComplex* optie,
                            QPainter* schilder, const QWidget* element) const override {
        const auto* schuif = qstyleoption_cast<const QStyleOptionSlider*>(optie);
        if (deel != CC_ScrollBar || schuif == nullptr || hoogContrast_) {
            QProxyStyle::drawComplexControl(deel, optie, schilder, element);
            return;
        }
        QStyleOptionSlider een(*schuif);
        een.subControls &= ~SC_ScrollBarSlider;
        QProxyStyle::drawComplexControl(deel, &een, schilder, element);
        een.subControls = schuif->subControls & SC_ScrollBarSlider;
        een.palette.setColor(QPalette::Active, QPalette::Button, kleuren::rand);
        een.palette.setColor(QPalette::Inactive, QPalette::Button, kleuren::rand);
        QProxyStyle::drawComplexControl(deel, &een, schilder, element);
    }

    void drawPrimitive(PrimitiveElement deel, const QStyleOption* optie, QPainter* schilder,
                       const QWidget* element) const override {
        QProxyStyle::drawPrimitive(deel, optie, schilder, element);
        if (deel == PE_FrameLineEdit && hoogContrast_) toonFocusvak(*optie, *schilder);
        if (deel != PE_PanelButtonCommand) return;
        schilder->save();
        schilder->setRenderHint(QPainter::Antialiasing);
        if (!hoogContrast_) kleurKnop(*optie, *schilder);
        toonFocus(*optie, *schilder);
        schilder->restore();
    }

private:
    static void kleurKnop(const QStyleOption& optie, QPainter& schilder) {
        const QColor kleur = optie.palette.color(QPalette::Button);
        if (kleur == kleuren::venster) return;
        const bool ingedrukt = (optie.state & (State_Sunken | State_On)) != 0;
        schilder.setPen(Qt::NoPen);
        schilder.setBrush(ingedrukt ? kleur.darker(115) : kleur);
        schilder.drawRoundedRect(QRectF(optie.rect).adjusted(1, 1, -1, -1), 1.5, 1.5);
    }

    /// Fusion has a blue border of its own; the plain style nothing but the text cursor.
    static void toonFocusvak(const QStyleOption& optie, QPainter& schilder) {
        if ((optie.state & State_HasFocus) == 0) return;
        const QColor kleur = optie.palette.color(QPalette::Highlight);
        TrekRand(schilder, optie.rect, kleur);
        TrekRand(schilder, optie.rect.adjusted(1, 1, -1, -1), kleur);
    }

    /// Inside Fusion's own border, whose one pixel is hardly seen on a colour.
    static void toonFocus(const QStyleOption& optie, QPainter& schilder) {
        constexpr double dikte = 1.5;
        constexpr State getoond = State_HasFocus | State_KeyboardFocusChange;
        if ((optie.state & getoond) != getoond) return;
        schilder.setPen(QPen(optie.palette.color(QPalette::Highlight), dikte));
        schilder.setBrush(Qt::NoBrush);
        schilder.drawRoundedRect(QRectF(optie.rect).adjusted(1.5, 1.5, -1.5, -1.5), 1.5, 1.5);
    }

    QPalette palet_;
    bool hoogContrast_;
};

bool IsHoogContrast() {
    const auto* stijl = dynamic_cast<const Stijl*>(QApplication::style());
    return stijl != nullptr && stijl->hoogContrast();
}

} // namespace

QColor Schermkleur(QColor vast, QPalette::ColorRole rol) {
    return IsHoogContrast() ? QApplication::palette().color(rol) : vast;
}

QColor LijnKleur(char letter) {
    static constexpr std::array<QColor, 8> kleurPerLijn = {
        kleuren::blauw,      QColor(192, 0, 0),   QColor(0, 110, 0),  QColor(128, 0, 128),
        QColor(0, 110, 110), QColor(139, 69, 19), QColor(80, 80, 80), QColor(0, 0, 128)};
    const auto nummer = static_cast<unsigned char>(letter) - static_cast<unsigned char>('A');
    return Schermkleur(kleurPerLijn.at(static_cast<std::size_t>(nummer) % kleurPerLijn.size()),
                       QPalette::Text);
}

QFont Letters(int pixels, bool vet) {
    QFont letters;
    letters.setFamilies({QStringLiteral("Microsoft Sans Serif"), QStringLiteral("Liberation Sans"),
                         QStringLiteral("Arial")});
    letters.setPixelSize(pixels);
    letters.setBold(vet);
    // The same widths on every system: full hinting, the usual one on Windows, rounds each
    // letter's.
    letters.setHintingPreference(QFont::PreferVerticalHinting);
    return letters;
}

/// The application must be there; what it is given, the toolkit keeps for all of it.
void ZetStijl(QApplication& /*toepassing*/, const std::optional<QPalette>& hoogContrast) {
    constexpr int gewoon = 11;
    auto* stijl = new Stijl(hoogContrast);
    QApplication::setStyle(stijl);
    QApplication::setPalette(stijl->palet());
    QToolTip::setPalette(stijl->palet());
    QApplication::setFont(Letters(gewoon, false));
}

void TrekLijn(QPainter& schilder, QPointF van, QPointF tot, QColor kleur, double dikte) {
    const double schaal = schilder.deviceTransform().m11();
    const double echt = std::max(1.0, std::floor(dikte * schaal)) / schaal;
    const bool liggend = van.y() == tot.y();
    const QSizeF maat =
        liggend ? QSizeF(tot.x() - van.x() + 1, echt) : QSizeF(echt, tot.y() - van.y() + 1);
    schilder.fillRect(QRectF(van, maat), kleur);
}

void TrekRand(QPainter& schilder, const QRect& vak, QColor kleur) {
    TrekLijn(schilder, vak.topLeft(), vak.topRight(), kleur);
    TrekLijn(schilder, vak.bottomLeft(), vak.bottomRight(), kleur);
    TrekLijn(schilder, vak.topLeft(), vak.bottomLeft(), kleur);
    TrekLijn(schilder, vak.topRight(), vak.bottomRight(), kleur);
}

QPalette MetKleuren(QPalette palet, QPalette::ColorRole vlak, QColor achtergrond,
                    QPalette::ColorRole tekst, QColor voorgrond) {
    if (IsHoogContrast()) return palet;
    for (const auto groep : {QPalette::Active, QPalette::Inactive}) {
        palet.setColor(groep, vlak, achtergrond);
        palet.setColor(groep, tekst, voorgrond);
    }
    palet.setColor(QPalette::Disabled, vlak, kleuren::venster);
    palet.setColor(QPalette::Disabled, tekst, kleuren::uitgeschakeld);
    return palet;
}

} // namespace lauwerkrans
