// Real message boxes over a window, the guard around event handlers and the mouse pointer.
#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include <new>
#include <optional>
#include <stdexcept>

#include "ui/berichten.h"
#include "vensterproef.h"

namespace lauwerkrans::proef {
namespace {

/// What a message box looked like while it was up.
struct Gezien {
    QString titel;
    QString tekst;
    QMessageBox::Icon icoon = QMessageBox::Critical;
    QMessageBox::StandardButtons knoppen;
    Qt::TextFormat vorm = Qt::AutoText;
    QWidget* houder = nullptr;
    Qt::CursorShape muis = Qt::BlankCursor;
};

std::optional<Qt::CursorShape> Muis() {
    const QCursor* muis = QGuiApplication::overrideCursor();
    return muis == nullptr ? std::nullopt : std::optional(muis->shape());
}

/// Shows a message; a queued call looks at the box and presses its button.
std::optional<Gezien> Toon(QWidget* venster, const Melding& melding) {
    std::optional<Gezien> gezien;
    const auto antwoord = [&gezien] {
        auto* vak = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (vak == nullptr) return;
        gezien = Gezien{vak->windowTitle(),
                        vak->text(),
                        vak->icon(),
                        vak->standardButtons(),
                        vak->textFormat(),
                        vak->parentWidget(),
                        Muis().value_or(Qt::BlankCursor)};
        QTest::mouseClick(vak->button(QMessageBox::Ok), Qt::LeftButton);
    };
    QMetaObject::invokeMethod(qApp, antwoord, Qt::QueuedConnection);
    ToonMelding(venster, melding);
    return gezien;
}

TEST(Berichten, HaveTheNameOfTheProgramTheirTextAndOneButton) {
    QWidget venster;
    const auto gezien =
        Toon(&venster, {"21 aantal zittingen bij lijn B niet goed! Maximaal 20", Icoon::Geen});
    ASSERT_TRUE(gezien.has_value());
    EXPECT_EQ(gezien->titel, QStringLiteral("Lauwerkrans"));
    EXPECT_EQ(gezien->tekst,
              QStringLiteral("21 aantal zittingen bij lijn B niet goed! Maximaal 20"));
    EXPECT_EQ(gezien->knoppen, QMessageBox::Ok);
    EXPECT_EQ(gezien->houder, &venster);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "answered and gone";
}

TEST(Berichten, HaveTheIconOfTheirKind) {
    EXPECT_EQ(Toon(nullptr, {"a", Icoon::Geen})->icoon, QMessageBox::NoIcon);
    EXPECT_EQ(Toon(nullptr, {"a", Icoon::Uitroep})->icoon, QMessageBox::Warning);
    EXPECT_EQ(Toon(nullptr, {"a", Icoon::Informatie})->icoon, QMessageBox::Information);
}

TEST(Berichten, ShowMarkupAndAmpersandsAsTheyAreTyped) {
    const auto gezien = Toon(nullptr, {"<b>vet</b> & <br>&amp;", Icoon::Uitroep});
    EXPECT_EQ(gezien->tekst, QStringLiteral("<b>vet</b> & <br>&amp;"));
    EXPECT_EQ(gezien->vorm, Qt::PlainText);
}

TEST(Berichten, KeepTheirEmptyLines) {
    EXPECT_EQ(Toon(nullptr, {"\r\nFout!\r\n", Icoon::Uitroep})->tekst, QStringLiteral("\nFout!\n"));
    EXPECT_EQ(Toon(nullptr, {"Zo\xC3\xAB", Icoon::Uitroep})->tekst, QStringLiteral("Zoë"));
}

TEST(Berichten, ShowTheDefaultPointerOverTheHourglass) {
    EXPECT_EQ(Muis(), std::nullopt);
    {
        const Zandloper zandloper;
        EXPECT_EQ(Muis(), Qt::WaitCursor);
        EXPECT_EQ(Toon(nullptr, {"a", Icoon::Geen})->muis, Qt::ArrowCursor);
        EXPECT_EQ(Muis(), Qt::WaitCursor);
    }
    EXPECT_EQ(Muis(), std::nullopt);
}

/// The messages of a guarded handler that throws.
template <class Handeling>
std::vector<Melding> Bewaakt(Handeling handeling) {
    Meldingen meldingen;
    Bewaak(meldingen.melder(), handeling);
    return meldingen.getoond;
}

TEST(Bewaken, OfAHandlerThatSucceedsShowsNothing) {
    bool gelopen = false;
    EXPECT_TRUE(Bewaakt([&gelopen] { gelopen = true; }).empty());
    EXPECT_TRUE(gelopen);
}

TEST(Bewaken, ShowsAnErrorOfTheDataWithItsTextOnce) {
    const auto meldingen = Bewaakt([] {
        Fout fout(FoutSoort::BestandEindigtTeVroeg);
        fout.bestand = "kort.txt";
        throw fout;
    });
    ASSERT_EQ(meldingen.size(), 1U);
    EXPECT_EQ(meldingen[0],
              (Melding{"Fout in het bestand 'kort.txt':\r\n\r\nhet bestand is niet compleet.",
                       Icoon::Uitroep}));
}

TEST(Bewaken, SaysInDutchThatTheMemoryIsFull) {
    const auto meldingen = Bewaakt([] { throw std::bad_alloc(); });
    ASSERT_EQ(meldingen.size(), 1U);
    EXPECT_EQ(meldingen[0].tekst, "Er is niet genoeg geheugen vrij om dit te doen.");
    EXPECT_EQ(meldingen[0].icoon, Icoon::Uitroep);
}

TEST(Bewaken, ShowsWhatAnyOtherErrorSays) {
    const auto meldingen = Bewaakt([] { throw std::out_of_range("Tabel"); });
    ASSERT_EQ(meldingen.size(), 1U);
    EXPECT_EQ(meldingen[0].tekst,
              "Dit is niet gelukt door een fout in het programma:\r\n\r\nTabel");
    EXPECT_EQ(meldingen[0].icoon, Icoon::Uitroep);
}

TEST(Bewaken, CatchesWhatIsNoErrorAtAll) {
    const auto meldingen = Bewaakt([] { throw 42; });
    ASSERT_EQ(meldingen.size(), 1U);
    EXPECT_EQ(meldingen[0].tekst, "Dit is niet gelukt door een onbekende fout in het programma.");
    EXPECT_EQ(meldingen[0].icoon, Icoon::Uitroep);
}

TEST(Bewaken, NamesTheLineOfACriterionAfterItsMessage) {
    std::string gang;
    const Melder meld = [&gang](const Melding&) { gang += "melding "; };
    const auto criterium = [] {
        Fout fout(FoutSoort::Criterium);
        fout.tekst = "C";
        throw fout;
    };
    Bewaak(meld, criterium, [&gang](char lijn) { gang += lijn; });
    EXPECT_EQ(gang, "melding C");
    gang.clear();
    Bewaak(
        meld, [] { throw Fout(FoutSoort::GeenSpellen); }, [&gang](char lijn) { gang += lijn; });
    EXPECT_EQ(gang, "melding ");
}

/// A window whose messages are real boxes. Each is answered from a queued call, which notes its
/// text and how many boxes were up.
class BerichtenVenster : public ::testing::Test {
protected:
    BerichtenVenster() : proef(1, 1, 2) {
        proef.competitie.schrijfLeden(99, {{3, "Jan", "", "Smit"}, {17, "Ria", "", "Quast"}});
        proef.competitie.schrijfZitting(1, 1,
                                        {ProefCompetitie::regel("A1", "3-17", "60,000"),
                                         ProefCompetitie::regel("B1", "3-17", "60,000")});
        proef.start();
        proef.competitie.algemeen.meld = [this](const Melding& melding) { meld(melding); };
    }

    void meld(const Melding& melding) {
        muis.push_back(Muis());
        ++open;
        meeste = std::max(meeste, open);
        const auto antwoord = [this] {
            // Whatever waits is handled before the user presses the button.
            QCoreApplication::processEvents();
            auto* vak = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(vak, nullptr);
            teksten.push_back(vak->text().toStdString());
            if (bijMelding) bijMelding();
            QTest::mouseClick(vak->button(QMessageBox::Ok), Qt::LeftButton);
        };
        QMetaObject::invokeMethod(qApp, antwoord, Qt::QueuedConnection);
        ToonMelding(proef.venster.get(), melding);
        --open;
    }
    /// Lets everything that waits happen, and the window be the active one again.
    void wacht() const {
        for (int i = 0; i < 4; ++i)
            QCoreApplication::processEvents();
        proef.venster->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(proef.venster.get()));
    }

    Vensterproef proef;
    std::vector<std::string> teksten;
    std::vector<std::optional<Qt::CursorShape>> muis; // before each message
    std::function<void()> bijMelding;
    int open = 0;
    int meeste = 0;
};

TEST_F(BerichtenVenster, AMessageOfACalculationComesUnderTheHourglass) {
    proef.klik("cmd1_1");
    ASSERT_EQ(teksten, (std::vector<std::string>{
                           "Geef bij lijn A een heel getal als minimum aantal zittingen."}));
    EXPECT_EQ(muis[0], Qt::WaitCursor);
    EXPECT_EQ(Muis(), std::nullopt);
    EXPECT_EQ(proef.venster->focusWidget(), &proef.vind<QWidget>("txt1_1"));
}

TEST_F(BerichtenVenster, NothingOfTheWindowCanBePressedWhileAMessageIsUp) {
    bijMelding = [this] {
        QTest::mouseClick(proef.venster->windowHandle(), Qt::LeftButton, {},
                          proef.vind<QWidget>("cmdEinde").mapTo(proef.venster.get(), QPoint(9, 9)));
    };
    proef.klik("cmd1_1");
    EXPECT_EQ(teksten.size(), 1U);
    EXPECT_EQ(proef.einde, 0);
    EXPECT_TRUE(proef.venster->isVisible());
}

TEST_F(BerichtenVenster, TheMessageOfABoxWaitsForThoseOfTheClickThatLeftIt) {
    proef.typ("txt1_1", "21");
    proef.klik("cmd1_0"); // line B has no criterion
    wacht();
    ASSERT_EQ(teksten, (std::vector<std::string>{
                           "Geef bij lijn B een heel getal als minimum aantal zittingen.",
                           "21 aantal zittingen bij lijn A niet goed! Maximaal 20"}));
    EXPECT_EQ(meeste, 1) << "one box at a time";
    EXPECT_EQ(muis[1], std::nullopt) << "no hourglass is left";
    EXPECT_EQ(proef.venster->focusWidget(), &proef.vind<QWidget>("txt1_1"));
}

TEST_F(BerichtenVenster, AMemberSearchThatFailsLeavesTheOutputButtonOfTheListOnShow) {
    const auto& knop = proef.vind<QPushButton>("cmdPrinten");
    proef.vind<QLineEdit>("txtPersoon").setText(QStringLiteral("smit"));
    proef.competitie.schrijfZitting(1, 1, {"geen regel"});
    proef.klik("cmdControleLijstLid");
    EXPECT_EQ(teksten.size(), 1U);
    EXPECT_EQ(knop.text(), QStringLiteral("Uitvoerlijsten ..."));
    EXPECT_FALSE(proef.venster->PersoonFilterAan());
    EXPECT_EQ(Muis(), std::nullopt);

    proef.competitie.schrijfZitting(1, 1, {ProefCompetitie::regel("A1", "3-17", "60,000")});
    proef.klik("cmdControleLijstLid");
    ASSERT_TRUE(proef.venster->PersoonFilterAan());
    proef.competitie.schrijfZitting(1, 1, {"geen regel"});
    proef.klik("cmdControleLijstLid");
    EXPECT_EQ(teksten.size(), 2U);
    EXPECT_EQ(knop.text(), QStringLiteral("Print deze controlelijst"));
    EXPECT_TRUE(proef.venster->PersoonFilterAan()) << "the member's list is still on show";
    EXPECT_EQ(proef.kop(), "Controlelijst voor SMIT");
}

TEST_F(BerichtenVenster, AControlThatFailsLeavesTheRankingOnShowPrintable) {
    proef.typ("txt1_1", "1");
    proef.klik("cmd1_1");
    ASSERT_TRUE(proef.venster->printbaar());
    proef.competitie.schrijfZitting(1, 1, {"geen regel"});
    bijMelding = [this] { EXPECT_TRUE(proef.venster->printbaar()) << "under the message too"; };
    proef.klik("cmd2_1");
    EXPECT_EQ(teksten.size(), 1U);
    EXPECT_EQ(proef.kop(), "Berekening voor lijn A");
    EXPECT_TRUE(proef.venster->printbaar());
}

TEST_F(BerichtenVenster, ACalculationOrControlThatFailsLeavesTheOutputButtonOfTheMemberList) {
    const auto& knop = proef.vind<QPushButton>("cmdPrinten");
    proef.vind<QLineEdit>("txtPersoon").setText(QStringLiteral("smit"));
    proef.klik("cmdControleLijstLid");
    proef.competitie.schrijfZitting(1, 1, {"geen regel"});
    for (const char* naam : {"cmd1_1", "cmd2_1"}) {
        proef.klik(naam);
        EXPECT_EQ(knop.text(), QStringLiteral("Print deze controlelijst")) << naam;
        EXPECT_TRUE(proef.venster->PersoonFilterAan()) << naam;
        EXPECT_TRUE(proef.venster->printbaar()) << naam;
    }
    EXPECT_EQ(teksten.size(), 2U);
    EXPECT_EQ(proef.kop(), "Controlelijst voor SMIT");
}

TEST_F(BerichtenVenster, TheMessageOfABoxLeavesNoneBehind) {
    proef.typ("txt1_1", "21");
    proef.klik("cmd1_1");
    wacht();
    EXPECT_EQ(teksten.size(), 1U);
    EXPECT_EQ(Muis(), std::nullopt);
    proef.klik("cmd2_1"); // leaves the box again
    wacht();
    EXPECT_EQ(teksten.size(), 2U);
    EXPECT_EQ(meeste, 1);
}

} // namespace
} // namespace lauwerkrans::proef
