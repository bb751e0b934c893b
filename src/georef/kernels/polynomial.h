// Polynomial maps in registers.
#pragma once

#include "georef/kernels/kernel_set.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

void mapByPolynomial(Polynomial const& map, GEOREFPOINT* points, std::size_t count) noexcept;

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
