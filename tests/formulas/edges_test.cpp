// Where the maps end: which types a line can be torn in two by, and how sharp the limits of a range are.
#include "formulas/converter.h"
#include "proj/projection_table.h"
#include "support/faults.h"
#include "support/registry.h"
#include "support/words.h"

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

/// Whether the hole has the place in it.
bool isIn(formulas::Hole const& hole, PROJPOINT const& at) {
    return hole.present &&
           std::hypot(std::remainder(at.x - hole.lon, 360) / hole.halfWidth, (at.y - hole.lat) / hole.halfHeight) < 1;
}

/// Whether the edges leave the place to the map; those of formulas that only systems reach.
bool leave(formulas::MapEdges const& edges, PROJPOINT const& at) {
    auto const& [present, wraps, west, east, south, north] = edges.window;
    double const middle = (west + east) / 2, apart = std::fabs(std::remainder(at.x - middle, 360));
    if (present && (apart > (east - west) / 2 || at.y < south || at.y > north))
        return false;
    if (edges.polarHole.present && at.y * edges.polarHole.side > edges.polarHole.limit)
        return false;
    return !isIn(edges.hole, at) && !isIn(edges.otherHole, at);
}

} // namespace

TEST(Edges, OfFormulasLeaveOnlyWhatIsShown) {
    for (auto const& words : test::formulaParameterSets()) {
        auto const given = test::formulaOf(words).value();
        auto const edges = formulas::formulaOf(given.method)->edges(given.parameters);
        if (edges.horizon.present || edges.oblique.present)
            continue; // those of the gnomonic and of Hotine's, which types have
        test::Projection projection(words);
        auto points = projection.samples();
        std::erase_if(points, [&](PROJPOINT const& at) { return !leave(edges, at); });
        EXPECT_GT(points.size(), 10U) << words;
        auto const map = projection.forward(points), back = projection.inverse(map);
        test::Faults faults(words);
        for (std::size_t i = 0; i < points.size(); ++i)
            if (test::isMarked(map[i]) || test::isMarked(back[i]))
                faults.add(points[i], " is marked");
    }
}

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
