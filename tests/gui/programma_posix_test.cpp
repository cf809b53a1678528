// The program itself, as a process of its own: one running copy, the exit status, and where its
// window opens. What it shows is told by an eyewitness in it (tests/programma/getuige.cpp).
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QMessageBox>
#include <QProcess>
#include <QThread>

#include <memory>
#include <optional>

#include "data/systeem.h"
#include "kern/proef.h"

namespace lauwerkrans::proef {
namespace {

constexpr int geduld = 120'000; // milliseconds; many start side by side on a busy machine

/// One running copy and what it showed.
class Kopie {
public:
    explicit Kopie(const std::string& programma, const std::string& platform = "offscreen") {
        proces_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        auto omgeving = QProcessEnvironment::systemEnvironment();
        omgeving.insert(QStringLiteral("QT_QPA_PLATFORM"), QString::fromStdString(platform));
        omgeving.insert(QStringLiteral("QT_LOAD_TESTABILITY"), QStringLiteral("1"));
        omgeving.insert(QStringLiteral("LD_LIBRARY_PATH"), QStringLiteral(LAUWERKRANS_GETUIGE_MAP));
        omgeving.insert(QStringLiteral("QT_LOGGING_RULES"),
                        QStringLiteral("default.warning=false")); // the platform's small talk
        proces_.setProcessEnvironment(omgeving);
        proces_.start(QString::fromStdString(programma), {});
    }
    Kopie(const Kopie&) = delete;
    Kopie(Kopie&&) = delete;
    Kopie& operator=(const Kopie&) = delete;
    Kopie& operator=(Kopie&&) = delete;
    ~Kopie() { schietAf(); }

    /// The next window or box that it shows; empty when it ends without one.
    [[nodiscard]] std::string ziet() {
        while (!proces_.canReadLine() && proces_.waitForReadyRead(geduld)) {
        }
        return proces_.readLine().trimmed().toStdString();
    }

    /// Does what the user would do: "o" answers the box, "e" presses "Einde", "t" "Toelichting";
    /// more in tests/programma/getuige.cpp.
    void doe(const char* wat) {
        proces_.write(wat);
        proces_.waitForBytesWritten(geduld);
    }

    /// Whether it goes on by itself for a while.
    [[nodiscard]] bool blijft() { return !proces_.waitForFinished(500); }

    /// Its exit status, when it ended by itself.
    [[nodiscard]] std::optional<int> status() {
        const bool klaar =
            proces_.state() == QProcess::NotRunning || proces_.waitForFinished(geduld);
        if (!klaar || proces_.exitStatus() != QProcess::NormalExit) return std::nullopt;
        return proces_.exitCode();
    }

    /// Ends it as a crash would.
    void schietAf() {
        proces_.kill();
        proces_.waitForFinished(geduld);
    }

private:
    QProcess proces_;
};

/// Waits so long (milliseconds) until no other copy of that name runs, and is the one copy from
/// then on.
std::unique_ptr<systeem::EnigeKopie> WachtOp(const std::string& naam, int duur) {
    QElapsedTimer klok;
    klok.start();
    for (;;) {
        auto kopie = std::make_unique<systeem::EnigeKopie>(naam);
        if (kopie->gelukt() || klok.elapsed() > duur) return kopie;
        QThread::msleep(50);
    }
}

class Programma : public ::testing::Test {
protected:
    /// The tests of this user take turns, and nobody's own copy may run.
    Programma() : beurt(WachtOp("lauwerkrans-programmaproef", geduld)), competitie(1, 1, 1) {
        competitie.schrijfLeden(9, {});
        const std::string map = competitie.map().pad();
        competitie.map().schrijf("Mappen.ini", "ORVMAP=" + map + "\r\nCOMMAP=" + map +
                                                   "\\Competities\r\nACTCOM=Proef\r\n");
        competitie.map().maakMap("Lauwerkrans");
        programma = map + "/Lauwerkrans/Lauwerkrans";
        std::filesystem::copy_file(LAUWERKRANS_PROGRAMMA, programma);
    }
    /// The platform with one screen of this size (pixels).
    [[nodiscard]] std::string scherm(int breedte, int hoogte) const {
        competitie.map().schrijf("schermen.json",
                                 R"({"screens": [{"name": "een", "x": 0, "y": 0, "logicalDpi": 96,)"
                                 R"( "logicalBaseDpi": 96, "dpr": 1, "width": )" +
                                     std::to_string(breedte) + R"(, "height": )" +
                                     std::to_string(hoogte) + "}]}");
        return "offscreen:configfile=" + competitie.map().pad() + "/schermen.json";
    }
    void SetUp() override {
        ASSERT_TRUE(beurt->gelukt());
        ASSERT_TRUE(WachtOp("lauwerkrans", 30'000)->gelukt()) << "a copy of the program is running";
    }

    [[nodiscard]] bool heeftIni() const {
        return std::filesystem::exists(competitie.map().map() / "Lauwerkrans/Lauwr.ini");
    }

    std::unique_ptr<systeem::EnigeKopie> beurt;
    ProefCompetitie competitie;
    std::string programma;
};

const std::string hoofdvenster =
    "venster Bereken de Club- cq Lijnkampioenen van een parencompetitie.|";

/// A message box as it is seen; "@" is the end of a line in its text.
std::string bericht(const std::string& tekst, QMessageBox::Icon icoon) {
    return "bericht Lauwerkrans|" + tekst + "|icoon " + std::to_string(icoon) + "|knoppen " +
           std::to_string(QMessageBox::Ok);
}
const std::string alGestart = bericht("Het programma is al gestart!...", QMessageBox::NoIcon);

TEST_F(Programma, ASecondCopySaysSoAndEndsWhileTheFirstGoesOn) {
    Kopie eerste(programma);
    ASSERT_TRUE(eerste.ziet().starts_with(hoofdvenster));
    Kopie tweede(programma);
    EXPECT_EQ(tweede.ziet(), alGestart);
    EXPECT_TRUE(tweede.blijft()) << "until its box is answered";
    tweede.doe("o");
    EXPECT_EQ(tweede.status(), 0);
    EXPECT_EQ(tweede.ziet(), "") << "no window after the box";
    EXPECT_TRUE(eerste.blijft());
    EXPECT_FALSE(heeftIni());
    eerste.doe("e");
    EXPECT_EQ(eerste.status(), 0);
    EXPECT_EQ(eerste.ziet(), "");
    EXPECT_TRUE(heeftIni());
}

TEST_F(Programma, OfTwentyStartedAtOnceOneShowsItsWindow) {
    constexpr int aantal = 20;
    std::vector<std::unique_ptr<Kopie>> kopieen;
    kopieen.reserve(aantal);
    for (int i = 0; i < aantal; ++i)
        kopieen.push_back(std::make_unique<Kopie>(programma));
    int vensters = 0;
    int berichten = 0;
    for (const auto& kopie : kopieen) {
        const std::string gezien = kopie->ziet();
        if (gezien.starts_with(hoofdvenster)) ++vensters;
        if (gezien == alGestart) ++berichten;
    }
    EXPECT_EQ(vensters, 1);
    EXPECT_EQ(berichten, aantal - 1);
}

TEST_F(Programma, AfterAKillTheNextStartIsNotRefused) {
    for (int keer = 0; keer < 3; ++keer) {
        Kopie kopie(programma);
        EXPECT_TRUE(kopie.ziet().starts_with(hoofdvenster));
        kopie.schietAf();
    }
}

TEST_F(Programma, GoesOnAfterWhateverIsThrownOutOfAHandlerOfAnEvent) {
    const std::vector<std::pair<const char*, std::string>> gevallen = {
        {"ggeheugen\n", "Er is niet genoeg geheugen vrij om dit te doen."},
        {"gprogramma\n", "Dit is niet gelukt door een fout in het programma:@@proef"},
        {"gfout\n", "Fout in het bestand 'kort.txt':@@het bestand is niet compleet."},
        {"g42\n", "Dit is niet gelukt door een onbekende fout in het programma."}};
    Kopie kopie(programma);
    ASSERT_TRUE(kopie.ziet().starts_with(hoofdvenster));
    for (const auto& [wat, tekst] : gevallen) {
        kopie.doe(wat);
        EXPECT_EQ(kopie.ziet(), bericht(tekst, QMessageBox::Warning)) << wat;
        kopie.doe("o");
    }
    kopie.doe("t");
    EXPECT_TRUE(kopie.ziet().starts_with("venster Toelichting|"));
    EXPECT_FALSE(heeftIni());
    kopie.doe("e");
    EXPECT_EQ(kopie.status(), 0);
    EXPECT_TRUE(heeftIni());
}

TEST_F(Programma, WhoseSettingsCannotBeWrittenSaysSoAndEnds) {
    competitie.map().maakMap("Lauwerkrans/Lauwr.ini");
    Kopie kopie(programma);
    ASSERT_TRUE(kopie.ziet().starts_with(hoofdvenster));
    kopie.doe("e");
    EXPECT_EQ(kopie.ziet(), bericht("Het bestand '" + competitie.map().pad() +
                                        "/Lauwerkrans/Lauwr.ini' kan niet worden geschreven: er "
                                        "staat een map met die naam.",
                                    QMessageBox::Warning));
    kopie.doe("o");
    EXPECT_EQ(kopie.status(), 0);
    EXPECT_EQ(kopie.ziet(), "");
}

TEST_F(Programma, OpensInTheMiddleOfTheScreen) {
    Kopie kopie(programma, scherm(1600, 1200));
    // Its frame and title bar count: 13000 x 7640 twips in the middle.
    EXPECT_EQ(kopie.ziet(), hoofdvenster + " 366 345 861 480| 0 0 1600 1200");
    kopie.doe("t");
    EXPECT_EQ(kopie.ziet(), "venster Toelichting| 479 332 634 480| 0 0 1600 1200");
}

TEST_F(Programma, FitsOnASmallScreenWithItsExplanation) {
    Kopie kopie(programma, scherm(634, 480)); // less the frame: 6 x 29 pixels
    EXPECT_EQ(kopie.ziet(), hoofdvenster + " 0 0 628 451| 0 0 634 480");
    kopie.doe("t");
    EXPECT_EQ(kopie.ziet(), "venster Toelichting| 0 0 628 451| 0 0 634 480");
}

TEST_F(Programma, WithoutFolderConfigurationEndsWithStatusOne) {
    competitie.map().verwijder("Mappen.ini");
    Kopie kopie(programma);
    const std::string gezien = kopie.ziet();
    EXPECT_TRUE(gezien.starts_with("bericht Lauwerkrans|Het bestand '" + competitie.map().pad() +
                                   "/Mappen.ini' kan niet worden gelezen: "))
        << gezien;
    kopie.doe("o");
    EXPECT_EQ(kopie.status(), 1);
    EXPECT_EQ(kopie.ziet(), "");
}

} // namespace
} // namespace lauwerkrans::proef
