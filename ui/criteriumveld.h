// The box for the minimum number of sessions of a line: digits only, and no way to take one back
// but typing over it.
#pragma once

#include <QLineEdit>

namespace lauwerkrans {

/// Every key that makes a character other than 0-9, Enter, backspace and pasting are swallowed;
/// Delete, the arrows, Home, End, Tab, function keys and shortcuts work. Input methods, dropping,
/// the middle button and the context menu are closed. The text is selected whenever the box gets
/// the focus, so that typing replaces it.
class Criteriumveld : public QLineEdit {
    Q_OBJECT
public:
    explicit Criteriumveld(QWidget* houder);

signals:
    /// The focus went to another control of the same window.
    void verlaten();

protected:
    void keyPressEvent(QKeyEvent* gebeurtenis) override;
    void focusInEvent(QFocusEvent* gebeurtenis) override;
    void focusOutEvent(QFocusEvent* gebeurtenis) override;
    void mousePressEvent(QMouseEvent* gebeurtenis) override;
    void mouseReleaseEvent(QMouseEvent* gebeurtenis) override;

private:
    bool kiesAllesNaKlik_ = false;
};

} // namespace lauwerkrans
