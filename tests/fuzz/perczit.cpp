// A percentage file: as control list, and calculated in every way.
#include "data/modORV_perczit.h"
#include "suite.h"

using namespace lauwerkrans;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* gegevens, std::size_t lengte) {
    proef::ProefCompetitie& suite = fuzz::Suite();
    suite.map().schrijf(suite.competitieMap() + "Ronde-2/Zitting-1/PercZit-1.txt",
                        fuzz::Bytes(gegevens, lengte));
    fuzz::LeesHeleControlelijst(suite);
    fuzz::RekenAlles(suite);
    return 0;
}
