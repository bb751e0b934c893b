#include "support/registry.h"

#include "host/fpenv.h"
#include "levels/level.h"
#include "proj/projection_table.h"
#include "support/words.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <random>

namespace ZrProj::test {
namespace {

/// The parameter sets of a file.
std::vector<std::string> sweepsOf(std::filesystem::path const& file) {
    std::ifstream in(file);
    std::vector<std::string> sets;
    for (std::string line; std::getline(in, line);)
        if (line.starts_with("sweep |"))
            sets.push_back(fieldsOf(line).at(1));
    return sets;
}

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

Projection::Projection(std::string const& words) : words_(words), record_(recordOf(words)) {
    if (auto const given = formulaOf(words)) {
        direct_ = Direct{formulas::formulaOf(given->method).value(), given->parameters, {}};
        auto& converter = direct_->converter;
        converter.xOrg = given->x0;
        converter.yOrg = given->y0;
        converter.scale = given->scale;
        direct_->formula.prepare(converter, inRadians(given->parameters));
        return;
    }
    EXPECT_TRUE(projector_.Create(&record_) && projector_.GetInfo(&record_)) << words;
    if (record_.Type == ProjTypeStatePlane1927 || record_.Type == ProjTypeStatePlane1983)
        ProjGetStateZoneParams(&record_);
}

bool Projection::Direct::run(formulas::Converter::Direction direction, std::span<PROJPOINT> points) {
    if (!(converter.*direction)) {
        std::ranges::fill(points, PROJPOINT{DBL_MAX, DBL_MAX});
        return true;
    }
    auto const convert = [&] {
        return converter.convert(direction, levels::pointsOf(points.data(), points.size()), {.keepsMarked = true});
    };
    return !withDefaultFloatingPoint(convert).failed;
}

bool Projection::tryForward(std::span<PROJPOINT> points) {
    return direct_ ? direct_->run(&formulas::Converter::forward, points)
                   : projector_.Forward(points.data(), int(points.size()));
}

bool Projection::tryInverse(std::span<PROJPOINT> points) {
    return direct_ ? direct_->run(&formulas::Converter::inverse, points)
                   : projector_.Inverse(points.data(), int(points.size()));
}

bool Projection::isInRange(PROJPOINT const& point) {
    if (direct_)
        return direct_->converter.forward && isGeographic(point) &&
               direct_->formula.inProjection(direct_->parameters, point);
    return projector_.LLInProjection(&point);
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
    auto const sets = sweepsOf(std::string(ZRPROJ_TEST_DATA "/projections/") + projectionRow(type)->key + ".txt");
    EXPECT_FALSE(sets.empty()) << type;
    return sets;
}

std::vector<std::string> formulaParameterSets() {
    std::vector<std::string> sets;
    for (auto const& entry : std::filesystem::directory_iterator(ZRPROJ_TEST_DATA "/projections"))
        if (entry.path().extension() == ".txt")
            std::ranges::copy(sweepsOf(entry.path()), std::back_inserter(sets));
    std::erase_if(sets, [](std::string const& words) { return !words.starts_with("method="); });
    std::ranges::sort(sets);
    EXPECT_FALSE(sets.empty());
    return sets;
}

std::vector<std::string> oddParameterSets() {
    std::ifstream in(ZRPROJ_TEST_DATA "/projections/odd.sets");
    std::vector<std::string> sets;
    for (std::string line; std::getline(in, line);)
        if (!line.starts_with('#'))
            sets.push_back(line);
    EXPECT_FALSE(sets.empty());
    return sets;
}

bool isMarked(PROJPOINT const& point) {
    return point.x == DBL_MAX && point.y == DBL_MAX;
}

bool sameBits(PROJPOINT const& a, PROJPOINT const& b) {
    auto const bits = [](double x) { return std::bit_cast<std::uint64_t>(x); };
    return bits(a.x) == bits(b.x) && bits(a.y) == bits(b.y);
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
