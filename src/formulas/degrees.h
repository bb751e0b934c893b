// Longitudes and latitudes in degrees, brought into range.
#pragma once

#include "formulas/number.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

/// A coordinate pair on its way through a driver.
template <class R> struct Pair { R x, y; };

/// Longitude modulo 360, its sign kept; latitude modulo 180 and folded over the pole.
inline Pair<double> normalised(Pair<double> degrees) {
    double const lat = std::fmod(degrees.y, 180.0);
    return {std::fmod(degrees.x, 360.0), lat > 90 ? 180 - lat : lat < -90 ? std::fabs(lat) - 180 : lat};
}

/// The same lane by lane; out of line, since few points need it.
[[gnu::noinline]] inline Pair<Register> normalisedLanes(Pair<Register> degrees) {
    double x[lanes], y[lanes];
    store(x, degrees.x);
    store(y, degrees.y);
    for (int i = 0; i < lanes; ++i) {
        auto const point = normalised(Pair<double>{x[i], y[i]});
        x[i] = point.x;
        y[i] = point.y;
    }
    return {load(x), load(y)};
}

#if !defined(ZRPROJ_LEVEL_scalar)
[[gnu::always_inline]] inline Pair<Register> normalised(Pair<Register> degrees) {
    bool const usual = !any((abs(degrees.x) >= 360.0) | (abs(degrees.y) > 90.0));
    return usual ? degrees : normalisedLanes(degrees);
}
#endif

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
