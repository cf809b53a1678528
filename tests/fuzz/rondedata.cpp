// The round data with the number of lines.
#include "calc/lijnen.h"
#include "data/modORV_rondedata.h"
#include "suite.h"

using namespace lauwerkrans;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* gegevens, std::size_t lengte) {
    const proef::ProefCompetitie& suite = fuzz::Suite();
    suite.map().schrijf(suite.competitieMap() + "Ronde-1/RondeData.txt",
                        fuzz::Bytes(gegevens, lengte));
    fuzz::Probeer([&] {
        const Tabel tabel = LeesLijnTabel(suite.algemeen.competitie);
        if (AlleLijnen(tabel).size() > 26) __builtin_trap();
    });
    return 0;
}
