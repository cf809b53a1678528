// What one press of a button gives: the values that belong to one list, made together and put in
// place together.
#pragma once

#include <memory>
#include <string>

#include "calc/lijnen.h"
#include "calc/resultaat.h"
#include "data/modORV_perczit.h"

namespace lauwerkrans {

/// A calculation: what was chosen, and its result.
struct Uitslag {
    std::string GekozenLijnen;
    Criteria criteria;
    Opties opties;
    RondeInfo rondeInfo;
    ResultaatTabel resultaat;
};

/// Whether a calculation with these criteria and options would be made in the same way: the
/// criteria of its own lines and the options that take part in it are the same.
[[nodiscard]] bool Geldt(const Uitslag& uitslag, const Criteria& criteria, const Opties& opties);

/// A reading of score rows for checking: what was chosen, and the rows.
struct Controle {
    Selectie selectie;
    ZitRegels zitRegels;
};

/// Reads the scores of the lines afresh and calculates. Only when both succeed are the rounds and
/// the out-of-competition list of `algemeen` replaced by those of this reading. Throws Fout.
[[nodiscard]] std::shared_ptr<const Uitslag> Bereken(Algemeen& algemeen, const std::string& lijnen,
                                                     const Criteria& criteria,
                                                     const Opties& opties);

/// Reads the scores afresh, without a calculation. Throws Fout; see Bereken.
[[nodiscard]] std::shared_ptr<const Controle> Controleer(Algemeen& algemeen,
                                                         const Selectie& selectie);

} // namespace lauwerkrans
