// Curves of a map as chords, so close that the eye sees no corner, and what of them is to be seen on the paper.
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

/// A line, or, if closed, a ring, of segments that are straight in longitude and latitude, as chords on the paper.
/// `ends` are the places put on the paper, NaN for those that are not there, which are left out. The closing chord's
/// end is not repeated.
std::vector<MapPoint> chordsOf(std::span<PROJPOINT const> places, std::span<MapPoint const> ends, bool closed,
                               Placing const& placing, CurveRules const& rules);

/// The pieces of a line inside a box.
std::vector<std::vector<MapPoint>> clipLine(std::span<MapPoint const> line, MapBox const& box);

/// The part of a ring inside a box, as one ring, whose pieces are joined along the box's sides; for filling. After
/// Sutherland and Hodgman, Reentrant Polygon Clipping, 1974.
std::vector<MapPoint> clipRing(std::vector<MapPoint> ring, MapBox const& box);

/// The parts of an outline's lines that do not run back along another part of it within `width`: there the map goes on,
/// over a seam of the plane that it was cut from, or over a strip that is too narrow to be seen.
std::vector<std::vector<MapPoint>> withoutSeams(std::vector<std::vector<MapPoint>> const& lines, double width);

} // namespace ZrProj::Command
