// The output button of the main window: which preview it opens, with which list.
#include <gtest/gtest.h>

#include <QCheckBox>

#include "voorbeeldproef.h"

namespace lauwerkrans::proef {
namespace {

using P = ProefCompetitie;

/// Two lines, three pairs in line A and one in line B, over two sessions.
class Uitvoerknop : public ::testing::Test {
protected:
    Uitvoerknop() : proef(1, 2, 2) {
        proef.competitie.schrijfLeden(99, {{3, "Jan", "", "Smit"},
                                           {17, "Piet", "van", "Berkelo"},
                                           {4, "Ria", "", "Quast"},
                                           {18, "Zoë", "", "Tromp"},
                                           {6, "Els", "", "Vos"},
                                           {20, "Bas", "", "Yntema"}});
        proef.competitie.schrijfZitting(1, 1,
                                        {P::regel("A1", "3-17", "60,000", 24),
                                         P::regel("A2", "4-18", "50,000", 12),
                                         P::regel("B1", "6-20", "45,500", 24)});
        proef.competitie.schrijfZitting(
            1, 2, {P::regel("A1", "3-17", "50,000", 12), P::regel("B1", "6-20", "54,500", 24)});
        proef.start();
        proef.typ("txt1_1", "1");
        proef.typ("txt1_2", "1");
    }
    ~Uitvoerknop() override { proef.uitvoer.sluit(); }

    [[nodiscard]] const std::vector<Melding>& meldingen() const {
        return proef.competitie.meldingen.getoond;
    }
    void vink(const char* naam) const { proef.vind<QCheckBox>(naam).click(); }
    [[nodiscard]] std::string bijschrift() const {
        return proef.vind<QAbstractButton>("cmdPrinten").text().toStdString();
    }
    [[nodiscard]] const Uitvoer& lijst(const char* voorbeeld) const {
        auto* venster = proef.voorbeeld(voorbeeld);
        if (venster == nullptr) throw std::runtime_error(voorbeeld);
        return venster->uitvoer();
    }

    Vensterproef proef;
};

TEST_F(Uitvoerknop, OpensThePreviewPerLine) {
    proef.typ("txtKop1", "Kampioenen");
    proef.klik("cmd1_0");
    proef.klik("cmdPrinten");
    EXPECT_EQ(proef.voorbeeld("frmPrintenTI"), nullptr);
    const Uitvoer& uitvoer = lijst("frmPrinten");
    EXPECT_EQ(uitvoer.uitslag, proef.venster->uitslag());
    EXPECT_EQ(uitvoer.KopTekst, "Kampioenen");
    EXPECT_EQ(uitvoer.programmaMap, proef.competitie.map().pad() + "/Lauwerkrans");
    EXPECT_FALSE(proef.voorbeeld("frmPrinten")->isModal());
    EXPECT_TRUE(meldingen().empty());
}

TEST_F(Uitvoerknop, OpensTheOtherPreviewWithTheTickOfAllLines) {
    vink("chkGemAlleLijnen");
    proef.klik("cmd1_0");
    proef.klik("cmdPrinten");
    EXPECT_EQ(proef.voorbeeld("frmPrinten"), nullptr);
    EXPECT_EQ(lijst("frmPrintenTI").uitslag, proef.venster->uitslag());
}

TEST_F(Uitvoerknop, UsesOneWindowAgainAndAgain) {
    proef.klik("cmd1_0");
    proef.klik("cmdPrinten");
    auto* eerste = proef.voorbeeld("frmPrinten");
    eerste->close();
    proef.klik("cmdPrinten");
    EXPECT_EQ(proef.voorbeeld("frmPrinten"), eerste);
}

TEST_F(Uitvoerknop, CalculatesAnewWhenAnOptionDiffers) {
    proef.klik("cmd1_0");
    const auto eerste = proef.venster->uitslag();
    vink("chkGewogen");
    proef.klik("cmdPrinten");
    const auto tweede = lijst("frmPrinten").uitslag;
    EXPECT_NE(tweede, eerste);
    EXPECT_TRUE(tweede->opties.gewogen);
    EXPECT_EQ(tweede->GekozenLijnen, "AB");
    EXPECT_EQ(tweede->resultaat.cel(1, 5), "56,667"); // (60 x 24 + 50 x 12) / 36
    EXPECT_EQ(proef.rij(1), "1|A|1|Jan Smit - Piet van Berkelo|2|56,667");
}

TEST_F(Uitvoerknop, CalculatesAnewWhenTheTickOfAllLinesDiffers) {
    proef.klik("cmd1_0");
    vink("chkGemAlleLijnen");
    proef.klik("cmdPrinten");
    EXPECT_TRUE(lijst("frmPrintenTI").uitslag->opties.gemAlleLijnen);
    EXPECT_EQ(proef.voorbeeld("frmPrinten"), nullptr);
}

TEST_F(Uitvoerknop, CalculatesAnewWhenACriterionOfTheShownLinesDiffers) {
    proef.klik("cmd1_1");
    const auto eerste = proef.venster->uitslag();
    proef.typ("txt1_2", "9"); // of another line
    proef.klik("cmdPrinten");
    EXPECT_EQ(lijst("frmPrinten").uitslag, eerste);
    proef.vind<QLineEdit>("txt1_1").setText(QStringLiteral("2"));
    proef.klik("cmdPrinten");
    const auto tweede = lijst("frmPrinten").uitslag;
    EXPECT_EQ(tweede->GekozenLijnen, "A");
    EXPECT_EQ(tweede->resultaat.rijen.size(), 1U);
}

TEST_F(Uitvoerknop, SessionDetailsAreNoReasonToCalculateAnew) {
    proef.klik("cmd1_1");
    const auto eerste = proef.venster->uitslag();
    vink("chkZitDetails");
    proef.klik("cmdPrinten");
    EXPECT_EQ(lijst("frmPrinten").uitslag, eerste);
}

TEST_F(Uitvoerknop, ACriterionThatCannotBeUsedIsSaidAndNoPreviewOpens) {
    proef.klik("cmd1_1");
    proef.vind<QLineEdit>("txt1_1").clear();
    proef.klik("cmdPrinten");
    ASSERT_EQ(meldingen().size(), 1U);
    EXPECT_EQ(
        meldingen()[0],
        (Melding{"Geef bij lijn A een heel getal als minimum aantal zittingen.", Icoon::Uitroep}));
    EXPECT_EQ(proef.voorbeeld("frmPrinten"), nullptr);
    EXPECT_EQ(proef.rijen(), 2U);
}

TEST_F(Uitvoerknop, AnotherCalculationEmptiesTheOpenPreviewPerLine) {
    proef.klik("cmd1_0");
    proef.klik("cmdPrinten");
    proef.klik("cmd1_1");
    EXPECT_EQ(lijst("frmPrinten").uitslag, nullptr);
    proef.klik("cmdPrinten");
    EXPECT_EQ(lijst("frmPrinten").uitslag->GekozenLijnen, "A");
}

TEST_F(Uitvoerknop, ACalculationOverAllLinesLeavesTheOpenPreviewPerLine) {
    proef.klik("cmd1_0");
    proef.klik("cmdPrinten");
    const auto eerste = lijst("frmPrinten").uitslag;
    vink("chkGemAlleLijnen");
    proef.klik("cmd1_0");
    EXPECT_EQ(lijst("frmPrinten").uitslag, eerste);
}

TEST_F(Uitvoerknop, APreviewKeepsItsListWhateverTheWindowSaysLater) {
    proef.klik("cmd1_0");
    proef.klik("cmdPrinten");
    proef.typ("txt1_1", "7");
    vink("chkGewogen");
    Druk(*proef.voorbeeld("frmPrinten"), "cmdMaakCSV");
    const std::string bytes =
        proef.competitie.map().inhoud().at("Lauwerkrans/Lauwerkrans/Lauwr__LijnAB.CSV");
    EXPECT_NE(bytes.find(";----- criterium: 1 of meer zittingen -----\r\n1;Jan Smit - Piet van "
                         "Berkelo;55,000;2\r\n"),
              std::string::npos)
        << bytes;
}

TEST_F(Uitvoerknop, BewarenWritesTheWholeSettingsFile) {
    vink("chkGemAlleLijnen");
    proef.klik("cmd1_0");
    proef.klik("cmdPrinten");
    auto* venster = proef.voorbeeld("frmPrintenTI");
    Vind<QCheckBox>(*venster, "chkToonLijn")->click();
    Druk(*venster, "cmdBewaren");
    const std::string bytes = proef.competitie.map().inhoud().at("Lauwerkrans/Lauwr.ini");
    for (const char* regel : {"__CHKTL=1\r\n", "__CHKTZ=0\r\n", "__CHK3=1\r\n", "__TXT1=1\r\n"}) {
        EXPECT_NE(bytes.find(regel), std::string::npos) << regel << bytes;
    }
}

TEST_F(Uitvoerknop, EindeClosesThePreviews) {
    proef.klik("cmd1_0");
    proef.klik("cmdPrinten");
    vink("chkGemAlleLijnen");
    proef.klik("cmdPrinten");
    ASSERT_NE(proef.voorbeeld("frmPrinten"), nullptr);
    ASSERT_NE(proef.voorbeeld("frmPrintenTI"), nullptr);
    proef.klik("cmdEinde");
    EXPECT_EQ(proef.voorbeeld("frmPrinten"), nullptr);
    EXPECT_EQ(proef.voorbeeld("frmPrintenTI"), nullptr);
}

/// The member's list is printed at once.
class Ledenlijst : public Uitvoerknop {
protected:
    Ledenlijst() {
        proef.printers.pdf = QString::fromStdString(pdf());
        proef.vind<QLineEdit>("txtPersoon").setText(QStringLiteral("smit"));
        proef.klik("cmdControleLijstLid");
    }
    [[nodiscard]] std::string pdf() const {
        return (proef.competitie.map().map() / "lid.pdf").string();
    }
};

TEST_F(Ledenlijst, IsPrintedWithoutAPreview) {
    ASSERT_EQ(bijschrift(), "Print deze controlelijst");
    proef.klik("cmdPrinten");
    EXPECT_EQ(proef.voorbeeld("frmPrinten"), nullptr);
    ASSERT_EQ(proef.printers.gevraagd.size(), 1U);
    EXPECT_EQ(proef.printers.gevraagd[0], QStringLiteral("Controlelijst voor SMIT.pdf"));
    EXPECT_EQ(PdfBladen(pdf()), 1);
    EXPECT_EQ(PdfBlad(pdf(), 1),
              "Controlelijst voor SMIT A 3 17 60,0000 R01-Z01-24 Jan Smit - Piet van Berkelo "
              "A 3 17 50,0000 R01-Z02-12 Jan Smit - Piet van Berkelo RtvH 1");
}

TEST_F(Ledenlijst, PrintedOrCancelledTheButtonOpensAPreviewNextTime) {
    proef.printers.pdf.clear();
    proef.klik("cmdPrinten");
    EXPECT_FALSE(proef.venster->PersoonFilterAan());
    EXPECT_EQ(bijschrift(), "Uitvoerlijsten ...");
    EXPECT_TRUE(proef.venster->printbaar());
    proef.klik("cmdPrinten");
    EXPECT_EQ(lijst("frmPrinten").uitslag, nullptr); // nothing has been calculated yet
    EXPECT_TRUE(meldingen().empty());
}

TEST_F(Ledenlijst, WithoutARankingThePageOverAllLinesIsAnEmptyOne) {
    proef.klik("cmdPrinten");
    vink("chkGemAlleLijnen");
    proef.klik("cmdPrinten");
    ASSERT_EQ(lijst("frmPrintenTI").uitslag, nullptr);
    Druk(*proef.voorbeeld("frmPrintenTI"), "cmdMaakHtml");
    const std::string bytes =
        proef.competitie.map().inhoud().at("Lauwerkrans/Lauwerkrans/Lauwr__Lijn.HTML");
    EXPECT_NE(bytes.find("Procent</b></font></td></b></font></tr ></font></table>"),
              std::string::npos)
        << bytes;
}

TEST_F(Ledenlijst, ThePdfGetsANameThatAFileCanHave) {
    proef.competitie.schrijfLeden(99, {{3, "Jan", "v/d", "Smit"}, {17, "Piet", "van", "Berkelo"}});
    proef.start();
    proef.vind<QLineEdit>("txtPersoon").setText(QStringLiteral("v/d"));
    proef.klik("cmdControleLijstLid");
    proef.klik("cmdPrinten");
    ASSERT_EQ(proef.printers.gevraagd.size(), 1U);
    EXPECT_EQ(proef.printers.gevraagd[0], QStringLiteral("Controlelijst voor V_D.pdf"));
}

TEST_F(Ledenlijst, TheLastRankingStaysBehindIt) {
    proef.klik("cmd1_1");
    const auto uitslag = proef.venster->uitslag();
    proef.klik("cmdControleLijstLid");
    proef.klik("cmdPrinten");
    EXPECT_TRUE(std::filesystem::exists(pdf()));
    proef.klik("cmdPrinten");
    EXPECT_EQ(lijst("frmPrinten").uitslag, uitslag);
}

TEST_F(Ledenlijst, GoesToAPrinterThroughItsDialog) {
    proef.printers.heeftPrinter = true;
    proef.printers.kiesPrinter = [this](QPrinter& printer) {
        EXPECT_EQ(printer.docName(), QStringLiteral("Controlelijst voor SMIT"));
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(QString::fromStdString(pdf()));
        return true;
    };
    proef.klik("cmdPrinten");
    EXPECT_EQ(PdfBladen(pdf()), 1);
    EXPECT_EQ(bijschrift(), "Uitvoerlijsten ...");
}

} // namespace
} // namespace lauwerkrans::proef
