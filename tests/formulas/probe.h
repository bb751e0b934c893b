// Lets the tests call what the formulas of each processor level share, over arrays.
#pragma once

#include "levels/level.h"

namespace ZrProj::formulas {

/// Functions of `count` numbers; `count` is a multiple of 8.
struct ElementaryProbe {
    using Function = void (*)(double const* x, double const* y, double* result, int count);
    Function sin, cos, atan2, asin, acos, exp, expm1, log, log1p, cbrt;
};

struct AuxiliaryLatitudeProbe {
    /// For each of `count` angles (a multiple of 8): xi of the angle as phi, and phi of the angle as xi. False where
    /// the series does not converge.
    using Function = bool (*)(double flattening, double const* angle, double* xi, double* phi, int count);
    Function conformal, authalic, rectifying;
    double (*rectifyingRadius)(double flattening);
};

struct Probe {
    ElementaryProbe elementary;
    AuxiliaryLatitudeProbe auxiliaryLatitude;
};

} // namespace ZrProj::formulas
