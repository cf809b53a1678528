// A main window whose start is still to come, on files that a test may take away or break first.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "app/frmMain_start.h"
#include "kern/proef.h"
#include "ui/ontwerp.h"

namespace lauwerkrans::proef {

constexpr const char* ledenFout = "\r\nFout bij het lezen van de Groepen!\r\n";
constexpr const char* geenCompData = "Geen bestand met competitiegegevens aanwezig.\r\n";

/// A competition of two rounds of three sessions with two lines, whose files may be taken away
/// before the start.
class Startproef : public ::testing::Test {
protected:
    Startproef() : competitie(2, 3, 2), venster(competitie.algemeen, instellingen, {}) {
        competitie.schrijfLeden(99, {{3, "Jan", "", "Smit"}, {17, "Piet", "van", "Berkelo"}});
        competitie.schrijfBums(2, {{3, 17}});
        competitie.algemeen.OrvMap.clear(); // the start finds the folders itself
        competitie.algemeen.CompetitieMap.clear();
        competitie.algemeen.ActieveCompetitie.clear();
        competitie.algemeen.competitie.clear();
    }

    void schrijfMappen(const std::string& actief) const {
        const std::string map = competitie.map().pad();
        competitie.map().schrijf("Mappen.ini", "ORVMAP=" + map + "\r\nCOMMAP=" + map +
                                                   "\\Competities\r\nACTCOM=" + actief + "\r\n");
    }
    bool laad() { return Form_Load(venster, competitie.algemeen, instellingen, programmaMap()); }
    bool start() {
        schrijfMappen("Proef");
        return laad();
    }
    [[nodiscard]] std::string programmaMap() const {
        return competitie.map().pad() + "/Lauwerkrans";
    }
    void verwijder(const std::string& naam) const {
        ASSERT_TRUE(std::filesystem::remove(competitie.map().map() / naam)) << naam;
    }
    [[nodiscard]] const std::vector<Melding>& meldingen() const {
        return competitie.meldingen.getoond;
    }
    template <class Element>
    [[nodiscard]] Element& vind(const char* naam) const {
        return *Vind<Element>(venster, naam);
    }
    [[nodiscard]] std::string kop() const {
        return vind<KopLabel>("lblResultKop").bijschrift().toStdString();
    }

    ProefCompetitie competitie;
    Instellingen instellingen;
    frmMain venster;
};

} // namespace lauwerkrans::proef
