// What one press of a button asks of the disk. On a network drive every question is a wait.
#include <gtest/gtest.h>

#include "calc/overzicht.h"
#include "data/modORV_compbums.h"
#include "data/modORV_compdata.h"
#include "geteld_posix.h"
#include "proef.h"

namespace lauwerkrans {
namespace {

using Aantallen = proef::Telling::Aantallen;

/// Three rounds of three sessions, of which four are played. Round 3 has no folder, session 3 of
/// round 1 an empty one, and there are files that nobody needs.
struct ProefGeteld : proef::ProefCompetitie {
    ProefGeteld() : ProefCompetitie(3, 3, 1) {
        schrijfLeden(99, {{12, "Jan", "", "Smit"}, {13, "Els", "", "Bos"}});
        for (const auto& [ronde, zitting] : {std::pair(1, 1), {1, 2}, {2, 1}, {2, 3}})
            schrijfZitting(ronde, zitting, {regel("A1", "12-13", "51")});
        schrijfBums(2, {{12, 13}});
        map().maakMap(competitieMap() + "Ronde-1/Zitting-3");
        for (const char* naam : {"Ronde-2/RondeData.txt", "Ronde-2/Zitting-1/Scores.txt",
                                 "Ronde-2/PercZit-1.txt", "Ronde-4/Zitting-1/PercZit-1.txt"})
            map().schrijf(competitieMap() + naam, "onnodig");
        laad();
    }

    [[nodiscard]] std::string pad() const { return map().pad() + "/Competities/Proef"; }
};

const Aantallen bestanden = {{"Ronde-1/Zitting-1/PercZit-1.txt", 1},
                             {"Ronde-1/Zitting-2/PercZit-2.txt", 1},
                             {"Ronde-1/Zitting-3/PercZit-3.txt", 1}, // tried: its folder is there
                             {"Ronde-2/CompBums.txt", 1},
                             {"Ronde-2/Zitting-1/PercZit-1.txt", 1},
                             {"Ronde-2/Zitting-3/PercZit-3.txt", 1}};
const Aantallen mappen = {{"", 1},
                          {"Ronde-1", 1},
                          {"Ronde-1/Zitting-3", 1}, // for its file in another letter case
                          {"Ronde-2", 1}};

void VerwachtEenKeer(const proef::Telling& telling) {
    EXPECT_EQ(telling.geopend, bestanden);
    Aantallen opgesomd = mappen;
    ++opgesomd[""]; // at the end: is it still there, and the missing file only not played?
    EXPECT_EQ(telling.opgesomd, opgesomd);
    EXPECT_EQ(telling.opgezocht, (Aantallen{{"", 1}})) << "no file is looked for by itself";
}

TEST(GeteldeLezing, OfACalculationOpensEachFileOnceAndListsEachRoundOnce) {
    ProefGeteld proef;
    const proef::Telling telling(proef.pad());
    EXPECT_EQ(Bereken(proef.algemeen, "A", {"1"}, {})->resultaat.rijen.size(), 1U);
    VerwachtEenKeer(telling);
}

TEST(GeteldeLezing, OfAControlListOpensEachFileOnceAndListsEachRoundOnce) {
    ProefGeteld proef;
    const proef::Telling telling(proef.pad());
    EXPECT_EQ(Controleer(proef.algemeen, {"A", true, "SMIT"})->zitRegels.gevuld(), 4U);
    VerwachtEenKeer(telling);
}

TEST(GeteldeLezing, AtTheStartOpensNoPercentageFileAndLooksAtEachOnce) {
    ProefGeteld proef;
    const proef::Telling telling(proef.pad());
    BouwRondeInfo(proef.algemeen);
    EXPECT_EQ(proef.algemeen.rondeInfo.totaal(), 4U);
    EXPECT_EQ(telling.geopend, Aantallen{});
    EXPECT_EQ(telling.opgesomd, mappen);
    EXPECT_EQ(telling.opgezocht, (Aantallen{{"", 1},
                                            {"Ronde-1/Zitting-1/PercZit-1.txt", 1},
                                            {"Ronde-1/Zitting-2/PercZit-2.txt", 1},
                                            {"Ronde-1/Zitting-3/PercZit-3.txt", 1},
                                            {"Ronde-2/Zitting-1/PercZit-1.txt", 1},
                                            {"Ronde-2/Zitting-3/PercZit-3.txt", 1}}));
}

} // namespace
} // namespace lauwerkrans
