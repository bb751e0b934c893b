// Which part of a map is drawn.
#pragma once

#include "cli/map/curve.h"

#include <array>

namespace ZrProj::Command {

struct MapFrame {
    MapBox box;
    bool whole; // whether it holds all that the map shows
};

/// Without a word of the user: the places that the map draws at most 30 times as large as others, in area; and all of
/// the map where that is not much more.
MapFrame usualFrame(MapProjection& map);

/// What lies between longitudes and latitudes: west, south, east, north, from west eastwards. Longitudes 360 degrees
/// apart are the whole globe's. Throws UsageError when the map shows none of it.
MapFrame frameAround(MapProjection& map, std::array<double, 4> const& bounds);

} // namespace ZrProj::Command
