// What is wrong where. One record for every error that the user must read; the Dutch texts stand
// beside each other in fout.cpp.
#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <system_error>

namespace lauwerkrans {

enum class FoutSoort {
    BestandNietLeesbaar,    // bestand, reden
    BestandNietSchrijfbaar, // bestand, reden
    BestandEindigtTeVroeg,  // bestand
    GeenHeelGetal,          // bestand, tekst
    GetalBuitenGrenzen,     // bestand, tekst
    AantalVelden,           // bestand, regel, aantal (velden), tekst (the line)
    TeVeelSpellen,          // bestand, regel, tekst
    TeVeelRegels,           // bestand, aantal (room)
    SpellenBuitenGrenzen,   // tekst, wie (the pair)
    PercentageGeenGetal,    // tekst, wie (the pair), ronde, zitting
    GeenSpellen,            // wie (the pair)
    Criterium,              // tekst (the line letter)
};

/// Thrown by readers and calculation; caught once per event handler. Only the fields named beside
/// the kind are filled.
struct Fout : std::exception {
    explicit Fout(FoutSoort welke) : soort(welke) {}

    FoutSoort soort;
    std::string bestand; // path as the suite writes it
    std::int64_t regel = 0;
    std::int64_t aantal = 0;
    int ronde = 0;
    int zitting = 0;
    std::string tekst;
    std::string wie;
    std::string reden;
    std::error_code code; // beside reden, to tell a missing file from another error

    [[nodiscard]] const char* what() const noexcept override { return "lauwerkrans::Fout"; }
};

/// The Dutch text of the message box that reports `fout`.
[[nodiscard]] std::string FoutTekst(const Fout& fout);

/// The system's error in Dutch where it is a usual one, else in the system's words.
[[nodiscard]] std::string Reden(const std::error_code& code);

} // namespace lauwerkrans
