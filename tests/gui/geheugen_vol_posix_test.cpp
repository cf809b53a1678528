// A list for which there is no memory: the one on show stays, with all that belongs to it. Where
// the standard library is a DLL its strings ask for memory there, out of reach of this.
#include <gtest/gtest.h>

#include "kern/geheugen.h"
#include "vensterproef.h"

namespace lauwerkrans::proef {
namespace {

/// A pair with names so long that nothing but the cell with both has such a length; reading and
/// calculating do without.
class GeheugenVol : public ::testing::Test {
protected:
    GeheugenVol() : proef(1, 1, 1) {
        const std::string lang(990, 'x');
        proef.competitie.schrijfLeden(9, {{1, "Jan", "", lang}, {2, "Els", "", lang}});
        proef.competitie.schrijfZitting(1, 1, {ProefCompetitie::regel("A1", "1-2", "60,000")});
        proef.start();
        proef.typ("txt1_1", "1");
    }

    void SetUp() override {
        const Geheugentekort tekort(van, tot);
        Algemeen& algemeen = proef.competitie.algemeen;
        ASSERT_EQ(Bereken(algemeen, "A", {"1"}, {})->resultaat.rijen.size(), 1U);
        ASSERT_EQ(Controleer(algemeen, {"A", false, {}})->zitRegels.gevuld(), 1U);
        ASSERT_EQ(Geheugentekort::geweigerd(), 0U);
    }

    /// A press while there is no memory for a cell with both names.
    void klikZonderGeheugen(const char* knop) {
        auto& getoond = proef.competitie.meldingen.getoond;
        getoond.clear();
        {
            const Geheugentekort tekort(van, tot);
            proef.klik(knop);
        }
        EXPECT_GT(Geheugentekort::geweigerd(), 0U);
        const Melding vol{"Er is niet genoeg geheugen vrij om dit te doen.", Icoon::Uitroep};
        EXPECT_EQ(getoond, std::vector<Melding>{vol});
    }

    static constexpr std::size_t van = 1900;
    static constexpr std::size_t tot = 2300;
    Vensterproef proef;
};

TEST_F(GeheugenVol, LeavesTheListOfAMemberAndItsButton) {
    proef.typ("txtPersoon", "xx");
    proef.klik("cmdControleLijstLid");
    const auto lijst = proef.venster->raster().lijst();
    ASSERT_NE(lijst, nullptr);
    const std::string kop = proef.kop();
    klikZonderGeheugen("cmd1_0");
    EXPECT_EQ(proef.venster->raster().lijst(), lijst);
    EXPECT_EQ(proef.kop(), kop);
    EXPECT_TRUE(proef.venster->PersoonFilterAan());
    auto& cmdPrinten = proef.vind<QPushButton>("cmdPrinten");
    EXPECT_EQ(cmdPrinten.text(), QStringLiteral("Print deze controlelijst"));
    EXPECT_TRUE(cmdPrinten.isEnabled());
}

TEST_F(GeheugenVol, LeavesTheRankingAndItsCalculation) {
    proef.klik("cmd1_0");
    const auto lijst = proef.venster->raster().lijst();
    const auto uitslag = proef.venster->uitslag();
    ASSERT_NE(lijst, nullptr);
    for (const char* knop : {"cmd2_0", "cmd1_0"}) {
        klikZonderGeheugen(knop);
        EXPECT_EQ(proef.venster->raster().lijst(), lijst) << knop;
        EXPECT_EQ(proef.venster->uitslag(), uitslag) << knop;
        EXPECT_EQ(proef.kop(), "Berekening voor lijn A") << knop;
        EXPECT_TRUE(proef.vind<QPushButton>("cmdPrinten").isEnabled()) << knop;
    }
    proef.klik("cmd1_0");
    EXPECT_NE(proef.venster->raster().lijst(), lijst);
}

} // namespace
} // namespace lauwerkrans::proef
