// The toolkit's own texts in Dutch.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMenu>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>

#include <memory>

#include "ui/taal.h"

namespace lauwerkrans {
namespace {

QString Tekst(QDialogButtonBox::StandardButton knop) {
    const QDialogButtonBox knoppen(knop);
    return knoppen.button(knop)->text().remove(QLatin1Char('&'));
}

TEST(Taal, StandardButtonsAreDutch) {
    ZetTaal(*qApp);
    EXPECT_EQ(Tekst(QDialogButtonBox::Cancel), QStringLiteral("Annuleren"));
    EXPECT_EQ(Tekst(QDialogButtonBox::Yes), QStringLiteral("Ja"));
    EXPECT_EQ(Tekst(QDialogButtonBox::Close), QStringLiteral("Sluiten"));
}

TEST(Taal, TheMenuOfAnInputBoxIsDutch) {
    ZetTaal(*qApp);
    QLineEdit veld;
    const std::unique_ptr<QMenu> menu(veld.createStandardContextMenu());
    QStringList teksten;
    for (const QAction* actie : menu->actions())
        teksten.append(actie->text().section(QLatin1Char('\t'), 0, 0).remove(QLatin1Char('&')));
    EXPECT_TRUE(teksten.contains(QStringLiteral("Plakken")))
        << teksten.join(QLatin1Char(' ')).toStdString();
}

#ifndef _WIN32 // there the dialog is that of Windows, in its language
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
#endif

} // namespace
} // namespace lauwerkrans
