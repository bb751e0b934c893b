#include "cli/geojson/polygon_rings.h"

#include <gtest/gtest.h>

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
