// What a fuzz target of a reader works with: a competition on disk, one file of which gets the
// bytes that are tried.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>

#include "kern/proef.h"

namespace lauwerkrans::fuzz {

/// The bytes that are tried, as text.
[[nodiscard]] inline std::string_view Bytes(const std::uint8_t* gegevens, std::size_t lengte) {
    return {reinterpret_cast<const char*>(gegevens), lengte};
}

/// A competition of two rounds of two sessions with two lines, four members and one session played.
/// One for all tries: what a try leaves, the next one meets.
[[nodiscard]] proef::ProefCompetitie& Suite();

/// Runs what may throw Fout, and nothing else; the error's text is made too.
void Probeer(const std::function<void()>& werk);

/// Asks for every cell of a list with up to some rows.
void LeesHeleControlelijst(proef::ProefCompetitie& suite);

/// Reads the scores and calculates in every way.
void RekenAlles(proef::ProefCompetitie& suite);

} // namespace lauwerkrans::fuzz
