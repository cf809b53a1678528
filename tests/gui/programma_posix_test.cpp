// The program itself, as a process of its own: one running copy, the exit status, and where its
// window opens.
#include "programmaproef_posix.h"

namespace lauwerkrans::proef {
namespace {

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
