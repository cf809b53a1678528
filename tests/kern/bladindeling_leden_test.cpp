// The pages of a member's control list.
#include "output/bladindeling_leden.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "bladproef.h"

namespace lauwerkrans {
namespace {

using namespace proef;

constexpr double a4 = 297;
constexpr Letter kop10{10, true};
constexpr Letter gewoon10{10, false};

/// A member's rows: row n is session n of the pair "V<n> - W<n>"; `naam` is that of the first.
std::shared_ptr<const Lijst> Ledenlijst(std::size_t rijen, const std::string& naam = "V1") {
    auto leden = std::make_shared<LedenNamen>(10000);
    auto controle = std::make_shared<Controle>();
    controle->selectie = {"AB", true, "JANSEN"};
    controle->zitRegels = ZitRegels(rijen, leden);
    for (std::size_t i = 1; i <= rijen; ++i) {
        ZitRegel regel;
        regel.lid1 = static_cast<std::uint32_t>(2 * i - 1);
        regel.lid2 = static_cast<std::uint32_t>(2 * i);
        regel.lijn = i % 2 == 0 ? 'B' : 'A';
        regel.ronde = 1;
        regel.zitting = 2;
        regel.spellen = 24;
        regel.bum = i == 2;
        const std::string nummer = std::to_string(i);
        EXPECT_TRUE(leden->zet(regel.lid1, i == 1 ? naam : "V" + nummer));
        EXPECT_TRUE(leden->zet(regel.lid2, "W" + nummer));
        controle->zitRegels.voegToe(regel, i == 2 ? "100" : "57,125");
    }
    return MaakControlelijst(controle);
}

Blad EersteBlad(const std::shared_ptr<const Lijst>& lijst) {
    return BladenLeden(lijst, a4).blad(1, TabelBreedte);
}

TEST(MemberPage, HasItsColumnsAtTheirPlaces) {
    EXPECT_EQ(kolommenLeden, (std::array<double, 8>{0, 8, 34, 50, 74, 76, 86, 88}));
}

TEST(MemberPage, HasTheTitleOfTheListAtTheTop) {
    VerwachtTekst(Vind(EersteBlad(Ledenlijst(3)), "Controlelijst voor JANSEN"), 20, 18.193, kop10);
}

TEST(MemberPage, HasItsRowsBelowTwoEmptyLines) {
    const Blad blad = EersteBlad(Ledenlijst(3));
    const auto paren = Paren(blad);
    ASSERT_EQ(paren.size(), 3U);
    VerwachtTekst(paren[0], 108, 32.593, gewoon10); // 15 + 3 x 4.8 mm is the top of the row
    VerwachtTekst(paren[1], 108, 37.393, gewoon10);
    VerwachtTekst(paren[2], 108, 42.193, gewoon10);
}

TEST(MemberPage, HasTheColumnsOfARowOnOneLine) {
    const auto lijst = Ledenlijst(3);
    const Blad blad =
        BladenLeden(lijst, a4).blad(1, [](const std::string& tekst, const Letter& letter) {
            return 0.7 * TabelBreedte(tekst, letter); // all fit their columns
        });
    const double y = 37.393;
    VerwachtTekst(Vind(blad, "B"), 20, y, gewoon10);
    VerwachtTekst(Vind(blad, lijst->cel(2, 3)), 28, y, gewoon10);
    VerwachtTekst(Vind(blad, "100,0000"), 54, y, gewoon10);
    VerwachtTekst(Alle(blad, "R01-Z02-24").at(1), 70, y, gewoon10);
    VerwachtTekst(Vind(blad, "BUM"), 96, y, gewoon10);
    VerwachtTekst(Vind(blad, "V2 - W2"), 108, y, gewoon10);
}

TEST(MemberPage, HasPercentagesWithFourDecimals) {
    const Blad blad = EersteBlad(Ledenlijst(3));
    EXPECT_EQ(Alle(blad, "57,1250").size(), 2U);
    EXPECT_EQ(Alle(blad, "100,0000").size(), 1U);
}

TEST(MemberPage, HasNoNumbersBeforeItsRowsAndNothingForEmptyColumns) {
    // title, initials, page number; line, key, percentage, code and names; "BUM"
    EXPECT_EQ(EersteBlad(Ledenlijst(3)).teksten.size(), 3U + 3 * 5 + 1);
    EXPECT_TRUE(EersteBlad(Ledenlijst(3)).lijnen.empty());
}

TEST(MemberPage, EndsTheTextsOfAColumnAMillimetreBeforeTheNextOne) {
    const auto lijst = Ledenlijst(3);
    const Blad blad = EersteBlad(lijst);
    const BladTekst sleutel = Vind(blad, lijst->cel(2, 3));
    EXPECT_LT(sleutel.rek, 1);
    EXPECT_NEAR(Einde(sleutel), 53, bladfout);
    EXPECT_NEAR(Einde(Vind(blad, "100,0000")), 69, bladfout);
    EXPECT_EQ(Vind(blad, "BUM").rek, 1);
}

TEST(MemberPage, NarrowsLongNamesToTheRightMarginThenMakesThemSmaller) {
    const std::string past(36, 'n'); // with the second name 41 characters, 82 mm
    EXPECT_EQ(Vind(EersteBlad(Ledenlijst(1, past)), past + " - W1").rek, 1);
    const std::string smal(41, 'n'); // 92 mm
    const BladTekst versmald = Vind(EersteBlad(Ledenlijst(1, smal)), smal + " - W1");
    EXPECT_NEAR(versmald.rek, 82.0 / 92, 1e-6);
    EXPECT_EQ(versmald.letter.punten, 10);
    EXPECT_NEAR(Einde(versmald), 190, bladfout);
    const std::string lang(120, 'n'); // 250 mm
    const BladTekst kleiner = Vind(EersteBlad(Ledenlijst(1, lang)), lang + " - W1");
    EXPECT_NEAR(kleiner.rek, 0.82, 1e-6);
    EXPECT_NEAR(kleiner.letter.punten, 4, 1e-6);
    EXPECT_NEAR(Einde(kleiner), 190, bladfout);
}

TEST(MemberPages, HaveTitleAndFootEach) {
    const BladenLeden bladen(Ledenlijst(120), a4);
    ASSERT_EQ(bladen.aantal(), 3U);
    for (std::size_t nummer = 1; nummer <= 3; ++nummer) {
        const Blad blad = bladen.blad(nummer, TabelBreedte);
        VerwachtTekst(Vind(blad, "Controlelijst voor JANSEN"), 20, 18.193, kop10);
        VerwachtTekst(Vind(blad, "RtvH"), 20, 285.554, {8, false});
        VerwachtTekst(Vind(blad, std::to_string(nummer)), 188.4, 285.554, {8, false});
        VerwachtTekst(Paren(blad).at(0), 108, 32.593, gewoon10);
    }
}

TEST(MemberPages, BreakAtTheFootReserve) {
    EXPECT_EQ(BladenLeden(Ledenlijst(52), a4).aantal(), 1U);
    EXPECT_EQ(BladenLeden(Ledenlijst(53), a4).aantal(), 2U);
    for (std::size_t rijen = 2; rijen <= 60; ++rijen) {
        SCOPED_TRACE(rijen);
        const double grens = 29.4 + 4.8 * static_cast<double>(rijen) + 17;
        EXPECT_EQ(BladenLeden(Ledenlijst(rijen), grens).aantal(), 2U);
        EXPECT_EQ(BladenLeden(Ledenlijst(rijen), grens + 0.001).aantal(), 1U);
    }
}

struct Papier {
    double hoogte;
    std::size_t rijen; // on a page
};

TEST(MemberPages, HaveEveryRowOnceInOrderAboveTheFoot) {
    for (const Papier& papier : {Papier{a4, 52}, Papier{210, 34}, Papier{279.4, 48}}) {
        for (const std::size_t rijen : {0U, 1U, 33U, 34U, 35U, 48U, 49U, 52U, 53U, 104U, 105U}) {
            SCOPED_TRACE(testing::Message() << rijen << " rows on " << papier.hoogte << " mm");
            const BladenLeden bladen(Ledenlijst(rijen), papier.hoogte);
            EXPECT_EQ(bladen.hoogte(), papier.hoogte);
            EXPECT_EQ(bladen.aantal(),
                      std::max<std::size_t>(1, (rijen + papier.rijen - 1) / papier.rijen));
            EXPECT_EQ(ParenOpAlle(bladen), PaarNamen(rijen));
            for (std::size_t nummer = 1; nummer <= bladen.aantal(); ++nummer)
                VerwachtBinnenKader(bladen.blad(nummer, TabelBreedte), papier.hoogte);
        }
    }
}

TEST(MemberPages, OfNoRowsAreOneWithItsTitle) {
    const BladenLeden bladen(Ledenlijst(0), a4);
    EXPECT_EQ(bladen.aantal(), 1U);
    EXPECT_EQ(bladen.blad(1, TabelBreedte).teksten.size(), 3U);
}

} // namespace
} // namespace lauwerkrans
