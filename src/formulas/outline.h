// The outline of a map: what lies outside it is unplottable; what lies on it stays, though its coordinates are rounded.
#pragma once

#include "formulas/elementary.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

/// What rounding, that of a false origin up to ten semi-major axes included, may move a point of the map, as a fraction
/// of its coordinates and of the semi-major axis.
inline constexpr double coordinateNoise = 1e-14;

/// A condition on an R.
template <class R> using Condition = decltype(R() < R());

template <class R> R clamped(R x, double low, double high) {
    return select(x < low, R(low), select(x > high, R(high), x));
}

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
