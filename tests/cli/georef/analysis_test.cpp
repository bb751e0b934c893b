#include "cli/georef/analysis.h"

#include "cli/georef/coefficients.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

using namespace ZrProj;
using namespace ZrProj::Command;

namespace {

/// A bent map of an image of 40,000 pixels; the offsets look like noise of some metres.
std::vector<ControlPoint> scan(int count) {
    std::vector<ControlPoint> controls;
    for (int i = 1; i <= count; ++i) {
        double const x = 40000 * std::fmod(0.7548776662466927 * i, 1), y = 40000 * std::fmod(0.5698402909980532 * i, 1);
        controls.push_back(
            {{x, y},
             {5e5 + 2.5 * x + 0.1 * y + 4 * std::sin(91.7 * i), 5.4e6 + 0.1 * x - 2.5 * y + 4 * std::sin(47.3 * i)},
             "",
             static_cast<std::uint64_t>(i)});
    }
    return controls;
}

GeorefMethod const& affine = findGeorefMethod("affine");

/// x^T (sum of y y^T)^-1 x for terms 1, x, y of centred coordinates: how much of its own fit an affine control makes.
double leverage(std::vector<ControlPoint> const& controls, std::size_t at) {
    auto const n = static_cast<double>(controls.size());
    double x = 0, y = 0, xx = 0, xy = 0, yy = 0;
    for (auto const& c : controls) {
        x += c.source.x / n;
        y += c.source.y / n;
    }
    for (auto const& c : controls) {
        xx += (c.source.x - x) * (c.source.x - x);
        xy += (c.source.x - x) * (c.source.y - y);
        yy += (c.source.y - y) * (c.source.y - y);
    }
    double const u = controls[at].source.x - x, v = controls[at].source.y - y;
    return 1 / n + (yy * u * u - 2 * xy * u * v + xx * v * v) / (xx * yy - xy * xy);
}

} // namespace

// Least squares: what a point is off when it is left out is its residual over 1 - leverage.
TEST(GeorefAnalysis, LeavesOneOutAsTheLeverageSays) {
    auto const controls = scan(12);
    Analysis const analysis = analyse(affine, controls);
    for (std::size_t i = 0; i < controls.size(); ++i) {
        Residual const& residual = analysis.residuals[i];
        EXPECT_NEAR(*residual.left, residual.length / (1 - leverage(controls, i)), 1e-7) << i;
    }
}

TEST(GeorefAnalysis, LeavesOneOutAsRefittingDoes) {
    auto const controls = scan(14);
    for (auto const& method : georefMethods) {
        SCOPED_TRACE(method.key);
        Analysis const analysis = analyse(method, controls);
        for (std::size_t i = 0; i < controls.size(); i += 3) {
            auto others = controls;
            others.erase(others.begin() + static_cast<std::ptrdiff_t>(i));
            GEOREFPOINT point = controls[i].source;
            fitGeoref(method, others)->Forward(&point, 1);
            EXPECT_NEAR(*analysis.residuals[i].left,
                        std::hypot(point.x - controls[i].target.x, point.y - controls[i].target.y), 1e-7);
        }
    }
}

TEST(GeorefAnalysis, FindsTheWrongPoint) {
    for (char const* const key : {"affine", "bilinear", "second", "thin-plate", "marcov", "inverse-distance"}) {
        SCOPED_TRACE(key);
        auto const& method = findGeorefMethod(key);
        EXPECT_TRUE(analyse(method, scan(12)).outliers.empty());
        for (std::size_t wrong = 0; wrong < 12; ++wrong) {
            auto controls = scan(12);
            controls[wrong].target.y += 1000;
            Analysis const analysis = analyse(method, controls);
            EXPECT_EQ(analysis.outliers, std::vector<std::size_t>{wrong});
            EXPECT_EQ(analysis.worst, wrong);
            EXPECT_LT(analysis.rmsWithout.value_or(1000), 60);
        }
    }
}

TEST(GeorefAnalysis, FindsTwoWrongPoints) {
    auto controls = scan(14);
    controls[3].target.x += 300;
    controls[8].target.y -= 900;
    EXPECT_EQ(analyse(affine, controls).outliers, (std::vector<std::size_t>{8, 3}));
}

// Refitting for every point of every round takes the better part of a minute here.
TEST(GeorefAnalysis, FindsAHundredWrongPointsAmongManyAtOnce) {
    auto controls = scan(2000);
    for (std::size_t i = 7; i < controls.size(); i += 20)
        controls[i].target.y += 500 + static_cast<double>(i);
    auto outliers = analyse(affine, controls).outliers;
    std::ranges::sort(outliers);
    ASSERT_EQ(outliers.size(), 100U);
    for (std::size_t k = 0; k < outliers.size(); ++k)
        EXPECT_EQ(outliers[k], 7 + 20 * k);
}

// Eight points are too few for the second order to tell.
TEST(GeorefAnalysis, LetsTheAffineMapJudgeWhereTheMethodCannot) {
    auto const& second = findGeorefMethod("second");
    for (std::size_t wrong = 0; wrong < 8; ++wrong) {
        auto controls = scan(8);
        controls[wrong].target.y += 1000;
        Analysis const analysis = analyse(second, controls);
        EXPECT_EQ(analysis.judge, &affine);
        EXPECT_EQ(analysis.outliers, std::vector<std::size_t>{wrong});
        EXPECT_NEAR(*analysis.worstResidual.left, 1000, 100);
    }
    EXPECT_EQ(analyse(second, scan(9)).judge, &second);
    EXPECT_EQ(analyse(affine, scan(5)).judge, &affine);
}

// Whatever the noise, good controls are called bad about once in a hundred times.
TEST(GeorefAnalysis, RarelyBlamesGoodPoints) {
    std::mt19937_64 random(1);
    std::normal_distribution<double> noise(0, 5);
    int blamed = 0;
    for (int trial = 0; trial < 400; ++trial) {
        auto controls = scan(8);
        for (auto& c : controls)
            c.target = {5e5 + 2 * c.source.x + noise(random), 5e6 - 2 * c.source.y + noise(random)};
        blamed += analyse(affine, controls).outliers.empty() ? 0 : 1;
    }
    EXPECT_LE(blamed, 10);
}

TEST(GeorefAnalysis, WritesCoefficientsOfTheFit) {
    auto const controls = scan(14);
    for (auto const& method : georefMethods) {
        if (isExact(method))
            continue;
        SCOPED_TRACE(method.key);
        auto const coefficients = georefCoefficients(method, controls);
        EXPECT_EQ(coefficients.size(), std::max<std::size_t>(method.unknown / 2, 3));
        auto const map = fitGeoref(method, controls);
        for (GEOREFPOINT point : {GEOREFPOINT{0, 0}, {40000, 0}, {12345, 34567}}) {
            double const x = point.x, y = point.y;
            double const terms[] = {1, x, y, x * x, x * y, y * y, x * x * x, x * x * y, x * y * y, y * y * y};
            GEOREFPOINT sum{};
            for (std::size_t i = 0; i < coefficients.size(); ++i) {
                double const term = coefficients[i].term == "xy" ? x * y : terms[i];
                sum = {sum.x + coefficients[i].x * term, sum.y + coefficients[i].y * term};
            }
            map->Forward(&point, 1);
            EXPECT_LE(std::hypot(sum.x - point.x, sum.y - point.y), 1e-6);
        }
    }
}
