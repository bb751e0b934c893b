#include "support/levels.h"
#include "support/registry.h"

#include <gtest/gtest.h>

using namespace ZrProj;

TEST(RobinsonSterling, IsContinuousAcrossTheParallelsOfTheTable) {
    test::forEachLevel([](levels::Level) {
        test::Projection map("type=robinson-sterling ellipsoid=standard-sphere-of-6370997-meters");
        for (int lat = -85; lat <= 85; lat += 5) {
            auto const at = map.forward(PROJPOINT{180, double(lat)});
            for (double const side : {-1e-13, 1e-13}) {
                auto const beside = map.forward(PROJPOINT{180, lat + side});
                EXPECT_NEAR(beside.x, at.x, 1e-7) << lat;
                EXPECT_NEAR(beside.y, at.y, 1e-7) << lat;
            }
        }
    });
}
