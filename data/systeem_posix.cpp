#include "data/systeem.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstring>
#include <iterator>
#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "data/achttal.h"

namespace lauwerkrans::systeem {

namespace {

/// A file that would grow over the user's limit is an error of its writing, from the start on; by
/// itself the system would end the program.
const auto bijGrens = std::signal(SIGXFSZ, SIG_IGN);

std::error_code LaatsteFout() { return {errno, std::generic_category()}; }

/// An open file that is closed with its owner.
class Bestandsgreep {
public:
    explicit Bestandsgreep(int greep) : greep_(greep) {}
    Bestandsgreep(const Bestandsgreep&) = delete;
    Bestandsgreep(Bestandsgreep&&) = delete;
    Bestandsgreep& operator=(const Bestandsgreep&) = delete;
    Bestandsgreep& operator=(Bestandsgreep&&) = delete;
    ~Bestandsgreep() {
        if (greep_ >= 0) ::close(greep_);
    }

    [[nodiscard]] bool open() const { return greep_ >= 0; }
    /// Why it is no file with contents of its own; a folder counts as no such file.
    [[nodiscard]] std::error_code geenBestand() const {
        struct ::stat gegevens {};
        if (::fstat(greep_, &gegevens) != 0) return LaatsteFout();
        if (S_ISREG(gegevens.st_mode)) return {};
        return std::make_error_code(S_ISDIR(gegevens.st_mode) ? std::errc::no_such_file_or_directory
                                                              : std::errc::file_exists);
    }
    [[nodiscard]] ssize_t lees(char* naar, std::size_t aantal) const {
        ssize_t gelezen = -1;
        do {
            gelezen = ::read(greep_, naar, aantal);
        } while (gelezen < 0 && errno == EINTR);
        return gelezen;
    }
    [[nodiscard]] ssize_t schrijf(std::string_view bytes) const {
        ssize_t geschreven = -1;
        do {
            geschreven = ::write(greep_, bytes.data(), bytes.size());
        } while (geschreven < 0 && errno == EINTR);
        return geschreven;
    }
    [[nodiscard]] bool spoel() const { return ::fsync(greep_) == 0; }

private:
    int greep_;
};

/// Writes a new file wholly and onto the disk. What an earlier time left half there is taken away
/// first; a link of that name is not followed.
std::error_code SchrijfEnSpoel(const std::string& pad, std::string_view bytes) {
    constexpr int vlaggen = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
    constexpr ::mode_t rechten = 0666; // less the user's own mask
    ::unlink(pad.c_str());
    const Bestandsgreep greep(::open(pad.c_str(), vlaggen, rechten));
    if (!greep.open()) return LaatsteFout();
    while (!bytes.empty()) {
        const ssize_t geschreven = greep.schrijf(bytes);
        if (geschreven < 0) return LaatsteFout();
        bytes.remove_prefix(static_cast<std::size_t>(geschreven));
    }
    return greep.spoel() ? std::error_code{} : LaatsteFout();
}

/// A pipe is not waited for; a file that another program has on loan (a file server) is.
int OpenOmTeLezen(const std::string& pad) {
    constexpr int vlaggen = O_RDONLY | O_CLOEXEC | O_NOCTTY;
    const int greep = ::open(pad.c_str(), vlaggen | O_NONBLOCK);
    return greep < 0 && errno == EWOULDBLOCK ? ::open(pad.c_str(), vlaggen) : greep;
}

constexpr std::size_t eersteRuimte = std::size_t{64} * 1024;

} // namespace

std::error_code LeesBestand(const std::string& pad, Leesbuffer& buffer) {
    buffer.lengte = 0;
    const Bestandsgreep greep(OpenOmTeLezen(Schrijfwijze(pad)));
    if (!greep.open()) return LaatsteFout();
    if (const auto fout = greep.geenBestand()) return fout;
    std::vector<char>& ruimte = buffer.ruimte;
    if (ruimte.size() < eersteRuimte) ruimte.resize(eersteRuimte);
    std::size_t lengte = 0;
    for (;;) {
        if (lengte + achttal::opvulling >= ruimte.size()) ruimte.resize(ruimte.size() * 2);
        const ssize_t gelezen =
            greep.lees(ruimte.data() + lengte, ruimte.size() - achttal::opvulling - lengte);
        if (gelezen < 0) return LaatsteFout();
        if (gelezen == 0) break;
        lengte += static_cast<std::size_t>(gelezen);
    }
    std::fill_n(ruimte.begin() + static_cast<std::ptrdiff_t>(lengte), achttal::opvulling, '\0');
    buffer.lengte = lengte;
    return {};
}

std::error_code VervangBestand(const std::string& pad, std::string_view bytes) {
    const std::string doel = Schrijfwijze(pad);
    const std::string nieuw = doel + ".nieuw";
    if (const auto fout = SchrijfEnSpoel(nieuw, bytes)) {
        ::unlink(nieuw.c_str());
        return fout;
    }
    if (::rename(nieuw.c_str(), doel.c_str()) != 0) {
        const auto fout = LaatsteFout();
        ::unlink(nieuw.c_str());
        return fout;
    }
    return {};
}

std::error_code MaakMap(const std::string& pad) {
    constexpr ::mode_t rechten = 0777; // less the user's own mask
    const std::string doel = Schrijfwijze(pad);
    if (::mkdir(doel.c_str(), rechten) == 0) return {};
    const auto fout = LaatsteFout();
    struct ::stat gegevens {};
    const bool stondEr = ::stat(doel.c_str(), &gegevens) == 0 && S_ISDIR(gegevens.st_mode);
    return stondEr ? std::error_code{} : fout;
}

bool IsBestand(const std::string& pad) {
    struct ::stat gegevens {};
    return ::stat(Schrijfwijze(pad).c_str(), &gegevens) == 0 && !S_ISDIR(gegevens.st_mode);
}

bool Bestaat(const std::string& pad) { return ::access(Schrijfwijze(pad).c_str(), F_OK) == 0; }

std::error_code NamenInMap(const std::string& pad, std::vector<std::string>& namen) {
    namen.clear();
    const auto sluit = [](DIR* map) { ::closedir(map); };
    const std::unique_ptr<DIR, decltype(sluit)> map(::opendir(Schrijfwijze(pad).c_str()), sluit);
    if (!map) return errno == ENOENT || errno == ENOTDIR ? std::error_code{} : LaatsteFout();
    for (;;) {
        errno = 0; // the end of the folder does not set it
        const dirent* deel = ::readdir(map.get());
        if (deel == nullptr) break;
        namen.emplace_back(deel->d_name);
    }
    const std::error_code fout = LaatsteFout();
    std::sort(namen.begin(), namen.end());
    return fout;
}

std::string Schrijfwijze(std::string_view pad) {
    std::string tekst(pad);
    std::replace(tekst.begin(), tekst.end(), '\\', '/');
    return tekst;
}

/// A socket in the abstract name space: the name is the user's, no file stands behind it. Where
/// the system has none to give, the program runs rather than not.
EnigeKopie::EnigeKopie(const std::string& programma)
    : greep_(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0)) {
    ::sockaddr_un adres{};
    adres.sun_family = AF_UNIX;
    const std::string naam = programma.substr(0, 80) + "-" + std::to_string(::getuid());
    std::memcpy(std::begin(adres.sun_path) + 1, naam.data(), naam.size());
    const auto lengte =
        static_cast<::socklen_t>(offsetof(::sockaddr_un, sun_path) + 1 + naam.size());
    // The system's own interface: an address of any family is passed as the general one.
    const auto* algemeen = reinterpret_cast<const ::sockaddr*>(&adres);
    gelukt_ = greep_ < 0 || ::bind(static_cast<int>(greep_), algemeen, lengte) == 0 ||
              errno != EADDRINUSE;
}

EnigeKopie::~EnigeKopie() {
    if (greep_ >= 0) ::close(static_cast<int>(greep_));
}

bool LetterkastTeltNiet() { return false; }

bool VraagtHoogContrast() { return false; }

std::optional<Bovenhelft> EigenCodetabel() { return std::nullopt; }

} // namespace lauwerkrans::systeem
