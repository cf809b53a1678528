// A control as a screen reader meets it.
#pragma once

#include <QAccessible>
#include <QWidget>

#include <string>

namespace lauwerkrans::proef {

inline QAccessibleInterface& Toegang(QWidget& element) {
    return *QAccessible::queryAccessibleInterface(&element);
}
inline std::string Naam(QAccessibleInterface& toegang) {
    return toegang.text(QAccessible::Name).toStdString();
}

} // namespace lauwerkrans::proef
