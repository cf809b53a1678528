// The main window and the settings: from the stored values to the controls, and back.
#include <QCheckBox>
#include <QLineEdit>

#include "ui/frmMain.h"
#include "ui/ontwerp.h"

namespace lauwerkrans {

namespace {

/// The boxes of the keys CHK1= to CHK4=.
constexpr std::array<const char*, 4> vinkjes = {"chkGewogen", "chkZitDetails", "chkGemAlleLijnen",
                                                "chkBuiMed"};

} // namespace

void frmMain::pasToe(const IniWaarden& waarden) {
    for (std::size_t i = 0; i < vinkjes.size(); ++i) {
        const auto& aan = waarden.vinkjes.at(i);
        if (aan) Vind<QCheckBox>(*this, vinkjes.at(i))->setChecked(*aan);
    }
    for (const auto& [lijn, tekst] : waarden.criteria)
        rijen_->zetCriterium(lijn, tekst);
    if (waarden.KopTekst) toonKopTekst();
}

IniStand frmMain::stand() {
    neemKopTekstOver();
    IniStand stand;
    for (std::size_t i = 0; i < vinkjes.size(); ++i) {
        stand.vinkjes.at(i) = Vind<QCheckBox>(*this, vinkjes.at(i))->isChecked();
    }
    stand.criteria = rijen_->criteria();
    stand.lijnenBekend = lijnenBekend_;
    return stand;
}

/// The heading is one line of the settings and of the lists. A text that was pasted may hold line
/// ends and tabs; the box shows them as blanks, and blanks they become.
void frmMain::neemKopTekstOver() {
    QString kop = Vind<QLineEdit>(*this, "txtKop1")->text();
    kop.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    for (QChar& teken : kop) {
        if (teken < QLatin1Char(' ')) teken = QLatin1Char(' ');
    }
    instellingen_.KopTekst = kop.toStdString();
}

void frmMain::toonKopTekst() {
    Vind<QLineEdit>(*this, "txtKop1")->setText(QString::fromStdString(instellingen_.KopTekst));
}

} // namespace lauwerkrans
