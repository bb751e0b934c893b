// A map of every projection.
#pragma once

#include <zrproj/zrproj.h>

#include <span>

namespace ZrProj::Command {

/// A projection with parameters that show it well, its ellipsoid WGS 84.
struct MapView {
    char const* key; // for file names
    PROJDATA record;
};

/// One for each projection that makes a map, in the catalogue's order.
std::span<MapView const> mapViews();

} // namespace ZrProj::Command
