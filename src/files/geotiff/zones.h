// State Plane zones by the numbers that old files have and the register no longer has, or has for something else.
#pragma once

#include "systems/definition.h"

#include <optional>

namespace ZrProj::GeoTIFF {

/// The zone whose projected system has that number.
std::optional<systems::Definition> zoneOfSystem(systems::Code code);

/// The zone whose projection has that number: 10000 and the USGS code, 30 more for 1983.
std::optional<systems::Definition> zoneOfProjection(systems::Code code);

/// The geographic system that a zone of such a number stands on; 0 for a number that is no zone's.
systems::Code baseOfZone(systems::Code projection);

} // namespace ZrProj::GeoTIFF
