#include "cli/map/distortion.h"

#include <cmath>
#include <numbers>

namespace ZrProj::Command {
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
    PROJDATA const& record = map.record();
    double const latitude = place.y / radian, squared = record.Flattening * (2 - record.Flattening);
    double const w = 1 - squared * std::sin(latitude) * std::sin(latitude);
    double const eastRadius = record.MajorRadius / std::sqrt(w) * std::cos(latitude);
    double const northRadius = record.MajorRadius * (1 - squared) / (w * std::sqrt(w));
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
