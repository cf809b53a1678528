#include "sporen_posix.h"

#include <QRegularExpression>

#include <algorithm>
#include <fstream>
#include <set>
#include <stdexcept>

namespace lauwerkrans::proef {

namespace {

/// What the groups of a pattern take of a text, behind the whole of it; empty when it is not there.
QStringList Groepen(const char* patroon, const std::string& tekst) {
    static std::map<const char*, QRegularExpression> patronen;
    auto& gemaakt = patronen[patroon];
    if (gemaakt.pattern().isEmpty()) gemaakt.setPattern(QString::fromLatin1(patroon));
    const auto gevonden = gemaakt.match(QString::fromStdString(tekst));
    return gevonden.hasMatch() ? gevonden.capturedTexts() : QStringList();
}

std::string Groep(const char* patroon, const std::string& tekst) {
    return Groepen(patroon, tekst).value(1).toStdString();
}

/// The paths of a call; one that is no whole path lies in the folder that the call names.
std::vector<std::string> Paden(const std::string& regel) {
    const std::string map = Groep(R"(^\w+\((?:AT_FDCWD|\d+)<([^>]*)>)", regel);
    std::vector<std::string> paden;
    for (std::size_t begin = 0; (begin = regel.find('"', begin)) != std::string::npos;) {
        const std::size_t einde = regel.find('"', begin + 1);
        const std::string naam = regel.substr(begin + 1, einde - begin - 1);
        paden.push_back(naam.starts_with("/") || map.empty() ? naam : map + "/" + naam);
        begin = einde == std::string::npos ? einde : einde + 1;
    }
    return paden;
}

bool Mislukt(const std::string& regel) { return regel.find(") = -1 ") != std::string::npos; }

/// A file that was opened, by the name that it really has.
void VoegOpeningToe(const std::string& regel, std::vector<Spoor>& sporen) {
    const bool schrijft = !Groepen("O_WRONLY|O_RDWR|O_CREAT|O_TRUNC|^creat", regel).isEmpty();
    if (Mislukt(regel) && !schrijft) return;
    const std::string echt = Groep(R"( = \d+<(.*)>(?:\(deleted\))?$)", regel);
    sporen.push_back(
        {schrijft ? Daad::Schrijft : Daad::Leest, echt.empty() ? Paden(regel).at(0) : echt});
}

/// An address, and any family of addresses but that of this machine's own names.
void VoegGesprekToe(const std::string& regel, std::vector<Spoor>& sporen) {
    const std::string familie = Groep(R"(^socket\((\w+))", regel);
    const QStringList eigen = Groepen("sun_path=(@?)\"([^\"]*)\"", regel);
    const std::string poort = ":" + Groep(R"(port=htons\((\d+)\))", regel);
    const std::string kort = Groep("inet_addr\\(\"([^\"]*)\"", regel);
    const std::string lang = Groep("inet_pton\\(AF_INET6, \"([^\"]*)\"", regel);
    const auto voegToe = [&sporen](const std::string& wat) {
        sporen.push_back({Daad::Spreekt, wat});
    };
    if (!familie.empty() && familie != "AF_UNIX") voegToe(familie);
    if (!eigen.isEmpty()) voegToe((eigen[1] + eigen[2]).toStdString());
    if (!kort.empty()) voegToe(kort + poort);
    if (!lang.empty()) voegToe("[" + lang + "]" + poort);
}

void VoegRegelToe(const std::string& regel, std::vector<Spoor>& sporen) {
    static const std::set<std::string> opent = {"open", "openat", "openat2", "creat"};
    static const std::set<std::string> verandert = {
        "rename", "renameat", "renameat2", "unlink",    "unlinkat", "mkdir",   "mkdirat",  "rmdir",
        "link",   "linkat",   "symlink",   "symlinkat", "chmod",    "chown",   "fchmodat", "lchown",
        "mknod",  "mknodat",  "truncate",  "utime",     "utimes",   "fchownat"};
    static const std::set<std::string> spreekt = {"socket", "connect", "bind", "sendto", "sendmsg"};
    static const std::set<std::string> start = {"execve", "execveat", "fork",
                                                "vfork",  "clone",    "clone3"};
    const std::string naam = regel.substr(0, regel.find('('));
    if (opent.contains(naam)) VoegOpeningToe(regel, sporen);
    if (spreekt.contains(naam)) VoegGesprekToe(regel, sporen);
    if (start.contains(naam) && regel.find("CLONE_THREAD") == std::string::npos)
        sporen.push_back({Daad::Start, regel});
    if (!verandert.contains(naam)) return;
    const std::vector<std::string> paden = Paden(regel);
    const bool eersteBlijft = naam.find("link") != std::string::npos && !naam.starts_with("un");
    for (std::size_t i = eersteBlijft ? 1 : 0; i < paden.size(); ++i)
        sporen.push_back({Daad::Schrijft, paden[i]});
}

/// Whether a name is that of a pattern: "*" is a part without "/", "/**" at the end all below.
bool Past(std::string_view patroon, std::string_view tekst) {
    if (patroon.empty()) return tekst.empty();
    if (patroon == "/**") return tekst.empty() || tekst.front() == '/';
    if (patroon.front() != '*') {
        return !tekst.empty() && tekst.front() == patroon.front() &&
               Past(patroon.substr(1), tekst.substr(1));
    }
    if (Past(patroon.substr(1), tekst)) return true;
    return !tekst.empty() && tekst.front() != '/' && Past(patroon, tekst.substr(1));
}

bool LigtBoven(const std::string& pad, const std::map<std::string, std::string>& mappen) {
    const std::string begin = pad.ends_with("/") ? pad : pad + "/";
    return std::any_of(mappen.begin(), mappen.end(), [&begin](const auto& map) {
        return map.second.size() > begin.size() && map.second.starts_with(begin);
    });
}

} // namespace

const std::vector<std::string> straceOpties = {
    "-ff", "-qq", "-y", "-s", "4096", "-e", "trace=%file,%network,%process", "-e", "signal=none"};

std::vector<Spoor> LeesSporen(const std::filesystem::path& begin) {
    std::vector<Spoor> sporen;
    for (const auto& deel : std::filesystem::directory_iterator(begin.parent_path())) {
        if (!deel.path().filename().string().starts_with(begin.filename().string() + ".")) continue;
        std::ifstream bestand(deel.path());
        for (std::string regel; std::getline(bestand, regel);)
            VoegRegelToe(regel, sporen);
    }
    const auto start = std::find_if(sporen.begin(), sporen.end(), [](const Spoor& spoor) {
        return spoor.daad == Daad::Start && spoor.wat.starts_with("execve(");
    });
    if (start == sporen.end()) throw std::runtime_error("no record of a start");
    sporen.erase(start);
    return sporen;
}

std::vector<Recht> LeesRechten(const std::filesystem::path& document) {
    static const std::map<std::string, Daad> koppen = {
        {"## Reads", Daad::Leest}, {"## Writes", Daad::Schrijft}, {"## Talks to", Daad::Spreekt}};
    std::vector<Recht> rechten;
    std::ifstream bestand(document);
    Daad daad = Daad::Leest;
    for (std::string regel; std::getline(bestand, regel);) {
        if (const auto kop = koppen.find(regel); kop != koppen.end()) daad = kop->second;
        const QStringList rij = Groepen(R"(^\| `([^`]+)` \|[^|]*\| *(Print)? *\|$)", regel);
        if (!rij.isEmpty())
            rechten.push_back({{daad, rij[1].toStdString()}, !rij.value(2).isEmpty()});
    }
    return rechten;
}

bool StaatToe(const Recht& recht, const Spoor& spoor,
              const std::map<std::string, std::string>& mappen) {
    if (recht.patroon.daad != spoor.daad) return false;
    std::string patroon = recht.patroon.wat;
    if (patroon == "{above}") return LigtBoven(spoor.wat, mappen);
    for (const auto& [naam, map] : mappen) {
        const std::string begin = "{" + naam + "}";
        if (patroon.starts_with(begin)) patroon.replace(0, begin.size(), map);
    }
    return Past(patroon, spoor.wat);
}

} // namespace lauwerkrans::proef
