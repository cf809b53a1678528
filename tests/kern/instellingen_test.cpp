// The settings file: what is read from it, and what is written to the byte.
#include "app/modInstellingen.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "data/fout.h"
#include "data/systeem.h"
#include "proef.h"

namespace lauwerkrans {
namespace {

class InstellingenTest : public ::testing::Test {
protected:
    InstellingenTest() { instellingen.bestand = InstellingenPad(map.pad()); }

    void lees(const std::string& bytes) {
        map.schrijf("Lauwr.ini", bytes);
        LeesInstellingen(instellingen, algemeen);
    }
    IniWaarden verwerk(const std::string& bytes, std::size_t lijnen = 12) {
        lees(bytes);
        return VerwerkIniVariabelen(instellingen, lijnen);
    }
    [[nodiscard]] std::string inhoud() const {
        std::ifstream bestand(map.map() / "Lauwr.ini", std::ios::binary);
        return {std::istreambuf_iterator<char>(bestand), {}};
    }
    [[nodiscard]] std::size_t aantalBestanden() const {
        const std::filesystem::directory_iterator begin(map.map());
        return static_cast<std::size_t>(std::distance(begin, {}));
    }

    proef::Proefmap map;
    Algemeen algemeen;
    Instellingen instellingen;
};

TEST_F(InstellingenTest, TheFileLiesInTheProgramsOwnFolder) {
    EXPECT_EQ(InstellingenPad("C:\\Suite\\Lauwerkrans"), "C:\\Suite\\Lauwerkrans\\Lauwr.ini");
}

TEST_F(InstellingenTest, LinesThatAreNotBlankAreKeptAsTheyStand) {
    algemeen.LeesFout = 1;
    lees("__CHK1=1\r\n\r\n   \r\n  __TXT1=4 \r\nlaatste");
    EXPECT_EQ(algemeen.LeesFout, 0);
    ASSERT_EQ(instellingen.IniRegels.bovengrens(), 3U);
    EXPECT_EQ(instellingen.IniRegels.cel(0), "");
    EXPECT_EQ(instellingen.IniRegels.cel(2), "  __TXT1=4 ");
    EXPECT_EQ(instellingen.IniRegels.cel(3), "laatste");
}

TEST_F(InstellingenTest, AMissingFileGivesNoLinesAndNoMessage) {
    proef::Meldingen meldingen;
    algemeen.meld = meldingen.melder();
    LeesInstellingen(instellingen, algemeen);
    EXPECT_EQ(instellingen.IniRegels.bovengrens(), 0U);
    EXPECT_TRUE(meldingen.getoond.empty());
    std::filesystem::create_directory(map.map() / "Lauwr.ini");
    LeesInstellingen(instellingen, algemeen);
    EXPECT_EQ(instellingen.IniRegels.bovengrens(), 0U);
    EXPECT_TRUE(meldingen.getoond.empty());
}

TEST_F(InstellingenTest, EveryKeyGoesWhereItBelongs) {
    const auto waarden = verwerk("__CHK1=1\r\n__CHK2=0\r\n__CHK4=1\r\n__CHKTL=1\r\n__CHKTZ=3\r\n"
                                 "__TXTKOP=Kampioenen a=b \r\n__TXT1=13\r\n__TXT3=4\r\n");
    EXPECT_EQ(waarden.vinkjes[0], true);
    EXPECT_EQ(waarden.vinkjes[1], false);
    EXPECT_EQ(waarden.vinkjes[2], std::nullopt);
    EXPECT_EQ(waarden.vinkjes[3], true);
    EXPECT_EQ(instellingen.ToonLijnen, 1);
    EXPECT_EQ(instellingen.ToonZittingen, 3);
    EXPECT_EQ(instellingen.KopTekst, "Kampioenen a=b");
    EXPECT_EQ(waarden.KopTekst, "Kampioenen a=b");
    EXPECT_EQ(waarden.criteria, (std::map<std::size_t, std::string>{{1, "13"}, {3, "4"}}));
}

TEST_F(InstellingenTest, TheTwoCharactersBehindThePrefixAreNotLookedAt) {
    EXPECT_EQ(verwerk("xxCHK1=1").vinkjes[0], true);
    EXPECT_EQ(verwerk("\xEB\xEB  CHK1=1").vinkjes[0], true); // two accented letters
    EXPECT_EQ(verwerk("CHK1=1").vinkjes[0], std::nullopt);
    EXPECT_EQ(verwerk("_").vinkjes[0], std::nullopt);
}

TEST_F(InstellingenTest, OnlyOneIsOnAndKeysAreExactCapitals) {
    for (const char* uit : {"0", "2", "-1", "", "ja", "99999999999"}) {
        EXPECT_EQ(verwerk(std::string("__CHK2=") + uit).vinkjes[1], false) << uit;
    }
    EXPECT_EQ(verwerk("__CHK2= 1x").vinkjes[1], true);
    EXPECT_EQ(verwerk("__chk2=1").vinkjes[1], std::nullopt);
}

TEST_F(InstellingenTest, OldValuesAreForgottenBeforeTheLinesAreProcessed) {
    instellingen.ToonLijnen = 1;
    instellingen.ToonZittingen = 1;
    instellingen.KopTekst = "oud";
    const auto waarden = verwerk("onzin\r\n");
    EXPECT_EQ(instellingen.ToonLijnen, 0);
    EXPECT_EQ(instellingen.ToonZittingen, 0);
    EXPECT_EQ(instellingen.KopTekst, "");
    EXPECT_EQ(waarden.KopTekst, std::nullopt);
}

TEST_F(InstellingenTest, OnlyFiveCharactersOfACriteriumKeyAreCompared) {
    EXPECT_EQ(verwerk("__TXT9=5").criteria, (std::map<std::size_t, std::string>{{9, "5"}}));
    EXPECT_TRUE(verwerk("__TXT10=5").criteria.empty());
    EXPECT_TRUE(verwerk("__TXT12=5").criteria.empty());
}

TEST_F(InstellingenTest, ACriteriumOfALineThatIsNotThereIsIgnored) {
    EXPECT_TRUE(verwerk("__TXT4=5", 3).criteria.empty());
    EXPECT_TRUE(verwerk("__TXT0=5", 3).criteria.empty());
}

TEST_F(InstellingenTest, ALaterLineWins) {
    EXPECT_EQ(verwerk("__TXT1=5\r\n__TXT1=6").criteria.at(1), "6");
}

IniStand Stand() {
    IniStand stand;
    stand.vinkjes = {true, false, true, false};
    stand.criteria = {"13", "", "8"};
    return stand;
}

TEST_F(InstellingenTest, TheFileIsWrittenToTheByte) {
    lees("__CHK1=0\r\noude regel\r\n__TXT2=9\r\n");
    instellingen.ToonLijnen = 1;
    instellingen.KopTekst = "Café=\xE2\x82\xAC";
    SchrijfInstellingen(instellingen, Stand());
    EXPECT_EQ(inhoud(), "__CHK1=1\r\n__CHK2=0\r\n__CHK3=1\r\n__CHK4=0\r\n__CHKTL=1\r\n__CHKTZ=0\r\n"
                        "__TXTKOP=Caf\xE9=\x80\r\n__TXT1=13\r\n__TXT3=8\r\n");
    EXPECT_EQ(aantalBestanden(), 1U);
}

TEST_F(InstellingenTest, ATwelfthLineIsWrittenAndNotRead) {
    IniStand stand;
    stand.criteria.assign(12, "7");
    SchrijfInstellingen(instellingen, stand);
    EXPECT_NE(inhoud().find("__TXT12=7\r\n"), std::string::npos);
    LeesInstellingen(instellingen, algemeen);
    EXPECT_EQ(VerwerkIniVariabelen(instellingen, 12).criteria.size(), 9U);
}

TEST_F(InstellingenTest, CriteriaOfLinesThatCouldNotBeReadAreKept) {
    lees("__CHK1=0\r\n__TXTKOP=kop\r\n__TXT1=13\r\n  __TXT12=4\r\n__TXTx=1\r\n");
    IniStand stand;
    stand.lijnenBekend = false;
    SchrijfInstellingen(instellingen, stand);
    EXPECT_EQ(inhoud(), "__CHK1=0\r\n__CHK2=0\r\n__CHK3=0\r\n__CHK4=0\r\n__CHKTL=0\r\n__CHKTZ=0\r\n"
                        "__TXTKOP=\r\n__TXT1=13\r\n  __TXT12=4\r\n");
}

TEST_F(InstellingenTest, WhatCannotBeWrittenIsReportedAndLosesNothing) {
    std::filesystem::create_directory(map.map() / "Lauwr.ini");
    try {
        SchrijfInstellingen(instellingen, Stand());
        FAIL() << "written over a folder";
    } catch (const Fout& fout) {
        EXPECT_EQ(fout.soort, FoutSoort::BestandNietSchrijfbaar);
        EXPECT_EQ(FoutTekst(fout), "Het bestand '" +
                                       systeem::Schrijfwijze(map.pad() + "/Lauwr.ini") +
                                       "' kan niet worden geschreven: er staat een map met die "
                                       "naam.");
    }
    EXPECT_EQ(aantalBestanden(), 1U);
    instellingen.bestand = InstellingenPad(map.pad() + "\\geen\\map");
    EXPECT_THROW(SchrijfInstellingen(instellingen, Stand()), Fout);
}

TEST_F(InstellingenTest, WhatCouldNotBeReadIsNotReplaced) {
    const auto bezet = proef::MaakOnleesbaar(map.map() / "Lauwr.ini");
    LeesInstellingen(instellingen, algemeen);
    EXPECT_EQ(instellingen.IniRegels.bovengrens(), 0U);
    try {
        SchrijfInstellingen(instellingen, Stand());
        FAIL() << "written over settings that nobody read";
    } catch (const Fout& fout) {
        EXPECT_EQ(FoutTekst(fout), "Het bestand '" +
                                       systeem::Schrijfwijze(map.pad() + "/Lauwr.ini") +
                                       "' kan niet worden geschreven: " +
                                       Reden(make_error_code(proef::onleesbaarFout)) + ".");
    }
    EXPECT_EQ(aantalBestanden(), 1U);
}

TEST_F(InstellingenTest, WhatCouldNotBeReadAndIsGoneIsWrittenAnew) {
    auto bezet = proef::MaakOnleesbaar(map.map() / "Lauwr.ini");
    LeesInstellingen(instellingen, algemeen);
    bezet.reset();
    std::filesystem::remove(map.map() / "Lauwr.ini");
    SchrijfInstellingen(instellingen, Stand());
    EXPECT_NE(inhoud(), "");
    LeesInstellingen(instellingen, algemeen);
    SchrijfInstellingen(instellingen, Stand()); // it has been read meanwhile
}

/// Another program let go of it meanwhile: what it holds has still not been read.
TEST_F(InstellingenTest, WhatCouldNotBeReadStaysAlsoWhenItIsFreeAgain) {
    auto bezet = proef::MaakOnleesbaar(map.map() / "Lauwr.ini");
    LeesInstellingen(instellingen, algemeen);
    bezet.reset();
    std::filesystem::remove(map.map() / "Lauwr.ini");
    map.schrijf("Lauwr.ini", "__TXT1=13\r\n");
    EXPECT_THROW(SchrijfInstellingen(instellingen, Stand()), Fout);
    EXPECT_EQ(inhoud(), "__TXT1=13\r\n");
}

TEST(MaakBestandsnaam, ReplacesNineCharactersAndNoOther) {
    EXPECT_EQ(MaakBestandsnaam("a\\b/c?d:e*f>g<h|i j"), "a_b_c_d_e_f_g_h_i_j");
    EXPECT_EQ(MaakBestandsnaam("A/B 2024"), "A_B_2024");
    EXPECT_EQ(MaakBestandsnaam("\"&'.;\xC3\xAB"), "\"&'.;\xC3\xAB");
    EXPECT_EQ(MaakBestandsnaam(""), "");
}

} // namespace
} // namespace lauwerkrans
