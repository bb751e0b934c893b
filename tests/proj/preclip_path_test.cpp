#include "proj/preclip_path.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cfloat>
#include <cmath>

using namespace ZrProj;
using namespace ZrProj::preclip;

namespace {

using Points = std::vector<PROJPOINT>;

bool ringContains(Points const& points, PROJPOINT const& point) {
    Path const ring{points, true, true};
    return Unwrapped(ring).contains(point);
}

bool interiorIsLeft(Points const& points) {
    Path const ring{points, true, true};
    return Unwrapped(ring).interiorIsLeft();
}

/// Once around the globe in steps of 90 degrees, eastwards, at these latitudes.
Points around(double a, double b, double c, double d) {
    return {{-180, a}, {-90, b}, {0, c}, {90, d}};
}

Points reversed(Points points) {
    std::ranges::reverse(points);
    return points;
}

Points const square = {{170, -10}, {-170, -10}, {-170, 10}, {170, 10}}; // over the antimeridian
PROJPOINT const north{0, 90}, south{0, -90};

} // namespace

TEST(PreclipPath, LinesBreakAtPointsThatAreNotGeographic) {
    Points const points = {{NAN, 0}, {1, 0}, {2, 0},     {DBL_MAX, DBL_MAX}, {3, 0},
                           {361, 0}, {4, 0}, {-360, 90}, {5, 90.1}};
    auto const lines = linesOf(points);
    ASSERT_EQ(lines.size(), 2U); // a single point between two breaks is no line
    EXPECT_EQ(lines[0].points.front().x, 1);
    EXPECT_EQ(lines[0].points.size(), 2U);
    EXPECT_EQ(lines[1].points.back().x, -360);
    EXPECT_FALSE(lines[0].isAsGiven || lines[1].isAsGiven);
    EXPECT_TRUE(linesOf(Points{{1, 0}, {2, 0}}).at(0).isAsGiven);
}

TEST(PreclipPath, RingsLeavePointsOut) {
    auto const rings = ringsOf(Points{{0, 0}, {NAN, 0}, {1, 0}, {1, 1}, {0, 0}});
    ASSERT_EQ(rings.size(), 1U);
    EXPECT_EQ(rings[0].points.size(), 3U); // without the first point again
    EXPECT_FALSE(rings[0].isAsGiven);
    EXPECT_TRUE(ringsOf(Points{{0, 0}, {1, 0}, {1, 1}}).at(0).isAsGiven);
    EXPECT_TRUE(ringsOf(Points{{0, 0}, {1, 0}, {NAN, 1}}).empty());
    EXPECT_TRUE(ringsOf(Points{{0, 0}, {1, 0}, {0, 0}}).empty());
}

TEST(PreclipPath, LongitudesRunOnOverTheAntimeridian) {
    Path const line{{{170, 0}, {-170, 0}, {-10, 0}, {160, 0}, {-30, 0}}, false, true};
    Unwrapped const unwrapped(line);
    double const expected[] = {170, 190, 350, 520, 690};
    ASSERT_EQ(unwrapped.size(), 5U);
    for (std::size_t i = 0; i < 5; ++i)
        EXPECT_EQ(unwrapped[i].x, expected[i]);
}

TEST(PreclipPath, ARingContainsPointsWhateverTheirTurn) {
    for (double const turn : {-360.0, 0.0, 360.0}) {
        EXPECT_TRUE(ringContains(square, {180 + turn, 0}));
        EXPECT_TRUE(ringContains(square, {175 + turn, 0}));
        EXPECT_FALSE(ringContains(square, {0 + turn, 0}));
        EXPECT_FALSE(ringContains(square, {175 + turn, 20}));
        EXPECT_FALSE(ringContains(square, {175 + turn, -20}));
    }
    EXPECT_FALSE(ringContains(square, north) || ringContains(square, south));
}

// A meridian through vertices meets two segments at each, and must count them as one crossing or as none.
TEST(PreclipPath, AMeridianThroughVerticesCountsThemOnce) {
    Points const diamond = {{0, -10}, {10, 0}, {0, 10}, {-10, 0}};
    EXPECT_TRUE(ringContains(diamond, {0, 0}));
    EXPECT_FALSE(ringContains(diamond, {0, 11}));
    EXPECT_FALSE(ringContains(diamond, {0, -11}));
    EXPECT_FALSE(ringContains(diamond, {10, -5}));
    EXPECT_FALSE(ringContains(diamond, {-10, -5}));
    Points const notch = {
        {-10, -10}, {10, -10}, {10, 10}, {0, 0}, {-10, 10}}; // the vertex on the meridian is an inner one
    EXPECT_TRUE(ringContains(notch, {0, -5}));
    EXPECT_FALSE(ringContains(notch, {0, 5}));
}

TEST(PreclipPath, ARingAroundTheGlobeContainsTheNearerPole) {
    for (auto const& ring : {around(70, 60, 80, 65), reversed(around(70, 60, 80, 65))}) {
        EXPECT_TRUE(ringContains(ring, north));
        EXPECT_TRUE(ringContains(ring, {0, 85}));
        EXPECT_FALSE(ringContains(ring, {0, 75}));
        EXPECT_FALSE(ringContains(ring, south));
    }
    for (auto const& ring : {around(-70, -60, -80, -65), reversed(around(-70, -60, -80, -65))}) {
        EXPECT_FALSE(ringContains(ring, north));
        EXPECT_TRUE(ringContains(ring, {0, -85}));
        EXPECT_FALSE(ringContains(ring, {0, -75}));
    }
    // As near to one as to the other: the one to its left.
    EXPECT_TRUE(ringContains(around(10, -10, 10, -10), north));
    EXPECT_FALSE(ringContains(reversed(around(10, -10, 10, -10)), north));
}

TEST(PreclipPath, ARingTwiceAroundTheGlobeContainsNoPole) {
    Points twice = around(10, 10, 10, 10);
    for (auto const& point : around(40, 40, 40, 40))
        twice.push_back(point);
    for (auto const& ring : {twice, reversed(twice)}) {
        EXPECT_FALSE(ringContains(ring, north) || ringContains(ring, south));
        EXPECT_TRUE(ringContains(ring, {0, 20}));
        EXPECT_FALSE(ringContains(ring, {0, 60}));
        EXPECT_FALSE(ringContains(ring, {0, 0}));
    }
}

TEST(PreclipPath, OrientationTurnsWithTheRing) {
    EXPECT_TRUE(interiorIsLeft(square));
    EXPECT_FALSE(interiorIsLeft(reversed(square)));
    EXPECT_TRUE(interiorIsLeft(around(70, 60, 80, 65))); // eastwards around the north pole
    EXPECT_FALSE(interiorIsLeft(reversed(around(70, 60, 80, 65))));
    EXPECT_FALSE(interiorIsLeft(around(-70, -60, -80, -65)));
    EXPECT_TRUE(interiorIsLeft(reversed(around(-70, -60, -80, -65))));
}
