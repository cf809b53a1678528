// Drawing a laid-out page.
#include "output/afdruk.h"

#include <gtest/gtest.h>

#include <QImage>

#include <set>

namespace lauwerkrans {
namespace {

/// The heights in device pixels of the black stripes in a column of a picture.
std::multiset<int> Diktes(const QImage& beeld, int x) {
    std::multiset<int> diktes;
    int dikte = 0;
    for (int y = 0; y < beeld.height(); ++y) {
        if (qGray(beeld.pixel(x, y)) < 128) {
            ++dikte;
        } else if (dikte > 0) {
            diktes.insert(dikte);
            dikte = 0;
        }
    }
    return diktes;
}

/// Draws `aantal` rules at the pitch of rows; the stripes that they make.
std::multiset<int> DiktesVanStrepen(int aantal, double schaal, double pixels) {
    Blad blad;
    for (int i = 1; i <= aantal; ++i)
        blad.lijnen.push_back({0, 4.8 * i, 20, 4.8 * i});
    QImage beeld(QSizeF(20 * schaal * pixels, 4.8 * (aantal + 1) * schaal * pixels).toSize(),
                 QImage::Format_RGB32);
    beeld.setDevicePixelRatio(pixels);
    beeld.fill(Qt::white);
    QPainter schilder(&beeld);
    TekenBlad(schilder, blad, schaal);
    schilder.end();
    return Diktes(beeld, beeld.width() / 2);
}

TEST(Afdruk, RulesAreEquallyThickAtEverySizeOnEveryScreen) {
    constexpr int aantal = 60;
    constexpr double honderd = 96 / 25.4;
    for (const double pixels : {1.0, 1.25, 1.5, 2.0}) {
        for (const double schaal : {1.81, 3.15, honderd, 1.5 * honderd}) {
            const auto diktes = DiktesVanStrepen(aantal, schaal, pixels);
            ASSERT_EQ(diktes.size(), static_cast<std::size_t>(aantal)) << schaal << " " << pixels;
            EXPECT_EQ(*diktes.begin(), *diktes.rbegin()) << schaal << " " << pixels;
        }
    }
}

TEST(Afdruk, RulesAreATenthOfAMillimetreEitherSide) {
    constexpr double schaal = 1200 / 25.4; // a printer's
    const auto diktes = DiktesVanStrepen(3, schaal, 1);
    ASSERT_EQ(diktes.size(), 3U);
    EXPECT_NEAR(*diktes.begin() / schaal, 0.2, 0.02);
}

} // namespace
} // namespace lauwerkrans
