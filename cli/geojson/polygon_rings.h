// Rings in the plane, grouped to polygons.
#pragma once

#include "cli/geojson/clip.h"

#include <vector>

namespace ZrProj::Command {

/// The polygons that rings bound by the even-odd rule; the rings must not cross. Each polygon has its outer ring first,
/// counter-clockwise, and then its holes, clockwise. Rings of less than three points are dropped.
std::vector<Paths> groupRings(Paths rings);

} // namespace ZrProj::Command
