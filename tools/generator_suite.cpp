#include "tools/generator_suite.h"

#include <initializer_list>

#include "tools/generator_tekst.h"

namespace lauwerkrans::generator {

namespace {

using namespace std::string_literals;

constexpr std::string_view kClub = "Bridgeclub De Kromme Troef";

// Text fields on one line.
void ZetVelden(std::string& tekst, std::initializer_list<std::string_view> velden) {
    std::string_view scheiding;
    for (const std::string_view veld : velden) {
        tekst += scheiding;
        tekst += Veld(veld);
        scheiding = ",";
    }
    tekst += regeleinde;
}

// The day of a session counted from 0 over the whole competition, as dd-mm-jjjj.
std::string Datum(const CompetitieVorm& vorm, int volgnummer) {
    const std::chrono::year_month_day dag{vorm.eersteDag +
                                          std::chrono::days(volgnummer * vorm.dagenTussen)};
    const auto tweeCijfers = [](unsigned getal) {
        return std::string(getal < 10 ? "0" : "").append(std::to_string(getal));
    };
    return tweeCijfers(static_cast<unsigned>(dag.day())) + "-" +
           tweeCijfers(static_cast<unsigned>(dag.month())) + "-" +
           std::to_string(static_cast<int>(dag.year()));
}

void ZetRegel(std::string& tekst, std::string_view sleutel, std::string_view waarde) {
    tekst += sleutel;
    tekst += '=';
    tekst += waarde;
    tekst += regeleinde;
}

void ZetLid(std::string& tekst, int volgnummer, const Lid& lid) {
    ZetGetal(tekst, volgnummer);
    tekst += ',';
    ZetGetal(tekst, lid.nummer);
    tekst += ",L,";
    tekst += lid.voornaam;
    tekst += ',';
    tekst += lid.voorvoegsel;
    tekst += ',';
    tekst += lid.achternaam;
    tekst += ",J,";
    tekst += regeleinde;
}

void ZetScore(std::string& tekst, int volgnummer, const ScoreRegel& regel) {
    ZetGetal(tekst, volgnummer);
    tekst += volgnummer % 2 == 1 ? ",\"NZ\",\"" : ",\"OW\",\"";
    tekst += regel.lijn;
    ZetGetal(tekst, regel.nummer);
    tekst += "\",\"";
    ZetGetal(tekst, regel.lid1);
    tekst += regel.metBlanks ? " - " : "-";
    ZetGetal(tekst, regel.lid2);
    tekst += "\",\"";
    ZetProcent(tekst, regel.duizendsten);
    tekst += "\",";
    ZetGetal(tekst, regel.spellen);
    tekst += ",0";
    tekst += regeleinde;
}

} // namespace

std::string MappenIni(const Mappen& mappen) {
    std::string tekst;
    ZetRegel(tekst, "ORVMAP", mappen.orv);
    ZetRegel(tekst, "ZITMAP", mappen.orv + "\\Zittingen");
    ZetRegel(tekst, "ADMMAP", mappen.orv + "\\Administratie");
    ZetRegel(tekst, "INDMAP", mappen.orv + "\\Individueel");
    ZetRegel(tekst, "SPEMAP", mappen.orv + "\\ORVspelers");
    ZetRegel(tekst, "ACTZIT", "Zitting-" + std::to_string(mappen.zitting));
    ZetRegel(tekst, "ONELIN", "0");
    ZetRegel(tekst, "INDIVI", "0");
    ZetRegel(tekst, "SCHETY", "Paren");
    ZetRegel(tekst, "WIJZOK", "1");
    ZetRegel(tekst, "COMMAP", mappen.competities);
    ZetRegel(tekst, "COMPET", "1");
    ZetRegel(tekst, "SPINDE", "SpelersIndeling.txt");
    ZetRegel(tekst, "RODAFI", "RondeData.txt");
    ZetRegel(tekst, "ROSPFI", "RondeSpelers.txt");
    ZetRegel(tekst, "ACTCOM", mappen.actief);
    ZetRegel(tekst, "ACTCRO", std::to_string(mappen.ronde));
    ZetRegel(tekst, "ACTCZI", std::to_string(mappen.zitting));
    ZetRegel(tekst, "ZINFOF", "ZitInfo.txt");
    ZetRegel(tekst, "ZSPEFI", "ZitSpelers.txt");
    ZetRegel(tekst, "INDIPL", "0");
    return tekst;
}

std::string LedenBestand(int hoogste, std::span<const Lid> leden) {
    std::string tekst = "Aantal=" + std::to_string(hoogste);
    tekst += regeleinde;
    int volgnummer = 0;
    for (const Lid& lid : leden)
        ZetLid(tekst, ++volgnummer, lid);
    tekst += ",,,,,,,";
    tekst += regeleinde;
    return tekst;
}

std::string CompData(const CompetitieVorm& vorm, std::span<const int> tafels) {
    std::string tekst;
    ZetVelden(tekst, {vorm.naam, kClub, "Paren", "Procenten", "Maandagavond", "19.30 uur", ""});
    tekst += "3\r\n\"Clubgebouw\",\"Kring 0\",1\r\n";
    tekst += std::to_string(vorm.ronden) + "," + std::to_string(vorm.zittingen) + ",3";
    tekst += regeleinde;
    int volgnummer = 0;
    for (const int aantal : tafels) {
        const std::string ronde = std::to_string(volgnummer / vorm.zittingen + 1);
        const std::string zitting = std::to_string(volgnummer % vorm.zittingen + 1);
        const std::string naam = "Ronde " + ronde + ", zitting " + zitting;
        ZetVelden(tekst, {Datum(vorm, volgnummer), naam, std::to_string(aantal)});
        ++volgnummer;
    }
    return tekst;
}

std::string RondeData(const CompetitieVorm& vorm, int ronde) {
    const int eerste = (ronde - 1) * vorm.zittingen;
    std::string tekst;
    ZetVelden(tekst, {"Ronde " + std::to_string(ronde), vorm.naam, Datum(vorm, eerste),
                      Datum(vorm, eerste + vorm.zittingen - 1), std::to_string(vorm.zittingen),
                      "Procenten", ""});
    tekst += std::to_string(vorm.parenPerLijn.size());
    tekst += regeleinde;
    char letter = 'A';
    for (const int paren : vorm.parenPerLijn) {
        ZetVelden(tekst, {std::string(1, letter++), std::to_string(paren), "Lijn"});
    }
    return tekst;
}

std::string PercZit(std::span<const ScoreRegel> regels) {
    std::string tekst;
    tekst.reserve(regels.size() * 48);
    int volgnummer = 0;
    for (const ScoreRegel& regel : regels)
        ZetScore(tekst, ++volgnummer, regel);
    return tekst;
}

std::string CompBums(std::span<const BumRegel> regels) {
    std::string tekst;
    ZetVelden(tekst, {std::to_string(regels.size()), "7"});
    int volgnummer = 0;
    for (const BumRegel& regel : regels) {
        ZetVelden(tekst, {std::to_string(++volgnummer), std::string(1, regel.lijn),
                          std::to_string(regel.nummer), Rechts(regel.lid1, 6),
                          Rechts(regel.lid2, 6), regel.merk, ""});
    }
    return tekst;
}

} // namespace lauwerkrans::generator
