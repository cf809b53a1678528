// Every message that the program can show stands in the manual, word for word, and the manual
// explains no message that there is not.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "berichtteksten.h"
#include "calc/lijnen.h"
#include "data/fout.h"
#include "data/modORV_rondedata.h"
#include "gegevens.h"
#include "markdown.h"
#include "output/bladindeling.h"
#include "output/uitvoer.h"
#include "proef.h"

namespace lauwerkrans {
namespace {

using berichten::EenRegel;
using berichten::Makers;
using berichten::Oogst;
using berichten::Teksten;

constexpr std::int64_t getal = 918'273; // stands for any number

std::string Vervang(std::string tekst, const std::string& oud, const std::string& nieuw) {
    for (auto plaats = tekst.find(oud); plaats != std::string::npos; plaats = tekst.find(oud))
        tekst.replace(plaats, oud.size(), nieuw);
    return EenRegel(tekst);
}

/// The text of an error whose every field is "…"; empty for a kind that there is not.
std::string Patroontekst(int soort, std::int64_t regel, std::int64_t aantal) {
    Fout fout{static_cast<FoutSoort>(soort)};
    fout.bestand = fout.tekst = fout.wie = fout.reden = "…";
    fout.regel = regel;
    fout.aantal = aantal;
    fout.ronde = fout.zitting = getal;
    return Vervang(FoutTekst(fout), std::to_string(getal), "…");
}

/// The texts of one kind of error: with and without a line, of one or more fields.
Teksten Soortteksten(int soort) {
    std::set<std::string> teksten;
    for (const std::int64_t regel : {std::int64_t{0}, getal}) {
        for (const std::int64_t aantal : {std::int64_t{1}, getal})
            teksten.insert(Patroontekst(soort, regel, aantal));
    }
    return {teksten.begin(), teksten.end()};
}

std::vector<Teksten> AlleSoorten() {
    std::vector<Teksten> soorten;
    for (int soort = 0; !Patroontekst(soort, 0, 0).empty(); ++soort)
        soorten.push_back(Soortteksten(soort));
    return soorten;
}

Makers AlleMakers() {
    return {{"FoutTekst", {}}, // its kinds are looked at one by one
            {"TeVeelBladenTekst", {EenRegel(TeVeelBladenTekst())}},
            {"TeHoogTekst", {Vervang(TeHoogTekst("21", "…"), "21", "…")}},
            {"RondeDataFout",
             {Vervang(RondeDataFout("…").tekst, PadInMelding(RondeDataPad("…")), "…")}},
            {"NietTeMaken", {NietTeMaken("…").tekst}}};
}

Oogst VanHetProgramma() { return berichten::LeesBerichten(LAUWERKRANS_BRON, AlleMakers()); }

std::string Bladzijde() {
    return proef::Inhoud(std::filesystem::path(LAUWERKRANS_BRON) / "docs/handleiding/meldingen.md");
}

bool Staat(const std::string& tekst, const Teksten& teksten) {
    return std::find(teksten.begin(), teksten.end(), tekst) != teksten.end();
}

Teksten Zonder(const Teksten& teksten, const Teksten& bekend) {
    Teksten over;
    std::copy_if(teksten.begin(), teksten.end(), std::back_inserter(over),
                 [&](const std::string& tekst) { return !Staat(tekst, bekend); });
    return over;
}

TEST(HandleidingMeldingen, HoldsEveryMessageThatIsWrittenInTheProgram) {
    const Oogst oogst = VanHetProgramma();
    EXPECT_EQ(oogst.bezwaren, Teksten{});
    EXPECT_EQ(Zonder(oogst.teksten, markdown::Aanhalingen(Bladzijde())), Teksten{});
}

TEST(HandleidingMeldingen, HoldsEveryKindOfError) {
    const Teksten handleiding = markdown::Aanhalingen(Bladzijde());
    for (const Teksten& soort : AlleSoorten()) {
        EXPECT_LT(Zonder(soort, handleiding).size(), soort.size())
            << "is not in the manual: " << testing::PrintToString(soort);
    }
}

TEST(HandleidingMeldingen, ExplainsNoMessageThatThereIsNot) {
    Teksten bekend = VanHetProgramma().teksten;
    for (const Teksten& soort : AlleSoorten())
        bekend.insert(bekend.end(), soort.begin(), soort.end());
    EXPECT_EQ(Zonder(markdown::Aanhalingen(Bladzijde()), bekend), Teksten{});
}

/// Reasons are those whose words differ from the system's own.
TEST(HandleidingMeldingen, HoldsTheReasonsOfTheSystem) {
    std::size_t aantal = 0;
    for (int code = 1; code < 200; ++code) {
        const std::error_code fout(code, std::generic_category());
        if (Reden(fout) == fout.message()) continue;
        ++aantal;
        EXPECT_NE(Bladzijde().find(Reden(fout)), std::string::npos) << Reden(fout);
    }
    EXPECT_EQ(aantal, 13U);
}

TEST(Berichtteksten, AreFoundInTheProgram) {
    const Oogst oogst = VanHetProgramma();
    EXPECT_GE(oogst.plaatsen, 20U);
    EXPECT_GE(AlleSoorten().size(), 12U);
    for (const char* bekend :
         {"Het programma is al gestart!...", "Fout bij het lezen van de Groepen!",
          "Geen bestand met competitiegegevens aanwezig.",
          "Fout bij het inlezen van de competitiegegevens.",
          "Fout bij het inlezen van de rondegegevens. …",
          "… aantal zittingen bij lijn … niet goed! Maximaal 20",
          "… (R…-Z…-nr…) komt niet voor in ORV-ledenbestand en wordt overgeslagen! Oplossing: zie "
          "bij Speler-admin 'Koppelen zwevende spelers'.",
          "Er worden niet meer dan 36 pagina's tegelijk geprint!",
          "Het bestand '…' kan niet worden gemaakt!",
          "Het CSV-bestand '…' is met succes aangemaakt. Het bevindt zich in de map: …"}) {
        EXPECT_TRUE(Staat(bekend, oogst.teksten)) << bekend;
    }
}

/// What is found in one made-up source file.
Oogst VanBron(const std::string& bron) {
    const proef::Proefmap map;
    map.schrijf("ui/verzonnen.cpp", bron);
    return berichten::LeesBerichten(map.map(), AlleMakers());
}

TEST(Berichtteksten, OfAMadeUpMessageAreMissedInTheManual) {
    const Oogst oogst =
        VanBron("void f() { uitvoer.meld({\"Verzonnen \" + naam + \"!\", Icoon::Geen}); }");
    EXPECT_EQ(oogst.teksten, Teksten{"Verzonnen …!"});
    EXPECT_EQ(Zonder(oogst.teksten, markdown::Aanhalingen(Bladzijde())), oogst.teksten);
    EXPECT_EQ(Zonder(oogst.teksten, markdown::Aanhalingen("a\n\n> Verzonnen\n> …!\n\nb\n")),
              Teksten{});
}

TEST(Berichtteksten, ArePutTogetherAsTheyAreShown) {
    const auto van = [](const std::string& uitdrukking) {
        return VanBron("int i; { meld(" + uitdrukking + "); }").teksten;
    };
    EXPECT_EQ(van("{\"\\r\\nEen \" // \"nee\"\n \"\\\"twee\\\"\\r\\n\", Icoon::Uitroep}"),
              Teksten{"Een \"twee\""});
    EXPECT_EQ(van("{std::string(\"a '\").append(Naam(x, 1)).append(\"' b\"), Icoon::Geen}"),
              Teksten{"a '…' b"});
    EXPECT_EQ(van("{is ? \"Ja.\" : \"Nee \" + std::to_string(1'000), Icoon::Geen}"),
              (Teksten{"Ja.", "Nee …"}));
    EXPECT_EQ(VanBron("Melding F() { return {\"Los '\" + n + \"'\", Icoon::Geen}; }").teksten,
              Teksten{"Los '…'"});
    EXPECT_EQ(VanBron("int i; auto t = TeVeelBladenTekst(); meld({t, Icoon::Geen});").teksten,
              Teksten{"Er worden niet meer dan 36 pagina's tegelijk geprint!"});
}

TEST(Berichtteksten, ThatCannotBeFollowedAreObjectedTo) {
    for (const char* bron :
         {"int i; meld({tekst, Icoon::Geen});", "int i; meld(melding);",
          "int i; auto tekst = Geheim(); meld({tekst, Icoon::Geen});",
          "int i; QMessageBox::warning(nullptr, a, b);", "int i; ToonMelding(nullptr, melding);",
          "int i; void f(const Melder& zeg) { zeg(melding); }"}) {
        EXPECT_EQ(VanBron(bron).bezwaren.size(), 1U) << bron;
        EXPECT_TRUE(VanBron(bron).bezwaren[0].starts_with("ui/verzonnen.cpp:1: ")) << bron;
    }
}

} // namespace
} // namespace lauwerkrans
