// What a route does, as a person reads it.
#pragma once

#include "systems/route.h"

#include <string>
#include <vector>

namespace ZrProj::systems {

/// A line a step: the operation by name and code, what it does, how exact it is and where; then what else is to be
/// told, and the grids that would make it better.
std::vector<std::string> linesOf(Route const& route);

} // namespace ZrProj::systems
