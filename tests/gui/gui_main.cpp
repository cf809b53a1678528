// One Qt application for all window tests.
#include <QApplication>

#include <gtest/gtest.h>

#include "ui/stijl.h"

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (::testing::GTEST_FLAG(list_tests)) return RUN_ALL_TESTS(); // at build time: needs no screen
    QApplication toepassing(argc, argv);
    lauwerkrans::ZetStijl(toepassing);
    return RUN_ALL_TESTS();
}
