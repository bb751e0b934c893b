// Cholesky's factorisation in registers.
#pragma once

#include "georef/kernels/kernel_set.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

bool factorise(SymmetricMatrix const& matrix, double leastPivot) noexcept;

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
