// What only other processes show: a full disk, a kill in the middle, copies started at once.
#include "data/systeem.h"

#include <gtest/gtest.h>

#include <array>
#include <fstream>
#include <iterator>

#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "proef.h"

namespace lauwerkrans {
namespace {

std::string Inhoud(const std::filesystem::path& pad) {
    std::ifstream bestand(pad, std::ios::binary);
    return {std::istreambuf_iterator<char>(bestand), {}};
}

/// Runs in a process of its own, whose files may hold 1000 bytes: a full disk.
int SchrijfOpVolleSchijf(const std::string& pad) {
    const ::rlimit grens{1000, 1000};
    ::setrlimit(RLIMIT_FSIZE, &grens);
    std::signal(SIGXFSZ, SIG_IGN);
    return systeem::VervangBestand(pad, std::string(5000, 'x')) ? 0 : 1;
}

TEST(VervangBestand, AFullDiskLeavesTheOldFileWhole) {
    const proef::Proefmap map;
    map.schrijf("lijst", "oud");
    const pid_t kind = ::fork();
    if (kind == 0) ::_exit(SchrijfOpVolleSchijf(map.pad() + "/lijst"));
    int stand = 0;
    ASSERT_EQ(::waitpid(kind, &stand, 0), kind);
    EXPECT_TRUE(WIFEXITED(stand) && WEXITSTATUS(stand) == 0);
    EXPECT_EQ(Inhoud(map.map() / "lijst"), "oud");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(map.map()), {}), 1);
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
        static_cast<void>(::read(sein[0], &niets, 1));
        const systeem::EnigeKopie kopie(naam);
        const char antwoord = kopie.gelukt() ? 'j' : 'n';
        static_cast<void>(::write(antwoorden[1], &antwoord, 1));
        ::pause();
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
    if (kind == 0) {
        const systeem::EnigeKopie kopie(naam);
        const char antwoord = kopie.gelukt() ? 'j' : 'n';
        static_cast<void>(::write(pijp[1], &antwoord, 1));
        ::pause();
    }
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
