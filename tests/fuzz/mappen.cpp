// The folder configuration of the suite.
#include "app/modMappen.h"
#include "suite.h"

using namespace lauwerkrans;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* gegevens, std::size_t lengte) {
    const proef::ProefCompetitie& suite = fuzz::Suite();
    suite.map().schrijf("Mappen.ini", fuzz::Bytes(gegevens, lengte));
    Algemeen algemeen;
    OverigeMappen overig;
    fuzz::Probeer([&] { LeesMappenIni(algemeen, overig, suite.map().pad() + "/Lauwerkrans"); });
    return 0;
}
