#include "door/handles.h"

#include <cfloat>
#include <cmath>
#include <limits>
#include <vector>

using namespace ZrProj::test;

namespace {

constexpr int affine = 1, third = 4, coefficients = 5, thinPlate = 6;

/// Control points of an image of 1000 pixels, in pairs; `wrong` is off by 300.
struct ScannedMap {
    std::vector<double> source, target;

    explicit ScannedMap(std::size_t count, std::size_t wrong = SIZE_MAX) {
        for (std::size_t i = 0; i < count; ++i) {
            auto const k = static_cast<double>(i);
            double const x = 1000 * std::fmod(0.755 * k, 1), y = 1000 * std::fmod(0.57 * k, 1);
            source.insert(source.end(), {x, y});
            target.insert(target.end(), {5e5 + 2 * x + std::sin(91.7 * k), 5e6 - 2 * y + std::sin(47.3 * k)});
        }
        if (wrong < count)
            target[2 * wrong + 1] += 300;
    }
    std::size_t count() const { return source.size() / 2; }
    Fit fit(int method) const {
        return made<Fit>(
            [&](zrproj_fit** f) { return zrproj_fit_create(method, source.data(), target.data(), count(), f); });
    }
};

zrproj_fit_summary summaryOf(Fit const& fit, FitAnalysis& analysis) {
    analysis = made<FitAnalysis>([&](zrproj_analysis** a) { return zrproj_analysis_create(fit.get(), a); });
    zrproj_fit_summary summary{};
    summary.size = sizeof summary;
    EXPECT_EQ(zrproj_analysis_summary(analysis.get(), &summary), ZRPROJ_OK);
    return summary;
}

zrproj_status create(int method, std::vector<double> const& source, std::vector<double> const& target) {
    zrproj_fit* fit = nullptr;
    zrproj_status const status = zrproj_fit_create(method, source.data(), target.data(), source.size() / 2, &fit);
    EXPECT_EQ(fit == nullptr, status != ZRPROJ_OK);
    zrproj_fit_destroy(fit);
    return status;
}

} // namespace

TEST(DoorFit, MapsPointsInAnyLayout) {
    Fit const fit = ScannedMap(12).fit(affine);
    double pairs[] = {10, 20, HUGE_VAL, 1, 1e308, 1e308, 990, 500}, x[] = {10, 990}, y[] = {20, 500};
    unsigned char reasons[4];
    ASSERT_EQ(zrproj_fit_points(fit.get(), pairs, pairs + 1, 16, 4, reasons, 0), ZRPROJ_OK);
    ASSERT_EQ(zrproj_fit_points(fit.get(), x, y, 8, 2, nullptr, 0), ZRPROJ_OK);
    EXPECT_EQ(reasons[0], ZRPROJ_CONVERTED);
    EXPECT_EQ(reasons[1], ZRPROJ_NOT_FINITE);
    EXPECT_EQ(reasons[2], ZRPROJ_OFF_THE_MAP);
    EXPECT_TRUE(std::isnan(pairs[2]) && std::isnan(pairs[3]) && std::isnan(pairs[4]));
    EXPECT_EQ(pairs[0], x[0]);
    EXPECT_EQ(pairs[7], y[1]);
    EXPECT_NEAR(x[0], 5e5 + 20, 2);
    EXPECT_EQ(zrproj_fit_points(fit.get(), x, y, 4, 2, nullptr, 0), ZRPROJ_BAD_ARGUMENT);
}

TEST(DoorFit, MapsTheSameOnSeveralThreads) {
    constexpr std::size_t count = 75001;
    for (int const method : {third, thinPlate}) {
        Fit const fit = ScannedMap(12).fit(method);
        std::vector<double> alone;
        for (std::size_t i = 0; i < 2 * count; ++i)
            alone.push_back(i % 777 == 5 ? HUGE_VAL : std::fmod(0.37 * static_cast<double>(i), 1000));
        auto together = alone;
        std::vector<unsigned char> reasons(count), others(count);
        ASSERT_EQ(zrproj_fit_points(fit.get(), &alone[0], &alone[1], 16, count, reasons.data(), 1), ZRPROJ_OK);
        ASSERT_EQ(zrproj_fit_points(fit.get(), &together[0], &together[1], 16, count, others.data(), 3), ZRPROJ_OK);
        EXPECT_EQ(std::memcmp(alone.data(), together.data(), alone.size() * sizeof alone[0]), 0);
        EXPECT_EQ(reasons, others);
        EXPECT_EQ(zrproj_fit_points(fit.get(), &alone[0], &alone[1], 16, 1, nullptr, -2), ZRPROJ_BAD_ARGUMENT);
    }
}

TEST(DoorFit, TellsItsCoefficients) {
    double const given[] = {2, 0.5, 5e5, -0.5, -2, 5e6};
    Fit const fit = made<Fit>([&](zrproj_fit** f) { return zrproj_fit_create_affine(given, f); });
    char const* term = nullptr;
    double x = 0, y = 0;
    ASSERT_EQ(zrproj_fit_coefficient(fit.get(), 0, &term, &x, &y), ZRPROJ_OK);
    EXPECT_STREQ(term, "1");
    EXPECT_EQ(x, 5e5);
    ASSERT_EQ(zrproj_fit_coefficient(fit.get(), 2, &term, &x, &y), ZRPROJ_OK);
    EXPECT_STREQ(term, "y");
    EXPECT_EQ(y, -2);
    EXPECT_EQ(zrproj_fit_coefficient(fit.get(), 3, &term, &x, &y), ZRPROJ_UNKNOWN);
    EXPECT_EQ(zrproj_fit_coefficient(ScannedMap(12).fit(third).get(), 9, &term, nullptr, nullptr), ZRPROJ_OK);
    EXPECT_STREQ(term, "y^3");
    EXPECT_EQ(zrproj_fit_coefficient(ScannedMap(12).fit(thinPlate).get(), 0, &term, &x, &y), ZRPROJ_UNKNOWN);
    zrproj_analysis* analysis = nullptr;
    EXPECT_EQ(zrproj_analysis_create(fit.get(), &analysis), ZRPROJ_UNSUPPORTED);
}

TEST(DoorFit, FindsTheWrongPoint) {
    FitAnalysis analysis;
    auto const summary = summaryOf(ScannedMap(12, 4).fit(affine), analysis);
    EXPECT_EQ(summary.count, 12U);
    EXPECT_EQ(summary.outliers, 1U);
    EXPECT_EQ(summary.worst, 4U);
    EXPECT_EQ(summary.judge, affine);
    EXPECT_EQ(summary.looked, 1);
    EXPECT_LT(summary.rms_without, 3);
    EXPECT_GT(summary.rms, 50);
    double sum = 0;
    for (std::size_t i = 0; i < 12; ++i) {
        zrproj_residual residual{};
        residual.size = sizeof residual;
        ASSERT_EQ(zrproj_analysis_residual(analysis.get(), i, &residual), ZRPROJ_OK);
        EXPECT_EQ(residual.stands_out, i == 4 ? 1 : 0);
        EXPECT_EQ(residual.length, std::hypot(residual.dx, residual.dy));
        EXPECT_NEAR(residual.left_out, residual.length / (1 - residual.leverage), 1e-6);
        sum += residual.leverage;
    }
    EXPECT_NEAR(sum, 3, 1e-12); // as many as a coordinate's terms
    zrproj_residual residual{};
    EXPECT_EQ(zrproj_analysis_residual(analysis.get(), 0, &residual), ZRPROJ_BAD_ARGUMENT);
    residual.size = sizeof residual;
    EXPECT_EQ(zrproj_analysis_residual(analysis.get(), 12, &residual), ZRPROJ_UNKNOWN);
}

TEST(DoorFit, SaysWhatItCannotTell) {
    FitAnalysis analysis;
    auto const summary = summaryOf(ScannedMap(160).fit(thinPlate), analysis); // too many to leave out one by one
    EXPECT_EQ(summary.looked, 0);
    EXPECT_TRUE(std::isnan(summary.left_out_rms));
    EXPECT_TRUE(std::isnan(summary.rms_without));
    zrproj_residual residual{};
    residual.size = sizeof residual;
    ASSERT_EQ(zrproj_analysis_residual(analysis.get(), 3, &residual), ZRPROJ_OK);
    EXPECT_TRUE(std::isnan(residual.left_out) && std::isnan(residual.leverage));
    EXPECT_LT(residual.length, 1e-6);
}

TEST(DoorFit, RefusesWhatMakesNoFit) {
    std::vector<double> const target{0, 0, 1, 0, 0, 1};
    EXPECT_EQ(create(affine, target, target), ZRPROJ_OK);
    EXPECT_EQ(create(affine, {0, 0, 1, 1, 2, 2}, target), ZRPROJ_NOT_SOLVABLE);
    EXPECT_STREQ(zrproj_message(), "the control points are all on one line");
    EXPECT_EQ(create(affine, {}, {}), ZRPROJ_NOT_SOLVABLE);
    EXPECT_EQ(create(third, target, target), ZRPROJ_NOT_SOLVABLE);
    for (int const method : {-1, coefficients, 12, 99})
        EXPECT_EQ(create(method, target, target), ZRPROJ_UNKNOWN) << method;
    for (double const wild : {HUGE_VAL, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(create(affine, {0, 0, 1, 0, 0, wild}, target), ZRPROJ_BAD_ARGUMENT);
        EXPECT_EQ(create(affine, target, {0, 0, 1, 0, wild, 1}), ZRPROJ_BAD_ARGUMENT);
        double const six[] = {1, 2, 3, 4, wild, 6};
        zrproj_fit* fit = nullptr;
        EXPECT_EQ(zrproj_fit_create_affine(six, &fit), ZRPROJ_BAD_ARGUMENT);
        EXPECT_EQ(fit, nullptr);
    }
    std::vector<double> const many(20002, 1);
    EXPECT_EQ(create(thinPlate, many, many), ZRPROJ_UNSUPPORTED);
    EXPECT_STREQ(zrproj_message(), "thin-plate takes at most 10000 control points");
    zrproj_fit* fit = nullptr;
    EXPECT_EQ(zrproj_fit_create(affine, nullptr, target.data(), 3, &fit), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(zrproj_fit_create(affine, target.data(), target.data(), SIZE_MAX, &fit), ZRPROJ_BAD_ARGUMENT);
}
