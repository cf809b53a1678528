#include "ui/hoog_contrast.h"

#include <QApplication>

#include "data/systeem.h"

namespace lauwerkrans {

namespace {

bool IsZwartWit(const QPalette& palet) {
    const QColor vlak = palet.color(QPalette::Window);
    const QColor letters = palet.color(QPalette::WindowText);
    const bool zwart = vlak == QColor(Qt::black) && letters == QColor(Qt::white);
    return zwart || (vlak == QColor(Qt::white) && letters == QColor(Qt::black));
}

} // namespace

std::optional<QPalette> HoogContrast() {
    const QPalette bureaublad = QApplication::palette();
    if (!systeem::VraagtHoogContrast() && !IsZwartWit(bureaublad)) return std::nullopt;
    return HoogContrastPalet(bureaublad);
}

QPalette HoogContrastPalet(const QPalette& bureaublad) {
    QPalette palet = bureaublad;
    const QColor vlak = palet.color(QPalette::Window);
    const QColor letters = palet.color(QPalette::WindowText);
    for (const auto rol :
         {QPalette::Light, QPalette::Midlight, QPalette::Mid, QPalette::Dark, QPalette::Shadow,
          QPalette::BrightText, QPalette::ToolTipText, QPalette::PlaceholderText, QPalette::Link})
        palet.setColor(QPalette::All, rol, letters);
    for (const auto rol : {QPalette::AlternateBase, QPalette::ToolTipBase})
        palet.setColor(QPalette::All, rol, vlak);
    return palet;
}

} // namespace lauwerkrans
