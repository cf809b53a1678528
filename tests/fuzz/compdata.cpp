// The competition file, and the rounds that follow from it.
#include "data/modORV_compbums.h"
#include "data/modORV_compdata.h"
#include "suite.h"

using namespace lauwerkrans;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* gegevens, std::size_t lengte) {
    proef::ProefCompetitie& suite = fuzz::Suite();
    suite.map().schrijf(suite.competitieMap() + "CompData.txt", fuzz::Bytes(gegevens, lengte));
    fuzz::Probeer([&] { LeesCompData(suite.algemeen); });
    fuzz::Probeer([&] { BouwRondeInfo(suite.algemeen); });
    fuzz::Probeer([&] { LeesCompBums(suite.algemeen); });
    fuzz::RekenAlles(suite);
    return 0;
}
