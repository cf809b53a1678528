// A reading that takes long, on a clock of the test's own: the caption, the input and the close
// button meanwhile and afterwards.
#include "ui/leeswacht.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <QWindow>

#include "ui/berichten.h"
#include "vensterproef.h"

namespace lauwerkrans::proef {
namespace {

using namespace std::chrono_literals;
using P = ProefCompetitie;

const QString gewoonBijschrift =
    QStringLiteral("Bereken de Club- cq Lijnkampioenen van een parencompetitie.");

/// Three rounds of four sessions of one pair. Every look at the clock is `stap` later than the one
/// before it, and does what the test wants to happen at that moment.
class LangLezen : public ::testing::Test {
protected:
    LangLezen() : proef(3, 4, 1) {
        proef.competitie.schrijfLeden(9, {{1, "Jan", "", "Een"}, {2, "Piet", "", "Twee"}});
        for (int ronde = 1; ronde <= 3; ++ronde) {
            for (int zitting = 1; zitting <= 4; ++zitting)
                proef.competitie.schrijfZitting(ronde, zitting, {P::regel("A1", "1-2", "50,000")});
        }
        proef.start();
        proef.typ("txt1_1", "1");
        proef.klok = [this] {
            const QString bijschrift = proef.venster->windowTitle();
            if (bijschriften.empty() || bijschriften.back() != bijschrift) {
                bijschriften.push_back(bijschrift);
                if (bijschrift != gewoonBijschrift && bijNieuwBijschrift) bijNieuwBijschrift();
            }
            return nu += stap;
        };
    }

    /// The captions in the order in which they were seen, the one at the end included.
    [[nodiscard]] std::vector<QString> gezien() {
        static_cast<void>(proef.klok());
        return bijschriften;
    }
    [[nodiscard]] const std::vector<Melding>& meldingen() const {
        return proef.competitie.meldingen.getoond;
    }
    static QString gelezen(int aantal) {
        return QStringLiteral("Lauwerkrans - %1 van 12 zittingen gelezen").arg(aantal);
    }
    void breek(int ronde, int zitting) const {
        proef.competitie.schrijfZitting(ronde, zitting, {"dit is geen scoreregel"});
    }

    Vensterproef proef;
    std::chrono::steady_clock::time_point nu;
    std::chrono::milliseconds stap = 400ms;
    std::vector<QString> bijschriften;
    std::function<void()> bijNieuwBijschrift;
};

TEST_F(LangLezen, AReadingWithinASecondShowsNothing) {
    stap = 70ms; // 12 files and the start: 910 ms
    proef.klik("cmd1_1");
    EXPECT_EQ(proef.rijen(), 1U);
    EXPECT_EQ(gezien(), std::vector<QString>{gewoonBijschrift});
}

TEST_F(LangLezen, TheCaptionTellsHowFarItIsAndGoesBack) {
    proef.klik("cmd1_1");
    const std::vector<QString> alle = gezien();
    ASSERT_GE(alle.size(), 4U);
    EXPECT_EQ(alle.front(), gewoonBijschrift);
    EXPECT_EQ(alle[1], gelezen(3)) << "a second after the start";
    EXPECT_EQ(alle[alle.size() - 2], gelezen(12)) << "the last one is that of the whole";
    EXPECT_EQ(alle.back(), gewoonBijschrift);
    EXPECT_EQ(proef.rijen(), 1U);
}

TEST_F(LangLezen, SoDoTheControlListAndTheMembersList) {
    proef.klik("cmd2_0");
    EXPECT_GE(gezien().size(), 4U);
    bijschriften.clear();
    proef.typ("txtPersoon", "een");
    proef.klik("cmdControleLijstLid");
    EXPECT_GE(gezien().size(), 4U);
    EXPECT_EQ(proef.rijen(), 12U);
    EXPECT_EQ(proef.venster->windowTitle(), gewoonBijschrift);
}

TEST_F(LangLezen, OnlySessionsThatAreThereAreCounted) {
    std::filesystem::remove_all(proef.competitie.map().map() / "Competities/Proef/Ronde-3");
    proef.klik("cmd1_1");
    const std::vector<QString> alle = gezien();
    ASSERT_GE(alle.size(), 3U);
    EXPECT_EQ(alle[alle.size() - 2], QStringLiteral("Lauwerkrans - 8 van 8 zittingen gelezen"));
}

TEST_F(LangLezen, TheWindowIsRepaintedMeanwhile) {
    class Teller : public QObject {
    public:
        int getekend = 0;
        bool eventFilter(QObject* object, QEvent* gebeurtenis) override {
            if (gebeurtenis->type() == QEvent::Paint) ++getekend;
            return QObject::eventFilter(object, gebeurtenis);
        }
    } teller;
    auto& knop = proef.vind<QWidget>("cmdEinde");
    QCoreApplication::processEvents();
    knop.installEventFilter(&teller);
    std::vector<int> standen;
    bijNieuwBijschrift = [&] {
        standen.push_back(teller.getekend);
        knop.update(); // as when a window that lay over it is taken away
    };
    proef.klik("cmd1_1");
    ASSERT_GE(standen.size(), 2U);
    EXPECT_EQ(standen[0], 0);
    EXPECT_EQ(standen[1], 1);
}

TEST_F(LangLezen, MouseAndKeyboardDoNothingMeanwhile) {
    auto& vinkje = proef.vind<QCheckBox>("chkGewogen");
    auto& vak = proef.vind<QLineEdit>("txtKop1");
    int keren = 0;
    bijNieuwBijschrift = [&] {
        ++keren;
        QTest::mouseClick(&vinkje, Qt::LeftButton, {}, QPoint(6, vinkje.height() / 2));
        QTest::keyClicks(&vak, QStringLiteral("x"));
        proef.klik("cmd2_1");
    };
    proef.klik("cmd1_1");
    QCoreApplication::processEvents();
    EXPECT_GE(keren, 2);
    EXPECT_FALSE(vinkje.isChecked());
    EXPECT_EQ(vak.text(), QString());
    EXPECT_EQ(proef.kop(), "Berekening voor lijn A");
    EXPECT_EQ(proef.koppen(), "Nr|Lijn|Rang|Paar|AantZit|Gemid %|");
    QTest::mouseClick(&vinkje, Qt::LeftButton, {}, QPoint(6, vinkje.height() / 2));
    EXPECT_TRUE(vinkje.isChecked()) << "afterwards they do";
}

/// What the system hands over while no events are handled.
TEST_F(LangLezen, WhatWasClickedMeanwhileIsNotDoneAfterwards) {
    auto& vinkje = proef.vind<QCheckBox>("chkGewogen");
    const QPoint plaats = vinkje.mapTo(proef.venster.get(), QPoint(6, vinkje.height() / 2));
    bijNieuwBijschrift = [&] {
        if (bijschriften.size() > 2) return;
        QTest::mouseClick(proef.venster->windowHandle(), Qt::LeftButton, {}, plaats);
        QTest::keyClick(proef.venster->windowHandle(), Qt::Key_5);
    };
    proef.klik("cmd1_1");
    QCoreApplication::processEvents();
    EXPECT_FALSE(vinkje.isChecked());
    EXPECT_EQ(proef.vind<QLineEdit>("txt1_1").text(), QStringLiteral("1"));
    QTest::mouseClick(proef.venster->windowHandle(), Qt::LeftButton, {}, plaats);
    QCoreApplication::processEvents();
    EXPECT_TRUE(vinkje.isChecked()) << "this place is the box";
}

TEST_F(LangLezen, AHandlerThatIsReachedMeanwhileDoesNothing) {
    bijNieuwBijschrift = [&] { proef.venster->cmd2_Click(0); }; // as a screen reader presses
    proef.klik("cmd1_1");
    EXPECT_EQ(proef.koppen(), "Nr|Lijn|Rang|Paar|AantZit|Gemid %|");
}

TEST_F(LangLezen, ACloseWaitsUntilTheListIsThere) {
    std::string kopBijEinde;
    bijNieuwBijschrift = [&] {
        if (bijschriften.size() > 3) return;
        EXPECT_FALSE(proef.venster->close());
        EXPECT_TRUE(proef.venster->isVisible());
        EXPECT_EQ(proef.einde, 0);
    };
    proef.klik("cmd1_1"); // and its events
    QCoreApplication::processEvents();
    EXPECT_EQ(proef.rijen(), 1U) << "the reading was finished";
    EXPECT_FALSE(proef.venster->isVisible());
    EXPECT_EQ(proef.einde, 1) << "the settings are saved once";
}

TEST_F(LangLezen, ACloseFromTheTitleBarWaitsToo) {
    bijNieuwBijschrift = [&] { proef.venster->windowHandle()->close(); };
    proef.klik("cmd1_1");
    QCoreApplication::processEvents();
    EXPECT_EQ(proef.rijen(), 1U);
    EXPECT_FALSE(proef.venster->isVisible());
    EXPECT_EQ(proef.einde, 1);
}

TEST_F(LangLezen, AfterAFailureTheCaptionIsBackBeforeItsMessage) {
    breek(3, 4);
    QString bijMelding;
    proef.competitie.algemeen.meld = [&](const Melding&) {
        bijMelding = proef.venster->windowTitle();
    };
    proef.klik("cmd1_1");
    EXPECT_GE(gezien().size(), 3U) << "there was progress";
    EXPECT_EQ(bijMelding, gewoonBijschrift);
    EXPECT_EQ(proef.venster->windowTitle(), gewoonBijschrift);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    proef.klik("chkGewogen");
    EXPECT_TRUE(proef.vind<QCheckBox>("chkGewogen").isChecked()) << "it takes input";
}

TEST_F(LangLezen, ACloseAfterAFailureWaitsForTheAnswerToItsMessage) {
    breek(3, 4);
    bijNieuwBijschrift = [&] { proef.venster->close(); };
    bool zichtbaarBijMelding = false;
    proef.competitie.algemeen.meld = [&](const Melding& melding) {
        QTimer::singleShot(0, proef.venster.get(), [&] {
            QCoreApplication::processEvents();
            zichtbaarBijMelding = proef.venster->isVisible();
            static_cast<QDialog*>(QApplication::activeModalWidget())->accept();
        });
        ToonMelding(proef.venster.get(), melding);
    };
    proef.klik("cmd1_1");
    QCoreApplication::processEvents();
    EXPECT_TRUE(zichtbaarBijMelding);
    EXPECT_FALSE(proef.venster->isVisible());
    EXPECT_EQ(proef.einde, 1);
}

TEST_F(LangLezen, AMessageOfTheReadingItselfCanBeAnswered) {
    proef.competitie.schrijfZitting(3, 3, {P::regel("A1", "x-2", "50,000")});
    int beantwoord = 0;
    proef.competitie.algemeen.meld = [&](const Melding& melding) {
        QTimer::singleShot(0, proef.venster.get(), [&] {
            QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
            ++beantwoord;
        });
        ToonMelding(proef.venster.get(), melding);
    };
    proef.klik("cmd1_1");
    EXPECT_EQ(beantwoord, 1);
    EXPECT_EQ(proef.rijen(), 1U);
    EXPECT_EQ(proef.venster->windowTitle(), gewoonBijschrift);
}

/// The box with a number that is too high is left by the click that starts the reading.
TEST_F(LangLezen, AMessageAboutABoxWaitsUntilTheListIsThere) {
    proef.typ("txt1_1", "25");
    std::vector<std::size_t> rijenBijMelding;
    proef.competitie.algemeen.meld = [&](const Melding&) {
        rijenBijMelding.push_back(bijschriften.size());
        EXPECT_EQ(proef.venster->windowTitle(), gewoonBijschrift);
    };
    proef.klik("cmd2_0");
    QCoreApplication::processEvents();
    EXPECT_EQ(rijenBijMelding.size(), 1U);
    EXPECT_EQ(proef.rijen(), 12U);
}

/// A reading without files, on a clock that stands still until it is put forward.
class Wacht : public LangLezen {
protected:
    Voortgang voortgang;
    Leeswacht wacht{*proef.venster, voortgang, [this] { return nu; }};
};

TEST_F(Wacht, TheFirstProgressComesAfterASecondAndTheNextAfterATenthMore) {
    wacht.bewaak([this] {
        EXPECT_TRUE(wacht.bezig());
        nu += 999ms;
        EXPECT_FALSE(voortgang.isTijd());
        nu += 1ms;
        EXPECT_TRUE(voortgang.isTijd());
        voortgang.toon(3, 9);
        EXPECT_FALSE(voortgang.isTijd());
        nu += 99ms;
        EXPECT_FALSE(voortgang.isTijd());
        nu += 1ms;
        EXPECT_TRUE(voortgang.isTijd());
    });
    EXPECT_FALSE(wacht.bezig());
    EXPECT_FALSE(voortgang.isTijd) << "nobody is told anything any more";
}

TEST_F(Wacht, WhatIsThrownGoesOnWithTheCaptionBack) {
    EXPECT_THROW(wacht.bewaak([this] {
        voortgang.toon(3, 9);
        EXPECT_EQ(proef.venster->windowTitle(),
                  QStringLiteral("Lauwerkrans - 3 van 9 zittingen gelezen"));
        throw std::bad_alloc();
    }),
                 std::bad_alloc);
    EXPECT_EQ(proef.venster->windowTitle(), gewoonBijschrift);
    EXPECT_FALSE(wacht.bezig());
    EXPECT_FALSE(voortgang.isTijd);
    proef.klik("chkGewogen");
    EXPECT_TRUE(proef.vind<QCheckBox>("chkGewogen").isChecked()) << "it takes input";
}

} // namespace
} // namespace lauwerkrans::proef
