// The other process of the tests: it says that it is ready, waits for the sign to start, and does
// what it was told until it is ended. Arguments: the names of the two events, the task, its object.
#include <string>

#include <windows.h>

#include "data/systeem.h"

namespace {

HANDLE Gebeurtenis(const char* naam) { return ::CreateEventA(nullptr, TRUE, FALSE, naam); }

int Vervang(const std::string& pad) {
    const std::string bytes(30'000, 'n');
    for (;;)
        static_cast<void>(lauwerkrans::systeem::VervangBestand(pad, bytes));
}

int WeesDeEnige(const std::string& naam) {
    const lauwerkrans::systeem::EnigeKopie kopie(naam);
    if (!kopie.gelukt()) return 1;
    ::Sleep(INFINITE);
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 5) return 2;
    ::SetEvent(Gebeurtenis(argv[1]));
    ::WaitForSingleObject(Gebeurtenis(argv[2]), INFINITE);
    return std::string(argv[3]) == "vervang" ? Vervang(argv[4]) : WeesDeEnige(argv[4]);
}
