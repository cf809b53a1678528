// A window beside the main window: the explanation and the previews.
#pragma once

#include <QWidget>

#include <memory>

#include "ui/klein_scherm.h"

namespace lauwerkrans {

class Bijvenster : public QWidget {
    Q_OBJECT
public:
    /// Escape closes it.
    Bijvenster();

    /// Shows the window and brings it to the front; the first time in the middle of the given one,
    /// within the screen. When that is smaller than its minimum then, it scrolls from then on.
    void toonOver(const QWidget& venster);

private:
    void plaats(const QWidget& midden, const QRect& vrij);

    bool geplaatst_ = false;
    std::unique_ptr<KleinScherm> kleinScherm_;
};

} // namespace lauwerkrans
