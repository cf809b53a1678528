// The help window: one document that explains the program.
#pragma once

#include <QPlainTextEdit>

#include "ui/bijvenster.h"

namespace lauwerkrans {

class frmToelichting : public Bijvenster {
    Q_OBJECT
public:
    frmToelichting();

protected:
    void resizeEvent(QResizeEvent* gebeurtenis) override;

private:
    QPlainTextEdit* Text1;
};

} // namespace lauwerkrans
