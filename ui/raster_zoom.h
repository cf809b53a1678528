// Enlarging the result grid with Ctrl and plus, minus, 0 or the wheel.
#pragma once

#include <QObject>
#include <QWidget>

#include <functional>
#include <initializer_list>

namespace lauwerkrans {

/// The keys work everywhere in the window, the wheel over the given controls. Kept until the
/// program ends.
class RasterZoom : public QObject {
    Q_OBJECT
public:
    static constexpr int kleinste = 100; // percent
    static constexpr int grootste = 250;
    static constexpr int stap = 10;

    /// `zet` is called with the new percentage whenever it changes.
    RasterZoom(QWidget& venster, std::initializer_list<QObject*> metWiel,
               std::function<void(int procent)> zet);

    [[nodiscard]] int procent() const { return procent_; }

protected:
    bool eventFilter(QObject* object, QEvent* gebeurtenis) override;

private:
    void stel(int procent);

    std::function<void(int procent)> zet_;
    int procent_ = kleinste;
    int wielRest_ = 0; // turned by the wheel, not enough yet for a step
};

} // namespace lauwerkrans
