// Polynomials up to the third order.
#pragma once

#include "georef/controls.h"
#include "georef/kernels/kernel_set.h"

#include <optional>

namespace ZrProj {

/// The polynomial of 3, 4, 6 or 10 terms through the controls, or nearest to them by least squares. Nothing, with an
/// assertion, for too few controls; nothing where they do not determine the terms. May run out of memory.
std::optional<formulas::Polynomial> fitPolynomial(int terms, Controls const& controls);

} // namespace ZrProj
