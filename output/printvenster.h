// What the two previews share: the list they hold, its picture, printing and exporting it.
#pragma once

#include <QWidget>

#include <memory>
#include <span>

#include "output/printen.h"
#include "output/uitvoer.h"
#include "output/voorbeeld.h"
#include "ui/bijvenster.h"
#include "ui/ontwerp.h"

namespace lauwerkrans {

class Printvenster : public Bijvenster {
    Q_OBJECT
public:
    /// A window with the controls of a table and those that both have; places on its right side
    /// follow its size.
    Printvenster(const char* naam, std::span<const Ontwerp> ontwerp, Printomgeving omgeving);

    /// Takes a list over and shows its first page.
    void vul(const Uitvoer& uitvoer);

    /// The list on show, with the error flag of the last export or print.
    [[nodiscard]] const Uitvoer& uitvoer() const { return uitvoer_; }
    [[nodiscard]] const Voorbeeld& voorbeeld() const { return *voorbeeld_; }

    /// "Print": asks for a printer and prints.
    void cmdPrinten_Click();

protected:
    void resizeEvent(QResizeEvent* gebeurtenis) override;

    /// Divides the list over pages, and shows the first.
    virtual void pagineer() = 0;
    /// The list in pages for paper of this height.
    [[nodiscard]] virtual std::unique_ptr<Bladen> bladen(double hoogte) const = 0;
    virtual void maakCSV() = 0;
    /// What follows when the pages are printed.
    virtual void naPrinten() {}

    [[nodiscard]] Uitvoer& lijst() { return uitvoer_; }
    [[nodiscard]] Voorbeeld& beeld() { return *voorbeeld_; }
    /// Calls `werk` on a click on a button; no exception leaves it.
    void verbind(const char* knop, std::function<void()> werk);

private:
    Uitvoer uitvoer_;
    Printomgeving omgeving_;
    Voorbeeld* voorbeeld_;
};

} // namespace lauwerkrans
