#include "geteld_posix.h"

#include <cstdarg>
#include <utility>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lauwerkrans::proef {

namespace {

Telling* bezig = nullptr;

} // namespace

Telling::Telling(std::string map) : map_(std::move(map)) { bezig = this; }
Telling::~Telling() { bezig = nullptr; }

void Telling::tel(Aantallen Telling::*soort, const char* pad) {
    const std::string heel(pad);
    if (heel == map_) ++(this->*soort)[""];
    if (heel.starts_with(map_ + '/')) ++(this->*soort)[heel.substr(map_.size() + 1)];
}

namespace {

void Tel(Telling::Aantallen Telling::*soort, const char* pad) {
    if (bezig != nullptr) bezig->tel(soort, pad);
}

/// The system's own function behind the one of that name here.
template <class Functie>
Functie* Echte(const char* naam) {
    return reinterpret_cast<Functie*>(::dlsym(RTLD_NEXT, naam));
}

} // namespace

} // namespace lauwerkrans::proef

using lauwerkrans::proef::Echte;
using lauwerkrans::proef::Tel;
using lauwerkrans::proef::Telling;

extern "C" {

int open(const char* pad, int vlaggen, ...) {
    Tel(&Telling::geopend, pad);
    std::va_list rest;
    va_start(rest, vlaggen);
    const ::mode_t rechten = (vlaggen & O_CREAT) != 0 ? va_arg(rest, ::mode_t) : 0;
    va_end(rest);
    static auto* const echte = Echte<int(const char*, int, ...)>("open");
    return echte(pad, vlaggen, rechten);
}

DIR* opendir(const char* pad) {
    Tel(&Telling::opgesomd, pad);
    static auto* const echte = Echte<DIR*(const char*)>("opendir");
    return echte(pad);
}

int stat(const char* __restrict pad, struct ::stat* __restrict gegevens) noexcept {
    Tel(&Telling::opgezocht, pad);
    static auto* const echte = Echte<int(const char*, struct ::stat*)>("stat");
    return echte(pad, gegevens);
}

int access(const char* pad, int soort) noexcept {
    Tel(&Telling::opgezocht, pad);
    static auto* const echte = Echte<int(const char*, int)>("access");
    return echte(pad, soort);
}

} // extern "C"
