// Where an outline runs along itself.
#pragma once

#include "cli/map/projection.h"

namespace ZrProj::Command {

/// The parts of an outline's lines that do not run back along another part of it within `width`: there the map goes on,
/// over a seam of the plane that it was cut from, or over a strip that is too narrow to be seen.
std::vector<std::vector<MapPoint>> withoutSeams(std::vector<std::vector<MapPoint>> const& lines, double width);

} // namespace ZrProj::Command
