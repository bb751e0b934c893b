// The four-parameter similarity.
#pragma once

#include "georef/controls.h"
#include "georef/kernels.h"

namespace ZrProj {

/// Fits X = a x - b y + c and Y = b x + a y + d to the controls by least squares. Where the controls are coincident, or
/// fewer than two, which raises an assertion, no scale can be told and the coefficients are NaN.
georef::Polynomial fitHelmert(Controls const& controls) noexcept;

} // namespace ZrProj
