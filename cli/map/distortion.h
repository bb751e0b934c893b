// How a map draws a small circle.
#pragma once

#include "cli/map/projection.h"

namespace ZrProj::Command {

/// What a metre at a place becomes on the map: the steps to the east and to the north.
struct LocalScale {
    MapPoint east, north;

    double areal() const { return east.x * north.y - east.y * north.x; }
};

/// By central differences, on the map's own ellipsoid; nothing at the poles and beside the map's edge.
std::optional<LocalScale> localScale(MapProjection& map, PROJPOINT place);

/// An ellipse: half of its axes, and how its first axis is turned from the x axis, in degrees.
struct Ellipse {
    double first, second, turn;
};

/// What a circle of radius 1 becomes.
Ellipse ellipseOf(LocalScale const& scale);

} // namespace ZrProj::Command
