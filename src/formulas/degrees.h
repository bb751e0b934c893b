// Longitudes and latitudes in degrees, brought into range.
#pragma once

#include "formulas/points.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

/// A function of one point, lane by lane; out of line, since few points need it.
template <Pair<double> (*function)(Pair<double>)> [[gnu::noinline]] Pair<Register> eachLane(Pair<Register> degrees) {
    double x[lanes], y[lanes];
    store(x, degrees.x);
    store(y, degrees.y);
    for (int i = 0; i < lanes; ++i) {
        auto const point = function({x[i], y[i]});
        x[i] = point.x;
        y[i] = point.y;
    }
    return {load(x), load(y)};
}

/// The same of points of which at least one needs it; the others must come out as they are. In two variables, which
/// stay in registers where a pair would not.
template <Pair<double> (*function)(Pair<double>), class Condition>
[[gnu::always_inline]] inline Pair<Register> eachLaneWhere(Condition needed, Pair<Register> degrees) {
    Register x = degrees.x, y = degrees.y;
    if (any(needed)) [[unlikely]] {
        auto const all = eachLane<function>(degrees);
        x = all.x;
        y = all.y;
    }
    return {x, y};
}

/// Longitude modulo 360, its sign kept; latitude modulo 180 and folded over the pole.
inline Pair<double> normalised(Pair<double> degrees) {
    double const lat = std::fmod(degrees.y, 180.0);
    return {std::fmod(degrees.x, 360.0), lat > 90 ? 180 - lat : lat < -90 ? std::fabs(lat) - 180 : lat};
}

#if !defined(ZRPROJ_LEVEL_scalar)
[[gnu::always_inline]] inline Pair<Register> normalised(Pair<Register> degrees) {
    return eachLaneWhere<normalised>((abs(degrees.x) >= 360.0) | (abs(degrees.y) > 90.0), degrees);
}
#endif

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
