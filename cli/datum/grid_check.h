// What is in a pair of grids.
#pragma once

#include "cli/datum/grid_file.h"
#include "cli/text/output.h"

namespace ZrProj::Command {

/// Writes a pair's header, extent and value ranges. Throws std::runtime_error, after that, when something is wrong with
/// the pair, and UsageError when it cannot be opened.
/// path: of the files without ".LAS" and ".LOS".
void checkGrids(std::string const& path, Output& output);

} // namespace ZrProj::Command
