// The text of the help window.
#pragma once

#include <QString>

namespace lauwerkrans {

/// All lines, each ended with CR LF. The contact address in the last line is a setting of the
/// build.
[[nodiscard]] QString ToelichtingTekst();

} // namespace lauwerkrans
