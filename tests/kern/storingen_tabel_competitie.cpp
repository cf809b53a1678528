// The faults of the competition's files and folders.
#include "storingen.h"

namespace lauwerkrans::proef::storingen {

namespace {

const std::string compDataFout = "Fout bij het inlezen van de competitiegegevens.\r\n";
const std::string compDataWeg = "Geen bestand met competitiegegevens aanwezig.\r\n";
const std::string rondeDataFout = "Fout bij het inlezen van de rondegegevens.\r\n\r\n"
                                  "<map>/Competities/Voorjaar/Ronde-1/RondeData.txt";

/// Without bounds there is no session, so the list has no row.
const Verwacht geenRonden = {{compDataFout}, {}, ""};

/// The bounds hold, only cells are missing.
const Verwacht minderCellen = {{compDataFout}, {}, goedeLijst};

const Verwacht geenLijnen = {{rondeDataFout}, {}, ""};

/// Nobody plays out of competition. A malformed file is passed over in silence.
const Verwacht zonderBum = {{},
                            {},
                            "A|1|Jan Smit - Piet van Berkelo|3|56,000\n"
                            "A|2|Els Mol - Zoë Quast|3|51,500\n"
                            "B|1|Jan Smit - Els Mol|2|50,000\n"};

const std::string rij = "1,b,c,\"     5\",\"     8\",\"BUM\",g\r\n";

/// Some systems open the files of a folder that they do not list.
const bool geeftNamenNiet = onleesbaarFout == std::errc::device_or_resource_busy;

/// A folder of the competition that cannot be listed.
Verwacht MapFout(const std::string& pad) {
    const std::string tekst =
        "Het bestand '<map>/Competities/Voorjaar" + pad + "' kan niet worden gelezen: <reden>.";
    return {{tekst}, {tekst}, geenLijst};
}

} // namespace

std::vector<Storing> StoringenVanCompData() {
    auto rijen = Gewone({{compDataWeg}, {}, ""}, geenRonden, geenRonden);
    const std::vector<Storing> eigen = {
        {"a count out of range", Vervang("g,2,", "g,99999999999999999999,"), geenRonden},
        {"100 rounds", Vervang("y,2,2,1", "y,100,2,1"), geenRonden},
        {"100 sessions a round", Vervang("y,2,2,1", "y,2,100,1"), geenRonden},
        {"items out of range", Vervang("y,2,2,1", "y,2,2,2147483648"), geenRonden},
        {"a negative count", Vervang("g,2,", "g,-2,"), geenRonden},
        {"a negative number of rounds", Vervang("y,2,2,1", "y,-2,2,1"), geenRonden},
        {"a negative number of items", Vervang("y,2,2,1", "y,2,2,-1"), geenRonden},
        {"no number", Vervang("y,2,2,1", "y,twee,2,1"), geenRonden},
        {"a broken number", Vervang("y,2,2,1", "y,2.5,2,1"), geenRonden},
        {"bounds of 99999 x 99999", Vervang("y,2,2,1", "y,99999,99999,1"), geenRonden},
        {"more items than there are", Vervang("y,2,2,1", "y,2,2,99999"), minderCellen},
        {"99 x 99 and no items", Vervang("y,2,2,1", "y,99,99,0"), {}},
        {"99 x 99 x 2147483647", Vervang("y,2,2,1", "y,99,99,2147483647"), minderCellen},
        {"a million items", Wordt("a,b,c,d,e,f,g,0,2,2,250000" + Herhaal(",c", 1'000'000)), {}},
        {VanGroot("an item"), Groot("a,b,c,d,e,f,g,0,2,2,1,", ",b,c,d\r\n"), {}}};
    rijen.insert(rijen.end(), eigen.begin(), eigen.end());
    return rijen;
}

std::vector<Storing> StoringenVanRondeData() {
    auto rijen = Gewone(geenLijnen, geenLijnen, geenLijnen);
    const std::vector<Storing> eigen = {
        {"a number out of range", Vervang("g,2,", "g,27,"), geenLijnen},
        {"99999 lines", Vervang("g,2,", "g,99999,"), geenLijnen},
        {"a negative number", Vervang("g,2,", "g,-1,"), geenLijnen},
        {"no number", Vervang("g,2,", "g,twee,"), geenLijnen},
        {VanGroot("a number"), Groot("a,b,c,d,e,f,g,", "\r\n"), geenLijnen}};
    rijen.insert(rijen.end(), eigen.begin(), eigen.end());
    return rijen;
}

std::vector<Storing> StoringenVanCompBums() {
    auto rijen = Gewone(zonderBum, zonderBum, zonderBum);
    const std::vector<Storing> eigen = {
        {"a count out of range", Vervang("\"2\",", "\"99999999999999999999\","), zonderBum},
        {"more rows than there are", Vervang("\"2\",", "\"3\","), zonderBum},
        {"a negative count", Vervang("\"2\",", "\"-2\","), zonderBum},
        {"no number", Vervang("\"2\",", "\"twee\","), zonderBum},
        {"rows of 99999 fields", Vervang("\"7\"", "\"99999\""), zonderBum},
        {"rows without the mark", Vervang("\"7\"", "\"5\""), zonderBum},
        {"99999 x 99999", Vervang("\"2\",\"7\"", "99999,99999"), zonderBum},
        {"2147483647 x 2147483647", Vervang("\"2\",\"7\"", "2147483647,2147483647"), zonderBum},
        {"a member out of range", Vervang("     5", "999999999"), zonderBum},
        {"a negative member", Vervang("     5", "    -5"), zonderBum},
        {"no member", Vervang("     5", "  vijf"), zonderBum},
        {"100000 rows of one pair", Wordt("100000,7\r\n" + Herhaal(rij, 100'000)), {}},
        {VanGroot("a member"), Groot("1,6\r\n1,b,c,", ",\"     8\",BUM\r\n"), zonderBum}};
    rijen.insert(rijen.end(), eigen.begin(), eigen.end());
    return rijen;
}

std::vector<Storing> StoringenVanMap(const std::string& bestand) {
    const auto weg = [](const Suite& suite, const Suitebestand& map) {
        suite.map().verwijder(map.pad);
    };
    const auto onleesbareMap = [](const Suite& suite, const Suitebestand& map) {
        suite.map().verwijder(map.pad);
        suite.map().maakOnleesbareMap(map.pad);
    };
    const auto wordtBestand = [](const Suite& suite, const Suitebestand& map) {
        suite.map().verwijder(map.pad);
        suite.schrijf(map.pad, "geen map");
    };
    Verwacht ontbreekt;
    Verwacht dicht;
    if (bestand.starts_with("Voorjaar")) {
        ontbreekt = {{compDataWeg, rondeDataFout}, {}, ""};
        ontbreekt.lopend = {"Het bestand '<map>/Competities/Voorjaar' kan niet worden gelezen: de "
                            "map bestaat niet."};
        dicht = {{geeftNamenNiet ? compDataWeg : compDataFout, rondeDataFout}, {}, ""};
        dicht.lopend = MapFout("").bereken;
    } else if (bestand.starts_with("Ronde-2")) {
        ontbreekt = {{},
                     {},
                     "A|1|Jan Smit - Piet van Berkelo|2|55,000\n"
                     "A|2|Els Mol - Zoë Quast|2|46,250\n"
                     "B|1|Jan Smit - Els Mol|2|50,000\n"};
        dicht = MapFout("/Ronde-2");
    } else {
        ontbreekt = {{},
                     {},
                     "A|1|Jan Smit - Piet van Berkelo|2|59,000\n"
                     "A|2|Els Mol - Zoë Quast|1|40,000\n"};
        dicht = geeftNamenNiet ? ontbreekt : MapFout("/Ronde-1/Zitting-2");
        // The start looks for the file, a calculation opens it.
        if (!geeftNamenNiet) dicht.bereken = MapFout("/Ronde-1/Zitting-2/PercZit-2.txt").bereken;
    }
    return {{"missing", weg, ontbreekt},
            {"a file of that name", wordtBestand, ontbreekt},
            {onleesbaar, onleesbareMap, dicht}};
}

} // namespace lauwerkrans::proef::storingen
