#include "cli/map/projection.h"

#include "cli/model/parameters.h"
#include "cli/text/usage_error.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <iterator>
#include <limits>
#include <numbers>
#include <utility>

namespace ZrProj::Command {
namespace {

constexpr double nowhere = std::numeric_limits<double>::quiet_NaN();

/// The central meridian of a record, or of its State Plane zone.
double middleOf(PROJDATA const& record) {
    PROJDATA zone = record;
    if (zone.Type == ProjTypeStatePlane1927 || zone.Type == ProjTypeStatePlane1983)
        ProjGetStateZoneParams(&zone);
    return zone.Lon0;
}

/// The middle of a system's area of use.
double middleOf(System const& system) {
    double west = 0, east = 0;
    zrproj_system_area(system.handle(), &west, nullptr, &east, nullptr);
    return west <= east ? (west + east) / 2 : (west + east) / 2 + 180;
}

/// The ring around half of the plane of longitude and latitude, with a point at each degree.
Places halfGlobe(double west) {
    double const east = west + 180;
    Places ring;
    for (int i = 0; i < 180; ++i)
        ring.push_back({west + i, -90});
    for (int i = 0; i < 180; ++i)
        ring.push_back({east, -90.0 + i});
    for (int i = 0; i < 180; ++i)
        ring.push_back({east - i, 90});
    for (int i = 0; i < 180; ++i)
        ring.push_back({west, 90.0 - i});
    return ring;
}

} // namespace

MapProjection::MapProjection(ProjectionChoice const& choice)
    : m_map(mapOf(choice)), m_converter(m_map), m_middle(choice.system ? middleOf(*m_map) : middleOf(choice.record)) {
    zrproj_system_ellipsoid(m_map->handle(), &m_radius, &m_flattening);
    if (outline().empty())
        throw UsageError(choice.system ? m_map->title() + " shows nothing" : noMapText(choice.record));
}

std::optional<PROJPOINT> MapProjection::shown(PROJPOINT place) {
    auto const pieces = cutLine(Places{place, place});
    return pieces.empty() ? std::nullopt : std::optional(pieces.front().front());
}

std::optional<MapPoint> MapProjection::at(PROJPOINT place) {
    MapPoint const point = at(std::span(&place, 1)).front();
    return std::isfinite(point.x) ? std::optional(point) : std::nullopt;
}

std::vector<MapPoint> MapProjection::at(std::span<PROJPOINT const> places) {
    Places points(places.begin(), places.end());
    std::vector<PointState> states(points.size(), PointState::Good);
    m_converter.forward(points, states);
    std::vector<MapPoint> result;
    result.reserve(points.size());
    for (std::size_t i = 0; i < points.size(); ++i)
        result.push_back(hasResult(states[i]) ? MapPoint{points[i].x, points[i].y} : MapPoint{nowhere, nowhere});
    return result;
}

std::vector<Places> MapProjection::cutLine(std::span<PROJPOINT const> line) {
    return preclipLine(*m_map, line);
}

std::vector<Places> MapProjection::cutArea(std::span<PROJPOINT const> ring) {
    return preclipRing(*m_map, ring);
}

/// Where the two halves of the outline meet, and opposite to it: far from meridians where maps end.
double MapProjection::seam() const {
    return std::remainder(m_middle + 70.1234, 360);
}

std::vector<Places> MapProjection::outline() {
    std::vector<Places> rings = cutArea(halfGlobe(seam() - 180));
    std::ranges::move(cutArea(halfGlobe(seam())), std::back_inserter(rings));
    return rings;
}

std::vector<Places> MapProjection::edges() {
    auto const isOnSeam = [meridian = seam()](PROJPOINT const& place) {
        return std::fabs(std::remainder(place.x - meridian, 180)) < 1e-6;
    };
    std::vector<Places> lines;
    for (Places ring : outline()) {
        ring.push_back(ring.front());
        bool goesOn = false;
        for (std::size_t i = 1; i < ring.size(); ++i) {
            bool const wasOn = std::exchange(goesOn, !isOnSeam(ring[i - 1]) || !isOnSeam(ring[i]));
            if (goesOn && !wasOn)
                lines.push_back({ring[i - 1]});
            if (goesOn)
                lines.back().push_back(ring[i]);
        }
    }
    return lines;
}

namespace {

constexpr double step = 1e-3; // degrees
constexpr double radian = 180 / std::numbers::pi;

constexpr double likeness = 0.2; // between the two halves of a step

/// What becomes of a metre, by the steps from a place before to the place, and from there to one after; nothing where
/// the two differ, since the map's edge or a kink lies between.
std::optional<MapPoint> slope(MapProjection& map, PROJPOINT const& before, PROJPOINT const& place,
                              PROJPOINT const& after, double metres) {
    auto const a = map.at(before), b = map.at(place), c = map.at(after);
    if (!a || !b || !c)
        return std::nullopt;
    MapPoint const change{c->x - a->x, c->y - a->y};
    double const bend = std::hypot(c->x - 2 * b->x + a->x, c->y - 2 * b->y + a->y);
    if (bend > likeness * std::hypot(change.x, change.y))
        return std::nullopt;
    return MapPoint{change.x / metres, change.y / metres};
}

} // namespace

std::optional<LocalScale> localScale(MapProjection& map, PROJPOINT place) {
    if (!(std::fabs(place.y) < 90 - 2 * step))
        return std::nullopt;
    double const latitude = place.y / radian, squared = map.flattening() * (2 - map.flattening());
    double const w = 1 - squared * std::sin(latitude) * std::sin(latitude);
    double const eastRadius = map.radius() / std::sqrt(w) * std::cos(latitude);
    double const northRadius = map.radius() * (1 - squared) / (w * std::sqrt(w));
    auto const [x, y] = place;
    auto const east = slope(map, {x - step, y}, place, {x + step, y}, 2 * step / radian * eastRadius);
    auto const north = slope(map, {x, y - step}, place, {x, y + step}, 2 * step / radian * northRadius);
    if (!east || !north)
        return std::nullopt;
    return LocalScale{*east, *north};
}

/// By the singular values of the matrix with the two steps as columns.
Ellipse ellipseOf(LocalScale const& scale) {
    double const sum = std::hypot(scale.east.x + scale.north.y, scale.east.y - scale.north.x);
    double const difference = std::hypot(scale.east.x - scale.north.y, scale.east.y + scale.north.x);
    double const turn = (std::atan2(scale.east.y - scale.north.x, scale.east.x + scale.north.y) +
                         std::atan2(scale.east.y + scale.north.x, scale.east.x - scale.north.y)) /
                        2;
    return {(sum + difference) / 2, std::fabs(sum - difference) / 2, turn * radian};
}

} // namespace ZrProj::Command
