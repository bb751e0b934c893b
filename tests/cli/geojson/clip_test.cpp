#include "cli/geojson/clip.h"

#include "cli/points/point_converter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

namespace ZrProj::Command {
namespace {

SystemPointer makeMap(ProjType type, double lat1) {
    PROJDATA record = {};
    record.Type = type;
    record.Ellipsoid = EllipsoidTypeStandardSphereOf6370997Meters;
    record.Lat0 = record.Lat1 = lat1;
    return systemOfRecord(record);
}

Path ringAround(PROJPOINT centre, double radius, int count) {
    Path ring;
    for (int i = 0; i < count; ++i) {
        double const angle = 2 * std::numbers::pi * i / count;
        ring.points.push_back(
            {std::remainder(centre.x + radius * std::cos(angle), 360), centre.y + radius * std::sin(angle)});
    }
    return ring;
}

/// Whether a place lies in an odd number of rings; no ring here goes over 180 degrees after the cut.
bool isFilled(Paths const& rings, PROJPOINT p) {
    bool in = false;
    for (Path const& ring : rings)
        for (std::size_t i = 0; i < ring.points.size(); ++i) {
            PROJPOINT const a = ring.points[i], b = ring.points[(i + 1) % ring.points.size()];
            if ((a.y > p.y) != (b.y > p.y) && p.x < a.x + (p.y - a.y) / (b.y - a.y) * (b.x - a.x))
                in = !in;
        }
    return in;
}

/// Whether two rings have a segment, or a part of one, on the same meridian.
bool shareAMeridian(Paths const& rings, double lon) {
    std::vector<std::pair<double, double>> spans;
    for (Path const& ring : rings)
        for (std::size_t i = 0; i < ring.points.size(); ++i) {
            PROJPOINT const a = ring.points[i], b = ring.points[(i + 1) % ring.points.size()];
            if (std::fabs(a.x - lon) < 1e-8 && std::fabs(b.x - lon) < 1e-8)
                spans.emplace_back(std::fmin(a.y, b.y), std::fmax(a.y, b.y));
        }
    for (auto const& a : spans)
        for (auto const& b : spans)
            if (&a != &b && std::fmin(a.second, b.second) - std::fmax(a.first, b.first) > 1e-9)
                return true;
    return false;
}

TEST(GeoJsonClip, HolesOverTheEdgeLeaveWhatIsBetweenThem) {
    SystemPointer const map = makeMap(ProjTypeMercator, 0);
    std::mt19937 random(7);
    std::uniform_real_distribution<double> across(-12, 12), lat(-60, 60), size(0.5, 4);
    for (int i = 0; i < 20; ++i) {
        PROJPOINT const centre{180 + across(random), lat(random)};
        Paths const rings{ringAround(centre, 20, 40), ringAround({centre.x - 6, centre.y}, size(random), 9),
                          ringAround({centre.x + 6, centre.y + 5}, size(random), 17),
                          ringAround({centre.x + 4, centre.y - 8}, size(random), 4)};
        Paths const cut = cutPolygon(*map, rings);
        EXPECT_FALSE(shareAMeridian(cut, 180)) << i;
        EXPECT_FALSE(shareAMeridian(cut, -180)) << i;
        Paths each;
        for (Path const& ring : rings)
            for (Path& part : cutPolygon(*map, {ring}))
                each.push_back(std::move(part));
        for (double x = -179.5; x<180; x += std::fabs(x)> 150 ? 0.73 : 300)
            for (double y = -85; y < 86; y += 1.37)
                EXPECT_EQ(isFilled(cut, {x, y}), isFilled(each, {x, y})) << i << ": " << x << ' ' << y;
    }
}

/// The longest segment along a meridian.
double longestOn(double lon, Paths const& rings) {
    double longest = 0;
    for (Path const& ring : rings)
        for (std::size_t i = 0; i < ring.points.size(); ++i) {
            PROJPOINT const a = ring.points[i], b = ring.points[(i + 1) % ring.points.size()];
            if (std::fabs(a.x - lon) < 1e-8 && std::fabs(b.x - lon) < 1e-8)
                longest = std::fmax(longest, std::fabs(b.y - a.y));
        }
    return longest;
}

TEST(GeoJsonClip, RingsThatTouchOnTheEdgeAreNotJoinedAlongIt) {
    Paths const rings{{{{180, -20}, {-160, 0}, {180, 20}, {160, 0}}, {}},
                      {{{180, -10}, {-170, 0}, {180, 10}, {170, 0}}, {}}};
    SystemPointer const world = makeMap(ProjTypeSinusoidal, 0);
    Paths const cut = cutPolygon(*world, rings);
    EXPECT_EQ(cut.size(), 2U); // one on either side
    for (double const lon : {-180, 180}) {
        EXPECT_GT(longestOn(lon, cut), 0.5);
        EXPECT_LT(longestOn(lon, cut), 1.001);
    }
}

TEST(GeoJsonClip, NothingIsLeftOfBridges) {
    PROJDATA record = {};
    record.Type = ProjTypeOrthographic;
    record.Ellipsoid = EllipsoidTypeWgs84;
    record.Lon0 = 90;
    SystemPointer const hemisphere = systemOfRecord(record);
    Paths const cut =
        cutPolygon(*hemisphere, {{{{-158.4, -19.7}, {-157.8, 19.8}, {180, 40}, {158, 0}, {180, -32.1}}, {}},
                                 {{{180, -9.8}, {-171.9, -2.2}, {180, 8.2}, {171.3, 0}}, {}}});
    ASSERT_EQ(cut.size(), 1U);
    for (PROJPOINT const& point : cut[0].points)
        EXPECT_EQ(std::count_if(cut[0].points.begin(), cut[0].points.end(),
                                [&](PROJPOINT const& p) {
                                    return std::fabs(p.x - point.x) < 1e-7 && std::fabs(p.y - point.y) < 1e-7;
                                }),
                  1)
            << point.x << ' ' << point.y;
}

TEST(GeoJsonClip, ABeltAroundThePoleIsOneRing) {
    SystemPointer const map = makeMap(ProjTypeMercator, 0);
    Path outer, inner;
    for (double lon = -180; lon < 180; lon += 30) {
        outer.points.push_back({lon, -60});
        inner.points.push_back({lon, -75});
    }
    Paths const cut = cutPolygon(*map, {outer, inner});
    ASSERT_EQ(cut.size(), 1U);
    EXPECT_TRUE(isFilled(cut, {10, -70}));
    EXPECT_FALSE(isFilled(cut, {10, -50}));
    EXPECT_FALSE(isFilled(cut, {10, -80}));
}

TEST(GeoJsonClip, AnAreaAroundTheAntipodeHasAHoleThere) {
    SystemPointer const map = makeMap(ProjTypeStereographic, 90);
    Path everything; // all of the globe south of 60 degrees north, and so all around the antipode
    for (double lon = 180; lon > -180; lon -= 10)
        everything.points.push_back({lon, -60});
    Paths cut = cutPolygon(*map, {everything});
    for (Path& ring : cut) {
        std::vector states(ring.points.size(), PointState::Good);
        PointConverter(map).forward(ring.points, states);
    }
    auto const polygons = groupRings(cut);
    ASSERT_EQ(polygons.size(), 1U);
    EXPECT_EQ(polygons[0].size(), 2U);
}

TEST(GeoJsonClip, WhatCannotBeCutIsLeftOut) {
    SystemPointer const map = makeMap(ProjTypeMercator, 0);
    double const nan = std::nan("");
    EXPECT_TRUE(cutLine(*map, {}).empty());
    EXPECT_TRUE(cutLine(*map, {{{1, 1}}, {}}).empty());
    EXPECT_TRUE(cutPolygon(*map, {}).empty());
    EXPECT_TRUE(cutPolygon(*map, {{}, {{{1, 1}, {2, 2}}, {}}}).empty());
    EXPECT_TRUE(cutPolygon(*map, {{{{nan, 1}, {1, nan}, {nan, nan}}, {}}}).empty());
    EXPECT_EQ(cutLine(*map, {{{1, 1}, {2, 2}, {nan, nan}, {3, 3}, {4, 4}}, {}}).size(), 2U);
}

} // namespace
} // namespace ZrProj::Command

namespace ZrProj::Command {
namespace {

Path square(double x, double y, double half) {
    return {{{x - half, y - half}, {x - half, y + half}, {x + half, y + half}, {x + half, y - half}}, {}};
}

double area(Path const& ring) {
    double sum = 0;
    for (std::size_t i = 0; i < ring.points.size(); ++i) {
        auto const &a = ring.points[i], &b = ring.points[(i + 1) % ring.points.size()];
        sum += (a.x * b.y - b.x * a.y) / 2;
    }
    return sum;
}

TEST(PolygonRings, NestedRingsAlternateBetweenOuterOnesAndHoles) {
    // An island in a lake of an island, and another lake; smallest first.
    auto const polygons = groupRings({square(0, 0, 1), square(5, 5, 1), square(0, 0, 3), square(0, 0, 10)});
    ASSERT_EQ(polygons.size(), 2U);
    ASSERT_EQ(polygons[0].size(), 3U);
    EXPECT_EQ(area(polygons[0][0]), 400);
    EXPECT_EQ(area(polygons[0][1]), -36);
    EXPECT_EQ(area(polygons[0][2]), -4);
    ASSERT_EQ(polygons[1].size(), 1U);
    EXPECT_EQ(area(polygons[1][0]), 4);
}

TEST(PolygonRings, AHoleMayTouchTheRingAroundItAndTakesItsExtrasAlong) {
    Path hole{{{10, 0}, {5, 3}, {5, -3}}, {",1", ",2", ",3"}};
    Path outer = square(0, 0, 10);
    outer.points.insert(outer.points.begin() + 3, {10, 0});
    auto const polygons = groupRings({hole, outer});
    ASSERT_EQ(polygons.size(), 1U);
    ASSERT_EQ(polygons[0].size(), 2U);
    EXPECT_EQ(area(polygons[0][1]), -15);
    EXPECT_EQ(polygons[0][1].extras, (Extras{",1", ",3", ",2"}));
}

TEST(PolygonRings, WhatBoundsNothingIsDropped) {
    EXPECT_TRUE(groupRings({}).empty());
    EXPECT_TRUE(groupRings({{{{1, 1}, {2, 2}}, {}}, {}}).empty());
}

} // namespace
} // namespace ZrProj::Command
