// The process-wide tables and values. One record, owned by the program (a test makes its own);
// each reader replaces its own table whole.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "data/comptabel.h"
#include "data/ledennamen.h"
#include "data/melding.h"
#include "data/rondeinfo.h"
#include "data/tabel.h"
#include "data/voortgang.h"

namespace lauwerkrans {

struct Algemeen {
    Melder meld;         // shows a message box
    Voortgang voortgang; // set while somebody waits for a reading of the scores

    // Set by LeesMappenIni.
    std::string OrvMap;            // the suite's main folder
    std::string CompetitieMap;     // one sub-folder per competition
    std::string ActieveCompetitie; // name of a sub-folder of it

    // The chosen competition.
    std::string competitie; // its folder
    CompTabel compTabel;    // LeesCompData
    RondeInfo rondeInfo;    // BouwRondeInfo, and each reading of the scores
    Rij BumLijst;           // LeesCompBums, and each reading of the scores
    Tabel LijnTabel;        // LeesLijnTabel; (0..L, 0..2)
    std::string PadPercZit; // last percentage file whose presence was tested
    std::shared_ptr<const LedenNamen> ledenNamen = std::make_shared<const LedenNamen>();

    std::int16_t LeesFout = 0; // 0 fine, 1 read error, 2 file missing
};

} // namespace lauwerkrans
