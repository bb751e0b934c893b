// A pair of NADCON grids as one grid of shifts.
#pragma once

#include "datum/grid_problem.h"
#include "datum/grid_set.h"

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace ZrProj {

/// A pair as one grid, its nodes in `words`, which must live as long. Unlike convertNadcon it shifts points between the
/// nodes only, and takes both conventions: in a pair of this library's (longitudes in .LAS, east positive) the leading
/// word of each row is the row's first value, as `zrproj grid import` makes it; all others are as they are published
/// (latitudes in .las, longitudes in .los, west positive). Refused are files that are no pair or cut short.
std::variant<datum::GridSet, datum::GridProblem> readNadconPair(std::string const& lasPath, std::string const& losPath,
                                                                std::vector<std::uint64_t>& words);

} // namespace ZrProj
