#include "data/modORV_perczit.h"

#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <unordered_map>

#include "data/achttal.h"
#include "data/codetabel.h"
#include "data/fout.h"
#include "data/getallen.h"
#include "data/lijstformaat.h"
#include "data/modORV_compbums.h"
#include "data/ronde_mappen.h"
#include "data/tekstbestand.h"

namespace lauwerkrans {

namespace {

constexpr std::size_t veldenPerRegel = 7;
constexpr std::size_t meesteMeldingen = 100;
constexpr std::size_t meesteCijfers = 8; // of a member number
constexpr std::int64_t hoogsteLidnummer = 99'999'999;

using Velden = std::array<std::string_view, veldenPerRegel>;

/// One to eight digits of the buffer that is being read.
std::optional<std::uint32_t> Lidnummer(std::string_view tekst) {
    if constexpr (achttal::bruikbaar) return achttal::Getal(tekst);
    if (tekst.size() > meesteCijfers) return std::nullopt;
    const auto nummer = Cijfers(tekst, hoogsteLidnummer);
    return nummer && tekst == ZonderBlanks(tekst)
               ? std::optional(static_cast<std::uint32_t>(*nummer))
               : std::nullopt;
}

/// Whether a member's name holds the filter, in any letter case; each member is looked at once.
class NaamFilter {
public:
    NaamFilter(const Selectie& selectie, const LedenNamen& leden)
        : aan_(selectie.PersoonFilterAan), filter_(Hoofdletters(selectie.PersoonFilter)),
          leden_(leden) {}

    [[nodiscard]] bool past(std::uint32_t lid1, std::uint32_t lid2) {
        return !aan_ || naamPast(lid1) || naamPast(lid2);
    }

private:
    bool naamPast(std::uint32_t lid) {
        const auto [plaats, nieuw] = bekend_.try_emplace(lid, false);
        if (nieuw) {
            plaats->second = Hoofdletters(leden_.naam(lid)).find(filter_) != std::string::npos;
        }
        return plaats->second;
    }

    bool aan_;
    std::string filter_;
    const LedenNamen& leden_;
    std::unordered_map<std::uint32_t, bool> bekend_;
};

/// Reads session after session into one table.
class PercZitLezer {
public:
    PercZitLezer(const Algemeen& algemeen, const Selectie& selectie, const Rij& bumLijst,
                 ZitRegels& zitRegels)
        : algemeen_(algemeen), filter_(selectie, zitRegels.leden()), bums_(bumLijst),
          zitRegels_(zitRegels) {
        for (const char letter : selectie.GekozenLijnen) {
            doetMee_.at(static_cast<unsigned char>(letter)) = true;
        }
    }

    void leesZitting(std::size_t ronde, std::size_t zitting, std::string_view bytes);
    void meldOverige() const;

private:
    [[nodiscard]] Fout fout(FoutSoort soort) const;
    void handelRegel(std::string_view regel);
    void handelVelden(const Velden& velden);
    void meldOnbekend(std::string_view lid, std::string_view paarnummer);
    [[nodiscard]] std::int32_t spellen(std::string_view veld) const;

    const Algemeen& algemeen_;
    std::array<bool, 256> doetMee_{}; // by line letter
    NaamFilter filter_;
    BumZoeker bums_;
    ZitRegels& zitRegels_;
    std::size_t ronde_ = 0;
    std::size_t zitting_ = 0;
    std::int64_t regelnummer_ = 0;
    std::size_t onbekenden_ = 0;
};

void PercZitLezer::leesZitting(std::size_t ronde, std::size_t zitting, std::string_view bytes) {
    ronde_ = ronde;
    zitting_ = zitting;
    Regels regels(ZonderBom(bytes));
    Velden velden;
    while (!regels.klaar()) {
        regelnummer_ = regels.nummer() + 1;
        if (const std::size_t lengte = SplitsGewoneRegel(regels.rest(), velden)) {
            regels.neemRegel(lengte);
            handelVelden(velden);
        } else {
            handelRegel(regels.volgende().value_or(""));
        }
    }
}

Fout PercZitLezer::fout(FoutSoort soort) const {
    Fout fout(soort);
    fout.bestand = PercZitPad(algemeen_.competitie, ronde_, zitting_);
    fout.regel = regelnummer_;
    return fout;
}

void PercZitLezer::handelRegel(std::string_view regel) {
    Velden velden;
    const std::size_t aantal = SplitsRegel(regel, velden.data(), velden.size());
    if (aantal == veldenPerRegel) {
        handelVelden(velden);
    } else if (!ZonderBlanks(regel).empty()) {
        Fout verkeerd = fout(FoutSoort::AantalVelden);
        verkeerd.aantal = static_cast<std::int64_t>(aantal);
        verkeerd.tekst = NaarUtf8(Begin(regel));
        throw verkeerd;
    }
}

void PercZitLezer::handelVelden(const Velden& velden) {
    const std::string_view paarnummer = velden[2];
    const std::string_view leden = velden[3];
    if (paarnummer.empty()) return;
    if (!doetMee_.at(static_cast<unsigned char>(paarnummer[0]))) return;
    const auto streepje = leden.find('-');
    if (streepje == std::string_view::npos) return;
    const auto tekst1 = ZonderBlanks(leden.substr(0, streepje));
    const auto tekst2 = ZonderBlanks(leden.substr(streepje + 1));
    const auto lid1 = Lidnummer(tekst1);
    const auto lid2 = Lidnummer(tekst2);
    if (!lid1 || !lid2) {
        meldOnbekend(lid1 ? tekst2 : tekst1, paarnummer);
        return;
    }
    if (!filter_.past(*lid1, *lid2)) return;
    if (zitRegels_.vol()) {
        Fout teVeel = fout(FoutSoort::TeVeelRegels);
        teVeel.aantal = static_cast<std::int64_t>(zitRegels_.ruimte());
        throw teVeel;
    }
    ZitRegel regel;
    regel.lijn = paarnummer[0];
    regel.lid1 = *lid1;
    regel.lid2 = *lid2;
    regel.spellen = spellen(velden[5]);
    regel.ronde = static_cast<std::uint8_t>(ronde_);
    regel.zitting = static_cast<std::uint8_t>(zitting_);
    regel.bum = bums_.heeft(ronde_, regel.laagste(), regel.hoogste());
    zitRegels_.voegToe(regel, velden[4]);
}

std::int32_t PercZitLezer::spellen(std::string_view veld) const {
    if (const auto gewoon = Lidnummer(veld)) return static_cast<std::int32_t>(*gewoon);
    const double aantal = LeidendGetal(veld);
    using Grens = std::numeric_limits<std::int32_t>;
    if (std::abs(aantal) >= static_cast<double>(Grens::max())) {
        Fout teVeel = fout(FoutSoort::TeVeelSpellen);
        teVeel.tekst = NaarUtf8(Begin(veld));
        throw teVeel;
    }
    return static_cast<std::int32_t>(Afgerond(aantal, 0));
}

void PercZitLezer::meldOnbekend(std::string_view lid, std::string_view paarnummer) {
    if (++onbekenden_ > meesteMeldingen) return;
    algemeen_.meld({BytesInMelding(lid) + " (R" + std::to_string(ronde_) + "-Z" +
                        std::to_string(zitting_) + "-nr" + BytesInMelding(paarnummer) + ")" +
                        " komt niet voor in ORV-ledenbestand en wordt overgeslagen!" +
                        "\r\n\r\nOplossing: zie bij Speler-admin 'Koppelen zwevende spelers'.",
                    Icoon::Uitroep});
}

void PercZitLezer::meldOverige() const {
    if (onbekenden_ <= meesteMeldingen) return;
    algemeen_.meld({"Er zijn nog " + std::to_string(onbekenden_ - meesteMeldingen) +
                        " scoreregels met een lidnummer dat geen getal is; ook die zijn "
                        "overgeslagen.",
                    Icoon::Uitroep});
}

/// Tells how many sessions have been read, when it is time to. The number of all is counted then
/// only: by the folders, without a look into them.
class Teller {
public:
    Teller(const Voortgang& voortgang, const RondeMappen& mappen, std::size_t zittingen)
        : voortgang_(voortgang), mappen_(mappen), zittingen_(zittingen) {}

    void tel() {
        ++gelezen_;
        if (!voortgang_.isTijd || !voortgang_.isTijd()) return;
        if (totaal_ == 0) totaal_ = mappen_.zittingMappen(zittingen_);
        voortgang_.toon(gelezen_, totaal_);
    }

    /// All files have been read; a folder without one was no session.
    void klaar() const {
        if (totaal_ != 0) voortgang_.toon(gelezen_, gelezen_);
    }

private:
    const Voortgang& voortgang_;
    const RondeMappen& mappen_;
    std::size_t zittingen_;
    std::size_t gelezen_ = 0;
    std::size_t totaal_ = 0; // counted when first shown
};

} // namespace

Lezing LeesPercZitBestanden(Algemeen& algemeen, const Selectie& selectie) {
    algemeen.LeesFout = 0;
    const auto ronden = static_cast<std::size_t>(algemeen.compTabel.ronden());
    const auto zittingen = static_cast<std::size_t>(algemeen.compTabel.zittingen());
    const RondeMappen mappen(algemeen.competitie, ronden);
    Lezing lezing;
    lezing.BumLijst = LeesCompBums(mappen);
    lezing.zitRegels = ZitRegels(ronden * zittingen * parenPerZitting, algemeen.ledenNamen);
    PercZitLezer lezer(algemeen, selectie, lezing.BumLijst, lezing.zitRegels);
    Teller teller(algemeen.voortgang, mappen, zittingen);
    systeem::Leesbuffer buffer;
    std::vector<bool> gespeeld;
    for (std::size_t ronde = 1; ronde <= ronden; ++ronde) {
        for (std::size_t zitting = 1; zitting <= zittingen; ++zitting) {
            gespeeld.push_back(mappen.leesPercZit(ronde, zitting, buffer));
            if (!gespeeld.back()) continue;
            lezer.leesZitting(ronde, zitting, buffer.bytes());
            teller.tel();
        }
    }
    teller.klaar();
    lezer.meldOverige();
    lezing.rondeInfo = RondeInfo(ronden, zittingen, gespeeld);
    return lezing;
}

} // namespace lauwerkrans
