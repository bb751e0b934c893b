// What the maps of the whole globe share: latitudes by their sines, what lies inside the outline, and the equation
// u + sin u = w, which Mollweide's and Eckert's sixth projection solve.
#pragma once

#include "formulas/points.h"

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

/// An angle between -pi and pi, and rest = pi - |angle| with all its digits.
template <class R> struct Arc { R angle, rest; };

/// u of w = u + sin u between -pi and pi; `gap` is pi - |w|. 3e-16 of u and of its rest.
template <class R> Arc<R> solveArcPlusSine(R w, R gap) {
    // Up to 1.6, u / w = 0.5 + w^2 (...); beyond, with g^3 = 6 gap, rest / g = 1 + g^2 (...). Chebyshev fits of our
    // own.
    constexpr double middle[] = {0.010416666666666878,   0.0005208333333279709,  3.33271329898295e-05,
                                 2.400500578436559e-06,  1.8539318169279218e-07, 1.4990593035161828e-08,
                                 1.2549268518615676e-09, 1.0512377109440538e-10, 1.0732559920274432e-11,
                                 2.1320337426686137e-13, 2.5839505329526265e-13, -2.7357649551900184e-14,
                                 3.842381288405789e-15};
    constexpr double end[] = {
        0.016666666666666212,    0.0007142857142955622,  3.968253959810889e-05,  2.4930430515103675e-06,
        1.6830288456242117e-07,  1.1913515971760778e-08, 8.693995341012557e-10,  6.74211105441188e-11,
        3.691829617018392e-12,   1.01384067740698e-12,   -1.900774049366227e-13, 5.938129311395406e-14,
        -1.0312568930936363e-14, 1.3374697967687023e-15, -1.017480898392618e-16, 4.0007686437266755e-18};
    R const g = cbrt(6.0 * gap);
    R const angle = 0.5 * w + w * (w * w * polynomial(w * w, middle)), rest = g + g * (g * g * polynomial(g * g, end));
    auto const inMiddle = abs(w) < 1.6;
    return {select(inMiddle, angle, copySign(pi - rest, w)), select(inMiddle, pi - abs(angle), rest)};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
