// The keyboard as the system sends it: to the window in front, for whatever has the focus there.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QWindow>

#include <string>
#include <vector>

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

/// Waits until a window is in front.
inline void Wacht(QWidget& venster) { ASSERT_TRUE(QTest::qWaitForWindowActive(&venster)); }

} // namespace lauwerkrans::proef
