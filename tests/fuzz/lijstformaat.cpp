// The list format: the quick way of splitting a line gives what the general one gives.
#include <algorithm>
#include <array>

#include "data/achttal.h"
#include "data/lijstformaat.h"
#include "suite.h"

using namespace lauwerkrans;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* gegevens, std::size_t lengte) {
    std::string tekst(fuzz::Bytes(gegevens, lengte));
    LijstLezer lezer(tekst);
    while (lezer.volgende()) {
    }
    tekst.append(achttal::opvulling, '\0'); // as a read file has behind it
    const std::string_view bytes(tekst.data(), lengte);
    std::array<std::string_view, 7> vlug;
    const std::size_t gebruikt = SplitsGewoneRegel(bytes, vlug);
    if (gebruikt == 0) return 0;
    const std::string_view regel = bytes.substr(0, bytes.find_first_of("\r\n"));
    std::array<std::string_view, 8> gewoon;
    if (SplitsRegel(regel, gewoon.data(), gewoon.size()) != vlug.size()) __builtin_trap();
    if (!std::equal(vlug.begin(), vlug.end(), gewoon.begin())) __builtin_trap();
    return 0;
}
