#include "georef/analysis.h"

#include "georef/method_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

using namespace ZrProj;

namespace {

constexpr TransformMethod affine = TransformMethodAffinePolynomial, second = TransformMethod2ndOrderPolynomial;

struct Scan {
    std::vector<GEOREFPOINT> source, target;

    Controls controls() const { return {source, target}; }
    GeorefMap fit(TransformMethod method) const { return fitGeoref(method, controls()).value(); }
    Analysis analyse(TransformMethod method) const { return ZrProj::analyse(method, fit(method), controls()); }
    Scan without(std::size_t i) const {
        Scan others = *this;
        others.source.erase(others.source.begin() + static_cast<std::ptrdiff_t>(i));
        others.target.erase(others.target.begin() + static_cast<std::ptrdiff_t>(i));
        return others;
    }
};

/// A bent map of an image of 40,000 pixels; the offsets look like noise of some metres.
Scan scan(int count) {
    Scan result;
    for (int i = 1; i <= count; ++i) {
        double const x = 40000 * std::fmod(0.7548776662466927 * i, 1), y = 40000 * std::fmod(0.5698402909980532 * i, 1);
        result.source.push_back({x, y});
        result.target.push_back(
            {5e5 + 2.5 * x + 0.1 * y + 4 * std::sin(91.7 * i), 5.4e6 + 0.1 * x - 2.5 * y + 4 * std::sin(47.3 * i)});
    }
    return result;
}

/// The methods that control points are fitted by.
std::vector<TransformMethod> fittedMethods() {
    std::vector<TransformMethod> methods;
    for (int i = 0; i < TransformMethodNone; ++i)
        if (i != TransformMethodPrecalculatedAffineCoefficients)
            methods.push_back(static_cast<TransformMethod>(i));
    return methods;
}

/// x^T (sum of y y^T)^-1 x for terms 1, x, y of centred coordinates: how much of its own fit an affine control makes.
double affineLeverage(Scan const& controls, std::size_t at) {
    auto const n = static_cast<double>(controls.source.size());
    double x = 0, y = 0, xx = 0, xy = 0, yy = 0;
    for (auto const& source : controls.source) {
        x += source.x / n;
        y += source.y / n;
    }
    for (auto const& source : controls.source) {
        xx += (source.x - x) * (source.x - x);
        xy += (source.x - x) * (source.y - y);
        yy += (source.y - y) * (source.y - y);
    }
    double const u = controls.source[at].x - x, v = controls.source[at].y - y;
    return 1 / n + (yy * u * u - 2 * xy * u * v + xx * v * v) / (xx * yy - xy * xy);
}

} // namespace

// Least squares: what a point is off when it is left out is its residual over 1 - leverage.
TEST(GeorefAnalysis, LeavesOneOutAsTheLeverageSays) {
    auto const controls = scan(12);
    Analysis const analysis = controls.analyse(affine);
    for (std::size_t i = 0; i < 12; ++i) {
        Residual const& residual = analysis.residuals[i];
        EXPECT_NEAR(*residual.leverage, affineLeverage(controls, i), 1e-12) << i;
        EXPECT_NEAR(*residual.leftOut, residual.length / (1 - *residual.leverage), 1e-7) << i;
    }
}

TEST(GeorefAnalysis, LeavesOneOutAsRefittingDoes) {
    auto const controls = scan(14);
    for (auto const method : fittedMethods()) {
        SCOPED_TRACE(georefMethodRow(method).key);
        Analysis const analysis = controls.analyse(method);
        for (std::size_t i = 0; i < 14; i += 3) {
            GEOREFPOINT const point = controls.without(i).fit(method)(controls.source[i]), given = controls.target[i];
            EXPECT_NEAR(*analysis.residuals[i].leftOut, std::hypot(point.x - given.x, point.y - given.y), 1e-7);
        }
    }
}

TEST(GeorefAnalysis, FindsTheWrongPoint) {
    for (auto const method : {affine, TransformMethod1stOrderPolynomial, second, TransformMethodThinPlateSpline,
                              TransformMethodMarcovSpline, TransformMethodInverseDistanceSquared}) {
        SCOPED_TRACE(georefMethodRow(method).key);
        EXPECT_TRUE(scan(12).analyse(method).outliers.empty());
        for (std::size_t wrong = 0; wrong < 12; ++wrong) {
            auto controls = scan(12);
            controls.target[wrong].y += 1000;
            Analysis const analysis = controls.analyse(method);
            EXPECT_EQ(analysis.outliers, std::vector<std::size_t>{wrong});
            EXPECT_EQ(analysis.worst, wrong);
            EXPECT_LT(analysis.rmsWithout.value_or(1000), 60);
        }
    }
}

TEST(GeorefAnalysis, FindsTwoWrongPoints) {
    auto controls = scan(14);
    controls.target[3].x += 300;
    controls.target[8].y -= 900;
    EXPECT_EQ(controls.analyse(affine).outliers, (std::vector<std::size_t>{8, 3}));
}

// Refitting for every point of every round takes the better part of a minute here.
TEST(GeorefAnalysis, FindsAHundredWrongPointsAmongManyAtOnce) {
    auto controls = scan(2000);
    for (std::size_t i = 7; i < 2000; i += 20)
        controls.target[i].y += 500 + static_cast<double>(i);
    auto outliers = controls.analyse(affine).outliers;
    std::ranges::sort(outliers);
    ASSERT_EQ(outliers.size(), 100U);
    for (std::size_t k = 0; k < outliers.size(); ++k)
        EXPECT_EQ(outliers[k], 7 + 20 * k);
}

// Eight points are too few for the second order to tell.
TEST(GeorefAnalysis, LetsTheAffineMapJudgeWhereTheMethodCannot) {
    for (std::size_t wrong = 0; wrong < 8; ++wrong) {
        auto controls = scan(8);
        controls.target[wrong].y += 1000;
        Analysis const analysis = controls.analyse(second);
        EXPECT_EQ(analysis.judge, affine);
        EXPECT_EQ(analysis.outliers, std::vector<std::size_t>{wrong});
        EXPECT_NEAR(*analysis.worstResidual.leftOut, 1000, 100);
    }
    EXPECT_EQ(scan(9).analyse(second).judge, second);
    EXPECT_EQ(scan(5).analyse(affine).judge, affine);
}

// Whatever the noise, good controls are called bad about once in a hundred times.
TEST(GeorefAnalysis, RarelyBlamesGoodPoints) {
    std::mt19937_64 random(1);
    std::normal_distribution<double> noise(0, 5);
    int blamed = 0;
    for (int trial = 0; trial < 400; ++trial) {
        auto controls = scan(8);
        for (std::size_t i = 0; i < 8; ++i)
            controls.target[i] = {5e5 + 2 * controls.source[i].x + noise(random),
                                  5e6 - 2 * controls.source[i].y + noise(random)};
        blamed += controls.analyse(affine).outliers.empty() ? 0 : 1;
    }
    EXPECT_LE(blamed, 10);
}
