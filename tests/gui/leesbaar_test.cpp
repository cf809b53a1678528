// Every text of the main window can be read: none is wider or higher than its box, none is covered.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QFontInfo>
#include <QFontMetrics>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QStyleOptionButton>

#include <set>

#include "beeldproef.h"
#include "ui/stijl.h"
#include "vensterproef.h"

namespace lauwerkrans::proef {
namespace {

/// The window with all kinds of controls: 26 lines, rounds, and a list with session details.
class Leesbaar : public ::testing::Test {
protected:
    Leesbaar() : proef(2, 3, 26) {
        proef.competitie.schrijfLeden(99, {{3, "Jan", "", "Smit"}, {17, "Piet", "van", "Berkelo"}});
        proef.competitie.schrijfZitting(1, 1, {ProefCompetitie::regel("A1", "3-17", "60,000")});
        proef.start();
        proef.typ("txt1_1", "1");
        proef.klik("chkZitDetails");
        proef.klik("cmd1_1");
    }

    template <class Element>
    [[nodiscard]] std::vector<Element*> alle() const {
        std::vector<Element*> gevonden;
        for (auto* element : proef.venster->findChildren<Element*>()) {
            if (element->isVisible()) gevonden.push_back(element);
        }
        return gevonden;
    }

    Vensterproef proef;
};

/// The visible controls of one container.
std::vector<QWidget*> Kinderen(const QWidget& houder) {
    std::vector<QWidget*> zichtbaar;
    for (auto* kind : houder.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (kind->isVisible()) zichtbaar.push_back(kind);
    }
    return zichtbaar;
}

std::string Wie(const QWidget& element) {
    const QFont& letters = element.font();
    return element.objectName().toStdString() + " at " + std::to_string(letters.stretch()) + "%";
}

bool IsBekend(const QFont& letters) {
    const QString familie = QFontInfo(letters).family();
    return familie == QStringLiteral("Liberation Sans") ||
           familie == QStringLiteral("Microsoft Sans Serif");
}

/// Where the text of a label is drawn, in the label.
QRect TekstVlak(const QLabel& label) {
    int wijze = static_cast<int>(label.alignment());
    if (label.wordWrap()) wijze |= Qt::TextWordWrap;
    return label.fontMetrics().boundingRect(label.contentsRect(), wijze, label.text());
}

/// The same for a check box, where the style puts it behind the indicator.
QRect TekstVlak(const QCheckBox& vinkje) {
    QStyleOptionButton optie;
    optie.initFrom(&vinkje);
    const QRect vlak = vinkje.style()->subElementRect(QStyle::SE_CheckBoxContents, &optie, &vinkje);
    return vinkje.fontMetrics().boundingRect(vlak, Qt::AlignLeft | Qt::AlignVCenter, vinkje.text());
}

TEST_F(Leesbaar, TheLettersAreThoseThatTheBoxesWereMadeFor) {
    ASSERT_TRUE(IsBekend(Letters(11, false)))
        << QFontInfo(Letters(11, false)).family().toStdString();
    ASSERT_TRUE(IsBekend(Letters(16, true)));
    for (const QWidget* element : alle<QWidget>()) {
        EXPECT_TRUE(IsBekend(element->font())) << Wie(*element);
    }
}

TEST_F(Leesbaar, EveryLabelFitsInItsBox) {
    ASSERT_TRUE(IsBekend(Letters(11, false)));
    const auto labels = alle<QLabel>();
    ASSERT_GE(labels.size(), 37U); // 27 of them are letters of lines
    for (const QLabel* label : labels) {
        const QRect tekst = TekstVlak(*label);
        EXPECT_LE(tekst.width(), label->contentsRect().width()) << Wie(*label);
        EXPECT_LE(tekst.height(), label->contentsRect().height()) << Wie(*label);
        EXPECT_EQ(label->indent() > 0, false) << Wie(*label);
    }
}

TEST_F(Leesbaar, EveryButtonHasRoomForItsCaption) {
    ASSERT_TRUE(IsBekend(Letters(11, false)));
    const auto knoppen = alle<QPushButton>();
    ASSERT_GE(knoppen.size(), 27U * 2 + 4 + 6 + 4);
    for (const QPushButton* knop : knoppen) {
        const QFontMetrics maat = knop->fontMetrics();
        EXPECT_LE(maat.horizontalAdvance(knop->text()), knop->width() - 3) << Wie(*knop);
        EXPECT_LE(maat.height(), knop->height() - 2) << Wie(*knop);
    }
}

TEST_F(Leesbaar, EveryCaptionOfAButtonIsDrawnWholly) {
    const auto donker = [](QColor kleur) { return kleur.lightness() < 115; };
    std::size_t gezien = 0;
    for (QPushButton* knop : alle<QPushButton>()) {
        const QRect zichtbaar = knop->visibleRegion().boundingRect();
        if (!knop->isEnabled() || zichtbaar != knop->rect()) continue;
        ++gezien;
        const QRect inkt = Omtrek(Beeld(*knop), knop->rect().adjusted(2, 2, -2, -2), donker);
        const QRect nodig = knop->fontMetrics().tightBoundingRect(knop->text());
        EXPECT_GE(inkt.width(), nodig.width() - 3) << Wie(*knop);
        EXPECT_GE(inkt.height(), nodig.height() - 2) << Wie(*knop);
    }
    EXPECT_GE(gezien, 15U);
}

TEST_F(Leesbaar, EveryCheckBoxHasRoomForItsCaption) {
    ASSERT_TRUE(IsBekend(Letters(11, false)));
    const auto vinkjes = alle<QCheckBox>();
    ASSERT_EQ(vinkjes.size(), 4U);
    for (const QCheckBox* vinkje : vinkjes) {
        const QRect tekst = TekstVlak(*vinkje);
        EXPECT_LE(tekst.right(), vinkje->width() - 1) << Wie(*vinkje);
        EXPECT_LE(tekst.height(), vinkje->height()) << Wie(*vinkje);
    }
}

TEST_F(Leesbaar, EveryFrameHasRoomForItsCaptionAboveItsContents) {
    ASSERT_TRUE(IsBekend(Letters(11, false)));
    const auto kaders = alle<QGroupBox>();
    ASSERT_EQ(kaders.size(), 5U);
    for (const QGroupBox* kader : kaders) {
        QFont vet = kader->font();
        vet.setBold(true);
        const QFontMetrics maat(vet);
        EXPECT_LT(8 + maat.horizontalAdvance(kader->title()), kader->width() - 8) << Wie(*kader);
        for (const QWidget* kind : Kinderen(*kader))
            EXPECT_GE(kind->y(), maat.height() - 1) << Wie(*kind);
    }
}

TEST_F(Leesbaar, NoTextReachesTheBorderOfItsFrame) {
    ASSERT_TRUE(IsBekend(Letters(11, false)));
    const auto controleer = [](const QWidget& element, const QRect& tekst) {
        const auto* kader = qobject_cast<const QGroupBox*>(element.parentWidget());
        if (kader == nullptr) return;
        const QRect vlak = tekst.translated(element.pos());
        EXPECT_GE(vlak.left(), 2) << Wie(element);
        EXPECT_LE(vlak.right(), kader->width() - 3) << Wie(element);
        EXPECT_LE(vlak.bottom(), kader->height() - 3) << Wie(element);
    };
    for (const QLabel* label : alle<QLabel>())
        controleer(*label, TekstVlak(*label));
    for (const QCheckBox* vinkje : alle<QCheckBox>())
        controleer(*vinkje, TekstVlak(*vinkje));
}

TEST_F(Leesbaar, NoLettersAreCondensedByMoreThanAFewPercent) {
    for (const QWidget* element : alle<QWidget>()) {
        const int rek = element->font().stretch();
        EXPECT_TRUE(rek == QFont::AnyStretch || (rek >= 95 && rek <= 100)) << Wie(*element);
    }
}

TEST_F(Leesbaar, EveryBoxIsHighEnoughForItsLetters) {
    for (const char* naam : {"txt1_1", "txtPersoon", "txtKop1"}) {
        const auto& vak = proef.vind<QLineEdit>(naam);
        EXPECT_LE(vak.fontMetrics().height(), vak.height() - 4) << naam;
    }
}

/// The pairs of visible controls of one container that share pixels, as "one/other".
std::set<std::string> Overlappingen(const QWidget& houder) {
    std::set<std::string> paren;
    const auto kinderen = Kinderen(houder);
    for (const QWidget* een : kinderen) {
        for (const QWidget* ander : kinderen) {
            if (een->objectName() >= ander->objectName()) continue;
            if (!een->geometry().intersects(ander->geometry())) continue;
            paren.insert(een->objectName().toStdString() + "/" + ander->objectName().toStdString());
        }
    }
    return paren;
}

TEST_F(Leesbaar, OnlyTheStatedPlacesOverlap) {
    using Paren = std::set<std::string>;
    EXPECT_EQ(Overlappingen(*proef.venster), (Paren{"P20/lblResultKop"}));
    EXPECT_EQ(Overlappingen(proef.vind<QWidget>("Frame1")),
              (Paren{"Label1/P10", "Label1/VScroll10"}));
    EXPECT_EQ(Overlappingen(proef.vind<QWidget>("Frame2")),
              (Paren{"chkBuiMed/chkGemAlleLijnen", "chkBuiMed/chkGewogen",
                     "chkGemAlleLijnen/chkGewogen", "chkGewogen/chkZitDetails"}));
    EXPECT_EQ(Overlappingen(proef.vind<QWidget>("Frame3")),
              (Paren{"Label3/Label7", "Label3/Label8", "Label3/P0", "Label7/P0", "Label8/P0",
                     "Label9/P0", "P0/VScroll1"}));
    EXPECT_EQ(Overlappingen(proef.vind<QWidget>("Frame4")), (Paren{"Label10/txtKop1"}));
    EXPECT_EQ(Overlappingen(proef.vind<QWidget>("Frame5")), (Paren{"Label4/txtPersoon"}));
    EXPECT_EQ(Overlappingen(proef.vind<QWidget>("P1")), Paren{});
    EXPECT_EQ(Overlappingen(proef.vind<QWidget>("P12")), Paren{});
    EXPECT_EQ(Overlappingen(proef.vind<QWidget>("P22")), Paren{});
}

TEST_F(Leesbaar, TheOnesThatOverlapStillOverlapNoText) {
    for (const QLabel* label : alle<QLabel>()) {
        const QRect tekst = TekstVlak(*label).translated(label->pos());
        for (const QWidget* buur : Kinderen(*label->parentWidget())) {
            if (buur == label) continue;
            const auto* ander = qobject_cast<const QLabel*>(buur);
            const QRect vlak =
                ander == nullptr ? buur->geometry() : TekstVlak(*ander).translated(ander->pos());
            const QRect samen = tekst.intersected(vlak);
            EXPECT_TRUE(samen.isEmpty()) << Wie(*label) << " and " << Wie(*buur) << " share "
                                         << samen.width() << "x" << samen.height();
        }
    }
}

TEST_F(Leesbaar, NoControlSticksOutOfItsFrame) {
    for (const QGroupBox* kader : alle<QGroupBox>()) {
        for (const QWidget* kind : Kinderen(*kader)) {
            if (kind->objectName() == QStringLiteral("HScroll1")) continue;
            EXPECT_TRUE(kader->rect().contains(kind->geometry())) << Wie(*kind);
        }
    }
}

} // namespace
} // namespace lauwerkrans::proef
