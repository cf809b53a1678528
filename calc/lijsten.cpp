#include "calc/lijsten.h"

#include <algorithm>
#include <optional>
#include <unordered_map>
#include <utility>

#include "calc/zittingvormen.h"
#include "data/getallen.h"

namespace lauwerkrans {

namespace {

/// Finds the widest text; texts of the same shape (every digit a 0) are measured once.
class Breedste {
public:
    Breedste(const Meter& meet, bool vet) : meet_(meet), vet_(vet) {}

    void kijk(const std::string& tekst) {
        const auto [plaats, nieuw] = bekend_.try_emplace(Vorm(tekst), 0.0);
        if (!nieuw) return;
        plaats->second = meet_(tekst, vet_);
        breedte_ = std::max(breedte_, plaats->second);
    }

    [[nodiscard]] double breedte() const { return breedte_; }

private:
    const Meter& meet_;
    bool vet_;
    double breedte_ = 0;
    std::unordered_map<std::string, double> bekend_;
};

/// Finds the widest pair of names; each name is measured once, then only the widest pair as a
/// whole.
class BreedstePaar {
public:
    BreedstePaar(const LedenNamen& leden, const Meter& meet, bool vet)
        : leden_(leden), meet_(meet), vet_(vet) {}

    void kijk(std::uint32_t lid1, std::uint32_t lid2) {
        const double breedte = naam(lid1) + naam(lid2);
        if (breedte < geschat_) return;
        geschat_ = breedte;
        gemeten_ = std::max(gemeten_, meet_(leden_.paar(lid1, lid2), vet_));
    }

    [[nodiscard]] double breedte() const { return gemeten_; }

private:
    double naam(std::uint32_t lid) {
        const auto [plaats, nieuw] = bekend_.try_emplace(lid, 0.0);
        if (nieuw) plaats->second = meet_(leden_.naam(lid), vet_);
        return plaats->second;
    }

    const LedenNamen& leden_;
    const Meter& meet_;
    bool vet_;
    double geschat_ = 0;
    double gemeten_ = 0;
    std::unordered_map<std::uint32_t, double> bekend_;
};

constexpr std::size_t vasteKolommen = 6; // "Nr" to "Gemid %"
constexpr std::size_t kolomPaar = 4;

class Ranglijst : public Lijst {
public:
    Ranglijst(std::shared_ptr<const Uitslag> uitslag, bool zitDetails, bool toonControle)
        : uitslag_(std::move(uitslag)) {
        titel_ = (toonControle ? "Controlelijst voor lijn " : "Berekening voor lijn ") +
                 uitslag_->GekozenLijnen;
        koppen_ = {"Nr", "Lijn", "Rang", "Paar", "AantZit", "Gemid %"};
        if (!zitDetails) return;
        zittingVormen_.emplace(tabel());
        for (auto& kop : ZittingKoppen(uitslag_->rondeInfo))
            koppen_.push_back(std::move(kop));
    }

    [[nodiscard]] std::size_t rijen() const override { return tabel().rijen.size(); }

    [[nodiscard]] std::string cel(std::size_t rij, std::size_t kolom) const override {
        return kolom == 1 ? std::to_string(rij) : tabel().cel(rij, kolom - 1);
    }

    [[nodiscard]] std::string uitleg(std::size_t rij, std::size_t kolom) const override {
        if (kolom <= vasteKolommen) return {};
        const std::size_t nummer = kolom - vasteKolommen;
        const auto [ronde, zitting] = uitslag_->rondeInfo.zitting(nummer);
        const ZittingCel* gespeeld = tabel().zitting(tabel().rijen.at(rij - 1), nummer);
        return "Ronde " + std::to_string(ronde) + ", zitting " + std::to_string(zitting) + ": " +
               (gespeeld == nullptr ? "niet gespeeld door dit paar" : gespeeld->uitleg());
    }

    [[nodiscard]] bool vet(std::size_t kolom) const override {
        return kolom >= 2 && kolom <= vasteKolommen;
    }

    [[nodiscard]] char lijn(std::size_t rij) const override {
        return tabel().rijen.at(rij - 1).lijn;
    }

    [[nodiscard]] double breedsteCel(std::size_t kolom, const Meter& meet) const override {
        if (kolom == kolomPaar) return breedstePaar(meet);
        if (kolom > vasteKolommen) return zittingVormen_->breedste(kolom - vasteKolommen, meet);
        Breedste breedste(meet, vet(kolom));
        for (std::size_t rij = 1; rij <= rijen(); ++rij)
            breedste.kijk(cel(rij, kolom));
        return breedste.breedte();
    }

private:
    [[nodiscard]] const ResultaatTabel& tabel() const { return uitslag_->resultaat; }

    [[nodiscard]] double breedstePaar(const Meter& meet) const {
        BreedstePaar breedste(*tabel().leden, meet, true);
        for (const PaarRij& rij : tabel().rijen)
            breedste.kijk(rij.lid1, rij.lid2);
        return breedste.breedte();
    }

    std::shared_ptr<const Uitslag> uitslag_;
    std::optional<ZittingVormen> zittingVormen_; // with session columns
};

/// Grid column k shows column k - 1 of `ZitRegels`.
enum ControleKolom : std::size_t { Nr = 1, Paarcode = 3, ZitPerc = 4, RoZiSp = 5, Paarnamen = 9 };

class Controlelijst : public Lijst {
public:
    explicit Controlelijst(std::shared_ptr<const Controle> controle)
        : controle_(std::move(controle)) {
        const Selectie& selectie = controle_->selectie;
        titel_ = selectie.PersoonFilterAan ? "Controlelijst voor " + selectie.PersoonFilter
                                           : "Berekening voor lijn " + selectie.GekozenLijnen;
        koppen_ = {"Nr", "Lijn", "Paarcode", "ZitPerc", "Ro-Zi-Sp", "-", "BUM", "-", "Paarnamen"};
    }

    [[nodiscard]] std::size_t rijen() const override { return regels().gevuld(); }

    [[nodiscard]] std::string cel(std::size_t rij, std::size_t kolom) const override {
        if (kolom == Nr) return std::to_string(rij);
        if (kolom == ZitPerc) return percentage(regels().regel(rij));
        return regels().cel(rij, kolom - 1);
    }

    [[nodiscard]] bool vet(std::size_t /*kolom*/) const override { return false; }

    [[nodiscard]] char lijn(std::size_t rij) const override { return regels().regel(rij).lijn; }

    [[nodiscard]] double breedsteCel(std::size_t kolom, const Meter& meet) const override {
        if (kolom == Paarnamen) return breedstePaar(meet);
        Breedste breedste(meet, false);
        if (kolom != Nr) {
            verschillende(kolom, breedste);
        } else if (rijen() > 0) {
            breedste.kijk(std::to_string(rijen()));
        }
        return breedste.breedte();
    }

private:
    [[nodiscard]] const ZitRegels& regels() const { return controle_->zitRegels; }

    /// Four decimals; what is empty or no percentage stands as it was read.
    [[nodiscard]] std::string percentage(const ZitRegel& regel) const {
        std::string tekst = regels().percentage(regel);
        const std::string_view kern = ZonderBlanks(tekst);
        if (kern.empty()) return {};
        if (regels().duizendsten(regel) == ZitRegels::geenPercentage) return tekst;
        const auto afgerond = Afgerond(kern, 4);
        return afgerond ? Patroon(*afgerond, 4, 1) : tekst;
    }

    /// Empty and odd texts, and those at a power of ten that four decimals may leave below it.
    static constexpr std::size_t elkeTekst = 0;

    [[nodiscard]] static std::size_t percentageVorm(std::int32_t duizendsten) {
        const bool grens = duizendsten == 10'000 || duizendsten == 100'000;
        return duizendsten <= 0 || grens ? elkeTekst : std::to_string(duizendsten).size();
    }

    /// "-05" is a shape of its own.
    [[nodiscard]] static std::size_t spellenVorm(std::int32_t spellen) {
        return spellen < 0 ? elkeTekst : std::to_string(spellen).size();
    }

    /// A column's texts hang on a few numbers of the row; a row whose numbers have as many digits
    /// as those of an earlier one is passed over.
    [[nodiscard]] std::size_t vorm(const ZitRegel& regel, std::size_t kolom) const {
        const auto cijfers = [](std::int64_t getal) { return std::to_string(getal).size(); };
        switch (kolom) {
        case Paarcode:
            return cijfers(regel.laagste()) * 16 + cijfers(regel.hoogste());
        case ZitPerc:
            return percentageVorm(regels().duizendsten(regel));
        case RoZiSp:
            return spellenVorm(regel.spellen);
        default:
            return static_cast<std::size_t>(regel.lijn) * 2 + (regel.bum ? 1 : 0);
        }
    }

    void verschillende(std::size_t kolom, Breedste& breedste) const {
        std::vector<bool> gezien(1024);
        for (std::size_t rij = 1; rij <= rijen(); ++rij) {
            const ZitRegel& regel = regels().regels()[rij - 1];
            const std::size_t nummer = vorm(regel, kolom);
            if (gezien[nummer] && nummer != elkeTekst) continue;
            gezien[nummer] = true;
            breedste.kijk(cel(rij, kolom));
        }
    }

    [[nodiscard]] double breedstePaar(const Meter& meet) const {
        BreedstePaar breedste(regels().leden(), meet, false);
        for (const ZitRegel& regel : regels().regels())
            breedste.kijk(regel.lid1, regel.lid2);
        return breedste.breedte();
    }

    std::shared_ptr<const Controle> controle_;
};

} // namespace

std::string Vorm(std::string tekst) {
    const auto isCijfer = [](char teken) { return teken >= '0' && teken <= '9'; };
    std::replace_if(tekst.begin(), tekst.end(), isCijfer, '0');
    return tekst;
}

std::vector<std::string> ZittingKoppen(const RondeInfo& rondeInfo) {
    std::vector<std::string> koppen(rondeInfo.totaal());
    std::size_t ronden = 0;
    for (std::size_t ronde = 1; ronde <= rondeInfo.ronden(); ++ronde) {
        if (rondeInfo.gespeeld(ronde) > 0) ++ronden;
    }
    std::size_t plaats = 0;
    for (std::size_t ronde = 1; ronde <= ronden; ++ronde) {
        for (std::size_t zitting = 1; zitting <= rondeInfo.gespeeld(1); ++zitting) {
            if (plaats == koppen.size()) return koppen;
            koppen[plaats++] = "R" + std::to_string(ronde) + "-Z" + std::to_string(zitting) + "-Sp";
        }
    }
    return koppen;
}

std::shared_ptr<const Lijst> MaakRanglijst(const std::shared_ptr<const Uitslag>& uitslag,
                                           bool zitDetails, bool toonControle) {
    return std::make_shared<Ranglijst>(uitslag, zitDetails, toonControle);
}

std::shared_ptr<const Lijst> MaakControlelijst(const std::shared_ptr<const Controle>& controle) {
    return std::make_shared<Controlelijst>(controle);
}

} // namespace lauwerkrans
