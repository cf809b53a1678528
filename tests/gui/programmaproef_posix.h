// The program itself as a process of its own, laid out in a suite's folder. What it shows is told
// by an eyewitness in it (tests/programma/getuige.cpp).
#pragma once

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

constexpr int geduld = 120'000; // milliseconds; many start side by side on a busy machine

/// One running copy and what it showed.
class Kopie {
public:
    /// `langs` is a program, with its arguments, that starts this one.
    explicit Kopie(const std::string& programma, const std::string& platform = "offscreen",
                   QStringList langs = {}, const QMap<QString, QString>& meer = {}) {
        proces_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        auto omgeving = QProcessEnvironment::systemEnvironment();
        omgeving.insert(QStringLiteral("QT_QPA_PLATFORM"), QString::fromStdString(platform));
        omgeving.insert(QStringLiteral("QT_LOAD_TESTABILITY"), QStringLiteral("1"));
        omgeving.insert(QStringLiteral("LD_LIBRARY_PATH"), QStringLiteral(LAUWERKRANS_GETUIGE_MAP));
        omgeving.insert(QStringLiteral("QT_LOGGING_RULES"),
                        QStringLiteral("default.warning=false")); // the platform's small talk
        for (auto deel = meer.begin(); deel != meer.end(); ++deel)
            omgeving.insert(deel.key(), deel.value());
        proces_.setProcessEnvironment(omgeving);
        langs += QString::fromStdString(programma);
        const QString eerste = langs.takeFirst();
        proces_.start(eerste, langs);
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
inline std::unique_ptr<systeem::EnigeKopie> WachtOp(const std::string& naam, int duur) {
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
        programma = map + "/Lauwerkrans/Lauwerkrans.bin";
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

inline const std::string hoofdvenster =
    "venster Bereken de Club- cq Lijnkampioenen van een parencompetitie.|";

/// A message box as it is seen; "@" is the end of a line in its text.
inline std::string bericht(const std::string& tekst, QMessageBox::Icon icoon) {
    return "bericht Lauwerkrans|" + tekst + "|icoon " + std::to_string(icoon) + "|knoppen " +
           std::to_string(QMessageBox::Ok);
}

} // namespace lauwerkrans::proef
