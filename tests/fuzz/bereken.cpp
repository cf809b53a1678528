// The calculation on arbitrary rows: what it gives is what the plain calculation gives.
#include <array>
#include <limits>

#include "kern/gevallen.h"

#include "data/getallen.h"
#include "suite.h"

using namespace lauwerkrans;

namespace {

/// Choices from the bytes that are tried; 0 when they are used up.
class Bron {
public:
    Bron(const std::uint8_t* gegevens, std::size_t lengte) : nu_(gegevens), eind_(nu_ + lengte) {}

    [[nodiscard]] bool op() const { return nu_ == eind_; }
    unsigned byte() { return op() ? 0 : *nu_++; }
    unsigned tot(unsigned aantal) { return byte() % aantal; }
    std::string tekst(unsigned tekens) {
        std::string gelezen;
        while (gelezen.size() < tekens && !op())
            gelezen += static_cast<char>(byte());
        return gelezen;
    }

private:
    const std::uint8_t* nu_;
    const std::uint8_t* eind_;
};

/// A member: mostly one of few, so that pairs meet again, else one of the highest numbers.
std::uint32_t MaakLid(Bron& bron) {
    constexpr unsigned weinig = 99;
    constexpr std::uint32_t hoogste = 99'999'999;
    const unsigned nummer = bron.byte();
    return nummer < 2 * weinig ? 1 + nummer % weinig : hoogste - (nummer - 2 * weinig);
}

/// The boards of a session: mostly as many as are played, else what a file may say too.
std::int32_t MaakSpellen(Bron& bron) {
    constexpr std::array<std::int32_t, 6> vreemd = {-1, -24, 32767, 32768, 99'999'999, -99'999'999};
    constexpr unsigned gewoon = 250;
    const unsigned aantal = bron.byte();
    return aantal < gewoon ? static_cast<std::int32_t>(aantal) : vreemd.at(aantal - gewoon);
}

/// A row of a session that is played from now on.
proef::Score MaakScore(Bron& bron, proef::Geval& geval) {
    proef::Score score;
    const unsigned ronde = bron.tot(static_cast<unsigned>(geval.ronden.size()));
    const unsigned zitting = bron.tot(static_cast<unsigned>(geval.ronden[0].size()));
    geval.ronden[ronde][zitting] = '1';
    score.ronde = static_cast<std::uint8_t>(ronde + 1);
    score.zitting = static_cast<std::uint8_t>(zitting + 1);
    score.lijn = static_cast<char>('A' + bron.tot(static_cast<unsigned>(geval.criteria.size())));
    score.lid1 = MaakLid(bron);
    score.lid2 = MaakLid(bron);
    score.spellen = MaakSpellen(bron);
    const unsigned vorm = bron.byte();
    score.bum = (vorm & 1U) != 0;
    score.percentage = bron.tekst(vorm >> 1U & 7U);
    return score;
}

proef::Geval MaakGeval(Bron& bron) {
    proef::Geval geval;
    geval.ronden.assign(1 + bron.tot(4), std::string(1 + bron.tot(4), '0'));
    geval.criteria.assign(1 + bron.tot(4), "0");
    for (auto& criterium : geval.criteria)
        criterium = std::to_string(bron.tot(5));
    while (!bron.op())
        geval.scores.push_back(MaakScore(bron, geval));
    return geval;
}

/// The plain calculation knows percentages as the suite writes them, without tab and sign, and
/// boards that weigh.
bool IsGewoon(const proef::Score& score) {
    return IsPercentage(score.percentage) &&
           score.percentage.find_first_of("\t+-") == std::string::npos && score.spellen >= 0 &&
           score.spellen <= std::numeric_limits<std::int16_t>::max();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* gegevens, std::size_t lengte) {
    Bron bron(gegevens, lengte);
    proef::Geval geval = MaakGeval(bron);
    // With the rows as they are, which may be refused, and then with those that may not.
    for (const Opties& opties : proef::AlleOpties())
        fuzz::Probeer([&] { static_cast<void>(VolgensProgramma(geval, opties)); });
    std::erase_if(geval.scores, [](const proef::Score& score) { return !IsGewoon(score); });
    for (const Opties& opties : proef::AlleOpties()) {
        if (VolgensProgramma(geval, opties) != VolgensNaief(geval, opties)) __builtin_trap();
    }
    return 0;
}
