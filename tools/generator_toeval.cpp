#include "tools/generator_toeval.h"

namespace lauwerkrans::generator {

int Toeval::onder(int grens) {
    const auto breedte = static_cast<std::uint64_t>(grens);
    // Draws from the incomplete last stretch would favour the low numbers; they are drawn again.
    const std::uint64_t einde = std::mt19937_64::max() - std::mt19937_64::max() % breedte;
    std::uint64_t getrokken = motor_();
    while (getrokken >= einde)
        getrokken = motor_();
    return static_cast<int>(getrokken % breedte);
}

int Toeval::tussen(int laag, int hoog) { return laag + onder(hoog - laag + 1); }

int Toeval::klok(int breedte) {
    int som = 0;
    for (int keer = 0; keer < 4; ++keer)
        som += tussen(-breedte, breedte);
    return som;
}

} // namespace lauwerkrans::generator
