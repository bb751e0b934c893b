// Cuts paths to all the edges of a map.
#pragma once

#include "formulas/map_edges.h"
#include "proj/preclip_path.h"

#include <vector>

namespace ZrProj::preclip {

/// What a map of these edges shows of the paths. A path that is whole stays as given.
std::vector<Path> cutToEdges(formulas::MapEdges const& edges, std::vector<Path> paths);

} // namespace ZrProj::preclip
