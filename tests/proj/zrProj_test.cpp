#include "support/error_host.h"
#include "support/floating_point.h"
#include "support/levels.h"
#include "support/registry.h"

#include <zrproj/zrproj.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cfenv>
#include <cfloat>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <thread>
#include <vector>

using namespace ZrProj;
using test::isMarked;
using test::sameBits;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

PROJDATA recordOf(ProjType type, double lon0 = 0) {
    PROJDATA record{};
    record.Type = type;
    record.Ellipsoid = EllipsoidTypeWgs84;
    record.Lon0 = lon0;
    return record;
}

PROJDATA utm17() {
    return recordOf(ProjTypeUniversalTransverseMercator, -81);
}

struct Handle {
    explicit Handle(PROJDATA record) : handle(ProjCreateProjection(&record)) {}
    ~Handle() { ProjDeleteProjection(handle); }
    Handle(Handle const&) = delete;
    Handle& operator=(Handle const&) = delete;
    void* handle;
};

PROJPOINT forward(void* handle, double lon, double lat) {
    PROJPOINT point{lon, lat};
    EXPECT_TRUE(ProjForward(handle, &point, 1));
    return point;
}

std::vector<PROJPOINT> pointsAround(double lon0, std::size_t count, unsigned seed = 1) {
    std::mt19937_64 random(seed);
    std::uniform_real_distribution<> lon(lon0 - 4, lon0 + 4), lat(-88, 88);
    std::vector<PROJPOINT> points(count);
    for (auto& point : points)
        point = {lon(random), lat(random)};
    return points;
}

} // namespace

// Fields of the packed record are compared as values (+field): no reference may be bound to them.
TEST(Creation, CompletesTheRecord) {
    PROJDATA record = utm17();
    record.bSouth = true;
    record.Reserved[255] = 0x5A;
    void* const handle = ProjCreateProjection(&record);
    ASSERT_TRUE(handle);
    EXPECT_EQ(+record.K0, 0.9996);
    EXPECT_EQ(+record.xOrg, 500000);
    EXPECT_EQ(+record.yOrg, 10000000);
    EXPECT_EQ(+record.MajorRadius, 6378137);
    EXPECT_EQ(+record.Flattening, 1 / 298.257223563);
    EXPECT_EQ(+record.Scale, 0); // only the handle's scale becomes 1
    PROJDATA inside;
    ASSERT_TRUE(ProjGetHandleInfo(handle, &inside));
    EXPECT_EQ(+inside.Scale, 1);
    EXPECT_EQ(inside.Reserved[255], 0x5A);
    EXPECT_FALSE(ProjGetHandleInfo(handle, nullptr));
    EXPECT_FALSE(ProjGetHandleInfo(nullptr, &inside));
    ProjDeleteProjection(handle);
    ProjDeleteProjection(nullptr);
}

TEST(Creation, RefusesWhatCannotBeUsed) {
    ErrorHost host;
    EXPECT_FALSE(ProjCreateProjection(nullptr));
    EXPECT_TRUE(host.calls.empty());
    PROJDATA record = utm17();
    record.Lon0 = 400;
    EXPECT_FALSE(ProjCreateProjection(&record));
    EXPECT_EQ(host.calls.back().number, 20235u);
    record = recordOf(ProjTypeUndefined); // no check is made of its ellipsoid but here
    record.Ellipsoid = EllipsoidTypeNone;
    EXPECT_FALSE(ProjCreateProjection(&record));
    EXPECT_EQ(host.calls.back().number, 20200u);
    EXPECT_EQ(host.calls.back().file, ".\\zrProj.cpp");
    record = recordOf(ProjTypeStatePlane1983);
    record.Zone = StateZoneTypeMaineEast;
    record.Ellipsoid = EllipsoidTypeUserDefined;
    EXPECT_FALSE(ProjCreateProjection(&record));
    for (double const flattening : {-0.1, 1.0, notANumber}) {
        record = recordOf(ProjTypeTransverseMercator);
        record.Ellipsoid = EllipsoidTypeUserDefined;
        record.MajorRadius = 1;
        record.Flattening = flattening;
        EXPECT_FALSE(ProjCreateProjection(&record));
    }
}

TEST(Conversion, RefusesBadArguments) {
    ErrorHost host;
    Handle const utm(utm17());
    PROJPOINT point{-81, 40};
    EXPECT_FALSE(ProjForward(nullptr, &point, 1));
    EXPECT_TRUE(host.calls.empty());
    EXPECT_FALSE(ProjForward(utm.handle, nullptr, 1));
    EXPECT_FALSE(ProjInverse(utm.handle, &point, 0));
    EXPECT_FALSE(ProjInverse(utm.handle, &point, -5));
    EXPECT_EQ(host.calls.size(), 6u); // each assertion asks, then tells
    EXPECT_EQ(ProjResult(nullptr), 0);
}

TEST(Conversion, LeavesUnprojectedPointsButMarksBrokenOnes) {
    PROJDATA record = recordOf(ProjTypeUnprojectedLatLong);
    record.xOrg = 100;
    record.Scale = 2;
    Handle const plain(record);
    PROJPOINT points[] = {{500, 100}, {notANumber, 3}, {4, infinity}};
    EXPECT_TRUE(ProjForward(plain.handle, points, 3));
    EXPECT_EQ(points[0].x, 500);
    EXPECT_EQ(points[0].y, 100);
    EXPECT_TRUE(isMarked(points[1]) && isMarked(points[2]));
    EXPECT_EQ(ProjResult(plain.handle), 1);
    EXPECT_TRUE(ProjInverse(plain.handle, points, 1));
    EXPECT_EQ(ProjResult(plain.handle), 0);
    EXPECT_FALSE(ProjLLInProjection(plain.handle, points));
}

TEST(Conversion, RefusesTypesWithoutAFormula) {
    PROJDATA record = recordOf(ProjTypeUndefined);
    record.MajorRadius = 1;
    Handle const handle(record);
    ASSERT_TRUE(handle.handle);
    PROJPOINT point{1, 2};
    double out1, out2;
    EXPECT_FALSE(ProjForward(handle.handle, &point, 1));
    EXPECT_FALSE(ProjInverse(handle.handle, &point, 1));
    EXPECT_FALSE(ProjLLInProjection(handle.handle, &point));
    EXPECT_FALSE(ProjLLOffsetSplitObject(handle.handle, &point, 1, &out1, &out2));
}

TEST(Conversion, NormalisesLongitudeAndLatitude) {
    test::forEachLevel([](levels::Level) {
        Handle const tm(recordOf(ProjTypeTransverseMercator, 8));
        EXPECT_TRUE(sameBits(forward(tm.handle, 370, 50), forward(tm.handle, 10, 50)));
        EXPECT_TRUE(sameBits(forward(tm.handle, 10, 100), forward(tm.handle, 10, 80)));
        EXPECT_TRUE(sameBits(forward(tm.handle, 10, -100), forward(tm.handle, 10, -80)));
        EXPECT_TRUE(sameBits(forward(tm.handle, 360, 0), forward(tm.handle, 0, 0)));
        EXPECT_TRUE(sameBits(forward(tm.handle, 3610, 190), forward(tm.handle, 10, 10)));
        EXPECT_TRUE(sameBits(forward(tm.handle, -350, 10), forward(tm.handle, -350, 10)));
        Handle const west(recordOf(ProjTypeTransverseMercator, -355)); // the remainder keeps its sign
        PROJPOINT back = forward(west.handle, -354, 10);
        EXPECT_TRUE(ProjInverse(west.handle, &back, 1));
        EXPECT_NEAR(back.x, -354, 1e-9);
    });
}

TEST(Conversion, AddsTheOriginBeforeItScales) {
    test::forEachLevel([](levels::Level) {
        PROJDATA record = recordOf(ProjTypeTransverseMercator);
        Handle const plain(record);
        record.Scale = 2;
        record.xOrg = 100;
        record.yOrg = -7;
        Handle const scaled(record);
        auto const p = forward(plain.handle, 1, 2), q = forward(scaled.handle, 1, 2);
        EXPECT_EQ(q.x, (p.x + 100) * 2);
        EXPECT_EQ(q.y, (p.y - 7) * 2);
        PROJPOINT back = q;
        EXPECT_TRUE(ProjInverse(scaled.handle, &back, 1));
        EXPECT_NEAR(back.x, 1, 1e-10);
        EXPECT_NEAR(back.y, 2, 1e-10);
        record.Scale = 1e308; // finite until it is scaled
        Handle const huge(record);
        EXPECT_TRUE(isMarked(forward(huge.handle, 1, 2)));
        EXPECT_EQ(ProjResult(huge.handle), 1);
    });
}

TEST(Conversion, MarksBrokenPointsAndKeepsTheirNeighbours) {
    test::forEachLevel([](levels::Level) {
        Handle const utm(utm17());
        auto const good = forward(utm.handle, -80.5, 33);
        for (auto const& bad : {PROJPOINT{notANumber, 1},
                                {1, notANumber},
                                {infinity, 1},
                                {-80, -infinity},
                                {notANumber, DBL_MAX},
                                {DBL_MAX, infinity}}) {
            for (auto const convert : {ProjForward, ProjInverse}) {
                PROJPOINT points[] = {{-80.5, 33}, bad, {-80.5, 33}};
                EXPECT_TRUE(convert(utm.handle, points, 3));
                EXPECT_TRUE(isMarked(points[1]));
                EXPECT_EQ(ProjResult(utm.handle), 1);
                EXPECT_TRUE(sameBits(points[0], points[2]));
                if (convert == ProjForward) {
                    EXPECT_TRUE(sameBits(points[0], good));
                }
            }
        }
        PROJPOINT points[] = {{DBL_MAX, DBL_MAX}, {-80.5, 33}, {DBL_MAX, 5}, {5, DBL_MAX}, {-DBL_MAX, 1}};
        EXPECT_TRUE(ProjForward(utm.handle, points, 4));
        EXPECT_EQ(ProjResult(utm.handle), 0); // marked ones are skipped
        EXPECT_TRUE(isMarked(points[0]));
        EXPECT_TRUE(sameBits(points[1], good));
        EXPECT_EQ(points[2].x, DBL_MAX);
        EXPECT_EQ(points[3].y, DBL_MAX);
    });
}

TEST(Conversion, FailsTheCallOnAnArithmeticException) {
    test::forEachLevel([](levels::Level) {
        Handle const utm(utm17());
        PROJPOINT north[] = {{500000, 1e24}, {500000, 1e50}}; // too far to mean an angle, but no exception
        EXPECT_TRUE(ProjInverse(utm.handle, north, 2));
        EXPECT_TRUE(isMarked(north[0]) && isMarked(north[1]));
        PROJPOINT points[] = {{500000, 1e6}, {1e300, 1e300}, {500000, 2e6}};
        EXPECT_FALSE(ProjInverse(utm.handle, points, 3));
        EXPECT_EQ(ProjResult(utm.handle), 1);
        EXPECT_TRUE(isMarked(points[1]));
        EXPECT_NEAR(points[0].x, -81, 1e-12);
        EXPECT_NEAR(points[2].x, -81, 1e-12);
    });
}

TEST(Conversion, IsNotHitByTheHostsTraps) {
    PROJDATA record = utm17();
    Handle const utm(record);
    Handle const plain(recordOf(ProjTypeUnprojectedLatLong));
    double const signalling = std::numeric_limits<double>::signaling_NaN();
    double const inputs[] = {signalling, 5e-324,  -5e-324, 1e-310, infinity,
                             notANumber, DBL_MAX, 1e300,   0,      -81 + 1e-300};
    std::vector<PROJPOINT> points;
    for (double const x : inputs)
        for (double const y : inputs)
            points.push_back({x, y});
    auto const count = static_cast<int>(points.size());
    auto again = points;
    bool untouched = false;
    {
        TrapsEnabled const traps;
        ProjForward(plain.handle, std::vector(points).data(), count);
        ProjForward(utm.handle, points.data(), count);
        ProjInverse(utm.handle, again.data(), count);
        double out1, out2;
        ProjLLInProjection(utm.handle, again.data());
        ProjLLOffsetSplitObject(utm.handle, again.data(), static_cast<unsigned>(count), &out1, &out2);
        record.Lat0 = notANumber;
        ProjCheckParams(&record, nullptr, false);
        record = utm17();
        ProjDeleteProjection(ProjCreateProjection(&record));
        untouched = traps.untouched();
    }
    EXPECT_TRUE(untouched);
}

TEST(Conversion, TheHostsFlagsNeitherMatterNorChange) {
    Handle const utm(utm17());
    std::vector<std::vector<PROJPOINT>> results;
    for (int const flags : {0, FE_INVALID | FE_DIVBYZERO, FE_INEXACT | FE_OVERFLOW, int{FE_ALL_EXCEPT}}) {
        std::vector<PROJPOINT> points{{-81.5, 45}, {-81.5, 1e300}, {1e-310, 0}, {notANumber, 2}, {-80, 10}};
        std::feclearexcept(FE_ALL_EXCEPT);
        std::feraiseexcept(flags);
        int const before = std::fetestexcept(FE_ALL_EXCEPT);
        bool const done = ProjForward(utm.handle, points.data(), 5);
        int const after = std::fetestexcept(FE_ALL_EXCEPT);
        std::feclearexcept(FE_ALL_EXCEPT);
        EXPECT_TRUE(done) << flags;
        EXPECT_EQ(after, before) << flags;
        results.push_back(points);
    }
    for (auto const& points : results)
        EXPECT_EQ(std::memcmp(points.data(), results[0].data(), points.size() * sizeof(PROJPOINT)), 0);
}

TEST(Conversion, RunsOnSeveralThreadsAtOnce) {
    constexpr std::size_t count = 20000;
    constexpr int threads = 4;
    std::vector<std::vector<PROJPOINT>> serial, parallel;
    auto const convert = [](std::vector<PROJPOINT>& points, double lon0) {
        points = pointsAround(lon0, count, static_cast<unsigned>(lon0));
        points[7] = {notANumber, 0};
        Handle const handle(recordOf(ProjTypeTransverseMercator, lon0));
        for (int round = 0; round < 3; ++round) {
            ProjForward(handle.handle, points.data(), count);
            ProjInverse(handle.handle, points.data(), count);
        }
        ProjForward(handle.handle, points.data(), count);
    };
    serial.resize(threads);
    parallel.resize(threads);
    for (std::size_t i = 0; i < threads; ++i)
        convert(serial[i], 10.0 * static_cast<double>(i));
    std::vector<std::thread> running;
    for (std::size_t i = 0; i < threads; ++i)
        running.emplace_back([&, i] { convert(parallel[i], 10.0 * static_cast<double>(i)); });
    for (auto& thread : running)
        thread.join();
    for (std::size_t i = 0; i < threads; ++i)
        EXPECT_TRUE(std::ranges::equal(serial[i], parallel[i], sameBits)) << i;
}

TEST(StatePlane, ConvertsThroughItsZone) {
    PROJDATA record = recordOf(ProjTypeStatePlane1983);
    record.Zone = StateZoneTypeAlabamaEast;
    PROJDATA same = recordOf(ProjTypeTransverseMercator, -(85 + 50.0 / 60));
    same.Ellipsoid = EllipsoidTypeGrs1980Iugg1980;
    same.Lat0 = 30.5;
    same.K0 = 0.99996;
    same.xOrg = 200000;
    Handle const zone(record), tm(same);
    EXPECT_TRUE(sameBits(forward(zone.handle, -86, 33), forward(tm.handle, -86, 33)));
    PROJPOINT point{-86, 33};
    EXPECT_TRUE(ProjLLInProjection(zone.handle, &point));
    point.x = -131;
    EXPECT_FALSE(ProjLLInProjection(zone.handle, &point));
    PROJDATA inside;
    ASSERT_TRUE(ProjGetHandleInfo(zone.handle, &inside));
    EXPECT_TRUE(inside.Type == ProjTypeStatePlane1983);
    record.Scale = 3937.0 / 1200;
    Handle const feet(record);
    EXPECT_NEAR(forward(feet.handle, -86, 33).x, forward(tm.handle, -86, 33).x * 3937 / 1200, 1e-6);
}
