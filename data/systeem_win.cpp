#include "data/systeem.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include <windows.h>

#include "data/achttal.h"

namespace lauwerkrans::systeem {

namespace {

/// UTF-8 as the system's 16-bit units; what is malformed becomes U+FFFD.
std::wstring Breed(std::string_view utf8) {
    const auto lengte = static_cast<int>(utf8.size());
    const int nodig = ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), lengte, nullptr, 0);
    std::wstring breed(static_cast<std::size_t>(nodig), L'\0');
    ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), lengte, breed.data(), nodig);
    return breed;
}

std::string Smal(std::wstring_view breed) {
    const auto lengte = static_cast<int>(breed.size());
    const int nodig =
        ::WideCharToMultiByte(CP_UTF8, 0, breed.data(), lengte, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(nodig), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, breed.data(), lengte, utf8.data(), nodig, nullptr, nullptr);
    return utf8;
}

struct Vertaling {
    int eigen;
    std::errc algemeen;
};

/// The system's errors of files, as the ones that every system knows.
constexpr std::array<Vertaling, 19> vertalingen = {{
    {ERROR_FILE_NOT_FOUND, std::errc::no_such_file_or_directory},
    {ERROR_PATH_NOT_FOUND, std::errc::no_such_file_or_directory},
    {ERROR_INVALID_NAME, std::errc::no_such_file_or_directory},
    {ERROR_INVALID_DRIVE, std::errc::no_such_file_or_directory},
    {ERROR_BAD_PATHNAME, std::errc::no_such_file_or_directory},
    {ERROR_BAD_NETPATH, std::errc::no_such_file_or_directory},
    {ERROR_BAD_NET_NAME, std::errc::no_such_file_or_directory},
    {ERROR_DIRECTORY, std::errc::not_a_directory},
    {ERROR_ACCESS_DENIED, std::errc::permission_denied},
    {ERROR_NETWORK_ACCESS_DENIED, std::errc::permission_denied},
    {ERROR_SHARING_VIOLATION, std::errc::device_or_resource_busy},
    {ERROR_LOCK_VIOLATION, std::errc::device_or_resource_busy},
    {ERROR_DISK_FULL, std::errc::no_space_on_device},
    {ERROR_HANDLE_DISK_FULL, std::errc::no_space_on_device},
    {ERROR_WRITE_PROTECT, std::errc::read_only_file_system},
    {ERROR_CRC, std::errc::io_error},
    {ERROR_NOT_READY, std::errc::io_error},
    {ERROR_FILENAME_EXCED_RANGE, std::errc::filename_too_long},
    {ERROR_ALREADY_EXISTS, std::errc::file_exists},
}};

/// The system's errors with its own words as UTF-8; the standard library gives them in the code
/// page of the system.
class Fouten : public std::error_category {
public:
    [[nodiscard]] const char* name() const noexcept override { return "windows"; }
    [[nodiscard]] std::string message(int fout) const override {
        std::array<wchar_t, 512> woorden{};
        constexpr DWORD vlaggen = FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS;
        const DWORD lengte = ::FormatMessageW(vlaggen, nullptr, static_cast<DWORD>(fout), 0,
                                              woorden.data(), woorden.size(), nullptr);
        std::string tekst = Smal({woorden.data(), lengte});
        tekst.erase(tekst.find_last_not_of("\r\n .") + 1);
        return tekst.empty() ? "fout " + std::to_string(fout) : tekst;
    }
    [[nodiscard]] std::error_condition default_error_condition(int fout) const noexcept override {
        for (const Vertaling& vertaling : vertalingen) {
            if (vertaling.eigen == fout) return vertaling.algemeen;
        }
        return {fout, *this};
    }
};

std::error_code AlsFout(DWORD fout) {
    static const Fouten fouten;
    return {static_cast<int>(fout), fouten};
}

std::error_code LaatsteFout() { return AlsFout(::GetLastError()); }

/// The whole path in the form that has no limit of 260 characters and no names of devices in it:
/// \\?\C:\map\bestand or \\?\UNC\computer\map\bestand. Empty for the empty path.
std::wstring Systeempad(std::string_view pad) {
    const std::wstring breed = Breed(Schrijfwijze(pad));
    const DWORD ruimte = ::GetFullPathNameW(breed.c_str(), 0, nullptr, nullptr);
    std::wstring heel(ruimte, L'\0');
    heel.resize(::GetFullPathNameW(breed.c_str(), ruimte, heel.data(), nullptr));
    if (heel.starts_with(LR"(\\?\)") || heel.starts_with(LR"(\\.\)")) return heel;
    if (heel.starts_with(LR"(\\)")) return LR"(\\?\UNC)" + heel.substr(1);
    return heel.empty() ? heel : LR"(\\?\)" + heel;
}

/// An open file that is closed with its owner.
class Bestandsgreep {
public:
    Bestandsgreep(const std::wstring& pad, DWORD toegang, DWORD wijze)
        : greep_(::CreateFileW(pad.c_str(), toegang, deling, nullptr, wijze, 0, nullptr)) {}
    Bestandsgreep(const Bestandsgreep&) = delete;
    Bestandsgreep(Bestandsgreep&&) = delete;
    Bestandsgreep& operator=(const Bestandsgreep&) = delete;
    Bestandsgreep& operator=(Bestandsgreep&&) = delete;
    ~Bestandsgreep() {
        if (open()) ::CloseHandle(greep_);
    }

    [[nodiscard]] bool open() const { return greep_ != INVALID_HANDLE_VALUE; }
    [[nodiscard]] bool lees(char* naar, std::size_t aantal, DWORD& gelezen) const {
        return ::ReadFile(greep_, naar, InEenKeer(aantal), &gelezen, nullptr) != 0;
    }
    [[nodiscard]] bool schrijf(std::string_view bytes, DWORD& geschreven) const {
        const DWORD aantal = InEenKeer(bytes.size());
        return ::WriteFile(greep_, bytes.data(), aantal, &geschreven, nullptr) != 0;
    }
    [[nodiscard]] bool spoel() const { return ::FlushFileBuffers(greep_) != 0; }

private:
    /// Others may go on doing with the file what they did.
    static constexpr DWORD deling = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

    static DWORD InEenKeer(std::size_t aantal) {
        return static_cast<DWORD>(std::min<std::size_t>(aantal, 0x40000000));
    }

    HANDLE greep_;
};

/// Writes a new file wholly and onto the disk.
std::error_code SchrijfEnSpoel(const std::wstring& pad, std::string_view bytes) {
    const Bestandsgreep greep(pad, GENERIC_WRITE, CREATE_ALWAYS);
    if (!greep.open()) return LaatsteFout();
    while (!bytes.empty()) {
        DWORD geschreven = 0;
        if (!greep.schrijf(bytes, geschreven)) return LaatsteFout();
        bytes.remove_prefix(geschreven);
    }
    return greep.spoel() ? std::error_code{} : LaatsteFout();
}

bool IsMap(const std::wstring& pad) {
    const DWORD eigenschappen = ::GetFileAttributesW(pad.c_str());
    return eigenschappen != INVALID_FILE_ATTRIBUTES &&
           (eigenschappen & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

/// The reason of a rename that failed: the system refuses to replace a folder, or a file that
/// another program holds open, in the same words as it refuses one that the user may not touch.
std::error_code Weigering(const std::wstring& doel) {
    const auto fout = LaatsteFout();
    if (fout != std::errc::permission_denied) return fout;
    if (IsMap(doel)) return std::make_error_code(std::errc::is_a_directory);
    const Bestandsgreep greep(doel, DELETE, OPEN_EXISTING);
    return !greep.open() && ::GetLastError() == ERROR_SHARING_VIOLATION ? LaatsteFout() : fout;
}

/// Renames over another file. A virus scanner or an index may hold a file that was just written for
/// a moment, so it is tried for half a second.
std::error_code Hernoem(const std::wstring& van, const std::wstring& naar) {
    constexpr int pogingen = 10;
    constexpr DWORD wachttijd = 50; // milliseconds
    constexpr DWORD wijze = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    std::error_code fout;
    for (int poging = 0; poging < pogingen; ++poging) {
        if (poging > 0) ::Sleep(wachttijd);
        if (::MoveFileExW(van.c_str(), naar.c_str(), wijze) != 0) return {};
        fout = Weigering(naar);
        if (fout != std::errc::device_or_resource_busy) break;
    }
    return fout;
}

constexpr std::size_t eersteRuimte = std::size_t{64} * 1024;

std::error_code LeesAlles(const Bestandsgreep& greep, std::vector<char>& ruimte,
                          std::size_t& lengte) {
    for (;;) {
        if (lengte + achttal::opvulling >= ruimte.size()) ruimte.resize(ruimte.size() * 2);
        DWORD gelezen = 0;
        const std::size_t vrij = ruimte.size() - achttal::opvulling - lengte;
        if (!greep.lees(ruimte.data() + lengte, vrij, gelezen)) return LaatsteFout();
        if (gelezen == 0) return {};
        lengte += gelezen;
    }
}

/// The character of a byte in the system's code page. One that the code page leaves open becomes
/// a control character or, where those end, a character for private use of its own.
char16_t TekenVanByte(unsigned char byte) {
    const auto bron = static_cast<char>(byte);
    wchar_t teken = 0;
    const bool heeft =
        ::MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, &bron, 1, &teken, 1) == 1;
    if (heeft) return static_cast<char16_t>(teken);
    return static_cast<char16_t>(byte < 0xA0 ? byte : 0xF700 + byte);
}

} // namespace

std::error_code LeesBestand(const std::string& pad, Leesbuffer& buffer) {
    buffer.lengte = 0;
    const std::wstring bron = Systeempad(pad);
    const Bestandsgreep greep(bron, GENERIC_READ, OPEN_EXISTING);
    if (!greep.open()) {
        const auto fout = LaatsteFout();
        return IsMap(bron) ? AlsFout(ERROR_FILE_NOT_FOUND) : fout;
    }
    std::vector<char>& ruimte = buffer.ruimte;
    if (ruimte.size() < eersteRuimte) ruimte.resize(eersteRuimte);
    std::size_t lengte = 0;
    if (const auto fout = LeesAlles(greep, ruimte, lengte)) return fout;
    std::fill_n(ruimte.begin() + static_cast<std::ptrdiff_t>(lengte), achttal::opvulling, '\0');
    buffer.lengte = lengte;
    return {};
}

std::error_code VervangBestand(const std::string& pad, std::string_view bytes) {
    const std::wstring doel = Systeempad(pad);
    const std::wstring nieuw = doel + L".nieuw";
    std::error_code fout = SchrijfEnSpoel(nieuw, bytes);
    if (!fout) fout = Hernoem(nieuw, doel);
    if (fout) ::DeleteFileW(nieuw.c_str());
    return fout;
}

std::error_code MaakMap(const std::string& pad) {
    const std::wstring doel = Systeempad(pad);
    if (::CreateDirectoryW(doel.c_str(), nullptr) != 0) return {};
    const auto fout = LaatsteFout();
    return IsMap(doel) ? std::error_code{} : fout;
}

bool IsBestand(const std::string& pad) { return Bestaat(pad) && !IsMap(Systeempad(pad)); }

bool Bestaat(const std::string& pad) {
    return ::GetFileAttributesW(Systeempad(pad).c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::error_code NamenInMap(const std::string& pad, std::vector<std::string>& namen) {
    namen.clear();
    std::wstring patroon = Systeempad(pad);
    patroon += patroon.ends_with(L'\\') ? L"*" : L"\\*";
    WIN32_FIND_DATAW deel{};
    const HANDLE zoeker =
        ::FindFirstFileExW(patroon.c_str(), FindExInfoBasic, &deel, FindExSearchNameMatch, nullptr,
                           FIND_FIRST_EX_LARGE_FETCH);
    if (zoeker == INVALID_HANDLE_VALUE) {
        const auto fout = LaatsteFout();
        const bool geenMap =
            fout == std::errc::no_such_file_or_directory || fout == std::errc::not_a_directory;
        return geenMap ? std::error_code{} : fout;
    }
    do {
        namen.push_back(Smal(deel.cFileName));
    } while (::FindNextFileW(zoeker, &deel) != 0);
    const auto fout = LaatsteFout();
    ::FindClose(zoeker);
    std::sort(namen.begin(), namen.end());
    return fout.value() == ERROR_NO_MORE_FILES ? std::error_code{} : fout;
}

std::string Schrijfwijze(std::string_view pad) {
    std::string tekst(pad);
    std::replace(tekst.begin(), tekst.end(), '/', '\\');
    return tekst;
}

/// A named mutex in the name space of the user's session. One that stands there but may not be
/// opened belongs to a copy with more rights. Where the system has none to give, the program runs
/// rather than not.
EnigeKopie::EnigeKopie(const std::string& programma) {
    std::array<wchar_t, 257> gebruiker{}; // the system's longest name and its end
    auto lengte = static_cast<DWORD>(gebruiker.size());
    if (::GetUserNameW(gebruiker.data(), &lengte) == 0) gebruiker[0] = L'\0';
    const std::wstring naam = L"Local\\" + Breed(programma) + L"-" + gebruiker.data();
    const HANDLE mutex = ::CreateMutexW(nullptr, FALSE, naam.c_str());
    const DWORD fout = ::GetLastError();
    gelukt_ = fout != ERROR_ALREADY_EXISTS && fout != ERROR_ACCESS_DENIED;
    if (mutex == nullptr) return;
    // The header knows no type of the system; a handle fits a number of a pointer's size.
    if (gelukt_)
        greep_ = reinterpret_cast<std::intptr_t>(mutex);
    else
        ::CloseHandle(mutex); // else a refused copy would stand in the way of the next
}

EnigeKopie::~EnigeKopie() {
    if (greep_ != -1) ::CloseHandle(reinterpret_cast<HANDLE>(greep_));
}

bool LetterkastTeltNiet() { return true; }

bool VraagtHoogContrast() {
    HIGHCONTRASTW stand{};
    stand.cbSize = sizeof(stand);
    return ::SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof(stand), &stand, 0) != 0 &&
           (stand.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

std::optional<Bovenhelft> EigenCodetabel() {
    CPINFO gegevens{};
    if (::GetCPInfo(CP_ACP, &gegevens) == 0 || gegevens.MaxCharSize != 1) return std::nullopt;
    Bovenhelft helft;
    for (std::size_t i = 0; i < helft.tekens.size(); ++i)
        helft.tekens.at(i) = TekenVanByte(static_cast<unsigned char>(0x80 + i));
    for (std::size_t i = 0; i < helft.tekens.size(); ++i) {
        const char16_t teken = helft.tekens.at(i);
        auto groot = static_cast<wchar_t>(teken);
        ::CharUpperBuffW(&groot, 1);
        const auto* plaats = std::find(helft.tekens.begin(), helft.tekens.end(), groot);
        helft.hoofdletters.at(i) = plaats == helft.tekens.end() ? teken : *plaats;
    }
    return helft;
}

} // namespace lauwerkrans::systeem
