#include "schrijfproef_posix.h"

#include <fstream>
#include <string>

#include <gtest/gtest.h>

#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lauwerkrans::proef {

namespace {

constexpr const char* omvang = "size=32k";
constexpr int nietToegestaan = 77;

/// A disk in memory that this process alone sees. A plain user gets it as the administrator of a
/// user name space, where the machine gives him one.
bool Koppel(const std::string& map) {
    if (::unshare(CLONE_NEWNS) != 0 && ::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
    return ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           ::mount("klein", map.c_str(), "tmpfs", 0, omvang) == 0;
}

void HerKoppel(const std::string& map, unsigned long vlaggen) {
    EXPECT_EQ(::mount("klein", map.c_str(), "tmpfs", MS_REMOUNT | vlaggen, omvang), 0);
}

/// Fills the disk to the last byte.
void MaakVol(const std::string& vulling) {
    std::ofstream bestand(vulling, std::ios::binary);
    while (bestand.put('v').flush()) {
    }
}

} // namespace

bool OpKleineSchijf(const std::filesystem::path& map, Schijf schijf,
                    const std::function<void()>& vooraf, const std::function<void()>& bijFout,
                    const std::function<void()>& daarna) {
    const pid_t kind = ::fork();
    if (kind == 0) {
        if (!Koppel(map.string())) ::_exit(nietToegestaan);
        const std::string vulling = (map / "vulling").string();
        vooraf();
        if (schijf == Schijf::Vol) MaakVol(vulling);
        if (schijf == Schijf::AlleenTeLezen) HerKoppel(map.string(), MS_RDONLY);
        bijFout();
        if (schijf == Schijf::AlleenTeLezen) HerKoppel(map.string(), 0);
        std::filesystem::remove(vulling);
        daarna();
        ::_exit(testing::Test::HasFailure() ? 1 : 0);
    }
    int stand = 0;
    EXPECT_EQ(::waitpid(kind, &stand, 0), kind);
    if (WIFEXITED(stand) && WEXITSTATUS(stand) == nietToegestaan) return false;
    EXPECT_TRUE(WIFEXITED(stand) && WEXITSTATUS(stand) == 0) << "said above";
    return true;
}

} // namespace lauwerkrans::proef
