#include "support/cases.h"
#include "support/levels.h"
#include "support/registry.h"

#include <gtest/gtest.h>

#include <cfloat>

using namespace ZrProj;
using test::isMarked;
using test::Projection;

TEST(Gnomonic, AgreesWithReferenceValues) {
    test::expectProjectionCases("gnomonic.txt");
}

TEST(Gnomonic, MarksTheHorizonAndWhatLiesBehind) {
    test::forEachLevel([](formulas::Level) {
        for (auto const* centre : {"type=27 ellipsoid=48", "type=27 ellipsoid=48 lat1=40 lon0=-100",
                                   "type=27 ellipsoid=48 lat1=-90 lon0=30"}) {
            Projection map(centre);
            double const lat1 = map.record().Lat1, lon0 = map.record().Lon0, towards = lat1 > 0 ? -1 : 1;
            PROJPOINT points[] = {{lon0 + 90, 0}, {lon0 - 90, 0}, {lon0, lat1 + 90 * towards}, {lon0 + 180, -lat1}};
            for (auto const& point : points)
                EXPECT_FALSE(map.isInRange(point)) << point.x << ' ' << point.y;
            EXPECT_TRUE(map.tryForward(points));
            for (auto const& point : points)
                EXPECT_TRUE(isMarked(point));
            PROJPOINT const inside{lon0, lat1 + (90 - 1e-9) * towards};
            EXPECT_TRUE(map.isInRange(inside));
            EXPECT_NEAR(map.inverse(map.forward(inside)).y, inside.y, 1e-11);
        }
    });
}

TEST(Gnomonic, FillsThePlaneAndMarksInfinity) {
    test::forEachLevel([](formulas::Level) {
        Projection map("type=27 ellipsoid=48 lat1=40 lon0=-100");
        PROJPOINT points[] = {{1e15, 0}, {1e300, 0}, {0, -1e300}, {DBL_MAX / 2, DBL_MAX / 2}, {1e23, 0}};
        EXPECT_TRUE(map.tryInverse(points));
        EXPECT_NEAR(points[0].x, -10, 1e-6);
        EXPECT_NEAR(points[0].y, 0, 1e-6);
        for (int i = 1; i < 5; ++i)
            EXPECT_TRUE(isMarked(points[i])) << i;
    });
}

TEST(Gnomonic, DrawsGreatCirclesStraightOnASphere) {
    Projection map("type=27 radius=6370997 rf=100 lat1=-20 lon0=170");
    auto const a = map.forward(PROJPOINT{170, 0}), b = map.forward(PROJPOINT{-150, 0}),
               c = map.forward(PROJPOINT{-170, 0});
    EXPECT_NEAR((b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x), 0, 1e-2); // the equator; square metres
}
