// The focus on controls that the style shows none on.
#pragma once

#include <QWidget>

namespace lauwerkrans {

/// A border in the colour of a selection, drawn over a widget while one (that widget itself or
/// another) has the focus. The mouse goes through it.
class FocusRand : public QWidget {
    Q_OBJECT
public:
    FocusRand(QWidget& over, QWidget& wie);

protected:
    void paintEvent(QPaintEvent* gebeurtenis) override;
    bool eventFilter(QObject* object, QEvent* gebeurtenis) override;
};

} // namespace lauwerkrans
