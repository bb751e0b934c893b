// What the maps of the whole globe share: latitudes by their sines, and what lies inside the outline.
#pragma once

#include "formulas/longitude.h"
#include "formulas/outline.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

/// The sine of an angle between -pi/2 and pi/2, and gap = 1 - |sine| with all its digits.
template <class R> struct Sine { R sine, gap; };

template <class R> Sine<R> sineOf(R phi) {
    auto const at = sinCos(phi);
    R const gap = at.cos * at.cos / (1.0 + abs(at.sin));
    return {at.sin, select(abs(phi) >= halfPi, R(0.0), gap)};
}

template <class R> R angleOf(Sine<R> s) {
    return atan2(s.sine, sqrt(s.gap * (2.0 - s.gap)));
}

template <class R> R larger(R a, R b) {
    return select(a > b, a, b);
}
template <class R> R smaller(R a, R b) {
    return select(a < b, a, b);
}

/// v in units of `size`, held within -8 to 8, so that what is far off the map does not overflow.
template <class R> R inUnitsOf(double size, R v) {
    return copySign(smaller(abs(v), R(8 * size)) * (1 / size), v);
}

/// A map whose outline, in units of its half height, is made of two halves of the unit circle, apart or not: where a
/// parallel meets the circle. The angle is the point's on the circle, without its sign.
template <class R> struct OnCircle {
    R cosine, angle, rest; // rest = pi/2 - angle, with all its digits
    Condition<R> inside;
};

/// `sine` is the point's northing and `out` what its easting lies beyond the circle's axis, neither negative nor above
/// 8. Close to a pole the northing alone does not tell the cosine to more than half the digits; it is at least `out`.
template <class R> OnCircle<R> onCircle(R sine, R out) {
    auto const inside = sine * sine + out * out <= 1 + coordinateNoise;
    R const square = (1.0 - sine) * (1.0 + sine);
    R const cosine = larger(sqrt(larger(square, R(0.0))), select(inside, out, R(0.0)));
    auto const low = sine < cosine;
    R const small = atan2(select(low, sine, cosine), select(low, cosine, sine));
    return {cosine, select(low, small, halfPi - small), select(low, halfPi - small, small), inside};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
