#include "bladproef.h"

#include <algorithm>
#include <stdexcept>
#include <tuple>

#include <gtest/gtest.h>

#include "uitvoerproef.h"

namespace lauwerkrans::proef {

namespace {

bool Horizontaal(const BladLijn& lijn) { return lijn.y1 == lijn.y2; }

auto Velden(const BladTekst& tekst) {
    const Letter& letter = tekst.letter;
    return std::tuple(tekst.x, tekst.y, tekst.tekst, letter.punten, letter.vet, letter.type,
                      tekst.rek);
}

auto Velden(const BladLijn& lijn) { return std::tuple(lijn.x1, lijn.y1, lijn.x2, lijn.y2); }

} // namespace

double TabelBreedte(const std::string& tekst, const Letter& letter) {
    const auto tekens = std::count_if(tekst.begin(), tekst.end(), [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; // no further byte of UTF-8
    });
    const double gewoon = letter.type == Lettertype::ArialNarrow ? 1.5 : 2;
    return static_cast<double>(tekens) * (letter.vet ? 2.25 : gewoon) * letter.punten / 10;
}

std::string PaarNaam(std::size_t nummer) {
    return "V" + std::to_string(nummer) + " - W" + std::to_string(nummer);
}

Uitvoer MetRijen(const std::vector<std::size_t>& rijenPerLijn) {
    std::vector<Paar> paren;
    for (std::size_t lijn = 0; lijn < rijenPerLijn.size(); ++lijn) {
        for (std::size_t rang = 1; rang <= rijenPerLijn[lijn]; ++rang) {
            const std::string nummer = std::to_string(paren.size() + 1);
            paren.push_back(
                {lijn % 2 == 0 ? 'A' : 'B', rang, false, "V" + nummer, "W" + nummer, 14, 57125});
        }
    }
    Uitvoer uitvoer;
    uitvoer.KopTekst = "Lauwerkrans";
    uitvoer.uitslag = MaakUitslag("AB", {"13", "10"}, paren);
    return uitvoer;
}

Uitvoer MetNaam(const std::string& naam) {
    Uitvoer uitvoer;
    uitvoer.uitslag = MaakUitslag("A", {"1"}, {{'A', 1, false, naam, "B", 14, 57125}});
    return uitvoer;
}

std::vector<Blok> Blokken(const std::vector<std::size_t>& lijnen, double hoogte) {
    std::vector<std::size_t> perRij;
    for (const std::size_t aantal : lijnen) {
        perRij.push_back(aantal);
        perRij.resize(perRij.size() + aantal - 1, 0);
    }
    return Pagineer(perRij, hoogte);
}

double BlokHoogte(std::size_t rijen) { return 4.8 * static_cast<double>(rijen) + 8 + 7; }

std::vector<BladTekst> Alle(const Blad& blad, const std::string& tekst) {
    std::vector<BladTekst> gevonden;
    std::copy_if(blad.teksten.begin(), blad.teksten.end(), std::back_inserter(gevonden),
                 [&](const BladTekst& gezet) { return gezet.tekst == tekst; });
    return gevonden;
}

BladTekst Vind(const Blad& blad, const std::string& tekst) {
    const auto gevonden = Alle(blad, tekst);
    if (gevonden.size() != 1) {
        throw std::runtime_error("\"" + tekst + "\" stands " + std::to_string(gevonden.size()) +
                                 " times on the page");
    }
    return gevonden.front();
}

double Einde(const BladTekst& tekst) {
    return tekst.x + tekst.rek * TabelBreedte(tekst.tekst, tekst.letter);
}

std::vector<double> Strepen(const Blad& blad) {
    std::vector<double> hoogten;
    for (const BladLijn& lijn : blad.lijnen) {
        if (Horizontaal(lijn) && lijn.x1 == 20 && lijn.x2 == 190) hoogten.push_back(lijn.y1);
    }
    std::sort(hoogten.begin(), hoogten.end());
    return hoogten;
}

std::vector<BladTekst> Paren(const Blad& blad) {
    std::vector<BladTekst> paren;
    std::copy_if(blad.teksten.begin(), blad.teksten.end(), std::back_inserter(paren),
                 [](const BladTekst& gezet) { return gezet.tekst.starts_with('V'); });
    return paren;
}

std::vector<std::string> ParenOpAlle(const Bladen& bladen) {
    std::vector<std::string> namen;
    for (std::size_t nummer = 1; nummer <= bladen.aantal(); ++nummer) {
        for (const BladTekst& paar : Paren(bladen.blad(nummer, TabelBreedte)))
            namen.push_back(paar.tekst);
    }
    return namen;
}

std::vector<std::string> PaarNamen(std::size_t aantal) {
    std::vector<std::string> namen;
    for (std::size_t nummer = 1; nummer <= aantal; ++nummer)
        namen.push_back(PaarNaam(nummer));
    return namen;
}

void VerwachtTekst(const BladTekst& tekst, double x, double y, const Letter& letter) {
    SCOPED_TRACE(tekst.tekst);
    EXPECT_NEAR(tekst.x, x, bladfout);
    EXPECT_NEAR(tekst.y, y, bladfout);
    EXPECT_NEAR(tekst.letter.punten, letter.punten, bladfout);
    EXPECT_EQ(tekst.letter.vet, letter.vet);
    EXPECT_EQ(tekst.letter.type, letter.type);
    EXPECT_EQ(tekst.rek, 1);
}

void VerwachtStrepen(const Blad& blad, const std::vector<double>& hoogten) {
    const std::vector<double> strepen = Strepen(blad);
    ASSERT_EQ(strepen.size(), hoogten.size());
    for (std::size_t i = 0; i < hoogten.size(); ++i)
        EXPECT_NEAR(strepen[i], hoogten[i], bladfout);
}

void VerwachtBinnenKader(const Blad& blad, double hoogte) {
    constexpr double klein = 1e-6;
    const double onderrand = hoogte - 17;
    for (const BladLijn& lijn : blad.lijnen) {
        EXPECT_GE(lijn.x1, 20);
        EXPECT_LE(lijn.x2, 190);
        EXPECT_GE(lijn.y1, 15);
        EXPECT_LE(lijn.y2, onderrand + klein);
    }
    for (const BladTekst& tekst : blad.teksten) {
        if (tekst.letter.punten == 8 && tekst.y > onderrand) continue; // the foot
        SCOPED_TRACE(tekst.tekst);
        EXPECT_GE(tekst.x, 20);
        EXPECT_LE(Einde(tekst), 190 + klein);
        EXPECT_GE(tekst.y, 15);
        EXPECT_LE(tekst.y, onderrand + klein);
    }
}

bool Gelijk(const Blad& een, const Blad& ander) {
    const auto gelijk = [](const auto& a, const auto& b) { return Velden(a) == Velden(b); };
    return std::equal(een.lijnen.begin(), een.lijnen.end(), ander.lijnen.begin(),
                      ander.lijnen.end(), gelijk) &&
           std::equal(een.teksten.begin(), een.teksten.end(), ander.teksten.begin(),
                      ander.teksten.end(), gelijk);
}

} // namespace lauwerkrans::proef
