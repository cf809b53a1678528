// What only other processes show: a full disk, a kill in the middle, copies started at once.
#include "data/systeem.h"

#include <gtest/gtest.h>

#include <array>
#include <fstream>
#include <iterator>

#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "proef.h"
#include "schrijfproef_posix.h"

namespace lauwerkrans {
namespace {

std::string Inhoud(const std::filesystem::path& pad) {
    std::ifstream bestand(pad, std::ios::binary);
    return {std::istreambuf_iterator<char>(bestand), {}};
}

TEST(VervangBestand, AFileThatCannotGrowLeavesTheOldOneWhole) {
    const proef::Proefmap map;
    map.schrijf("lijst", "oud");
    {
        const proef::KleineBestanden klein(1000);
        EXPECT_EQ(systeem::VervangBestand(map.pad() + "/lijst", std::string(5000, 'x')),
                  std::errc::file_too_large);
    }
    EXPECT_EQ(map.inhoud(), (std::map<std::string, std::string>{{"lijst", "oud"}}));
}

/// A pipe would be waited for, a device read until the memory is full.
TEST(LeesBestand, ReadsNothingThatIsNoFile) {
    const proef::Proefmap map;
    const std::string pijp = map.pad() + "/pijp";
    ASSERT_EQ(::mkfifo(pijp.c_str(), 0600), 0);
    std::filesystem::create_symlink("/dev/zero", map.map() / "nullen");
    systeem::Leesbuffer buffer;
    EXPECT_EQ(systeem::LeesBestand(pijp, buffer), std::errc::file_exists);
    EXPECT_EQ(systeem::LeesBestand(map.pad() + "/nullen", buffer), std::errc::file_exists);
    EXPECT_EQ(buffer.bytes(), "");
}

int geleend = -1;
void GeefTerug(int /*sein*/) { ::fcntl(geleend, F_SETLEASE, F_UNLCK); }

/// A file server has the file on loan and gives it back when somebody asks for it.
TEST(LeesBestand, WaitsForAFileThatIsOnLoan) {
    const proef::Proefmap map;
    map.schrijf("lijst", "inhoud");
    geleend = ::open((map.pad() + "/lijst").c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_GE(geleend, 0);
    struct ::sigaction nieuw {};
    struct ::sigaction oud {};
    nieuw.sa_handler = GeefTerug;
    nieuw.sa_flags = SA_RESTART;
    ::sigaction(SIGIO, &nieuw, &oud);
    ::fcntl(geleend, F_SETLEASE, F_WRLCK); // on a disk that lends nothing it is a file as any other
    systeem::Leesbuffer buffer;
    EXPECT_FALSE(systeem::LeesBestand(map.pad() + "/lijst", buffer));
    EXPECT_EQ(buffer.bytes(), "inhoud");
    ::sigaction(SIGIO, &oud, nullptr);
    ::close(geleend);
}

TEST(VervangBestand, WritesThroughNoLinkThatStandsInTheWay) {
    const proef::Proefmap map;
    map.schrijf("ander", "van een ander");
    std::filesystem::create_symlink(map.map() / "ander", map.map() / "lijst.nieuw");
    std::filesystem::create_symlink(map.map() / "ander", map.map() / "lijst");
    EXPECT_FALSE(systeem::VervangBestand(map.pad() + "/lijst", "nieuw"));
    EXPECT_EQ(map.inhoud(),
              (std::map<std::string, std::string>{{"ander", "van een ander"}, {"lijst", "nieuw"}}));
    EXPECT_FALSE(std::filesystem::is_symlink(map.map() / "lijst"));
}

TEST(VervangBestand, PassesOverAPartThatNobodyMayWrite) {
    const proef::Proefmap map;
    map.schrijf("lijst.nieuw", "half");
    std::filesystem::permissions(map.map(), std::filesystem::perms::all);
    {
        const proef::ZonderRechten zonder(map.map() / "lijst.nieuw");
        EXPECT_FALSE(systeem::VervangBestand(map.pad() + "/lijst", "nieuw"));
    }
    EXPECT_EQ(map.inhoud(), (std::map<std::string, std::string>{{"lijst", "nieuw"}}));
}

TEST(VervangBestand, PutsNothingInPlaceOfAFolder) {
    const proef::Proefmap map;
    map.schrijf("lijst/x", "x");
    EXPECT_EQ(systeem::VervangBestand(map.pad() + "/lijst", "nieuw"), std::errc::is_a_directory);
    map.maakMap("ander.nieuw");
    EXPECT_EQ(systeem::VervangBestand(map.pad() + "/ander", "nieuw"), std::errc::file_exists);
    EXPECT_EQ(map.inhoud(), (std::map<std::string, std::string>{{"lijst/x", "x"}}));
}

TEST(VervangBestand, AKillAtAnyMomentLeavesTheOldFileOrTheNewOne) {
    const proef::Proefmap map;
    const std::string oud(20'000, 'o');
    const std::string nieuw(30'000, 'n');
    for (int keer = 0; keer < 50; ++keer) {
        map.schrijf("lijst", oud);
        const pid_t kind = ::fork();
        if (kind == 0) {
            for (;;)
                static_cast<void>(systeem::VervangBestand(map.pad() + "/lijst", nieuw));
        }
        ::usleep(static_cast<useconds_t>(100 + keer * 97));
        ::kill(kind, SIGKILL);
        int stand = 0;
        ::waitpid(kind, &stand, 0);
        const std::string inhoud = Inhoud(map.map() / "lijst");
        EXPECT_TRUE(inhoud == oud || inhoud == nieuw) << inhoud.size();
    }
}

/// A name of this test process alone.
std::string Naam() { return "lauwerkrans-proef-" + std::to_string(::getpid()); }

/// What a copy in a process of its own does: says whether it may stay, and waits for its end.
[[noreturn]] void WordKopie(const std::string& naam, int pijp) {
    const systeem::EnigeKopie kopie(naam);
    const char antwoord = kopie.gelukt() ? 'j' : 'n';
    if (::write(pijp, &antwoord, 1) == 1) ::pause();
    ::_exit(1);
}

TEST(EnigeKopie, OfTwentyStartedAtOnceOneStays) {
    constexpr int aantal = 20;
    const std::string naam = Naam();
    std::array<int, 2> sein{}; // its closing starts all of them
    std::array<int, 2> antwoorden{};
    ASSERT_EQ(::pipe(sein.data()), 0);
    ASSERT_EQ(::pipe(antwoorden.data()), 0);
    std::array<pid_t, aantal> kinderen{};
    for (pid_t& kind : kinderen) {
        kind = ::fork();
        if (kind != 0) continue;
        ::close(sein[1]);
        char niets = ' ';
        if (::read(sein[0], &niets, 1) != 0) ::_exit(1);
        WordKopie(naam, antwoorden[1]);
    }
    ::close(sein[1]);
    int gelukt = 0;
    for (int i = 0; i < aantal; ++i) {
        char antwoord = ' ';
        ASSERT_EQ(::read(antwoorden[0], &antwoord, 1), 1);
        if (antwoord == 'j') ++gelukt;
    }
    EXPECT_EQ(gelukt, 1);
    for (const pid_t kind : kinderen) {
        ::kill(kind, SIGKILL);
        int stand = 0;
        ::waitpid(kind, &stand, 0);
    }
    for (const int einde : {sein[0], antwoorden[0], antwoorden[1]})
        ::close(einde);
}

TEST(EnigeKopie, AKilledCopyKeepsNobodyOut) {
    const std::string naam = Naam();
    std::array<int, 2> pijp{};
    ASSERT_EQ(::pipe(pijp.data()), 0);
    const pid_t kind = ::fork();
    if (kind == 0) WordKopie(naam, pijp[1]);
    char antwoord = ' ';
    ASSERT_EQ(::read(pijp[0], &antwoord, 1), 1);
    EXPECT_EQ(antwoord, 'j');
    EXPECT_FALSE(systeem::EnigeKopie(Naam()).gelukt());
    ::kill(kind, SIGKILL);
    int stand = 0;
    ::waitpid(kind, &stand, 0);
    EXPECT_TRUE(systeem::EnigeKopie(Naam()).gelukt());
    ::close(pijp[0]);
    ::close(pijp[1]);
}

} // namespace
} // namespace lauwerkrans
