// The methods over arrays: against a high-precision evaluation, at every place of an array, at every level.
#include "datum/conversion.h"
#include "support/bytes.h"
#include "support/datum.h"
#include "support/levels.h"

#include <cmath>
#include <cstring>
#include <fstream>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

using namespace ZrProj;
using test::DatumHandle;
using test::datumRequest;
using test::toOrFromWgs84;

namespace {

constexpr double tolerance = 1e-12; // degrees

struct Case {
    DatumType type{};
    bool from = false;
    DATUMPOINT before{}, after{};
    std::string line;
};

/// tests/data/datums/datum.txt: "5 from | 9.19 45.46 | 9.1891 45.4589".
std::vector<Case> readCases() {
    std::ifstream in(ZRPROJ_TEST_DATA "/datums/datum.txt");
    std::vector<Case> cases;
    for (std::string line; std::getline(in, line);) {
        if (line[0] == '#')
            continue;
        Case c;
        int type = 0;
        std::string direction, bar;
        std::istringstream words(line);
        words >> type >> direction >> bar >> c.before.x >> c.before.y >> bar >> c.after.x >> c.after.y;
        EXPECT_TRUE(words) << line;
        c.type = static_cast<DatumType>(type);
        c.from = direction == "from";
        c.line = line;
        cases.push_back(c);
    }
    return cases;
}

std::vector<DATUMPOINT> pointsEverywhere(std::size_t count, unsigned seed = 1) {
    std::mt19937_64 random(seed);
    std::uniform_real_distribution<> lon(-400, 400), lat(-95, 95);
    std::vector<DATUMPOINT> points(count);
    for (auto& point : points)
        point = {lon(random), lat(random)};
    for (std::size_t i = 5; i < count; i += 97)
        points[i].y = NAN;
    return points;
}

bool sameBits(DATUMPOINT const* a, DATUMPOINT const* b, std::size_t count) {
    return test::sameBytes(std::span<DATUMPOINT const>(a, count), std::span<DATUMPOINT const>(b, count));
}

constexpr DatumType conversions[][2] = {{DatumTypeNorthAmericanDatum1927, DatumTypeWorldGeodeticSystem1984},
                                        {DatumTypeEuropean1950Mean, DatumTypeDhdnBursaWolf},
                                        {DatumTypePulkovo1942BursaWolf, DatumTypeNtfFranceParisMeridian},
                                        {DatumTypeNad1927ConusMre, DatumTypePulkovo1942HungaryBursaWolf}};

} // namespace

TEST(DatumMethods, AgreeWithAHighPrecisionEvaluation) {
    auto const cases = readCases();
    std::set<DatumType> types;
    test::forEachLevel([&](levels::Level) {
        for (auto const& c : cases) {
            DatumHandle const handle(toOrFromWgs84(c.type, c.from));
            auto const p = handle(c.before.x, c.before.y);
            EXPECT_NEAR(p.x, c.after.x, tolerance) << c.line;
            EXPECT_NEAR(p.y, c.after.y, tolerance) << c.line;
            types.insert(c.type);
        }
    });
    EXPECT_EQ(types.size(), 226u);
}

TEST(DatumMethods, GiveAPointTheSameBitsAnywhere) {
    test::forEachLevel([](levels::Level) {
        for (auto const& [from, to] : conversions) {
            DatumHandle const handle(datumRequest(from, to));
            auto const source = pointsEverywhere(700);
            auto alone = source;
            for (auto& point : alone)
                ASSERT_TRUE(DatConvertDatum(handle.handle, &point, 1));
            for (std::size_t const start : {0u, 1u, 3u, 177u})
                for (std::size_t const count : {1u, 2u, 7u, 8u, 9u, 63u, 255u, 256u, 257u, 513u}) {
                    std::vector<DATUMPOINT> part(source.begin() + static_cast<std::ptrdiff_t>(start),
                                                 source.begin() + static_cast<std::ptrdiff_t>(start + count));
                    ASSERT_TRUE(DatConvertDatum(handle.handle, part.data(), static_cast<int>(count)));
                    ASSERT_TRUE(sameBits(part.data(), &alone[start], count)) << count << " points from " << start;
                }
        }
    });
}

TEST(DatumMethods, AgreeBetweenLevels) {
    for (auto const& [from, to] : conversions) {
        std::vector<DATUMPOINT> reference;
        test::forEachLevel([&, from = from, to = to](levels::Level level) {
            DatumHandle const handle(datumRequest(from, to));
            auto points = pointsEverywhere(3000);
            ASSERT_TRUE(DatConvertDatum(handle.handle, points.data(), 3000));
            if (level == levels::Level::scalar)
                reference = points;
            for (std::size_t i = 0; i < points.size(); ++i) {
                if (from == 229 || std::abs(reference[i].y) > 89)
                    continue; // no digits are left of longitudes at a pole, nor of equations far from their area
                ASSERT_NEAR(points[i].x, reference[i].x, tolerance);
                ASSERT_NEAR(points[i].y, reference[i].y, tolerance);
            }
        });
    }
}

// What a grid is given, and what becomes of it: a grid of a quarter of a degree everywhere.
TEST(DatumMethods, ConvertByAGridOnTheCallersSide) {
    static constexpr auto shift = [](DATUMPOINT* points, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i)
            if (points[i].x != DBL_MAX) {
                EXPECT_TRUE(std::abs(points[i].x) <= 180 && std::abs(points[i].y) <= 90);
                points[i].x += 0.25;
            }
        return true;
    };
    test::forEachLevel([](levels::Level) {
        auto conversion =
            datum::prepareConversion(datumRequest(DatumTypeNad1927ConusNadcon, DatumTypeEuropean1950Mean));
        ASSERT_TRUE(conversion.isDefined && conversion.grid);
        conversion.grid = shift;
        auto const source = pointsEverywhere(40000); // more than a grid is given at once
        auto points = source, expected = source;
        for (auto& point : expected) // within a turn, so that the quarter stays on the same side
            point = {std::fmod(point.x, 360) + 0.25, point.y};
        bool marked = false;
        ASSERT_TRUE(datum::convert(conversion, points, marked));
        EXPECT_TRUE(marked);
        ASSERT_TRUE(DatConvertDatum(DatumHandle(datumRequest(DatumTypeUserDefined, DatumTypeEuropean1950Mean)).handle,
                                    expected.data(), 40000));
        for (std::size_t i = 0; i < points.size(); ++i) {
            if (std::abs(expected[i].y) > 89 && !test::isMarked(expected[i]))
                continue; // no digits are left of longitudes at a pole
            ASSERT_NEAR(points[i].x, expected[i].x, tolerance) << source[i].x;
            ASSERT_NEAR(points[i].y, expected[i].y, tolerance) << source[i].x;
        }
        conversion.grid = [](DATUMPOINT*, std::size_t) { return false; };
        EXPECT_FALSE(datum::convert(conversion, points, marked));
    });
}

TEST(DatumMethods, RunOnSeveralThreadsAtOnce) {
    constexpr std::size_t count = 20000, threads = 4;
    auto const convert = [](std::size_t i) {
        auto points = pointsEverywhere(count, static_cast<unsigned>(i));
        DatumHandle const handle(datumRequest(conversions[i][0], conversions[i][1]));
        for (int round = 0; round < 3; ++round)
            DatConvertDatum(handle.handle, points.data(), count);
        return points;
    };
    std::vector<std::vector<DATUMPOINT>> parallel(threads);
    std::vector<std::thread> running;
    for (std::size_t i = 0; i < threads; ++i)
        running.emplace_back([&, i] { parallel[i] = convert(i); });
    for (auto& thread : running)
        thread.join();
    for (std::size_t i = 0; i < threads; ++i)
        EXPECT_TRUE(sameBits(parallel[i].data(), convert(i).data(), count)) << i;
}
