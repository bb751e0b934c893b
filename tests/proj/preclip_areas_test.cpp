#include "proj/preclip_areas.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

using namespace ZrProj;
using namespace ZrProj::preclip;

namespace {

constexpr double degree = 3.141592653589793 / 180;

using Longitudes = std::vector<double>;

double awayFrom(PROJPOINT const& a, PROJPOINT const& b) {
    return std::hypot(std::remainder(a.x - b.x, 360.0) * std::cos(b.y * degree), a.y - b.y);
}

/// Where along a segment of unwrapped longitudes a point is, and how far from it.
struct Along {
    double s, away;
};
Along along(PROJPOINT const& from, PROJPOINT const& to, PROJPOINT const& point) {
    Along best{0, 1000};
    double const dx = to.x - from.x, dy = to.y - from.y;
    for (double const turn : {-720.0, -360.0, 0.0, 360.0, 720.0}) {
        double const x = point.x + turn - from.x, y = point.y - from.y;
        double const s = std::clamp((x * dx + y * dy) / (dx * dx + dy * dy), 0.0, 1.0);
        double const away = std::hypot(x - s * dx, y - s * dy) * std::cos(point.y * degree);
        if (away < best.away)
            best = {s, away};
    }
    return best;
}

/// What every area promises of segments: crossings leave and enter by turns, as its ends lie inside or outside, and
/// stand on the segment, in its order, up to `off` degrees from it, and on the boundary where their parameters say, up
/// to `beside` degrees from it.
template <class Area> void expectCrossings(Area const& area, double beside, double off = 1e-7) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> lon(-180, 180), lat(-90, 90), step(-179, 179);
    int found = 0;
    for (int i = 0; i < 4000; ++i) {
        PROJPOINT const from{lon(random), lat(random)}, to{from.x + step(random), lat(random)};
        SCOPED_TRACE(testing::Message() << from.x << " " << from.y << " to " << to.x << " " << to.y);
        auto const a = area.vertexAt(from, from.x), b = area.vertexAt({std::remainder(to.x, 360.0), to.y}, to.x);
        Crossings crossings;
        area.crossings(a, b, crossings);
        bool inside = area.contains(a);
        double last = 0;
        for (auto const& crossing : crossings) {
            auto const [s, away] = along(from, to, crossing.point);
            ASSERT_LE(away, off);
            ASSERT_GE(s, last - off);
            last = s;
            ASSERT_NE(crossing.enters, inside);
            inside = crossing.enters;
            ASSERT_LE(awayFrom(area.boundaryPoint(crossing.t), crossing.point), beside);
            ASSERT_TRUE(area.contains(area.vertexAt(crossing.point, crossing.point.x)));
        }
        ASSERT_EQ(inside, area.contains(b));
        found += static_cast<int>(crossings.size());
    }
    EXPECT_GT(found, 100);
}

/// The boundary is closed and belongs to the area.
template <class Area> void expectBoundary(Area const& area) {
    EXPECT_LT(awayFrom(area.boundaryPoint(0), area.boundaryPoint(area.sides.back())), 1e-9);
    for (int i = 0; i <= 1000; ++i) {
        double const t = area.sides.back() * i / 1000;
        auto const point = area.boundaryPoint(t);
        ASSERT_TRUE(area.contains(area.vertexAt(point, point.x))) << t;
    }
}

/// What lies just outside of the boundary does not belong to the area, nor what lies far outside.
template <class Area> void expectComplement(Area const& area) {
    for (int i = 1; i < 100; ++i) {
        auto const point = area.outside(area.referenceBegin + (area.referenceEnd - area.referenceBegin) * i / 100);
        ASSERT_FALSE(area.contains(area.vertexAt(point, point.x))) << i;
    }
    auto const far = area.pointOfComplement();
    EXPECT_FALSE(area.contains(area.vertexAt(far, far.x)));
}

ObliqueArea obliqueSphere() {
    return ObliqueArea({.present = true,
                        .lon0 = 20,
                        .lonPole = 30,
                        .sinPole = std::sin(40 * degree),
                        .cosPole = std::cos(40 * degree)});
}

ObliqueArea obliqueEllipsoid() {
    return ObliqueArea({.present = true,
                        .lon0 = -75,
                        .B = 1.0004,
                        .logE = 0.003,
                        .e = 0.0822,
                        .lonPole = -10,
                        .sinPole = std::sin(-53 * degree),
                        .cosPole = std::cos(-53 * degree)});
}

} // namespace

TEST(PreclipAreas, ASegmentLeavesAndEntersByTurns) {
    expectCrossings(WindowArea({.present = true, .west = -40, .east = 70, .south = -30, .north = 60}), 1e-9);
    expectCrossings(WindowArea({.present = true, .west = 5 - 179.999999999, .east = 5 + 179.999999999}), 1e-9);
    expectCrossings(HorizonArea({.present = true, .lon = 10, .lat = 40}), 1e-8);
    expectCrossings(HorizonArea({.present = true, .lon = -120, .lat = -90}), 1e-8);
    expectCrossings(PolarHoleArea({.present = true, .side = -1, .limit = 60}), 1e-9);
    expectCrossings(HoleArea({.present = true, .lon = 179, .lat = -20, .halfWidth = 30, .halfHeight = 12}), 1e-9);
    expectCrossings(obliqueSphere(), 2e-4);
    // Where the sphere that carries the ellipsoid goes more than once around, a strip opposite to lon0, crossings are
    // off by its width; maps have a hole there.
    expectCrossings(obliqueEllipsoid(), 2e-4, 0.2);
}

TEST(PreclipAreas, BoundariesBelongToTheArea) {
    expectBoundary(WindowArea({.present = true, .west = -40, .east = 70, .south = -30, .north = 60}));
    auto const expectBoth = [](auto const& area) {
        expectBoundary(area);
        expectComplement(area);
    };
    expectBoth(HorizonArea({.present = true, .lon = 10, .lat = 40}));
    expectBoth(PolarHoleArea({.present = true, .side = 1, .limit = 60}));
    expectBoth(PolarHoleArea({.present = true, .side = -1, .limit = 89}));
    expectBoth(HoleArea({.present = true, .lon = 179, .lat = -20, .halfWidth = 30, .halfHeight = 12}));
}

// The globe's copies of a window are one window: a segment over the far side leaves one and enters the next.
TEST(PreclipAreas, AWindowIsTheSameWhateverTheTurn) {
    WindowArea const area({.present = true, .west = -40, .east = 70, .south = -30, .north = 60});
    for (double const turn : {-720.0, 0.0, 1080.0}) {
        auto const a = area.vertexAt({60, 0}, 60 + turn), b = area.vertexAt({-30, 0}, 330 + turn);
        EXPECT_TRUE(area.contains(a));
        EXPECT_TRUE(area.contains(b));
        Crossings crossings;
        area.crossings(a, b, crossings);
        ASSERT_EQ(crossings.size(), 2U);
        EXPECT_EQ(crossings[0].point.x, 70);
        EXPECT_EQ(crossings[1].point.x, -40);
    }
}

TEST(PreclipAreas, AVertexOnTheSeamGoesToTheSideThatThePathComesFrom) {
    WindowArea const area({.present = true, .west = -179.999999999, .east = 179.999999999});
    auto const longitudesOf = [&](std::vector<PROJPOINT> points, bool staysOnSeam) {
        Path path{std::move(points), false, true};
        Unwrapped unwrapped(path);
        EXPECT_EQ(area.moveOffSeam(path, unwrapped), staysOnSeam);
        std::vector<double> result;
        for (auto const& point : path.points)
            result.push_back(point.x);
        return result;
    };
    EXPECT_EQ(longitudesOf({{170, 0}, {-180, 0}, {-170, 0}}, false), (Longitudes{170, 179.999999999, -170}));
    EXPECT_EQ(longitudesOf({{-170, 0}, {180, 0}, {170, 0}}, false), (Longitudes{-170, -179.999999999, 170}));
    EXPECT_EQ(longitudesOf({{180, 0}, {-180, 10}, {-170, 20}}, false),
              (Longitudes{-179.999999999, -179.999999999, -170}));
    EXPECT_EQ(longitudesOf({{180, 0}, {-180, 10}}, true), (Longitudes{179.999999999, 179.999999999}));
    EXPECT_EQ(longitudesOf({{-180, 0}, {180, 10}}, true), (Longitudes{-179.999999999, -179.999999999}));
}

// A segment that only touches the horizon, or that follows it, is not cut to pieces.
TEST(PreclipAreas, ASegmentAlongTheHorizonIsNotCut) {
    HorizonArea const area({.present = true, .lon = 10, .lat = 40});
    for (int azimuth = 0; azimuth < 360; ++azimuth) {
        auto const from = area.boundaryPoint(azimuth), to = area.boundaryPoint(azimuth + 1);
        double const lon = from.x + std::remainder(to.x - from.x, 360.0);
        Crossings crossings;
        area.crossings(area.vertexAt(from, from.x), area.vertexAt(to, lon), crossings);
        EXPECT_TRUE(crossings.empty()) << azimuth;
    }
}

// Both sides of the cut, and the circles around the poles at its ends: neighbours on the boundary are close, and what
// lies in the cut is moved to the side that it is on.
TEST(PreclipAreas, TheBoundaryOfAnObliqueCutGoesAllAroundIt) {
    for (auto const& area : {obliqueSphere(), obliqueEllipsoid()}) {
        for (int t = 0; t < 1080; ++t) {
            auto const a = area.boundaryPoint(t), b = area.boundaryPoint(t + 1);
            auto const vertex = area.vertexAt(a, a.x);
            ASSERT_TRUE(area.isOnBoundary(vertex)) << t;
            ASSERT_TRUE(areNeighbours(vertex.vector, area.vertexAt(b, b.x).vector)) << t;
        }
        Crossings crossings;
        auto const west = area.vertexAt(area.boundaryPoint(60), area.boundaryPoint(60).x);
        auto const east = area.vertexAt(area.boundaryPoint(660), area.boundaryPoint(660).x); // opposite, beside the cut
        area.crossings(west, east, crossings);
        ASSERT_EQ(crossings.size(), 2U);
        EXPECT_NEAR(crossings[0].t, 60, 1e-3);
        EXPECT_NEAR(crossings[1].t, 660, 1e-3);
        for (double t = area.referenceBegin; t <= area.referenceEnd; t += 2) {
            auto const inside = area.outside(t);
            auto const vertex = area.vertexAt(inside, inside.x);
            ASSERT_FALSE(area.keepsAsGiven(vertex, inside)) << t;
            auto const shown = area.shown(vertex, inside);
            EXPECT_TRUE(area.keepsAsGiven(area.vertexAt(shown, shown.x), shown)) << t;
        }
    }
}
