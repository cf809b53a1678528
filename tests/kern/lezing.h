// Reading the scores of a competition in a test.
#pragma once

#include <string>

#include <gtest/gtest.h>

#include "data/fout.h"
#include "data/modORV_perczit.h"
#include "proef.h"

namespace lauwerkrans::proef {

/// Reads the scores of the given lines, without a filter on persons.
inline Lezing LeesProef(ProefCompetitie& proef, const std::string& lijnen) {
    return LeesPercZitBestanden(proef.algemeen, {lijnen, false, ""});
}

/// The error of that reading; the test fails when there is none.
inline Fout FoutVanLezing(ProefCompetitie& proef, const std::string& lijnen) {
    try {
        static_cast<void>(LeesProef(proef, lijnen));
    } catch (const Fout& fout) {
        return fout;
    }
    ADD_FAILURE() << "nothing was thrown";
    return Fout(FoutSoort::Criterium);
}

} // namespace lauwerkrans::proef
