// The rounds' folders and which of their sessions have been played.
#include "data/rondeinfo.h"

#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "data/fout.h"
#include "data/modORV_compdata.h"
#include "data/ronde_mappen.h"
#include "data/tekstbestand.h"
#include "proef.h"

namespace lauwerkrans {
namespace {

using Teksten = std::vector<std::string>;

/// Column 4 of all rounds.
Teksten Gespeeld(const RondeInfo& info) {
    Teksten kolom;
    for (std::size_t ronde = 1; ronde <= info.ronden(); ++ronde)
        kolom.push_back(info.cel(ronde, 4));
    return kolom;
}

/// A competition folder of its own with files by their names.
struct Competitie {
    explicit Competitie(const Teksten& bestanden) {
        for (const auto& naam : bestanden)
            map.schrijf("Comp/" + naam, "inhoud van " + naam);
    }
    [[nodiscard]] RondeMappen mappen(std::size_t ronden) const { return {pad(), ronden}; }
    [[nodiscard]] std::string pad() const { return VoegPad(map.pad(), "Comp"); }
    /// What is read of a session; "-" when there is no file.
    [[nodiscard]] std::string inhoud(std::size_t ronde, std::size_t zitting) const {
        systeem::Leesbuffer buffer;
        if (!mappen(ronde).leesPercZit(ronde, zitting, buffer)) return "-";
        return std::string(buffer.bytes());
    }

    proef::Proefmap map;
};

TEST(Paden, HoldPlainNumbers) {
    EXPECT_EQ(RondePad("D:\\Comp\\Voorjaar 2024", 2), "D:\\Comp\\Voorjaar 2024\\Ronde-2");
    EXPECT_EQ(PercZitPad("D:\\Comp\\Voorjaar 2024", 2, 3),
              "D:\\Comp\\Voorjaar 2024\\Ronde-2\\Zitting-3\\PercZit-3.txt");
    EXPECT_EQ(PercZitPad("C", 12, 10), "C\\Ronde-12\\Zitting-10\\PercZit-10.txt");
}

TEST(RondeInfo, HoldsRoundSessionsSessionsAndPlayed) {
    const RondeInfo info(2, 3, {true, true, false, false, true, false});
    EXPECT_EQ(info.ronden(), 2U);
    EXPECT_EQ(info.zittingen(), 3U);
    const std::vector<Teksten> rijen = {{"1", "3", "3", "2"}, {"2", "3", "3", "1"}};
    for (std::size_t ronde = 1; ronde <= 2; ++ronde) {
        for (std::size_t kolom = 1; kolom <= 4; ++kolom)
            EXPECT_EQ(info.cel(ronde, kolom), rijen[ronde - 1][kolom - 1]);
    }
    EXPECT_EQ(info.totaal(), 3U);
}

TEST(RondeInfo, NumbersPlayedSessionsAcrossRounds) {
    const RondeInfo info(2, 3, {true, false, true, false, true, true});
    const std::vector<std::size_t> nummers = {1, 0, 2, 0, 3, 4};
    for (std::size_t i = 0; i < nummers.size(); ++i)
        EXPECT_EQ(info.volgnummer(i / 3 + 1, i % 3 + 1), nummers[i]) << i;
}

TEST(RondeInfo, FindsTheSessionOfANumber) {
    const RondeInfo info(2, 3, {true, false, true, false, true, true});
    using Zitting = std::pair<std::size_t, std::size_t>;
    EXPECT_EQ(info.zitting(1), (Zitting{1, 1}));
    EXPECT_EQ(info.zitting(2), (Zitting{1, 3}));
    EXPECT_EQ(info.zitting(4), (Zitting{2, 3}));
    for (const std::size_t geen : {0U, 5U})
        EXPECT_THROW(static_cast<void>(info.zitting(geen)), std::out_of_range);
}

TEST(RondeInfo, InOrderNumbersASessionByTheSumOfTheRoundsBeforeIt) {
    const RondeInfo info(3, 2, {true, true, true, false, true, true});
    for (std::size_t ronde = 1; ronde <= 3; ++ronde) {
        std::size_t som = 0;
        for (std::size_t eerder = 1; eerder < ronde; ++eerder)
            som += info.gespeeld(eerder);
        for (std::size_t zitting = 1; zitting <= info.gespeeld(ronde); ++zitting)
            EXPECT_EQ(info.volgnummer(ronde, zitting), som + zitting);
    }
}

TEST(RondeInfo, RefusesAnIndexPastItsBounds) {
    const RondeInfo info(2, 3, std::vector<bool>(6));
    for (const auto& [ronde, kolom] :
         std::vector<std::pair<std::size_t, std::size_t>>{{0, 1}, {3, 1}, {1, 0}, {1, 5}}) {
        EXPECT_THROW(static_cast<void>(info.cel(ronde, kolom)), std::out_of_range);
    }
    for (const auto& [ronde, zitting] :
         std::vector<std::pair<std::size_t, std::size_t>>{{0, 1}, {3, 1}, {1, 0}, {1, 4}}) {
        EXPECT_THROW(static_cast<void>(info.volgnummer(ronde, zitting)), std::out_of_range);
    }
}

TEST(RondeInfo, WithoutSessionsFillsOnlyTheColumnsBehindThem) {
    const RondeInfo info(2, 0, {});
    EXPECT_EQ(info.ronden(), 2U);
    EXPECT_EQ(info.cel(2, 1), "");
    EXPECT_EQ(info.cel(2, 2), "");
    EXPECT_EQ(info.cel(2, 3), "0");
    EXPECT_EQ(info.cel(2, 4), "0");
    EXPECT_EQ(RondeInfo().ronden(), 0U);
}

TEST(RondeInfo, CountsTheFilesThatAreThere) {
    const Competitie comp({"Ronde-1/Zitting-1/PercZit-1.txt", "Ronde-1/Zitting-2/PercZit-2.txt",
                           "Ronde-1/Zitting-3/PercZit-3.txt", "Ronde-1/Zitting-4/PercZit-4.txt",
                           "Ronde-2/Zitting-1/PercZit-1.txt", "Ronde-2/Zitting-2/PercZit-2.txt"});
    EXPECT_EQ(Gespeeld(MaakRondeInfo(comp.mappen(3), 4)), (Teksten{"4", "2", "0"}));
}

TEST(RondeInfo, CountsAMissingFileBetweenTwoOthersAsNotPlayed) {
    const Competitie comp({"Ronde-1/Zitting-1/PercZit-1.txt", "Ronde-1/Zitting-3/PercZit-3.txt"});
    const RondeInfo info = MaakRondeInfo(comp.mappen(1), 4);
    EXPECT_EQ(Gespeeld(info), Teksten{"2"});
    EXPECT_EQ(info.volgnummer(1, 3), 2U);
}

TEST(RondeInfo, WithoutAnyFileIsZeroForEveryRound) {
    const Competitie comp({"CompData.txt"});
    EXPECT_EQ(Gespeeld(MaakRondeInfo(comp.mappen(2), 3)), (Teksten{"0", "0"}));
}

TEST(RondeMappen, OfACompetitionWhoseFolderIsGoneAreAnError) {
    const Competitie geen({});
    EXPECT_EQ(geen.mappen(0).ronden(), 0U) << "nothing to look for";
    try {
        static_cast<void>(geen.mappen(2));
        ADD_FAILURE() << "nothing was thrown";
    } catch (const Fout& fout) {
        EXPECT_EQ(fout.soort, FoutSoort::BestandNietLeesbaar);
        EXPECT_EQ(fout.bestand, geen.pad());
        EXPECT_EQ(fout.reden, "de map bestaat niet");
    }
}

TEST(RondeInfo, CountsNoFileUnderAnotherNumber) {
    const Competitie comp({"Ronde-1/Zitting-1/PercZit-2.txt", "Ronde-1/Zitting-02/PercZit-02.txt",
                           "Ronde-1/PercZit-1.txt", "Ronde-01/Zitting-1/PercZit-1.txt",
                           "Ronde-1/Zitting-1/PercZit-1.txt.bak", "Ronde-1/Zitting-3/PercZit-3.txt",
                           "Ronde-2/Zitting-1/PercZit-1.txt"});
    EXPECT_EQ(Gespeeld(MaakRondeInfo(comp.mappen(1), 2)), Teksten{"0"});
}

TEST(RondeInfo, CountsNoFolderInPlaceOfAFile) {
    const Competitie comp({"Ronde-1/Zitting-1/PercZit-1.txt/x", "Ronde-1/Zitting-2", "Ronde-2"});
    EXPECT_EQ(Gespeeld(MaakRondeInfo(comp.mappen(2), 2)), (Teksten{"0", "0"}));
}

TEST(RondeInfo, CountsFilesInAnotherLetterCase) {
    const Competitie comp({"RONDE-1/zitting-1/PERCZIT-1.TXT", "RONDE-1/Zitting-2/percZIT-2.txt"});
    EXPECT_EQ(Gespeeld(MaakRondeInfo(comp.mappen(1), 2)), Teksten{"2"});
}

TEST(RondeInfo, IsBuiltFromTheBoundsOfTheCompetition) {
    proef::ProefCompetitie proef(3, 2, 1);
    proef.schrijfZitting(2, 1, {});
    LeesCompData(proef.algemeen);
    BouwRondeInfo(proef.algemeen);
    EXPECT_EQ(Gespeeld(proef.algemeen.rondeInfo), (Teksten{"0", "1", "0"}));
    EXPECT_EQ(proef.algemeen.rondeInfo.zittingen(), 2U);
    EXPECT_EQ(proef.algemeen.PadPercZit, PercZitPad(proef.algemeen.competitie, 3, 2));
}

TEST(RondeInfo, IsBuiltAnewEachTime) {
    proef::ProefCompetitie proef(1, 2, 1);
    proef.schrijfZitting(1, 1, {});
    proef.laad();
    EXPECT_EQ(Gespeeld(proef.algemeen.rondeInfo), Teksten{"1"});
    proef.schrijfZitting(1, 2, {});
    BouwRondeInfo(proef.algemeen);
    EXPECT_EQ(Gespeeld(proef.algemeen.rondeInfo), Teksten{"2"});
    proef.algemeen.compTabel = CompTabel();
    BouwRondeInfo(proef.algemeen);
    EXPECT_EQ(proef.algemeen.rondeInfo.ronden(), 0U);
}

TEST(RondeMappen, ReadTheFileOfASession) {
    const Competitie comp({"Ronde-1/Zitting-2/PercZit-2.txt", "Ronde-2/Zitting-1/PercZit-1.txt"});
    EXPECT_EQ(comp.inhoud(1, 2), "inhoud van Ronde-1/Zitting-2/PercZit-2.txt");
    EXPECT_EQ(comp.inhoud(2, 1), "inhoud van Ronde-2/Zitting-1/PercZit-1.txt");
    EXPECT_EQ(comp.inhoud(1, 1), "-");
    EXPECT_EQ(comp.inhoud(3, 1), "-");
}

TEST(RondeMappen, ReadAFileInAnotherLetterCase) {
    const Competitie comp({"ronde-1/ZITTING-1/perczit-1.TXT"});
    EXPECT_EQ(comp.inhoud(1, 1), "inhoud van ronde-1/ZITTING-1/perczit-1.TXT");
}

TEST(RondeMappen, ReadNothingWhereAFolderOrAFileStandsInTheWay) {
    const Competitie comp({"Ronde-1/Zitting-1/PercZit-1.txt/x", "Ronde-1/Zitting-2", "Ronde-2"});
    EXPECT_EQ(comp.inhoud(1, 1), "-");
    EXPECT_EQ(comp.inhoud(1, 2), "-");
    EXPECT_EQ(comp.inhoud(2, 1), "-");
}

TEST(RondeMappen, FindTheListOfPairsOutOfCompetition) {
    const Competitie comp({"Ronde-1/CompBums.txt", "ronde-2/COMPBUMS.TXT", "Ronde-3/x"});
    const RondeMappen mappen = comp.mappen(4);
    EXPECT_EQ(systeem::Schrijfwijze(mappen.compBums(1).value_or("")),
              systeem::Schrijfwijze(comp.pad() + "\\Ronde-1\\CompBums.txt"));
    EXPECT_EQ(systeem::Schrijfwijze(mappen.compBums(2).value_or("")),
              systeem::Schrijfwijze(comp.pad() + "\\ronde-2\\COMPBUMS.TXT"));
    EXPECT_EQ(mappen.compBums(3), std::nullopt);
    EXPECT_EQ(mappen.compBums(4), std::nullopt);
}

TEST(RondeMappen, FindTheCompetitionInAnotherLetterCase) {
    const Competitie comp({"Ronde-1/Zitting-1/PercZit-1.txt"});
    const RondeMappen mappen(VoegPad(comp.map.pad(), "COMP"), 1);
    EXPECT_TRUE(mappen.heeftPercZit(1, 1));
}

#ifndef _WIN32
TEST(RondeMappen, TakeTheExactNameBeforeAnother) {
    const Competitie comp({"RONDE-1/Zitting-1/PercZit-1.txt", "Ronde-1/ZITTING-1/PercZit-1.txt",
                           "Ronde-1/Zitting-1/PERCZIT-1.TXT", "Ronde-1/Zitting-1/PercZit-1.txt",
                           "Ronde-1/COMPBUMS.TXT", "Ronde-1/CompBums.txt"});
    EXPECT_EQ(comp.inhoud(1, 1), "inhoud van Ronde-1/Zitting-1/PercZit-1.txt");
    EXPECT_EQ(comp.mappen(1).compBums(1), comp.pad() + "\\Ronde-1\\CompBums.txt");
}
#endif

TEST(RondeMappen, TakeAFileThatCannotBeOpenedForAnError) {
    const Competitie comp({"Ronde-1/Zitting-1/PercZit-1.txt"});
    comp.map.maakOnleesbaar("Comp/Ronde-1/Zitting-2/PercZit-2.txt");
    try {
        static_cast<void>(comp.inhoud(1, 2));
        ADD_FAILURE() << "nothing was thrown";
    } catch (const Fout& fout) {
        EXPECT_EQ(fout.soort, FoutSoort::BestandNietLeesbaar);
        EXPECT_EQ(fout.bestand, comp.pad() + "\\Ronde-1\\Zitting-2\\PercZit-2.txt");
    }
}

TEST(RondeMappen, TakeARoundThatCannotBeListedForAnError) {
    const Competitie comp({});
    comp.map.maakOnleesbareMap("Comp/Ronde-2");
    EXPECT_EQ(comp.inhoud(1, 1), "-");
    try {
        static_cast<void>(comp.mappen(2));
        ADD_FAILURE() << "nothing was thrown";
    } catch (const Fout& fout) {
        EXPECT_EQ(fout.soort, FoutSoort::BestandNietLeesbaar);
        EXPECT_EQ(systeem::Schrijfwijze(fout.bestand),
                  systeem::Schrijfwijze(comp.pad() + "\\Ronde-2"));
    }
}

TEST(RondeInfo, IsEmptiedBeforeARoundThatCannotBeListed) {
    proef::ProefCompetitie proef(2, 1, 1);
    proef.schrijfZitting(1, 1, {});
    proef.laad();
    proef.map().maakOnleesbareMap(proef.competitieMap() + "Ronde-2");
    EXPECT_THROW(BouwRondeInfo(proef.algemeen), Fout);
    EXPECT_EQ(Gespeeld(proef.algemeen.rondeInfo), (Teksten{"0", "0"}));
}

} // namespace
} // namespace lauwerkrans
