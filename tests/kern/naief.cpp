#include "naief.h"

#include <algorithm>

namespace lauwerkrans::naief {

namespace {

class Berekening {
public:
    explicit Berekening(Invoer invoer) : in_(std::move(invoer)) {}

    Tabel voer();

private:
    [[nodiscard]] std::size_t kolomVan(std::size_t ronde, std::size_t zitting) const;
    [[nodiscard]] std::string sleutel(std::size_t i) const;
    [[nodiscard]] bool telt(std::size_t i, std::size_t kolom) const;
    [[nodiscard]] int minimum(std::size_t i) const { return in_.minimum.at(paren_[i][1]); }
    [[nodiscard]] float gewoon(std::size_t i) const;
    [[nodiscard]] float gewogen(std::size_t i) const;
    [[nodiscard]] std::string naam(const std::string& cijfers) const;

    void telZittingen();
    void maakPaarrijen();
    void voegSamen();
    void telEnToets();
    void middel();
    void laatVallen();
    std::vector<std::string> sorteer() const;
    void maakResultaat(const std::vector<std::string>& sleutels);
    void rangschik(const std::string& letter);
    void markeerNulScores();

    Invoer in_;
    std::size_t s_ = 0;
    Tabel paren_;
    Tabel resultaat_;
};

std::string Trim(std::string tekst) {
    while (!tekst.empty() && tekst.front() == ' ')
        tekst.erase(0, 1);
    while (!tekst.empty() && tekst.back() == ' ')
        tekst.pop_back();
    return tekst;
}

float Duizendsten(std::string tekst) {
    const auto komma = tekst.find(',');
    if (komma != std::string::npos) tekst = tekst.substr(0, komma) + tekst.substr(komma + 1);
    return tekst.empty() ? 0.0F : std::stof(tekst);
}

std::string VoorStreep(const std::string& cel) { return cel.substr(0, cel.find('_')); }
std::string NaStreep(const std::string& cel) { return cel.substr(cel.find('_') + 1); }

std::string Nullen(const std::string& getal, std::size_t lengte) {
    return std::string(lengte - std::min(lengte, getal.size()), '0') + getal;
}

void Berekening::telZittingen() {
    for (const auto& ronde : in_.gespeeld) {
        for (const bool gespeeld : ronde)
            s_ += gespeeld ? 1U : 0U;
    }
}

/// Columns of the earlier rounds first, then the place among the played sessions of the round.
std::size_t Berekening::kolomVan(std::size_t ronde, std::size_t zitting) const {
    std::size_t nummer = 0;
    for (std::size_t r = 1; r <= ronde; ++r) {
        const auto& marks = in_.gespeeld[r];
        for (std::size_t z = 1; z < marks.size(); ++z) {
            if (marks[z] && (r < ronde || z <= zitting)) ++nummer;
        }
    }
    return 5 + nummer;
}

void Berekening::maakPaarrijen() {
    paren_.assign(in_.zitRegels.size(), std::vector<std::string>(s_ + 6));
    std::string vorige;
    std::size_t p = 0;
    for (std::size_t i = 1; i < in_.zitRegels.size(); ++i) {
        auto& rij = in_.zitRegels[i];
        if (rij[1] + rij[2] != vorige) {
            ++p;
            paren_[p][1] = rij[1];
            paren_[p][3] = rij[2];
        }
        const auto ronde = std::stoul(rij[4].substr(1, 2));
        const auto zitting = std::stoul(rij[4].substr(5, 2));
        std::string spellen = rij[4].substr(8);
        if (!in_.buiMed && !rij[6].empty()) {
            rij[3] = "0";
            spellen = "0";
        }
        paren_[p][kolomVan(ronde, zitting)] = DrieDecimalen(rij[3]) + "_" + Nullen(spellen, 2);
        vorige = rij[1] + rij[2];
    }
}

std::string Berekening::sleutel(std::size_t i) const {
    return in_.gemAlleLijnen ? paren_[i][3] : paren_[i][1] + "-" + paren_[i][3];
}

void Berekening::voegSamen() {
    for (std::size_t i = 1; i < paren_.size(); ++i) {
        for (std::size_t j = i + 1; j < paren_.size(); ++j) {
            if (paren_[i][1].empty() || paren_[j][1].empty() || sleutel(i) != sleutel(j)) continue;
            for (std::size_t k = 6; k <= 5 + s_; ++k) {
                if (!Trim(paren_[j][k]).empty()) paren_[i][k] = paren_[j][k];
            }
            for (std::size_t k = 1; k <= 5 + s_; ++k)
                paren_[j][k].clear();
        }
    }
}

bool Berekening::telt(std::size_t i, std::size_t kolom) const {
    const std::string begin = paren_[i][kolom].substr(0, 6);
    return !begin.empty() && begin != "00,000";
}

void Berekening::telEnToets() {
    for (std::size_t i = 1; i < paren_.size(); ++i) {
        if (paren_[i][1].empty()) continue;
        int aantal = 0;
        for (std::size_t k = 6; k <= 5 + s_; ++k)
            aantal += telt(i, k) ? 1 : 0;
        paren_[i][4] = aantal < minimum(i) ? "0" : std::to_string(aantal);
    }
}

float Berekening::gewoon(std::size_t i) const {
    float som = 0;
    int aantal = 0;
    for (std::size_t k = 6; k <= 5 + s_; ++k) {
        if (!telt(i, k)) continue;
        som += Duizendsten(VoorStreep(paren_[i][k]));
        ++aantal;
    }
    return static_cast<float>(static_cast<double>(som) / 1000 / aantal);
}

float Berekening::gewogen(std::size_t i) const {
    float som = 0;
    int spellen = 0;
    for (std::size_t k = 6; k <= 5 + s_; ++k) {
        if (paren_[i][k].empty()) continue;
        const float percentage = Duizendsten(VoorStreep(paren_[i][k]));
        const int aantal = std::stoi(NaStreep(paren_[i][k]));
        if (percentage == 0.0F || aantal == 0) continue;
        som += static_cast<float>(aantal) * percentage;
        spellen += aantal;
    }
    if (spellen == 0) throw GeenSpellen();
    return static_cast<float>(static_cast<double>(som) / 1000 / spellen);
}

void Berekening::middel() {
    for (std::size_t i = 1; i < paren_.size(); ++i) {
        if (paren_[i][1].empty() || paren_[i][4] == "0") continue;
        const float gemiddelde = in_.gewogen ? gewogen(i) : gewoon(i);
        paren_[i][5] = DrieDecimalen(KortsteTekst(gemiddelde));
    }
}

void Berekening::laatVallen() {
    for (std::size_t i = 1; i < paren_.size(); ++i) {
        if (!paren_[i][1].empty() && std::stoi(paren_[i][4]) < minimum(i)) paren_[i][1].clear();
    }
}

std::vector<std::string> Berekening::sorteer() const {
    std::vector<std::string> sleutels;
    for (std::size_t i = 1; i < paren_.size(); ++i) {
        if (paren_[i][1].empty() || paren_[i][4] == "0") continue;
        const int waarde = 1'000'000 - static_cast<int>(Duizendsten(paren_[i][5]));
        const std::string v = std::to_string(waarde);
        const std::string nummer = Nullen(std::to_string(i), 6);
        sleutels.push_back(in_.gemAlleLijnen ? v + "_" + paren_[i][1] + "_" + nummer
                                             : paren_[i][1] + "_" + v + "_" + nummer);
    }
    std::sort(sleutels.begin(), sleutels.end());
    return sleutels;
}

std::string Berekening::naam(const std::string& cijfers) const {
    const auto gevonden = in_.leden->find(std::stoi(cijfers));
    return gevonden == in_.leden->end() ? "" : gevonden->second;
}

void Berekening::maakResultaat(const std::vector<std::string>& sleutels) {
    std::size_t m = 0;
    for (std::size_t i = 1; i < paren_.size(); ++i)
        m += paren_[i][1].empty() ? 0U : 1U;
    resultaat_.assign(m + 1, std::vector<std::string>(s_ + 6));
    for (std::size_t r = 1; r <= sleutels.size(); ++r) {
        const std::string& tekst = sleutels[r - 1];
        resultaat_[r] = paren_[std::stoul(tekst.substr(tekst.size() - 6))];
        const std::string leden = resultaat_[r][3];
        resultaat_[r][3] = naam(leden.substr(0, 8)) + " - " + naam(leden.substr(8));
    }
}

/// Ranks the rows with this line letter, or all rows for the empty text.
void Berekening::rangschik(const std::string& letter) {
    std::vector<std::size_t> rijen;
    for (std::size_t r = 1; r < resultaat_.size(); ++r) {
        const std::string& lijn = resultaat_[r][1];
        if (lijn.empty() || (!letter.empty() && lijn != letter)) continue;
        rijen.push_back(r);
        resultaat_[r][2] = std::to_string(rijen.size());
    }
    for (std::size_t n = 1; n < rijen.size(); ++n) {
        if (resultaat_[rijen[n]][5] != resultaat_[rijen[n - 1]][5]) continue;
        const std::string label = "(" + resultaat_[rijen[n - 1]][2] + ")";
        resultaat_[rijen[n - 1]][2] = label;
        while (n < rijen.size() && resultaat_[rijen[n]][5] == resultaat_[rijen[n - 1]][5])
            resultaat_[rijen[n++]][2] = label;
    }
}

void Berekening::markeerNulScores() {
    for (auto& rij : resultaat_) {
        for (std::size_t k = 6; k < rij.size(); ++k) {
            if (rij[k].substr(0, 6) == "00,000") rij[k] = "-";
        }
    }
}

Tabel Berekening::voer() {
    telZittingen();
    maakPaarrijen();
    voegSamen();
    telEnToets();
    middel();
    laatVallen();
    maakResultaat(sorteer());
    if (in_.gemAlleLijnen) {
        rangschik("");
    } else {
        for (const auto& [letter, aantal] : in_.minimum)
            rangschik(letter);
    }
    markeerNulScores();
    return resultaat_;
}

} // namespace

Tabel Bereken(Invoer invoer) { return Berekening(std::move(invoer)).voer(); }

} // namespace lauwerkrans::naief
