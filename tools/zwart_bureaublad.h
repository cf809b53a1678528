// The colours of a desktop in high contrast, as the black theme of Windows has them: for pictures
// and tests on a desktop that has others.
#pragma once

#include <QPalette>

namespace lauwerkrans {

inline QPalette ZwartBureaublad() {
    QPalette palet;
    const auto zet = [&palet](QPalette::ColorRole rol, QColor kleur, QColor uit) {
        palet.setColor(QPalette::All, rol, kleur);
        palet.setColor(QPalette::Disabled, rol, uit);
    };
    const QColor grijs(63, 242, 63); // what cannot be used is green there
    for (const auto rol : {QPalette::Window, QPalette::Base, QPalette::Button})
        zet(rol, Qt::black, Qt::black);
    for (const auto rol : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        zet(rol, Qt::white, grijs);
    zet(QPalette::Highlight, QColor(26, 235, 255), QColor(26, 235, 255));
    zet(QPalette::HighlightedText, Qt::black, Qt::black);
    return palet;
}

} // namespace lauwerkrans
