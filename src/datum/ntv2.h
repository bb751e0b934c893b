// NTv2: grids of datum shifts with finer grids inside them, as the mapping agencies publish them (.gsb).
#pragma once

#include "datum/grid_problem.h"
#include "datum/grid_set.h"

#include <cstddef>
#include <span>
#include <variant>

namespace ZrProj::datum {

/// The grids in a file's bytes, which must begin on a multiple of 8 and outlive them. The bytes may be anything: counts
/// and sizes are held against those that are there before they are used. The problem begins with "at byte N: ".
std::variant<GridSet, GridProblem> readNtv2(std::span<std::byte const> bytes);

} // namespace ZrProj::datum
