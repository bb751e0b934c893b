#include "support/levels.h"
#include "support/registry.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>

using namespace ZrProj;
using test::isMarked;
using test::Projection;

TEST(Orthographic, ShowsTheLimbAndNothingBehindIt) {
    test::forEachLevel([](levels::Level) {
        for (auto const* ellipsoid :
             {"type=orthographic ellipsoid=wgs-84", "type=orthographic ellipsoid=standard-sphere-of-6370997-meters"})
            for (auto const* centre : {" lat0=0 lon0=0", " lat0=40 lon0=-100", " lat0=-90 lon0=30"}) {
                Projection map(std::string(ellipsoid) + centre);
                double const lat0 = map.record().Lat0, lon0 = map.record().Lon0;
                double const beyond = lat0 > 0 ? -1 : 1; // along the centre's meridian
                PROJPOINT const limb[] = {{lon0 + 90, 0}, {lon0 - 90, 0}, {lon0, lat0 + 90 * beyond}};
                for (auto const& point : limb) {
                    EXPECT_TRUE(map.isInRange(point)) << point.x << ' ' << point.y;
                    auto const back = map.inverse(map.forward(point));
                    EXPECT_NEAR(std::remainder(back.x - point.x, 360) * std::cos(point.y / 57.3), 0, 1e-5);
                    EXPECT_NEAR(back.y, point.y, 1e-5);
                }
                PROJPOINT const behind{lon0 + 180, -lat0 + 0.5 * beyond};
                EXPECT_FALSE(map.isInRange(behind));
                EXPECT_TRUE(isMarked(map.forward(behind)));
            }
    });
}

TEST(Orthographic, MarksWhatLiesOutsideTheDisc) {
    test::forEachLevel([](levels::Level) {
        Projection map("type=orthographic ellipsoid=wgs-84 lat0=55 lon0=5");
        double const a = map.record().MajorRadius;
        PROJPOINT points[] = {{a, 0},      {a * (1 + 1e-13), 0},      {a * 1.001, 0}, {0, -1.001 * a}, {1e300, 0},
                              {0, -1e300}, {DBL_MAX / 2, DBL_MAX / 2}};
        points[0].y = points[1].y = map.forward(PROJPOINT{95, 0}).y; // the middle of the disc, 90 degrees east
        EXPECT_TRUE(map.tryInverse(points));
        EXPECT_FALSE(isMarked(points[0]));
        for (int i = 1; i < 7; ++i)
            EXPECT_TRUE(isMarked(points[i])) << i;
    });
}
