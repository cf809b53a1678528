// What a screen reader calls the controls that show no caption of their own.
#pragma once

#include <QWidget>

#include <initializer_list>
#include <utility>

namespace lauwerkrans {

/// Gives controls of a window, by their object name, the name that is read out.
void GeefNamen(const QWidget& venster,
               std::initializer_list<std::pair<const char*, const char*>> namen);

} // namespace lauwerkrans
