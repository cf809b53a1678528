// The rounds panel: the viewport P10 with the body P11 and the header strip P12, and the scroll bar
// VScroll10 beside it. One row per round of the competition.
#pragma once

#include <QFrame>
#include <QObject>
#include <QPushButton>
#include <QScrollBar>

#include <vector>

#include "data/rondeinfo.h"
#include "ui/tabellijf.h"

namespace lauwerkrans {

class PaneelP10 : public QObject {
    Q_OBJECT
public:
    /// Takes the controls that the window made.
    explicit PaneelP10(QWidget& venster);

    /// Sets up the panel, once.
    void InitP10();

    /// Empties the panel: no header buttons, no rows, the body as large as the viewport and ruled.
    void ToonP10_leeg();

    /// Clears the panel and draws the rounds.
    void Toon_in_P10(const RondeInfo& rondeInfo);

public slots:
    void SubVscroll10_CS(int waarde);
    void SubVscroll10_CH(int waarde);

private:
    [[nodiscard]] double zichtBreedte() const; // inner size of P10 in mm
    [[nodiscard]] double zichtHoogte() const;
    void zetSchuifAan();
    void zetStrip(double hoogteMm);

    QFrame* P10;
    QFrame* P12;
    TabelLijf* P11;
    QPushButton* cmd10_0;
    QScrollBar* VScroll10;
    std::vector<QPushButton*> cmd10_; // element i - 1 is button i
};

} // namespace lauwerkrans
