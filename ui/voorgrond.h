// The window that a message belongs to.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace lauwerkrans {

/// Follows which window is worked in, from its making on. While the system passes the focus on,
/// such as behind a dialog that has just closed, no window is active; a message over the wrong one
/// would then cover the window that it is about.
class Voorgrond {
public:
    Voorgrond();

    /// The active window, else the last one that was and is still on show; may be nullptr.
    [[nodiscard]] QWidget* venster() const;

private:
    QPointer<QWidget> laatste_; // not a dialog but the window that it stands over
    QObject volger_;            // ends the following with this object
};

} // namespace lauwerkrans
