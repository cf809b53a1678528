// The list of pairs out of competition.
#include "data/modORV_compbums.h"
#include "suite.h"

using namespace lauwerkrans;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* gegevens, std::size_t lengte) {
    proef::ProefCompetitie& suite = fuzz::Suite();
    suite.map().schrijf(suite.competitieMap() + "Ronde-1/CompBums.txt",
                        fuzz::Bytes(gegevens, lengte));
    fuzz::Probeer([&] { LeesCompBums(suite.algemeen); });
    fuzz::RekenAlles(suite);
    return 0;
}
