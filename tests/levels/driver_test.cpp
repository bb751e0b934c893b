#include "formulas/converter.h"
#include "host/fpenv.h"
#include "support/levels.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <span>
#include <vector>

using namespace ZrProj;
using formulas::Converter;

namespace {

constexpr double inf = std::numeric_limits<double>::infinity(), notANumber = std::numeric_limits<double>::quiet_NaN();

/// Mercator, which shows all but the poles.
Converter mercator() {
    Converter converter;
    formulas::formulaOf(formulas::Method::mercator)->prepare(converter, {.a = 6378137, .f = 1 / 298.25});
    return converter;
}

/// More than two blocks, with what cannot be computed in every place of a register, and once all through one.
std::vector<PROJPOINT> points() {
    std::mt19937_64 random(5);
    std::uniform_real_distribution<double> lon(-180, 180), lat(-89, 89);
    std::vector<PROJPOINT> points(2 * levels::blockPoints + 77);
    for (auto& point : points)
        point = {lon(random), lat(random)};
    for (std::size_t i = 0; i < points.size(); i += 9)
        points[i] = i % 2 ? PROJPOINT{5, 90} : PROJPOINT{notANumber, 3};
    for (std::size_t i = 64; i < 80; ++i)
        points[i] = {7, -90};
    points[100] = {DBL_MAX, 4};
    points[101] = {4, -inf};
    points.back() = {8, 90};
    return points;
}

template <class T> bool areSame(T const& a, T const& b) {
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof a[0]) == 0;
}

levels::Outcome forward(std::span<PROJPOINT> points, levels::Marking const& marking = {}) {
    auto const converter = mercator();
    return withDefaultFloatingPoint([&] {
        return converter.convert(&Converter::forward, levels::pointsOf(points.data(), points.size()), marking);
    });
}

} // namespace

TEST(Driver, ComputesTheSameWhereverAPointStands) {
    test::forEachLevel([](levels::Level) {
        auto together = points();
        auto const outcome = forward(together);
        EXPECT_TRUE(outcome.lost);
        EXPECT_FALSE(outcome.failed);
        for (std::size_t const atOnce : {1U, 2U, 3U, 7U, 17U, 260U}) {
            auto apart = points();
            for (std::span rest(apart); !rest.empty(); rest = rest.subspan(std::min(atOnce, rest.size())))
                forward(rest.first(std::min(atOnce, rest.size())));
            EXPECT_TRUE(areSame(apart, together)) << atOnce;
        }
    });
}

TEST(Driver, TellsWhatBecameOfEachPoint) {
    test::forEachLevel([](levels::Level) {
        auto const before = points();
        auto after = before;
        std::vector<unsigned char> reasons(before.size(), levels::cameOut);
        forward(after, {.reasons = reasons.data()});
        for (std::size_t i = 0; i < before.size(); ++i) {
            auto const& p = before[i];
            bool const cameIn = std::isfinite(p.x) && std::isfinite(p.y) && p.x != DBL_MAX;
            auto const expected = !cameIn                ? levels::cameInLost
                                  : std::fabs(p.y) == 90 ? levels::lostInStage
                                                         : levels::cameOut;
            EXPECT_EQ(int(reasons[i]), int(expected)) << i;
            EXPECT_EQ(after[i].x == DBL_MAX && after[i].y == DBL_MAX, expected != levels::cameOut) << i;
        }
    });
}

TEST(Driver, NamesTheStageThatLosesAPoint) {
    test::forEachLevel([](levels::Level) {
        auto const converter = mercator();
        levels::Stage const stages[] = {converter.stageOf(&Converter::forward),
                                        {}, // an empty one changes nothing
                                        converter.stageOf(&Converter::inverse),
                                        converter.stageOf(&Converter::inverse)};
        PROJPOINT way[] = {{10, 20}, {10, 90}, {200, 20}};
        unsigned char reasons[3] = {};
        levels::Marking const marking{.reasons = reasons};
        converter.driver(stages, 3, levels::pointsOf(way, 3), marking);
        EXPECT_NEAR(way[0].x, 10, 1e-11);
        EXPECT_NEAR(way[0].y, 20, 1e-11);
        EXPECT_NEAR(way[2].x, -160, 1e-11);
        EXPECT_EQ(reasons[0], levels::cameOut);
        EXPECT_EQ(reasons[1], levels::lostInStage);

        PROJPOINT offTheMap[] = {{3e7, 0}, {1e6, 0}};
        unsigned char again[2] = {};
        converter.driver(stages + 1, 2, levels::pointsOf(offTheMap, 2), {.reasons = again});
        EXPECT_EQ(again[0], levels::lostInStage + 1);
        EXPECT_EQ(again[1], levels::cameOut);
    });
}

TEST(Driver, KeepsMarkedPointsWhereAsked) {
    test::forEachLevel([](levels::Level) {
        PROJPOINT points[] = {{DBL_MAX, 4}, {1, 2}};
        EXPECT_FALSE(forward(points, {.keepsMarked = true}).lost);
        EXPECT_EQ(points[0].x, DBL_MAX);
        EXPECT_EQ(points[0].y, 4);
        PROJPOINT marked[] = {{DBL_MAX, 4}};
        EXPECT_TRUE(forward(marked).lost);
        EXPECT_EQ(marked[0].y, DBL_MAX);
        PROJPOINT infinite[] = {{DBL_MAX, inf}};
        EXPECT_TRUE(forward(infinite, {.keepsMarked = true}).lost);
        EXPECT_EQ(infinite[0].y, DBL_MAX);
    });
}
