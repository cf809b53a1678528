// The invented members of the club.
#pragma once

#include <span>
#include <vector>

#include "tools/generator_suite.h"

namespace lauwerkrans::generator {

/// The size of the members table that the club's members file gives.
inline constexpr int hoogsteLidnummer = 612;

/// The club's members, two by two in the order of the pairs that they form at the start: twelve
/// in line A, ten in B, eight in C; the last four are reserves.
[[nodiscard]] std::span<const Lid> Clubleden();

/// The same in the order of their numbers.
[[nodiscard]] std::vector<Lid> LedenOpNummer();

/// `aantal` members with rising numbers of at most six digits, for a competition of any size.
/// Names are first names and surnames of the club in every combination, then the same again.
[[nodiscard]] std::vector<Lid> VeelLeden(int aantal);

} // namespace lauwerkrans::generator
