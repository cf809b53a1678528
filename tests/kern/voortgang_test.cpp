// What a reading of the scores tells about how far it is.
#include "data/voortgang.h"

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "data/modORV_perczit.h"
#include "lezing.h"

namespace lauwerkrans {
namespace {

/// Two rounds of three sessions; that of 2-2 was not played, 2-3 has a folder and no file.
struct Proef : proef::ProefCompetitie {
    Proef() : ProefCompetitie(2, 3, 1) {
        schrijfLeden(9, {{1, "Jan", "", "Een"}, {2, "Piet", "", "Twee"}});
        for (const auto& [ronde, zitting] : {std::pair(1, 1), {1, 2}, {1, 3}, {2, 1}})
            schrijfZitting(ronde, zitting, {regel("A1", "1-2", "50,000")});
        std::filesystem::create_directories(map().map() / "Competities/Proef/Ronde-2/Zitting-3");
        laad();
        algemeen.voortgang = {[this] {
                                  ++gevraagd;
                                  return gevraagd >= tijdVanaf;
                              },
                              [this](std::size_t gelezen, std::size_t totaal) {
                                  getoond.push_back(std::to_string(gelezen) + "/" +
                                                    std::to_string(totaal));
                              }};
    }

    int tijdVanaf = 1;
    int gevraagd = 0;
    std::vector<std::string> getoond;
};

TEST(Voortgang, IsAskedAfterEveryFileAndShownWhenItIsTime) {
    Proef proef;
    proef.tijdVanaf = 3;
    static_cast<void>(proef::LeesProef(proef, "A"));
    EXPECT_EQ(proef.gevraagd, 4);
    EXPECT_EQ(proef.getoond, (std::vector<std::string>{"3/5", "4/5", "4/4"}))
        << "folders at first, files when all have been read";
}

TEST(Voortgang, OfAShortReadingIsNotShown) {
    Proef proef;
    proef.tijdVanaf = 99;
    static_cast<void>(proef::LeesProef(proef, "A"));
    EXPECT_EQ(proef.getoond, std::vector<std::string>());
}

TEST(Voortgang, MayBeAbsent) {
    Proef proef;
    proef.algemeen.voortgang = {};
    EXPECT_EQ(proef::LeesProef(proef, "A").zitRegels.gevuld(), 4U);
}

} // namespace
} // namespace lauwerkrans
