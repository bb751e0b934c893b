#include "support/levels.h"

#include <zrproj/projection.h>

#include <gtest/gtest.h>

#include <cmath>

using namespace ZrProj;

// The axes, where the printed formulas divide by zero, and places close to them.
TEST(VanDerGrinten, HoldsItsDigitsBesideTheAxes) {
    constexpr double pi = 3.141592653589793;
    test::forEachLevel([](levels::Level) {
        PROJDATA record{};
        record.Type = ProjTypeVanDerGrinten;
        record.MajorRadius = 180 / pi;
        CProjector projector(&record);
        PROJPOINT points[] = {{-120, 1e-9}, {1e-9, 30}, {0, 45}, {50, -90}, {-0.0, 0}};
        ASSERT_TRUE(projector.Forward(points, 5));
        EXPECT_DOUBLE_EQ(points[0].x, -120);
        EXPECT_NEAR(points[0].y, 1e-9, 1e-9);
        EXPECT_NEAR(points[1].x, 1e-9, 2e-10);
        EXPECT_DOUBLE_EQ(points[2].y, 180 * (2 - std::sqrt(3.0))); // tan(asin(1/2) / 2)
        EXPECT_EQ(points[3].x, 0);
        EXPECT_DOUBLE_EQ(points[3].y, -180);
        EXPECT_EQ(points[4].y, 0);
        ASSERT_TRUE(projector.Inverse(points, 5));
        EXPECT_NEAR(points[0].y, 1e-9, 1e-23);
        EXPECT_NEAR(points[1].x, 1e-9, 1e-23);
        EXPECT_EQ(points[3].y, -90);
    });
}
