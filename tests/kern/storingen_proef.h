// Drives the program through a fault: the core by itself or the real window, whatever stands behind
// `Sessie`.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "storingen.h"

namespace lauwerkrans::proef::storingen {

/// One run of the program on the club, from start to end.
class Sessie {
public:
    Sessie() = default;
    Sessie(const Sessie&) = delete;
    Sessie(Sessie&&) = delete;
    Sessie& operator=(const Sessie&) = delete;
    Sessie& operator=(Sessie&&) = delete;
    virtual ~Sessie() = default;

    /// False when the program ends at once.
    virtual bool start() = 0;
    /// "Bereken" of all lines.
    virtual void bereken() = 0;
    /// What else can be done with the list: control lists, a member, previews and list files.
    virtual void doeVerder() {}
    /// Leaves the program.
    virtual void sluit() = 0;
    /// The list on show, as in Verwacht.
    [[nodiscard]] virtual std::string lijst() const = 0;
    /// The options, the minimum numbers and the heading, as one text.
    [[nodiscard]] virtual std::string instellingen() const = 0;

    /// The messages since the last call.
    [[nodiscard]] std::vector<Melding> neem();

protected:
    std::vector<Melding> meldingen_;
};

using MaakSessie = std::function<std::unique_ptr<Sessie>(const Suite&)>;

/// Whether a text is as a pattern says, in which "*" is any text.
[[nodiscard]] bool Past(const std::string& patroon, const std::string& tekst);

/// What a fault showed.
struct Waarneming {
    std::size_t invoer = 0;                     // how many inputs were tried
    std::map<std::string, std::size_t> teksten; // messages by text, "<map>" for the folder
};

/// A club and the program on it.
class Proefbank {
public:
    explicit Proefbank(MaakSessie maak);

    /// Breaks the file and checks everything that is expected: of the run that is under way and of
    /// a fresh start; then mends it and checks that both are as before. `rondom` is called with the
    /// work of the fresh start.
    void beproef(const Suitebestand& bestand, const Storing& storing, const std::string& reden,
                 const std::function<void(const std::function<void()>&)>& rondom);

    [[nodiscard]] Suite& suite() { return suite_; }
    [[nodiscard]] Waarneming neemWaarneming();

    /// A start that succeeds without a message, and its list.
    [[nodiscard]] std::unique_ptr<Sessie> goedeSessie();

private:
    void controleerMeldingen(Sessie& sessie, const std::vector<std::string>& verwacht,
                             const std::string& reden, const char* moment);
    void controleerBekend(Sessie& sessie, const Suitebestand& bestand, const Verwacht& verwacht,
                          const std::string& reden);
    void versBegin(const Suitebestand& bestand, const Verwacht& verwacht, const std::string& reden);

    Suite suite_;
    MaakSessie maak_;
    Waarneming waarneming_;
};

/// The name of a file as the name of a test.
[[nodiscard]] std::string Testnaam(const testing::TestParamInfo<std::string>& naam);

/// A row of the printed table.
void DrukAf(const std::string& bestand, const std::string& storing, const Waarneming& waarneming);

/// One row for all faults of a file, with the number of its messages.
void DrukSamenAf(const std::string& bestand, const Waarneming& waarneming);

} // namespace lauwerkrans::proef::storingen
