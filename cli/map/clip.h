// What of chords lies on the paper; the rest of a map may be larger than a drawing program can say.
#pragma once

#include "cli/map/curve.h"

namespace ZrProj::Command {

/// The pieces of a line inside a box.
std::vector<std::vector<MapPoint>> clipLine(std::span<MapPoint const> line, MapBox const& box);

/// The part of a ring inside a box, as one ring, whose pieces are joined along the box's edges; for filling. After
/// Sutherland and Hodgman, Reentrant Polygon Clipping, 1974.
std::vector<MapPoint> clipRing(std::vector<MapPoint> ring, MapBox const& box);

} // namespace ZrProj::Command
