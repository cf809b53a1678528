// The program without its window: the readers, the calculation and the settings in the order in
// which the start of the window runs them.
#pragma once

#include "app/modInstellingen.h"
#include "calc/overzicht.h"
#include "storingen_proef.h"

namespace lauwerkrans::proef::storingen {

class KernSessie : public Sessie {
public:
    explicit KernSessie(const std::string& programmaMap);

    bool start() override;
    void bereken() override;
    void sluit() override;
    [[nodiscard]] std::string lijst() const override;
    [[nodiscard]] std::string instellingen() const override;

    /// Types a heading of the lists.
    void zetKop(const std::string& tekst) { instellingen_.KopTekst = tekst; }
    [[nodiscard]] const std::shared_ptr<const Uitslag>& uitslag() const { return uitslag_; }

private:
    /// No error leaves a step; it is shown.
    void bewaak(const std::function<void()>& stap);
    void laad();

    std::string programmaMap_;
    Algemeen algemeen_;
    Instellingen instellingen_;
    IniStand stand_;
    Opties opties_;
    std::shared_ptr<const Uitslag> uitslag_;
};

[[nodiscard]] inline std::unique_ptr<Sessie> MaakKernSessie(const Suite& suite) {
    return std::make_unique<KernSessie>(suite.programmaMap());
}

} // namespace lauwerkrans::proef::storingen
