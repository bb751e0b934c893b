#include "support/levels.h"
#include "support/registry.h"

#include <gtest/gtest.h>

#include <cstring>

using namespace ZrProj;
using test::isMarked;
using test::Projection;

namespace {

void expectNear(PROJPOINT const& actual, PROJPOINT const& expected, double tolerance) {
    EXPECT_NEAR(actual.x, expected.x, tolerance);
    EXPECT_NEAR(actual.y, expected.y, tolerance);
}

} // namespace

TEST(Hotine, GivesOneMapForOneLine) {
    test::forEachLevel([](levels::Level) {
        // The line's direction turns u and v round, and x and y stay.
        std::string const centre = "type=hotine ellipsoid=wgs-84 lat0=-38 lon1=175 use_alpha=1 u_offset=1 k0=0.9996";
        Projection south(centre + " alpha=130"), north(centre + " alpha=-50"), tilted(centre + " alpha=130 rotate=1"),
            back(centre + " alpha=310 rotate=1");
        PROJPOINT const point{-178, -31}, uv = north.forward(point), xy = tilted.forward(point);
        expectNear(south.forward(point), {-uv.x, -uv.y}, 1e-8);
        expectNear(back.forward(point), xy, 1e-8);
        expectNear(tilted.forward(PROJPOINT{175, -38}), {0, 0}, 1e-8);
        EXPECT_GT(tilted.forward(PROJPOINT{175, -37.999}).y, 110); // x and y: east and north at the centre
        // Two points of the line, v = 0, define it as well.
        Projection line(centre + " alpha=-50"), rotated(centre + " alpha=-50 rotate=1");
        auto const one = line.inverse(PROJPOINT{-2e6, 0}), two = line.inverse(PROJPOINT{3e6, 0});
        PROJDATA record = rotated.record();
        std::memset(&record.bUseAlpha, 0, 1);
        record.Lon1 = one.x;
        record.Lat1 = one.y;
        record.Lon2 = two.x;
        record.Lat2 = two.y;
        CProjector points(&record);
        PROJPOINT map = point;
        ASSERT_TRUE(points.Forward(&map, 1));
        expectNear(map, rotated.forward(point), 1e-7);
    });
}

TEST(Hotine, ReadsItsFlagsAsBytes) {
    PROJDATA record = Projection("type=hotine ellipsoid=wgs-84 lat0=20 lon0=10 alpha=30").record();
    std::memset(&record.bUseAlpha, 2, 1);
    std::memset(&record.bRotate, 128, 1);
    std::memset(&record.bUOffset, 255, 1);
    CProjector projector(&record);
    PROJPOINT centre{10, 20};
    ASSERT_TRUE(projector.Forward(&centre, 1));
    expectNear(centre, {0, 0}, 1e-8);
    double offset = 0, other = 1;
    PROJPOINT const west{-171, 0};
    EXPECT_TRUE(projector.LLOffsetSplitObject(&west, 1, &offset, &other));
    EXPECT_EQ(offset, 360);
    Projection twoPoints("type=hotine ellipsoid=clarke-1866 lat0=40 lat1=47.5 lon1=-122.3 lat2=25.7 lon2=-80.2");
    record = twoPoints.record();
    CProjector unsplit(&record);
    EXPECT_FALSE(unsplit.LLOffsetSplitObject(&west, 1, &offset, &other));
}

TEST(Hotine, MarksThePolesOfItsLine) {
    test::forEachLevel([](levels::Level) {
        for (auto const* words :
             {"type=hotine ellipsoid=wgs-84 lat0=0 lon0=20 alpha=90 use_alpha=1 rotate=1 u_offset=1",
              "type=hotine ellipsoid=standard-sphere-of-6370997-meters lat0=0 lon0=20 alpha=-90 use_alpha=1"}) {
            Projection equator(words); // an equatorial line: its poles are the Earth's
            PROJPOINT points[] = {{30, 90}, {-70, -90}, {30, 89.9999}, {1, 1}};
            EXPECT_TRUE(equator.tryForward(points));
            EXPECT_TRUE(isMarked(points[0]) && isMarked(points[1]));
            EXPECT_FALSE(isMarked(points[2]) || isMarked(points[3]));
            EXPECT_FALSE(equator.isInRange({30, 90}));
            EXPECT_TRUE(equator.isInRange({30, 89.9999}));
        }
    });
}

TEST(Hotine, MarksTheStripThatWouldCoverOtherLand) {
    test::forEachLevel([](levels::Level) {
        std::string const line = " lat0=0 lon0=20 alpha=40 use_alpha=1 rotate=1";
        Projection ellipsoid("type=hotine ellipsoid=wgs-84" + line),
            sphere("type=hotine ellipsoid=standard-sphere-of-6370997-meters" + line);
        for (double const lon : {-160.0, 200.0, -159.5, 199.5}) {
            EXPECT_FALSE(ellipsoid.isInRange({lon, 30}));
            EXPECT_TRUE(isMarked(ellipsoid.forward(PROJPOINT{lon, 30})));
            EXPECT_TRUE(sphere.isInRange({lon, 30}));
            EXPECT_FALSE(isMarked(sphere.forward(PROJPOINT{lon, 30})));
        }
        for (double const pole : {90, -90}) { // in the strip and out of it
            EXPECT_TRUE(ellipsoid.isInRange({-160, pole}));
            expectNear(ellipsoid.forward(PROJPOINT{-160, pole}), ellipsoid.forward(PROJPOINT{20, pole}), 1e-8);
        }
        EXPECT_TRUE(ellipsoid.isInRange({-159.3, 30}));
        EXPECT_NEAR(ellipsoid.inverse(ellipsoid.forward(PROJPOINT{-159.3, 30})).x, -159.3, 1e-11);
    });
}
