// Writes a fictitious competition: the demo, or one of any size for benchmarks.
// Exit status: 0 written, 1 something could not be written, 2 the arguments are not understood.

#include <charconv>
#include <exception>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "tools/generator.h"
#include "tools/generator_tekst.h"

namespace {

using namespace lauwerkrans::generator;
using Argumenten = std::vector<std::string>;

constexpr std::string_view kGebruik =
    "Gebruik:\n"
    "  maak_competitie demo MAP [ORVMAP COMMAP]\n"
    "      Schrijft twee verzonnen competities in MAP. ORVMAP en COMMAP komen in Mappen.ini;\n"
    "      zonder die twee zijn dat MAP zelf en de map Competities daarin.\n"
    "  maak_competitie grootte MAP RONDEN ZITTINGEN PAREN [LEDEN] [LIJNEN] [los]\n"
    "      Schrijft een competitie van RONDEN (1-99) maal ZITTINGEN (1-99) met PAREN (1-160)\n"
    "      per zitting. Zonder opgave zijn er 1000 leden en 1 lijn.\n"
    "      los: elke zitting nieuwe partners, anders spelen dezelfde paren steeds samen.\n";

struct OnjuisteArgumenten : std::invalid_argument {
    using std::invalid_argument::invalid_argument;
};

int Getal(const std::string& tekst) {
    int getal = 0;
    const char* const einde = tekst.data() + tekst.size();
    const auto gelezen = std::from_chars(tekst.data(), einde, getal);
    if (gelezen.ec != std::errc() || gelezen.ptr != einde) {
        throw OnjuisteArgumenten("Dit is geen heel getal: " + tekst);
    }
    return getal;
}

void Demo(const Argumenten& argumenten) {
    if (argumenten.size() == 2) {
        SchrijfDemo(argumenten[1]);
    } else if (argumenten.size() == 4) {
        SchrijfDemo(argumenten[1], PadTekst(argumenten[2]), PadTekst(argumenten[3]));
    } else {
        throw OnjuisteArgumenten("Geef bij demo een map, of een map en twee mapnamen.");
    }
}

void Groot(Argumenten argumenten) {
    Grootte grootte;
    grootte.lijnen = 1;
    grootte.vastePartners = argumenten.back() != "los";
    if (!grootte.vastePartners) argumenten.pop_back();
    if (argumenten.size() < 5 || argumenten.size() > 7) {
        throw OnjuisteArgumenten("Geef bij grootte een map en drie tot vijf getallen.");
    }
    grootte.ronden = Getal(argumenten[2]);
    grootte.zittingen = Getal(argumenten[3]);
    grootte.parenPerZitting = Getal(argumenten[4]);
    if (argumenten.size() > 5) grootte.leden = Getal(argumenten[5]);
    if (argumenten.size() > 6) grootte.lijnen = Getal(argumenten[6]);
    SchrijfGroot(argumenten[1], grootte);
}

void Voer(const Argumenten& argumenten) {
    const std::string opdracht = argumenten.empty() ? "" : argumenten.front();
    if (opdracht == "demo") return Demo(argumenten);
    if (opdracht == "grootte") return Groot(argumenten);
    throw OnjuisteArgumenten("Geef demo of grootte als eerste woord.");
}

} // namespace

int main(int aantal, char** argumenten) {
    try {
        Voer(Argumenten(argumenten + 1, argumenten + aantal));
        return 0;
    } catch (const std::invalid_argument& fout) {
        std::cerr << fout.what() << '\n' << kGebruik;
        return 2;
    } catch (const std::exception& fout) {
        std::cerr << fout.what() << '\n';
        return 1;
    }
}
