// Lets the tests call what the formulas of each processor level share, over arrays.
#pragma once

#include "formulas/levels.h"

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

namespace scalar {
extern Probe const probe;
}
namespace baseline {
extern Probe const probe;
}
namespace avx2 {
extern Probe const probe;
}
namespace avx512 {
extern Probe const probe;
}

inline Probe const& probeOf(Level level) {
    switch (level) {
#if defined(ZRPROJ_SIMD)
    case Level::baseline:
        return baseline::probe;
#if defined(__x86_64__)
    case Level::avx2:
        return avx2::probe;
    case Level::avx512:
        return avx512::probe;
#endif
#endif
    default:
        return scalar::probe;
    }
}

} // namespace ZrProj::formulas
