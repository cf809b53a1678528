// An eyewitness inside the real program, by the toolkit's own hook for tests: with
// QT_LOAD_TESTABILITY=1 it loads this library and calls the function at the end. What the user sees
// is written to standard output, a line for each window and box; a window with the place of its
// frame, its size within the frame and the free area of its screen. A letter on standard input does
// what the user would do.
#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QSocketNotifier>

#include <cstdio>

#include <unistd.h>

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
            Zeg("bericht " + bericht->windowTitle().toUtf8() + '|' + bericht->text().toUtf8() +
                "|icoon " + QByteArray::number(bericht->icon()) + "|knoppen " +
                QByteArray::number(int{bericht->standardButtons()}));
        } else {
            Zeg("venster " + element.windowTitle().toUtf8() + '|' +
                Tekst({element.pos(), element.size()}) + '|' +
                Tekst(element.screen()->availableGeometry()));
        }
    }

    /// 'o' answers the message box, 'e' presses "Einde", 't' "Toelichting".
    void lees() {
        char letter = '\0';
        if (::read(0, &letter, 1) != 1) {
            invoer_.setEnabled(false);
            return;
        }
        if (letter == 'o') {
            auto* bericht = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (bericht != nullptr) bericht->button(QMessageBox::Ok)->click();
        }
        if (letter == 'e') druk(QStringLiteral("cmdEinde"));
        if (letter == 't') druk(QStringLiteral("cmdToelichting"));
    }

    static void druk(const QString& naam) {
        for (const QWidget* venster : QApplication::topLevelWidgets()) {
            auto* knop = venster->findChild<QPushButton*>(naam);
            if (knop != nullptr) knop->click();
        }
    }

    QSocketNotifier invoer_;
};

} // namespace

extern "C" Q_DECL_EXPORT void qt_testability_init() {
    new Getuige(QCoreApplication::instance()); // its parent deletes it
}
