#include "output/bladindeling_leden.h"

#include <algorithm>
#include <utility>

namespace lauwerkrans {

namespace {

using namespace bladmaat;

constexpr double rijenTop = boven + 3 * rij; // below the title and two empty lines

/// The room of a column: up to a blank before the next one, the last up to the right margin.
double Ruimte(std::size_t kolom) {
    constexpr double blank = 1;
    const bool laatste = kolom == kolommenLeden.size();
    const double einde = laatste ? breedte : kolommenLeden.at(kolom) - blank;
    return einde - kolommenLeden.at(kolom - 1);
}

} // namespace

BladenLeden::BladenLeden(std::shared_ptr<const Lijst> lijst, double hoogte)
    : lijst_(std::move(lijst)), hoogte_(hoogte), opBlad_(RijenOpBlad(rijenTop, hoogte)) {}

std::size_t BladenLeden::aantal() const { return AantalBladen(lijst_->rijen(), opBlad_); }

Blad BladenLeden::blad(std::size_t nummer, const Meting& meting, const Uitsnede& /*deel*/) const {
    constexpr Letter vet{10, true};
    constexpr Letter gewoon{10, false};
    Bladzetter zetter(meting);
    zetter.links(links, Bladzetter::onder(boven, vet), lijst_->titel(), vet, breedte);
    zetter.voet(hoogte_, nummer);
    const std::size_t eerste = (nummer - 1) * opBlad_ + 1;
    const std::size_t laatste = std::min(lijst_->rijen(), nummer * opBlad_);
    for (std::size_t i = eerste; i <= laatste; ++i) {
        const double basis =
            Bladzetter::onder(rijenTop + static_cast<double>(i - eerste) * rij, gewoon);
        for (std::size_t kolom = 1; kolom <= kolommenLeden.size(); ++kolom) {
            zetter.links(links + kolommenLeden.at(kolom - 1), basis, lijst_->cel(i, kolom + 1),
                         gewoon, Ruimte(kolom));
        }
    }
    return zetter.klaar();
}

} // namespace lauwerkrans
