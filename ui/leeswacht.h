// The window while a reading takes long: its caption says how far it is, and it takes no input.
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <chrono>
#include <functional>
#include <vector>

#include "data/voortgang.h"

namespace lauwerkrans {

/// Tells the time; only differences count.
using Klok = std::function<std::chrono::steady_clock::time_point()>;

/// Everything stays in one thread: between two files the windows are repainted. From then until the
/// reading ends, mouse and keyboard do nothing, and a window that is asked to close does so when
/// the button that started the reading has been handled and its message, if any, answered. A
/// message of the reading itself can be answered as always.
class Leeswacht : public QObject {
    Q_OBJECT
public:
    /// Shows the progress in the caption of the window on the screen that holds `venster`.
    Leeswacht(QWidget& venster, Voortgang& voortgang, Klok klok);

    /// Runs a reading that tells its progress to the Voortgang. What it throws goes on to the
    /// caller, with the caption as it was.
    void bewaak(const std::function<void()>& lezing);

    [[nodiscard]] bool bezig() const { return bezig_; }

    /// Does something, now or when the reading has been handled.
    void daarna(const std::function<void()>& werk);

    /// Shorter readings show nothing.
    static constexpr std::chrono::milliseconds geduld{1000};
    /// From one progress on show to the next.
    static constexpr std::chrono::milliseconds tussenpoos{100};

protected:
    bool eventFilter(QObject* object, QEvent* gebeurtenis) override;

private:
    [[nodiscard]] bool isTijd() const;
    void toon(std::size_t gelezen, std::size_t totaal);
    void begin();
    void eindig();

    QWidget& venster_;
    Voortgang& voortgang_;
    Klok klok_;
    bool bezig_ = false;
    std::chrono::steady_clock::time_point volgende_; // progress is shown from this time on
    QPointer<QWidget> getoondIn_;                    // the window with the progress; none yet
    QString bijschrift_;                             // its own
    std::vector<std::function<void()>> uitgesteld_;
};

} // namespace lauwerkrans
