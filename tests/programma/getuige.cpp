// An eyewitness inside the real program, by the toolkit's own hook for tests: with
// QT_LOAD_TESTABILITY=1 it loads this library and calls the function at the end. What the user sees
// is written to standard output, a line for each window and box; a window with the place of its
// frame, its size within the frame and the free area of its screen. Standard input does what the
// user would do: a letter, for some with a line behind it.
#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <QSocketNotifier>

#include <cstdio>
#include <new>
#include <stdexcept>

#include <unistd.h>

#include "data/fout.h"

namespace {

QByteArray Tekst(const QRect& vak) {
    QByteArray tekst;
    for (const int getal : {vak.x(), vak.y(), vak.width(), vak.height()})
        tekst += ' ' + QByteArray::number(getal);
    return tekst;
}

void Zeg(const QByteArray& regel) {
    static_cast<void>(std::fprintf(stdout, "%s\n", regel.constData()));
    static_cast<void>(std::fflush(stdout));
}

class Getuige : public QObject {
public:
    explicit Getuige(QObject* toepassing) : QObject(toepassing), invoer_(0, QSocketNotifier::Read) {
        toepassing->installEventFilter(this);
        connect(&invoer_, &QSocketNotifier::activated, this, [this] { lees(); });
    }

    bool eventFilter(QObject* object, QEvent* gebeurtenis) override {
        const auto* element = qobject_cast<QWidget*>(object);
        if (gebeurtenis->type() == QEvent::Show && element != nullptr && element->isWindow()) {
            // Its first moments over: a window may still be on its way to its size.
            QMetaObject::invokeMethod(
                object, [element] { meld(*element); }, Qt::QueuedConnection);
        }
        return QObject::eventFilter(object, gebeurtenis);
    }

private:
    static void meld(const QWidget& element) {
        if (const auto* bericht = qobject_cast<const QMessageBox*>(&element)) {
            Zeg("bericht " + bericht->windowTitle().toUtf8() + '|' +
                bericht->text().toUtf8().replace('\n', '@') + "|icoon " +
                QByteArray::number(bericht->icon()) + "|knoppen " +
                QByteArray::number(int{bericht->standardButtons()}));
        } else {
            Zeg("venster " + element.windowTitle().toUtf8() + '|' +
                Tekst({element.pos(), element.size()}) + '|' +
                Tekst(element.screen()->availableGeometry()));
        }
    }

    /// 'o' answers the message box or dialog, 'e' presses "Einde", 't' "Toelichting"; 'k' the
    /// button that is named behind it, 'z' types into a box: "kfrmMain.cmd1_0",
    /// "zfrmMain.txt1_1.13". 'g' throws what is named, out of the handler of an event.
    void lees() {
        char letter = '\0';
        if (::read(0, &letter, 1) != 1) ::_exit(9); // the test is gone: no orphan
        if (letter == 'o') {
            QWidget* dialoog = QApplication::activeModalWidget();
            if (auto* bericht = qobject_cast<QMessageBox*>(dialoog)) {
                bericht->button(QMessageBox::Ok)->click();
            } else if (dialoog != nullptr) {
                QMetaObject::invokeMethod(dialoog, "accept", Qt::QueuedConnection);
            }
        }
        if (letter == 'e') druk("frmMain.cmdEinde");
        if (letter == 't') druk("frmMain.cmdToelichting");
        if (letter == 'k') druk(regel());
        if (letter == 'z') typ(regel());
        if (letter == 'g') gooi(regel());
    }

    static QByteArray regel() {
        QByteArray tekst;
        char letter = '\0';
        while (::read(0, &letter, 1) == 1 && letter != '\n')
            tekst += letter;
        return tekst;
    }

    /// The control of a name: window, point, control.
    template <class Element>
    static Element* vind(const QByteArray& naam) {
        const QList<QByteArray> delen = naam.split('.');
        for (const QWidget* venster : QApplication::allWidgets()) {
            if (venster->objectName() != QLatin1String(delen[0])) continue;
            return venster->findChild<Element*>(QString::fromLatin1(delen.value(1)));
        }
        return nullptr;
    }

    /// Presses a button when this event has been left: what it does may open a box.
    static void druk(const QByteArray& naam) {
        auto* knop = vind<QAbstractButton>(naam);
        if (knop == nullptr) return Zeg("geen knop " + naam);
        QMetaObject::invokeMethod(knop, &QAbstractButton::click, Qt::QueuedConnection);
    }

    static void typ(const QByteArray& opdracht) {
        auto* vak = vind<QLineEdit>(opdracht);
        if (vak == nullptr) return Zeg("geen vak " + opdracht);
        vak->setText(QString::fromUtf8(opdracht.mid(opdracht.lastIndexOf('.') + 1)));
    }

    static void gooi(const QByteArray& wat) {
        if (wat == "geheugen") throw std::bad_alloc();
        if (wat == "fout") {
            lauwerkrans::Fout fout(lauwerkrans::FoutSoort::BestandEindigtTeVroeg);
            fout.bestand = "kort.txt";
            throw fout;
        }
        if (wat == "programma") throw std::runtime_error("proef");
        throw 42;
    }

    QSocketNotifier invoer_;
};

} // namespace

extern "C" Q_DECL_EXPORT void qt_testability_init() {
    new Getuige(QCoreApplication::instance()); // its parent deletes it
}
