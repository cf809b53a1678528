// The members file.
#include "data/modORV_leden.h"
#include "suite.h"

using namespace lauwerkrans;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* gegevens, std::size_t lengte) {
    proef::ProefCompetitie& suite = fuzz::Suite();
    suite.map().schrijf("ORVspelers/ORVspelers.txt", fuzz::Bytes(gegevens, lengte));
    fuzz::Probeer([&] { LeesLeden(suite.algemeen); });
    fuzz::LeesHeleControlelijst(suite);
    return 0;
}
