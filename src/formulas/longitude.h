// Longitude differences.
#pragma once

#include "formulas/elementary.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

/// The nearest whole number, for numbers below 2^51; halves go to the even one.
template <class R> R nearest(R x) {
    constexpr double magic = 0x1.8p52;
    return (x + magic) - magic;
}

/// The longitude east of `lambda0` in radians, from -pi to pi. A difference of pi or -pi, up to rounding, stays on its
/// side: the two edges of a map are different places.
template <class R> R longitudeFrom(double lambda0, R lambda) {
    constexpr double turnsPerRadian = 0.1591549430918952; // 1 / (2 pi), less 1e-15 of it
    R const difference = lambda - lambda0;
    return difference - 2 * pi * nearest(difference * turnsPerRadian);
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
