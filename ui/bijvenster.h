// A window beside the main window: the explanation and the previews.
#pragma once

#include <QWidget>

namespace lauwerkrans {

class Bijvenster : public QWidget {
    Q_OBJECT
public:
    /// Escape closes it.
    Bijvenster();

    /// Shows the window and brings it to the front; the first time in the middle of the given one,
    /// within the screen.
    void toonOver(const QWidget& venster);

private:
    bool geplaatst_ = false;
};

} // namespace lauwerkrans
