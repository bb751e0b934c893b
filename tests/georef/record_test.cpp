#include "support/georef_cases.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <climits>

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
    for (int const count : {0, -1, INT_MIN}) {
        EXPECT_FALSE(RefAllocControls(&georef, count));
        EXPECT_EQ(georef.nControls, 0);
    }
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
    GEOREF flat = worldFile();
    for (int const height : {0, INT_MIN}) {
        ASSERT_TRUE(RefCoeffToControls(&flat, 400, height));
        EXPECT_EQ(distance(flat.pSource[2], {400, 100}), 0);
        RefFreeControls(&flat);
        flat.Method = TransformMethodPrecalculatedAffineCoefficients;
    }
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
    controls.source[2] = {DBL_MAX, DBL_MAX};
    EXPECT_FALSE(RefControlsToCoeff(&georef));
    controls.source = {{1e10, 0}, {1e10 + 1, 0}, {1e10, 1}}; // C would be -1e310
    controls.target = {{0, 0}, {1e300, 0}, {0, 1e300}};
    EXPECT_FALSE(RefControlsToCoeff(&georef));
    EXPECT_EQ(georef.A, 0);
    controls = scattered(3, 100, [](GEOREFPOINT p) { return p; });
    for (GEOREFPOINT* GEOREF::*array : {&GEOREF::pSource, &GEOREF::pTarget}) {
        georef = controls.record(TransformMethodHelmert);
        georef.*array = nullptr;
        EXPECT_FALSE(RefControlsToCoeff(&georef));
        georef = controls.record(TransformMethodHelmert);
        georef.nControls = INT_MIN;
        EXPECT_FALSE(RefControlsToCoeff(&georef));
    }
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
    EXPECT_FALSE(RefResize(nullptr, 4, 2, 8, 1));
    for (int const bad : {0, -1, INT_MIN}) {
        EXPECT_FALSE(RefResize(&points, bad, 2, 8, 1));
        EXPECT_FALSE(RefResize(&points, 4, bad, 8, 1));
        EXPECT_FALSE(RefResize(&points, 4, 2, bad, 1));
        EXPECT_FALSE(RefResize(&points, 4, 2, 8, bad));
    }
    EXPECT_EQ(distance(points.pSource[3], {2 * before.x, before.y / 2}), 0); // as it was before these
    points.pSource = nullptr;
    EXPECT_FALSE(RefResize(&points, 4, 2, 8, 1));
}

TEST(GeorefRecord, ResizesCoefficientsWhateverControlsStandBesideThem) {
    GEOREF georef = worldFile();
    georef.nControls = 4; // and null arrays
    ASSERT_TRUE(RefResize(&georef, 1000, 800, 500, 800));
    EXPECT_DOUBLE_EQ(georef.A, 5);
    EXPECT_EQ(georef.nControls, 0);

    auto controls = scattered(4, 100, [](GEOREFPOINT p) { return p; });
    georef.pSource = controls.source.data();
    georef.pTarget = controls.target.data();
    georef.nControls = 4;
    ASSERT_TRUE(RefResize(&georef, 500, 800, 1000, 400));
    EXPECT_DOUBLE_EQ(georef.A, 2.5);
    EXPECT_DOUBLE_EQ(georef.E, -5);
    EXPECT_EQ(georef.nControls, 4);
    EXPECT_EQ(distance(georef.pSource[3], {2 * controls.target[3].x, controls.target[3].y / 2}), 0);
}
