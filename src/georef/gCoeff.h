// Precalculated affine coefficients.
#pragma once

#include "georef/kernels.h"

namespace ZrProj {

/// The map X = A x + B y + C and Y = D x + E y + F of the record's coefficients.
georef::Polynomial coefficientMap(GEOREF const& georef) noexcept;

/// Writes a finite affine map into the record's A to F. Returns false, with nothing written, where C or F would not be
/// finite.
bool setCoefficients(GEOREF& georef, georef::Polynomial const& map) noexcept;

} // namespace ZrProj
