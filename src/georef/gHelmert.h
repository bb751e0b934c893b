// The four-parameter similarity.
#pragma once

#include "georef/controls.h"
#include "georef/kernels/kernel_set.h"

namespace ZrProj {

/// X = a x - b y + c, Y = b x + a y + d, by least squares. Where the controls are all in one place, or there are fewer
/// than two, no scale can be told: the coefficients are NaN.
formulas::Polynomial fitHelmert(Controls const& controls) noexcept;

} // namespace ZrProj
