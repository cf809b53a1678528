// What is wrong where. One record for every error that the user must read; the Dutch texts stand
// beside each other in fout.cpp.
#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>
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

/// A text of a file as a message box shows it: what is longer than `meeste` bytes (UTF-8) ends in
/// " ...", and a control character is a question mark.
constexpr std::size_t meesteInMelding = 120;
[[nodiscard]] std::string InMelding(const std::string& tekst, std::size_t meeste = meesteInMelding);

/// The same of bytes of the code page; of a long text only the beginning is looked at.
[[nodiscard]] std::string BytesInMelding(std::string_view bytes);

/// A path as the system's users write it, as a message box shows it.
[[nodiscard]] std::string PadInMelding(const std::string& pad);

/// As much of a text of a file as an error needs to carry for its message.
[[nodiscard]] inline std::string_view Begin(std::string_view bytes) {
    return bytes.substr(0, meesteInMelding + 1);
}

/// The Dutch text of the message box that reports `fout`.
[[nodiscard]] std::string FoutTekst(const Fout& fout);

/// The system's error in Dutch where it is a usual one, else in the system's words.
[[nodiscard]] std::string Reden(const std::error_code& code);

} // namespace lauwerkrans
