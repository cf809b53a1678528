// The text of the help window, letter by letter.
#include <gtest/gtest.h>

#include <QStringList>

#include <array>

#include "ui/toelichting_tekst.h"

namespace lauwerkrans {
namespace {

// clang-format off
constexpr std::array verwacht = {
    "Toelichting op het gebruik van dit programma.",
    "",
    "DOEL.",
    "Met dit programmadeel wordt een Club- cq Lijnkampioenschap berekend van een PARENcompetitie.",
    "De wijze waarop dit gebeurt is als volgt:",
    "In elke lijn is er sprake van een kampioen: een Lijnkampioen. De kampioen in de A-lijn mag zich Lauwerkrans noemen.",
    "Men kan ook voor kiezen voor een kampioen over alle lijnen samen.",
    "",
    "Hoe wordt men Club- cq Lijnkampioen?",
    "   1. Men moet een minimum aantal zittingen in de parencompetitie met dezelfde partner hebben gespeeld.",
    "       Van minimaal deze zittingen (of meer)wordt het gemidelde percentage berekend. (naar keuze met gewogen gemiddelde)",
    "       Het paar met het hoogste gemiddelde wordt Lijnkampioen.",
    "   2. Per lijn moet dus het minimum vereiste aantal zittingen worden opgegeven.",
    "       Als voorbeeld voor een competitie van 5 ronden á 5 zittingen:",
    "       Voor de A-lijn: 2/3 van het aantal competitiezittingen, is 2/3 x 25 = 17 zittingen.",
    "       Voor de overige lijnen: 1/2 van het aantal competitiezittingen, is 1/2 x 25 = 13.",
    "",
    "Welke percentages worden genomen?",
    "   De zitting-percentages van alle competitie-ronden van de betreffende competitie.",
    "",
    "Gebruik programma.",
    "   - Kies de betreffende competitie.",
    "   - Vul per lijn het minimum vereiste aantal zittingen in, u bepaalt dat helemaal zelf.",
    "   - Druk op 'Bereken' per lijn of alle lijnen tegelijk.",
    "   - Bekijk de andere opties en type de gewenste koptekst.",
    "   - Druk op 'Controle' voor gedetailleerde informatie.",
    "Bij het verlaten van het programma worden de instellingen per competitie bewaard.",
    "",
    "Mogelijke uitvoer.",
    "   - Printen.",
    "   - Html voor internet.",
    "   - CSV tbv import in Excel.",
    "",
    "Beperking.",
    "   - Alleen wedstrijden met scoremethode in Procenten, dus geen Butlertelling.",
    "",
    "",
    "\tVRIJWARING",
    "Dit programma wordt verspreid in de hoop dat het van nut kan zijn, MAAR ZONDER ENIGE GARANTIE, zelfs niet m.b.t. BRUIKBAARHEID of GESCHIKTHEID VOOR HET BEOOGDE DOEL.",
    "De auteur kan op geen enkele wijze verantwoordelijk worden gesteld voor enige schade of ongemakken veroorzaakt door dit programma, direct of indirect.",
    "",
    "Licentie en kosten",
    "Dit is een gratis progamma voor persoonlijk gebruik. Herdistribueer het niet.",
    "Indien je het wilt opnemen in enerlei distributie-medium, of op een website, dan wil de auteur dat weten.",
    "",
    "Opmerkingen en suggesties naar: de beheerder van uw clubadministratie",
};
// clang-format on

TEST(ToelichtingTekst, IsTheAuthorsToTheLetter) {
    const QStringList regels = ToelichtingTekst().split(QStringLiteral("\r\n"));
    ASSERT_EQ(regels.size(), static_cast<qsizetype>(verwacht.size() + 1));
    for (std::size_t i = 0; i < verwacht.size(); ++i) {
        EXPECT_EQ(regels[static_cast<qsizetype>(i)], QString::fromUtf8(verwacht.at(i)))
            << "line " << i + 1;
    }
    EXPECT_EQ(regels.back(), QString()) << "the last line too has its end";
}

} // namespace
} // namespace lauwerkrans
