// The preview of the champion list: its pages one at a time, printed line by line.
#pragma once

#include "output/printvenster.h"

namespace lauwerkrans {

class frmPrinten : public Printvenster {
    Q_OBJECT
public:
    explicit frmPrinten(Printomgeving omgeving);
    frmPrinten(const frmPrinten&) = delete;
    frmPrinten(frmPrinten&&) = delete;
    frmPrinten& operator=(const frmPrinten&) = delete;
    frmPrinten& operator=(frmPrinten&&) = delete;
    ~frmPrinten() override;

    /// Empties the list on show.
    void leeg();

    /// The pages of the list, and the one on show.
    [[nodiscard]] std::size_t aantalBladen() const { return bladen_->aantal(); }
    [[nodiscard]] std::size_t bladnummer() const;

protected:
    bool eventFilter(QObject* object, QEvent* gebeurtenis) override;
    void pagineer() override;
    [[nodiscard]] std::unique_ptr<Bladen> bladen(double hoogte) const override;
    void maakCSV() override;
    void naPrinten() override;

private:
    void toonBlad();
    void slaOm(int richting);
    void neemBladOver(); // the number typed in txtBlad

    std::shared_ptr<const Bladen> bladen_;
};

} // namespace lauwerkrans
