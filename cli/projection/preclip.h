// Lines and areas cut to what a projection's map shows, in longitude and latitude.
#pragma once

#include <zrproj/zrproj.h>

#include <span>
#include <vector>

namespace ZrProj::Command {

/// Longitudes and latitudes, one after another.
using Places = std::vector<PROJPOINT>;

/// What the map shows of a line, or the rings around what it shows of the area in a ring, whose last point joins the
/// first. Nothing of lines of less than two points and rings of less than three. Throws std::bad_alloc.
std::vector<Places> preclipLine(CProjector& map, std::span<PROJPOINT const> line);
std::vector<Places> preclipRing(CProjector& map, std::span<PROJPOINT const> ring);

} // namespace ZrProj::Command
