#include "data/lijstformaat.h"

#include <algorithm>
#include <utility>

#include "data/achttal.h"
#include "data/codetabel.h"
#include "data/fout.h"
#include "data/getallen.h"
#include "data/tekstbestand.h"

namespace lauwerkrans {

namespace {

std::size_t TotKomma(std::string_view tekst) { return std::min(tekst.find(','), tekst.size()); }

std::size_t TotKommaOfRegeleinde(std::string_view tekst) {
    return std::min(tekst.find_first_of(",\r\n"), tekst.size());
}

/// Takes one field off the text, up to (not including) the place that `einde` gives for a text
/// outside quotes.
template <class Einde>
std::string_view NeemVeld(std::string_view& rest, Einde einde) {
    const auto begin = rest.find_first_not_of(" \t");
    if (begin == std::string_view::npos || rest[begin] != '"') {
        const std::string_view veld = rest.substr(0, einde(rest));
        rest.remove_prefix(veld.size());
        return veld;
    }
    rest.remove_prefix(begin + 1);
    const std::string_view veld = rest.substr(0, std::min(rest.find('"'), rest.size()));
    rest.remove_prefix(std::min(veld.size() + 1, rest.size()));
    rest.remove_prefix(einde(rest));
    return veld;
}

Fout FoutMetTekst(FoutSoort soort, const std::string& pad, std::string_view bytes) {
    Fout fout(soort);
    fout.bestand = pad;
    fout.tekst = NaarUtf8(Begin(bytes));
    return fout;
}

} // namespace

std::optional<std::string_view> LijstLezer::volgende() {
    if (rest_.empty() && !naKomma_) return std::nullopt;
    const std::string_view veld = NeemVeld(rest_, TotKommaOfRegeleinde);
    naKomma_ = rest_.starts_with(',');
    if (rest_.starts_with("\r\n")) {
        rest_.remove_prefix(2);
    } else if (!rest_.empty()) {
        rest_.remove_prefix(1);
    }
    return veld;
}

std::size_t SplitsRegel(std::string_view regel, std::string_view* velden, std::size_t ruimte) {
    for (std::size_t aantal = 0;;) {
        const std::string_view veld = NeemVeld(regel, TotKomma);
        if (aantal < ruimte) velden[aantal] = veld;
        ++aantal;
        if (regel.empty()) return aantal;
        regel.remove_prefix(1);
    }
}

std::size_t SplitsGewoneRegel(std::string_view bytes, std::array<std::string_view, 7>& velden) {
    if constexpr (!achttal::bruikbaar) return 0;
    const char* plaats = bytes.data();
    for (std::size_t i = 0; i < velden.size(); ++i) {
        const bool laatste = i + 1 == velden.size();
        if (*plaats == ' ') return 0;
        const bool aangehaald = *plaats == '"';
        if (aangehaald) ++plaats;
        const std::size_t lengte = achttal::Tot(plaats, aangehaald ? '"' : ',');
        velden[i] = {plaats, lengte};
        plaats += lengte;
        if (aangehaald && *plaats++ != '"') return 0;
        if (!laatste && *plaats++ != ',') return 0;
    }
    if (*plaats == '\r') ++plaats;
    return *plaats == '\n' ? static_cast<std::size_t>(plaats + 1 - bytes.data()) : 0;
}

LijstBestand::LijstBestand(std::string pad, std::string_view bytes)
    : pad_(std::move(pad)), lezer_(ZonderBom(bytes)) {}

std::string_view LijstBestand::veld() {
    const auto gelezen = lezer_.volgende();
    if (!gelezen) throw FoutMetTekst(FoutSoort::BestandEindigtTeVroeg, pad_, {});
    return *gelezen;
}

std::string LijstBestand::tekst() { return NaarUtf8(veld()); }

std::int64_t LijstBestand::getal(std::int64_t laagste, std::int64_t hoogste) {
    const std::string_view gelezen = veld();
    const auto waarde = HeelGetal(gelezen);
    if (!waarde) throw FoutMetTekst(FoutSoort::GeenHeelGetal, pad_, gelezen);
    if (*waarde < laagste || *waarde > hoogste) {
        throw FoutMetTekst(FoutSoort::GetalBuitenGrenzen, pad_, gelezen);
    }
    return *waarde;
}

void LijstBestand::slaOver(std::int64_t aantal) {
    for (std::int64_t i = 0; i < aantal; ++i)
        static_cast<void>(veld());
}

} // namespace lauwerkrans
