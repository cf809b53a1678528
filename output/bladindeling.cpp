#include "output/bladindeling.h"

#include <algorithm>
#include <utility>

#include "data/getallen.h"

namespace lauwerkrans {

namespace {

constexpr double mmPerPunt = 25.4 / 72;
// Arial and its substitutes, as parts of the letter size: the height of a capital, and from the
// baseline up to the upper edge of a line.
constexpr double kapitaal = 0.716;
constexpr double stijging = 0.905;

constexpr double smalste = 0.82; // a text is narrowed to this part, then its letters get smaller

} // namespace

std::string TeVeelBladenTekst() {
    return std::string("\r\nEr worden niet meer dan ")
        .append(std::to_string(meesteBladen))
        .append(" pagina's tegelijk geprint!\r\n");
}

std::string BladPercentage(std::int32_t duizendsten) { return Patroon(duizendsten, 3, 1) + " %"; }

std::size_t RijenOpBlad(double boven, double bladHoogte) {
    std::size_t aantal = 1;
    const auto onder = [&] { return boven + static_cast<double>(aantal + 1) * bladmaat::rij; };
    while (onder() + bladmaat::voet < bladHoogte - bladmaat::speling)
        ++aantal;
    return aantal;
}

std::size_t AantalBladen(std::size_t rijen, std::size_t opBlad) {
    return std::max<std::size_t>((rijen + opBlad - 1) / opBlad, 1);
}

double Bladzetter::onder(double y, const Letter& letter) {
    return y + stijging * letter.punten * mmPerPunt;
}

double Bladzetter::midden(double y, double hoogte, const Letter& letter) {
    return y + (hoogte + kapitaal * letter.punten * mmPerPunt) / 2;
}

void Bladzetter::links(double x, double basis, std::string tekst, const Letter& letter,
                       double ruimte) {
    if (tekst.empty()) return;
    const double deel = std::min(1.0, ruimte / meting_(tekst, letter));
    BladTekst gezet{x, basis, std::move(tekst), letter, std::max(deel, smalste)};
    if (deel < smalste) gezet.letter.punten *= deel / smalste;
    blad_.teksten.push_back(std::move(gezet));
}

void Bladzetter::rechts(double x, double basis, std::string tekst, const Letter& letter) {
    const double begin = x - meting_(tekst, letter);
    links(begin, basis, std::move(tekst), letter);
}

void Bladzetter::tussen(double x1, double x2, double basis, std::string tekst,
                        const Letter& letter) {
    const double begin = x1 + (x2 - x1 - meting_(tekst, letter)) / 2;
    links(begin, basis, std::move(tekst), letter);
}

void Bladzetter::streep(double y) {
    blad_.lijnen.push_back({bladmaat::links, y, bladmaat::links + bladmaat::breedte, y});
}

void Bladzetter::kader(const Uitvoer& uitvoer, double hoogte, std::size_t nummer) {
    using namespace bladmaat;
    constexpr double koplijn = 28;
    constexpr Letter titel{14, true};
    constexpr Letter klein{10, false};
    constexpr double rechterrand = bladmaat::links + bladmaat::breedte;
    const double onderrand = hoogte - bladmaat::voet;
    streep(boven);
    streep(koplijn);
    streep(onderrand);
    blad_.lijnen.push_back({bladmaat::links, boven, bladmaat::links, onderrand});
    blad_.lijnen.push_back({rechterrand, boven, rechterrand, onderrand});
    links(bladmaat::links + 1, onder(boven, titel), uitvoer.KopTekst, titel, bladmaat::breedte - 2);
    rechts(rechterrand - 1, onder(boven + 2, klein), uitvoer.ClubNaam, klein);
    links(bladmaat::links + 1, onder(boven + 6.5, klein), uitvoer.InstellingPrefix, klein,
          bladmaat::breedte - 2);
    voet(hoogte, nummer);
}

void Bladzetter::voet(double hoogte, std::size_t nummer) {
    constexpr double vanOnder = 14;
    constexpr Letter klein{8, false};
    const double basis = onder(hoogte - vanOnder, klein);
    links(bladmaat::links, basis, "RtvH", klein);
    rechts(bladmaat::links + bladmaat::breedte, basis, std::to_string(nummer), klein);
}

} // namespace lauwerkrans
