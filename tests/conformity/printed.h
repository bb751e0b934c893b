// Printed examples: a table of projections, as options of the command, with a place and its map coordinates.
#pragma once

#include "report.h"

#include <istream>

namespace ZrProj::Conformity {

/// Runs the checks of a table with a tab between two columns: source, name, options, longitude, latitude, x, y, metres
/// of the unit of x and y, and the tolerance in that unit. Lines that begin with # are comments.
void runPrinted(std::istream& table, Report& report);

} // namespace ZrProj::Conformity
