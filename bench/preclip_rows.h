// How fast lines are cut at a map's edges and converted.
#pragma once

namespace ZrProj::bench {

/// A row a projection: a line of a million points that wanders over the globe.
void registerPreclipRows();

} // namespace ZrProj::bench
