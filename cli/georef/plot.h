// A drawing of a fit.
#pragma once

#include "cli/georef/analysis.h"

#include <string>

namespace ZrProj::Command {

/// An SVG picture in target coordinates, y upwards: the control points where they are given, an arrow from each towards
/// where the fit puts it (for an exact method: the fit to the others), and the lines of a grid over the source as the
/// map bends them. Arrows, and what a line is off the affine map, are drawn larger than they are; how much is said
/// below. Throws ControlsError where the targets are all in one place, or so large that they have no finite extent.
std::string georefPlot(GeorefMethod const& method, std::vector<ControlPoint> const& controls, Analysis const& analysis);

} // namespace ZrProj::Command
