// Every text stands out from what it is drawn on, measured on pictures of four times the size, in
// which the strokes of the letters are wide enough to have their own colour.
#include <gtest/gtest.h>

#include <QGroupBox>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QToolTip>

#include <map>
#include <optional>
#include <stdexcept>

#include "beeldproef.h"
#include "tools/zwart_bureaublad.h"
#include "ui/berichten.h"
#include "ui/hoog_contrast.h"
#include "ui/stijl.h"
#include "ui/tabellijf.h"
#include "vensterproef.h"

namespace lauwerkrans::proef {
namespace {

constexpr int schaal = 4;
constexpr double genoeg = 4.5;

QImage Vergroot(QWidget& element) {
    QImage beeld(element.size() * schaal, QImage::Format_RGB32);
    beeld.setDevicePixelRatio(schaal);
    element.render(&beeld);
    return beeld;
}

/// What a text stands on, and its letters.
struct Kleuren {
    QColor grond, inkt;
};

/// The colour of which a part of a picture has most, and the one of more than a few pixels that
/// stands out most from it. No value when the part has one colour.
std::optional<Kleuren> TweeKleuren(const QImage& beeld, const QRect& vlak) {
    constexpr int enkele = 10; // of the 16 that one pixel becomes
    std::map<QRgb, int> aantallen;
    const QRect deel = QRect(vlak.topLeft() * schaal, vlak.size() * schaal) & beeld.rect();
    for (int y = deel.top(); y <= deel.bottom(); ++y) {
        for (int x = deel.left(); x <= deel.right(); ++x)
            ++aantallen[beeld.pixel(x, y)];
    }
    const auto meeste = std::max_element(
        aantallen.begin(), aantallen.end(),
        [](const auto& een, const auto& ander) { return een.second < ander.second; });
    if (meeste == aantallen.end()) return std::nullopt;
    Kleuren gevonden{QColor(meeste->first), QColor(meeste->first)};
    for (const auto& [kleur, aantal] : aantallen) {
        if (aantal <= enkele) continue;
        if (Contrast(gevonden.grond, QColor(kleur)) > Contrast(gevonden.grond, gevonden.inkt))
            gevonden.inkt = QColor(kleur);
    }
    if (gevonden.inkt == gevonden.grond) return std::nullopt;
    return gevonden;
}

/// Where a control has letters and nothing else.
QRect Tekstvlak(const QWidget& element) {
    constexpr int rand = 3;
    if (qobject_cast<const QCheckBox*>(&element) != nullptr) {
        QStyleOptionButton optie;
        optie.initFrom(&element);
        return element.style()->subElementRect(QStyle::SE_CheckBoxContents, &optie, &element);
    }
    if (const auto* blad = qobject_cast<const QPlainTextEdit*>(&element))
        return blad->viewport()->geometry();
    if (const auto* kader = qobject_cast<const QGroupBox*>(&element)) {
        return {8, 0, kader->fontMetrics().horizontalAdvance(kader->title()),
                kader->fontMetrics().height()};
    }
    return element.rect().adjusted(rand, rand, -rand, -rand);
}

QString Tekst(const QWidget& element) {
    for (const char* naam : {"text", "title", "plainText"}) {
        const QVariant waarde = element.property(naam);
        if (waarde.isValid()) return waarde.toString();
    }
    return {};
}

QWidget* Venster(const char* naam) {
    for (QWidget* venster : QApplication::topLevelWidgets()) {
        if (venster->objectName() == QLatin1String(naam)) return venster;
    }
    throw std::runtime_error(std::string("no window ") + naam);
}

/// The window with lines of every colour and a list of them.
class Contrastproef : public ::testing::Test {
protected:
    void TearDown() override {
        proef_.reset();
        ZetStijl(*qApp);
    }

    void maakVenster() {
        using P = ProefCompetitie;
        proef_ = std::make_unique<Vensterproef>(1, 1, 8);
        Vensterproef& proef = *proef_;
        proef.competitie.schrijfLeden(99, {{3, "Jan", "", "Smit"}, {17, "Piet", "van", "Berk"}});
        std::vector<std::string> regels;
        for (char lijn = 'A'; lijn <= 'H'; ++lijn)
            regels.push_back(P::regel(std::string(1, lijn) + "1", "3-17", "60,000"));
        proef.competitie.schrijfZitting(1, 1, regels);
        proef.start();
        for (std::size_t rij = 1; rij <= 8; ++rij)
            proef.venster->rijen().zetCriterium(rij, "1");
        proef.klik("cmd1_0");
    }

    /// Looks at every control with a text; gives how many.
    static int kijk(QWidget& venster, bool eigenKleurenAlleen) {
        int gezien = 0;
        for (auto* element : venster.findChildren<QWidget*>()) {
            if (!element->isVisibleTo(&venster) || Tekst(*element).trimmed().isEmpty()) continue;
            if (element->visibleRegion().boundingRect() != element->rect() &&
                qobject_cast<const QPlainTextEdit*>(element) == nullptr)
                continue;
            const bool voorgeschreven =
                element->palette().color(QPalette::WindowText) == kleuren::rood;
            if (eigenKleurenAlleen && voorgeschreven) continue;
            const auto twee = TweeKleuren(Vergroot(*element), Tekstvlak(*element));
            EXPECT_TRUE(twee.has_value()) << element->objectName().toStdString();
            if (!twee) continue;
            ++gezien;
            EXPECT_GE(Contrast(twee->grond, twee->inkt), genoeg)
                << element->objectName().toStdString() << ": " << twee->inkt.name().toStdString()
                << " on " << twee->grond.name().toStdString();
        }
        return gezien;
    }

    /// Looks at the other windows: both previews, the explanation, a message and a tool tip.
    void kijkNaarAndere() {
        proef_->klik("cmdToelichting");
        EXPECT_EQ(kijk(*Venster("frmToelichting"), false), 1);
        for (const char* naam : {"frmPrinten", "frmPrintenTI"}) {
            proef_->uitvoer.cmdPrinten_Click(*proef_->venster);
            EXPECT_GE(kijk(*Venster(naam), false), 6) << naam;
            proef_->vind<QCheckBox>("chkGemAlleLijnen").setChecked(true);
        }
        int gezien = 0;
        const auto antwoord = [&gezien] {
            auto* vak = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(vak, nullptr);
            gezien = kijk(*vak, false);
            vak->accept();
        };
        QMetaObject::invokeMethod(qApp, antwoord, Qt::QueuedConnection);
        ToonMelding(proef_->venster.get(), {"Een bericht", Icoon::Uitroep});
        EXPECT_EQ(gezien, 2); // its text and its button
        const QPalette tip = QToolTip::palette();
        EXPECT_GE(Contrast(tip.color(QPalette::ToolTipBase), tip.color(QPalette::ToolTipText)),
                  genoeg);
    }

    /// Looks at every cell of the ranking; gives the colours of the letters.
    [[nodiscard]] std::map<QRgb, int> kijkNaarCellen() const {
        constexpr std::size_t kolommen = 6;
        auto& lijf = proef_->vind<TabelLijf>("P21");
        const QImage beeld = Vergroot(lijf);
        std::map<QRgb, int> letters;
        for (std::size_t rij = 1; rij <= proef_->rijen(); ++rij) {
            for (std::size_t kolom = 1; kolom <= kolommen; ++kolom) {
                const QRect vak = lijf.celVak(rij, kolom).toAlignedRect().adjusted(2, 2, -2, -2);
                const auto twee = TweeKleuren(beeld, vak);
                EXPECT_TRUE(twee.has_value()) << rij << ", " << kolom;
                if (!twee) continue;
                EXPECT_GE(Contrast(twee->grond, twee->inkt), genoeg) << rij << ", " << kolom;
                ++letters[twee->inkt.rgb()];
            }
        }
        return letters;
    }

    std::unique_ptr<Vensterproef> proef_; // made in the style of the test
};

TEST_F(Contrastproef, EveryTextOfTheWindowStandsOut) {
    maakVenster();
    EXPECT_GE(kijk(*proef_->venster, true), 40);
}

TEST_F(Contrastproef, SoDoesThatOfTheOtherWindows) {
    maakVenster();
    kijkNaarAndere();
}

TEST_F(Contrastproef, AlsoInHighContrast) {
    ZetStijl(*qApp, HoogContrastPalet(ZwartBureaublad()));
    maakVenster();
    kijkNaarAndere();
}

TEST_F(Contrastproef, TheCellsOfEveryLineDo) {
    maakVenster();
    EXPECT_EQ(proef_->rijen(), 8U);
    EXPECT_EQ(kijkNaarCellen().size(), 8U + 1); // the lines and black
}

TEST_F(Contrastproef, EveryTextStandsOutInHighContrast) {
    ZetStijl(*qApp, HoogContrastPalet(ZwartBureaublad()));
    maakVenster();
    EXPECT_GE(kijk(*proef_->venster, false), 40);
    EXPECT_EQ(kijkNaarCellen(), (std::map<QRgb, int>{{QColor(Qt::white).rgb(), 8 * 6}}));
}

TEST_F(Contrastproef, InHighContrastEveryFixedColourGivesWay) {
    ZetStijl(*qApp, HoogContrastPalet(ZwartBureaublad()));
    maakVenster();
    for (const auto* element : proef_->venster->findChildren<QWidget*>()) {
        for (const auto rol : {QPalette::Window, QPalette::Base, QPalette::Button})
            EXPECT_EQ(element->palette().color(rol), QColor(Qt::black))
                << element->objectName().toStdString();
    }
}

TEST(HoogContrast, IsTheDesktopsWhenItIsWhollyBlackAndWhite) {
    const QPalette gewoon = QApplication::palette();
    EXPECT_FALSE(HoogContrast().has_value());
    QApplication::setPalette(ZwartBureaublad());
    QApplication::setStyle(QStringLiteral("Fusion")); // ours would put its own palette back
    QApplication::setPalette(ZwartBureaublad());
    const auto palet = HoogContrast();
    ZetStijl(*qApp);
    EXPECT_EQ(QApplication::palette(), gewoon);
    ASSERT_TRUE(palet.has_value());
    EXPECT_EQ(palet->color(QPalette::Window), QColor(Qt::black));
    EXPECT_EQ(palet->color(QPalette::Dark), QColor(Qt::white));
    EXPECT_EQ(palet->color(QPalette::Disabled, QPalette::Text), QColor(63, 242, 63));
}

} // namespace
} // namespace lauwerkrans::proef
