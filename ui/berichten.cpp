#include "ui/berichten.h"

#include <QGuiApplication>
#include <QMessageBox>

#include <new>

namespace lauwerkrans {

namespace {

QMessageBox::Icon QtIcoon(Icoon icoon) {
    switch (icoon) {
    case Icoon::Uitroep:
        return QMessageBox::Warning;
    case Icoon::Informatie:
        return QMessageBox::Information;
    case Icoon::Geen:
        break;
    }
    return QMessageBox::NoIcon;
}

} // namespace

void ToonMelding(QWidget* venster, const Melding& melding) {
    QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
    QString tekst = QString::fromStdString(melding.tekst);
    tekst.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    QMessageBox vak(QtIcoon(melding.icoon), QString::fromLatin1(programmaNaam), tekst,
                    QMessageBox::Ok, venster);
    vak.setTextFormat(Qt::PlainText);
    vak.exec();
    QGuiApplication::restoreOverrideCursor();
}

Zandloper::Zandloper() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
Zandloper::~Zandloper() { QGuiApplication::restoreOverrideCursor(); }

void Bewaak(const Melder& meld, const std::function<void()>& handeling,
            const std::function<void(char)>& naCriterium) {
    try {
        handeling();
    } catch (const Fout& fout) {
        meld({FoutTekst(fout), Icoon::Uitroep});
        if (fout.soort == FoutSoort::Criterium && naCriterium) naCriterium(fout.tekst.at(0));
    } catch (const std::bad_alloc&) {
        meld({"Er is niet genoeg geheugen vrij om dit te doen.", Icoon::Uitroep});
    } catch (const std::exception& fout) {
        meld({std::string("Dit is niet gelukt door een fout in het programma:\r\n\r\n") +
                  fout.what(),
              Icoon::Uitroep});
    } catch (...) {
        meld({"Dit is niet gelukt door een onbekende fout in het programma.", Icoon::Uitroep});
    }
}

} // namespace lauwerkrans
