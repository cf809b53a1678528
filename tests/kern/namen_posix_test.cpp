// Names that not every system can hold.
#include <gtest/gtest.h>

#include "storingen_kern.h"

namespace lauwerkrans::proef::storingen {
namespace {

/// A club whose competition has this name.
void Doorloop(const std::string& naam) {
    const Suite suite;
    const auto competities = suite.map().map() / "Competities";
    std::filesystem::rename(competities / "Voorjaar", competities / naam);
    suite.schrijf("Mappen.ini",
                  "ORVMAP=<map>\r\nCOMMAP=<map>\\Competities\r\nACTCOM=" + naam + "\r\n");
    const auto sessie = MaakKernSessie(suite);
    ASSERT_TRUE(sessie->start());
    sessie->bereken();
    EXPECT_TRUE(sessie->neem().empty()) << naam;
    EXPECT_EQ(sessie->lijst(), goedeLijst) << naam;
}

TEST(NamenPosix, MayEndInBlanks) { Doorloop("Voorjaar 2026  "); }

TEST(NamenPosix, MayHaveCharactersThatWindowsForbids) { Doorloop("A: 1 < 2 | \"beste\" * ?"); }

TEST(NamenPosix, MayBeAsLongAsTheSystemAllows) { Doorloop(std::string(255, 'n')); }

} // namespace
} // namespace lauwerkrans::proef::storingen
