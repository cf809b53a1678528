// Numbers, patterns and the code page: every byte comes back the same.
#include "data/codetabel.h"
#include "data/getallen.h"
#include "suite.h"

using namespace lauwerkrans;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* gegevens, std::size_t lengte) {
    const std::string_view bytes = fuzz::Bytes(gegevens, lengte);
    const std::string utf8 = NaarUtf8(bytes);
    if (NaarCodetabel(utf8) != bytes) __builtin_trap();
    if (Hoofdletters(Hoofdletters(utf8)) != Hoofdletters(utf8)) __builtin_trap();
    const auto duizendsten = PercentageDuizendsten(bytes);
    if (duizendsten && (*duizendsten < 0 || *duizendsten > 100000)) __builtin_trap();
    if (duizendsten.has_value() != IsPercentage(bytes)) __builtin_trap();
    const auto afgerond = Afgerond(bytes, 3);
    if (afgerond && Afgerond(Patroon(*afgerond, 3, 2), 3) != afgerond) __builtin_trap();
    static_cast<void>(LeidendGetal(bytes));
    static_cast<void>(LeidendGetal16(bytes));
    static_cast<void>(HeelGetal(bytes));
    return 0;
}
