// What formulas share: the points that they take and give, numbers held within bounds, longitudes from the central
// meridian, and what lies outside the outline of a map.
#pragma once

#include "levels/elementary.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

using namespace levels::ZRPROJ_LEVEL;

/// A geographic point in radians, and a point of the map in the unit of the ellipsoid's radius.
template <class R> struct LonLat { R lon, lat; };
template <class R> struct Xy { R x, y; };

/// What a formula returns for a point that it cannot show.
inline constexpr double unplottable = notANumber;

template <class R> R larger(R a, R b) {
    return select(a > b, a, b);
}
template <class R> R smaller(R a, R b) {
    return select(a < b, a, b);
}

template <class R> R clamped(R x, double low, double high) {
    return select(x < low, R(low), select(x > high, R(high), x));
}

/// v in units of `size`, held within -8 to 8, so that what is far off the map does not overflow.
template <class R> R inUnitsOf(double size, R v) {
    return copySign(smaller(abs(v), R(8 * size)) * (1 / size), v);
}

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

/// What rounding, that of a false origin up to ten semi-major axes included, may move a point of the map, as a fraction
/// of its coordinates and of the semi-major axis.
inline constexpr double coordinateNoise = 1e-14;

/// Longitudes as a map gives them back, measured along a parallel: a point `arc` from the central meridian on a
/// parallel that is `perRadian` long a radian. Past the opposite meridian by more than `noise` it is outside.
template <class R> struct OnParallel {
    R lambda; // from the central meridian, -pi to pi
    Condition<R> outside;
};

template <class R> OnParallel<R> onParallel(R arc, R perRadian, R noise) {
    R const least = 1e-200; // a pole has no length
    R const ratio = arc / select(perRadian > least, perRadian, least);
    return {clamped(ratio, -pi, pi), abs(arc) > pi * perRadian + noise};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
