// The keyboard as the system sends it: to the window in front, for whatever has the focus there.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QPainter>
#include <QTest>
#include <QWindow>

#include <string>
#include <vector>

#include "beeldproef.h"

namespace lauwerkrans::proef {

/// Presses a key and lets what follows from it happen.
inline void Toets(Qt::Key toets, Qt::KeyboardModifiers erbij = Qt::NoModifier) {
    ASSERT_NE(QGuiApplication::focusWindow(), nullptr);
    QTest::keyClick(QGuiApplication::focusWindow(), toets, erbij);
    QCoreApplication::processEvents();
}

inline void Typ(const char* tekst) {
    for (const char* letter = tekst; *letter != '\0'; ++letter)
        QTest::keyClick(QGuiApplication::focusWindow(), *letter);
    QCoreApplication::processEvents();
}

/// The name of the control with the focus.
inline std::string Focus() {
    const QWidget* element = QApplication::focusWidget();
    return element == nullptr ? "" : element->objectName().toStdString();
}

/// The controls that the Tab key (or Shift+Tab) comes by, until it is back where it was.
inline std::vector<std::string> Rondgang(Qt::Key toets = Qt::Key_Tab) {
    constexpr std::size_t meeste = 200;
    std::vector<std::string> namen;
    do {
        namen.push_back(Focus());
        Toets(toets);
    } while (Focus() != namen.front() && namen.size() < meeste);
    return namen;
}

/// Presses Tab until a control has the focus.
inline void TabNaar(const std::string& naam) {
    constexpr int meeste = 200;
    for (int keer = 0; Focus() != naam && keer < meeste; ++keer)
        Toets(Qt::Key_Tab);
    ASSERT_EQ(Focus(), naam);
}

/// What shows the focus of a control: the border of a text box, for its cursor comes and goes, else
/// all of it.
inline QImage Focusbeeld(QWidget& venster, const QWidget& element, const QRect& vak) {
    constexpr int rand = 2;
    QImage beeld = Beeld(venster).copy(vak);
    if (qobject_cast<const QLineEdit*>(&element) != nullptr)
        QPainter(&beeld).fillRect(beeld.rect().adjusted(rand, rand, -rand, -rand), Qt::black);
    return beeld;
}

/// For each stop of a window: its picture with the focus differs from that without.
inline void ZietFocus(QWidget& venster) {
    const std::vector<std::string> stops = Rondgang();
    for (const auto& stop : stops) {
        TabNaar(stop);
        const QWidget& element = *QApplication::focusWidget();
        const QWidget& gezien =
            stop == "P21" || stop == "P11" || stop == "P1" ? *element.parentWidget() : element;
        const QRect vak(gezien.mapTo(&venster, QPoint()), gezien.size());
        const QImage met = Focusbeeld(venster, element, vak);
        Toets(Qt::Key_Tab);
        if (stops.size() == 1) QApplication::focusWidget()->clearFocus();
        EXPECT_NE(Focusbeeld(venster, element, vak), met) << stop;
    }
}

/// Waits until a window is in front.
inline void Wacht(QWidget& venster) { ASSERT_TRUE(QTest::qWaitForWindowActive(&venster)); }

} // namespace lauwerkrans::proef
