// Polynomials up to the third order.
#pragma once

#include "georef/controls.h"
#include "georef/kernels.h"

#include <optional>

namespace ZrProj {

/// Fits a polynomial of 3, 4, 6 or 10 terms to the controls by least squares; with as many controls as terms it meets
/// them. Returns nothing where the controls do not determine the terms, and nothing, with an assertion, for too few of
/// them. Throws when memory runs out.
std::optional<georef::Polynomial> fitPolynomial(int terms, Controls const& controls);

} // namespace ZrProj
