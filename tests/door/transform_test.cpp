#include "door/handles.h"
#include "support/floating_point.h"
#include "support/registry.h"

#include <cfloat>
#include <cmath>
#include <cstring>
#include <limits>
#include <thread>
#include <vector>

using namespace ZrProj;
using namespace ZrProj::test;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity(),
                 notANumber = std::numeric_limits<double>::quiet_NaN();

struct Result {
    PROJPOINT point;
    zrproj_reason reason;
};

Result convert(Transform const& transform, PROJPOINT point, bool backwards = false) {
    unsigned char reason = 255;
    EXPECT_EQ(zrproj_transform_points(transform.get(), backwards, &point.x, &point.y, 16, 1, &reason), ZRPROJ_OK);
    EXPECT_EQ(std::isnan(point.x) && std::isnan(point.y), reason >= ZRPROJ_NOT_FINITE);
    return {point, static_cast<zrproj_reason>(reason)};
}

zrproj_parameters utm17() {
    auto parameters = parametersOf(recordOf("type=utm ellipsoid=wgs-84"));
    parameters.lon0 = -81;
    return parameters;
}

/// Places all over a UTM zone and beyond, with some that have no result.
std::vector<double> manyPairs(std::size_t count) {
    std::vector<double> pairs;
    for (std::size_t i = 0; i < count; ++i) {
        auto const k = static_cast<double>(i);
        pairs.push_back(-81 + 60 * std::sin(k));
        pairs.push_back(i % 1000 == 7 ? notANumber : 92 * std::sin(1.7 * k));
    }
    return pairs;
}

} // namespace

// What the record interface computes comes out to the bit, and each place that it does not show has its reason.
TEST(Door, ConvertsAsTheRecordInterfaceDoes) {
    for (ProjType const type : projectingTypes())
        for (auto const& words : parameterSets(type)) {
            SCOPED_TRACE(words);
            PROJDATA const record = recordOf(words);
            test::Projection projection(words);
            ProjType const formula = projection.record().Type;
            bool const isSeries = formula == ProjTypeUniversalTransverseMercator ||
                                  formula == ProjTypeTransverseMercator || formula == ProjTypeGaussKruger;
            Transform const transform = mapOf(parametersOf(record));
            for (PROJPOINT const& place : projection.samples()) {
                SCOPED_TRACE(testing::Message() << place.x << ' ' << place.y);
                Result const there = convert(transform, place);
                double const offset = std::remainder(place.x - projection.record().Lon0, 360);
                PROJPOINT expected = place; // the record interface takes a series' longitudes as they are
                if (isSeries)
                    expected.x = projection.record().Lon0 + offset;
                bool const isInRange = projection.isInRange(expected); // else a formula tells, but for a series
                bool const isShown = projection.tryForward({&expected, 1}) && !isMarked(expected);
                ASSERT_EQ(there.reason < ZRPROJ_NOT_FINITE, isShown && (isInRange || !isSeries));
                EXPECT_TRUE(there.reason < ZRPROJ_NOT_FINITE || !isInRange);
                if (there.reason >= ZRPROJ_NOT_FINITE) {
                    EXPECT_EQ(there.reason, ZRPROJ_NOT_SHOWN);
                    continue;
                }
                EXPECT_LE(std::hypot(there.point.x - expected.x, there.point.y - expected.y),
                          projection.mapLength(1e-8));
            }
        }
}

// Whatever map coordinates come in: what comes out leads back to them.
TEST(Door, GivesNoPlaceForWhatIsOffTheMap) {
    for (ProjType const type : projectingTypes())
        for (auto const& words : parameterSets(type)) {
            SCOPED_TRACE(words);
            test::Projection projection(words);
            Transform const transform = mapOf(parametersOf(recordOf(words)));
            double const step = projection.mapLength(1.9e6);
            for (int i = -15; i <= 15; ++i)
                for (int j = -15; j <= 15; ++j) {
                    PROJPOINT const map{i * step, j * step};
                    Result const back = convert(transform, map, true);
                    if (back.reason >= ZRPROJ_NOT_FINITE) {
                        EXPECT_EQ(back.reason, ZRPROJ_OFF_THE_MAP);
                        continue;
                    }
                    EXPECT_LE(std::fabs(back.point.x), 180);
                    EXPECT_LE(std::fabs(back.point.y), 90);
                    Result const again = convert(transform, back.point);
                    double const allowed = back.reason == ZRPROJ_FAR ? 1e5 : 1;
                    EXPECT_LE(std::hypot(again.point.x - map.x, again.point.y - map.y), projection.mapLength(allowed))
                        << map.x << ' ' << map.y;
                }
        }
}

TEST(Door, GivesEachPointItsReason) {
    Transform const transform = mapOf(utm17());
    EXPECT_EQ(convert(transform, {-79.38, 43.65}).reason, ZRPROJ_CONVERTED);
    EXPECT_EQ(convert(transform, {-79.38 - 720, 43.65}).reason, ZRPROJ_CONVERTED);
    EXPECT_EQ(convert(transform, {-70, 43.65}).reason, ZRPROJ_FAR);
    EXPECT_EQ(convert(transform, {-30, 43.65}).reason, ZRPROJ_NOT_SHOWN);
    EXPECT_EQ(convert(transform, {99, 43.65}).reason, ZRPROJ_NOT_SHOWN);
    EXPECT_EQ(convert(transform, {-81, 90.001}).reason, ZRPROJ_BEYOND_POLE);
    EXPECT_EQ(convert(transform, {-81, -100}).reason, ZRPROJ_BEYOND_POLE);
    for (double const wild : {notANumber, infinity, -infinity, DBL_MAX}) {
        EXPECT_EQ(convert(transform, {wild, 43}).reason, ZRPROJ_NOT_FINITE);
        EXPECT_EQ(convert(transform, {-81, wild}).reason, ZRPROJ_NOT_FINITE);
        EXPECT_EQ(convert(transform, {wild, 43}, true).reason, ZRPROJ_NOT_FINITE);
    }
    EXPECT_EQ(convert(transform, {500000, 9.99e6}, true).reason, ZRPROJ_CONVERTED);
    EXPECT_EQ(convert(transform, {500000, 10.1e6}, true).reason, ZRPROJ_OFF_THE_MAP);
    EXPECT_EQ(convert(transform, {500000, 1e300}, true).reason, ZRPROJ_OFF_THE_MAP);
    EXPECT_EQ(convert(transform, {9e6, 4e6}, true).reason, ZRPROJ_OFF_THE_MAP);
    Result const far = convert(transform, {2000000, 4e6}, true);
    EXPECT_EQ(far.reason, ZRPROJ_FAR);
    EXPECT_NEAR(far.point.x, -64, 1);
}

TEST(Door, NeitherLayoutNorThreadsChangeABit) {
    constexpr std::size_t count = 120001;
    auto const given = manyPairs(count);
    auto pairs = given;
    std::vector<unsigned char> reasons(count);
    ASSERT_EQ(zrproj_transform_points(mapOf(utm17()).get(), 0, &pairs[0], &pairs[1], 16, count, &reasons[0]),
              ZRPROJ_OK);
    for (int const threads : {-1, 2, 3, 64}) {
        Transform const transform = mapOf(utm17(), threads);
        std::vector<double> x(count), y(count);
        for (std::size_t i = 0; i < count; ++i) { // backwards in memory
            x[count - 1 - i] = given[2 * i];
            y[count - 1 - i] = given[2 * i + 1];
        }
        std::vector<unsigned char> other(count);
        ASSERT_EQ(zrproj_transform_points(transform.get(), 0, &x[count - 1], &y[count - 1], -8, count, &other[0]),
                  ZRPROJ_OK);
        EXPECT_EQ(reasons, other);
        for (std::size_t i = 0; i < count; ++i) {
            ASSERT_EQ(std::memcmp(&x[count - 1 - i], &pairs[2 * i], 8), 0) << i;
            ASSERT_EQ(std::memcmp(&y[count - 1 - i], &pairs[2 * i + 1], 8), 0) << i;
        }
    }
}

TEST(Door, ReadsNumbersThatAreNotAligned) {
    std::vector<char> bytes(20 * 3 + 1);
    PROJPOINT const place{-79.38, 43.65};
    for (std::size_t i = 0; i < 3; ++i)
        std::memcpy(&bytes[1 + 20 * i], &place, 16);
    char* const first = &bytes[1];
    Transform const transform = mapOf(utm17());
    ASSERT_EQ(zrproj_transform_points(transform.get(), 0, reinterpret_cast<double*>(first),
                                      reinterpret_cast<double*>(first + 8), 20, 3, nullptr),
              ZRPROJ_OK);
    PROJPOINT const expected = convert(transform, place).point;
    EXPECT_EQ(std::memcmp(&bytes[1 + 40], &expected, 16), 0);
}

TEST(Door, SharesATransformBetweenThreads) {
    constexpr std::size_t count = 60000;
    Transform const transform = mapOf(utm17(), 2);
    auto expected = manyPairs(count);
    zrproj_transform_points(transform.get(), 0, &expected[0], &expected[1], 16, count, nullptr);
    std::vector<std::vector<double>> results(4, manyPairs(count));
    std::vector<std::thread> threads;
    for (auto& pairs : results)
        threads.emplace_back([&] {
            zrproj_transform_points(transform.get(), 0, &pairs[0], &pairs[1], 16, count, nullptr);
            zrproj_transform_points(transform.get(), 0, nullptr, nullptr, 16, count, nullptr);
        });
    for (auto& thread : threads)
        thread.join();
    for (auto const& pairs : results)
        EXPECT_EQ(std::memcmp(pairs.data(), expected.data(), count * 16), 0);
    EXPECT_STREQ(zrproj_message(), ""); // the threads' messages are their own
}

TEST(Door, GoesFromOneMapToAnother) {
    auto const other =
        parametersOf(recordOf("type=lambert-conformal-conic ellipsoid=wgs-84 lat0=40 lon0=-96 lat1=20 lat2=60"));
    System const utm = systemOf(utm17()), conic = systemOf(other);
    Transform const direct = made<Transform>(
        [&](zrproj_transform** t) { return zrproj_transform_create(utm.get(), conic.get(), nullptr, t); });
    Transform const toUtm = mapOf(utm17()), toConic = mapOf(other);
    PROJPOINT const place{-79.38, 43.65}, map = convert(toUtm, place).point;
    Result const there = convert(direct, map);
    EXPECT_NEAR(there.point.x, convert(toConic, place).point.x, 1e-3);
    Result const back = convert(direct, there.point, true);
    EXPECT_NEAR(back.point.y, map.y, 1e-3);
    EXPECT_EQ(convert(direct, convert(toUtm, {-65, 43}).point).reason, ZRPROJ_FAR);

    char text[200];
    size_t length = 0;
    double accuracy = notANumber;
    ASSERT_EQ(zrproj_transform_describe(direct.get(), text, sizeof text, &length, &accuracy), ZRPROJ_OK);
    EXPECT_STREQ(text, "from map coordinates by Universal Transverse Mercator (UTM)\n"
                       "to map coordinates by Lambert Conformal Conic");
    EXPECT_EQ(length, std::strlen(text));
    EXPECT_EQ(accuracy, 0);
    EXPECT_EQ(zrproj_transform_describe(direct.get(), text, 5, &length, nullptr), ZRPROJ_BAD_ARGUMENT);
    EXPECT_STREQ(text, "from");
    EXPECT_EQ(zrproj_transform_describe(direct.get(), nullptr, 0, &length, nullptr), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(length, 105U);
}

TEST(Door, KnowsNoWayBetweenDatumsOrFigures) {
    auto const status = [](zrproj_parameters const& a, zrproj_parameters const& b) {
        System const from = systemOf(a), to = systemOf(b);
        zrproj_transform* transform = nullptr;
        zrproj_status const result = zrproj_transform_create(from.get(), to.get(), nullptr, &transform);
        EXPECT_EQ(transform == nullptr, result != ZRPROJ_OK);
        zrproj_transform_destroy(transform);
        return result;
    };
    zrproj_parameters wgs84{};
    wgs84.size = sizeof wgs84;
    wgs84.datum = 3;
    auto told = wgs84, sphere = wgs84, own = wgs84;
    told.datum = 237;
    told.ellipsoid = 47;
    sphere.ellipsoid = 48;
    own.datum = 0;
    own.ellipsoid = 47;
    own.shift.method = 3;
    own.shift.dx = 5;
    auto own6 = own;
    own6.shift.dx = 6;
    EXPECT_EQ(status(wgs84, wgs84), ZRPROJ_OK);
    EXPECT_EQ(status(own, own), ZRPROJ_OK);
    EXPECT_EQ(status(told, told), ZRPROJ_OK);
    for (auto const& other : {told, sphere}) {
        EXPECT_EQ(status(wgs84, other), ZRPROJ_NO_PATH);
        EXPECT_STRNE(zrproj_message(), "");
    }
    EXPECT_EQ(status(wgs84, own), ZRPROJ_OK); // its own way to WGS 84
    EXPECT_EQ(status(own, own6), ZRPROJ_OK);
}

TEST(Door, RefusesWhatCannotBeConverted) {
    Transform const transform = mapOf(utm17());
    double x = 1, y = 2;
    auto const points = [&](double* px, double* py, ptrdiff_t stride, size_t count) {
        zrproj_status const status = zrproj_transform_points(transform.get(), 0, px, py, stride, count, nullptr);
        EXPECT_EQ(*zrproj_message() == '\0', status == ZRPROJ_OK);
        return status;
    };
    EXPECT_EQ(points(nullptr, nullptr, 0, 0), ZRPROJ_OK);
    EXPECT_EQ(points(nullptr, &y, 8, 1), ZRPROJ_BAD_ARGUMENT);
    for (ptrdiff_t const stride : {0, 7, -7})
        EXPECT_EQ(points(&x, &y, stride, 2), ZRPROJ_BAD_ARGUMENT) << stride;
    for (ptrdiff_t const stride : {PTRDIFF_MIN, PTRDIFF_MAX})
        EXPECT_EQ(points(&x, &y, stride, 3), ZRPROJ_BAD_ARGUMENT) << stride;
    EXPECT_EQ(points(&x, &y, 8, SIZE_MAX), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(zrproj_transform_points(nullptr, 0, &x, &y, 8, 1, nullptr), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(x, 1);
    EXPECT_EQ(points(&x, &y, 0, 1), ZRPROJ_OK);
    System const map = systemOf(utm17());
    zrproj_transform* made = nullptr;
    for (zrproj_options const& options : {zrproj_options{}, zrproj_options{sizeof(zrproj_options), nullptr, -2, 0}})
        EXPECT_EQ(zrproj_transform_create(map.get(), map.get(), &options, &made), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(zrproj_transform_create(map.get(), nullptr, nullptr, &made), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(zrproj_transform_create(map.get(), map.get(), nullptr, nullptr), ZRPROJ_BAD_ARGUMENT);
    zrproj_transform_destroy(nullptr);
}

TEST(Door, LeavesTheFloatingPointEnvironmentAlone) {
    Transform const transform = mapOf(utm17(), 2);
    auto pairs = manyPairs(60000);
    TrapsEnabled const traps;
    zrproj_transform_points(transform.get(), 0, &pairs[0], &pairs[1], 16, 60000, nullptr);
    zrproj_transform_points(transform.get(), 1, &pairs[0], &pairs[1], 16, 60000, nullptr);
    EXPECT_TRUE(traps.untouched());
}
