// What is thrown out of any handler of an event, by the application that the program itself runs.
#include <gtest/gtest.h>

#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <new>
#include <stdexcept>

#include "data/fout.h"
#include "ui/toepassing.h"
#include "vensterproef.h"

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

namespace lauwerkrans::proef {
namespace {

struct Worp {
    void (*gooi)();
    Melding melding;
};

[[noreturn]] void GooiFout() {
    Fout fout(FoutSoort::BestandEindigtTeVroeg);
    fout.bestand = "kort.txt";
    throw fout;
}

const std::vector<Worp> worpen = {
    {[] { throw std::bad_alloc(); },
     {"Er is niet genoeg geheugen vrij om dit te doen.", Icoon::Uitroep}},
    {[] { GooiFout(); },
     {"Fout in het bestand 'kort.txt':\r\n\r\nhet bestand is niet compleet.", Icoon::Uitroep}},
    {[] { throw std::runtime_error("proef"); },
     {"Dit is niet gelukt door een fout in het programma:\r\n\r\nproef", Icoon::Uitroep}},
    {[] { throw 42; },
     {"Dit is niet gelukt door een onbekende fout in het programma.", Icoon::Uitroep}}};

/// A window that throws whenever one of these events comes.
class Werper : public QWidget {
public:
    QEvent::Type bij = QEvent::None;
    void (*gooi)() = nullptr;
    int keren = 0;

protected:
    bool event(QEvent* gebeurtenis) override {
        if (gebeurtenis->type() != bij) return QWidget::event(gebeurtenis);
        ++keren;
        gooi();
        return true;
    }
};

class Vangnet : public ::testing::Test {
protected:
    Vangnet() {
        toepassing().zetMelder([this](const Melding& melding) {
            getoond.push_back(melding);
            if (bijMelding) bijMelding();
        });
        werper.show();
        static_cast<void>(QTest::qWaitForWindowExposed(&werper));
    }
    ~Vangnet() override {
        toepassing().zetMelder([](const Melding& melding) {
            ADD_FAILURE() << "thrown out of an event handler: " << melding.tekst;
        });
    }
    static Toepassing& toepassing() { return dynamic_cast<Toepassing&>(*qApp); }

    /// Lets a handler throw, and gives what is told.
    std::vector<Melding> bij(QEvent::Type soort, void (*gooi)(), const std::function<void()>& doe) {
        getoond.clear();
        werper.bij = soort;
        werper.gooi = gooi;
        doe();
        werper.bij = QEvent::None;
        for (int keer = 0; keer < 3; ++keer) // the event, if it waits, and its message
            QCoreApplication::processEvents();
        return getoond;
    }

    std::vector<Melding> getoond;
    std::function<void()> bijMelding;
    Werper werper;

private:
#ifdef __SANITIZE_ADDRESS__
    /// The toolkit is built without exceptions: what its own functions hold when one passes through
    /// them, some hundred bytes, is lost.
    __lsan::ScopedDisabler lek_;
#endif
};

TEST_F(Vangnet, TellsWhatIsThrownByAnyHandlerOnce) {
    for (const auto& [gooi, melding] : worpen) {
        const std::vector<Melding> verwacht = {melding};
        EXPECT_EQ(bij(QEvent::MouseButtonPress, gooi,
                      [this] { QTest::mouseClick(&werper, Qt::LeftButton); }),
                  verwacht);
        EXPECT_EQ(bij(QEvent::KeyPress, gooi, [this] { QTest::keyClick(&werper, Qt::Key_A); }),
                  verwacht);
        EXPECT_EQ(bij(QEvent::Resize, gooi, [this] { werper.resize(werper.width() + 1, 90); }),
                  verwacht);
        EXPECT_EQ(bij(QEvent::None, gooi, [gooi = gooi] { QTimer::singleShot(0, qApp, gooi); }),
                  verwacht);
    }
}

TEST_F(Vangnet, TellsIntoTheLeftEventNotInTheMiddleOfIt) {
    bool binnen = false;
    bijMelding = [&binnen] { EXPECT_FALSE(binnen); };
    bij(
        QEvent::KeyPress, [] { throw 42; },
        [&] {
            binnen = true;
            QTest::keyClick(&werper, Qt::Key_A);
            binnen = false;
        });
    EXPECT_EQ(getoond.size(), 1U);
}

TEST_F(Vangnet, TellsOneAtATime) {
    bijMelding = [this] {
        QTest::keyClick(&werper, Qt::Key_A);
        QTest::keyClick(&werper, Qt::Key_B);
        QCoreApplication::processEvents();
    };
    werper.gooi = [] { throw 42; };
    werper.bij = QEvent::KeyPress;
    QTest::keyClick(&werper, Qt::Key_A);
    QCoreApplication::processEvents();
    EXPECT_EQ(werper.keren, 3);
    EXPECT_EQ(getoond.size(), 1U);
    bijMelding = nullptr;
    QTest::keyClick(&werper, Qt::Key_A);
    QCoreApplication::processEvents();
    EXPECT_EQ(getoond.size(), 2U) << "the next one is told again";
}

TEST_F(Vangnet, AMessageThatCannotBeShownIsNoErrorOfItsOwn) {
    bijMelding = [] { throw std::bad_alloc(); };
    EXPECT_EQ(bij(QEvent::KeyPress, worpen[0].gooi, [this] { QTest::keyClick(&werper, Qt::Key_A); })
                  .size(),
              1U);
    bijMelding = nullptr;
    EXPECT_EQ(bij(QEvent::KeyPress, worpen[0].gooi, [this] { QTest::keyClick(&werper, Qt::Key_A); })
                  .size(),
              1U);
}

TEST_F(Vangnet, APictureThatCannotBeDrawnIsToldOnce) {
    werper.gooi = [] { throw std::runtime_error("tekenen"); };
    werper.bij = QEvent::Paint;
    for (int keer = 0; keer < 3; ++keer) {
        werper.repaint();
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(werper.keren, 3);
    ASSERT_EQ(getoond.size(), 1U);
    EXPECT_EQ(getoond[0].tekst,
              "Dit is niet gelukt door een fout in het programma:\r\n\r\ntekenen");
}

TEST_F(Vangnet, TheMainWindowWorksOn) {
    Vensterproef proef(1, 1, 1);
    proef.competitie.schrijfLeden(99, {{3, "Jan", "", "Smit"}, {17, "Ria", "", "Quast"}});
    proef.competitie.schrijfZitting(1, 1, {ProefCompetitie::regel("A1", "3-17", "60,000")});
    proef.start();
    proef.typ("txt1_1", "1");
    for (const auto& [gooi, melding] : worpen) {
        getoond.clear();
        const auto band =
            QObject::connect(&proef.vind<QPushButton>("cmd1_1"), &QPushButton::pressed, gooi);
        QTest::mousePress(&proef.vind<QPushButton>("cmd1_1"), Qt::LeftButton);
        QCoreApplication::processEvents();
        EXPECT_EQ(getoond, std::vector<Melding>{melding});
        QObject::disconnect(band);
        QTest::mouseRelease(&proef.vind<QPushButton>("cmd1_1"), Qt::LeftButton);
        proef.klik("cmd2_1");
        EXPECT_TRUE(proef.koppen().starts_with("Nr|Lijn|Paarcode|")) << proef.koppen();
        proef.klik("cmd1_1");
        EXPECT_EQ(proef.rij(1), "1|A|1|Jan Smit - Ria Quast|1|60,000");
    }
    EXPECT_TRUE(proef.competitie.meldingen.getoond.empty());
}

} // namespace
} // namespace lauwerkrans::proef
