// The names of competitions in the window: every character as it is.
#include <QListWidget>

#include "data/codetabel.h"
#include "startproef.h"

namespace lauwerkrans::proef {
namespace {

class Namen : public Startproef, public testing::WithParamInterface<const char*> {};

TEST_P(Namen, AreShownCharacterByCharacter) {
    const std::string naam = GetParam();
    const auto map = competitie.map().map() / "Competities";
    std::filesystem::rename(map / "Proef",
                            map / std::filesystem::path(std::u8string(naam.begin(), naam.end())));
    std::filesystem::create_directory(programmaMap());
    schrijfMappen(NaarCodetabel(naam));
    ASSERT_TRUE(laad());
    EXPECT_TRUE(meldingen().empty());
    EXPECT_EQ(kop(), "Resultaat voor: " + naam);
    EXPECT_EQ(vind<KopLabel>("lblResultKop").text().toStdString(), "Resultaat voor: " + naam);
    EXPECT_EQ(vind<KopLabel>("Label1").text().toStdString(), naam);
    EXPECT_EQ(vind<QListWidget>("List2").item(0)->text().toStdString(), naam);
    EXPECT_EQ(venster.rijen().lijnen(), 2U);
    BewaarInstellingen(venster, instellingen);
    EXPECT_TRUE(std::filesystem::exists(competitie.map().map() / "Lauwerkrans" / "Lauwr.ini"));
}

INSTANTIATE_TEST_SUITE_P(Competitie, Namen,
                         testing::Values("Voorjaar '26; A & B (1)", "Zoë’s café", "  Najaar",
                                         "&Eerste &amp; &&tweede"));

} // namespace
} // namespace lauwerkrans::proef
