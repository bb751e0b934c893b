// NADCON: the shift of points by a pair of grid files.
#pragma once

#include <zrproj/datum.h>

#include <cstddef>

namespace ZrProj {

/// Shifts the points that lie inside the grid, in place; marked points (DBL_MAX) and points outside stay as they are.
/// The grid is looked for beside the running program. False, after an assertion, when it cannot be read.
bool convertNadcon(char const* gridName, DATUMPOINT* points, std::size_t count);

} // namespace ZrProj
