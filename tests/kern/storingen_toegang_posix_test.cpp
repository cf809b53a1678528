// Files that the user may not read, in a process of a user who is not the administrator.
#include <array>
#include <sstream>
#include <system_error>

#include <gtest/gtest.h>

#include <pwd.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "data/fout.h"
#include "storingen_kern.h"

namespace lauwerkrans::proef::storingen {
namespace {

/// What a child process writes; empty when it does not end well.
std::string UitKind(const std::function<std::string()>& werk) {
    std::array<int, 2> buis{};
    if (::pipe(buis.data()) != 0) return {};
    const pid_t kind = ::fork();
    if (kind == 0) {
        const std::string tekst = werk();
        const bool heel =
            ::write(buis[1], tekst.data(), tekst.size()) == static_cast<ssize_t>(tekst.size());
        ::_exit(heel ? 0 : 1);
    }
    ::close(buis[1]);
    std::string tekst;
    std::array<char, 4096> deel{};
    for (ssize_t n = 0; (n = ::read(buis[0], deel.data(), deel.size())) > 0;)
        tekst.append(deel.data(), static_cast<std::size_t>(n));
    ::close(buis[0]);
    int stand = 0;
    ::waitpid(kind, &stand, 0);
    return WIFEXITED(stand) && WEXITSTATUS(stand) == 0 ? tekst : std::string();
}

/// Becomes a user who may not read everything; false where the system does not let it.
bool WordtNiemand() {
    if (::geteuid() != 0) return true;
    const ::passwd* niemand = ::getpwnam("nobody");
    return niemand != nullptr && ::setuid(niemand->pw_uid) == 0 && ::geteuid() != 0;
}

void Schrijf(std::ostream& uit, const Suite& suite, Sessie& sessie) {
    for (const Melding& melding : sessie.neem())
        uit << suite.zonderMap(melding.tekst) << '\n';
}

/// A start and a calculation: the messages, then the list.
std::string Verslag(const Suite& suite) {
    std::ostringstream uit;
    const auto sessie = MaakKernSessie(suite);
    const bool gestart = sessie->start();
    Schrijf(uit, suite, *sessie);
    if (gestart) sessie->bereken();
    Schrijf(uit, suite, *sessie);
    uit << sessie->lijst();
    return uit.str();
}

/// The messages of a start and a calculation.
std::vector<std::string> Berichten(const Verwacht& verwacht) {
    std::vector<std::string> berichten = verwacht.start;
    berichten.insert(berichten.end(), verwacht.bereken.begin(), verwacht.bereken.end());
    for (std::string& bericht : berichten) {
        const auto plaats = bericht.find("<reden>");
        if (plaats != std::string::npos) bericht.replace(plaats, 7, "geen toegang");
    }
    return berichten;
}

std::string Hoort(const Verwacht& verwacht) {
    std::string tekst;
    for (const std::string& bericht : Berichten(verwacht))
        tekst += bericht + "\n";
    return tekst + verwacht.lijst;
}

class Toegang : public testing::TestWithParam<std::string> {};

TEST_P(Toegang, ThatIsMissingIsSaidWithTheReason) {
    const Suite suite;
    const auto alsNiemand = [&] { return WordtNiemand() ? Verslag(suite) : "no other user"; };
    if (UitKind(alsNiemand) != goedeLijst)
        GTEST_SKIP() << "No other user can be had who reads the club's folder: "
                     << UitKind(alsNiemand);
    const Suitebestand& bestand = Bestand(GetParam());
    const std::string pad = suite.map().pad() + "/" + bestand.pad;
    ASSERT_EQ(::chmod(pad.c_str(), 0), 0);
    for (const Storing& storing : Storingen(bestand.naam)) {
        if (storing.naam != onleesbaar) continue;
        EXPECT_EQ(UitKind(alsNiemand), Hoort(storing.verwacht));
        Waarneming gezien;
        gezien.invoer = 1;
        for (const std::string& bericht : Berichten(storing.verwacht))
            ++gezien.teksten[bericht];
        DrukAf(bestand.naam, "no permission", gezien);
    }
    ASSERT_EQ(::chmod(pad.c_str(), S_IRWXU), 0);
}

INSTANTIATE_TEST_SUITE_P(Storingen, Toegang, testing::ValuesIn(Bestandsnamen()), Testnaam);

} // namespace
} // namespace lauwerkrans::proef::storingen
