#include "output/printvenster.h"

#include <QPushButton>

#include <array>
#include <utility>

#include "output/modMaakHtml.h"
#include "ui/berichten.h"
#include "ui/maten.h"
#include "ui/sneltoets.h"
#include "ui/toegang_namen.h"

namespace lauwerkrans {

namespace {

// Places and sizes in twips.
constexpr double beginBreedte = 13000; // outer
constexpr double beginHoogte = 9000;
constexpr double kleinsteBreedte = 6000; // of the client area
constexpr double kleinsteHoogte = 5000;
constexpr double marge = 350; // right of and below the picture: a scroll bar and some room
constexpr double schuifDikte = 255;

// What both previews have, below the frame that is their own.
const std::array gedeeld = std::to_array<Ontwerp>({
    {Soort::Kader, "framePrint", "", {120, 1920, 2400, 1440}, "Printen"},
    {Soort::Knop, "cmdPrinten", "framePrint", {240, 360, 1920, 375}, "Print"},
    {Soort::Knop, "cmdEinde", "framePrint", {240, 870, 1920, 375}, "Terug"},
    {Soort::Knop, "cmdMaakCSV", "", {120, 3600, 2400, 375}, "MaakCSV"},
    {Soort::Knop, "cmdMaakHtml", "", {120, 4110, 2400, 375}, "MaakHTML"},
    {Soort::Paneel, "picP0", "", {2640, 120, 9925, 8090}, "", Gewoon, Vlak::ActieveRand},
    {Soort::SchuifVerticaal, "VScroll1", "", {12565, 120, 255, 8090}},
    {Soort::SchuifHorizontaal, "HScroll1", "", {2640, 8210, 9925, 255}},
});

} // namespace

Printvenster::Printvenster(const char* naam, std::span<const Ontwerp> ontwerp,
                           Printomgeving omgeving)
    : omgeving_(std::move(omgeving)) {
    setObjectName(QString::fromLatin1(naam));
    setWindowTitle(QStringLiteral("Zittinguitslag"));
    MaakElementen(*this, ontwerp);
    MaakElementen(*this, gedeeld);
    voorbeeld_ = new Voorbeeld(*this);
    GeefNamen(*this, {{"VScroll1", "Blad op en neer"}, {"HScroll1", "Blad opzij"}});
    setMinimumSize(maten::Pixels({0, 0, kleinsteBreedte, kleinsteHoogte}).size());
    resize(maten::Binnenmaat(beginBreedte, beginHoogte));
    verbind("cmdMaakCSV", [this] { maakCSV(); });
    verbind("cmdMaakHtml", [this] { MaakHtml(uitvoer_); });
    verbind("cmdPrinten", [this] { cmdPrinten_Click(); });
    verbind("cmdEinde", [this] { close(); });
    MaakSneltoets(*Vind<QPushButton>(*this, "cmdPrinten"), QKeySequence::Print);
    Vind<QWidget>(*this, "P1")->setFocus();
}

void Printvenster::verbind(const char* knop, std::function<void()> werk) {
    connect(Vind<QPushButton>(*this, knop), &QPushButton::clicked, this,
            [this, werk = std::move(werk)] { Bewaak(uitvoer_.meld, werk); });
}

void Printvenster::vul(const Uitvoer& uitvoer) {
    uitvoer_ = uitvoer;
    pagineer();
}

void Printvenster::cmdPrinten_Click() {
    uitvoer_.fout = 0;
    if (bladen(bladmaat::a4Hoogte)->aantal() > meesteBladen) {
        uitvoer_.meld({TeVeelBladenTekst(), Icoon::Uitroep});
    }
    const Printopdracht opdracht{QString::fromStdString(Uitvoernaam(uitvoer_, "")),
                                 [this](double hoogte) { return bladen(hoogte); }, meesteBladen};
    const Printeinde einde = DrukAf(opdracht, omgeving_, this, uitvoer_.meld);
    if (einde == Printeinde::Gedrukt) {
        naPrinten();
    } else {
        uitvoer_.fout = 1;
    }
}

void Printvenster::resizeEvent(QResizeEvent* gebeurtenis) {
    QWidget::resizeEvent(gebeurtenis);
    if (voorbeeld_ == nullptr) return;
    auto* picP0 = Vind<QWidget>(*this, "picP0");
    Vak vak = maten::PlaatsVan(*picP0);
    vak.breedte = maten::PixelsNaarTwips(width()) - vak.links - marge;
    vak.hoogte = maten::PixelsNaarTwips(height()) - vak.boven - marge;
    maten::Plaats(*picP0, vak);
    maten::Plaats(*Vind<QWidget>(*this, "VScroll1"),
                  {vak.links + vak.breedte, vak.boven, schuifDikte, vak.hoogte});
    maten::Plaats(*Vind<QWidget>(*this, "HScroll1"),
                  {vak.links, vak.boven + vak.hoogte, vak.breedte, schuifDikte});
    voorbeeld_->pasAan();
}

} // namespace lauwerkrans
