#include <iostream>

#include "tools/lijst_programma.h"

int main(int aantal, char** woorden) {
    std::ios::sync_with_stdio(false); // a long list then goes out in large pieces
    const auto uitgang = lauwerkrans::lijst::Voer(
        {woorden + (aantal > 0 ? 1 : 0), woorden + aantal}, std::cout, std::cerr);
    std::cout.flush();
    if (!std::cout) {
        std::cerr << "De lijst kan niet worden geschreven.\n";
        return lauwerkrans::lijst::Mislukt;
    }
    return uitgang;
}
