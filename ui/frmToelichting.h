// The help window: one document that explains the program.
#pragma once

#include <QPlainTextEdit>
#include <QWidget>

namespace lauwerkrans {

class frmToelichting : public QWidget {
    Q_OBJECT
public:
    frmToelichting();

    /// Shows the window, the first time over the given one and within its screen, and brings it to
    /// the front.
    void toonOver(const QWidget& venster);

protected:
    void resizeEvent(QResizeEvent* gebeurtenis) override;

private:
    QPlainTextEdit* Text1;
    bool geplaatst_ = false;
};

} // namespace lauwerkrans
