#include <zrproj/preclip.h>

#include "support/cases.h"
#include "support/error_host.h"
#include "support/faults.h"
#include "support/floating_point.h"
#include "support/registry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cstring>
#include <memory>
#include <vector>

using namespace ZrProj;
using namespace ZrProj::test;

namespace {

using Points = std::vector<PROJPOINT>;

struct Chain {
    Points points;
    bool isClosed;
};

enum Kind { line, area };

/// What the call gives; a call that fails is a failure of the test.
std::vector<Chain> preclip(std::string const& words, Kind kind, Points const& points) {
    PROJDATA record = recordOf(words);
    CProjector projector(&record);
    CPROJCHAIN* chains = nullptr;
    auto const count = static_cast<unsigned>(points.size());
    EXPECT_TRUE(kind == line ? projector.LLPreclipPolyline(points.data(), count, &chains)
                             : projector.LLPreclipPolygon(points.data(), count, &chains));
    std::vector<Chain> result;
    for (auto const* chain = chains; chain; chain = chain->pNext)
        result.push_back({{chain->pPoints, chain->pPoints + chain->nPoints}, chain->bClosed});
    ProjFreeChains(chains);
    return result;
}

bool isSame(Points const& a, Points const& b) {
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(PROJPOINT)) == 0;
}

constexpr char mercator[] = "type=mercator ellipsoid=wgs-84";
constexpr char albers[] = "type=albers ellipsoid=wgs-84 lat1=29.5 lat2=45.5 lon0=5";
constexpr char orthographic[] = "type=orthographic ellipsoid=standard-sphere-of-6370997-meters lat0=40 lon0=10";
constexpr char sinusoidal[] = "type=sinusoidal ellipsoid=wgs-84";
constexpr char northernAzimuthal[] = "type=lambert-azimuthal ellipsoid=wgs-84 lat1=90";
constexpr char gaussKruger[] = "type=gauss-kruger ellipsoid=wgs-84 lon0=-175";
double const none = std::nan("");

} // namespace

TEST(Preclip, RefusesWhatIsNoLineOrArea) {
    PROJDATA record = recordOf(mercator);
    CProjector const created(&record);
    PROJPOINT const points[3] = {{0, 0}, {1, 0}, {1, 1}};
    CPROJCHAIN chain = {};
    auto const expectRefused = [&](auto const& call, bool hasChains = true) {
        ErrorHost host(1);
        CPROJCHAIN* chains = &chain;
        EXPECT_FALSE(call(hasChains ? &chains : nullptr));
        EXPECT_EQ(chains, hasChains ? nullptr : &chain);
        ASSERT_EQ(host.calls.size(), 2u);
        EXPECT_EQ(host.calls[1].number, 20205u);
        EXPECT_EQ(host.calls[1].file, ".\\preclip.cpp");
        EXPECT_EQ(host.calls[1].text, "Software was passed a bad parameter");
    };
    void* const handle = ProjCreateProjection(&record);
    expectRefused([&](auto chains) { return ProjLLPreclipPolyline(nullptr, points, 3, chains); });
    expectRefused([&](auto chains) { return ProjLLPreclipPolyline(handle, nullptr, 3, chains); });
    expectRefused([&](auto chains) { return ProjLLPreclipPolyline(handle, points, 1, chains); });
    expectRefused([&](auto chains) { return ProjLLPreclipPolyline(handle, points, 3, chains); }, false);
    expectRefused([&](auto chains) { return ProjLLPreclipPolygon(nullptr, points, 3, chains); });
    expectRefused([&](auto chains) { return ProjLLPreclipPolygon(handle, nullptr, 3, chains); });
    expectRefused([&](auto chains) { return ProjLLPreclipPolygon(handle, points, 2, chains); });
    expectRefused([&](auto chains) { return ProjLLPreclipPolygon(handle, points, 0, chains); });
    expectRefused([&](auto chains) { return ProjLLPreclipPolygon(handle, points, 3, chains); }, false);
    ProjDeleteProjection(handle);
}

TEST(Preclip, WhatLiesInsideComesBackAsItIs) {
    Points const ring{{170.1, 10.3}, {-170.7, 12.9}, {-175.1, 30.7}, {170.1, 10.3}};
    for (auto const* words :
         {"type=mercator ellipsoid=wgs-84 lon0=180", "type=stereographic ellipsoid=wgs-84 lat0=20 lon0=-170", albers})
        for (Kind const kind : {line, area}) {
            auto const chains = preclip(words, kind, ring);
            if (words == albers) // which ends at the longitude -175
                EXPECT_EQ(chains.size(), kind == line ? 3u : 2u);
            else {
                ASSERT_EQ(chains.size(), 1u);
                EXPECT_TRUE(isSame(chains[0].points, ring));
                EXPECT_EQ(chains[0].isClosed, kind == area);
            }
        }
}

TEST(Preclip, LinesEndOnBothSidesOfTheOppositeMeridian) {
    auto const chains = preclip(sinusoidal, line, {{170, 0}, {-170, 20}, {-160, 20}});
    ASSERT_EQ(chains.size(), 2u);
    ASSERT_EQ(chains[0].points.size(), 2u);
    ASSERT_EQ(chains[1].points.size(), 3u);
    EXPECT_NEAR(chains[0].points[1].x, 180, 2e-9);
    EXPECT_LT(chains[0].points[1].x, 180);
    EXPECT_NEAR(chains[1].points[0].x, -180, 2e-9);
    EXPECT_GT(chains[1].points[0].x, -180);
    EXPECT_NEAR(chains[1].points[0].y, 10, 2e-9);
}

TEST(Preclip, ALongitudeWindowTakesPointsFromTheOtherSideOfTheAntimeridian) {
    auto const chains = preclip(gaussKruger, line, {{100, 50}, {170, 50}, {-140, 50}, {-100, 50}});
    ASSERT_EQ(chains.size(), 1u);
    EXPECT_NEAR(chains[0].points.front().x, -220, 2e-9);
    EXPECT_EQ(chains[0].points[1].x, -190);
    EXPECT_NEAR(chains[0].points.back().x, -130, 2e-9);
}

TEST(Preclip, ARingAroundAPoleIsClosedAlongIt) {
    Points coast;
    for (int lon = -180; lon < 180; lon += 10)
        coast.push_back({double(lon), -70 + 5 * std::sin(lon / 20.0)});
    auto const cylindrical = preclip(sinusoidal, area, coast);
    ASSERT_EQ(cylindrical.size(), 1u);
    double lowest = 0;
    for (auto const& point : cylindrical[0].points)
        lowest = std::fmin(lowest, point.y);
    EXPECT_EQ(lowest, -90);
    EXPECT_EQ(preclip("type=stereographic ellipsoid=wgs-84 lat0=-90", area, coast).size(), 1u);
    // On the map about the other pole it is all that lies beyond the coast: the coast, and the rim of the map.
    auto const beyond = preclip(northernAzimuthal, area, coast);
    ASSERT_EQ(beyond.size(), 2u);
    EXPECT_TRUE(isSame(beyond[0].points, coast));
    EXPECT_EQ(beyond[1].points.size(), 360u);
    EXPECT_NEAR(beyond[1].points[0].y, -90, 2e-6);
    // Seen from far away there is nothing of it.
    EXPECT_TRUE(preclip("type=orthographic ellipsoid=wgs-84 lat0=90", area, coast).empty());
}

TEST(Preclip, AnAreaThatContainsTheWholeMapBecomesItsOutline) {
    Points const world{{-180, -90}, {-60, -90}, {60, -90}, {180, -90}, {180, 90}, {60, 90}, {-60, 90}, {-180, 90}};
    auto const map = preclip("type=mollweide ellipsoid=standard-sphere-of-6370997-meters lon0=-90", area, world);
    ASSERT_EQ(map.size(), 2u); // the world as given has a seam at 180
    Points const most{{-179, -80}, {-60, -80}, {60, -80}, {179, -80}, {179, 80}, {60, 80}, {-60, 80}, {-179, 80}};
    auto const outline = preclip("type=orthographic ellipsoid=standard-sphere-of-6370997-meters", area, most);
    ASSERT_EQ(outline.size(), 1u);
    auto const hemisphere = preclip("type=gnomonic ellipsoid=standard-sphere-of-6370997-meters", area, world);
    ASSERT_EQ(hemisphere.size(), 1u);
    EXPECT_EQ(hemisphere[0].points.size(), 360u);
}

// An area that ends at the meridian where the map does stays on its side, whichever way that longitude is written.
TEST(Preclip, AnAreaMayEndAtTheEdge) {
    for (double const edge : {180.0, -180.0}) {
        auto const box = preclip("type=mollweide ellipsoid=standard-sphere-of-6370997-meters", area,
                                 {{170, 60}, {edge, 60}, {edge, 70}, {170, 70}});
        ASSERT_EQ(box.size(), 1u);
        ASSERT_EQ(box[0].points.size(), 4u);
        for (auto const& point : box[0].points)
            EXPECT_TRUE(point.x == 170 || (point.x > 179.9999 && point.x < 180)) << point.x;
    }
    Points half;
    for (int lat = -80; lat <= 80; lat += 10)
        half.push_back({180, double(lat)});
    for (int lon = 170; lon >= 0; lon -= 10)
        half.push_back({double(lon), 80});
    for (int lat = 70; lat >= -80; lat -= 10)
        half.push_back({0, double(lat)});
    for (int lon = 10; lon <= 170; lon += 10)
        half.push_back({double(lon), -80});
    auto const chains = preclip("type=mollweide ellipsoid=standard-sphere-of-6370997-meters", area, half);
    ASSERT_EQ(chains.size(), 1u);
    EXPECT_EQ(chains[0].points.size(), half.size());
    // An edge of half a turn goes the way that its longitudes say, beside the map's edge too.
    auto const halfTurn = preclip("type=sinusoidal ellipsoid=standard-sphere-of-6370997-meters", Kind::line,
                                  {{-90, 10}, {180, 10}, {0, 10}});
    ASSERT_EQ(halfTurn.size(), 2u);
    EXPECT_EQ(halfTurn[0].points.size(), 2u);
    EXPECT_EQ(halfTurn[1].points.size(), 2u);
    EXPECT_TRUE(
        preclip("type=mollweide ellipsoid=standard-sphere-of-6370997-meters", area, {{180, 5}, {180, 6}, {180, 5}})
            .empty());
    auto const parts = preclip("type=mollweide ellipsoid=standard-sphere-of-6370997-meters", Kind::line,
                               {{170, 0}, {180, 5}, {-170, 0}});
    ASSERT_EQ(parts.size(), 2u);
    EXPECT_EQ(parts[0].points.size(), 2u);
    EXPECT_EQ(parts[1].points.size(), 2u);
}

// What has no width after a cut is no area; a line along the edge stays on the side of its longitude.
TEST(Preclip, PathsAlongTheEdge) {
    for (double const edge : {180.0, -180.0}) {
        auto const along = preclip(sinusoidal, Kind::line, {{edge, 0}, {edge, 10}});
        ASSERT_EQ(along.size(), 1u);
        for (auto const& point : along[0].points)
            EXPECT_NEAR(point.x, edge, 2e-9);
    }
    EXPECT_TRUE(preclip(sinusoidal, area, {{180, 0}, {180, 10}, {-180, 20}}).empty());
    EXPECT_TRUE(preclip(sinusoidal, area, {{-180, -90}, {180, -90}, {180, 90}, {-180, 90}}).empty());
    Points const thin{{5, 0}, {5, 10}, {5, 20}}; // as thin, but not cut
    EXPECT_TRUE(isSame(preclip(sinusoidal, area, thin).at(0).points, thin));
}

// Rings with many points at the cut of an oblique Mercator: they begin on it, go through its end, and
// run around the globe; each is the same when it is cut again.
TEST(Preclip, RingsThatTouchAnObliqueCut) {
    constexpr char oblique[] =
        "type=hotine ellipsoid=standard-sphere-of-6370997-meters lat0=45 alpha=90 use_alpha=1 rotate=1 u_offset=1";
    for (Points const& ring : {Points{{90, 0}, {45, -45}, {45, -90}, {270, -30}},
                               Points{{60, -90}, {0, -45}, {15, -45}}, Points{{180, 45}, {170, 40}, {190, 50}}}) {
        auto const once = preclip(oblique, area, ring);
        ASSERT_EQ(once.size(), 1u);
        EXPECT_LT(once[0].points.size(), 100u);
        auto const twice = preclip(oblique, area, once[0].points);
        ASSERT_EQ(twice.size(), 1u);
        EXPECT_TRUE(isSame(once[0].points, twice[0].points));
    }
}

// A ring around the globe whose first point is as near to a window's edge as rounding: it is on the same side at the
// end.
TEST(Preclip, RingsThatBeginAtAWindowsEdge) {
    Points const ring{{-90.000000000001, -75}, {-60, 45}, {-180, 45}, {60, 30}, {60, -75}};
    for (auto const* words : {"type=polyconic ellipsoid=wgs-84", "type=cassini ellipsoid=wgs-84",
                              "type=transverse-mercator ellipsoid=wgs-84 lon0=-45"})
        for (std::size_t first = 0; first < ring.size(); ++first) {
            auto turned = ring;
            std::rotate(turned.begin(), turned.begin() + std::ptrdiff_t(first), turned.end());
            auto const chains = preclip(words, area, turned);
            EXPECT_FALSE(chains.empty()) << words;
            for (auto const& chain : chains)
                EXPECT_LT(chain.points.size(), 1000u);
        }
    EXPECT_FALSE(
        preclip(
            "type=cassini ellipsoid=standard-sphere-of-6370997-meters", area,
            {{90.000000000001, -14.999999999}, {60, -90}, {-1e-12, 60}, {-135.000000001, -90}, {-179.999999999, 45}})
            .empty());
    auto const line = preclip(sinusoidal, Kind::line, {{0.1, 0}, {120, 0}, {-120, 0}, {0.1, 1}});
    EXPECT_EQ(line.back().points.back().x, 0.1); // once around, and the same
}

// A ring that meets the edge in few points, one of them where half of the edge lies to either side.
TEST(Preclip, ASegmentThroughTheMiddleOfTheMapsEdge) {
    auto const triangle = preclip("type=albers ellipsoid=wgs-84 lat1=20 lat2=60 lon0=-90", area,
                                  {{135.000000000001, 45.000000002}, {89.999999998999996, 1e-9}, {180.000000001, -90}});
    ASSERT_EQ(triangle.size(), 1u);
    EXPECT_LE(triangle[0].points.size(), 4u);
}

TEST(Preclip, PointsThatAreNotGeographic) {
    auto const broken =
        preclip(sinusoidal, line, {{0, 0}, {1, 1}, {none, 1}, {2, 2}, {DBL_MAX, DBL_MAX}, {3, 3}, {4, 4}});
    ASSERT_EQ(broken.size(), 2u);
    EXPECT_TRUE(isSame(broken[0].points, {{0, 0}, {1, 1}}));
    EXPECT_TRUE(isSame(broken[1].points, {{3, 3}, {4, 4}}));
    auto const ring = preclip(sinusoidal, area, {{0, 0}, {1, -91}, {1, 1}, {INFINITY, 1}, {0, 1}, {0, 1e300}});
    ASSERT_EQ(ring.size(), 1u);
    EXPECT_TRUE(isSame(ring[0].points, {{0, 0}, {1, 1}, {0, 1}}));
    EXPECT_TRUE(preclip(sinusoidal, area, {{0, 0}, {none, none}, {1, 1}}).empty());
}

TEST(Preclip, NoMapNoChains) {
    EXPECT_TRUE(
        preclip("type=lambert-conformal-conic ellipsoid=wgs-84 lat1=30 lat2=-30", line, {{0, 0}, {1, 1}}).empty());
    PROJDATA record{};
    void* const unprojected = ProjCreateProjection(&record);
    PROJPOINT const points[2] = {{0, 0}, {1, 1}};
    CPROJCHAIN* chains = nullptr;
    EXPECT_FALSE(ProjLLPreclipPolyline(unprojected, points, 2, &chains));
    ProjDeleteProjection(unprojected);
}

TEST(Preclip, LeavesTheFloatingPointEnvironmentAlone) {
    PROJDATA record = recordOf(orthographic);
    CProjector projector(&record);
    PROJPOINT const points[4] = {{none, 0}, {0, 0}, {170, 1e-310}, {1, 90}};
    CPROJCHAIN* chains = nullptr;
    {
        TrapsEnabled const traps;
        EXPECT_TRUE(projector.LLPreclipPolygon(points, 4, &chains));
        EXPECT_TRUE(traps.untouched());
    }
    ProjFreeChains(chains);
}

// Under the address sanitizer a piece left behind, or freed twice, is a failure.
TEST(Preclip, FreesAWholeList) {
    CPROJCHAIN* chains = nullptr;
    for (int i = 0; i < 200000; ++i)
        chains = new CPROJCHAIN{1, i % 2 ? new PROJPOINT[1] : nullptr, false, chains};
    ProjFreeChains(chains);
    ProjFreeChains(nullptr);
}
