#include "output/toegang_blad.h"

#include <QAccessibleWidget>

#include <algorithm>

#include "output/voorbeeld.h"

namespace lauwerkrans {

namespace {

/// A text without a cursor; nothing in it can be selected or changed.
class BladToegang : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    explicit BladToegang(QWidget* blad) : QAccessibleWidget(blad, QAccessible::Document) {}

    void* interface_cast(QAccessible::InterfaceType soort) override {
        if (soort == QAccessible::TextInterface)
            return static_cast<QAccessibleTextInterface*>(this);
        return QAccessibleWidget::interface_cast(soort);
    }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State staat = QAccessibleWidget::state();
        staat.readOnly = true;
        staat.multiLine = true;
        return staat;
    }

    using QAccessibleWidget::text;
    [[nodiscard]] QString text(int begin, int eind) const override {
        return tekst().mid(begin, std::max(eind - begin, 0));
    }
    [[nodiscard]] int characterCount() const override { return static_cast<int>(tekst().size()); }
    [[nodiscard]] QString attributes(int /*plaats*/, int* begin, int* eind) const override {
        *begin = 0;
        *eind = characterCount();
        return {};
    }
    [[nodiscard]] int cursorPosition() const override { return 0; }
    void setCursorPosition(int /*plaats*/) override {}
    void selection(int /*nummer*/, int* begin, int* eind) const override { *begin = *eind = 0; }
    [[nodiscard]] int selectionCount() const override { return 0; }
    void addSelection(int /*begin*/, int /*eind*/) override {}
    void removeSelection(int /*nummer*/) override {}
    void setSelection(int /*nummer*/, int /*begin*/, int /*eind*/) override {}
    /// The page is one picture: a letter's place is that of the page.
    [[nodiscard]] QRect characterRect(int /*plaats*/) const override { return rect(); }
    [[nodiscard]] int offsetAtPoint(const QPoint& /*punt*/) const override { return -1; }
    void scrollToSubstring(int /*begin*/, int /*eind*/) override {}

private:
    [[nodiscard]] const QString& tekst() const {
        return static_cast<const BladVlak*>(widget())->tekst();
    }
};

QAccessibleInterface* Maak(const QString& klasse, QObject* object) {
    if (klasse != QLatin1String(BladVlak::staticMetaObject.className())) return nullptr;
    return new BladToegang(static_cast<QWidget*>(object));
}

} // namespace

void InstalleerBladToegang() {
    static const bool klaar = (QAccessible::installFactory(Maak), true);
    static_cast<void>(klaar);
}

void MeldAnderBlad(BladVlak& blad, const QString& oud) {
    if (oud == blad.tekst()) return;
    QAccessibleTextUpdateEvent gebeurtenis(&blad, 0, oud, blad.tekst());
    QAccessible::updateAccessibility(&gebeurtenis);
}

} // namespace lauwerkrans
