// Writing the settings and the lists while somebody pulls the plug: each file is the old one or a
// new one, whole, and what half a file leaves behind is in nobody's way.
#include <gtest/gtest.h>

#include <array>
#include <iostream>
#include <random>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

#include "app/modInstellingen.h"
#include "output/modMaakCSV.h"
#include "output/modMaakHtml.h"
#include "uitvoerproef.h"

namespace lauwerkrans {
namespace {

using Inhoud = std::map<std::string, std::string>;

class Afgebroken : public proef::UitvoerTest {
protected:
    /// Writes all three files, this one first, with a heading that says which version they are.
    void schrijf(char letter, std::size_t lengte, int eerste) {
        uitvoer.KopTekst.assign(lengte, letter);
        for (int i = 0; i < 3; ++i) {
            const int welk = (eerste + i) % 3;
            if (welk == 0) schrijfInstellingen();
            if (welk == 1) MaakCSV_Lijnen(uitvoer);
            if (welk == 2) MaakHtml(uitvoer);
        }
    }
    void schrijfKort(int eerste = 0) { schrijf('k', 10, eerste); }
    void schrijfLang(int eerste = 0) { schrijf('l', 200'000, eerste); }

    /// Writes both in turn, for ever, in a process of its own.
    pid_t startSchrijver(int eerste) {
        const pid_t kind = ::fork();
        while (kind == 0) {
            schrijfLang(eerste);
            schrijfKort(eerste);
        }
        return kind;
    }

private:
    void schrijfInstellingen() const {
        Instellingen instellingen;
        instellingen.bestand = InstellingenPad(map.pad());
        instellingen.KopTekst = uitvoer.KopTekst;
        SchrijfInstellingen(instellingen, {});
    }
};

TEST_F(Afgebroken, TwoHundredKillsLeaveWholeFilesAndTheNextWriteSucceeds) {
    constexpr int keren = 200;
    constexpr unsigned zaad = 20240611;
    std::mt19937 toeval(zaad); // the same numbers on every system; a distribution's are not
    schrijfLang();
    const Inhoud lang = map.inhoud();
    schrijfKort();
    const Inhoud kort = map.inhoud();
    ASSERT_EQ(kort.size(), 3U);
    std::map<std::string, int> resten;
    int anders = 0; // kills that came when not all three were the short ones
    for (int keer = 0; keer < keren; ++keer) {
        const pid_t kind = startSchrijver(keer);
        ::usleep(static_cast<useconds_t>(200 + toeval() % 20'000));
        ::kill(kind, SIGKILL);
        int stand = 0;
        ASSERT_EQ(::waitpid(kind, &stand, 0), kind);
        ASSERT_TRUE(WIFSIGNALED(stand)) << "it writes until it is killed";
        const Inhoud inhoud = map.inhoud();
        for (const auto& [naam, bytes] : kort) {
            const std::string& nu = inhoud.at(naam);
            EXPECT_TRUE(nu == bytes || nu == lang.at(naam))
                << naam << " of " << nu.size() << " bytes at kill " << keer;
            resten[naam] += static_cast<int>(inhoud.count(naam + ".nieuw"));
        }
        if (inhoud != kort) ++anders;
        schrijfKort();
        EXPECT_EQ(map.inhoud(), kort) << "after kill " << keer;
    }
    std::cout << keren << " kills, seed " << zaad << ": " << anders << " found something changed";
    for (const auto& [naam, aantal] : resten) {
        std::cout << ", " << aantal << " left a part of " << naam;
        EXPECT_GT(aantal, 0) << "no kill came while it was written: this showed nothing";
    }
    std::cout << '\n';
}

} // namespace
} // namespace lauwerkrans
