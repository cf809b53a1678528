// Settings that another program holds for a moment, as a virus scanner does.
#include "app/modInstellingen.h"

#include <chrono>
#include <thread>

#include <gtest/gtest.h>

#include "proef.h"

namespace lauwerkrans {
namespace {

TEST(Instellingenbestand, IsWaitedForWhileAnotherProgramHoldsIt) {
    const proef::Proefmap map;
    Algemeen algemeen;
    Instellingen instellingen;
    instellingen.bestand = InstellingenPad(map.pad());
    auto bezet = proef::MaakOnleesbaar(map.map() / "Lauwr.ini");
    std::thread ander([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(120));
        bezet.reset();
    });
    LeesInstellingen(instellingen, algemeen);
    ander.join();
    EXPECT_FALSE(instellingen.onleesbaar) << instellingen.onleesbaar.message();
}

} // namespace
} // namespace lauwerkrans
