// Where the maps end: which types a line can be torn in two by, and how sharp the limits of a range are.
#include "proj/projection_table.h"
#include "support/registry.h"

#include <gtest/gtest.h>

using namespace ZrProj;

namespace {

constexpr double lon0 = 20;

double centreOf(ProjType type) {
    return ProjUsesParam(type, ProjParamLon0) ? lon0 : 0;
}

CProjector projectorOf(ProjType type) {
    PROJDATA record{};
    record.Type = type;
    record.Ellipsoid = EllipsoidTypeWgs84;
    record.Lon0 = centreOf(type);
    record.Lat1 = 30;
    record.Lat2 = 50;
    record.Lon2 = 30;
    return CProjector(&record);
}

bool neverTears(ProjType type) {
    return projectionRow(type)->family == Family::Azimuthal || type == ProjTypeObliqueMercator ||
           type == ProjTypeHotineObliqueMercator;
}

} // namespace

TEST(Edges, TearWhatReachesTheOppositeMeridian) {
    for (auto const type : test::projectingTypes()) {
        if (type == ProjTypeStatePlane1927 || type == ProjTypeStatePlane1983)
            continue;
        auto projector = projectorOf(type);
        double const centre = centreOf(type);
        PROJPOINT const within[] = {{centre - 179, 10}, {centre + 179, 10}},
                        east[] = {{centre, 10}, {centre + 181, 10}}, west[] = {{centre, 10}, {centre - 181, 10}};
        double one = -1, two = -1;
        EXPECT_FALSE(projector.LLOffsetSplitObject(within, 2, &one, &two)) << type;
        EXPECT_TRUE(one == 0 && two == 0) << type;
        EXPECT_EQ(projector.LLOffsetSplitObject(east, 2, &one, &two), !neverTears(type)) << type;
        EXPECT_TRUE(one == (neverTears(type) ? 0 : -360) && two == 0) << type << ' ' << one << ' ' << two;
        EXPECT_EQ(projector.LLOffsetSplitObject(west, 2, &one, &two), !neverTears(type)) << type;
        EXPECT_TRUE(one == (neverTears(type) ? 0 : 360) && two == 0) << type << ' ' << one << ' ' << two;
    }
}

TEST(Edges, AreOutsideOfCassiniAndPolyconic) {
    for (auto const type : {ProjTypeCassini, ProjTypePolyconic}) {
        auto projector = projectorOf(type);
        for (double const side : {-1, 1}) {
            PROJPOINT const in{lon0 + side * 89.999999, 40}, on{lon0 + side * 90, 40}, around{lon0 + side * 300, 40};
            EXPECT_TRUE(projector.LLInProjection(&in)) << type;
            EXPECT_FALSE(projector.LLInProjection(&on)) << type;
            EXPECT_TRUE(projector.LLInProjection(&around)) << type;
        }
    }
}
