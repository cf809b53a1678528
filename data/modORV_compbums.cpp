#include "data/modORV_compbums.h"

#include <algorithm>
#include <array>
#include <limits>

#include "data/codetabel.h"
#include "data/fout.h"
#include "data/getallen.h"
#include "data/lijstformaat.h"
#include "data/modORV_compdata.h"
#include "data/paarsleutel.h"

namespace lauwerkrans {

namespace {

constexpr std::int64_t meeste = std::numeric_limits<std::int32_t>::max();
constexpr std::int64_t markeringsVeld = 6;

/// The entries of one file. A row without a sixth field cannot be read: that file is malformed.
std::vector<std::string> LeesRonde(LijstBestand& bestand, std::size_t ronde) {
    std::vector<std::string> lijst;
    const std::int64_t rijen = bestand.getal(0, meeste);
    const std::int64_t velden = bestand.getal(rijen == 0 ? 0 : markeringsVeld, meeste);
    for (std::int64_t rij = 0; rij < rijen; ++rij) {
        bestand.slaOver(3);
        const std::string lid1 = bestand.tekst();
        const std::string lid2 = bestand.tekst();
        const std::string mark = bestand.tekst();
        bestand.slaOver(velden - markeringsVeld);
        if (Hoofdletters(mark) != "BUM") continue;
        lijst.push_back(Patroon(static_cast<std::int64_t>(ronde), 0, 2) + "," + lid1 + "," + lid2 +
                        "," + mark);
    }
    return lijst;
}

/// The first three of the parts of an entry between its commas.
std::array<std::string_view, 3> Delen(std::string_view invoer) {
    std::array<std::string_view, 3> delen;
    for (auto& deel : delen) {
        deel = invoer.substr(0, invoer.find(','));
        invoer.remove_prefix(std::min(deel.size() + 1, invoer.size()));
    }
    return delen;
}

} // namespace

Rij LeesCompBums(const RondeMappen& mappen) {
    Rij bumLijst;
    for (std::size_t ronde = 1; ronde <= mappen.ronden(); ++ronde) {
        const auto pad = mappen.compBums(ronde);
        systeem::Leesbuffer buffer;
        if (!pad || systeem::LeesBestand(*pad, buffer)) continue;
        try {
            LijstBestand bestand(*pad, buffer.bytes());
            for (auto& invoer : LeesRonde(bestand, ronde))
                bumLijst.voegToe(std::move(invoer));
        } catch (const Fout&) {
            continue; // a malformed list is passed over in silence
        }
    }
    return bumLijst;
}

void LeesCompBums(Algemeen& algemeen) {
    algemeen.BumLijst = Rij();
    const auto ronden = static_cast<std::size_t>(algemeen.compTabel.ronden());
    try {
        algemeen.BumLijst = LeesCompBums(RondeMappen(algemeen.competitie, ronden));
    } catch (const Fout&) {
        return; // a folder that cannot be listed is reported where its sessions are counted
    }
}

BumZoeker::BumZoeker(const Rij& bumLijst) : perRonde_(meesteRonden + 1) {
    for (std::size_t i = 1; i <= bumLijst.bovengrens(); ++i) {
        const auto [ronde, lid1, lid2] = Delen(bumLijst.cel(i));
        const auto nummer = static_cast<std::size_t>(Cijfers(ronde, meesteRonden).value_or(0));
        for (const auto& [eerste, tweede] : {std::pair(lid1, lid2), std::pair(lid2, lid1)}) {
            const auto paar =
                LeesPaarSleutel(std::string("  ").append(eerste).append("  ").append(tweede));
            if (paar) perRonde_[nummer].push_back(*paar);
        }
    }
    for (auto& paren : perRonde_)
        std::sort(paren.begin(), paren.end());
}

bool BumZoeker::heeft(std::size_t ronde, std::uint32_t lid1, std::uint32_t lid2) const {
    const auto& paren = perRonde_.at(ronde);
    return std::binary_search(paren.begin(), paren.end(), Paar(lid1, lid2));
}

} // namespace lauwerkrans
