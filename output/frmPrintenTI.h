// The preview of the ranking over all lines: one long page, with the choice of what it shows.
#pragma once

#include <functional>

#include "app/modInstellingen.h"
#include "output/printvenster.h"

namespace lauwerkrans {

class frmPrintenTI : public Printvenster {
    Q_OBJECT
public:
    /// `bewaar` writes the settings file; it may throw Fout.
    frmPrintenTI(Printomgeving omgeving, Instellingen& instellingen, std::function<void()> bewaar);

protected:
    void pagineer() override;
    [[nodiscard]] std::unique_ptr<Bladen> bladen(double hoogte) const override;
    void maakCSV() override;

private:
    void neemKeuzeOver(); // the two check boxes

    Instellingen& instellingen_;
};

} // namespace lauwerkrans
