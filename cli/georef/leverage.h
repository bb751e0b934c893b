// How much of its own least-squares fit each control point makes.
#pragma once

#include "cli/georef/methods.h"

#include <vector>

namespace ZrProj::Command {

/// The diagonal of the hat matrix of a least-squares method, by control, from 0 to 1; all of them together are as many
/// as the terms of a coordinate. A point's residual by the fit to the others is its residual over 1 - leverage. The
/// sources must be such that the method fits them.
std::vector<double> leverages(GeorefMethod const& method, std::vector<GEOREFPOINT> const& sources);

} // namespace ZrProj::Command
