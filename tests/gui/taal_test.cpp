// The toolkit's own texts in Dutch.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>

#include "ui/taal.h"

namespace lauwerkrans {
namespace {

TEST(Taal, ThePrintDialogIsDutch) {
    ZetTaal(*qApp);
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    QPrintDialog dialoog(&printer);
    EXPECT_EQ(dialoog.windowTitle(), QStringLiteral("Afdrukken"));
    QStringList teksten;
    for (const auto* knop : dialoog.findChildren<QAbstractButton*>())
        teksten.append(knop->text());
    for (const char* verwacht : {"A&fdrukken", "Annuleren", "Alles afdrukken", "Uit",
                                 "Binden langs de lange zijde", "Binden langs de korte zijde"}) {
        EXPECT_TRUE(teksten.contains(QLatin1String(verwacht))) << verwacht;
    }
    for (const char* engels : {"Off", "Print", "&Print", "Cancel", "Long side binding"}) {
        EXPECT_FALSE(teksten.contains(QLatin1String(engels))) << engels;
    }
}

} // namespace
} // namespace lauwerkrans
