// Places where a file cannot be written: without rights, on a full disk, on one for reading only.
#pragma once

#include <filesystem>
#include <functional>
#include <system_error>
#include <utility>

#include <sys/fsuid.h>
#include <sys/resource.h>

namespace lauwerkrans::proef {

/// While it lives the user may not write in a folder, or to a file; the administrator neither.
class ZonderRechten {
public:
    explicit ZonderRechten(std::filesystem::path pad) : pad_(std::move(pad)) {
        namespace fs = std::filesystem;
        fs::permissions(pad_, fs::perms::owner_write, fs::perm_options::remove);
        constexpr unsigned niemand = 65534;
        gebruiker_ = static_cast<unsigned>(::setfsuid(niemand)); // without effect for a plain user
    }
    ZonderRechten(const ZonderRechten&) = delete;
    ZonderRechten(ZonderRechten&&) = delete;
    ZonderRechten& operator=(const ZonderRechten&) = delete;
    ZonderRechten& operator=(ZonderRechten&&) = delete;
    ~ZonderRechten() {
        ::setfsuid(gebruiker_);
        std::error_code weg; // it may have been taken away meanwhile
        std::filesystem::permissions(pad_, std::filesystem::perms::owner_write,
                                     std::filesystem::perm_options::add, weg);
    }

private:
    std::filesystem::path pad_;
    unsigned gebruiker_;
};

/// While it lives a file of this process may hold so many bytes.
class KleineBestanden {
public:
    explicit KleineBestanden(::rlim_t bytes) {
        ::getrlimit(RLIMIT_FSIZE, &eerder_);
        const ::rlimit klein{bytes, eerder_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &klein);
    }
    KleineBestanden(const KleineBestanden&) = delete;
    KleineBestanden(KleineBestanden&&) = delete;
    KleineBestanden& operator=(const KleineBestanden&) = delete;
    KleineBestanden& operator=(KleineBestanden&&) = delete;
    ~KleineBestanden() { ::setrlimit(RLIMIT_FSIZE, &eerder_); }

private:
    ::rlimit eerder_{};
};

enum class Schijf { Vol, AlleenTeLezen };

/// Runs a part of a test in a process of its own, which sees a disk of 32 kB in place of a folder:
/// `vooraf` on the empty disk, `bijFout` when it is full or for reading only, `daarna` when it has
/// room again. False when the machine allows no such disk; an expectation that fails there fails
/// the test.
[[nodiscard]] bool OpKleineSchijf(const std::filesystem::path& map, Schijf schijf,
                                  const std::function<void()>& vooraf,
                                  const std::function<void()>& bijFout,
                                  const std::function<void()>& daarna);

} // namespace lauwerkrans::proef
