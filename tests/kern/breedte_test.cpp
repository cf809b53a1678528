// The widest cell of a column, found without measuring every cell.
#include "calc/lijsten.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>

#include "scores.h"

namespace lauwerkrans {
namespace {

using proef::Score;
using proef::Scores;

/// Every character its own width, all digits the same; bold a little wider.
double Breedte(const std::string& tekst, bool vet) {
    double breedte = 0;
    for (const char teken : tekst) {
        const bool cijfer = teken >= '0' && teken <= '9';
        breedte += cijfer ? 50 : 3 + static_cast<unsigned char>(teken) % 97;
    }
    return vet ? breedte * 2 : breedte;
}

void ControleerBreedten(const Lijst& lijst) {
    for (std::size_t kolom = 1; kolom <= lijst.kolommen(); ++kolom) {
        double breedste = 0;
        for (std::size_t rij = 1; rij <= lijst.rijen(); ++rij)
            breedste = std::max(breedste, Breedte(lijst.cel(rij, kolom), lijst.vet(kolom)));
        EXPECT_EQ(lijst.breedsteCel(kolom, Breedte), breedste) << lijst.koppen()[kolom - 1];
    }
}

void ControleerRanglijst(const Scores& scores, const Opties& opties) {
    auto uitslag = std::make_shared<Uitslag>();
    uitslag->rondeInfo = scores.rondeInfo;
    uitslag->resultaat = proef::Bereken(scores, {"0", "0", "0"}, opties);
    ControleerBreedten(*MaakRanglijst(uitslag, true));
}

void ControleerControlelijst(const Scores& scores) {
    auto controle = std::make_shared<Controle>();
    controle->zitRegels = scores.zitRegels;
    ControleerBreedten(*MaakControlelijst(controle));
}

/// Percentages around the places where the number of digits changes.
const std::vector<std::string> percentages = {
    "57,125", "9,9994", "9,9996", "10",      "10,0004", "99,9994", "99,9996", "100", "0",
    "",       "0,0004", "0,001",  "0,00005", "0,5",     "1",       "0,9996",  " 5 ", "61.5"};

const std::vector<std::int32_t> spellen = {24, 7, 0, 104, 1000, 12};

std::vector<Score> ToevalligeScores(unsigned zaad, std::size_t aantal) {
    std::mt19937 toeval(zaad);
    const auto kies = [&toeval](std::size_t n) { return toeval() % n; };
    const std::vector<std::uint32_t> leden = {1, 2, 9, 10, 11, 98, 99, 100, 12345, 99999999};
    std::vector<Score> scores;
    for (std::size_t i = 0; i < aantal; ++i) {
        scores.push_back(
            {static_cast<char>('A' + kies(3)), leden[kies(leden.size())], leden[kies(leden.size())],
             static_cast<std::uint8_t>(1 + kies(2)), static_cast<std::uint8_t>(1 + kies(3)),
             percentages[kies(percentages.size())], spellen[kies(spellen.size())], kies(4) == 0});
    }
    return scores;
}

TEST(BreedsteCel, OfRandomListsIsThePlainMaximum) {
    for (unsigned zaad = 1; zaad <= 300; ++zaad) {
        const Scores scores({"111", "111"}, ToevalligeScores(zaad, zaad % 40));
        ControleerRanglijst(scores, {});
        ControleerRanglijst(scores, {.gemAlleLijnen = true, .buiMed = true});
        ControleerControlelijst(scores);
        ASSERT_FALSE(HasFailure()) << "seed " << zaad;
    }
}

TEST(BreedsteCel, OfAnEmptyListIsNothing) {
    ControleerRanglijst(Scores({"1"}, {}), {});
    ControleerControlelijst(Scores({"1"}, {}));
}

TEST(BreedsteCel, SeesEveryOddText) {
    const std::vector<std::string> teksten = {"x", "niet gespeeld", "-1", "101", "\xE9\xE9n", "57"};
    std::vector<Score> scores;
    for (const auto& tekst : teksten) {
        scores.push_back({'A', 1, 2, 1, 1, tekst});
        ControleerControlelijst(Scores({"1"}, scores));
    }
}

/// -5 has as many digits as 12 has with its sign left out, but "-05" is wider.
TEST(BreedsteCel, SeesANegativeNumberOfBoards) {
    const Scores scores({"1"}, {{'A', 1, 2, 1, 1, "50", 12}, {'A', 3, 4, 1, 1, "50", -5}});
    ControleerControlelijst(scores);
    ControleerRanglijst(scores, {});
}

TEST(BreedsteCel, SeesTheWidestNumbersThatASessionCanHave) {
    using Grens = std::numeric_limits<std::int32_t>;
    for (const std::int32_t aantal : {0, 99, 100, 32767, Grens::max(), Grens::min()}) {
        for (const char* percentage : {"0", "0,001", "99,999", "100"})
            ControleerRanglijst(Scores({"1"}, {{'A', 1, 2, 1, 1, percentage, aantal}}), {});
    }
}

/// Measuring cell by cell would ask for pairs times sessions, most of which were never played.
TEST(BreedsteCel, OfManySessionsMeasuresFewTexts) {
    const std::string gespeeld(99, '1');
    std::vector<Score> scores;
    for (std::uint8_t zitting = 1; zitting <= 99; ++zitting) {
        for (std::uint32_t paar = 0; paar < 40; ++paar)
            scores.push_back({'A', 2 * paar + 1, 2 * paar + 2, 1, zitting, "50"});
    }
    const Scores veel({gespeeld}, scores);
    auto uitslag = std::make_shared<Uitslag>();
    uitslag->rondeInfo = veel.rondeInfo;
    uitslag->resultaat = proef::Bereken(veel, {"0"}, {});
    const auto lijst = MaakRanglijst(uitslag, true);
    std::size_t gemeten = 0;
    const Meter meet = [&gemeten](const std::string& tekst, bool vet) {
        ++gemeten;
        return Breedte(tekst, vet);
    };
    for (std::size_t kolom = 7; kolom <= lijst->kolommen(); ++kolom)
        EXPECT_GT(lijst->breedsteCel(kolom, meet), 0);
    EXPECT_EQ(gemeten, 99U) << "one text per session";
}

TEST(BreedsteCel, OfTheNamesIsThatOfAPairNotOfTwoNames) {
    const Scores scores({"1"}, {{'A', 1, 2, 1, 1, "50"},
                                {'A', 10, 3, 1, 1, "50"},
                                {'A', 11, 12, 1, 1, "50"},
                                {'A', 99999999, 13, 1, 1, "50"}});
    ControleerRanglijst(scores, {});
    ControleerControlelijst(scores);
}

} // namespace
} // namespace lauwerkrans
