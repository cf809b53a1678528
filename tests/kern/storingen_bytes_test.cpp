// Every file that the program reads, cut off at every byte and with every byte replaced: only the
// messages of that file, the list of the run under way stays or is a new one, and with the file
// mended all is as before.
#include <algorithm>
#include <array>
#include <utility>

#include <gtest/gtest.h>

#include "geheugen.h"
#include "storingen_kern.h"

namespace lauwerkrans::proef::storingen {
namespace {

constexpr std::array<char, 10> vervangers = {'\0', '\xFF', ' ', '"',  ',',
                                             '-',  '9',    'x', '\r', '\n'};

/// What a small file may take: the buffer that it is read into, and some for what is made of it.
constexpr std::size_t meesteGeheugen = 256 * 1024;
constexpr std::size_t meesteKeren = 2000;

class ElkeByte : public testing::TestWithParam<std::string> {
protected:
    ElkeByte() : bestand(Bestand(GetParam())), lopend(bank.goedeSessie()) {}

    /// The messages of a step, each of which must belong to the file; how many there were.
    std::size_t tel(Sessie& sessie) {
        const auto meldingen = sessie.neem();
        for (const Melding& melding : meldingen) {
            const std::string tekst = bank.suite().zonderMap(melding.tekst);
            const auto bericht =
                std::find_if(bestand.berichten.begin(), bestand.berichten.end(),
                             [&](const std::string& patroon) { return Past(patroon, tekst); });
            EXPECT_EQ(melding.icoon, Icoon::Uitroep);
            EXPECT_NE(bericht, bestand.berichten.end()) << tekst;
            if (bericht != bestand.berichten.end()) ++gezien.teksten[*bericht];
        }
        return meldingen.size();
    }

    void probeer(const std::string& bytes) {
        ++gezien.invoer;
        bank.suite().schrijf(bestand.pad, bytes);
        lopend->bereken();
        tel(*lopend);
        const Geheugenmeter meter;
        const auto vers = MaakKernSessie(bank.suite());
        EXPECT_TRUE(vers->start());
        vers->bereken();
        const std::size_t meldingen = tel(*vers);
        EXPECT_LE(meter.piek(), meesteGeheugen);
        EXPECT_LE(meter.keren(), meesteKeren);
        const bool geen = vers->lijst() == geenLijst;
        EXPECT_EQ(lopend->lijst(), bestand.bijElkeLezing && !geen ? vers->lijst() : goedeLijst);
        EXPECT_EQ(geen && meldingen == 0, false) << "no list, and no word about it";
    }

    /// After every input a run under way and a fresh one find the good file.
    void herstel() {
        bank.suite().schrijf(bestand.pad, bestand.bytes);
        lopend->bereken();
        EXPECT_TRUE(lopend->neem().empty());
        EXPECT_EQ(lopend->lijst(), goedeLijst);
        static_cast<void>(bank.goedeSessie());
    }

    void probeerEnHerstel(const std::string& bytes, const std::string& wat, std::size_t plaats) {
        probeer(bytes);
        herstel();
        ASSERT_FALSE(HasFailure()) << wat << " at byte " << plaats;
    }

    void knipAf();
    void vervang();

    const Suitebestand& bestand;
    Proefbank bank{MaakKernSessie};
    std::unique_ptr<Sessie> lopend;
    Waarneming gezien;
};

void ElkeByte::knipAf() {
    for (std::size_t lengte = 0; lengte < bestand.bytes.size(); ++lengte)
        ASSERT_NO_FATAL_FAILURE(probeerEnHerstel(bestand.bytes.substr(0, lengte), "cut", lengte));
}

void ElkeByte::vervang() {
    for (std::size_t plaats = 0; plaats < bestand.bytes.size(); ++plaats) {
        for (const char vervanger : vervangers) {
            std::string bytes = bestand.bytes;
            if (bytes[plaats] == vervanger) continue;
            bytes[plaats] = vervanger;
            ASSERT_NO_FATAL_FAILURE(probeerEnHerstel(bytes, "replaced", plaats));
        }
    }
}

/// Every message that is said to belong to a file is one that is seen here.
TEST_P(ElkeByte, MayBeCutOffOrReplaced) {
    ASSERT_NO_FATAL_FAILURE(knipAf());
    DrukAf(bestand.naam, "cut off at every byte", gezien);
    auto berichten = std::exchange(gezien, {}).teksten;
    ASSERT_NO_FATAL_FAILURE(vervang());
    DrukAf(bestand.naam, "each byte replaced by " + std::to_string(vervangers.size()) + " others",
           gezien);
    berichten.merge(gezien.teksten);
    EXPECT_EQ(berichten.size(), bestand.berichten.size());
}

std::vector<std::string> Namen() {
    std::vector<std::string> namen;
    for (const Suitebestand& bestand : Suitebestanden()) {
        if (!bestand.bytes.empty()) namen.push_back(bestand.naam);
    }
    return namen;
}

INSTANTIATE_TEST_SUITE_P(Storingen, ElkeByte, testing::ValuesIn(Namen()), Testnaam);

} // namespace
} // namespace lauwerkrans::proef::storingen
