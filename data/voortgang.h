// How a long reading tells how far it is.
#pragma once

#include <cstddef>
#include <functional>

namespace lauwerkrans {

/// What a reading asks of those who wait for it; it works without.
struct Voortgang {
    /// Whether to show something now. Asked after every file, so it has to be cheap.
    std::function<bool()> isTijd;
    /// So many sessions of all that there are have been read.
    std::function<void(std::size_t gelezen, std::size_t totaal)> toon;
};

} // namespace lauwerkrans
