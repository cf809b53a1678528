#include "storingen.h"

#include <array>
#include <fstream>
#include <map>
#include <stdexcept>

#include "data/systeem.h"

namespace lauwerkrans::proef::storingen {

namespace {

const std::string competitie = "Competities/Voorjaar/";
const std::string rondeDataFout = "Fout bij het inlezen van de rondegegevens.\r\n\r\n";
const std::string zittingFout =
    "Fout in het bestand '<map>/Competities/Voorjaar/Ronde-1/Zitting-2/PercZit-2.txt', regel *:"
    "\r\n\r\n";
const std::string compDataFout = "Fout bij het inlezen van de competitiegegevens.\r\n";
const std::string compDataWeg = "Geen bestand met competitiegegevens aanwezig.\r\n";
const std::string ledenFout = "\r\nFout bij het lezen van de Groepen!\r\n";

/// The sessions that are never broken.
const std::map<std::string, std::string> andere = {{competitie + "Ronde-1/Zitting-1/PercZit-1.txt",
                                                    "1,\"NZ\",\"A1\",\"3-17\",\"60,000\",24,0\r\n"
                                                    "1,\"OW\",\"A2\",\"5-8\",\"40,000\",24,0\r\n"
                                                    "1,\"OW\",\"B1\",\"3-5\",\"55,000\",24,0\r\n"},
                                                   {competitie + "Ronde-2/Zitting-1/PercZit-1.txt",
                                                    "1,\"NZ\",\"A1\",\"3-17\",\"58,000\",24,0\r\n"
                                                    "1,\"OW\",\"A2\",\"5-8\",\"62,000\",24,0\r\n"}};

std::vector<Suitebestand> MaakSuitebestanden() {
    return {
        {"Mappen.ini",
         "Mappen.ini",
         "ORVMAP=<map>\r\nCOMMAP=<map>\\Competities\r\nACTCOM=Voorjaar\r\nONELIN=2\r\n",
         false,
         {"U hebt nog geen competitie(-zitting) gekozen.", compDataWeg, rondeDataFout + "*",
          ledenFout}},
        {"Lauwr.ini",
         "Lauwerkrans/Lauwr.ini",
         "__CHK1=0\r\n__CHK2=1\r\n__CHK3=0\r\n__CHK4=0\r\n__CHKTL=1\r\n__CHKTZ=0\r\n"
         "__TXTKOP=Kampioenen\r\n__TXT1=1\r\n__TXT2=2\r\n",
         false,
         {"Geef bij lijn A een heel getal als minimum aantal zittingen.",
          "Geef bij lijn B een heel getal als minimum aantal zittingen."}},
        {"CompData.txt",
         competitie + "CompData.txt",
         "\"Voorjaar\",b,c,d,e,f,g,2,\"x\",y,2,2,1,\"c1\",\"c2\",\"c3\",\"c4\"\r\n",
         false,
         {compDataFout}},
        {"RondeData.txt",
         competitie + "Ronde-1/RondeData.txt",
         "\"Ronde 1\",b,c,d,e,f,g,2,rest\r\n",
         false,
         {rondeDataFout + "<map>/" + competitie + "Ronde-1/RondeData.txt"}},
        {"CompBums.txt",
         competitie + "Ronde-2/CompBums.txt",
         "\"2\",\"7\"\r\n1,b,c,\"     5\",\"     8\",\"BUM\",g\r\n"
         "2,b,c,\"     3\",\"    17\",\"\",g\r\n",
         true,
         {}},
        {"ORVspelers.txt",
         "ORVspelers/ORVspelers.txt",
         "Aantal=20\r\na,3,c,Jan,,Smit\r\na,5,c,Els,,Mol\r\na,8,c,Zo\xEB,,Quast\r\n"
         "a,17,c,Piet,van,Berkelo\r\neinde\r\n",
         false,
         {ledenFout}},
        {"PercZit-2.txt",
         competitie + "Ronde-1/Zitting-2/PercZit-2.txt",
         "1,\"NZ\",\"A1\",\"3-17\",\"50,000\",24,0\r\n1,\"OW\",\"A2\",\"5-8\",\"52,500\",24,0\r\n"
         "1,\"OW\",\"B1\",\"3-5\",\"45,000\",24,0\r\n",
         true,
         {zittingFout + "er staan * velden in plaats van 7.\r\n\r\n*",
          zittingFout + "er staat 1 veld in plaats van 7.\r\n\r\n*",
          "Het percentage '*' van * in ronde 1, zitting 2 is geen getal van 0 tot en met 100.",
          "* (R1-Z2-nr*) komt niet voor in ORV-ledenbestand en wordt overgeslagen!\r\n\r\n"
          "Oplossing: zie bij Speler-admin 'Koppelen zwevende spelers'."}},
        {"Voorjaar (folder)", "Competities/Voorjaar", "", true, {}},
        {"Ronde-2 (folder)", competitie + "Ronde-2", "", true, {}},
        {"Zitting-2 (folder)", competitie + "Ronde-1/Zitting-2", "", true, {}},
    };
}

/// Puts `nieuw` for every `oud`.
std::string VervangAlle(std::string tekst, const std::string& oud, const std::string& nieuw) {
    for (auto plaats = tekst.find(oud); plaats != std::string::npos;
         plaats = tekst.find(oud, plaats + nieuw.size())) {
        tekst.replace(plaats, oud.size(), nieuw);
    }
    return tekst;
}

Ingreep Omgezet(const std::function<std::string(const std::string&)>& zetOm) {
    return [zetOm](const Suite& suite, const Suitebestand& bestand) {
        suite.schrijf(bestand.pad, zetOm(bestand.bytes));
    };
}

Ingreep MetRegeleinde(const std::string& einde) {
    return Omgezet([einde](const std::string& bytes) { return VervangAlle(bytes, "\r\n", einde); });
}

void Verwijder(const Suite& suite, const Suitebestand& bestand) {
    suite.map().verwijder(bestand.pad);
}

void WordtMap(const Suite& suite, const Suitebestand& bestand) {
    suite.map().verwijder(bestand.pad);
    suite.map().maakMap(bestand.pad);
}

void WordtOnleesbaar(const Suite& suite, const Suitebestand& bestand) {
    suite.map().verwijder(bestand.pad);
    suite.map().maakOnleesbaar(bestand.pad);
}

} // namespace

const std::vector<Suitebestand>& Suitebestanden() {
    static const std::vector<Suitebestand> bestanden = MaakSuitebestanden();
    return bestanden;
}

const Suitebestand& Bestand(const std::string& naam) {
    for (const Suitebestand& bestand : Suitebestanden()) {
        if (bestand.naam == naam) return bestand;
    }
    throw std::out_of_range(naam);
}

std::vector<std::string> Bestandsnamen() {
    std::vector<std::string> namen;
    for (const Suitebestand& bestand : Suitebestanden())
        namen.push_back(bestand.naam);
    return namen;
}

void Suite::legAan() const {
    map_.geefVrij();
    for (const char* deel : {"Competities", "Lauwerkrans", "ORVspelers", "Mappen.ini"})
        map_.verwijder(deel);
    for (const auto& [pad, bytes] : andere)
        schrijf(pad, bytes);
    for (const Suitebestand& bestand : Suitebestanden()) {
        if (!bestand.bytes.empty()) schrijf(bestand.pad, bestand.bytes);
    }
}

void Suite::schrijf(const std::string& pad, const std::string& bytes) const {
    map_.schrijf(pad, VervangAlle(bytes, "<map>", map_.pad()));
}

std::string Suite::zonderMap(std::string tekst) const {
    const std::string map = systeem::Schrijfwijze(map_.pad());
    for (auto plaats = tekst.find(map); plaats != std::string::npos;
         plaats = tekst.find(map, plaats)) {
        tekst.replace(plaats, map.size(), "<map>");
        for (; plaats < tekst.size() && tekst[plaats] != '\'' && tekst[plaats] != '\r'; ++plaats) {
            if (tekst[plaats] == '\\') tekst[plaats] = '/';
        }
    }
    return tekst;
}

std::vector<Storing> Storingen(const std::string& bestand) {
    static const std::map<std::string, std::function<std::vector<Storing>()>> tabellen = {
        {"Mappen.ini", StoringenVanMappen},     {"Lauwr.ini", StoringenVanLauwr},
        {"CompData.txt", StoringenVanCompData}, {"RondeData.txt", StoringenVanRondeData},
        {"CompBums.txt", StoringenVanCompBums}, {"ORVspelers.txt", StoringenVanLeden},
        {"PercZit-2.txt", StoringenVanPercZit}};
    const auto tabel = tabellen.find(bestand);
    return tabel == tabellen.end() ? StoringenVanMap(bestand) : tabel->second();
}

std::vector<Storing> Gewone(const Verwacht& ontbreekt, const Verwacht& kapot,
                            const Verwacht& onleesbareVorm) {
    return {{"missing", Verwijder, ontbreekt},
            {"a folder of that name", WordtMap, ontbreekt},
            {onleesbaar, WordtOnleesbaar, onleesbareVorm},
            {"empty", Wordt(""), kapot},
            {"all NUL bytes",
             Omgezet([](const std::string& bytes) { return std::string(bytes.size(), '\0'); }),
             kapot},
            {VanGroot("one line"), Groot("", ""), kapot},
            {"a million fields", Wordt(Herhaal("a,", 1'000'000)), kapot},
            {"a million lines", Wordt(Herhaal("a\r\n", 1'000'000)), kapot},
            {"only LF", MetRegeleinde("\n"), {}},
            {"only CR", MetRegeleinde("\r"), {}},
            {"UTF-8 with byte order mark",
             Omgezet([](const std::string& bytes) { return "\xEF\xBB\xBF" + bytes; }),
             {}}};
}

Ingreep Vervang(const std::string& oud, const std::string& nieuw) {
    return Omgezet([oud, nieuw](std::string bytes) {
        const auto plaats = bytes.find(oud);
        if (plaats == std::string::npos || bytes.find(oud, plaats + 1) != std::string::npos)
            throw std::invalid_argument(oud);
        return bytes.replace(plaats, oud.size(), nieuw);
    });
}

std::string VanGroot(const std::string& wat) {
    return wat + " of " + std::to_string(megabytes) + " MB";
}

Ingreep Groot(const std::string& voor, const std::string& na) {
    return [voor, na](const Suite& suite, const Suitebestand& bestand) {
        const std::string deel(1'000'000, 'x');
        suite.schrijf(bestand.pad, voor);
        const std::string pad = suite.map().pad() + "/" + bestand.pad;
        std::ofstream uit(std::filesystem::path(std::u8string(pad.begin(), pad.end())),
                          std::ios::binary | std::ios::app);
        for (std::size_t i = 0; i < megabytes; ++i)
            uit << deel;
        uit << na;
        uit.close();
        if (!uit) throw std::runtime_error("cannot write " + pad);
    };
}

Ingreep Wordt(const std::string& bytes) {
    return Omgezet([bytes](const std::string& /*goed*/) { return bytes; });
}

std::string Herhaal(const std::string& tekst, std::size_t keren) {
    std::string samen;
    samen.reserve(tekst.size() * keren);
    for (std::size_t i = 0; i < keren; ++i)
        samen += tekst;
    return samen;
}

} // namespace lauwerkrans::proef::storingen
