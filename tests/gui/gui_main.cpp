// One Qt application for all window tests.
#include <gtest/gtest.h>

#include "ui/stijl.h"
#include "ui/toepassing.h"

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (::testing::GTEST_FLAG(list_tests)) return RUN_ALL_TESTS(); // at build time: needs no screen
    lauwerkrans::Toepassing toepassing(argc, argv);
    toepassing.zetMelder([](const lauwerkrans::Melding& melding) {
        ADD_FAILURE() << "thrown out of an event handler: " << melding.tekst;
    });
    lauwerkrans::ZetStijl(toepassing);
    return RUN_ALL_TESTS();
}
