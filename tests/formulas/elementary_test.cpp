#include "probe.h"
#include "support/levels.h"

#include <cfloat>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

using namespace ZrProj;
using namespace ZrProj::formulas;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

/// The error of `value` in units of the last place of the correctly rounded result.
double ulps(double value, long double exact) {
    double const rounded = std::fabs(static_cast<double>(exact));
    double const unit = std::nextafter(rounded, infinity) - rounded;
    return std::fabs(static_cast<double>((static_cast<long double>(value) - exact) / static_cast<long double>(unit)));
}

struct Card {
    ElementaryProbe::Function ElementaryProbe::*function;
    long double (*exact)(long double x, long double y);
    double low, high; // range of x
    double bound;     // ulps
};

long double arcTangent(long double x, long double y) {
    return std::atan2(y, x);
}

// The accuracy cards of elementary.h, against the extended precision of the C library.
Card const cards[] = {
    {&ElementaryProbe::sin, [](long double x, long double) { return std::sin(x); }, -13, 13, 1.5},
    {&ElementaryProbe::cos, [](long double x, long double) { return std::cos(x); }, -13, 13, 1.5},
    {&ElementaryProbe::sin, [](long double x, long double) { return std::sin(x); }, -1e5, 1e5, 2.5},
    {&ElementaryProbe::cos, [](long double x, long double) { return std::cos(x); }, -1e5, 1e5, 2.5},
    {&ElementaryProbe::atan2, arcTangent, -3, 3, 1.6},
    {&ElementaryProbe::atan2, arcTangent, -1e9, 1e9, 1.6},
    {&ElementaryProbe::asin, [](long double x, long double) { return std::asin(x); }, -1, 1, 2.5},
    {&ElementaryProbe::acos, [](long double x, long double) { return std::acos(x); }, -1, 1, 2.5},
    {&ElementaryProbe::exp, [](long double x, long double) { return std::exp(x); }, -700, 700, 1.1},
    {&ElementaryProbe::exp, [](long double x, long double) { return std::exp(x); }, -2, 2, 1.1},
    {&ElementaryProbe::expm1, [](long double x, long double) { return std::expm1(x); }, -2, 2, 2.3},
    {&ElementaryProbe::expm1, [](long double x, long double) { return std::expm1(x); }, -1e-9, 1e-9, 2.3},
    {&ElementaryProbe::expm1, [](long double x, long double) { return std::expm1(x); }, -700, 700, 2.3},
    {&ElementaryProbe::log, [](long double x, long double) { return std::log(x); }, 0.5, 2, 1.1},
    {&ElementaryProbe::log, [](long double x, long double) { return std::log(x); }, 0, 1e200, 1.1},
    {&ElementaryProbe::log, [](long double x, long double) { return std::log(x); }, 0, 2e-308, 1.1},
    {&ElementaryProbe::log1p, [](long double x, long double) { return std::log1p(x); }, -1, 2, 1.6},
    {&ElementaryProbe::log1p, [](long double x, long double) { return std::log1p(x); }, -1e-9, 1e-9, 1.6},
    {&ElementaryProbe::log1p, [](long double x, long double) { return std::log1p(x); }, 0, 1e17, 1.6},
    {&ElementaryProbe::cbrt, [](long double x, long double) { return std::cbrt(x); }, -10, 10, 1.2},
    {&ElementaryProbe::cbrt, [](long double x, long double) { return std::cbrt(x); }, 1e-300, 1e300, 1.2},
};

/// The function of one pair, at the level.
double at(levels::Level level, ElementaryProbe::Function ElementaryProbe::*function, double x, double y = 0) {
    double xs[8], ys[8], results[8];
    std::fill_n(xs, 8, x);
    std::fill_n(ys, 8, y);
    (levels::operationsAt<Probe>(level).elementary.*function)(xs, ys, results, 8);
    return results[5];
}

} // namespace

TEST(Elementary, KeepsItsAccuracyCards) {
    constexpr std::size_t count = 1 << 17;
    std::mt19937_64 random(1);
    std::vector<double> x(count), y(count), result(count);
    for (auto const& card : cards) {
        std::uniform_real_distribution<> across(card.low, card.high), any(-3, 3);
        for (std::size_t i = 0; i < count; ++i) {
            x[i] = across(random);
            y[i] = any(random);
        }
        test::forEachLevel([&](levels::Level level) {
            (levels::operationsAt<Probe>(level).elementary.*card.function)(x.data(), y.data(), result.data(),
                                                                           static_cast<int>(count));
            double worst = 0;
            for (std::size_t i = 0; i < count; ++i)
                worst = std::max(worst, ulps(result[i], card.exact(x[i], y[i])));
            EXPECT_LE(worst, card.bound) << "card " << &card - cards;
        });
    }
}

TEST(Elementary, IsExactWhereSingularPointsAreTested) {
    constexpr double halfPi = 1.5707963267948966;
    test::forEachLevel([&](levels::Level level) {
        EXPECT_EQ(at(level, &ElementaryProbe::sin, halfPi), 1);
        EXPECT_EQ(at(level, &ElementaryProbe::sin, -halfPi), -1);
        EXPECT_EQ(at(level, &ElementaryProbe::cos, 0), 1);
        EXPECT_EQ(at(level, &ElementaryProbe::cos, halfPi), 6.123233995736766e-17);
        EXPECT_EQ(at(level, &ElementaryProbe::cos, 2 * halfPi), -1);
        EXPECT_EQ(at(level, &ElementaryProbe::asin, 1), halfPi);
        EXPECT_EQ(at(level, &ElementaryProbe::acos, -1), 2 * halfPi);
        EXPECT_EQ(at(level, &ElementaryProbe::exp, 0), 1);
        EXPECT_EQ(at(level, &ElementaryProbe::log, 1), 0);
        EXPECT_EQ(at(level, &ElementaryProbe::cbrt, 0), 0);
    });
}

TEST(Elementary, KnowsItsEdges) {
    constexpr double pi = 3.141592653589793;
    test::forEachLevel([&](levels::Level level) {
        EXPECT_EQ(at(level, &ElementaryProbe::atan2, -1, 0.0), pi);
        EXPECT_EQ(at(level, &ElementaryProbe::atan2, -1, -0.0), -pi);
        EXPECT_EQ(at(level, &ElementaryProbe::atan2, 0, 0), 0);
        EXPECT_EQ(at(level, &ElementaryProbe::exp, -1e300), 0);
        EXPECT_EQ(at(level, &ElementaryProbe::exp, 710), infinity);
        EXPECT_EQ(at(level, &ElementaryProbe::exp, infinity), infinity);
        EXPECT_EQ(at(level, &ElementaryProbe::log, 0), -infinity);
        EXPECT_EQ(at(level, &ElementaryProbe::log, infinity), infinity);
        EXPECT_TRUE(std::isnan(at(level, &ElementaryProbe::log, -1)));
        EXPECT_TRUE(std::isnan(at(level, &ElementaryProbe::asin, 1.1)));
        for (auto const function : {&ElementaryProbe::sin, &ElementaryProbe::exp, &ElementaryProbe::log})
            EXPECT_TRUE(std::isnan(at(level, function, std::nan(""))));
    });
}

TEST(Elementary, NoLaneChangesAnother) {
    double const strange[] = {0.3, infinity, -1, 0, std::nan(""), 1e300, 5e-324, -0.0};
    test::forEachLevel([&](levels::Level level) {
        for (auto const function : {&ElementaryProbe::sin, &ElementaryProbe::cos, &ElementaryProbe::atan2,
                                    &ElementaryProbe::asin, &ElementaryProbe::exp, &ElementaryProbe::log}) {
            double y[8], result[8];
            std::fill_n(y, 8, 0.7);
            (levels::operationsAt<Probe>(level).elementary.*function)(strange, y, result, 8);
            EXPECT_EQ(result[0], at(level, function, 0.3, 0.7));
        }
    });
}
