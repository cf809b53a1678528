// Message boxes and the guard around event handlers.
#pragma once

#include <QWidget>

#include <functional>

#include "data/fout.h"
#include "data/melding.h"

namespace lauwerkrans {

/// The title of every message box.
constexpr const char* programmaNaam = "Lauwerkrans";

/// Shows a message box over a window, with the default mouse pointer, until it is answered.
void ToonMelding(QWidget* venster, const Melding& melding);

/// Shows the hourglass while it lives.
class Zandloper {
public:
    Zandloper();
    Zandloper(const Zandloper&) = delete;
    Zandloper(Zandloper&&) = delete;
    Zandloper& operator=(const Zandloper&) = delete;
    Zandloper& operator=(Zandloper&&) = delete;
    ~Zandloper();
};

/// Runs an event handler; no exception leaves it. What it throws is shown as a message; for a
/// criterion that cannot be used `naCriterium` is called afterwards with the letter of its line.
void Bewaak(const Melder& meld, const std::function<void()>& handeling,
            const std::function<void(char lijn)>& naCriterium = {});

} // namespace lauwerkrans
