// The program's icon in every size that desktops ask for.
#include "ui/pictogram.h"

#include <gtest/gtest.h>

#include <QImage>

#include "beeldproef.h"

namespace lauwerkrans::proef {
namespace {

bool IsGroen(QColor kleur) {
    return kleur.alpha() > 128 && kleur.green() > kleur.red() && kleur.green() > kleur.blue();
}

int Bladpixels(const QImage& beeld, const QRect& vlak) {
    int aantal = 0;
    for (int y = vlak.top(); y <= vlak.bottom(); ++y) {
        for (int x = vlak.left(); x <= vlak.right(); ++x) {
            if (IsGroen(beeld.pixelColor(x, y))) ++aantal;
        }
    }
    return aantal;
}

TEST(Pictogram, HasAWreathOfItsOwnForEveryUsualSize) {
    const QIcon pictogram = Pictogram();
    for (const int pixels : {16, 20, 24, 32, 40, 48, 64, 96, 128, 256}) {
        EXPECT_TRUE(pictogram.availableSizes().contains(QSize(pixels, pixels))) << pixels;
        const QImage beeld = pictogram.pixmap(pixels, pixels).toImage();
        ASSERT_EQ(beeld.size(), QSize(pixels, pixels));
        EXPECT_GE(beeld.depth(), 24);
        for (const QPoint hoek : {QPoint(0, 0), QPoint(pixels - 1, 0), QPoint(0, pixels - 1)})
            EXPECT_EQ(beeld.pixelColor(hoek).alpha(), 0) << pixels << ": a corner";
        EXPECT_EQ(beeld.pixelColor(pixels / 2, pixels / 2).alpha(), 0) << pixels << ": its middle";
        const QRect links(0, 0, pixels / 2, pixels);
        const QRect rechts(pixels - pixels / 2, 0, pixels / 2, pixels);
        const int tak = Bladpixels(beeld, links);
        EXPECT_GT(tak, pixels * pixels / 20) << pixels << ": leaves";
        EXPECT_NEAR(tak, Bladpixels(beeld, rechts), pixels) << pixels << ": on both sides";
    }
}

TEST(Pictogram, ReachesAlmostTheEdges) {
    for (const int pixels : {16, 32, 256}) {
        const QImage beeld = Krans(pixels).toImage();
        const QRect inkt =
            Omtrek(beeld, beeld.rect(), [](QColor kleur) { return kleur.alpha() > 0; });
        EXPECT_GE(inkt.width(), pixels * 8 / 10) << pixels;
        EXPECT_GE(inkt.height(), pixels * 8 / 10) << pixels;
    }
}

} // namespace
} // namespace lauwerkrans::proef
