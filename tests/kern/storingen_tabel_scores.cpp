// The faults of the members file and of a percentage file.
#include "storingen.h"

namespace lauwerkrans::proef::storingen {

namespace {

/// The names that were read before the error stay, the others are empty.
Verwacht LedenFout(const std::string& jan, const std::string& els) {
    return {{"\r\nFout bij het lezen van de Groepen!\r\n"},
            {},
            std::string("A|1|").append(jan).append(" - |3|56,000\nA|2|").append(els) +
                " - |2|46,250\nB|1|" + jan + " - " + els + "|2|50,000\n"};
}

const std::string zitting = "<map>/Competities/Voorjaar/Ronde-1/Zitting-2/PercZit-2.txt";

/// The session was not played.
const Verwacht zonderZitting = {{},
                                {},
                                "A|1|Jan Smit - Piet van Berkelo|2|59,000\n"
                                "A|2|Els Mol - Zoë Quast|1|40,000\n"};

/// A message instead of a list.
Verwacht Fout(const std::string& tekst) { return {{}, {tekst}, geenLijst}; }

Verwacht RegelFout(const std::string& tekst) {
    return Fout("Fout in het bestand '" + zitting + "', regel 1:\r\n\r\n" + tekst);
}

Verwacht VeldenFout(const std::string& velden, const std::string& regel) {
    return RegelFout(velden + " in plaats van 7.\r\n\r\n" + regel);
}

Verwacht PercentageFout(const std::string& tekst) {
    return Fout("Het percentage '" + tekst +
                "' van Jan Smit - Piet van Berkelo in ronde 1, zitting 2 is geen getal van 0 tot "
                "en met 100.");
}

/// A name ends where nobody's would go on.
Verwacht LangeNaam() {
    const std::string jan = "Jan " + std::string(996, 'x');
    return {{},
            {},
            "A|1|" + jan + " - Piet van Berkelo|3|56,000\nA|2|Els Mol - Zoë Quast|2|46,250\nB|1|" +
                jan + " - Els Mol|2|50,000\n"};
}

std::string Onbekend(const std::string& lid, const std::string& paar = "A1") {
    return lid + " (R1-Z2-nr" + paar +
           ") komt niet voor in ORV-ledenbestand en wordt overgeslagen!\r\n\r\nOplossing: zie bij "
           "Speler-admin 'Koppelen zwevende spelers'.";
}

/// The first line is dropped: pair A1 has its two other sessions.
Verwacht ZonderEerste(const std::string& lid) {
    return {{},
            {Onbekend(lid)},
            "A|1|Jan Smit - Piet van Berkelo|2|59,000\n"
            "A|2|Els Mol - Zoë Quast|2|46,250\n"
            "B|1|Jan Smit - Els Mol|2|50,000\n"};
}

/// Two hundred pairs of line A that nobody knows, all at 30 %.
std::string TweehonderdParen() {
    std::string regels;
    for (int lid = 1001; lid <= 1200; ++lid) {
        regels += "1,NZ,A" + std::to_string(lid) + "," + std::to_string(lid) + "-" +
                  std::to_string(lid + 1000) + ",\"30,000\",24,0\r\n";
    }
    return regels;
}

/// In every session: more rows than the table has room for, in the fourth of them.
void TweehonderdOveral(const Suite& suite, const Suitebestand& /*bestand*/) {
    for (const char* pad : {"Ronde-1/Zitting-1/PercZit-1.txt", "Ronde-1/Zitting-2/PercZit-2.txt",
                            "Ronde-2/Zitting-1/PercZit-1.txt", "Ronde-2/Zitting-2/PercZit-2.txt"}) {
        suite.schrijf(std::string("Competities/Voorjaar/") + pad, TweehonderdParen());
    }
}

const std::string xen(120, 'x');
const std::string regel2en3 = "1,\"OW\",\"A2\",\"5-8\",\"52,500\",24,0\r\n"
                              "1,\"OW\",\"B1\",\"3-5\",\"45,000\",24,0\r\n";

/// A line of the message box; NUL is shown as a question mark.
std::string Nullen() { return std::string(Bestand("PercZit-2.txt").bytes.size(), '?'); }

Verwacht OnbekendPaar() {
    return {{},
            {},
            "A|1|Jan Smit - Piet van Berkelo|2|59,000\nA|2|Jan Smit - |1|50,000\n"
            "A|3|Els Mol - Zoë Quast|2|46,250\nB|1|Jan Smit - Els Mol|2|50,000\n"};
}

Verwacht Tweehonderd() {
    return {{}, {}, zonderZitting.lijst + Herhaal("A|(3)| - |1|30,000\n", 200)};
}

Verwacht TeVeelRegels() {
    return Fout("Fout in het bestand '<map>/Competities/Voorjaar/Ronde-2/Zitting-2/PercZit-2.txt', "
                "regel 41:\r\n\r\ner zijn meer scores dan de 640 waarvoor in deze competitie "
                "plaats is.");
}

Verwacht HonderdvijftigOnbekenden() {
    Verwacht verwacht = {
        {}, std::vector<std::string>(100, Onbekend("x", "A9")), zonderZitting.lijst};
    verwacht.bereken.emplace_back("Er zijn nog 50 scoreregels met een lidnummer dat geen getal is; "
                                  "ook die zijn overgeslagen.");
    return verwacht;
}

Verwacht LangPaarnummer() {
    Verwacht verwacht = ZonderEerste("Z3");
    verwacht.bereken = {Onbekend("Z3", "A" + std::string(119, 'x') + " ...")};
    return verwacht;
}

} // namespace

std::vector<Storing> StoringenVanLeden() {
    const Verwacht geenNamen = LedenFout("", "");
    auto rijen = Gewone(geenNamen, geenNamen, geenNamen);
    const std::vector<Storing> eigen = {
        {"a count out of range", Vervang("=20", "=99999999999999999999"), geenNamen},
        {"a count of 2147483647", Vervang("=20", "=2147483647"), {}},
        {"a negative count", Vervang("=20", "=-20"), geenNamen},
        {"no count", Vervang("=20", "=twintig"), geenNamen},
        {"a member out of range", Vervang("a,8,", "a,21,"), LedenFout("Jan Smit", "Els Mol")},
        {"a member far out of range", Vervang("a,8,", "a,99999999999999999999,"),
         LedenFout("Jan Smit", "Els Mol")},
        {"a negative member", Vervang("a,5,", "a,-5,"), LedenFout("Jan Smit", "")},
        {"no member", Vervang("a,5,", "a,vijf,"), LedenFout("Jan Smit", "")},
        {"a line of five fields", Vervang("a,8,c,Zo\xEB,,Quast", "a,8,c,Zo\xEB,Quast"),
         LedenFout("Jan Smit", "Els Mol")},
        {VanGroot("a member line"), Groot("Aantal=20\r\na,3,c,Jan,,Smit\r\n", "\r\neinde\r\n"),
         LedenFout("Jan Smit", "")},
        {VanGroot("a name"),
         Groot("Aantal=20\r\na,3,c,Jan,,", "\r\na,5,c,Els,,Mol\r\na,8,c,Zo\xEB,,Quast\r\n"
                                           "a,17,c,Piet,van,Berkelo\r\neinde\r\n"),
         LangeNaam()},
        {"a member line of a million fields",
         Vervang("Mol", "Mol" + Herhaal(",a", 1'000'000)),
         {}}};
    rijen.insert(rijen.end(), eigen.begin(), eigen.end());
    return rijen;
}

std::vector<Storing> StoringenVanPercZit() {
    auto rijen = Gewone(zonderZitting, {},
                        Fout("Het bestand '" + zitting + "' kan niet worden gelezen: <reden>."));
    for (Storing& rij : rijen) {
        if (rij.naam == "empty") rij.verwacht = zonderZitting;
        if (rij.naam == "all NUL bytes") rij.verwacht = VeldenFout("er staat 1 veld", Nullen());
        if (rij.naam == VanGroot("one line"))
            rij.verwacht = VeldenFout("er staat 1 veld", xen + " ...");
        if (rij.naam == "a million fields")
            rij.verwacht = VeldenFout("er staan 1000001 velden", Herhaal("a,", 60) + " ...");
        if (rij.naam == "a million lines") rij.verwacht = VeldenFout("er staat 1 veld", "a");
    }
    const std::vector<Storing> eigen = {
        {"a percentage out of range", Vervang("50,000", "100,001"), PercentageFout("100,001")},
        {"a negative percentage", Vervang("50,000", "-50,000"), PercentageFout("-50,000")},
        {"no percentage", Vervang("50,000", "vijftig"), PercentageFout("vijftig")},
        {VanGroot("a percentage"), Groot("1,NZ,A1,3-17,", ",24,0\r\n" + regel2en3),
         PercentageFout(xen + " ...")},
        {"a percentage without quotes", Vervang("\"50,000\"", "50,000"),
         VeldenFout("er staan 8 velden", "1,\"NZ\",\"A1\",\"3-17\",50,000,24,0")},
        {"boards out of range", Vervang("\"50,000\",24", "\"50,000\",99999999999"),
         RegelFout("het aantal spellen '99999999999' kan niet kloppen.")},
        {"negative boards", Vervang("\"50,000\",24", "\"50,000\",-24"), {}},
        {"no boards", Vervang("\"50,000\",24", "\"50,000\",veel"), {}},
        {VanGroot("boards"), Groot("1,NZ,A1,3-17,\"50,000\",", ",0\r\n" + regel2en3), {}},
        {"a member out of range", Vervang("3-17", "3-999999999"), ZonderEerste("999999999")},
        {"a negative member", Vervang("3-17", "3--17"), ZonderEerste("-17")},
        {"no member", Vervang("3-17", "Z3-17"), ZonderEerste("Z3")},
        {VanGroot("a member"), Groot("1,NZ,A1,", "-17,\"50,000\",24,0\r\n" + regel2en3),
         ZonderEerste(xen + " ...")},
        {VanGroot("a pair number"), Groot("1,NZ,A", ",Z3-17,\"50,000\",24,0\r\n" + regel2en3),
         LangPaarnummer()},
        {"a member number that is nobody's", Vervang("3-17", "3-18"), OnbekendPaar()},
        {"200 pairs", Wordt(TweehonderdParen()), Tweehonderd()},
        {"200 pairs in every session", TweehonderdOveral, TeVeelRegels()},
        {"150 lines without members", Wordt(Herhaal("1,NZ,A9,x-y,50,24,0\r\n", 150)),
         HonderdvijftigOnbekenden()}};
    rijen.insert(rijen.end(), eigen.begin(), eigen.end());
    return rijen;
}

} // namespace lauwerkrans::proef::storingen
