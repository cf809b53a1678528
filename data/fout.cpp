#include "data/fout.h"

#include <algorithm>
#include <array>
#include <utility>

#include "data/codetabel.h"
#include "data/systeem.h"

namespace lauwerkrans {

namespace {

constexpr std::array<std::pair<std::errc, const char*>, 13> redenen = {{
    {std::errc::no_such_file_or_directory, "het bestand bestaat niet"},
    {std::errc::not_a_directory, "de map bestaat niet"},
    {std::errc::permission_denied, "geen toegang"},
    {std::errc::operation_not_permitted, "geen toegang"},
    {std::errc::device_or_resource_busy, "een ander programma gebruikt het bestand"},
    {std::errc::is_a_directory, "er staat een map met die naam"},
    {std::errc::file_exists, "er staat iets anders met die naam"},
    {std::errc::no_space_on_device, "de schijf is vol"},
    {std::errc::file_too_large, "het bestand is te groot"},
    {std::errc::read_only_file_system, "de schijf is alleen te lezen"},
    {std::errc::io_error, "leesfout op de schijf"},
    {std::errc::filename_too_long, "de naam is te lang"},
    {std::errc::too_many_symbolic_link_levels, "de naam verwijst naar zichzelf"},
}};

/// Whether a byte goes on with the character of the one before it (UTF-8).
bool IsVervolg(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

bool IsStuurteken(char byte) {
    const auto waarde = static_cast<unsigned char>(byte);
    return (waarde < ' ' && byte != '\t') || waarde == 0x7F;
}

std::string Aanhaling(const std::string& tekst) { return "'" + tekst + "'"; }

std::string Plaats(const Fout& fout) {
    std::string plaats = "Fout in het bestand " + Aanhaling(PadInMelding(fout.bestand));
    if (fout.regel > 0) plaats += ", regel " + std::to_string(fout.regel);
    return plaats + ":\r\n\r\n";
}

std::string Velden(std::int64_t aantal) {
    if (aantal == 1) return "er staat 1 veld";
    return std::string("er staan ").append(std::to_string(aantal)).append(" velden");
}

/// Two names.
std::string Wie(const Fout& fout) { return InMelding(fout.wie, 2 * meesteInMelding); }

std::string PercentageTekst(const Fout& fout) {
    return "Het percentage " + Aanhaling(InMelding(fout.tekst)) + " van " + Wie(fout) +
           " in ronde " + std::to_string(fout.ronde) + ", zitting " + std::to_string(fout.zitting) +
           " is geen getal van 0 tot en met 100.";
}

} // namespace

std::string Reden(const std::error_code& code) {
    for (const auto& [soort, tekst] : redenen) {
        if (code == soort) return tekst;
    }
    return code.message();
}

std::string InMelding(const std::string& tekst, std::size_t meeste) {
    std::size_t einde = std::min(meeste, tekst.size());
    while (einde > 0 && einde < tekst.size() && IsVervolg(tekst[einde]))
        --einde;
    std::string begin = tekst.substr(0, einde);
    std::replace_if(begin.begin(), begin.end(), IsStuurteken, '?');
    return einde < tekst.size() ? begin + " ..." : begin;
}

std::string BytesInMelding(std::string_view bytes) { return InMelding(NaarUtf8(Begin(bytes))); }

std::string PadInMelding(const std::string& pad) {
    constexpr std::size_t meeste = 1000; // a longer one is no path that anybody could look at
    return InMelding(systeem::Schrijfwijze(pad), meeste);
}

std::string FoutTekst(const Fout& fout) {
    const std::string tekst = InMelding(fout.tekst);
    switch (fout.soort) {
    case FoutSoort::BestandNietLeesbaar:
        return "Het bestand " + Aanhaling(PadInMelding(fout.bestand)) +
               " kan niet worden gelezen: " + fout.reden + ".";
    case FoutSoort::BestandNietSchrijfbaar:
        return "Het bestand " + Aanhaling(PadInMelding(fout.bestand)) +
               " kan niet worden geschreven: " + fout.reden + ".";
    case FoutSoort::BestandEindigtTeVroeg:
        return Plaats(fout) + "het bestand is niet compleet.";
    case FoutSoort::GeenHeelGetal:
        return Plaats(fout) + Aanhaling(tekst) + " is geen heel getal.";
    case FoutSoort::GetalBuitenGrenzen:
        return Plaats(fout) + "het getal " + Aanhaling(tekst) + " kan niet kloppen.";
    case FoutSoort::AantalVelden:
        return Plaats(fout) + Velden(fout.aantal) + " in plaats van 7.\r\n\r\n" + tekst;
    case FoutSoort::TeVeelSpellen:
        return Plaats(fout) + "het aantal spellen " + Aanhaling(tekst) + " kan niet kloppen.";
    case FoutSoort::TeVeelRegels:
        return Plaats(fout) + "er zijn meer scores dan de " + std::to_string(fout.aantal) +
               " waarvoor in deze competitie plaats is.";
    case FoutSoort::SpellenBuitenGrenzen:
        return "Het aantal spellen " + Aanhaling(tekst) + " van " + Wie(fout) +
               " kan niet kloppen.";
    case FoutSoort::PercentageGeenGetal:
        return PercentageTekst(fout);
    case FoutSoort::GeenSpellen:
        return "Voor " + Wie(fout) +
               " is geen gewogen gemiddelde te berekenen, want het aantal gespeelde spellen is "
               "0.\r\n\r\nOplossing: zet 'Gewogen gemiddelde' uit of verbeter de zitting in de "
               "administratie.";
    case FoutSoort::Criterium:
        return "Geef bij lijn " + fout.tekst + " een heel getal als minimum aantal zittingen.";
    }
    return {};
}

} // namespace lauwerkrans
