#include "support/levels.h"

#include <zrproj/projection.h>

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>

using namespace ZrProj;

namespace {

PROJDATA transverseMercator(EllipsoidType ellipsoid) {
    PROJDATA record{};
    record.Type = ProjTypeTransverseMercator;
    record.Ellipsoid = ellipsoid;
    return record;
}

PROJPOINT forward(CProjector& projector, double lon, double lat) {
    PROJPOINT point{lon, lat};
    EXPECT_TRUE(projector.Forward(&point, 1));
    return point;
}

} // namespace

TEST(TransverseMercator, MapsPolesToTheCentralMeridian) {
    test::forEachLevel([](levels::Level) {
        PROJDATA record = transverseMercator(EllipsoidTypeWgs84);
        CProjector projector(&record);
        auto const north = forward(projector, 40, 90), south = forward(projector, -2, -90);
        EXPECT_EQ(north.x, 0);
        EXPECT_EQ(south.x, 0);
        EXPECT_NEAR(north.y, 10001965.729, 1e-3); // the quadrant of the meridian, WGS 84
        EXPECT_EQ(south.y, -north.y);
    });
}

TEST(TransverseMercator, KnowsTheSpheresSingularPoints) {
    test::forEachLevel([](levels::Level) {
        PROJDATA record = transverseMercator(EllipsoidTypeStandardSphereOf6370997Meters);
        CProjector projector(&record);
        auto const east = forward(projector, 90, 0);
        EXPECT_EQ(east.x, DBL_MAX);
        EXPECT_EQ(east.y, DBL_MAX);
        EXPECT_EQ(projector.Result(), 1);
        // 90 degrees away, the northing is the pole's on that side of the equator.
        EXPECT_DOUBLE_EQ(forward(projector, 90, 20).y, 6370997 * 1.5707963267948966);
        EXPECT_DOUBLE_EQ(forward(projector, -90, -20).y, -6370997 * 1.5707963267948966);
        // 90 degrees west on the equator the easting is infinite, which is an arithmetic exception.
        PROJPOINT points[] = {{1, 1}, {-90, 0}, {2, 2}};
        EXPECT_FALSE(projector.Forward(points, 3));
        EXPECT_EQ(projector.Result(), 1);
        EXPECT_EQ(points[1].x, DBL_MAX);
        auto const last = forward(projector, 2, 2);
        EXPECT_EQ(points[2].x, last.x);
    });
}

TEST(TransverseMercator, SharesOneFormulaBetweenItsTypes) {
    PROJDATA tm = transverseMercator(EllipsoidTypeGrs1980Iugg1980), gauss = tm, utm = tm;
    gauss.Type = ProjTypeGaussKruger;
    utm.Type = ProjTypeUniversalTransverseMercator;
    utm.bSouth = true;
    CProjector a(&tm), b(&gauss), c(&utm);
    auto const p = forward(a, 2.5, -33), q = forward(b, 2.5, -33), r = forward(c, 2.5, -33);
    EXPECT_EQ(p.x, q.x);
    EXPECT_EQ(p.y, q.y);
    EXPECT_NEAR(r.x, 500000 + 0.9996 * p.x, 1e-8);
    EXPECT_NEAR(r.y, 10000000 + 0.9996 * p.y, 1e-8);
}

TEST(TransverseMercator, TellsItsRangeAndSplits) {
    PROJDATA record = transverseMercator(EllipsoidTypeWgs84);
    record.Lon0 = 100;
    CProjector projector(&record);
    auto const inside = [&](double lon, double lat) {
        PROJPOINT const point{lon, lat};
        return projector.LLInProjection(&point);
    };
    EXPECT_TRUE(inside(100, 90));
    EXPECT_TRUE(inside(144.999, 0));
    EXPECT_FALSE(inside(145, 0));
    EXPECT_FALSE(inside(55, 0));
    EXPECT_FALSE(inside(100, 90.1));
    EXPECT_FALSE(inside(NAN, 0));
    double first = 7, second = 7;
    PROJPOINT const west[] = {{10, 0}, {-80, 0}}, east[] = {{10, 0}, {280, 0}}, within[] = {{-79, 0}, {279, 0}};
    EXPECT_TRUE(projector.LLOffsetSplitObject(west, 2, &first, &second));
    EXPECT_EQ(first, 360);
    EXPECT_EQ(second, 0);
    EXPECT_TRUE(projector.LLOffsetSplitObject(east, 2, &first, &second));
    EXPECT_EQ(first, -360);
    EXPECT_FALSE(projector.LLOffsetSplitObject(within, 2, &first, &second));
    EXPECT_EQ(first, 0);
    EXPECT_FALSE(projector.LLOffsetSplitObject(within, 0, &first, &second));
}
