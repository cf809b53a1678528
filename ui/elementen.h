// The controls that the toolkit does not have as they are needed here.
#pragma once

#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QObject>

namespace lauwerkrans {

/// A frame: a thin border with the caption in it, at the top. Only the caption has the colour.
class Kader : public QGroupBox {
    Q_OBJECT
public:
    Kader(QWidget* houder, bool vet, QColor titelKleur);

protected:
    void paintEvent(QPaintEvent* gebeurtenis) override;

private:
    bool vet_;
    QColor titelKleur_;
};

/// A heading of one line: a text that is too long is written in smaller letters, from 16 pixels
/// down to 12, and then cut short with the whole text as tool tip.
class KopLabel : public QLabel {
    Q_OBJECT
public:
    explicit KopLabel(QWidget* houder) : QLabel(houder) {}

    /// The whole text, whatever fits.
    [[nodiscard]] QString bijschrift() const { return bijschrift_; }
    void zetBijschrift(const QString& tekst);

signals:
    void geklikt();

protected:
    void resizeEvent(QResizeEvent* gebeurtenis) override;
    void mousePressEvent(QMouseEvent* gebeurtenis) override;

private:
    void pasIn();

    QString bijschrift_;
};

/// A panel. Its contents may be larger than itself and lie partly outside it; they never cover its
/// border.
class Paneel : public QFrame {
    Q_OBJECT
public:
    Paneel(QWidget* houder, bool metRand);

protected:
    void childEvent(QChildEvent* gebeurtenis) override;
    void resizeEvent(QResizeEvent* gebeurtenis) override;

private:
    QWidget* rand_ = nullptr; // lies over the contents and lets the mouse through
};

/// A straight line in a panel, from (x1, y1) to (x2, y2) in millimetres of the panel. The panel
/// that it lies in draws it.
class Streep : public QObject {
    Q_OBJECT
public:
    explicit Streep(QObject* paneel) : QObject(paneel) {}

    double x1 = 0;
    double y1 = 0;
    double x2 = 0;
    double y2 = 0;
    bool zichtbaar = false;
};

} // namespace lauwerkrans
