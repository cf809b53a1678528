// Names and texts that try to get out of the program's own folder, into a shell or into the
// settings: whatever stands in the files and boxes, the same few files are written.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>

#include "data/modORV_leden.h"
#include "voorbeeldproef.h"

namespace lauwerkrans::proef {
namespace {

/// A competition's name, and the folder that it leads to where a test can make one.
struct Naam {
    const char* naam;
    const char* map;
};

const std::vector<Naam> namen = {
    {"../x", "x"},
    {"..\\x", "x"},
    {"../Lauwerkrans", "Lauwerkrans"},
    {"../../../nergens/x", nullptr},
    {"/etc", nullptr},
    {"C:\\Windows", nullptr},
    {"%s%n%1%2", "Competities/%s%n%1%2"},
    {"$(touch x) `touch x` ; & '", "Competities/$(touch x) `touch x` ; & '"},
#ifdef _WIN32
    {"CON", nullptr},
    {"NUL", nullptr},
    {"a:b", nullptr},
    {"Proef::$DATA", nullptr},
#else
    {"CON", "Competities/CON"},
    {"a:b", "Competities/a:b"},
    {"a|b>c\"", "Competities/a|b>c\""},
#endif
};

class KwadeNamen : public ::testing::Test {
protected:
    KwadeNamen() : proef(1, 1, 1) {
        proef.competitie.schrijfLeden(99, {{3, "Jan", "", "Smit"}, {17, "Ria", "", "Quast"}});
        proef.competitie.schrijfZitting(1, 1, {ProefCompetitie::regel("A1", "3-17", "60,000")});
    }
    ~KwadeNamen() override { proef.uitvoer.sluit(); }

    [[nodiscard]] const Proefmap& map() const { return proef.competitie.map(); }

    /// Starts the window on a competition of this name.
    void start(const Naam& naam) {
        if (naam.map != nullptr) {
            for (const auto& [bestand, bytes] : map().inhoud()) {
                const std::string begin = proef.competitie.competitieMap();
                if (bestand.starts_with(begin))
                    map().schrijf(naam.map + ("/" + bestand.substr(begin.size())), bytes);
            }
        }
        map().schrijf("Mappen.ini", "ORVMAP=" + map().pad() + "\r\nCOMMAP=" + map().pad() +
                                        "\\Competities\r\nACTCOM=" + naam.naam + "\r\n");
        ASSERT_TRUE(Form_Load(*proef.venster, proef.competitie.algemeen, proef.instellingen,
                              map().pad() + "/Lauwerkrans"));
        ASSERT_EQ(proef.competitie.algemeen.ActieveCompetitie, naam.naam);
        proef.venster->show();
    }

    /// What has been written since, by name.
    [[nodiscard]] std::vector<std::string> nieuw(const std::map<std::string, std::string>& voor) {
        std::vector<std::string> bestanden;
        const auto na = map().inhoud();
        for (const auto& [bestand, bytes] : na) {
            if (!voor.contains(bestand) || voor.at(bestand) != bytes) bestanden.push_back(bestand);
        }
        for (const auto& [bestand, bytes] : voor)
            EXPECT_TRUE(na.contains(bestand)) << bestand << " is gone";
        return bestanden;
    }

    Vensterproef proef;
};

const std::vector<std::string> eigen = {"Lauwerkrans/Lauwerkrans/Lauwr__LijnA.CSV",
                                        "Lauwerkrans/Lauwerkrans/Lauwr__LijnA.HTML",
                                        "Lauwerkrans/Lauwr.ini"};

class KwadeCompetities : public KwadeNamen, public testing::WithParamInterface<std::size_t> {};

TEST_P(KwadeCompetities, WriteTheOwnFilesAndNothingElse) {
    const Naam& naam = namen.at(GetParam());
    start(naam);
    const auto voor = map().inhoud();
    if (naam.map == nullptr) {
        EXPECT_FALSE(proef.competitie.meldingen.getoond.empty()) << "it is not there";
        proef.klik("cmdEinde");
        EXPECT_EQ(nieuw(voor), std::vector<std::string>{"Lauwerkrans/Lauwr.ini"});
        return;
    }
    EXPECT_TRUE(proef.competitie.meldingen.getoond.empty());
    proef.typ("txt1_1", "1");
    proef.vind<QLineEdit>("txtKop1").setText(QString::fromUtf8(naam.naam));
    proef.klik("cmd1_1");
    proef.klik("cmdPrinten");
    Druk(*proef.voorbeeld("frmPrinten"), "cmdMaakCSV");
    Druk(*proef.voorbeeld("frmPrinten"), "cmdMaakHtml");
    const auto& meldingen = proef.competitie.meldingen.getoond;
    ASSERT_EQ(meldingen.size(), 2U);
    EXPECT_EQ(meldingen[0].icoon, Icoon::Informatie);
    EXPECT_EQ(meldingen[1].icoon, Icoon::Informatie);
    proef.klik("cmdEinde");
    EXPECT_EQ(nieuw(voor), eigen);
}

INSTANTIATE_TEST_SUITE_P(Namen, KwadeCompetities, testing::Range<std::size_t>(0, namen.size()));

TEST_F(KwadeNamen, ATextOfMoreLinesAddsNoSetting) {
    start({"Proef", nullptr});
    QGuiApplication::clipboard()->setText(QStringLiteral("een\r\n__CHK1=1\n__CHK4=1"));
    for (const char* vak : {"txtKop1", "txt1_1"}) {
        QTest::mouseClick(&proef.vind<QLineEdit>(vak), Qt::LeftButton);
        QTest::keyClick(&proef.vind<QLineEdit>(vak), Qt::Key_V, Qt::ControlModifier);
    }
    proef.klik("cmdEinde");
    const std::string ini = map().inhoud().at("Lauwerkrans/Lauwr.ini");
    EXPECT_EQ(std::count(ini.begin(), ini.end(), '\n'), 7) << ini;
    EXPECT_NE(ini.find("__TXTKOP=een __CHK1=1 __CHK4=1\r\n"), std::string::npos) << ini;
    EXPECT_NE(ini.find("__CHK1=0\r\n"), std::string::npos) << ini;
}

TEST_F(KwadeNamen, ASearchThatIsAPathGivesThePdfOneName) {
    start({"Proef", nullptr});
    proef.competitie.schrijfLeden(99, {{3, "Jan", "", "../..\\a:b*\"?"}, {17, "Ria", "", "Quast"}});
    LeesLeden(proef.competitie.algemeen);
    proef.vind<QLineEdit>("txtPersoon").setText(QStringLiteral("../..\\a:b*\"?"));
    proef.klik("cmdControleLijstLid");
    proef.klik("cmdPrinten");
    ASSERT_EQ(proef.printers.gevraagd.size(), 1U);
    EXPECT_EQ(proef.printers.gevraagd[0], QStringLiteral("Controlelijst voor .._.._A_B___.pdf"));
}

} // namespace
} // namespace lauwerkrans::proef
