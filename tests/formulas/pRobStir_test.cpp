#include "support/cases.h"
#include "support/levels.h"

#include <gtest/gtest.h>

using namespace ZrProj;

TEST(RobinsonSterling, AgreesWithReferenceValues) {
    test::expectProjectionCases("robinson_sterling.txt");
}

TEST(RobinsonSterling, IsContinuousAcrossTheParallelsOfTheTable) {
    test::forEachLevel([](formulas::Level) {
        PROJDATA record{};
        record.Type = ProjTypeRobinsonSterling;
        record.MajorRadius = 6370997;
        CProjector projector(&record);
        for (int lat = -85; lat <= 85; lat += 5) {
            PROJPOINT points[] = {{180, lat - 1e-13}, {180, double(lat)}, {180, lat + 1e-13}};
            ASSERT_TRUE(projector.Forward(points, 3));
            for (auto const& beside : {points[0], points[2]}) {
                EXPECT_NEAR(beside.x, points[1].x, 1e-7) << lat;
                EXPECT_NEAR(beside.y, points[1].y, 1e-7) << lat;
            }
        }
    });
}
