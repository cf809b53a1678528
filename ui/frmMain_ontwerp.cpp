#include "ui/frmMain_ontwerp.h"

#include <array>
#include <stdexcept>
#include <string_view>

namespace lauwerkrans {

namespace {

// Places are left, top, width, height in twips. Those of panels, scroll bars and of the lower
// frames are starting values; the layout rules give them their real place.
const std::array tabel = std::to_array<Ontwerp>({
    {Soort::Kader, "Frame1", "", {120, 120, 4455, 2415}, "Actuele parencompetitie", Vet | Blauw},
    {Soort::Knop, "Command1", "Frame1", {120, 360, 495, 375}, "Command1", Verborgen},
    {Soort::Lijst, "List2", "Frame1", {600, 240, 3255, 330}, "", Vet | Groot, Vlak::Geel},
    {Soort::Paneel, "P10", "Frame1", {120, 720, 3735, 1575}, "", Rand},
    {Soort::Paneel, "P12", "P10", {0, 0, 3375, 375}},
    {Soort::Knop, "cmd10_0", "P12", {0, 0, 1095, 255}, "...", Verborgen},
    {Soort::Tabel, "P11", "P10", {0, 0, 2535, 1095}, "", Gewoon, Vlak::Geel},
    {Soort::SchuifVerticaal, "VScroll10", "Frame1", {4080, 720, 255, 1095}},
    {Soort::SchuifHorizontaal, "HScroll1", "Frame1", {0, 3480, 9375, 255}, "", Verborgen},
    {Soort::KopLabel, "Label1", "Frame1", {120, 240, 4335, 375}, "Label1", Vet | Midden | Blauw},

    {Soort::Kader, "Frame3", "", {120, 2640, 4455, 3495}, "Criteria en berekenen", Vet | Blauw},
    {Soort::Label,
     "Label3",
     "Frame3",
     {720, 285, 1575, 495},
     "Minimum aantal zittingen*",
     Vet | Midden | Rood},
    {Soort::Label, "Label7", "Frame3", {360, 480, 495, 255}, "Lijn", Vet},
    {Soort::Label, "Label8", "Frame3", {2160, 480, 735, 255}, "Bereken", Vet | Midden},
    {Soort::Label, "Label9", "Frame3", {3000, 285, 855, 495}, "Controle van een lijn", Midden},
    {Soort::Paneel, "P0", "Frame3", {120, 720, 3975, 1815}, "", Rand},
    {Soort::Paneel, "P1", "P0", {0, 0, 4095, 1200}},
    {Soort::Label,
     "lbl1_0",
     "P1",
     {120, 240, 615, 255},
     "...",
     Vet | Midden | Rand | Verborgen,
     Vlak::Geel},
    {Soort::Criterium, "txt1_0", "P1", {960, 240, 735, 285}, "", Vet | Midden | Verborgen},
    {Soort::Knop, "cmd1_0", "P1", {1920, 240, 855, 255}, "Bereken", Verborgen},
    {Soort::Knop, "cmd2_0", "P1", {2880, 240, 855, 255}, "Controle", Verborgen},
    {Soort::SchuifVerticaal, "VScroll1", "Frame3", {4080, 600, 255, 1935}},
    {Soort::Label,
     "Label5",
     "Frame3",
     {120, 2640, 4215, 615},
     "* Geef bij elke lijn het minimum aantal zittingen die 2 spelers met elkaar gespeeld moeten "
     "hebben in deze competitie.",
     Vet | Rood},

    {Soort::Kader,
     "Frame2",
     "",
     {120, 6240, 4455, 855},
     "Diverse instellingen",
     Gewoon,
     Vlak::Geen,
     "Deze instellingen worden automatisch bewaard."},
    {Soort::Vinkje,
     "chkGewogen",
     "Frame2",
     {120, 240, 2055, 255},
     "Gewogen gemiddelde",
     Gewoon,
     Vlak::Geen,
     "Berekening met correctie voor minder gespeelde spellen in een zitting"},
    {Soort::Vinkje, "chkZitDetails", "Frame2", {120, 480, 1935, 255}, "Zittingdetails tonen"},
    {Soort::Vinkje,
     "chkGemAlleLijnen",
     "Frame2",
     {2160, 240, 2175, 255},
     "Gemidd% ongeacht de lijn",
     Gewoon,
     Vlak::Geen,
     "Geeft een ranglijst over alle lijnen samen"},
    {Soort::Vinkje,
     "chkBuiMed",
     "Frame2",
     {2160, 480, 2295, 255},
     "Bui_Mededing telt ook mee.",
     Gewoon,
     Vlak::Geen,
     "Zittingscores in 'Buiten mededinging'-competitieRondes mee laten tellen."},

    {Soort::Kader, "Frame5", "", {4680, 5880, 2415, 1215}, "Controle van een lid", Vet | Blauw},
    {Soort::Label,
     "Label4",
     "Frame5",
     {120, 240, 1695, 255},
     "Achternaam (of deels):",
     Gewoon,
     Vlak::Geen,
     "Achternaam (of deels):"},
    {Soort::Tekstvak,
     "txtPersoon",
     "Frame5",
     {480, 480, 1455, 285},
     "",
     Gewoon,
     Vlak::Geen,
     "Bijv: 'jans' of 'piet' voor Piet Jansen"},
    {Soort::Knop,
     "cmdControleLijstLid",
     "Frame5",
     {480, 840, 1815, 255},
     "Controlelijst voor dit lid"},

    {Soort::Kader, "Frame4", "", {7200, 5880, 4335, 1215}, "Uitvoer", Vet | Blauw},
    {Soort::Label, "Label10", "Frame4", {240, 240, 855, 255}, "Koptekst:"},
    {Soort::Tekstvak,
     "txtKop1",
     "Frame4",
     {960, 240, 3255, 285},
     "",
     Gewoon,
     Vlak::Geen,
     "Koptekst voor de uitvoerlijsten"},
    {Soort::Label,
     "Label6",
     "Frame4",
     {360, 720, 1695, 495},
     "De uitvoerlijsten tonen GEEN zittingdetails."},
    {Soort::Knop,
     "cmdPrinten",
     "Frame4",
     {2280, 720, 1935, 375},
     "Uitvoerlijsten ...",
     Gewoon,
     Vlak::LichtGroen},

    {Soort::KopLabel, "lblResultKop", "", {5160, 0, 7335, 375}, "Overzicht", Vet | Midden | Blauw},
    {Soort::Paneel, "P20", "", {5040, 360, 7095, 4695}, "", Rand, Vlak::ActieveRand},
    {Soort::Paneel, "P22", "P20", {600, 240, 4815, 375}},
    {Soort::Knop, "cmd20_0", "P22", {0, 0, 1095, 255}, "....", Verborgen},
    {Soort::Tabel, "P21", "P20", {240, 120, 3975, 2175}, "", Gewoon, Vlak::Wit},
    {Soort::Streep, "Line20", "P21", {360, 840, 3480, 0}, "", Verborgen},
    {Soort::Streep, "Line21", "P21", {360, 1080, 3480, 0}, "", Verborgen},
    {Soort::SchuifVerticaal, "VScroll20", "", {12120, 480, 255, 4575}},
    {Soort::SchuifHorizontaal, "HScroll20", "", {5880, 5040, 6015, 255}},
    {Soort::Knop,
     "cmdToelichting",
     "",
     {11760, 6000, 1095, 375},
     "Toelichting",
     Gewoon,
     Vlak::Geel},
    {Soort::Knop, "cmdEinde", "", {11640, 6720, 1095, 375}, "Einde", Gewoon, Vlak::Groen},
    {Soort::Lijst, "List1", "", {6000, 240, 1695, 255}, "", Verborgen},
    {Soort::Lijst, "lstCompSort", "", {3720, 240, 1335, 255}, "", Verborgen},
    {Soort::Dialoog, "CommonDialog1", "", {}},
});

} // namespace

std::span<const Ontwerp> OntwerpVanFrmMain() { return tabel; }

const Ontwerp& OntwerpVan(const char* naam) {
    for (const Ontwerp& ontwerp : tabel) {
        if (std::string_view(ontwerp.naam) == naam) return ontwerp;
    }
    throw std::out_of_range(naam);
}

} // namespace lauwerkrans
