#include "voorbeeldproef.h"

#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>
#include <tuple>

namespace lauwerkrans::proef {

std::shared_ptr<Uitslag> GroteUitslag(const std::vector<std::size_t>& paren) {
    std::string letters;
    Criteria criteria;
    std::vector<Paar> rijen;
    for (std::size_t lijn = 1; lijn <= paren.size(); ++lijn) {
        letters += LijnLetter(lijn);
        criteria.push_back(std::to_string(lijn));
        for (std::size_t rang = 1; rang <= paren[lijn - 1]; ++rang) {
            const std::string naam = letters.back() + std::to_string(rang);
            rijen.push_back({letters.back(), rang, false, "Noord" + naam, "Zuid" + naam, 5,
                             static_cast<std::int32_t>(60000 - rang)});
        }
    }
    return MaakUitslag(letters, criteria, rijen);
}

void Druk(const QWidget& venster, const char* naam) {
    QTest::mouseClick(Vind<QPushButton>(venster, naam), Qt::LeftButton);
    QCoreApplication::processEvents();
}

std::vector<PdfTekst> LeesPdf(const std::string& pad) {
    constexpr double mmPerPunt = 25.4 / 72;
    constexpr double stijging = 0.905; // from the baseline to the upper edge of a word's box
    constexpr double daling = 0.212;
    std::vector<PdfTekst> woorden;
    int blad = 0;
    QXmlStreamReader xml(LeesMet("pdftotext -bbox", pad));
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) continue;
        if (xml.name() == QLatin1String("page")) ++blad;
        if (xml.name() != QLatin1String("word")) continue;
        const auto getal = [&](const char* naam) {
            return xml.attributes().value(QLatin1String(naam)).toDouble() * mmPerPunt;
        };
        const double boven = getal("yMin");
        const double basis = boven + (getal("yMax") - boven) * stijging / (stijging + daling);
        const double links = getal("xMin");
        woorden.push_back({blad, links, basis, xml.readElementText().toStdString()});
    }
    std::stable_sort(woorden.begin(), woorden.end(), [](const PdfTekst& a, const PdfTekst& b) {
        const auto regel = [](const PdfTekst& woord) { return std::lround(woord.y); };
        return std::tuple(a.blad, regel(a), a.x) < std::tuple(b.blad, regel(b), b.x);
    });
    return woorden;
}

int PdfBladen(const std::string& pad) {
    const QString uit = QString::fromUtf8(LeesMet("pdfinfo", pad));
    const qsizetype plaats = uit.indexOf(QStringLiteral("Pages:"));
    return uit.mid(plaats + 6).section(QLatin1Char('\n'), 0, 0).trimmed().toInt();
}

std::string PdfBlad(const std::string& pad, int blad) {
    std::string tekst;
    for (const PdfTekst& woord : LeesPdf(pad)) {
        if (woord.blad == blad) tekst += (tekst.empty() ? "" : " ") + woord.tekst;
    }
    return tekst;
}

} // namespace lauwerkrans::proef
