#include "app/modInstellingen.h"

#include <algorithm>
#include <chrono>
#include <thread>

#include "data/codetabel.h"
#include "data/fout.h"
#include "data/getallen.h"
#include "data/tekstbestand.h"

namespace lauwerkrans {

namespace {

constexpr std::string_view streepjes = "__";

/// A text without its first characters; a character may take several bytes.
std::string_view ZonderTekens(std::string_view utf8, std::size_t aantal) {
    const auto vervolg = [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
    };
    for (; aantal > 0 && !utf8.empty(); --aantal) {
        utf8.remove_prefix(1);
        while (!utf8.empty() && vervolg(utf8.front()))
            utf8.remove_prefix(1);
    }
    return utf8;
}

/// Key and value of a line; the two characters behind the prefix are not looked at.
std::string_view Inhoud(std::string_view regel, std::string_view prefix) {
    regel = ZonderBlanks(regel);
    if (!regel.starts_with(prefix)) return {};
    return ZonderBlanks(ZonderTekens(regel.substr(prefix.size()), 2));
}

std::string_view Waarde(std::string_view inhoud) { return inhoud.substr(inhoud.find('=') + 1); }

std::int16_t Getal(std::string_view inhoud) { return LeidendGetal16(Waarde(inhoud)).value_or(0); }

std::string CriteriumSleutel(std::size_t lijn) { return "TXT" + std::to_string(lijn) + "="; }

void VerwerkCriterium(std::string_view inhoud, std::size_t lijnen, IniWaarden& waarden) {
    constexpr std::size_t vergeleken = 5;
    for (std::size_t lijn = 1; lijn <= lijnen; ++lijn) {
        if (inhoud.substr(0, vergeleken) != CriteriumSleutel(lijn)) continue;
        waarden.criteria[lijn] = Waarde(inhoud);
        return;
    }
}

void VerwerkRegel(std::string_view inhoud, std::size_t lijnen, Instellingen& instellingen,
                  IniWaarden& waarden) {
    for (std::size_t i = 0; i < waarden.vinkjes.size(); ++i) {
        if (!inhoud.starts_with("CHK" + std::to_string(i + 1) + "=")) continue;
        waarden.vinkjes.at(i) = Getal(inhoud) == 1;
        return;
    }
    if (inhoud.starts_with("CHKTL=")) {
        instellingen.ToonLijnen = Getal(inhoud);
    } else if (inhoud.starts_with("CHKTZ=")) {
        instellingen.ToonZittingen = Getal(inhoud);
    } else if (inhoud.starts_with("TXTKOP=")) {
        instellingen.KopTekst = Waarde(inhoud);
        waarden.KopTekst = instellingen.KopTekst;
    } else {
        VerwerkCriterium(inhoud, lijnen, waarden);
    }
}

bool IsCriteriumRegel(std::string_view inhoud) {
    if (!inhoud.starts_with("TXT")) return false;
    const auto is = inhoud.find('=');
    return is != std::string_view::npos && Cijfers(inhoud.substr(3, is - 3), 99).has_value();
}

/// A virus scanner or a backup may hold the file for a moment, so it is tried for half a second.
systeem::Leesbuffer LeesMetGeduld(const std::string& pad) {
    constexpr int pogingen = 10;
    constexpr std::chrono::milliseconds wachttijd(50);
    for (int poging = 1; poging < pogingen; ++poging) {
        try {
            return LeesTekst(pad);
        } catch (const Fout& fout) {
            if (fout.code != std::errc::device_or_resource_busy) throw;
        }
        std::this_thread::sleep_for(wachttijd);
    }
    return LeesTekst(pad);
}

} // namespace

std::string InstellingenPad(std::string_view programmaMap) {
    return VoegPad(programmaMap, "Lauwr.ini");
}

void LeesInstellingen(Instellingen& instellingen, Algemeen& algemeen) {
    algemeen.LeesFout = 0;
    instellingen.IniRegels = Rij();
    instellingen.onleesbaar.clear();
    try {
        const systeem::Leesbuffer buffer = LeesMetGeduld(instellingen.bestand);
        Regels regels(ZonderBom(buffer.bytes()));
        while (const auto regel = regels.volgende()) {
            if (!ZonderBlanks(*regel).empty()) instellingen.IniRegels.voegToe(NaarUtf8(*regel));
        }
    } catch (const Fout& fout) { // the controls keep their defaults
        if (fout.code != std::errc::no_such_file_or_directory) instellingen.onleesbaar = fout.code;
    }
}

IniWaarden VerwerkIniVariabelen(Instellingen& instellingen, std::size_t lijnen) {
    IniWaarden waarden;
    instellingen.ToonLijnen = 0;
    instellingen.ToonZittingen = 0;
    instellingen.KopTekst.clear();
    for (std::size_t i = 1; i <= instellingen.IniRegels.bovengrens(); ++i) {
        VerwerkRegel(Inhoud(instellingen.IniRegels.cel(i), instellingen.InstellingPrefix), lijnen,
                     instellingen, waarden);
    }
    return waarden;
}

void SchrijfInstellingen(const Instellingen& instellingen, const IniStand& stand) {
    if (instellingen.onleesbaar && StaatEr(instellingen.bestand))
        GooiNietSchrijfbaar(instellingen.bestand, instellingen.onleesbaar);
    const std::string_view prefix = instellingen.InstellingPrefix;
    std::string tekst;
    const auto voegToe = [&](const std::string& inhoud) {
        tekst.append(ZonderBlanks(prefix)).append(streepjes).append(inhoud).append("\r\n");
    };
    for (std::size_t i = 1; i <= instellingen.IniRegels.bovengrens(); ++i) {
        const std::string& regel = instellingen.IniRegels.cel(i);
        if (!regel.starts_with(prefix)) tekst.append(regel).append("\r\n");
    }
    for (std::size_t i = 0; i < stand.vinkjes.size(); ++i) {
        voegToe("CHK" + std::to_string(i + 1) + "=" + (stand.vinkjes.at(i) ? "1" : "0"));
    }
    voegToe("CHKTL=" + std::to_string(instellingen.ToonLijnen));
    voegToe("CHKTZ=" + std::to_string(instellingen.ToonZittingen));
    voegToe("TXTKOP=" + instellingen.KopTekst);
    for (std::size_t i = 0; i < stand.criteria.size(); ++i) {
        if (!stand.criteria[i].empty()) voegToe(CriteriumSleutel(i + 1) + stand.criteria[i]);
    }
    for (std::size_t i = 1; i <= instellingen.IniRegels.bovengrens(); ++i) {
        const std::string& regel = instellingen.IniRegels.cel(i);
        const bool bewaar = !stand.lijnenBekend && IsCriteriumRegel(Inhoud(regel, prefix));
        if (bewaar) tekst.append(regel).append("\r\n");
    }
    VervangTekst(instellingen.bestand, tekst);
}

std::string MaakBestandsnaam(std::string_view tekst) {
    constexpr std::string_view verboden = "\\/?:*><| ";
    std::string naam(tekst);
    std::replace_if(
        naam.begin(), naam.end(),
        [verboden](char teken) { return verboden.find(teken) != std::string_view::npos; }, '_');
    return naam;
}

} // namespace lauwerkrans
