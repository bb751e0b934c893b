#include "support/georef_cases.h"

#include <gtest/gtest.h>

using namespace ZrProj;
using namespace ZrProj::test;

namespace {

GEOREF worldFile() {
    GEOREF georef{};
    georef.Method = TransformMethodPrecalculatedAffineCoefficients;
    georef.A = 2.5;
    georef.B = 0.25;
    georef.C = 500000;
    georef.D = 0.5;
    georef.E = -2.5;
    georef.F = 5400000;
    return georef;
}

} // namespace

TEST(GeorefRecord, AllocatesControls) {
    GEOREF georef{};
    ASSERT_TRUE(RefAllocControls(&georef, 3));
    EXPECT_EQ(georef.nControls, 3);
    EXPECT_TRUE(georef.pSource[2].x == 0 && georef.pTarget[2].y == 0);
    RefFreeControls(&georef);
    EXPECT_TRUE(georef.nControls == 0 && !georef.pSource && !georef.pTarget);
    georef.nControls = 7;
    EXPECT_FALSE(RefAllocControls(&georef, 0));
    EXPECT_EQ(georef.nControls, 0);
    EXPECT_FALSE(RefAllocControls(nullptr, 3));
    RefFreeControls(nullptr);
}

TEST(GeorefRecord, UsesKnownCoefficients) {
    GEOREF const georef = worldFile();
    CGeorefTransform transform(&georef);
    GEOREFPOINT point{100, 200};
    ASSERT_TRUE(transform.Forward(&point, 1));
    EXPECT_EQ(point.x, 500300);
    EXPECT_EQ(point.y, 5399550);
}

TEST(GeorefRecord, TurnsCoefficientsIntoControlsAndBack) {
    GEOREF georef = worldFile();
    ASSERT_TRUE(RefCoeffToControls(&georef, 0, 400));
    EXPECT_EQ(georef.Method, TransformMethodAffinePolynomial);
    ASSERT_EQ(georef.nControls, 4);
    GEOREFPOINT const corners[] = {{0, 0}, {100, 0}, {100, 400}, {0, 400}};
    GEOREFPOINT const images[] = {{500000, 5400000}, {500250, 5400050}, {500350, 5399050}, {500100, 5399000}};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(distance(georef.pSource[i], corners[i]), 0);
        EXPECT_EQ(distance(georef.pTarget[i], images[i]), 0);
    }
    EXPECT_FALSE(RefCoeffToControls(&georef, 100, 100)); // no longer method 5
    georef.A = georef.B = georef.C = georef.D = georef.E = georef.F = 0;
    ASSERT_TRUE(RefControlsToCoeff(&georef));
    EXPECT_EQ(georef.Method, TransformMethodPrecalculatedAffineCoefficients);
    EXPECT_EQ(georef.nControls, 4);
    EXPECT_NEAR(georef.A, 2.5, 1e-9);
    EXPECT_NEAR(georef.B, 0.25, 1e-9);
    EXPECT_NEAR(georef.C, 500000, 1e-8);
    EXPECT_NEAR(georef.D, 0.5, 1e-9);
    EXPECT_NEAR(georef.E, -2.5, 1e-9);
    EXPECT_NEAR(georef.F, 5400000, 1e-8);
    EXPECT_FALSE(RefControlsToCoeff(&georef)); // is method 5 already
    RefFreeControls(&georef);
}

TEST(GeorefRecord, FitsNoCoefficientsToBadControls) {
    auto controls = scattered(3, 100, [](GEOREFPOINT p) { return p; });
    GEOREF georef = controls.record(TransformMethodThinPlateSpline);
    georef.nControls = 2;
    EXPECT_FALSE(RefControlsToCoeff(&georef));
    georef.nControls = 3;
    georef.Method = TransformMethodNone;
    EXPECT_FALSE(RefControlsToCoeff(&georef));
    georef.Method = TransformMethodHelmert;
    controls.source[2] = controls.source[1];
    EXPECT_FALSE(RefControlsToCoeff(&georef));
    EXPECT_EQ(georef.Method, TransformMethodHelmert);
    georef.pTarget = nullptr;
    EXPECT_FALSE(RefControlsToCoeff(&georef));
    EXPECT_FALSE(RefControlsToCoeff(nullptr));
}

TEST(GeorefRecord, FollowsAResizedImage) {
    GEOREF coefficients = worldFile();
    ASSERT_TRUE(RefResize(&coefficients, 1000, 800, 500, 200));
    EXPECT_EQ(coefficients.Method, TransformMethodPrecalculatedAffineCoefficients);
    EXPECT_EQ(coefficients.pSource, nullptr);
    EXPECT_EQ(coefficients.nControls, 0);
    EXPECT_DOUBLE_EQ(coefficients.A, 5);
    EXPECT_DOUBLE_EQ(coefficients.B, 1);
    EXPECT_DOUBLE_EQ(coefficients.C, 500000);
    EXPECT_DOUBLE_EQ(coefficients.D, 1);
    EXPECT_DOUBLE_EQ(coefficients.E, -10);
    EXPECT_DOUBLE_EQ(coefficients.F, 5400000);

    auto controls = scattered(4, 100, [](GEOREFPOINT p) { return p; });
    GEOREF points = controls.record(TransformMethodHelmert);
    GEOREFPOINT const before = points.pSource[3];
    ASSERT_TRUE(RefResize(&points, 4, 2, 8, 1));
    EXPECT_EQ(distance(points.pSource[3], {2 * before.x, before.y / 2}), 0);
    EXPECT_EQ(distance(points.pTarget[3], before), 0);
    EXPECT_FALSE(RefResize(&points, 4, 2, 8, 0));
    EXPECT_FALSE(RefResize(nullptr, 4, 2, 8, 1));
}
