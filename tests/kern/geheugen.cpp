#include "geheugen.h"

#include <atomic>
#include <cstdlib>
#include <new>

#include <malloc.h>

namespace {

std::size_t Lengte(void* blok) {
#ifdef _WIN32
    return ::_msize(blok);
#else
    return ::malloc_usable_size(blok);
#endif
}

// Signed: a library of its own may give back what it did not ask for here.
std::atomic<std::ptrdiff_t> inGebruik = 0;
std::atomic<std::ptrdiff_t> hoogste = 0;
std::atomic<std::size_t> aanvragen = 0;

// Blocks of these lengths are refused.
std::atomic<std::size_t> tekortVan = 1;
std::atomic<std::size_t> tekortTot = 0;
std::atomic<std::size_t> geweigerdeAanvragen = 0;

void* Neem(std::size_t aantal) {
    if (aantal >= tekortVan && aantal <= tekortTot) {
        ++geweigerdeAanvragen;
        return nullptr;
    }
    void* blok = std::malloc(aantal == 0 ? 1 : aantal);
    if (blok == nullptr) return nullptr;
    const std::ptrdiff_t nu = inGebruik += static_cast<std::ptrdiff_t>(Lengte(blok));
    ++aanvragen;
    std::ptrdiff_t oud = hoogste;
    while (nu > oud && !hoogste.compare_exchange_weak(oud, nu)) {
    }
    return blok;
}

void Geef(void* blok) noexcept {
    if (blok == nullptr) return;
    inGebruik -= static_cast<std::ptrdiff_t>(Lengte(blok));
    std::free(blok);
}

void* NeemOfGooi(std::size_t aantal) {
    void* blok = Neem(aantal);
    if (blok == nullptr) throw std::bad_alloc();
    return blok;
}

} // namespace

void* operator new(std::size_t aantal) { return NeemOfGooi(aantal); }
void* operator new[](std::size_t aantal) { return NeemOfGooi(aantal); }
void* operator new(std::size_t aantal, const std::nothrow_t& /*soort*/) noexcept {
    return Neem(aantal);
}
void* operator new[](std::size_t aantal, const std::nothrow_t& /*soort*/) noexcept {
    return Neem(aantal);
}
void operator delete(void* blok) noexcept { Geef(blok); }
void operator delete[](void* blok) noexcept { Geef(blok); }
void operator delete(void* blok, std::size_t /*aantal*/) noexcept { Geef(blok); }
void operator delete[](void* blok, std::size_t /*aantal*/) noexcept { Geef(blok); }
void operator delete(void* blok, const std::nothrow_t& /*soort*/) noexcept { Geef(blok); }
void operator delete[](void* blok, const std::nothrow_t& /*soort*/) noexcept { Geef(blok); }

namespace lauwerkrans::proef {

Geheugenmeter::Geheugenmeter() : begin_(inGebruik), kerenBegin_(aanvragen) {
    hoogste = inGebruik.load();
}

std::size_t Geheugenmeter::piek() const { return static_cast<std::size_t>(hoogste - begin_); }

std::size_t Geheugenmeter::keren() const { return aanvragen - kerenBegin_; }

Geheugentekort::Geheugentekort(std::size_t van, std::size_t tot) {
    geweigerdeAanvragen = 0;
    tekortVan = van;
    tekortTot = tot;
}

Geheugentekort::~Geheugentekort() {
    tekortVan = 1;
    tekortTot = 0;
}

std::size_t Geheugentekort::geweigerd() { return geweigerdeAanvragen; }

} // namespace lauwerkrans::proef
