// All projections on one sheet.
#pragma once

#include "cli/map/drawing.h"

#include <zrproj/zrproj.h>

#include <vector>

namespace ZrProj::Command {

/// A projection with parameters that show it well, its ellipsoid WGS 84.
struct MapView {
    char const* key; // for file names
    PROJDATA record;
};

/// One for each projection that makes a map, in the catalogue's order.
std::vector<MapView> const& mapViews();

/// A picture of each of mapViews(), with its name as title; what `content` says of title and bounds is not looked at.
MapPicture drawSheet(MapContent content, double size);

} // namespace ZrProj::Command
