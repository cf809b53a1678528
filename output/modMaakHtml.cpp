#include "output/modMaakHtml.h"

#include <initializer_list>
#include <string_view>

#include "data/systeem.h"
#include "data/tekstbestand.h"

namespace lauwerkrans {

namespace {

constexpr std::string_view koprij = "<tr BGCOLOR=#E0E0E0 align=center>";
constexpr std::string_view eindeKoprij = "</b></font></tr >";
constexpr std::string_view kopRang = "<td><font size=2><b>Rang</b></font></td>";
constexpr std::string_view kopZittingen = "<td><font size=2>Zittingen</font></td>";
constexpr std::string_view kopProcent = "<td><font size=2><b>Procent</b></font></td>";

void VoegToe(std::string& pagina, std::initializer_list<std::string_view> delen) {
    for (const std::string_view deel : delen)
        pagina += deel;
}

/// The header cell above the pairs, wide enough for two names. Its second closing tag has no
/// opening one; readers of the page pass over it.
std::string KopPaar(const std::string& bijschrift) {
    constexpr int vulling = 28;
    std::string cel = "<td align=left><font size=2><b>Paar</b>";
    for (int i = 0; i < vulling; ++i)
        cel += "&nbsp;";
    return cel.append(bijschrift).append("</b></font></td>");
}

/// The three headings. They span four columns, also above a table of three.
void VoegTitelsToe(std::string& pagina, const Uitvoer& uitvoer) {
    VoegToe(pagina, {"<table BORDER=1 FRAME=BOX RULES=ALL cellspacing=0>",
                     "<tr ><td colspan=4 BGCOLOR=#99CCFF align=center><font size=5><b>",
                     uitvoer.KopTekst, "</b></font></td></tr>",
                     "<tr ><td colspan=4 align=center><font size=3><b>", uitvoer.InstellingPrefix,
                     "</b></font></td></tr>", "<tr ><td colspan=4 align=center><font size=1>",
                     "Bridgeclub ", uitvoer.ClubNaam, "</font></td></tr>"});
}

void VoegEindeToe(std::string& pagina) { VoegToe(pagina, {"</font></table>", "</body> </html>"}); }

void VoegLijnkopToe(std::string& pagina, const std::string& lijn, const std::string& criterium) {
    VoegToe(pagina,
            {koprij, "<td colspan=4><font size=3><b>", "Lijn ", lijn, "</b></font></td></tr>",
             koprij, kopRang, KopPaar("(over minimaal " + criterium + " zittingen)"), kopZittingen,
             kopProcent, eindeKoprij});
}

} // namespace

void MaakHtml(Uitvoer& uitvoer) {
    uitvoer.fout = 0;
    const std::string naam = Uitvoernaam(uitvoer, ".HTML");
    std::string pagina = HtmlKop();
    if (OverAlleLijnen(uitvoer)) {
        HtmlTabelTotaal(pagina, uitvoer);
    } else {
        HtmlTabelPerLijn(pagina, uitvoer);
    }
    if (BewaarHtml(uitvoer, naam, pagina)) MeldHtml(uitvoer, naam);
}

void MaakUitvoerMap(Uitvoer& uitvoer) {
    uitvoer.uitvoermap = VoegPad(uitvoer.programmaMap, "Lauwerkrans");
    uitvoer.uitvoermap = MaakMap(uitvoer.uitvoermap);
}

std::string HtmlKop() {
    return "<html><head><title>Lauwerkrans</title>"
           "<STYLE TYPE=text/css>"
           "BODY { font-family:sans-serif;}"
           "H5 { font-weight:normal;}"
           "</STYLE>"
           "</head>"
           "<body>";
}

void HtmlTabelTotaal(std::string& pagina, const Uitvoer& uitvoer) {
    const bool metLijn = uitvoer.ToonLijnen == 1;
    const bool metZittingen = uitvoer.ToonZittingen == 1;
    VoegTitelsToe(pagina, uitvoer);
    VoegToe(pagina, {koprij, kopRang, KopPaar(""), kopProcent});
    VoegToe(pagina, {metZittingen ? kopZittingen : "", eindeKoprij});
    for (const Uitvoerregel& regel : Uitvoerregels(uitvoer)) {
        const std::string lijn = metLijn ? regel.lijn + "&nbsp;&nbsp;&nbsp;" : "";
        VoegToe(pagina,
                {"<tr align=center>", "<td><h5><b>", regel.rang, "</b></td>", "<td align=left><h5>",
                 lijn, regel.paar, "</td>", "<td><h5><b>", regel.gemiddelde, "</b></td>"});
        if (metZittingen) VoegToe(pagina, {"<td><h5>", regel.zittingen, "</td>"});
        VoegToe(pagina, {"</tr>"});
    }
    VoegEindeToe(pagina);
}

void HtmlTabelPerLijn(std::string& pagina, const Uitvoer& uitvoer) {
    VoegTitelsToe(pagina, uitvoer);
    std::string vorigeLijn;
    for (const Uitvoerregel& regel : Uitvoerregels(uitvoer)) {
        if (regel.lijn != vorigeLijn) {
            VoegLijnkopToe(pagina, regel.lijn, Criterium(uitvoer, regel.lijn));
        }
        VoegToe(pagina, {"<tr align=center>", "<td><h5><b>", regel.rang, "</b></td>",
                         "<td align=left><h5>", regel.paar, "</td>", "<td><h5>", regel.zittingen,
                         "</td>", "<td><h5><b>", regel.gemiddelde, "</b></td>", "</tr>"});
        vorigeLijn = regel.lijn;
    }
    VoegEindeToe(pagina);
}

bool BewaarHtml(Uitvoer& uitvoer, const std::string& naam, const std::string& pagina) {
    return Geschreven(uitvoer, naam, [&] {
        MaakUitvoerMap(uitvoer);
        VervangTekst(VoegPad(uitvoer.uitvoermap, naam), pagina + "\r\n");
    });
}

void MeldHtml(const Uitvoer& uitvoer, const std::string& naam) {
    uitvoer.meld({std::string("\r\nHet HTMLbestand heet: ")
                      .append(naam)
                      .append(" en is opgeslagen in de volgende map:\r\n\r\n")
                      .append(systeem::Schrijfwijze(uitvoer.uitvoermap))
                      .append("\r\n"),
                  Icoon::Informatie});
}

} // namespace lauwerkrans
