#include "data/tekstbestand.h"

#include <algorithm>

#include "data/codetabel.h"
#include "data/fout.h"

namespace lauwerkrans {

namespace {

/// Finds the real name of one part of a path, below a folder that stands as written. In a folder
/// that cannot be listed the name is taken as it is.
std::string WerkelijkDeel(const std::string& map, const std::string& naam) {
    std::vector<std::string> namen;
    if (systeem::NamenInMap(map.empty() ? "." : map, namen)) return naam;
    return ZoekNaam(namen, naam).value_or(naam);
}

[[noreturn]] void Gooi(FoutSoort soort, const std::string& pad, const std::error_code& code) {
    Fout fout(soort);
    fout.bestand = pad;
    fout.reden = Reden(code);
    fout.code = code;
    throw fout;
}

} // namespace

std::string VoegPad(std::string_view map, std::string_view naam) {
    return std::string(map).append("\\").append(naam);
}

std::optional<std::string> ZoekNaam(const std::vector<std::string>& namen, std::string_view naam) {
    if (std::binary_search(namen.begin(), namen.end(), naam)) return std::string(naam);
    const std::string gezocht = Hoofdletters(naam);
    for (const auto& kandidaat : namen) {
        if (Hoofdletters(kandidaat) == gezocht) return kandidaat;
    }
    return std::nullopt;
}

std::string WerkelijkPad(const std::string& pad) {
    if (systeem::LetterkastTeltNiet() || systeem::Bestaat(pad)) return pad;
    std::string gevonden;
    std::string_view rest = pad;
    while (!rest.empty()) {
        const auto einde = std::min(rest.find_first_of("\\/"), rest.size());
        const std::string deel(rest.substr(0, einde));
        gevonden +=
            deel.empty() || deel == "." || deel == ".." ? deel : WerkelijkDeel(gevonden, deel);
        rest.remove_prefix(einde);
        if (!rest.empty()) {
            gevonden += rest.front();
            rest.remove_prefix(1);
        }
    }
    return gevonden;
}

std::string_view ZonderBom(std::string_view bytes) {
    if (bytes.starts_with("\xEF\xBB\xBF")) bytes.remove_prefix(3);
    return bytes;
}

systeem::Leesbuffer LeesTekst(const std::string& pad) {
    systeem::Leesbuffer buffer;
    const std::error_code code = systeem::LeesBestand(WerkelijkPad(pad), buffer);
    if (code) GooiNietLeesbaar(pad, code);
    return buffer;
}

void GooiNietLeesbaar(const std::string& pad, const std::error_code& code) {
    Gooi(FoutSoort::BestandNietLeesbaar, pad, code);
}

void GooiNietSchrijfbaar(const std::string& pad, const std::error_code& code) {
    Gooi(FoutSoort::BestandNietSchrijfbaar, pad, code);
}

bool StaatEr(const std::string& pad) {
    systeem::Leesbuffer buffer;
    return systeem::LeesBestand(WerkelijkPad(pad), buffer) != std::errc::no_such_file_or_directory;
}

void VervangTekst(const std::string& pad, std::string_view utf8) {
    const std::error_code code = systeem::VervangBestand(WerkelijkPad(pad), NaarCodetabel(utf8));
    if (code) GooiNietSchrijfbaar(pad, code);
}

std::string MaakMap(const std::string& pad) {
    std::string werkelijk = WerkelijkPad(pad);
    if (!systeem::MaakMap(werkelijk)) return werkelijk;
    // What stands there in another letter case may be a file; it need not be in the way.
    if (const std::error_code code = systeem::MaakMap(pad)) GooiNietSchrijfbaar(pad, code);
    return pad;
}

std::optional<std::string_view> Regels::volgende() {
    if (rest_.empty()) return std::nullopt;
    ++nummer_;
    const std::string_view regel =
        rest_.substr(0, std::min(rest_.substr(0, totLf()).find('\r'), totLf()));
    rest_.remove_prefix(regel.size());
    if (rest_.starts_with("\r\n")) {
        rest_.remove_prefix(2);
    } else if (!rest_.empty()) {
        rest_.remove_prefix(1);
    }
    return regel;
}

std::size_t Regels::totLf() {
    if (lf_ < rest_.data()) {
        const auto plaats = std::min(rest_.find('\n'), rest_.size());
        lf_ = rest_.data() + plaats;
    }
    return static_cast<std::size_t>(lf_ - rest_.data());
}

} // namespace lauwerkrans
