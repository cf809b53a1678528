#include "storingen_proef.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iostream>
#include <iterator>
#include <utility>

#include <gtest/gtest.h>

namespace lauwerkrans::proef::storingen {

namespace {

/// The longest message that a box on the smallest screen still shows with its button.
constexpr std::size_t langsteMelding = 1600;

std::string Ingevuld(const std::string& tekst, const std::string& reden) {
    const std::string plek = "<reden>";
    const auto plaats = tekst.find(plek);
    return plaats == std::string::npos ? tekst
                                       : std::string(tekst).replace(plaats, plek.size(), reden);
}

std::string Inhoud(const std::filesystem::path& pad) {
    std::ifstream bestand(pad, std::ios::binary);
    return {std::istreambuf_iterator<char>(bestand), {}};
}

/// A text on one line of a Markdown table.
std::string Cel(const std::string& tekst) {
    std::string cel;
    for (const char teken : tekst) {
        if (teken == '\r') continue;
        if (teken == '\n') {
            cel += "↵";
        } else {
            if (teken == '|' || teken == '*' || teken == '<') cel += '\\';
            cel += teken;
        }
    }
    return cel;
}

void DrukRij(const std::string& bestand, const std::string& storing, std::size_t invoer,
             const std::string& meldingen) {
    std::cout << "| " << bestand << " | " << storing << " | " << invoer << " | " << meldingen
              << " | " << (testing::Test::HasFailure() ? "LOST" : "nothing") << " |\n";
}

} // namespace

std::vector<Melding> Sessie::neem() { return std::exchange(meldingen_, {}); }

bool Past(const std::string& patroon, const std::string& tekst) {
    const auto ster = patroon.find('*');
    if (ster == std::string::npos) return patroon == tekst;
    if (!tekst.starts_with(patroon.substr(0, ster))) return false;
    const std::string rest = patroon.substr(ster + 1);
    for (std::size_t i = ster; i <= tekst.size(); ++i) {
        if (Past(rest, tekst.substr(i))) return true;
    }
    return false;
}

Proefbank::Proefbank(MaakSessie maak) : maak_(std::move(maak)) {}

Waarneming Proefbank::neemWaarneming() { return std::exchange(waarneming_, {}); }

std::unique_ptr<Sessie> Proefbank::goedeSessie() {
    auto sessie = maak_(suite_);
    EXPECT_TRUE(sessie->start());
    sessie->bereken();
    controleerMeldingen(*sessie, {}, {}, "with good files");
    EXPECT_EQ(sessie->lijst(), goedeLijst);
    return sessie;
}

void Proefbank::controleerMeldingen(Sessie& sessie, const std::vector<std::string>& verwacht,
                                    const std::string& reden, const char* moment) {
    const std::vector<Melding> getoond = sessie.neem();
    EXPECT_EQ(getoond.size(), verwacht.size()) << moment;
    for (std::size_t i = 0; i < getoond.size(); ++i) {
        const std::string tekst = suite_.zonderMap(getoond[i].tekst);
        EXPECT_EQ(getoond[i].icoon, Icoon::Uitroep) << moment;
        EXPECT_LE(getoond[i].tekst.size(), langsteMelding) << moment;
        const std::string hoort = i < verwacht.size() ? Ingevuld(verwacht[i], reden) : "no message";
        ASSERT_TRUE(Past(hoort, tekst.substr(0, langsteMelding)))
            << moment << "\nexpected " << hoort << "\nshown    " << tekst.substr(0, langsteMelding);
        ++waarneming_.teksten[tekst.substr(0, langsteMelding)];
    }
}

/// Each message is one that belongs to the fault or to the file, or says that a list was written.
void Proefbank::controleerBekend(Sessie& sessie, const Suitebestand& bestand,
                                 const Verwacht& verwacht, const std::string& reden) {
    std::vector<std::string> bekend = {"\r\nHet CSV-bestand '*", "\r\nHet HTMLbestand heet: *"};
    for (const auto& berichten : {bestand.berichten, verwacht.start, verwacht.bereken})
        bekend.insert(bekend.end(), berichten.begin(), berichten.end());
    for (const Melding& melding : sessie.neem()) {
        const std::string tekst = suite_.zonderMap(melding.tekst);
        EXPECT_LE(melding.tekst.size(), langsteMelding);
        EXPECT_TRUE(std::any_of(bekend.begin(), bekend.end(), [&](const std::string& patroon) {
            return Past(Ingevuld(patroon, reden), tekst);
        })) << tekst;
    }
}

void Proefbank::versBegin(const Suitebestand& bestand, const Verwacht& verwacht,
                          const std::string& reden) {
    const auto sessie = maak_(suite_);
    const bool gestart = sessie->start();
    controleerMeldingen(*sessie, verwacht.start, reden, "at a start");
    EXPECT_EQ(gestart, bestand.naam != "Mappen.ini" || verwacht.start.empty() ||
                           verwacht.start[0].find("kan niet worden gelezen") == std::string::npos);
    if (!gestart) return;
    sessie->bereken();
    controleerMeldingen(*sessie, verwacht.bereken, reden, "at \"Bereken\" after that start");
    EXPECT_EQ(sessie->lijst(), verwacht.lijst);
    sessie->doeVerder();
    controleerBekend(*sessie, bestand, verwacht, reden);
    sessie->sluit();
    controleerMeldingen(*sessie, verwacht.einde, reden, "at the end");
}

void Proefbank::beproef(const Suitebestand& bestand, const Storing& storing,
                        const std::string& reden,
                        const std::function<void(const std::function<void()>&)>& rondom) {
    const Verwacht& verwacht = storing.verwacht;
    const std::vector<std::string> niets;
    suite_.legAan();
    const auto lopend = goedeSessie();
    const std::string instellingen = lopend->instellingen();
    storing.ingreep(suite_, bestand);
    ++waarneming_.invoer;

    lopend->bereken();
    const bool merkt = bestand.bijElkeLezing && !verwacht.lopend;
    controleerMeldingen(*lopend, merkt ? verwacht.bereken : verwacht.lopend.value_or(niets), reden,
                        "in the run under way");
    EXPECT_EQ(lopend->lijst(), merkt && verwacht.lijst != geenLijst ? verwacht.lijst : goedeLijst);
    EXPECT_EQ(lopend->instellingen(), instellingen);

    rondom([&] { versBegin(bestand, verwacht, reden); });
    if (bestand.naam != "Lauwr.ini") {
        EXPECT_EQ(Inhoud(suite_.map().map() / "Lauwerkrans" / "Lauwr.ini"),
                  Bestand("Lauwr.ini").bytes);
    }

    suite_.legAan();
    lopend->bereken();
    controleerMeldingen(*lopend, {}, {}, "after mending, in the run under way");
    EXPECT_EQ(lopend->lijst(), goedeLijst);
    EXPECT_EQ(lopend->instellingen(), instellingen);
    static_cast<void>(goedeSessie());
}

std::string Testnaam(const testing::TestParamInfo<std::string>& naam) {
    std::string letters;
    for (const char teken : naam.param) {
        if (std::isalnum(static_cast<unsigned char>(teken)) != 0) letters += teken;
    }
    return letters;
}

void DrukAf(const std::string& bestand, const std::string& storing, const Waarneming& waarneming) {
    std::string gezien;
    for (const auto& [tekst, keren] : waarneming.teksten) {
        if (!gezien.empty()) gezien += "<br>";
        gezien += std::to_string(keren) + " × " + Cel(tekst);
    }
    DrukRij(bestand, storing, waarneming.invoer, gezien.empty() ? "none" : gezien);
}

void DrukSamenAf(const std::string& bestand, const Waarneming& waarneming) {
    std::size_t meldingen = 0;
    for (const auto& [tekst, keren] : waarneming.teksten)
        meldingen += keren;
    DrukRij(bestand, "all of the table", waarneming.invoer, std::to_string(meldingen));
}

} // namespace lauwerkrans::proef::storingen
