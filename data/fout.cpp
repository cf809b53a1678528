#include "data/fout.h"

#include <array>
#include <utility>

#include "data/getallen.h"
#include "data/systeem.h"

namespace lauwerkrans {

namespace {

constexpr std::array<std::pair<std::errc, const char*>, 12> redenen = {{
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
}};

/// What stands in a file may be of any length; a message box shows its beginning.
std::string Begin(const std::string& tekst) {
    constexpr std::size_t meeste = 120;
    if (tekst.size() <= meeste) return tekst;
    std::size_t einde = meeste;
    while (einde > 0 && (static_cast<unsigned char>(tekst[einde]) & 0xC0U) == 0x80U)
        --einde;
    return tekst.substr(0, einde) + " ...";
}

std::string Aanhaling(const std::string& tekst) { return "'" + tekst + "'"; }

std::string Plaats(const Fout& fout) {
    std::string plaats = "Fout in het bestand " + Aanhaling(systeem::Schrijfwijze(fout.bestand));
    if (fout.regel > 0) plaats += ", regel " + std::to_string(fout.regel);
    return plaats + ":\r\n\r\n";
}

std::string Velden(std::int64_t aantal) {
    if (aantal == 1) return "er staat 1 veld";
    return std::string("er staan ").append(std::to_string(aantal)).append(" velden");
}

std::string PercentageTekst(const Fout& fout) {
    return "Het percentage " + Aanhaling(Begin(fout.tekst)) + " van " + fout.wie + " in ronde " +
           std::to_string(fout.ronde) + ", zitting " + std::to_string(fout.zitting) +
           " is geen getal van 0 tot en met 100.";
}

} // namespace

std::string Reden(const std::error_code& code) {
    for (const auto& [soort, tekst] : redenen) {
        if (code == soort) return tekst;
    }
    return code.message();
}

std::string FoutTekst(const Fout& fout) {
    const std::string tekst = Begin(fout.tekst);
    switch (fout.soort) {
    case FoutSoort::BestandNietLeesbaar:
        return "Het bestand " + Aanhaling(systeem::Schrijfwijze(fout.bestand)) +
               " kan niet worden gelezen: " + fout.reden + ".";
    case FoutSoort::BestandNietSchrijfbaar:
        return "Het bestand " + Aanhaling(systeem::Schrijfwijze(fout.bestand)) +
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
        return "Het aantal spellen " + Aanhaling(tekst) + " van " + fout.wie + " kan niet kloppen.";
    case FoutSoort::PercentageGeenGetal:
        return PercentageTekst(fout);
    case FoutSoort::GeenSpellen:
        return "Voor " + fout.wie +
               " is geen gewogen gemiddelde te berekenen, want het aantal gespeelde spellen is "
               "0.\r\n\r\nOplossing: zet 'Gewogen gemiddelde' uit of verbeter de zitting in de "
               "administratie.";
    case FoutSoort::Criterium:
        return "Geef bij lijn " + fout.tekst + " een heel getal als minimum aantal zittingen.";
    }
    return {};
}

} // namespace lauwerkrans
