#include "formulas/converter.h"
#include "host/fpenv.h"
#include "support/levels.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>
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

levels::Outcome forward(levels::Points const& points, levels::Marking const& marking) {
    auto const converter = mercator();
    return withDefaultFloatingPoint([&] { return converter.convert(&Converter::forward, points, marking); });
}

} // namespace

TEST(Driver, ComputesTheSameWhateverTheLayout) {
    test::forEachLevel([](levels::Level) {
        auto pairs = points();
        std::size_t const count = pairs.size();
        std::vector<double> x, y;
        std::vector<unsigned char> wide(count * 25 + 1); // unaligned, y before x
        for (std::size_t i = 0; i < count; ++i) {
            x.push_back(pairs[i].x);
            y.push_back(pairs[i].y);
            std::memcpy(&wide[i * 25 + 1], &pairs[i].y, 8);
            std::memcpy(&wide[i * 25 + 17], &pairs[i].x, 8);
        }
        auto const bytes = [](auto* p) { return reinterpret_cast<std::byte*>(p); };
        auto const outcome = forward(levels::pointsOf(pairs.data(), count), {});
        EXPECT_TRUE(outcome.lost);
        EXPECT_FALSE(outcome.failed);
        forward({bytes(x.data()), bytes(y.data()), 8, count}, {});
        forward({bytes(&wide[17]), bytes(&wide[1]), 25, count}, {});
        std::vector<PROJPOINT> fromArrays, fromWide(count);
        for (std::size_t i = 0; i < count; ++i) {
            fromArrays.push_back({x[i], y[i]});
            std::memcpy(&fromWide[i].y, &wide[i * 25 + 1], 8);
            std::memcpy(&fromWide[i].x, &wide[i * 25 + 17], 8);
        }
        EXPECT_TRUE(areSame(fromArrays, pairs));
        EXPECT_TRUE(areSame(fromWide, pairs));
        auto alone = points();
        for (auto& point : alone)
            forward(levels::pointsOf(&point, 1), {});
        EXPECT_TRUE(areSame(alone, pairs));
    });
}

TEST(Driver, TellsWhatBecameOfEachPoint) {
    test::forEachLevel([](levels::Level) {
        auto const before = points();
        auto after = before;
        std::vector<unsigned char> fates(before.size(), levels::cameOut);
        forward(levels::pointsOf(after.data(), after.size()), {.marker = notANumber, .fates = fates.data()});
        for (std::size_t i = 0; i < before.size(); ++i) {
            auto const& p = before[i];
            bool const cameIn = std::isfinite(p.x) && std::isfinite(p.y) && p.x != DBL_MAX;
            auto const expected = !cameIn                ? levels::cameInLost
                                  : std::fabs(p.y) == 90 ? levels::lostInStage
                                                         : levels::cameOut;
            EXPECT_EQ(int(fates[i]), int(expected)) << i;
            EXPECT_EQ(std::isnan(after[i].x) && std::isnan(after[i].y), expected != levels::cameOut) << i;
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
        unsigned char fates[3] = {};
        levels::Marking const marking{.fates = fates};
        converter.driver(stages, 3, levels::pointsOf(way, 3), marking);
        EXPECT_NEAR(way[0].x, 10, 1e-11);
        EXPECT_NEAR(way[0].y, 20, 1e-11);
        EXPECT_NEAR(way[2].x, -160, 1e-11);
        EXPECT_EQ(fates[0], levels::cameOut);
        EXPECT_EQ(fates[1], levels::lostInStage);

        PROJPOINT offTheMap[] = {{3e7, 0}, {1e6, 0}};
        unsigned char again[2] = {};
        converter.driver(stages + 1, 2, levels::pointsOf(offTheMap, 2), {.fates = again});
        EXPECT_EQ(again[0], levels::lostInStage + 1);
        EXPECT_EQ(again[1], levels::cameOut);
    });
}

TEST(Driver, KeepsMarkedPointsWhereAsked) {
    test::forEachLevel([](levels::Level) {
        PROJPOINT points[] = {{DBL_MAX, 4}, {1, 2}};
        EXPECT_FALSE(forward(levels::pointsOf(points, 2), {.keepsMarked = true}).lost);
        EXPECT_EQ(points[0].x, DBL_MAX);
        EXPECT_EQ(points[0].y, 4);
        PROJPOINT marked[] = {{DBL_MAX, 4}};
        EXPECT_TRUE(forward(levels::pointsOf(marked, 1), {}).lost);
        EXPECT_EQ(marked[0].y, DBL_MAX);
    });
}
