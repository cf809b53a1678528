// Message boxes as a call: readers and calculation say what the user must read, the windows show
// it, tests write it down.
#pragma once

#include <functional>
#include <string>

namespace lauwerkrans {

enum class Icoon { Geen, Uitroep, Informatie };

/// One message box with an OK button: its exact text (UTF-8, CR LF between lines) and its icon.
struct Melding {
    std::string tekst;
    Icoon icoon = Icoon::Uitroep;

    bool operator==(const Melding&) const = default;
};

/// Shows a message and returns when the user has answered it.
using Melder = std::function<void(const Melding&)>;

} // namespace lauwerkrans
