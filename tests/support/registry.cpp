#include "support/registry.h"

#include "support/cases.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <limits>
#include <random>

namespace ZrProj::test {
namespace {

// Ellipsoid 47 is WGS 84, 48 the sphere of 6370997 metres, 49 the unit sphere, 3 GRS 1980, 15 Clarke 1866.
// clang-format off
constexpr char const* sets[] = {
    "type=1 ellipsoid=47",
    "type=1 ellipsoid=47 lon0=179.5 lat0=-42",
    "type=1 ellipsoid=48 lon0=-100 lat0=30",
    "type=1 ellipsoid=15 lon0=-180 x0=2000000 y0=-500000 scale=2.5",
    "type=1 radius=3396190 rf=50 lon0=10",
    "type=2 ellipsoid=15 lat1=29.5 lat2=45.5 lat0=23 lon0=-96",
    "type=2 ellipsoid=47 lat1=-18 lat2=-36 lon0=132",
    "type=2 ellipsoid=48 lat1=60 lat2=20 lat0=40 lon0=178",
    "type=2 ellipsoid=47 lat1=-10 lat2=40 lat0=-90 lon0=-179",
    "type=2 ellipsoid=47 lat1=1 lat2=-0.9 lon0=20",
    "type=2 ellipsoid=47 lat1=90 lat2=30 lat0=90 lon0=-20",
    "type=2 ellipsoid=3 lat1=34 lat2=40.5 lon0=-120 y0=-4000000 x0=100000 scale=0.5",
    "type=3 ellipsoid=48",
    "type=3 ellipsoid=47 lon0=-179.9 x0=1e6 y0=1e6 scale=3",
    "type=4 ellipsoid=47 lon0=-81",
    "type=4 ellipsoid=47 lon0=177 south=1",
    "type=4 ellipsoid=48 lon0=3 lat0=40 scale=0.001",
    "type=5 ellipsoid=15 lat1=33 lat2=45 lat0=23 lon0=-96",
    "type=5 ellipsoid=47 lat1=-28 lat2=-36 lat0=-32 lon0=179",
    "type=5 ellipsoid=48 lat1=45 lat2=33 lat0=40 lon0=-180",
    "type=5 ellipsoid=47 lat1=-20 lat2=60 lon0=15",
    "type=5 ellipsoid=47 lat1=1 lat2=-0.8 lon0=15",
    "type=5 ellipsoid=35 lat1=85 lat2=70 lat0=89 lon0=100 x0=3e6 y0=3e6 scale=0.1",
    "type=6 ellipsoid=47 lon0=-75",
    "type=6 ellipsoid=15 lat0=40 lon0=-100 k0=0.9999",
    "type=6 ellipsoid=47 lat0=-52.15616 lon0=179 k0=0.9999079 x0=155000 y0=463000 scale=2",
    "type=6 ellipsoid=47 lat0=90 k0=0.994 x0=2e6 y0=2e6",
    "type=6 ellipsoid=34 lat0=-90 lon0=-100",
    "type=6 ellipsoid=47 lat0=89.999 lon0=30",
    "type=6 ellipsoid=48 lat0=40 lon0=-180",
    "type=6 ellipsoid=48 lat0=-90 lon0=20 k0=0.97",
    "type=7 ellipsoid=47 lat0=55 lon0=5",
    "type=7 ellipsoid=47 lon0=180",
    "type=7 ellipsoid=47 lat0=90 lon0=-30",
    "type=7 ellipsoid=47 lat0=-90 lon0=60",
    "type=7 ellipsoid=48 lat0=-40 lon0=100 x0=1e6 y0=2e6 scale=0.25",
    "type=7 ellipsoid=48 lat0=90",
    "type=8 ellipsoid=48",
    "type=8 ellipsoid=47 lon0=179 x0=1e6 y0=-1e6 scale=2",
    "type=8 ellipsoid=49 lon0=-90",
    "type=9 ellipsoid=15 zone=0",
    "type=9 ellipsoid=15 zone=109",
    "type=9 ellipsoid=15 zone=34",
    "type=9 ellipsoid=15 zone=65",
    "type=10 ellipsoid=3 zone=2",
    "type=10 ellipsoid=3 zone=18 scale=3.2808333333333333",
    "type=10 ellipsoid=3 zone=9",
    "type=11 ellipsoid=15 lat0=30 lon0=-96",
    "type=11 ellipsoid=47 lon0=-179",
    "type=11 ellipsoid=48 lat0=-20 lon0=130 x0=5e6 y0=1e7 scale=0.1",
    "type=12 ellipsoid=24 lat0=4 lon1=115 usealpha=1 alpha=53.3158204722222222 k0=0.99984 rotate=1",
    "type=12 ellipsoid=24 lat0=4 lon0=115 usealpha=1 alpha=53.3158204722222222 k0=0.99984 rotate=1 uoffset=1 x0=590476.87 y0=442857.65",
    "type=12 ellipsoid=47 lat0=-45 lon1=179 usealpha=1 alpha=-120 uoffset=1 scale=2",
    "type=12 ellipsoid=47 lat0=-45 lon1=-30 usealpha=1 alpha=30",
    "type=12 ellipsoid=47 lat0=20 lon0=10 usealpha=1 alpha=90 rotate=1 uoffset=1",
    "type=12 ellipsoid=48 lat0=36 lon1=-77.76 usealpha=1 alpha=14.3 rotate=1 k0=0.9996",
    "type=12 ellipsoid=48 lon1=40 usealpha=1 alpha=60 rotate=1 uoffset=1",
    "type=12 ellipsoid=15 lat0=40 lat1=47.5 lon1=-122.3 lat2=25.7 lon2=-80.2 k0=0.9996 rotate=1 uoffset=1",
    "type=12 ellipsoid=47 lat0=-10 lat1=-30 lon1=170 lat2=15 lon2=-165 rotate=1",
    "type=12 ellipsoid=48 lat0=45 lat1=30 lon1=-100 lat2=60 lon2=-30",
    "type=13 ellipsoid=47",
    "type=13 ellipsoid=47 lat1=-40 lon0=179.5 x0=1e6 y0=1e6 scale=0.5",
    "type=13 ellipsoid=48 lat1=60 lon0=-180",
    "type=14 ellipsoid=48",
    "type=14 ellipsoid=47 x0=2e6 y0=-1e6 scale=4",
    "type=15 ellipsoid=48",
    "type=15 ellipsoid=47 lon0=-179 x0=1e7 y0=1e7 scale=0.1",
    "type=16 ellipsoid=15 lat0=10.44166667 lon0=-61.33333333 x0=86501.46 y0=65379.01",
    "type=16 ellipsoid=47 lat0=-90 lon0=179",
    "type=16 ellipsoid=48 lat0=-30 lon0=12 scale=2",
    "type=17 ellipsoid=5 lat0=49 lon0=-2 k0=0.9996012717 x0=400000 y0=-100000",
    "type=17 ellipsoid=48 lat0=-30 lon0=150",
    "type=17 ellipsoid=47 lon0=-180 scale=0.5",
    "type=18 ellipsoid=35 lon0=21 x0=7500000",
    "type=18 ellipsoid=47 lat0=-90 lon0=179",
    "type=19 ellipsoid=47 lon0=-90",
    "type=19 ellipsoid=48 lon0=180",
    "type=19 ellipsoid=47 lon0=179 x0=1e6 y0=2e6 scale=5",
    "type=20 ellipsoid=3 lat1=52 lon0=10 x0=4321000 y0=3210000",
    "type=20 ellipsoid=47 lon0=180",
    "type=20 ellipsoid=47 lat1=90 lon0=-45",
    "type=20 ellipsoid=47 lat1=-90 lon0=170 scale=0.5",
    "type=20 ellipsoid=48 lat1=-30 lon0=-179",
    "type=20 ellipsoid=48 lat1=-90 lon0=20",
    "type=20 ellipsoid=47 lat1=-89.999 lon0=20",
    "type=21 ellipsoid=15 lat1=40 lon0=-75",
    "type=21 ellipsoid=47 lat1=-30 lon0=179 x0=1e6 y0=1e6 scale=2",
    "type=21 ellipsoid=47 lat1=90 lon0=20",
    "type=21 ellipsoid=48 lat1=-90 lon0=-180",
    "type=21 ellipsoid=48 lat1=1 lon0=100",
    "type=22 ellipsoid=48",
    "type=22 ellipsoid=47 lon0=-179 x0=2e6 y0=-1e6 scale=4",
    "type=23 ellipsoid=48 lon0=-90",
    "type=23 ellipsoid=47 lon0=180 x0=2e6 y0=-1e6 scale=4",
    "type=24 ellipsoid=48 lon0=-90",
    "type=24 ellipsoid=47 lon0=180 x0=2e6 y0=-1e6 scale=4",
    "type=25 ellipsoid=48 lat1=20 lon1=-100 lat2=40 lon2=-60",
    "type=25 ellipsoid=47 lat1=-30 lon1=170 lat2=10 lon2=-160 k0=0.9996 x0=1e6 y0=2e6",
    "type=25 ellipsoid=48 lat1=50 lon1=10 lat2=-20 lon2=-90 scale=2",
    "type=26 ellipsoid=15 lat1=29.5 lat2=45.5 lat0=23 lon0=-96",
    "type=26 ellipsoid=47 lat1=-60 lat2=-15 lat0=-90 lon0=179",
    "type=26 ellipsoid=48 lat1=20 lat2=60 lat0=40 lon0=-180",
    "type=26 ellipsoid=47 lat1=1 lat2=-0.9 lon0=0",
    "type=26 ellipsoid=47 lat1=90 lat2=40 lat0=60 lon0=77 x0=1e6 y0=1e6 scale=0.01",
    "type=27 ellipsoid=48 lat1=40 lon0=-100",
    "type=27 ellipsoid=47 lon0=180",
    "type=27 ellipsoid=48 lat1=90 lon0=20",
    "type=27 ellipsoid=48 lat1=-90 lon0=-20 x0=1e6 y0=1e6 scale=2",
    "type=28 ellipsoid=47 lat1=40 lon0=-100",
    "type=28 ellipsoid=47 lon0=180",
    "type=28 ellipsoid=47 lat1=90 lon0=20",
    "type=28 ellipsoid=47 lat1=-90 lon0=-20 x0=1e6 y0=1e6 scale=2",
    "type=28 ellipsoid=48 lat1=-33 lon0=151",
    "type=28 ellipsoid=15 lat1=13.4724663527777778 lon0=144.7487507055555556 x0=50000 y0=50000",
};

constexpr char const* oddSets[] = {
    "type=1 ellipsoid=47 lat0=100",
    "type=1 radius=6378137 flattening=0.5",
    "type=2 ellipsoid=47 lat1=100 lat2=45",
    "type=2 ellipsoid=47 lat1=90 lat2=-80",
    "type=2 radius=6378137 flattening=0.9 lat1=30 lat2=60",
    "type=5 ellipsoid=47 lat1=30 lat2=-30",
    "type=5 ellipsoid=47 lat1=90 lat2=60",
    "type=5 ellipsoid=47 lat1=90 lat2=-90",
    "type=5 ellipsoid=47 lat1=-90 lat2=45",
    "type=5 ellipsoid=47 lat1=100 lat2=45",
    "type=5 ellipsoid=47 lat1=30 lat2=60 lat0=-90",
    "type=5 ellipsoid=48 lat1=90 lat2=-45 lat0=90",
    "type=5 radius=6378137 flattening=0.999 lat1=30 lat2=60",
    "type=6 ellipsoid=47 lat0=120",
    "type=6 ellipsoid=47 lat0=-359",
    "type=6 radius=6378137 flattening=0.5 lat0=40",
    "type=7 ellipsoid=47 lat0=120",
    "type=7 radius=6378137 flattening=0.5 lat0=40",
    "type=9 ellipsoid=15 zone=138",
    "type=9 ellipsoid=15 zone=139",
    "type=9 ellipsoid=15 zone=140",
    "type=9 ellipsoid=15 zone=141",
    "type=10 ellipsoid=15 zone=138",
    "type=11 ellipsoid=47 lat0=100",
    "type=11 radius=6378137 flattening=0.5",
    "type=12 ellipsoid=47",
    "type=12 ellipsoid=47 lat0=90 usealpha=1 alpha=30",
    "type=12 ellipsoid=47 lat0=30 usealpha=1 alpha=180 rotate=1",
    "type=12 ellipsoid=47 lat0=30 usealpha=1 alpha=1e-9",
    "type=12 ellipsoid=47 lat0=80 lat1=10 lon1=10 lat2=20 lon2=60",
    "type=12 ellipsoid=47 lat0=10 lat1=10 lon1=10 lat2=10 lon2=10",
    "type=12 ellipsoid=47 lat0=10 lat1=10 lon1=10 lat2=40 lon2=10",
    "type=12 ellipsoid=47 lat0=10 lat1=90 lon1=10 lat2=40 lon2=20",
    "type=12 ellipsoid=48 lat0=10 lat1=-30 lon1=10 lat2=30 lon2=-170",
    "type=13 ellipsoid=47 lat1=90",
    "type=13 ellipsoid=47 lat1=120",
    "type=13 radius=6378137 flattening=0.5",
    "type=16 ellipsoid=47 lat0=100",
    "type=16 radius=6378137 flattening=0.5",
    "type=19 radius=6378137 flattening=0.5",
    "type=20 ellipsoid=47 lat1=100",
    "type=20 radius=6378137 flattening=0.5 lat1=40",
    "type=21 ellipsoid=47 lat1=100",
    "type=21 ellipsoid=47 lat1=1e-9",
    "type=21 ellipsoid=47 lat1=180",
    "type=21 radius=6378137 flattening=0.5 lat1=40",
    "type=25 ellipsoid=48 lat1=40 lon1=10 lat2=-40 lon2=-170",
    "type=25 ellipsoid=48 lat1=40 lon1=10 lat2=30 lon2=10",
    "type=25 ellipsoid=48 lat1=40 lon1=10 lat2=90 lon2=10",
    "type=25 ellipsoid=48 lat1=100 lon1=10 lat2=20 lon2=10",
    "type=26 ellipsoid=47 lat1=90 lat2=-80",
    "type=26 ellipsoid=47 lat1=100 lat2=40",
    "type=26 radius=6378137 flattening=0.5 lat1=30 lat2=60",
    "type=27 ellipsoid=48 lat1=100",
    "type=28 ellipsoid=47 lat1=100",
    "type=28 radius=6378137 flattening=0.5 lat1=40",
};
// clang-format on

/// Where the projection is centred: longitude and latitude.
PROJPOINT centreOf(PROJDATA const& r) {
    switch (r.Type) {
    case ProjTypeHotineObliqueMercator:
        return {r.bUseAlpha && r.Lon1 == 0 ? +r.Lon0 : +r.Lon1, r.Lat0};
    case ProjTypeObliqueMercator:
        return {r.Lon1, r.Lat1};
    case ProjTypeLambertAzimuthalEqualArea:
    case ProjTypeGnomonic:
    case ProjTypeAzimuthalEquidistant:
        return {r.Lon0, r.Lat1};
    default:
        return {r.Lon0, r.Lat0};
    }
}

bool isGeographic(PROJPOINT const& p) {
    return std::fabs(p.x) <= 360 && std::fabs(p.y) <= 90;
}

/// Every longitude with every latitude that is delicate.
void addGrid(std::vector<PROJPOINT>& points, PROJDATA const& r) {
    std::vector<double> lons{0.0, -0.0, 180, -180, 360, -360, 270, -270};
    for (double const step : {0.0, 1e-9, 1e-3, 0.7, 3.0, 29.0, 44.9, 60.0, 89.999999, 90.0, 135.0, 179.0, 179.999999})
        for (double const sign : {-1, 1})
            lons.push_back(r.Lon0 + sign * step);
    lons.push_back(r.Lon0 + 180);
    lons.push_back(r.Lon0 - 180);
    std::vector<double> lats{0.0, -0.0, r.Lat0, r.Lat1, r.Lat2, -r.Lat0, -r.Lat1, -r.Lat2};
    for (double const lat :
         {1e-300, 1e-9, 0.3, 12.3, 35.2643897, 45.0, 66.5, 80.0, 89.0, 89.99, 89.99999, 89.9999999, 90.0})
        for (double const sign : {-1, 1})
            lats.push_back(sign * lat);
    for (double const lon : lons)
        for (double const lat : lats)
            points.push_back({lon, lat});
}

/// The point, and what lies east, west, north and south of it.
std::vector<PROJPOINT> around(PROJPOINT const& p, double degrees) {
    double const north = std::min(p.y + degrees, 90.0), south = std::max(p.y - degrees, -90.0);
    return {p, {p.x + degrees, p.y}, {p.x - degrees, p.y}, {p.x, north}, {p.x, south}};
}

/// What lies closely about a point, and about its antipode.
void addNeighbours(std::vector<PROJPOINT>& points, PROJPOINT centre) {
    PROJPOINT const antipode{centre.x > 0 ? centre.x - 180 : centre.x + 180, -centre.y};
    for (auto const& p : {centre, antipode})
        for (double const step : {0.0, 1e-12, 1e-9, 1e-6, 1e-3, 0.1})
            for (auto const [east, north] : {PROJPOINT{1, 0}, {-1, 0}, {0, 1}, {0, -1}, {1, 1}, {-1, 1}})
                points.push_back({p.x + step * east, p.y + step * north});
    std::mt19937_64 random(24);
    std::uniform_real_distribution<double> beside(-1, 1);
    for (int i = 0; i < 300; ++i)
        points.push_back({antipode.x + beside(random), antipode.y + beside(random)});
}

} // namespace

Projection::Projection(std::string const& words) : words_(words), record_(recordOf(words)), projector_(&record_) {
    EXPECT_TRUE(projector_.GetInfo(&record_)) << words;
    if (record_.Type == ProjTypeStatePlane1927 || record_.Type == ProjTypeStatePlane1983)
        ProjGetStateZoneParams(&record_);
}

std::vector<PROJPOINT> Projection::forward(std::vector<PROJPOINT> points) {
    EXPECT_TRUE(points.empty() || tryForward(points)) << words_;
    return points;
}

std::vector<PROJPOINT> Projection::inverse(std::vector<PROJPOINT> points) {
    EXPECT_TRUE(points.empty() || tryInverse(points)) << words_;
    return points;
}

std::vector<PROJPOINT> Projection::samples() const {
    std::vector<PROJPOINT> points;
    addGrid(points, record_);
    addNeighbours(points, centreOf(record_));
    std::mt19937_64 random(20);
    std::uniform_real_distribution<double> lon(-180, 180), lat(-90, 90), near(-3, 3);
    for (int i = 0; i < 1000; ++i) {
        points.push_back({lon(random), lat(random)});
        points.push_back({record_.Lon0 + near(random), lat(random)});
    }
    for (double east = -180; east < 180; east += 0.125) // no meridian is far from one of these
        points.push_back({east, 75 * std::sin(east)});
    std::erase_if(points, [](PROJPOINT const& p) { return !isGeographic(p); });
    return points;
}

std::vector<PROJPOINT> Projection::samplesInRange() {
    auto points = samples();
    std::erase_if(points, [this](PROJPOINT const& p) { return !isInRange(p); });
    return points;
}

double Projection::mapMove(PROJPOINT const& point, double degrees) {
    auto const map = forward(around(point, degrees));
    auto const move = [&](std::size_t to) {
        return isMarked(map[to]) ? 0 : std::hypot(map[to].x - map[0].x, map[to].y - map[0].y);
    };
    return std::max({std::min(move(1), move(2)), move(3), move(4)});
}

bool Projection::isBesideUnplottable(PROJPOINT const& point, double degrees) {
    return std::ranges::any_of(forward(around(point, degrees)), isMarked);
}

std::vector<std::string> parameterSets(ProjType type) {
    std::vector<std::string> result;
    for (std::string const words : sets)
        if (recordOf(words).Type == type)
            result.push_back(words);
    EXPECT_FALSE(result.empty()) << type;
    return result;
}

std::vector<std::string> oddParameterSets() {
    return {std::begin(oddSets), std::end(oddSets)};
}

bool isMarked(PROJPOINT const& point) {
    return point.x == DBL_MAX && point.y == DBL_MAX;
}

double longitudesApart(double a, double b) {
    return std::fabs(std::remainder(a - b, 360));
}

std::vector<ProjType> projectingTypes() {
    std::vector<ProjType> types;
    for (int type = ProjTypeMercator; type < ProjNumProjections(); ++type)
        types.push_back(ProjType(type));
    return types;
}

} // namespace ZrProj::test
