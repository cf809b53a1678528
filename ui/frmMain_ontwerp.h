// The controls of the main window.
#pragma once

#include <span>

#include "ui/ontwerp.h"

namespace lauwerkrans {

/// The table of the main window's controls, containers before their contents.
[[nodiscard]] std::span<const Ontwerp> OntwerpVanFrmMain();

/// The rows of the table that further elements of a control array are made from.
[[nodiscard]] const Ontwerp& OntwerpVan(const char* naam);

/// Pitch of the criteria rows in twips.
constexpr double rijPitch = 300;

} // namespace lauwerkrans
