// `PaarSleutel`: the key of a pair, the same whatever the order of its two members.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace lauwerkrans {

/// Both numbers right-aligned with spaces in 8 characters, the lower first: 16 characters for
/// numbers of up to 8 digits.
[[nodiscard]] std::string MaakPaarSleutel(std::int32_t a, std::int32_t b);

/// The two numbers of a key, or empty when the text is not the key of any pair.
[[nodiscard]] std::optional<std::pair<std::uint32_t, std::uint32_t>>
LeesPaarSleutel(std::string_view sleutel);

} // namespace lauwerkrans
