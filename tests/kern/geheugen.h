// How much memory a piece of work takes: every operator new of the test program is counted.
#pragma once

#include <cstddef>

namespace lauwerkrans::proef {

/// Counts from its making on.
class Geheugenmeter {
public:
    Geheugenmeter();

    /// The most bytes that were in use at once, above what was in use at the start.
    [[nodiscard]] std::size_t piek() const;

    /// How many blocks were asked for: what a reader does beside looking at bytes.
    [[nodiscard]] std::size_t keren() const;

private:
    std::ptrdiff_t begin_;
    std::size_t kerenBegin_;
};

} // namespace lauwerkrans::proef
