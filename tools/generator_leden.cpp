#include "tools/generator_leden.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace lauwerkrans::generator {

namespace {

constexpr std::array<Lid, 64> kLeden = {{
    {3, "Anne-Marie", "van", "Zandwever"},   {305, "Joris", "van", "Zandwever"},
    {12, "René", "", "Klaverhoek"},          {17, "Chloë", "de", "Wintertuin"},
    {41, "Hendrik-Jan", "", "Molenbries"},   {408, "Saskia", "van der", "Troefkamp"},
    {7, "François", "", "Naïefstra"},        {88, "Gerda", "", "Turfdrager-Polsen"},
    {112, "Wietske", "", "Poëtsma"},         {29, "Loïs", "van 't", "Schoppenhof"},
    {230, "Bartel", "ten", "Hooizolder"},    {231, "Mieke", "ten", "Hooizolder"},
    {64, "Cornelis", "", "Rietvlechtsma"},   {519, "Agnès", "de", "Kantklos"},
    {9, "Tjalling", "", "Ruitenveldstra"},   {150, "Corrie", "", "Dauwtrapper"},
    {333, "Jörg", "", "Böllenkamp"},         {76, "Trudy", "van den", "Avondmist"},
    {601, "Daniël", "", "Veenspoorder"},     {15, "Hélène", "", "Façonnier"},
    {58, "Douwe", "  ", "Sneeuwploegsma"},   {272, "Elly", "in 't", "Lisdoddeveld"},
    {199, "Koos", "van", "Grutterswaard"},   {200, "Nel", "van", "Grutterswaard"},

    {21, "Ruud", "", "Klompenberger"},       {480, "Zoë", "", "Merelzangstra"},
    {134, "Siebren", "", "Windhapper"},      {36, "Ans", "de", "Bruinvisser"},
    {77, "Marie-José", "", "Hartendame"},    {391, "Piet", "", "Vlierstruweel"},
    {5, "Geert", "van de", "Slemhoek"},      {95, "Tine", "van de", "Slemhoek"},
    {247, "Ömer", "", "Zilverduinstra"},     {248, "Fenna", "", "Zilverduinstra-Kwakel"},
    {53, "Wim", "", "Havermoter"},           {362, "Joëlle", "van", "Eikeldonk"},
    {118, "Sjoerd", "", "Ganzeveder"},       {19, "Marijke", "", "Geërfdeland"},
    {555, "Leendert", "op den", "Biedkamp"}, {81, "Riet", "", "Torenwachtsma"},
    {102, "Ineke", "", "Peperbusser"},       {33, "Frits", "", "Pannenlat"},
    {420, "Aad", "", "Kruiwagenaar"},        {67, "Thérèse", "", "Dubbeltroef"},

    {14, "Jaap", "", "Mosterdpot"},          {301, "Lenie", "", "Mosterdpot-van Zuidam"},
    {188, "Gijs", "van der", "Korenwijk"},   {48, "Yvonne", "", "Rozenknoop"},
    {266, "Cees", "", "Tabaksplukker"},      {25, "Willemien", "", "Lampenist"},
    {610, "Bep", "de", "Zoutlepel"},         {91, "Karel-Jan", "", "Zeilwasser"},
    {143, "Dirkje", "", "Wolkenmeter"},      {72, "Evert", "", "Stoomfluit"},
    {11, "Hans", "", "Boterbloemstra"},      {377, "Noëlle", "", "Hoefbladsma"},
    {160, "Theo", "", "Paardenstaart"},      {84, "Greetje", "van", "Kaarslicht"},
    {226, "Arie", "", "Regenjas"},           {39, "Cobie", "", "Waterliniestra"},

    {8, "Gré", "", "Vuurtorenaar"},          {451, "Maarten", "van", "Ochtendgloren"},
    {128, "Naïma", "", "Duizendblad"},       {44, "Lodewijk", "", "Appelschiller"},
}};

} // namespace

std::span<const Lid> Clubleden() { return kLeden; }

std::vector<Lid> LedenOpNummer() {
    std::vector<Lid> leden(kLeden.begin(), kLeden.end());
    std::sort(leden.begin(), leden.end(),
              [](const Lid& links, const Lid& rechts) { return links.nummer < rechts.nummer; });
    return leden;
}

std::vector<Lid> VeelLeden(int aantal) {
    const int stap = std::clamp(999999 / std::max(aantal, 1), 1, 97);
    std::vector<Lid> leden;
    leden.reserve(static_cast<std::size_t>(aantal));
    for (int i = 0; i < aantal; ++i) {
        const auto plaats = static_cast<std::size_t>(i);
        Lid lid = kLeden[plaats / kLeden.size() % kLeden.size()];
        lid.nummer = (i + 1) * stap;
        lid.voornaam = kLeden[plaats % kLeden.size()].voornaam;
        leden.push_back(lid);
    }
    return leden;
}

} // namespace lauwerkrans::generator
