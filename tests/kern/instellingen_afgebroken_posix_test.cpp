// Writing the settings while somebody pulls the plug: the file is the old one or a new one, whole.
#include "app/modInstellingen.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

#include "proef.h"

namespace lauwerkrans {
namespace {

/// Settings whose heading says which they are, in so many letters.
struct Versie {
    Versie(const std::string& pad, char letter, std::size_t lengte) {
        instellingen.bestand = pad;
        instellingen.KopTekst = std::string(lengte, letter);
        stand.criteria.assign(26, "13");
    }
    void schrijf() const { SchrijfInstellingen(instellingen, stand); }

    Instellingen instellingen;
    IniStand stand;
};

std::string Inhoud(const std::string& pad) {
    std::ifstream bestand(pad, std::ios::binary);
    return {std::istreambuf_iterator<char>(bestand), {}};
}

/// Writes both in turn, for ever, in a process of its own.
pid_t StartSchrijver(const Versie& een, const Versie& ander) {
    const pid_t kind = ::fork();
    while (kind == 0) {
        een.schrijf();
        ander.schrijf();
    }
    return kind;
}

TEST(InstellingenAfgebroken, AKillLeavesOneOfThemWholeAndTheNextWriteSucceeds) {
    const proef::Proefmap map;
    const std::string pad = InstellingenPad(map.pad());
    const std::string bestand = map.pad() + "/Lauwr.ini";
    const Versie kort(pad, 'k', 10);
    const Versie lang(pad, 'l', 200'000);
    lang.schrijf();
    const std::string langeBytes = Inhoud(bestand);
    kort.schrijf();
    const std::string korteBytes = Inhoud(bestand);
    ASSERT_NE(korteBytes, langeBytes);
    int halveResten = 0;
    for (int keer = 0; keer < 60; ++keer) {
        const pid_t kind = StartSchrijver(lang, kort);
        ::usleep(static_cast<useconds_t>(1000 + keer * 173));
        ::kill(kind, SIGKILL);
        int stand = 0;
        ASSERT_EQ(::waitpid(kind, &stand, 0), kind);
        ASSERT_TRUE(WIFSIGNALED(stand)) << "it writes until it is killed";
        const std::string bytes = Inhoud(bestand);
        EXPECT_TRUE(bytes == korteBytes || bytes == langeBytes) << bytes.size() << " bytes";
        if (std::filesystem::exists(bestand + ".nieuw")) ++halveResten;
        kort.schrijf();
        EXPECT_EQ(Inhoud(bestand), korteBytes);
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(map.map()), {}), 1);
    }
    EXPECT_GT(halveResten, 0) << "no kill came while it wrote: this test showed nothing";
}

} // namespace
} // namespace lauwerkrans
