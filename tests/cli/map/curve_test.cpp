#include "cli/map/curve.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <random>

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

using namespace ZrProj::Command;

namespace {

constexpr MapBox box{0, 0, 10, 10};

double area(std::vector<MapPoint> const& ring) {
    double sum = 0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        MapPoint const &a = ring[i], &b = ring[(i + 1) % ring.size()];
        sum += a.x * b.y - b.x * a.y;
    }
    return sum / 2;
}

/// Of the part of a ring below a line x <= at, and so on, by counting.
double areaByCounting(std::vector<MapPoint> const& ring) {
    constexpr int steps = 400;
    int inside = 0;
    for (int i = 0; i < steps; ++i)
        for (int j = 0; j < steps; ++j) {
            double const x = 10 * (i + 0.5) / steps, y = 10 * (j + 0.5) / steps;
            bool in = false;
            for (std::size_t k = 0; k < ring.size(); ++k) {
                MapPoint const &a = ring[k], &b = ring[(k + 1) % ring.size()];
                if ((a.y > y) != (b.y > y) && x < a.x + (y - a.y) * (b.x - a.x) / (b.y - a.y))
                    in = !in;
            }
            inside += in;
        }
    return 100.0 * inside / (steps * steps);
}

} // namespace

TEST(MapClip, RingsKeepTheAreaInsideTheBox) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> radius(1, 14), place(-3, 13);
    for (int i = 0; i < 20; ++i) {
        std::vector<MapPoint> star;
        MapPoint const centre{place(random), place(random)};
        for (int k = 0; k < 12; ++k) {
            double const r = radius(random), turn = k * 0.5235987755982988;
            star.push_back({centre.x + r * std::cos(turn), centre.y + r * std::sin(turn)});
        }
        auto const clipped = clipRing(star, box);
        EXPECT_NEAR(area(clipped), areaByCounting(star), 0.4);
        for (MapPoint const& p : clipped)
            EXPECT_TRUE(MapBox({-1e-9, -1e-9, 10 + 1e-9, 10 + 1e-9}).holds(p)) << p.x << ' ' << p.y;
    }
    EXPECT_NEAR(area(clipRing({{-1e9, -1e9}, {1e9, -1e9}, {1e9, 1e9}, {-1e9, 1e9}}, box)), 100, 1e-6) << "all around";
    EXPECT_TRUE(clipRing({{-5, -5}, {-1, -5}, {-3, 20}}, box).empty()) << "beside";
}

TEST(MapClip, LinesComeInPieces) {
    std::vector<MapPoint> const zigzag{{-5, 2}, {5, 2}, {5, 12}, {8, 12}, {8, -2}, {20, 5}};
    auto const pieces = clipLine(zigzag, box);
    ASSERT_EQ(pieces.size(), 2U);
    ASSERT_EQ(pieces[0].size(), 3U);
    EXPECT_EQ(pieces[0].front().x, 0);
    EXPECT_EQ(pieces[0].back().y, 10);
    EXPECT_EQ(pieces[1].front().y, 10);
    EXPECT_EQ(pieces[1].back().y, 0);
    EXPECT_TRUE(clipLine(std::vector<MapPoint>{{-5, 5}, {5, 20}}, box).empty()) << "past a corner";
}

TEST(MapSeam, IsNoEdge) {
    // A square that was cut open from the middle of its lower side.
    std::vector<MapPoint> const ring{{5, 0}, {5, 6}, {5.01, 3}, {5.01, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 0}, {5, 0}};
    auto const lines = withoutSeams({ring}, 0.1);
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].size(), 6U);
    EXPECT_EQ(lines[0].front().x, 5.01);
    EXPECT_EQ(withoutSeams({ring}, 0.001)[0].size(), ring.size()) << "two sides, where both can be seen";
}
