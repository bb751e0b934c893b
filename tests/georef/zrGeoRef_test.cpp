#include "support/bytes.h"
#include "support/error_host.h"
#include "support/floating_point.h"
#include "support/georef_cases.h"
#include "support/levels.h"

#include <zrproj/zrproj.h>

#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <cstring>
#include <limits>
#include <thread>

using namespace ZrProj;
using namespace ZrProj::test;

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr TransformMethod fitted[] = {
    TransformMethodHelmert,
    TransformMethodAffinePolynomial,
    TransformMethod1stOrderPolynomial,
    TransformMethod2ndOrderPolynomial,
    TransformMethod3rdOrderPolynomial,
    TransformMethodThinPlateSpline,
    TransformMethodNaturalCubicSpline,
    TransformMethodMarcovSpline,
    TransformMethodExponentialSpline,
    TransformMethodRationalQuadraticSpline,
    TransformMethodInverseDistanceSquared,
};

ControlPoints bentMap(int count) {
    return scattered(count, 40000, [](GEOREFPOINT p) {
        return GEOREFPOINT{5e5 + 2.5 * p.x + 0.1 * p.y + 30 * std::sin(p.y / 9000),
                           5.4e6 + 0.1 * p.x - 2.5 * p.y + 30 * std::cos(p.x / 7000)};
    });
}

void expectCases(std::string const& file, double tolerance) {
    for (auto& c : georefCases(file)) {
        SCOPED_TRACE(RefMethodName(c.method) + (" of " + std::to_string(c.controls.source.size())));
        GEOREF const record = c.controls.record(c.method);
        forEachLevel([&](levels::Level) {
            CGeorefTransform transform(&record);
            auto mapped = c.points.source;
            ASSERT_TRUE(transform.Forward(mapped.data(), static_cast<int>(mapped.size())));
            for (std::size_t i = 0; i < mapped.size(); ++i)
                EXPECT_LE(distance(mapped[i], c.points.target[i]), tolerance);
        });
    }
}

} // namespace

// Targets reach 5.4e6 metres, where doubles are 1e-9 apart.
TEST(Georef, AgreesWithHighPrecisionFits) {
    expectCases("polynomials.txt", 1e-8);
    expectCases("warps.txt", 1e-8);
}

TEST(Georef, MarksWhatItCannotMap) {
    auto controls = bentMap(20);
    for (auto const method : fitted) {
        SCOPED_TRACE(RefMethodName(method));
        GEOREF const record = controls.record(method);
        CGeorefTransform transform(&record);
        GEOREFPOINT points[] = {{1, 2}, {DBL_MAX, 3}, {notANumber, 4}, {5, HUGE_VAL}, {3, DBL_MAX}, {1, 2}};
        ASSERT_TRUE(transform.Forward(points, 6));
        for (int i = 1; i < 5; ++i)
            EXPECT_TRUE(points[i].x == DBL_MAX && points[i].y == DBL_MAX) << i;
        EXPECT_TRUE(test::sameBytes(points[0], points[5]));
        EXPECT_LT(distance(points[0], {5e5, 5.4e6}), 1e5);
    }
}

TEST(Georef, MapsAPointTheSameWhereverItStands) {
    auto controls = bentMap(20);
    for (auto const method : fitted) {
        SCOPED_TRACE(RefMethodName(method));
        GEOREF const record = controls.record(method);
        forEachLevel([&](levels::Level) {
            CGeorefTransform transform(&record);
            auto const many = scattered(600, 50000, [](GEOREFPOINT p) { return p; }).source;
            auto together = many;
            ASSERT_TRUE(transform.Forward(together.data(), 600));
            for (std::size_t i = 0; i < many.size(); i += 7) {
                GEOREFPOINT alone = many[i];
                ASSERT_TRUE(transform.Forward(&alone, 1));
                EXPECT_TRUE(test::sameBytes(alone, together[i])) << i;
            }
        });
    }
}

TEST(Georef, ComputesErrorsAndTheirMean) {
    ControlPoints controls;
    controls.add({0, 0}, {3, 4}); // the affine fit through the square's corners misses each by (3, 4) / 4
    controls.add({10, 0}, {10, 0});
    controls.add({10, 10}, {10, 10});
    controls.add({0, 10}, {0, 10});
    GEOREF const record = controls.record(TransformMethodAffinePolynomial);
    CGeorefTransform transform(&record);
    double mean = 0, errors[4] = {};
    ASSERT_TRUE(transform.ComputeError(&mean, errors));
    for (double const error : errors)
        EXPECT_NEAR(error, 1.25, 1e-12);
    EXPECT_NEAR(mean, 1.25, 1e-12);
    EXPECT_TRUE(transform.ComputeError(nullptr, nullptr));
}

// Distances 1, 1 and 2: their root mean square would be 1.41.
TEST(Georef, AveragesUnequalErrors) {
    ControlPoints controls; // on a line the similarity is a straight line's fit: 1, -2, 1 are what it misses
    controls.add({0, 0}, {1, 0});
    controls.add({1, 0}, {-1, 0});
    controls.add({2, 0}, {3, 0});
    GEOREF const record = controls.record(TransformMethodHelmert);
    CGeorefTransform transform(&record);
    double mean = 0, errors[3] = {};
    ASSERT_TRUE(transform.ComputeError(&mean, errors));
    EXPECT_NEAR(errors[1], 2, 1e-12);
    EXPECT_NEAR(errors[2], 1, 1e-12);
    EXPECT_NEAR(mean, 4 / 3.0, 1e-12);
}

TEST(Georef, KeepsARecordOfItsOwn) {
    GEOREF info{};
    CGeorefTransform transform;
    {
        auto controls = bentMap(5);
        GEOREF record = controls.record(TransformMethodHelmert);
        record.Reserved[207] = 77;
        ASSERT_TRUE(transform.Create(&record));
        ASSERT_TRUE(transform.GetInfo(&info));
        EXPECT_NE(info.pSource, record.pSource);
        EXPECT_EQ(distance(info.pTarget[4], record.pTarget[4]), 0);
    }
    EXPECT_EQ(info.Method, TransformMethodHelmert);
    EXPECT_EQ(info.nControls, 5);
    EXPECT_EQ(info.Reserved[207], 77);
    EXPECT_LT(info.pSource[4].x, 40000); // the caller's are gone
    EXPECT_FALSE(transform.GetInfo(nullptr));
    ASSERT_TRUE(transform.Create(&info)); // from its own record
}

TEST(Georef, RefusesWhatDeterminesNoMap) {
    ErrorHost host;
    auto few = bentMap(20);
    for (auto const method : fitted) {
        if (method == TransformMethodHelmert)
            continue;
        SCOPED_TRACE(RefMethodName(method));
        constexpr int needed[] = {2, 3, 4, 6, 10};
        GEOREF record = few.record(method);
        for (int const count : {0, -1, INT_MIN}) {
            record.nControls = count;
            EXPECT_EQ(RefCreateSystem(&record), nullptr);
        }
        record.nControls = method < 5 ? needed[method] : 3;
        EXPECT_TRUE(CGeorefTransform(&record).IsCreated());
        --record.nControls;
        EXPECT_EQ(RefCreateSystem(&record), nullptr);
        auto line = scattered(20, 1e5, [](GEOREFPOINT p) { return p; });
        for (auto& p : line.source)
            p.y = 0.3 * p.x + 12345.6;
        record = line.record(method);
        EXPECT_EQ(RefCreateSystem(&record), nullptr);
        auto one = bentMap(20);
        std::ranges::fill(one.source, GEOREFPOINT{1234.5, 987.1});
        record = one.record(method);
        EXPECT_EQ(RefCreateSystem(&record), nullptr);
        for (double const bad : {notANumber, HUGE_VAL, DBL_MAX}) {
            auto broken = bentMap(20);
            broken.target[7].y = bad;
            record = broken.record(method);
            EXPECT_EQ(RefCreateSystem(&record), nullptr);
        }
    }
    GEOREF record = few.record(TransformMethodNone);
    EXPECT_EQ(RefCreateSystem(&record), nullptr);
    record = few.record(TransformMethodHelmert);
    record.pTarget = nullptr;
    EXPECT_EQ(RefCreateSystem(&record), nullptr);
    record = few.record(TransformMethodHelmert);
    record.pSource = nullptr;
    EXPECT_EQ(RefCreateSystem(&record), nullptr);
    EXPECT_EQ(RefCreateSystem(nullptr), nullptr);
}

TEST(Georef, AcceptsControlsOnePixelOffALine) {
    for (auto const method : {TransformMethodAffinePolynomial, TransformMethodThinPlateSpline,
                              TransformMethodRationalQuadraticSpline, TransformMethodInverseDistanceSquared}) {
        ControlPoints controls;
        for (double const x : {0.0, 10000.0, 20000.0, 40000.0})
            controls.add({x, x / 4 + (x == 10000)}, {5e5 + 2 * x, 5e6 - x / 2 - 2 * (x == 10000)});
        GEOREF const record = controls.record(method);
        CGeorefTransform transform(&record);
        double mean = 1;
        ASSERT_TRUE(transform.ComputeError(&mean, nullptr)) << method;
        EXPECT_LT(mean, 1e-6);
    }
}

TEST(Georef, AssertsInTheNamesOfItsSources) {
    ErrorHost host;
    auto controls = bentMap(3);
    GEOREF record = controls.record(TransformMethod1stOrderPolynomial);
    EXPECT_EQ(RefCreateSystem(&record), nullptr);
    EXPECT_EQ(host.calls.back().file, ".\\gOrder3.cpp");
    record.Method = TransformMethodHelmert;
    record.nControls = 1;
    CGeorefTransform one(&record);
    EXPECT_TRUE(one.IsCreated());
    EXPECT_EQ(host.calls.back().file, ".\\gHelmert.cpp");
    auto const before = host.calls.size();
    EXPECT_FALSE(one.Forward(nullptr, 1));
    EXPECT_FALSE(one.Forward(controls.source.data(), 0));
    record.Method = TransformMethodPrecalculatedAffineCoefficients;
    EXPECT_FALSE(CGeorefTransform(&record).ComputeError(nullptr, nullptr));
    EXPECT_EQ(host.calls.size(), before + 6);
    EXPECT_EQ(host.calls.back().file, ".\\zrGeoRef.cpp");
    EXPECT_FALSE(RefForward(nullptr, controls.source.data(), 1));
    EXPECT_FALSE(RefComputeError(nullptr, nullptr, nullptr));
    RefDeleteSystem(nullptr);
}

TEST(Georef, NamesItsMethods) {
    char const* const names[] = {"Helmert",
                                 "Affine Polynomial",
                                 "1st Order Polynomial",
                                 "2nd Order Polynomial",
                                 "3rd Order Polynomial",
                                 "Precalculated Affine Coefficients",
                                 "Thin Plate Spline",
                                 "Natural Cubic Spline",
                                 "Marcov Spline",
                                 "Exponential Spline",
                                 "Rational Quadratic Spline",
                                 "Inverse Distance Squared"};
    for (int method = 0; method < 12; ++method)
        EXPECT_STREQ(RefMethodName(static_cast<TransformMethod>(method)), names[method]);
    EXPECT_STREQ(RefMethodName(TransformMethodNone), "");
    EXPECT_STREQ(RefMethodName(static_cast<TransformMethod>(-1)), "");
}

TEST(Georef, LeavesTheFloatingPointEnvironmentAlone) {
    auto controls = bentMap(20);
    GEOREF record{}, copy{};
    GEOREFPOINT points[] = {{1, 2}, {notANumber, 1}, {1e300, 1e300}};
    double mean = 0;
    TrapsEnabled const traps;
    for (auto const method : fitted) {
        record = copy = controls.record(method);
        CGeorefTransform transform(&record);
        transform.Forward(points, 3);
        transform.ComputeError(&mean, nullptr);
        RefControlsToCoeff(&copy);
        RefResize(&copy, 3, 7, 4, 9);
    }
    EXPECT_TRUE(traps.untouched());
}

// Under the thread sanitizer this also shows that fits share nothing.
TEST(Georef, FitsOnSeveralThreads) {
    auto controls = bentMap(30);
    auto const mapAll = [&] {
        std::vector<GEOREFPOINT> results;
        for (auto const method : fitted) {
            GEOREF const record = controls.record(method);
            CGeorefTransform transform(&record);
            GEOREFPOINT point{12345, 23456};
            transform.Forward(&point, 1);
            results.push_back(point);
        }
        return results;
    };
    auto const alone = mapAll();
    std::vector<std::vector<GEOREFPOINT>> results(4);
    std::vector<std::thread> threads;
    for (auto& result : results)
        threads.emplace_back([&] { result = mapAll(); });
    for (auto& thread : threads)
        thread.join();
    for (auto const& result : results)
        EXPECT_TRUE(test::sameBytes<GEOREFPOINT>(result, alone));
}
