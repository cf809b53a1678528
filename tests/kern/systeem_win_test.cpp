// What only Windows has: files in use, long paths, drives, wide names; and what only other
// processes show.
#include "data/systeem.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <memory>
#include <random>
#include <thread>

#include <windows.h>

#include "proef.h"

namespace lauwerkrans {
namespace {

std::string Inhoud(const std::string& pad) {
    systeem::Leesbuffer buffer;
    const auto fout = systeem::LeesBestand(pad, buffer);
    return fout ? fout.message() : std::string(buffer.bytes());
}

std::vector<std::string> Namen(const std::string& pad) {
    std::vector<std::string> namen;
    EXPECT_FALSE(systeem::NamenInMap(pad, namen));
    std::erase(namen, ".");
    std::erase(namen, "..");
    return namen;
}

/// Opens a file as a spreadsheet does: others may read it, no more.
std::shared_ptr<void> OpenElders(const std::filesystem::path& pad) {
    const HANDLE greep = ::CreateFileW(pad.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ,
                                       nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_NE(greep, INVALID_HANDLE_VALUE);
    return {greep, [](void* open) { ::CloseHandle(open); }};
}

TEST(VervangBestand, LeavesAFileThatAnotherProgramHasOpenAsItWas) {
    const proef::Proefmap map;
    map.schrijf("lijst", "oud");
    const auto elders = OpenElders(map.map() / "lijst");
    EXPECT_EQ(systeem::VervangBestand(map.pad() + "\\lijst", "nieuw"),
              std::errc::device_or_resource_busy);
    EXPECT_EQ(Inhoud(map.pad() + "\\lijst"), "oud");
    EXPECT_EQ(Namen(map.pad()), std::vector<std::string>{"lijst"});
}

TEST(VervangBestand, WaitsForOneThatHasItOpenForAMoment) {
    const proef::Proefmap map;
    map.schrijf("lijst", "oud");
    auto elders = OpenElders(map.map() / "lijst");
    std::thread sluiter([&elders] {
        ::Sleep(120);
        elders.reset();
    });
    EXPECT_FALSE(systeem::VervangBestand(map.pad() + "\\lijst", "nieuw"));
    sluiter.join();
    EXPECT_EQ(Inhoud(map.pad() + "\\lijst"), "nieuw");
}

TEST(VervangBestand, PutsNoFileInPlaceOfAFolder) {
    const proef::Proefmap map;
    map.maakMap("lijst");
    EXPECT_EQ(systeem::VervangBestand(map.pad() + "\\lijst", "nieuw"), std::errc::is_a_directory);
    EXPECT_EQ(Namen(map.pad()), std::vector<std::string>{"lijst"});
}

TEST(VervangBestand, InAFolderThatIsMissingIsAnError) {
    const proef::Proefmap map;
    EXPECT_EQ(systeem::VervangBestand(map.pad() + "\\geen\\lijst", "nieuw"),
              std::errc::no_such_file_or_directory);
}

TEST(Systeempad, MayBeLongerThan260Characters) {
    const proef::Proefmap map;
    constexpr int diepte = 8;
    std::string pad = map.pad();
    for (int i = 0; i < diepte; ++i) {
        pad += "\\" + std::string(50, 'd');
        ASSERT_FALSE(systeem::MaakMap(pad));
    }
    EXPECT_FALSE(systeem::VervangBestand(pad + "\\lijst.txt", "een"));
    EXPECT_FALSE(systeem::VervangBestand(pad + "/lijst.txt", "twee"));
    EXPECT_EQ(Inhoud(pad + "\\\\.\\..\\" + std::string(50, 'D') + "\\LIJST.TXT"), "twee");
    EXPECT_TRUE(systeem::IsBestand(pad + "\\lijst.txt"));
    EXPECT_FALSE(systeem::IsBestand(pad));
    EXPECT_TRUE(systeem::Bestaat(pad + "\\"));
    EXPECT_EQ(Namen(pad), std::vector<std::string>{"lijst.txt"});
    // The standard library cannot take such names away.
    std::wstring breed = LR"(\\?\)" + std::filesystem::path(pad).wstring();
    EXPECT_NE(::DeleteFileW((breed + L"\\lijst.txt").c_str()), 0);
    for (int i = 0; i < diepte; ++i) {
        EXPECT_NE(::RemoveDirectoryW(breed.c_str()), 0);
        breed.resize(breed.size() - 51);
    }
}

TEST(Systeempad, MayHaveAnyCharacter) {
    const proef::Proefmap map;
    const std::string naam = "Café – Łódź ♠ 日本 \xF0\x9F\x83\x8F 'x' & 100%.txt";
    EXPECT_FALSE(systeem::VervangBestand(map.pad() + "\\" + naam, "inhoud"));
    EXPECT_EQ(Namen(map.pad()), std::vector<std::string>{naam});
    EXPECT_EQ(Inhoud(map.pad() + "\\" + naam), "inhoud");
}

TEST(Systeempad, MayBeADrive) {
    EXPECT_TRUE(systeem::Bestaat("C:\\"));
    EXPECT_FALSE(systeem::IsBestand("C:\\"));
    EXPECT_FALSE(Namen("C:\\").empty());
    EXPECT_EQ(Namen("C:/"), Namen("C:\\"));
    EXPECT_EQ(Namen("C:\\\\"), Namen("C:\\"));
    EXPECT_EQ(Inhoud("C:\\"), Inhoud("C:\\geen bestand"));
}

TEST(Systeempad, MayBeOnAnotherComputer) {
    systeem::Leesbuffer buffer;
    for (const char* pad :
         {R"(\\geen-computer.invalid\map\x.txt)", "//geen-computer.invalid/map"}) {
        EXPECT_EQ(systeem::LeesBestand(pad, buffer), std::errc::no_such_file_or_directory) << pad;
        EXPECT_FALSE(systeem::Bestaat(pad)) << pad;
    }
}

TEST(Systeempad, IsTakenAsItIsWhenItHasItsPrefix) {
    const proef::Proefmap map;
    map.schrijf("x.txt", "inhoud");
    EXPECT_EQ(Inhoud(R"(\\?\)" + map.pad() + R"(\x.txt)"), "inhoud");
}

TEST(Systeempad, ThatNoFileCanHaveIsMissing) {
    systeem::Leesbuffer buffer;
    for (const char* pad : {"", "C:\\x*?.txt", "C:\\a<b>|c", "Q:\\x.txt"})
        EXPECT_EQ(systeem::LeesBestand(pad, buffer), std::errc::no_such_file_or_directory) << pad;
}

TEST(Systeemfout, IsInWordsOfTheSystemAsUtf8) {
    const proef::Proefmap map;
    map.maakOnleesbaar("x.txt");
    systeem::Leesbuffer buffer;
    const std::string woorden = systeem::LeesBestand(map.pad() + "\\x.txt", buffer).message();
    EXPECT_GT(woorden.size(), 5U);
    EXPECT_EQ(woorden.find_first_of("\r\n"), std::string::npos);
}

TEST(EigenCodetabel, HasACharacterOfItsOwnForEveryByte) {
    CPINFO gegevens{};
    ASSERT_NE(::GetCPInfo(CP_ACP, &gegevens), 0);
    const auto helft = systeem::EigenCodetabel();
    ASSERT_EQ(helft.has_value(), gegevens.MaxCharSize == 1);
    if (!helft) return;
    auto tekens = helft->tekens;
    std::sort(tekens.begin(), tekens.end());
    EXPECT_EQ(std::unique(tekens.begin(), tekens.end()), tekens.end());
    EXPECT_GE(tekens.front(), 0x80);
}

std::string Naam() { return "lauwerkrans-proef-" + std::to_string(std::random_device()()); }

/// The folder of this program.
std::filesystem::path EigenMap() {
    std::array<wchar_t, 1024> pad{};
    ::GetModuleFileNameW(nullptr, pad.data(), pad.size());
    return std::filesystem::path(pad.data()).parent_path();
}

HANDLE Gebeurtenis(const std::string& naam) {
    return ::CreateEventA(nullptr, TRUE, FALSE, naam.c_str());
}

/// Another process, ready to begin its task when the event `sein` comes.
class Kind {
public:
    Kind(const std::string& sein, const std::string& taak, const std::string& voorwerp) {
        const std::string klaar = Naam();
        const HANDLE gereed = Gebeurtenis(klaar);
        const auto programma = EigenMap() / "systeemkind.exe";
        std::string regel = "systeemkind " + klaar + " " + sein + " " + taak;
        regel.append(" \"").append(voorwerp).append("\"");
        std::wstring breed(regel.begin(), regel.end()); // ASCII
        STARTUPINFOW start{};
        start.cb = sizeof start;
        EXPECT_NE(::CreateProcessW(programma.c_str(), breed.data(), nullptr, nullptr, FALSE, 0,
                                   nullptr, nullptr, &start, &proces_),
                  0);
        EXPECT_EQ(::WaitForSingleObject(gereed, 60'000), WAIT_OBJECT_0);
        ::CloseHandle(gereed);
    }
    Kind(const Kind&) = delete;
    Kind(Kind&&) = delete;
    Kind& operator=(const Kind&) = delete;
    Kind& operator=(Kind&&) = delete;
    ~Kind() {
        dood();
        ::CloseHandle(proces_.hProcess);
        ::CloseHandle(proces_.hThread);
    }

    void dood() const {
        ::TerminateProcess(proces_.hProcess, 9);
        ::WaitForSingleObject(proces_.hProcess, INFINITE);
    }
    /// Whether it ends by itself within so many milliseconds.
    [[nodiscard]] bool eindigt(DWORD binnen) const {
        return ::WaitForSingleObject(proces_.hProcess, binnen) == WAIT_OBJECT_0;
    }

private:
    PROCESS_INFORMATION proces_{};
};

/// An event that starts the processes that wait for it.
class Sein {
public:
    Sein() : gebeurtenis_(Gebeurtenis(naam)) {}
    Sein(const Sein&) = delete;
    Sein(Sein&&) = delete;
    Sein& operator=(const Sein&) = delete;
    Sein& operator=(Sein&&) = delete;
    ~Sein() { ::CloseHandle(gebeurtenis_); }
    void geef() const { ::SetEvent(gebeurtenis_); }

    const std::string naam = Naam();

private:
    HANDLE gebeurtenis_;
};

TEST(VervangBestand, AKillAtAnyMomentLeavesTheOldFileOrTheNewOne) {
    const proef::Proefmap map;
    const std::string oud(20'000, 'o');
    const std::string nieuw(30'000, 'n');
    int vervangen = 0;
    for (int keer = 0; keer < 20; ++keer) {
        map.schrijf("lijst", oud);
        const Sein sein;
        const Kind kind(sein.naam, "vervang", map.pad() + "\\lijst");
        sein.geef();
        ::Sleep(static_cast<DWORD>(keer * 2));
        kind.dood();
        const std::string inhoud = Inhoud(map.pad() + "\\lijst");
        EXPECT_TRUE(inhoud == oud || inhoud == nieuw) << inhoud.size();
        if (inhoud == nieuw) ++vervangen;
    }
    EXPECT_GT(vervangen, 0);
}

TEST(EnigeKopie, OfTenStartedAtOnceOneStays) {
    const Sein sein;
    const std::string naam = Naam();
    std::vector<std::unique_ptr<Kind>> kinderen(10);
    for (auto& kind : kinderen)
        kind = std::make_unique<Kind>(sein.naam, "enige", naam);
    sein.geef();
    // The first that stays is waited for in vain; by then the others have long had their answer.
    const auto blijft = [](const auto& kind) { return !kind->eindigt(3'000); };
    EXPECT_EQ(std::count_if(kinderen.begin(), kinderen.end(), blijft), 1);
    EXPECT_FALSE(systeem::EnigeKopie(naam).gelukt());
}

TEST(EnigeKopie, AKilledCopyKeepsNobodyOut) {
    const Sein sein;
    const std::string naam = Naam();
    const Kind kind(sein.naam, "enige", naam);
    sein.geef();
    EXPECT_FALSE(kind.eindigt(1'000));
    EXPECT_FALSE(systeem::EnigeKopie(naam).gelukt());
    kind.dood();
    EXPECT_TRUE(systeem::EnigeKopie(naam).gelukt());
}

} // namespace
} // namespace lauwerkrans
