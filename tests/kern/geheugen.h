// How much memory a piece of work takes, and what it does without: every operator new of the test
// program is counted and can be refused.
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

/// While it lives every request for a block of this length finds no memory.
class Geheugentekort {
public:
    Geheugentekort(std::size_t van, std::size_t tot);
    Geheugentekort(const Geheugentekort&) = delete;
    Geheugentekort(Geheugentekort&&) = delete;
    Geheugentekort& operator=(const Geheugentekort&) = delete;
    Geheugentekort& operator=(Geheugentekort&&) = delete;
    ~Geheugentekort();

    /// How many requests it refused.
    [[nodiscard]] static std::size_t geweigerd();
};

} // namespace lauwerkrans::proef
