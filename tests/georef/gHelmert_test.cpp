#include "georef/gHelmert.h"

#include "support/error_host.h"
#include "support/georef_cases.h"

#include <gtest/gtest.h>

#include <cfloat>

using namespace ZrProj;
using namespace ZrProj::test;

TEST(Helmert, ReproducesASimilarity) {
    auto const turned = [](GEOREFPOINT p) {
        return GEOREFPOINT{5e5 + 0.8 * p.x - 0.6 * p.y, 5e6 + 0.6 * p.x + 0.8 * p.y};
    };
    for (int const count : {2, 9}) {
        auto controls = scattered(count, 1e5, turned);
        GEOREF const record = controls.record(TransformMethodHelmert);
        CGeorefTransform transform(&record);
        GEOREFPOINT point{98765.4, -1234.5};
        auto const expected = turned(point);
        ASSERT_TRUE(transform.Forward(&point, 1));
        EXPECT_LE(distance(point, expected), 5e-9);
    }
}

// No scale can be told: the system is there, and marks what it maps.
TEST(Helmert, MarksEverythingWithoutADenominator) {
    ErrorHost const host;
    ControlPoints controls;
    for (int i = 0; i < 3; ++i)
        controls.add({0.1, 1234.7}, {5 + 0.3 * i, 6});
    for (int const count : {3, 2, 1}) {
        GEOREF record = controls.record(TransformMethodHelmert);
        record.nControls = count;
        CGeorefTransform transform(&record);
        ASSERT_TRUE(transform.IsCreated());
        GEOREFPOINT point{1, 2};
        EXPECT_TRUE(transform.Forward(&point, 1));
        EXPECT_TRUE(point.x == DBL_MAX && point.y == DBL_MAX) << count;
        double mean = 0, errors[3] = {};
        EXPECT_TRUE(transform.ComputeError(&mean, errors));
        EXPECT_EQ(mean, DBL_MAX);
        EXPECT_EQ(errors[0], DBL_MAX);
    }
}
