#include "ui/frmToelichting.h"

#include <QScrollBar>

#include "ui/maten.h"
#include "ui/stijl.h"
#include "ui/toelichting_tekst.h"

namespace lauwerkrans {

namespace {

// Outer sizes in twips.
constexpr double kleinste = 4000;
constexpr double beginBreedte = 9600;
constexpr double beginHoogte = 7640;

} // namespace

frmToelichting::frmToelichting() : Text1(new QPlainTextEdit(this)) {
    setObjectName(QStringLiteral("frmToelichting"));
    setWindowTitle(QStringLiteral("Toelichting"));
    Text1->setObjectName(QStringLiteral("Text1"));
    Text1->setAccessibleName(windowTitle());
    Text1->setReadOnly(true);
    Text1->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    Text1->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    Text1->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    Text1->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Text1->setPlainText(ToelichtingTekst());
    setMinimumSize(maten::Binnenmaat(kleinste, kleinste));
    resize(maten::Binnenmaat(beginBreedte, beginHoogte));
}

void frmToelichting::resizeEvent(QResizeEvent* gebeurtenis) {
    QWidget::resizeEvent(gebeurtenis);
    const double breedte = maten::PixelsNaarTwips(width()) + maten::kaderBreedte;
    const double hoogte = maten::PixelsNaarTwips(height()) + maten::kaderHoogte;
    maten::Plaats(*Text1, {0, 0, breedte - 120, hoogte - 510});
}

} // namespace lauwerkrans
