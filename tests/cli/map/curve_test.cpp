#include "cli/map/curve.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

using namespace ZrProj;
using namespace ZrProj::Command;

namespace {

constexpr double radian = 180 / std::numbers::pi;
constexpr CurveRules rules{{-1000, -1000, 1000, 1000}, 0.5};

/// The northern hemisphere around its pole: parallels are circles, of 10 units for each degree from the pole.
std::optional<MapPoint> polar(PROJPOINT place) {
    double const r = 10 * (90 - place.y);
    return MapPoint{r * std::sin(place.x / radian), -r * std::cos(place.x / radian)};
}

std::vector<MapPoint> chords(Places const& places, bool closed, CurveRules const& limits = rules) {
    std::vector<MapPoint> ends;
    for (PROJPOINT const& place : places)
        ends.push_back(*polar(place));
    return chordsOf(places, ends, closed, polar, limits);
}

/// How far the middles of the chords are from a circle.
double worst(std::vector<MapPoint> const& points, double radius) {
    double result = 0;
    for (std::size_t i = 0; i + 1 < points.size(); ++i)
        result = std::max(
            result, std::fabs(radius - std::hypot(points[i].x + points[i + 1].x, points[i].y + points[i + 1].y) / 2));
    return result;
}

} // namespace

TEST(MapCurve, ChordsStayWithinTheTolerance) {
    auto const circle = chords({{-120, 30}, {0, 30}, {120, 30}}, true);
    EXPECT_LE(worst(circle, 600), rules.tolerance);
    EXPECT_GT(circle.size(), 50U);
    EXPECT_LT(circle.size(), 200U) << "and are not many more than that takes";
    EXPECT_NE(circle.front().x, circle.back().x) << "the first point is not repeated";

    auto const meridian = chords({{40, 10}, {40, 80}}, false);
    EXPECT_LE(meridian.size(), 70U / 5 + 1) << "a straight line has the points of its first division";
    EXPECT_DOUBLE_EQ(meridian.back().y, polar({40, 80})->y);
}

TEST(MapCurve, LongitudesGoTheShortWay) {
    auto const points = chords({{170, 30}, {-170, 30}}, false);
    EXPECT_LE(worst(points, 600), rules.tolerance);
    EXPECT_TRUE(std::ranges::all_of(points, [](MapPoint const& p) { return p.y > 550; }));
}

TEST(MapCurve, IsCoarseBesideThePaper) {
    CurveRules aside = rules;
    aside.visible = {2000, -1000, 3000, 1000};
    EXPECT_LT(chords({{-120, 30}, {0, 30}, {120, 30}}, true, aside).size(), 80U);
    EXPECT_LT(chords({{-120, 30}, {0, 30}, {120, 30}}, true, aside).size(),
              chords({{-120, 30}, {0, 30}, {120, 30}}, true, {rules.visible, 0.05}).size());
}

TEST(MapCurve, LeavesOutPlacesThatAreNowhere) {
    double const nan = std::numeric_limits<double>::quiet_NaN();
    Places const places{{0, 10}, {10, 10}, {20, 10}};
    std::vector<MapPoint> const ends{*polar(places[0]), {nan, nan}, *polar(places[2])};
    auto const points = chordsOf(places, ends, false, polar, rules);
    EXPECT_LE(worst(points, 800), rules.tolerance);
    EXPECT_TRUE(chordsOf(places, std::vector<MapPoint>(3, {nan, nan}), true, polar, rules).empty());

    auto const horizon = [](PROJPOINT place) { return place.y < 20 ? std::nullopt : polar(place); };
    EXPECT_EQ(chordsOf(Places{{0, 10}, {3, 10}}, std::vector<MapPoint>{{0, 0}, {9, 9}}, false, horizon, rules).size(),
              2U)
        << "between places beside a horizon there may be none";
}
