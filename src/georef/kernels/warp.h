// Warps in registers.
#pragma once

#include "georef/kernels/kernel_set.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

void mapByWarp(Warp const& map, GEOREFPOINT* points, std::size_t count) noexcept;
void basisRow(Warp const& map, std::size_t i, double* row) noexcept;

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
