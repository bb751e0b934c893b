// What a projection keeps, confirmed by numerical differentiation: angles, areas, distances.
#include "support/faults.h"
#include "support/levels.h"
#include "support/registry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>
#include <string_view>

using namespace ZrProj;
using test::Faults;
using test::Projection;

namespace {

constexpr double degree = std::numbers::pi / 180;

/// A step on the map or on the ground.
struct Vector {
    double x, y;

    friend Vector operator-(Vector a, Vector b) { return {a.x - b.x, a.y - b.y}; }
    friend Vector operator*(double s, Vector a) { return {s * a.x, s * a.y}; }
};

double dot(Vector a, Vector b) {
    return a.x * b.x + a.y * b.y;
}
double cross(Vector a, Vector b) {
    return a.x * b.y - a.y * b.x;
}
double length(Vector a) {
    return std::hypot(a.x, a.y);
}

/// The figure that the type projects from.
bool isSpherical(ProjType type) {
    switch (type) {
    case ProjTypeMollweide:
    case ProjTypeEckertIV:
    case ProjTypeEckertVI:
    case ProjTypeObliqueMercator:
        return true;
    default:
        return false;
    }
}

/// The lengths on the ground of a radian of longitude and of latitude.
Vector groundPerRadian(PROJDATA const& record, double lat) {
    double const f = isSpherical(record.Type) ? 0 : +record.Flattening, e2 = f * (2 - f);
    double const sine = std::sin(lat * degree), w = std::sqrt(1 - e2 * sine * sine);
    return {record.MajorRadius / w * std::cos(lat * degree), record.MajorRadius * (1 - e2) / (w * w * w)};
}

/// The change along a line at(t) at t = 0, to the fourth order in the step.
template <class Line> Vector derivative(Line const& at, double step) {
    return 1 / (12 * step) * (8 * (at(step) - at(-step)) - (at(2 * step) - at(-2 * step)));
}

/// Steps on the map for a metre on the ground to the east and to the north, at scale 1.
struct MapSteps {
    Vector east, north;
};

MapSteps mapSteps(Projection& projection, PROJPOINT const& at) {
    constexpr double step = 0.02 * degree;
    auto const map = [&](double lon, double lat) {
        auto const p = projection.forward(PROJPOINT{at.x + lon / degree, at.y + lat / degree});
        return Vector{p.x, p.y};
    };
    auto const ground = groundPerRadian(projection.record(), at.y);
    double const scale = projection.record().Scale;
    return {1 / (ground.x * scale) * derivative([&](double t) { return map(t, 0); }, step),
            1 / (ground.y * scale) * derivative([&](double t) { return map(0, t); }, step)};
}

/// Steps on the ground (east, north) for a metre on the map along x and along y, at scale 1.
struct GroundSteps {
    Vector x, y;
};

GroundSteps groundSteps(Projection& projection, PROJPOINT const& at) {
    double const step = projection.mapLength(2000);
    auto const centre = projection.inverse(at);
    auto const ground = groundPerRadian(projection.record(), centre.y);
    auto const offset = [&](double x, double y) {
        auto const p = projection.inverse(PROJPOINT{at.x + x, at.y + y});
        return Vector{std::remainder(p.x - centre.x, 360) * degree * ground.x, (p.y - centre.y) * degree * ground.y};
    };
    double const scale = projection.record().Scale;
    return {scale * derivative([&](double t) { return offset(t, 0); }, step),
            scale * derivative([&](double t) { return offset(0, t); }, step)};
}

/// Points away from the poles and the edges, where a degree is no more than twenty times as long as on the ground.
std::vector<PROJPOINT> smoothPoints(Projection& projection, double reach) {
    std::mt19937_64 random(23);
    std::uniform_real_distribution<double> east(-reach, reach), lat(-80, 80);
    std::vector<PROJPOINT> points;
    for (int tries = 0; tries < 300; ++tries) {
        PROJPOINT const point{projection.record().Lon0 + east(random), lat(random)};
        constexpr double step = 0.05;
        if (projection.isInRange(point) && projection.mapMove(point, step) < projection.mapLength(step * 20 * 111e3))
            points.push_back(point);
    }
    EXPECT_GT(points.size(), 30U) << projection.words();
    return points;
}

template <class Check> void forEachSet(std::vector<std::string> const& sets, Check const& check) {
    test::forEachLevel([&](levels::Level) {
        for (auto const& words : sets) {
            Projection projection(words);
            check(projection);
        }
    });
}

template <class Check> void forEachProjection(std::initializer_list<ProjType> types, Check const& check) {
    for (auto const type : types)
        forEachSet(test::parameterSets(type), check);
}

/// The same for formulas that only systems reach, by their methods.
template <class Check> void forEachFormula(std::initializer_list<std::string_view> methods, Check const& check) {
    for (auto const method : methods) {
        auto sets = test::formulaParameterSets();
        std::erase_if(
            sets, [&](std::string const& words) { return !words.starts_with("method=" + std::string(method) + ' '); });
        EXPECT_FALSE(sets.empty()) << method;
        forEachSet(sets, check);
    }
}

void expectConformal(Projection& projection, double reach, double tolerance) {
    // The line's own coordinates u, v are a mirror image.
    bool const mirrored = projection.record().Type == ProjTypeHotineObliqueMercator && !projection.record().bRotate;
    Faults faults(projection.words());
    for (auto const& point : smoothPoints(projection, reach)) {
        auto const [east, north] = mapSteps(projection, point);
        Vector const turned = mirrored ? Vector{east.y, -east.x} : Vector{-east.y, east.x};
        if (double const off = length(turned - north) / length(north); !(off <= tolerance))
            faults.add(point, " is off by ", off);
    }
}

void expectEqualArea(Projection& projection) {
    Faults faults(projection.words());
    for (auto const& point : smoothPoints(projection, 170)) {
        auto const [east, north] = mapSteps(projection, point);
        if (double const off = cross(east, north) - 1; !(std::fabs(off) <= 1e-8))
            faults.add(point, " is off by ", off);
    }
}

/// Whether the vector is one metre long and stands across the other one.
void expectUnitAcross(Faults& faults, PROJPOINT const& at, Vector unit, Vector across) {
    double const off = length(unit) - 1, slant = dot(unit, across) / length(across);
    if (!(std::fabs(off) <= 1e-8 && std::fabs(slant) <= 1e-8))
        faults.add("map ", at, " is off by ", off, ", slanted by ", slant);
}

} // namespace

TEST(Distortion, ConformalProjectionsKeepAngles) {
    forEachProjection({ProjTypeMercator, ProjTypeLambertConformalConic, ProjTypeStereographic,
                       ProjTypeHotineObliqueMercator, ProjTypeObliqueMercator},
                      [](Projection& projection) { expectConformal(projection, 170, 1e-8); });
    forEachProjection({ProjTypeTransverseMercator},
                      [](Projection& projection) { expectConformal(projection, 3, 1e-7); });
}

TEST(Distortion, ConformalFormulasKeepAngles) {
    forEachFormula({"gauss-schreiber", "hotine", "krovak", "laborde", "oblique-stereographic"},
                   [](Projection& projection) { expectConformal(projection, 60, 1e-8); });
    forEachFormula({"transverse-mercator-exact"},
                   [](Projection& projection) { expectConformal(projection, 40, 1e-8); });
}

TEST(Distortion, EqualAreaProjectionsKeepAreas) {
    forEachProjection({ProjTypeAlbersEqualAreaConic, ProjTypeMollweide, ProjTypeSinusoidal,
                       ProjTypeLambertAzimuthalEqualArea, ProjTypeBonne, ProjTypeEckertIV, ProjTypeEckertVI},
                      expectEqualArea);
    forEachFormula({"cylindrical-equal-area", "equal-earth"}, expectEqualArea);
}

TEST(Distortion, EquidistantCylindricalAndConicKeepMeridiansAndTheirParallels) {
    forEachProjection({ProjTypeEquidistantCylindrical, ProjTypeEquidistantConic}, [](Projection& projection) {
        Faults faults(projection.words());
        auto const& record = projection.record();
        auto const isTrue = [](Vector step) { return std::fabs(length(step) - 1) <= 1e-8; };
        for (auto const& point : smoothPoints(projection, 170)) {
            if (!isTrue(mapSteps(projection, point).north))
                faults.add(point, " is off by ", length(mapSteps(projection, point).north) - 1);
            for (double const parallel :
                 {+record.Lat1, record.Type == ProjTypeEquidistantConic ? +record.Lat2 : +record.Lat1})
                if (PROJPOINT const at{point.x, parallel};
                    std::fabs(parallel) < 89 && !isTrue(mapSteps(projection, at).east))
                    faults.add(at, " is off by ", length(mapSteps(projection, at).east) - 1, " along the parallel");
        }
    });
}

// Straight lines through the centre are true to length, and cross the circles about it at right angles: by Gauss's
// lemma they are geodesics.
TEST(Distortion, AzimuthalEquidistantKeepsDistancesFromItsCentre) {
    forEachProjection({ProjTypeAzimuthalEquidistant}, [](Projection& projection) {
        Faults faults(projection.words());
        auto const& record = projection.record();
        for (double distance = 1e5; distance < 1.6e7; distance += 7e5)
            for (double azimuth = 0.1; azimuth < 6.28; azimuth += 0.3) {
                Vector const outward{std::sin(azimuth), std::cos(azimuth)};
                double const radius = projection.mapLength(distance);
                PROJPOINT const at{record.xOrg * record.Scale + radius * outward.x,
                                   record.yOrg * record.Scale + radius * outward.y};
                auto const ground = groundSteps(projection, at);
                if (std::fabs(projection.inverse(at).y) > 85)
                    continue;
                auto const along = [&](Vector d) { return d.x * ground.x - -d.y * ground.y; };
                expectUnitAcross(faults, at, along(outward), along({-outward.y, outward.x}));
            }
    });
}

// The central meridian is true to length, and so are the lines along x, which cross those along y at right angles: they
// are the geodesics that leave the central meridian at right angles.
TEST(Distortion, CassiniKeepsDistancesFromTheCentralMeridian) {
    forEachProjection({ProjTypeCassini}, [](Projection& projection) {
        Faults faults(projection.words());
        auto const& record = projection.record();
        for (double lat = -75; lat <= 75; lat += 5) {
            auto const meridian = projection.forward(PROJPOINT{record.Lon0, lat});
            expectUnitAcross(faults, meridian, groundSteps(projection, meridian).y, {1, 0});
            for (double x = -3e5; x <= 3e5; x += 6e4) {
                PROJPOINT const at{meridian.x + projection.mapLength(x), meridian.y};
                auto const ground = groundSteps(projection, at);
                expectUnitAcross(faults, at, ground.x, ground.y);
            }
        }
    });
}
