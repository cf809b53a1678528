// Writing the settings and the lists where that cannot be done: what is said, that the earlier file
// stands as it was with nothing beside it, and that the next time succeeds.
#include <array>
#include <optional>
#include <ostream>

#include <gtest/gtest.h>

#include <unistd.h>

#include "app/modInstellingen.h"
#include "data/fout.h"
#include "output/modMaakCSV.h"
#include "output/modMaakHtml.h"
#include "schrijfproef_posix.h"
#include "uitvoerproef.h"

namespace lauwerkrans {
namespace {

using proef::KleineBestanden;
using proef::Schijf;
using proef::UitvoerTest;
using proef::ZonderRechten;

/// One of the four that write a file. Without `maak` it is the settings.
struct Schrijver {
    const char* naam;
    const char* map; // below the program's folder
    const char* bestand;
    void (*maak)(Uitvoer&);
};

void PrintTo(const Schrijver& schrijver, std::ostream* uit) { *uit << schrijver.naam; }

class Schrijffout : public UitvoerTest, public testing::WithParamInterface<Schrijver> {
protected:
    [[nodiscard]] std::string pad() const {
        const std::string deel = GetParam().map;
        return (deel.empty() ? deel : deel + "/") + GetParam().bestand;
    }
    [[nodiscard]] std::filesystem::path inMap() const { return map.map() / GetParam().map; }

    /// Writes, and gives what the user is told when that fails.
    std::optional<Melding> schrijf() {
        if (GetParam().maak == nullptr) return schrijfInstellingen();
        meldingen.getoond.clear();
        GetParam().maak(uitvoer);
        EXPECT_EQ(meldingen.getoond.size(), 1U);
        if (uitvoer.fout == 0) return std::nullopt;
        return meldingen.getoond.at(0);
    }

    /// What the user is told when it fails for this reason, which only the settings give.
    [[nodiscard]] Melding mislukt(const std::string& reden) const {
        if (GetParam().maak != nullptr) {
            return {std::string("Het bestand '") + GetParam().bestand +
                        "' kan niet worden gemaakt!",
                    Icoon::Uitroep};
        }
        return {"Het bestand '" + map.pad() + "/" + pad() +
                    "' kan niet worden geschreven: " + reden + ".",
                Icoon::Uitroep};
    }

    void legOudBestandNeer() { map.schrijf(pad(), "een ouder bestand"); }

    void ookDaarnaStaatHetOudeErAlleen() const {
        EXPECT_EQ(map.inhoud(), (std::map<std::string, std::string>{{pad(), "een ouder bestand"}}));
    }

    void lukt() {
        EXPECT_EQ(schrijf(), std::nullopt);
        const auto inhoud = map.inhoud();
        ASSERT_EQ(inhoud.size(), 1U);
        EXPECT_GT(inhoud.at(pad()).size(), 50U);
    }

    void opKleineSchijf(Schijf schijf, const std::string& reden) {
        std::map<std::string, std::string> voor;
        const auto vooraf = [this] { legOudBestandNeer(); };
        const auto bijFout = [&] {
            voor = map.inhoud();
            EXPECT_EQ(schrijf(), mislukt(reden));
            EXPECT_EQ(map.inhoud(), voor);
        };
        if (!OpKleineSchijf(map.map(), schijf, vooraf, bijFout, [this] { lukt(); }))
            GTEST_SKIP() << "this machine lets a test have no disk of its own";
    }

private:
    [[nodiscard]] std::optional<Melding> schrijfInstellingen() const {
        Instellingen instellingen;
        instellingen.bestand = InstellingenPad(map.pad());
        try {
            SchrijfInstellingen(instellingen, {});
        } catch (const Fout& fout) {
            return Melding{FoutTekst(fout), Icoon::Uitroep};
        }
        return std::nullopt;
    }
};

TEST_P(Schrijffout, InAFolderForReadingOnly) {
    legOudBestandNeer();
    {
        const ZonderRechten zonder(inMap());
        EXPECT_EQ(schrijf(), mislukt("geen toegang"));
    }
    ookDaarnaStaatHetOudeErAlleen();
    lukt();
}

TEST_P(Schrijffout, WhereTheFileIsAnothersAndCannotBeReplaced) {
    if (::getuid() != 0) GTEST_SKIP() << "only the administrator can make another's file";
    legOudBestandNeer();
    namespace fs = std::filesystem;
    fs::permissions(inMap(), fs::perms::all | fs::perms::sticky_bit);
    {
        const ZonderRechten zonder(map.map() / pad()); // of the file, not of its folder
        EXPECT_EQ(schrijf(), mislukt("geen toegang"));
    }
    ookDaarnaStaatHetOudeErAlleen();
    lukt();
}

TEST_P(Schrijffout, WhereAFileCannotGrow) {
    legOudBestandNeer();
    {
        const KleineBestanden klein(40);
        EXPECT_EQ(schrijf(), mislukt("het bestand is te groot"));
    }
    ookDaarnaStaatHetOudeErAlleen();
    lukt();
}

TEST_P(Schrijffout, OnAFullDisk) { opKleineSchijf(Schijf::Vol, "de schijf is vol"); }

TEST_P(Schrijffout, OnADiskForReadingOnly) {
    opKleineSchijf(Schijf::AlleenTeLezen, "de schijf is alleen te lezen");
}

constexpr std::array<Schrijver, 4> schrijvers = {
    {{"Instellingen", "", "Lauwr.ini", nullptr},
     {"CsvLijnen", "Lauwerkrans", "Lauwr__LijnABC.CSV", MaakCSV_Lijnen},
     {"CsvTotaal", "Lauwerkrans", "Lauwr__LijnABC.CSV", MaakCSV_Totaal},
     {"Html", "Lauwerkrans", "Lauwr__LijnABC.HTML", MaakHtml}}};

INSTANTIATE_TEST_SUITE_P(Schrijvers, Schrijffout, testing::ValuesIn(schrijvers),
                         [](const auto& geval) { return std::string(geval.param.naam); });

} // namespace
} // namespace lauwerkrans
