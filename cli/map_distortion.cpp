#include "cli/map_distortion.h"

#include <cmath>
#include <numbers>

namespace ZrProj::Command {
namespace {

constexpr double step = 1e-3; // degrees
constexpr double radian = 180 / std::numbers::pi;

/// The difference between two places on the map, for each metre that lies between them.
std::optional<MapPoint> difference(MapProjection& map, PROJPOINT const& from, PROJPOINT const& to, double metres) {
    auto const a = map.at(from), b = map.at(to);
    if (!a || !b)
        return std::nullopt;
    return MapPoint{(b->x - a->x) / metres, (b->y - a->y) / metres};
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
    auto const east =
        difference(map, {place.x - step, place.y}, {place.x + step, place.y}, 2 * step / radian * eastRadius);
    auto const north =
        difference(map, {place.x, place.y - step}, {place.x, place.y + step}, 2 * step / radian * northRadius);
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
