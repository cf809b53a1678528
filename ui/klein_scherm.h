// A screen that is smaller than a window's minimum: the window is shown inside a scrolling one that
// takes the whole free area.
#pragma once

#include <QScrollArea>

namespace lauwerkrans {

/// Holds a window whose minimum does not fit on the screen. Closing either closes both. The held
/// window stays its owner's.
class KleinScherm : public QScrollArea {
    Q_OBJECT
public:
    explicit KleinScherm(QWidget& venster);
    KleinScherm(const KleinScherm&) = delete;
    KleinScherm(KleinScherm&&) = delete;
    KleinScherm& operator=(const KleinScherm&) = delete;
    KleinScherm& operator=(KleinScherm&&) = delete;
    ~KleinScherm() override;

    /// Whether a window needs this on a screen with such a free area.
    [[nodiscard]] static bool nodig(const QWidget& venster, const QRect& vrij);

    /// Shows it over the whole of a free area, also where nobody maximises windows.
    void toon(const QRect& vrij);

protected:
    void closeEvent(QCloseEvent* gebeurtenis) override;
    bool eventFilter(QObject* object, QEvent* gebeurtenis) override;

private:
    QWidget& venster_;
};

} // namespace lauwerkrans
