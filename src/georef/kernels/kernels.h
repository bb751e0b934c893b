// The operations of one processor level, a source each.
#pragma once

#include "georef/kernels.h"
#include "levels/driver.h"

namespace ZrProj::georef::ZRPROJ_LEVEL {

using namespace levels::ZRPROJ_LEVEL;

levels::Outcome mapByPolynomial(Polynomial const& map, levels::Points const& points,
                                levels::Marking const& marking) noexcept;
levels::Outcome mapByWarp(Warp const& map, levels::Points const& points, levels::Marking const& marking) noexcept;
void basisRow(Warp const& map, std::size_t i, double* row) noexcept;
bool factorise(SymmetricMatrix const& matrix, double leastPivot) noexcept;

} // namespace ZrProj::georef::ZRPROJ_LEVEL
