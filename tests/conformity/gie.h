// Files of gie, PROJ's program for tests: operations, points to accept and to expect, round trips.
#pragma once

#include "report.h"

#include <istream>

namespace ZrProj::Conformity {

/// Runs the checks of a file.
void runGie(std::istream& file, Report& report);

} // namespace ZrProj::Conformity
