// What the real program reads and writes and whom it talks to, in whole sessions under strace: that
// and nothing else stands in docs/veiligheid.md.
#include <set>

#include "programmaproef_posix.h"
#include "sporen_posix.h"

namespace lauwerkrans::proef {
namespace {

using P = ProefCompetitie;

class Sessie : public Programma {
protected:
    Sessie() : rechten(LeesRechten(LAUWERKRANS_BRON "/docs/veiligheid.md")) {
        competitie.schrijfLeden(99, {{3, "Jan", "", "Smit"}, {17, "Piet", "van", "Berkelo"}});
        competitie.schrijfBums(1, {{3, 18}});
        competitie.schrijfZitting(1, 1, {P::regel("A1", "3-17", "60,000")});
        const std::string proef = competitie.competitieMap();
        competitie.map().schrijf(proef + "CompData.txt", "a,b,c,d,e,f,g,0,1,2,0\r\n");
        competitie.map().maakMap(proef + "Ronde-1/Zitting-2"); // still to be played
        competitie.map().schrijf("Lauwerkrans/Lauwr.ini", "__TXT1=1\r\n");
        competitie.map().maakMap("huis");
        competitie.map().maakMap("sporen");
        mappen = {{"program", map() + "/Lauwerkrans"},
                  {"suite", map()},
                  {"competition", map() + "/Competities/Proef"},
                  {"home", map() + "/huis"}};
    }

    [[nodiscard]] std::string map() const { return competitie.map().pad(); }

    /// Whether this machine lets one program follow another.
    static bool magVolgen() {
        QProcess proef;
        proef.start(QStringLiteral("strace"),
                    {QStringLiteral("-o"), QStringLiteral("/dev/null"), QStringLiteral("true")});
        const bool gestart = proef.waitForStarted() && proef.waitForFinished(geduld);
        EXPECT_TRUE(gestart) << "strace is not installed";
        return gestart && proef.exitCode() == 0;
    }

    /// The program under strace, with a home of its own.
    [[nodiscard]] std::unique_ptr<Kopie> start() const {
        QStringList strace{QStringLiteral("strace")};
        for (const std::string& optie : straceOpties)
            strace += QString::fromStdString(optie);
        strace += {QStringLiteral("-o"), QString::fromStdString(map() + "/sporen/spoor")};
        const QString huis = QString::fromStdString(mappen.at("home"));
        const QString eigen = huis + QStringLiteral("/.config");
        return std::make_unique<Kopie>(
            programma, "offscreen", strace,
            QMap<QString, QString>{
                {QStringLiteral("HOME"), huis},
                {QStringLiteral("XDG_CONFIG_HOME"), eigen},
                {QStringLiteral("XDG_CACHE_HOME"), huis + QStringLiteral("/.cache")},
                {QStringLiteral("ASAN_OPTIONS"), // leaks are sought by ptrace too
                 QStringLiteral("detect_leaks=0")}});
    }

    /// Whether the next thing that it shows begins so.
    static testing::AssertionResult ziet(Kopie& kopie, const std::string& begin) {
        const std::string gezien = kopie.ziet();
        if (gezien.starts_with(begin)) return testing::AssertionSuccess();
        return testing::AssertionFailure() << gezien;
    }

    /// Looks for what is done and not allowed, and gives the rows that were needed.
    std::set<Spoor> vergelijk(bool metPrinten) const {
        std::set<Spoor> gebruikt;
        for (const Spoor& spoor : LeesSporen(map() + "/sporen/spoor")) {
            if (spoor.wat.starts_with(LAUWERKRANS_GETUIGE_MAP)) continue; // the eyewitness itself
            bool staatToe = false;
            for (const Recht& recht : rechten) {
                if (recht.bijPrinten && !metPrinten) continue;
                if (!StaatToe(recht, spoor, mappen)) continue;
                staatToe = true;
                gebruikt.insert(recht.patroon);
            }
            EXPECT_TRUE(staatToe) << "does " << static_cast<int>(spoor.daad) << ": " << spoor.wat;
        }
        return gebruikt;
    }

    std::vector<Recht> rechten;
    std::map<std::string, std::string> mappen;
};

constexpr const char* gemaaktCsv = "bericht Lauwerkrans|@Het CSV-bestand ";
constexpr const char* gemaaktHtml = "bericht Lauwerkrans|@Het HTMLbestand heet: ";

TEST_F(Sessie, TouchesWhatTheDocumentSaysAndNothingElse) {
    if (!magVolgen()) GTEST_SKIP() << "this machine does not let strace follow a program";
    const auto kopie = start();
    ASSERT_TRUE(ziet(*kopie, hoofdvenster));
    kopie->doe("kfrmMain.cmd1_0\nkfrmMain.cmdPrinten\n");
    ASSERT_TRUE(ziet(*kopie, "venster Zittinguitslag|"));
    kopie->doe("kfrmPrinten.cmdMaakCSV\n");
    ASSERT_TRUE(ziet(*kopie, gemaaktCsv));
    kopie->doe("okfrmPrinten.cmdMaakHtml\n");
    ASSERT_TRUE(ziet(*kopie, gemaaktHtml));
    kopie->doe("okfrmMain.cmd2_0\nzfrmMain.txtPersoon.smit\nkfrmMain.cmdControleLijstLid\n"
               "kfrmMain.chkGemAlleLijnen\nkfrmMain.cmd1_0\nkfrmMain.cmdPrinten\n");
    ASSERT_TRUE(ziet(*kopie, "venster Zittinguitslag|"));
    kopie->doe("kfrmPrintenTI.cmdBewaren\nkfrmPrintenTI.cmdMaakCSV\n");
    ASSERT_TRUE(ziet(*kopie, gemaaktCsv));
    kopie->doe("ot");
    ASSERT_TRUE(ziet(*kopie, "venster Toelichting|"));
    kopie->doe("e");
    EXPECT_EQ(kopie->status(), 0);
    const std::set<Spoor> gebruikt = vergelijk(false);
    for (const Recht& recht : rechten) {
        const std::string& wat = recht.patroon.wat;
        const bool vanOns = wat.starts_with("{program}") || wat.starts_with("{suite}") ||
                            wat.starts_with("{competition}") || wat.starts_with("@");
        EXPECT_TRUE(!vanOns || gebruikt.contains(recht.patroon)) << "never needed: " << wat;
    }
}

TEST_F(Sessie, ThatPrintsAlsoTalksToThePrintServiceAndWritesThePdf) {
    if (!magVolgen()) GTEST_SKIP() << "this machine does not let strace follow a program";
    const auto kopie = start();
    ASSERT_TRUE(ziet(*kopie, hoofdvenster));
    kopie->doe("kfrmMain.cmd1_0\nkfrmMain.cmdPrinten\n");
    ASSERT_TRUE(ziet(*kopie, "venster Zittinguitslag|"));
    kopie->doe("kfrmPrinten.cmdPrinten\n");
    if (!kopie->ziet().starts_with("venster Bewaren als PDF|"))
        GTEST_SKIP() << "this machine has a printer";
    kopie->doe("oe");
    EXPECT_EQ(kopie->status(), 0);
    EXPECT_TRUE(std::filesystem::exists(mappen.at("home") + "/Lauwr__LijnA.pdf"));
    vergelijk(true);
}

TEST(Rechten, AllowTheirPatternAndNoMore) {
    const std::map<std::string, std::string> mappen = {{"program", "/a/b (1)"}};
    const auto magLezen = [&mappen](const char* patroon, const char* wat) {
        return StaatToe({{Daad::Leest, patroon}, false}, {Daad::Leest, wat}, mappen);
    };
    EXPECT_TRUE(magLezen("{program}/x.ini", "/a/b (1)/x.ini"));
    EXPECT_FALSE(magLezen("{program}/x.ini", "/a/b (1)/xyini"));
    EXPECT_TRUE(magLezen("/usr/**", "/usr/lib/x/y"));
    EXPECT_TRUE(magLezen("/usr/**", "/usr"));
    EXPECT_FALSE(magLezen("/usr/**", "/usrlokaal"));
    EXPECT_TRUE(magLezen("{program}/R-*", "/a/b (1)/R-12"));
    EXPECT_FALSE(magLezen("{program}/R-*", "/a/b (1)/R-12/x"));
    EXPECT_TRUE(magLezen("{above}", "/a"));
    EXPECT_TRUE(magLezen("{above}", "/"));
    EXPECT_FALSE(magLezen("{above}", "/a/b (1)"));
    EXPECT_FALSE(StaatToe({{Daad::Leest, "/x"}, false}, {Daad::Schrijft, "/x"}, mappen));
}

} // namespace
} // namespace lauwerkrans::proef
