// Curves of a map as chords, so close that the eye sees no corner.
#pragma once

#include "cli/map/projection.h"

#include <functional>

namespace ZrProj::Command {

/// A rectangle, on the map or on the paper.
struct MapBox {
    double left, low, right, high;

    double width() const { return right - left; }
    double height() const { return high - low; }
    bool holds(MapPoint const& p) const { return p.x >= left && p.x <= right && p.y >= low && p.y <= high; }
};

struct CurveRules {
    MapBox visible;   // on the paper; curves are coarse where they lie to one side of it
    double tolerance; // how far a chord may be off
};

/// Where on the paper a place is; nothing where it is not.
using Placing = std::function<std::optional<MapPoint>(PROJPOINT)>;

/// How far a point is from the straight line between a and b.
double distanceFrom(MapPoint const& a, MapPoint const& b, MapPoint const& p);

/// A line, or, if closed, a ring, of edges that are straight in longitude and latitude, as chords on the paper. `ends`
/// are the places put on the paper, NaN for those that are not there, which are left out. The closing chord's end is
/// not repeated.
std::vector<MapPoint> chordsOf(std::span<PROJPOINT const> places, std::span<MapPoint const> ends, bool closed,
                               Placing const& placing, CurveRules const& rules);

} // namespace ZrProj::Command
