// The controls of the main window against a table of their own.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>

#include <set>
#include <string>

#include "beeldproef.h"
#include "ui/elementen.h"
#include "ui/frmMain.h"
#include "ui/frmMain_ontwerp.h"
#include "ui/stijl.h"
#include "ui/tabellijf.h"
#include "vensterproef.h"

namespace lauwerkrans::proef {
namespace {

enum class Is { Kader, Knop, Lijst, Paneel, Lijf, Label, Tekst, Vink, Staand, Liggend };

const QColor blauw(0, 0, 255);
const QColor rood(255, 0, 0);
const QColor zwart(0, 0, 0);
const QColor grijs(240, 240, 240); // no background of its own
const QColor geel(255, 255, 192);

struct Verwacht {
    Is soort;
    const char* naam;
    const char* houder; // "" is the window
    Vak plaats;         // twips
    const char* bijschrift = "";
    const char* hint = "";
    QColor tekst = zwart;
    QColor vlak = grijs;
    bool vet = false;
    int pixels = 11; // 8.25 points
    bool midden = false;
    bool zichtbaar = true;
};

// clang-format off
const std::vector<Verwacht>& Alle() {
    static const std::vector<Verwacht> alle = {
        {Is::Kader, "Frame1", "", {120, 120, 4455, 2415}, "Actuele parencompetitie", "", blauw, grijs, true},
        {Is::Knop, "Command1", "Frame1", {120, 360, 495, 375}, "Command1", "", zwart, grijs, false, 11, false, false},
        {Is::Lijst, "List2", "Frame1", {600, 240, 3255, 330}, "", "", zwart, geel, true, 16},
        {Is::Paneel, "P10", "Frame1", {120, 720, 3735, 1575}},
        {Is::Paneel, "P12", "P10", {0, 0, 3375, 375}},
        {Is::Knop, "cmd10_0", "P12", {0, 0, 1095, 255}, "...", "", zwart, grijs, false, 11, false, false},
        {Is::Lijf, "P11", "P10", {0, 0, 2535, 1095}, "", "", zwart, geel},
        {Is::Staand, "VScroll10", "Frame1", {4080, 720, 255, 1095}},
        {Is::Liggend, "HScroll1", "Frame1", {0, 3480, 9375, 255}, "", "", zwart, grijs, false, 11, false, false},
        {Is::Label, "Label1", "Frame1", {120, 240, 4335, 375}, "Label1", "", blauw, grijs, true, 16, true},
        {Is::Kader, "Frame3", "", {120, 2640, 4455, 3495}, "Criteria en berekenen", "", blauw, grijs, true},
        {Is::Label, "Label3", "Frame3", {720, 285, 1575, 495}, "Minimum aantal zittingen*", "", rood, grijs, true, 11, true},
        {Is::Label, "Label7", "Frame3", {360, 480, 495, 255}, "Lijn", "", zwart, grijs, true},
        {Is::Label, "Label8", "Frame3", {2160, 480, 735, 255}, "Bereken", "", zwart, grijs, true, 11, true},
        {Is::Label, "Label9", "Frame3", {3000, 285, 855, 495}, "Controle van een lijn", "", zwart, grijs, false, 11, true},
        {Is::Paneel, "P0", "Frame3", {120, 720, 3975, 1815}},
        {Is::Paneel, "P1", "P0", {0, 0, 4095, 1200}},
        {Is::Label, "lbl1_0", "P1", {120, 240, 615, 255}, "...", "", zwart, geel, true, 11, true, false},
        {Is::Tekst, "txt1_0", "P1", {960, 240, 735, 285}, "", "", zwart, Qt::white, true, 11, true, false},
        {Is::Knop, "cmd1_0", "P1", {1920, 240, 855, 255}, "Bereken", "", zwart, grijs, false, 11, false, false},
        {Is::Knop, "cmd2_0", "P1", {2880, 240, 855, 255}, "Controle", "", zwart, grijs, false, 11, false, false},
        {Is::Staand, "VScroll1", "Frame3", {4080, 600, 255, 1935}},
        {Is::Label, "Label5", "Frame3", {120, 2640, 4215, 615},
         "* Geef bij elke lijn het minimum aantal zittingen die 2 spelers met elkaar gespeeld moeten hebben in deze competitie.", "", rood, grijs, true},
        {Is::Kader, "Frame2", "", {120, 6240, 4455, 855}, "Diverse instellingen", "Deze instellingen worden automatisch bewaard."},
        {Is::Vink, "chkGewogen", "Frame2", {120, 240, 2055, 255}, "Gewogen gemiddelde", "Berekening met correctie voor minder gespeelde spellen in een zitting"},
        {Is::Vink, "chkZitDetails", "Frame2", {120, 480, 1935, 255}, "Zittingdetails tonen"},
        {Is::Vink, "chkGemAlleLijnen", "Frame2", {2160, 240, 2175, 255}, "Gemidd% ongeacht de lijn", "Geeft een ranglijst over alle lijnen samen"},
        {Is::Vink, "chkBuiMed", "Frame2", {2160, 480, 2295, 255}, "Bui_Mededing telt ook mee.", "Zittingscores in 'Buiten mededinging'-competitieRondes mee laten tellen."},
        {Is::Kader, "Frame5", "", {4680, 5880, 2415, 1215}, "Controle van een lid", "", blauw, grijs, true},
        {Is::Label, "Label4", "Frame5", {120, 240, 1695, 255}, "Achternaam (of deels):", "Achternaam (of deels):"},
        {Is::Tekst, "txtPersoon", "Frame5", {480, 480, 1455, 285}, "", "Bijv: 'jans' of 'piet' voor Piet Jansen", zwart, Qt::white},
        {Is::Knop, "cmdControleLijstLid", "Frame5", {480, 840, 1815, 255}, "Controlelijst voor dit lid"},
        {Is::Kader, "Frame4", "", {7200, 5880, 4335, 1215}, "Uitvoer", "", blauw, grijs, true},
        {Is::Label, "Label10", "Frame4", {240, 240, 855, 255}, "Koptekst:"},
        {Is::Tekst, "txtKop1", "Frame4", {960, 240, 3255, 285}, "", "Koptekst voor de uitvoerlijsten", zwart, Qt::white},
        {Is::Label, "Label6", "Frame4", {360, 720, 1695, 495}, "De uitvoerlijsten tonen GEEN zittingdetails."},
        {Is::Knop, "cmdPrinten", "Frame4", {2280, 720, 1935, 375}, "Uitvoerlijsten ...", "", zwart, QColor(192, 255, 192)},
        {Is::Label, "lblResultKop", "", {5160, 0, 7335, 375}, "Overzicht", "", blauw, grijs, true, 16, true},
        {Is::Paneel, "P20", "", {5040, 360, 7095, 4695}, "", "", zwart, QColor(180, 180, 180)},
        {Is::Paneel, "P22", "P20", {600, 240, 4815, 375}},
        {Is::Knop, "cmd20_0", "P22", {0, 0, 1095, 255}, "....", "", zwart, grijs, false, 11, false, false},
        {Is::Lijf, "P21", "P20", {240, 120, 3975, 2175}, "", "", zwart, Qt::white},
        {Is::Staand, "VScroll20", "", {12120, 480, 255, 4575}},
        {Is::Liggend, "HScroll20", "", {5880, 5040, 6015, 255}},
        {Is::Knop, "cmdToelichting", "", {11760, 6000, 1095, 375}, "Toelichting", "", zwart, geel},
        {Is::Knop, "cmdEinde", "", {11640, 6720, 1095, 375}, "Einde", "", zwart, QColor(128, 255, 128)},
        {Is::Lijst, "List1", "", {6000, 240, 1695, 255}, "", "", zwart, grijs, false, 11, false, false},
        {Is::Lijst, "lstCompSort", "", {3720, 240, 1335, 255}, "", "", zwart, grijs, false, 11, false, false},
    };
    return alle;
}
// clang-format on

/// The controls as the table makes them, before anything places or fills them.
class OntwerpTest : public ::testing::Test {
protected:
    OntwerpTest() {
        kaal.resize(861, 480);
        MaakElementen(kaal, OntwerpVanFrmMain());
    }

    [[nodiscard]] QWidget& vind(const char* naam) const {
        auto* element = kaal.findChild<QWidget*>(QString::fromLatin1(naam));
        if (element == nullptr) throw std::runtime_error(naam);
        return *element;
    }

    QWidget kaal;
};

bool IsSoort(const QWidget& element, Is soort) {
    const auto* schuif = qobject_cast<const QScrollBar*>(&element);
    switch (soort) {
    case Is::Kader:
        return qobject_cast<const QGroupBox*>(&element) != nullptr;
    case Is::Knop:
        return qobject_cast<const QPushButton*>(&element) != nullptr;
    case Is::Lijst:
        return qobject_cast<const QListWidget*>(&element) != nullptr;
    case Is::Paneel:
        return qobject_cast<const Paneel*>(&element) != nullptr;
    case Is::Lijf:
        return qobject_cast<const TabelLijf*>(&element) != nullptr;
    case Is::Label:
        return qobject_cast<const QLabel*>(&element) != nullptr;
    case Is::Tekst:
        return qobject_cast<const QLineEdit*>(&element) != nullptr;
    case Is::Vink:
        return qobject_cast<const QCheckBox*>(&element) != nullptr;
    case Is::Staand:
        return schuif != nullptr && schuif->orientation() == Qt::Vertical;
    case Is::Liggend:
        return schuif != nullptr && schuif->orientation() == Qt::Horizontal;
    }
    return false;
}

QString Bijschrift(const QWidget& element) {
    if (const auto* kop = qobject_cast<const KopLabel*>(&element)) return kop->bijschrift();
    if (const auto* label = qobject_cast<const QLabel*>(&element)) return label->text();
    if (const auto* knop = qobject_cast<const QAbstractButton*>(&element)) return knop->text();
    if (const auto* kader = qobject_cast<const QGroupBox*>(&element)) return kader->title();
    if (const auto* vak = qobject_cast<const QLineEdit*>(&element)) return vak->text();
    return {};
}

TEST_F(OntwerpTest, EveryControlIsOfItsKindInItsContainer) {
    for (const Verwacht& rij : Alle()) {
        const QWidget& element = vind(rij.naam);
        EXPECT_TRUE(IsSoort(element, rij.soort)) << rij.naam;
        EXPECT_EQ(element.parentWidget()->objectName().toStdString(), rij.houder) << rij.naam;
    }
}

TEST_F(OntwerpTest, ThereIsNoControlBesidesThoseAndNoneTwice) {
    std::multiset<std::string> gemaakt;
    std::multiset<std::string> verwacht;
    for (const QWidget* element : kaal.findChildren<QWidget*>()) {
        const std::string naam = element->objectName().toStdString();
        if (!naam.empty() && naam.rfind("qt_", 0) != 0) gemaakt.insert(naam);
    }
    for (const Verwacht& rij : Alle())
        verwacht.insert(rij.naam);
    EXPECT_EQ(gemaakt, verwacht);
    EXPECT_EQ(kaal.findChildren<QObject*>(QStringLiteral("CommonDialog1")).size(), 1);
    for (const char* naam : {"Line20", "Line21"}) {
        const auto* streep = kaal.findChild<Streep*>(QString::fromLatin1(naam));
        ASSERT_NE(streep, nullptr) << naam;
        EXPECT_EQ(streep->parent(), &vind("P21")) << naam;
        EXPECT_FALSE(streep->zichtbaar) << naam;
    }
}

TEST_F(OntwerpTest, EveryControlStandsAtItsDesignPlace) {
    for (const Verwacht& rij : Alle())
        EXPECT_EQ(maten::PlaatsVan(vind(rij.naam)), rij.plaats) << rij.naam;
}

TEST_F(OntwerpTest, EveryControlHasItsCaptionAndToolTip) {
    for (const Verwacht& rij : Alle()) {
        EXPECT_EQ(Bijschrift(vind(rij.naam)).toStdString(), rij.bijschrift) << rij.naam;
        EXPECT_EQ(vind(rij.naam).toolTip().toStdString(), rij.hint) << rij.naam;
    }
}

TEST_F(OntwerpTest, EveryTextHasItsLetters) {
    for (const Verwacht& rij : Alle()) {
        const QFont& letters = vind(rij.naam).font();
        EXPECT_EQ(letters.pixelSize(), rij.pixels) << rij.naam;
        if (rij.soort == Is::Kader) continue; // its own letters are its contents'
        EXPECT_EQ(letters.bold(), rij.vet) << rij.naam;
        EXPECT_EQ(letters.families(), Letters(11, false).families()) << rij.naam;
    }
}

TEST_F(OntwerpTest, EveryLabelAndBoxIsAlignedAsStated) {
    for (const Verwacht& rij : Alle()) {
        Qt::Alignment ligging;
        if (rij.soort == Is::Label) ligging = dynamic_cast<QLabel&>(vind(rij.naam)).alignment();
        if (rij.soort == Is::Tekst) ligging = dynamic_cast<QLineEdit&>(vind(rij.naam)).alignment();
        if (rij.soort != Is::Label && rij.soort != Is::Tekst) continue;
        EXPECT_EQ(ligging.testFlag(Qt::AlignHCenter), rij.midden) << rij.naam;
    }
}

QPalette::ColorRole VlakRol(Is soort) {
    if (soort == Is::Knop) return QPalette::Button;
    return soort == Is::Lijst || soort == Is::Tekst ? QPalette::Base : QPalette::Window;
}

TEST_F(OntwerpTest, EveryControlHasItsBackground) {
    for (const Verwacht& rij : Alle()) {
        if (rij.soort == Is::Lijf) continue; // drawn: see the pictures of the panels
        const QPalette palet = vind(rij.naam).palette();
        EXPECT_EQ(palet.color(QPalette::Active, VlakRol(rij.soort)), rij.vlak) << rij.naam;
        EXPECT_EQ(palet.color(QPalette::Inactive, VlakRol(rij.soort)), rij.vlak) << rij.naam;
    }
    EXPECT_TRUE(vind("lbl1_0").autoFillBackground());
    EXPECT_FALSE(vind("Label3").autoFillBackground()) << "labels are transparent";
}

TEST_F(OntwerpTest, EveryTextHasItsColour) {
    for (const Verwacht& rij : Alle()) {
        if (rij.soort == Is::Kader) continue; // drawn: see below
        const QPalette::ColorRole rol = rij.soort == Is::Knop ? QPalette::ButtonText
                                        : rij.soort == Is::Tekst || rij.soort == Is::Lijst
                                            ? QPalette::Text
                                            : QPalette::WindowText;
        EXPECT_EQ(vind(rij.naam).palette().color(QPalette::Active, rol), rij.tekst) << rij.naam;
    }
}

TEST_F(OntwerpTest, EveryButtonLooksDifferentWhenDisabled) {
    for (const Verwacht& rij : Alle()) {
        if (rij.soort != Is::Knop) continue;
        const QPalette palet = vind(rij.naam).palette();
        EXPECT_EQ(palet.color(QPalette::Disabled, QPalette::Button), grijs) << rij.naam;
        EXPECT_NE(palet.color(QPalette::Disabled, QPalette::ButtonText), rij.tekst) << rij.naam;
    }
}

TEST_F(OntwerpTest, OnlyTheHiddenOnesAreHidden) {
    for (const Verwacht& rij : Alle())
        EXPECT_EQ(!vind(rij.naam).isHidden(), rij.zichtbaar) << rij.naam;
}

TEST_F(OntwerpTest, TheWorkingListsSort) {
    for (const char* naam : {"List1", "lstCompSort"}) {
        auto& lijst = dynamic_cast<QListWidget&>(vind(naam));
        lijst.addItem(QStringLiteral("b"));
        lijst.addItem(QStringLiteral("a"));
        EXPECT_EQ(lijst.item(0)->text(), QStringLiteral("a")) << naam;
    }
}

} // namespace
} // namespace lauwerkrans::proef
