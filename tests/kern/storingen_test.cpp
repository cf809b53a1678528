// Every file that the program reads, in every way in which it can be broken: the message that
// belongs to it, the list that stays, memory that the input justifies, and a program that goes on.
#include <algorithm>
#include <fstream>
#include <system_error>

#include <gtest/gtest.h>

#include "data/fout.h"
#include "data/zitregels.h"
#include "geheugen.h"
#include "storingen_kern.h"

namespace lauwerkrans::proef::storingen {
namespace {

/// Memory that a start and a calculation may take: the readers' buffer grows by doubling, a text is
/// kept in the code page and as UTF-8, and a list entry is made of its fields; each field or line
/// may become a text of its own in a table that grows; the score table has its room at once.
constexpr std::size_t perByte = 8;
constexpr std::size_t perDeel = 96;
constexpr std::size_t vast = 256 * 1024;
constexpr std::size_t grootsteTabel = 99 * 99 * parenPerZitting * sizeof(ZitRegel);

/// Blocks asked for: some for a field or a line, some for the start itself.
constexpr std::size_t kerenPerDeel = 3;
constexpr std::size_t kerenVast = 2000;

/// How much input a fault left in the place of a file, and in how many fields or lines.
struct Omvang {
    std::size_t bytes = 0;
    std::size_t delen = 0;
};

Omvang Meet(const std::filesystem::path& pad) {
    Omvang omvang;
    std::ifstream bestand(pad, std::ios::binary);
    std::vector<char> deel(1'000'000);
    while (bestand.read(deel.data(), static_cast<std::streamsize>(deel.size())) ||
           bestand.gcount() > 0) {
        const auto einde = deel.begin() + bestand.gcount();
        omvang.bytes += static_cast<std::size_t>(bestand.gcount());
        for (const char scheiding : {',', '\r', '\n'}) {
            omvang.delen += static_cast<std::size_t>(std::count(deel.begin(), einde, scheiding));
        }
    }
    return omvang;
}

class PerBestand : public testing::TestWithParam<std::string> {};

TEST_P(PerBestand, MayHaveEveryFault) {
    const Suitebestand& bestand = Bestand(GetParam());
    Proefbank bank(MaakKernSessie);
    const std::string reden = Reden(std::make_error_code(onleesbaarFout));
    for (const Storing& storing : Storingen(bestand.naam)) {
        SCOPED_TRACE(storing.naam);
        bank.beproef(bestand, storing, reden, [&](const std::function<void()>& werk) {
            const Omvang omvang = Meet(bank.suite().map().map() / bestand.pad);
            const std::size_t tabel = storing.naam.starts_with("99 x 99") ? grootsteTabel : 0;
            const Geheugenmeter meter;
            werk();
            EXPECT_LE(meter.piek(), perByte * omvang.bytes + perDeel * omvang.delen + tabel + vast);
            EXPECT_LE(meter.keren(), kerenPerDeel * omvang.delen + kerenVast);
        });
        DrukAf(bestand.naam, storing.naam, bank.neemWaarneming());
    }
}

INSTANTIATE_TEST_SUITE_P(Storingen, PerBestand, testing::ValuesIn(Bestandsnamen()), Testnaam);

} // namespace
} // namespace lauwerkrans::proef::storingen
