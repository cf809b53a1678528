#include "output/frmPrintenTI.h"

#include <QCheckBox>

#include <array>
#include <utility>

#include "output/bladindeling_totaal.h"
#include "output/modMaakCSV.h"

namespace lauwerkrans {

namespace {

// Places are left, top, width, height in twips.
const std::array tabel = std::to_array<Ontwerp>({
    {Soort::Kader, "frameInstellingen", "", {120, 120, 2400, 1680}, "Instellingen"},
    {Soort::Vinkje, "chkToonLijn", "frameInstellingen", {120, 300, 2160, 285}, "Toon lijn"},
    {Soort::Vinkje,
     "chkToonAantZit",
     "frameInstellingen",
     {120, 660, 2160, 285},
     "Toon aantal zittingen"},
    {Soort::Knop, "cmdBewaren", "frameInstellingen", {240, 1110, 1920, 375}, "Bewaren"},
});

} // namespace

frmPrintenTI::frmPrintenTI(Printomgeving omgeving, Instellingen& instellingen,
                           std::function<void()> bewaar)
    : Printvenster("frmPrintenTI", tabel, std::move(omgeving)), instellingen_(instellingen) {
    const auto keuze = [this](const char* naam, std::int16_t stand) {
        auto* vinkje = Vind<QCheckBox>(*this, naam);
        vinkje->setChecked(stand == 1);
        connect(vinkje, &QCheckBox::toggled, this, &frmPrintenTI::neemKeuzeOver);
    };
    keuze("chkToonLijn", instellingen.ToonLijnen);
    keuze("chkToonAantZit", instellingen.ToonZittingen);
    verbind("cmdBewaren", std::move(bewaar));
}

void frmPrintenTI::neemKeuzeOver() {
    const auto stand = [this](const char* naam) {
        return static_cast<std::int16_t>(Vind<QCheckBox>(*this, naam)->isChecked() ? 1 : 0);
    };
    lijst().ToonLijnen = instellingen_.ToonLijnen = stand("chkToonLijn");
    lijst().ToonZittingen = instellingen_.ToonZittingen = stand("chkToonAantZit");
    beeld().vervang(std::make_shared<const BladenTotaal>(uitvoer()));
}

void frmPrintenTI::pagineer() { beeld().toon(std::make_shared<const BladenTotaal>(uitvoer()), 1); }

std::unique_ptr<Bladen> frmPrintenTI::bladen(double hoogte) const {
    return std::make_unique<BladenTotaal>(uitvoer(), hoogte);
}

void frmPrintenTI::maakCSV() { MaakCSV_Totaal(lijst()); }

} // namespace lauwerkrans
