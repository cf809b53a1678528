// Numbers as texts.
#include <array>
#include <cstdio>
#include <cstdlib>

#include "naief.h"

namespace lauwerkrans::naief {

namespace {

std::string MetNullen(const std::string& cijfers, std::size_t lengte) {
    return cijfers.size() < lengte ? std::string(lengte - cijfers.size(), '0') + cijfers : cijfers;
}

std::string Rechts(int getal) {
    std::string tekst = std::to_string(getal);
    while (tekst.size() < 8)
        tekst = " " + tekst;
    return tekst;
}

/// Adds one to a text of digits.
std::string EenMeer(std::string cijfers) {
    std::size_t i = cijfers.size();
    while (i > 0 && cijfers[i - 1] == '9')
        cijfers[--i] = '0';
    if (i == 0) return "1" + cijfers;
    ++cijfers[i - 1];
    return cijfers;
}

} // namespace

std::vector<std::string> ZitRij(char lijn, int lid1, int lid2, int ronde, int zitting,
                                const std::string& percentage, int spellen, bool bum) {
    const std::string sleutel =
        lid1 > lid2 ? Rechts(lid2) + Rechts(lid1) : Rechts(lid1) + Rechts(lid2);
    const std::string code = "R" + MetNullen(std::to_string(ronde), 2) + "-Z" +
                             MetNullen(std::to_string(zitting), 2) + "-" +
                             MetNullen(std::to_string(spellen), 2);
    return {"", std::string(1, lijn), sleutel, percentage, code, "", bum ? "BUM" : "", "", ""};
}

std::string DrieDecimalen(const std::string& getal) {
    std::string gehele;
    std::string breuk;
    bool achter = false;
    for (const char teken : getal) {
        if (teken == ' ') continue;
        if (teken == ',' || teken == '.') {
            achter = true;
        } else {
            (achter ? breuk : gehele) += teken;
        }
    }
    while (!gehele.empty() && gehele[0] == '0')
        gehele.erase(0, 1);
    breuk += "0000";
    std::string cijfers = MetNullen(gehele + breuk.substr(0, 3), 5);
    if (breuk[3] >= '5') cijfers = EenMeer(cijfers);
    return cijfers.substr(0, cijfers.size() - 3) + "," + cijfers.substr(cijfers.size() - 3);
}

std::string KortsteTekst(float getal) {
    std::array<char, 64> tekst{};
    for (int cijfers = 1; cijfers < 10; ++cijfers) {
        std::snprintf(tekst.data(), tekst.size(), "%.*g", cijfers, static_cast<double>(getal));
        if (std::strtof(tekst.data(), nullptr) == getal) break;
    }
    const std::string kort = tekst.data();
    if (kort.find('e') == std::string::npos) return kort;
    std::snprintf(tekst.data(), tekst.size(), "%.12f", std::strtod(kort.c_str(), nullptr));
    return tekst.data(); // 1e+02 is 100
}

} // namespace lauwerkrans::naief
