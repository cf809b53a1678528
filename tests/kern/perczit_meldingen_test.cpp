// Member numbers that are none: the message of each line, and its bounds.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "data/modORV_compdata.h"
#include "lezing.h"

namespace lauwerkrans {
namespace {

using proef::LeesProef;

/// The message for a text that is no member number.
Melding Onbekend(const std::string& lid, const std::string& plaats) {
    return {lid + " (" + plaats +
                ") komt niet voor in ORV-ledenbestand en wordt overgeslagen!\r\n\r\nOplossing: zie "
                "bij Speler-admin 'Koppelen zwevende spelers'.",
            Icoon::Uitroep};
}

/// A competition of two rounds of three sessions with one member, number 12.
struct Proef : proef::ProefCompetitie {
    Proef() : ProefCompetitie(2, 3, 2) {
        schrijfLeden(999, {{12, "Jan", "", "Smit"}});
        laad();
    }
};

/// What is shown for one line with this pair of members in session 3 of round 2.
std::vector<Melding> MeldingenVoor(const std::string& leden) {
    Proef proef;
    proef.schrijfZitting(2, 3, {"1,2,\"A7\",\"" + leden + "\",50,24,7"});
    const Lezing lezing = LeesProef(proef, "A");
    EXPECT_EQ(lezing.zitRegels.gevuld(), 0U);
    EXPECT_EQ(proef.algemeen.LeesFout, 0);
    return proef.meldingen.getoond;
}

TEST(OnbekendLid, HasThisMessage) {
    const Melding letterlijk = {"Z12 (R2-Z3-nrA7) komt niet voor in ORV-ledenbestand en wordt "
                                "overgeslagen!\r\n\r\nOplossing: zie bij Speler-admin 'Koppelen "
                                "zwevende spelers'.",
                                Icoon::Uitroep};
    EXPECT_EQ(MeldingenVoor("Z12-305"), std::vector{letterlijk});
}

TEST(OnbekendLid, IsTheSecondWhenTheFirstIsANumber) {
    EXPECT_EQ(MeldingenVoor("12-Z4"), std::vector{Onbekend("Z4", "R2-Z3-nrA7")});
}

TEST(OnbekendLid, IsOnlyTheFirstWhenNeitherIsANumber) {
    EXPECT_EQ(MeldingenVoor("X1-Z4"), std::vector{Onbekend("X1", "R2-Z3-nrA7")});
}

TEST(OnbekendLid, IsEveryTextOtherThanOneToEightDigits) {
    for (const char* tekst :
         {"", "+5", "1.5", "5x", "1 2", "123456789", "000000012", "0x1", "1e2"}) {
        EXPECT_EQ(MeldingenVoor(std::string(tekst) + "-12"),
                  std::vector{Onbekend(tekst, "R2-Z3-nrA7")});
        EXPECT_EQ(MeldingenVoor("12-" + std::string(tekst)),
                  std::vector{Onbekend(tekst, "R2-Z3-nrA7")});
    }
    EXPECT_EQ(MeldingenVoor("12--5"), std::vector{Onbekend("-5", "R2-Z3-nrA7")});
}

TEST(OnbekendLid, IsShownTrimmedAndInTheCodePage) {
    EXPECT_EQ(MeldingenVoor("  Zo\xEB\t- 12"), std::vector{Onbekend("Zoë", "R2-Z3-nrA7")});
}

TEST(OnbekendLid, IsNamedWithItsRoundSessionAndWholePairIdentifier) {
    proef::ProefCompetitie proef(12, 10, 2);
    LeesCompData(proef.algemeen);
    proef.schrijfZitting(12, 10, {"1,2,\"B13 x\",Z1-2,50,24,7"});
    static_cast<void>(LeesProef(proef, "AB"));
    EXPECT_EQ(proef.meldingen.getoond, std::vector{Onbekend("Z1", "R12-Z10-nrB13 x")});
}

TEST(OnbekendLid, DropsItsLineAndTheReadingGoesOn) {
    Proef proef;
    proef.schrijfZitting(1, 1, {"1,2,A1,Z1-12,11,24,7", "1,2,A2,12-14,12,24,7"});
    proef.schrijfZitting(1, 2, {"1,2,A1,12-Z2,13,24,7", "1,2,A2,12-14,14,24,7"});
    const Lezing lezing = LeesProef(proef, "A");
    ASSERT_EQ(lezing.zitRegels.gevuld(), 2U);
    EXPECT_EQ(lezing.zitRegels.cel(1, 3), "12");
    EXPECT_EQ(lezing.zitRegels.cel(2, 3), "14");
    EXPECT_EQ(proef.meldingen.getoond,
              (std::vector{Onbekend("Z1", "R1-Z1-nrA1"), Onbekend("Z2", "R1-Z2-nrA1")}));
}

TEST(OnbekendLid, IsNotReportedOfALineThatDoesNotTakePart) {
    Proef proef;
    proef.schrijfZitting(1, 1, {"1,2,C1,Z1-12,11,24,7"});
    static_cast<void>(LeesProef(proef, "AB"));
    EXPECT_EQ(proef.meldingen.getoond, std::vector<Melding>{});
}

TEST(OnbekendLid, IsNotAMemberWithANumberThatHasNoName) {
    Proef proef;
    proef.schrijfZitting(1, 1, {"1,2,A1,13-99999999,11,24,7"});
    EXPECT_EQ(LeesProef(proef, "A").zitRegels.gevuld(), 1U);
    EXPECT_EQ(proef.meldingen.getoond, std::vector<Melding>{});
}

TEST(OnbekendLid, IsReportedWhateverThePersonFilter) {
    Proef proef;
    proef.schrijfZitting(1, 1, {"1,2,A1,Z1-12,11,24,7"});
    static_cast<void>(LeesPercZitBestanden(proef.algemeen, {"A", true, "NIEMAND"}));
    EXPECT_EQ(proef.meldingen.getoond, std::vector{Onbekend("Z1", "R1-Z1-nrA1")});
}

/// A number of offending lines, spread over two sessions.
void SchrijfOnbekenden(const proef::ProefCompetitie& proef, int aantal) {
    std::vector<std::string> eerste;
    std::vector<std::string> tweede;
    for (int i = 1; i <= aantal; ++i) {
        auto& regels = i <= 60 ? eerste : tweede;
        regels.push_back("1,2,A1,Z" + std::to_string(i) + "-12,50,24,7");
        regels.emplace_back("1,2,A1,12-13,50,24,7");
    }
    proef.schrijfZitting(1, 1, eerste);
    proef.schrijfZitting(2, 2, tweede);
}

TEST(OnbekendLid, AHundredTimesGivesAHundredMessages) {
    Proef proef;
    SchrijfOnbekenden(proef, 100);
    static_cast<void>(LeesProef(proef, "A"));
    ASSERT_EQ(proef.meldingen.getoond.size(), 100U);
    EXPECT_EQ(proef.meldingen.getoond[0], Onbekend("Z1", "R1-Z1-nrA1"));
    EXPECT_EQ(proef.meldingen.getoond[99], Onbekend("Z100", "R2-Z2-nrA1"));
}

TEST(OnbekendLid, FromTheHundredAndFirstOnOneBoxSaysHowManyMore) {
    for (const int meer : {1, 37}) {
        Proef proef;
        SchrijfOnbekenden(proef, 100 + meer);
        const Lezing lezing = LeesProef(proef, "A");
        EXPECT_EQ(lezing.zitRegels.gevuld(), static_cast<std::size_t>(100 + meer));
        ASSERT_EQ(proef.meldingen.getoond.size(), 101U);
        EXPECT_EQ(proef.meldingen.getoond[99], Onbekend("Z100", "R2-Z2-nrA1"));
        const Melding slot = {"Er zijn nog " + std::to_string(meer) +
                                  " scoreregels met een lidnummer dat geen getal is; ook die zijn "
                                  "overgeslagen.",
                              Icoon::Uitroep};
        EXPECT_EQ(proef.meldingen.getoond[100], slot);
    }
}

TEST(OnbekendLid, IsCountedAnewInEachReading) {
    Proef proef;
    SchrijfOnbekenden(proef, 70);
    static_cast<void>(LeesProef(proef, "A"));
    static_cast<void>(LeesProef(proef, "A"));
    ASSERT_EQ(proef.meldingen.getoond.size(), 140U);
    EXPECT_EQ(proef.meldingen.getoond[70], Onbekend("Z1", "R1-Z1-nrA1"));
}

} // namespace
} // namespace lauwerkrans
