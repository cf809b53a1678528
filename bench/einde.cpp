// Ends a program at the moment that its window can be used: painted, and the event loop waiting
// again. The toolkit loads this library by its own hook for tests (QT_LOAD_TESTABILITY=1), into the
// program as it is delivered and into the bare window alike. Exit status: 0 a window, 3 a dialog
// (another copy is running, or the competition is not read).
#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QTimer>

#include <cstdlib>

namespace {

class Einde : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* object, QEvent* gebeurtenis) override {
        const auto* element = qobject_cast<QWidget*>(object);
        if (gebeurtenis->type() == QEvent::Paint && element != nullptr && element->isWindow()) {
            const bool dialoog = qobject_cast<const QDialog*>(element) != nullptr;
            QTimer::singleShot(0, [dialoog] { std::_Exit(dialoog ? 3 : 0); });
        }
        return QObject::eventFilter(object, gebeurtenis);
    }
};

} // namespace

extern "C" Q_DECL_EXPORT void qt_testability_init() {
    QCoreApplication::instance()->installEventFilter(new Einde(QCoreApplication::instance()));
}
