#include "georef/controls.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>

using namespace ZrProj;

TEST(Controls, AMarkedOrInfiniteCoordinateIsNotFinite) {
    GEOREFPOINT const good[] = {{1, 2}, {-3, 4}};
    EXPECT_TRUE(areFinite({good, good}));
    for (double const bad : {DBL_MAX, -DBL_MAX, HUGE_VAL, std::nan("")}) {
        GEOREFPOINT const x[] = {{1, 2}, {bad, 4}}, y[] = {{1, bad}, {-3, 4}};
        EXPECT_FALSE(areFinite({x, good}));
        EXPECT_FALSE(areFinite({good, y}));
    }
}

// Extents of coordinates as large as there are must not overflow.
TEST(Controls, ExtentsOfAnySize) {
    constexpr double huge = 1.7e308;
    GEOREFPOINT const points[] = {{-huge, 10}, {huge, 30}, {0, 20}};
    auto const extent = extentOf(points);
    EXPECT_EQ(extent.centre.x, 0);
    EXPECT_EQ(extent.centre.y, 20);
    EXPECT_EQ(extent.halfSize, huge);
    EXPECT_EQ(extentOf(std::span(points).first(1)).halfSize, 0);
}

// The tolerance stays below a pixel's part in a large image and grows where coordinates lose digits far from their
// origin.
TEST(Controls, RankToleranceFollowsTheDigitsThatAreLeft) {
    GEOREFPOINT const image[] = {{0, 0}, {40000, 40000}}, far[] = {{4e12, 0}, {4e12 + 40000, 40000}};
    EXPECT_LT(rankTolerance(extentOf(image)), 1e-11);
    EXPECT_GT(rankTolerance(extentOf(far)), 1e-5);
}
