// Lists as a preview holds them, for the tests of the list files; the expected files stand in
// tests/gegevens/uitvoer.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "output/uitvoer.h"
#include "proef.h"

namespace lauwerkrans::proef {

/// A ranked pair. Its average is in thousandths of a percent.
struct Paar {
    char lijn;
    std::size_t rang;
    bool gelijk;
    std::string lid1;
    std::string lid2;
    std::int32_t zittingen;
    std::int32_t gemiddelde;
};

/// A result of these pairs with `legeRijen` empty rows behind them.
[[nodiscard]] std::shared_ptr<Uitslag> MaakUitslag(const std::string& lijnen,
                                                   const Criteria& criteria,
                                                   const std::vector<Paar>& paren,
                                                   std::size_t legeRijen = 0);

/// Three lines with ties, and names with accents, ";", "&" and "<".
[[nodiscard]] std::shared_ptr<Uitslag> PerLijn(std::size_t legeRijen = 0);

/// The same pairs as one ranking over all lines.
[[nodiscard]] std::shared_ptr<Uitslag> AlleSamen(std::size_t legeRijen = 0);

/// A list whose line A comes back behind line B.
[[nodiscard]] std::shared_ptr<Uitslag> Wisselend();

/// The bytes of an expected file.
[[nodiscard]] std::string Verwacht(const std::string& naam);

/// A program folder of its own, and an Uitvoer with the heading of the expected files.
class UitvoerTest : public testing::Test {
protected:
    UitvoerTest();

    /// The bytes of a file in the output folder; empty when there is none.
    [[nodiscard]] std::string geschreven(const std::string& naam) const;

    /// Sets the two switches.
    void schakel(bool lijnen, bool zittingen);

    Proefmap map;
    Meldingen meldingen;
    Uitvoer uitvoer;
};

} // namespace lauwerkrans::proef
