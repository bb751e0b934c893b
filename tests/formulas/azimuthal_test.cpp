// What the stereographic, the Lambert azimuthal and the gnomonic projection show of the globe, and what not.
#include "support/levels.h"
#include "support/registry.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>

using namespace ZrProj;
using test::isMarked;
using test::Projection;

TEST(Azimuthal, MarksTheAntipodeAndNothingNearIt) {
    test::forEachLevel([](levels::Level) {
        for (auto const* words :
             {"type=stereographic ellipsoid=wgs-84 lat0=40 lon0=-100",
              "type=stereographic ellipsoid=standard-sphere-of-6370997-meters lat0=40 lon0=-100",
              "type=lambert-azimuthal ellipsoid=wgs-84 lat1=40 lon0=-100",
              "type=lambert-azimuthal ellipsoid=standard-sphere-of-6370997-meters lat1=40 lon0=-100"}) {
            Projection map(words);
            PROJPOINT points[] = {{80, -40}, {-280, -40}, {80 + 1e-11, -40}, {-100, 40}};
            EXPECT_TRUE(map.tryForward(points));
            EXPECT_TRUE(isMarked(points[0]) && isMarked(points[1])) << words;
            EXPECT_FALSE(isMarked(points[2]) || isMarked(points[3])) << words;
            EXPECT_FALSE(map.isInRange({80, -40}));
            EXPECT_TRUE(map.isInRange({80 + 1e-11, -40}));
        }
        for (auto const* words : {"type=stereographic ellipsoid=wgs-84 lat0=90 lon0=30",
                                  "type=stereographic ellipsoid=standard-sphere-of-6370997-meters lat0=90 lon0=30",
                                  "type=lambert-azimuthal ellipsoid=wgs-84 lat1=90 lon0=30"}) {
            Projection map(words);
            EXPECT_TRUE(isMarked(map.forward(PROJPOINT{77, -90}))) << words;
            EXPECT_FALSE(map.isInRange({77, -90})) << words;
        }
    });
}

TEST(Azimuthal, FillsThePlaneAndMarksInfinity) {
    struct {
        char const* words;
        PROJPOINT from, place; // the farthest map point that has one
    } const cases[] = {
        {"type=stereographic ellipsoid=wgs-84 lat0=-30 lon0=170", {1e15, -3e15}, {-10, 30}},
        {"type=gnomonic ellipsoid=standard-sphere-of-6370997-meters lat1=40 lon0=-100", {1e15, 0}, {-10, 0}}};
    test::forEachLevel([&](levels::Level) {
        for (auto const& each : cases) {
            Projection map(each.words);
            PROJPOINT points[] = {each.from, {1e300, 0}, {0, -1e300}, {DBL_MAX / 2, DBL_MAX / 2}, {1e23, 0}};
            EXPECT_TRUE(map.tryInverse(points));
            EXPECT_NEAR(test::longitudesApart(points[0].x, each.place.x), 0, 1e-6) << each.words;
            EXPECT_NEAR(points[0].y, each.place.y, 1e-6) << each.words;
            for (int i = 1; i < 5; ++i)
                EXPECT_TRUE(isMarked(points[i])) << each.words << ' ' << i;
        }
    });
}

TEST(LambertAzimuthal, KeepsItsRimAndMarksWhatLiesOutside) {
    test::forEachLevel([](levels::Level) {
        Projection map("type=lambert-azimuthal ellipsoid=standard-sphere-of-6370997-meters lat1=40 lon0=-100");
        double const rim = 2 * 6370997;
        for (double const turn : {0.0, 0.7, 2.5, 4.0}) {
            PROJPOINT const on{rim * std::cos(turn), rim * std::sin(turn)};
            auto const back = map.forward(map.inverse(on)); // the antipode itself would not come back
            EXPECT_NEAR(back.x, on.x, 1.5);
            EXPECT_NEAR(back.y, on.y, 1.5);
            EXPECT_NEAR(std::hypot(back.x, back.y), rim, 1e-7);
            EXPECT_TRUE(isMarked(map.inverse(PROJPOINT{on.x * (1 + 1e-12), on.y * (1 + 1e-12)})));
        }
    });
}

TEST(Gnomonic, MarksTheHorizonAndWhatLiesBehind) {
    test::forEachLevel([](levels::Level) {
        for (auto const* centre : {"type=gnomonic ellipsoid=standard-sphere-of-6370997-meters",
                                   "type=gnomonic ellipsoid=standard-sphere-of-6370997-meters lat1=40 lon0=-100",
                                   "type=gnomonic ellipsoid=standard-sphere-of-6370997-meters lat1=-90 lon0=30"}) {
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
