// Lets the tests call the elementary functions of each processor level, over arrays.
#pragma once

#include "formulas/levels.h"

namespace ZrProj::formulas {

struct ElementaryProbe {
    using Function = void (*)(double const* x, double const* y, double* result, int count);
    Function sin, cos, atan2, asin, acos, exp, expm1, log, log1p, cbrt;
};

namespace scalar {
extern ElementaryProbe const elementaryProbe;
}
namespace baseline {
extern ElementaryProbe const elementaryProbe;
}
namespace avx2 {
extern ElementaryProbe const elementaryProbe;
}
namespace avx512 {
extern ElementaryProbe const elementaryProbe;
}

} // namespace ZrProj::formulas
