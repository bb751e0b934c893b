// The operations of one processor level, a source each.
#pragma once

#include "georef/kernels.h"
#include "levels/stage_code.h"

namespace ZrProj::georef::ZRPROJ_LEVEL {

using namespace levels::ZRPROJ_LEVEL;

void mapByPolynomial(Polynomial const& map, levels::Points points) noexcept;
void mapByWarp(Warp const& map, levels::Points points) noexcept;
void basisRow(Warp const& map, std::size_t i, double* row) noexcept;
bool factorise(SymmetricMatrix const& matrix, double leastPivot) noexcept;

} // namespace ZrProj::georef::ZRPROJ_LEVEL
