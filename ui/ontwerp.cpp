#include "ui/ontwerp.h"

#include <QCheckBox>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>

#include "ui/criteriumveld.h"
#include "ui/elementen.h"
#include "ui/stijl.h"
#include "ui/tabellijf.h"

namespace lauwerkrans {

namespace {

bool Heeft(const Ontwerp& ontwerp, Trek trek) { return (ontwerp.trek & trek) != 0; }

QString Tekst(const char* utf8) { return QString::fromUtf8(utf8); }

QColor Voorgrond(const Ontwerp& ontwerp) {
    const QColor kleur = Heeft(ontwerp, Rood) ? kleuren::rood : kleuren::zwart;
    return Schermkleur(Heeft(ontwerp, Blauw) ? kleuren::blauw : kleur, QPalette::WindowText);
}

QColor Achtergrond(Vlak vlak) {
    switch (vlak) {
    case Vlak::Geel:
        return kleuren::geel;
    case Vlak::LichtGroen:
        return kleuren::lichtgroen;
    case Vlak::Groen:
        return kleuren::groen;
    case Vlak::ActieveRand:
        return kleuren::actieveRand;
    case Vlak::Wit:
        return kleuren::wit;
    case Vlak::Geen:
        break;
    }
    return kleuren::venster;
}

void ZetKleuren(QWidget& element, const Ontwerp& ontwerp, QPalette::ColorRole vlak,
                QPalette::ColorRole tekst) {
    element.setPalette(
        MetKleuren(element.palette(), vlak, Achtergrond(ontwerp.vlak), tekst, Voorgrond(ontwerp)));
}

/// Condenses the letters of a caption that is wider than its box.
void PasBreedte(QWidget& element, const QString& tekst, int ruimte) {
    element.setFont(Versmald(element.font(), [&](const QFont& letters) {
        return QFontMetrics(letters).horizontalAdvance(tekst) <= ruimte;
    }));
}

/// The same for a caption of several lines that is higher than its box.
void PasHoogte(QWidget& element, const QString& tekst, const QRect& ruimte) {
    element.setFont(Versmald(element.font(), [&](const QFont& letters) {
        const QRect nodig = QFontMetrics(letters).boundingRect(ruimte, Qt::TextWordWrap, tekst);
        return nodig.width() <= ruimte.width() && nodig.height() <= ruimte.height();
    }));
}

QWidget* MaakKader(QWidget* houder, const Ontwerp& ontwerp) {
    auto* kader = new Kader(houder, Heeft(ontwerp, Vet), Voorgrond(ontwerp));
    kader->setTitle(Tekst(ontwerp.bijschrift));
    return kader;
}

QWidget* MaakKnop(QWidget* houder, const Ontwerp& ontwerp) {
    constexpr int rand = 4;
    auto* knop = new QPushButton(Tekst(ontwerp.bijschrift), houder);
    knop->setAutoDefault(true); // Enter presses it as well as the space bar
    ZetKleuren(*knop, ontwerp, QPalette::Button, QPalette::ButtonText);
    PasBreedte(*knop, knop->text(), maten::Pixels(ontwerp.plaats).width() - rand);
    return knop;
}

QWidget* MaakLijst(QWidget* houder, const Ontwerp& ontwerp) {
    auto* lijst = new QListWidget(houder);
    lijst->setFocusPolicy(Qt::NoFocus);
    lijst->setFont(Letters(Heeft(ontwerp, Groot) ? 16 : 11, Heeft(ontwerp, Vet)));
    lijst->setSortingEnabled(Heeft(ontwerp, Verborgen)); // the working lists
    ZetKleuren(*lijst, ontwerp, QPalette::Base, QPalette::Text);
    return lijst;
}

QWidget* MaakPaneel(QWidget* houder, const Ontwerp& ontwerp) {
    auto* paneel = new Paneel(houder, Heeft(ontwerp, Rand));
    QPalette palet = paneel->palette();
    palet.setColor(QPalette::All, QPalette::Window,
                   Schermkleur(Achtergrond(ontwerp.vlak), QPalette::Base));
    paneel->setPalette(palet);
    paneel->setAutoFillBackground(true);
    return paneel;
}

QWidget* MaakLabel(QWidget* houder, const Ontwerp& ontwerp) {
    auto* label = new QLabel(Tekst(ontwerp.bijschrift), houder);
    label->setTextFormat(Qt::PlainText);
    label->setFont(Letters(label->font().pixelSize(), Heeft(ontwerp, Vet)));
    label->setAlignment((Heeft(ontwerp, Midden) ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::AlignTop);
    const QRect ruimte(QPoint(0, 0), maten::Pixels(ontwerp.plaats).size());
    const bool meerRegels = ruimte.height() >= 2 * label->fontMetrics().height();
    label->setWordWrap(meerRegels);
    ZetKleuren(*label, ontwerp, QPalette::Window, QPalette::WindowText);
    if (Heeft(ontwerp, Rand)) {
        label->setFrameStyle(QFrame::Box | QFrame::Plain);
        label->setAlignment(Qt::AlignCenter);
    }
    label->setAutoFillBackground(ontwerp.vlak != Vlak::Geen);
    if (meerRegels) {
        PasHoogte(*label, label->text(), ruimte);
    } else {
        PasBreedte(*label, label->text(), ruimte.width());
    }
    return label;
}

QWidget* MaakKopLabel(QWidget* houder, const Ontwerp& ontwerp) {
    auto* label = new KopLabel(houder);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    ZetKleuren(*label, ontwerp, QPalette::Window, QPalette::WindowText);
    label->resize(maten::Pixels(ontwerp.plaats).size());
    label->zetBijschrift(Tekst(ontwerp.bijschrift));
    return label;
}

QWidget* MaakTekstvak(QLineEdit* vak, const Ontwerp& ontwerp) {
    vak->setText(Tekst(ontwerp.bijschrift));
    vak->setFont(Letters(vak->font().pixelSize(), Heeft(ontwerp, Vet)));
    vak->setAlignment((Heeft(ontwerp, Midden) ? Qt::AlignHCenter : Qt::AlignLeft) |
                      Qt::AlignVCenter);
    return vak;
}

QWidget* MaakVinkje(QWidget* houder, const Ontwerp& ontwerp) {
    constexpr int kastje = 13 + 4; // indicator and the space behind it
    constexpr int rand = 3;        // the widest box ends on its frame's border
    auto* vinkje = new QCheckBox(Tekst(ontwerp.bijschrift), houder);
    PasBreedte(*vinkje, vinkje->text(), maten::Pixels(ontwerp.plaats).width() - kastje - rand);
    return vinkje;
}

QWidget* MaakSchuif(QWidget* houder, Qt::Orientation richting) {
    auto* schuif = new QScrollBar(richting, houder);
    schuif->setFocusPolicy(Qt::NoFocus);
    schuif->setRange(0, 0);
    schuif->setEnabled(false);
    return schuif;
}

QWidget* MaakWidget(QWidget* houder, const Ontwerp& ontwerp) {
    switch (ontwerp.soort) {
    case Soort::Kader:
        return MaakKader(houder, ontwerp);
    case Soort::Knop:
        return MaakKnop(houder, ontwerp);
    case Soort::Lijst:
        return MaakLijst(houder, ontwerp);
    case Soort::Paneel:
        return MaakPaneel(houder, ontwerp);
    case Soort::Tabel:
        return new TabelLijf(houder, Schermkleur(Achtergrond(ontwerp.vlak), QPalette::Base));
    case Soort::Label:
        return MaakLabel(houder, ontwerp);
    case Soort::KopLabel:
        return MaakKopLabel(houder, ontwerp);
    case Soort::Tekstvak:
        return MaakTekstvak(new QLineEdit(houder), ontwerp);
    case Soort::Criterium:
        return MaakTekstvak(new Criteriumveld(houder), ontwerp);
    case Soort::Vinkje:
        return MaakVinkje(houder, ontwerp);
    case Soort::SchuifVerticaal:
        return MaakSchuif(houder, Qt::Vertical);
    case Soort::SchuifHorizontaal:
        return MaakSchuif(houder, Qt::Horizontal);
    case Soort::Streep:
    case Soort::Dialoog:
        break;
    }
    return nullptr;
}

/// A highlight line lies in its panel's body; the place of the table gives its two ends.
void MaakStreep(QWidget& houder, const Ontwerp& ontwerp) {
    auto* streep = new Streep(&houder);
    streep->setObjectName(QString::fromLatin1(ontwerp.naam));
    const Vak& plaats = ontwerp.plaats;
    streep->x1 = maten::TwipsNaarMm(plaats.links);
    streep->y1 = maten::TwipsNaarMm(plaats.boven);
    streep->x2 = maten::TwipsNaarMm(plaats.links + plaats.breedte);
    streep->y2 = maten::TwipsNaarMm(plaats.boven + plaats.hoogte);
}

void MaakDialoog(QWidget& venster, const Ontwerp& ontwerp) {
    auto* dialoog = new QObject(&venster);
    dialoog->setObjectName(QString::fromLatin1(ontwerp.naam));
}

} // namespace

QWidget* MaakElement(QWidget& houder, const Ontwerp& ontwerp, const QString& naam) {
    QWidget* element = MaakWidget(&houder, ontwerp);
    element->setObjectName(naam);
    if (ontwerp.hint[0] != '\0') element->setToolTip(Tekst(ontwerp.hint));
    maten::Plaats(*element, ontwerp.plaats);
    element->setVisible(!Heeft(ontwerp, Verborgen));
    return element;
}

void MaakElementen(QWidget& venster, std::span<const Ontwerp> tabel) {
    for (const Ontwerp& ontwerp : tabel) {
        QWidget* houder =
            ontwerp.houder[0] == '\0' ? &venster : Vind<QWidget>(venster, ontwerp.houder);
        if (ontwerp.soort == Soort::Streep) {
            MaakStreep(*houder, ontwerp);
        } else if (ontwerp.soort == Soort::Dialoog) {
            MaakDialoog(*houder, ontwerp);
        } else {
            MaakElement(*houder, ontwerp, QString::fromLatin1(ontwerp.naam));
        }
    }
}

} // namespace lauwerkrans
