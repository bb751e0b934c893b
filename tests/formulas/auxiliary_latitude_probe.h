// Lets the tests call the auxiliary latitudes of each processor level.
#pragma once

namespace ZrProj::formulas {

struct AuxiliaryLatitudeProbe {
    /// For each of `count` angles (a multiple of 8): xi of the angle as phi, and phi of the angle as xi. False where
    /// the series does not converge.
    using Function = bool (*)(double flattening, double const* angle, double* xi, double* phi, int count);
    Function conformal, authalic, rectifying;
    double (*rectifyingRadius)(double flattening);
};

namespace scalar {
extern AuxiliaryLatitudeProbe const auxiliaryLatitudeProbe;
}
namespace baseline {
extern AuxiliaryLatitudeProbe const auxiliaryLatitudeProbe;
}
namespace avx2 {
extern AuxiliaryLatitudeProbe const auxiliaryLatitudeProbe;
}
namespace avx512 {
extern AuxiliaryLatitudeProbe const auxiliaryLatitudeProbe;
}

} // namespace ZrProj::formulas
