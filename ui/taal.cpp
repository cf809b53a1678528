#include "ui/taal.h"

#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <array>
#include <cstring>

namespace lauwerkrans {

namespace {

struct Woord {
    const char* bron;
    const char* nederlands;
};

/// Texts of the print dialog that the catalogue does not have.
constexpr std::array woorden = std::to_array<Woord>({
    {"Double Sided Printing", "Dubbelzijdig afdrukken"},
    {"Off", "Uit"},
    {"Long side binding", "Binden langs de lange zijde"},
    {"Short side binding", "Binden langs de korte zijde"},
});

class EigenWoorden : public QTranslator {
public:
    using QTranslator::QTranslator;

    [[nodiscard]] bool isEmpty() const override { return false; }

    [[nodiscard]] QString translate(const char* context, const char* bron,
                                    const char* /*toelichting*/, int /*aantal*/) const override {
        if (!QByteArrayView(context).contains("Print")) return {};
        const auto* woord =
            std::find_if(woorden.begin(), woorden.end(), [bron](const Woord& kandidaat) {
                return std::strcmp(kandidaat.bron, bron) == 0;
            });
        return woord == woorden.end() ? QString() : QString::fromUtf8(woord->nederlands);
    }
};

} // namespace

void ZetTaal(QCoreApplication& toepassing) {
    const QLocale nederlands(QLocale::Dutch, QLocale::Netherlands);
    QLocale::setDefault(nederlands);
    QCoreApplication::installTranslator(new EigenWoorden(&toepassing));
    auto* catalogus = new QTranslator(&toepassing);
    const QString map = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    if (catalogus->load(QStringLiteral("qtbase_nl"), map)) {
        QCoreApplication::installTranslator(catalogus); // asked before the one above
    }
}

} // namespace lauwerkrans
