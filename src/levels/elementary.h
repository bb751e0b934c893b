// Elementary functions for any number type: branch-free, the same for each lane whatever the others hold.
//
// Polynomials are Chebyshev fits of our own, worked out in 60 digits. Arguments that are infinite or NaN give NaN
// unless a card says otherwise. "ulp" is the greatest error found by the tests, which hold each function to it.
#pragma once

#include "levels/number.h"

#include <numbers>

namespace ZrProj::levels::ZRPROJ_LEVEL {

inline constexpr double pi = std::numbers::pi;
inline constexpr double halfPi = pi / 2;

/// c[0] + c[1] x + c[2] x^2 + ...
template <class R, std::size_t N> R polynomial(R x, double const (&c)[N]) {
    R sum = c[N - 1];
    for (std::size_t i = N - 1; i-- > 0;)
        sum = sum * x + c[i];
    return sum;
}

template <class R> struct SinCos { R sin, cos; };

/// Sine and cosine of an angle in radians. 1.5 ulp up to two turns, 2.5 ulp up to 1e5; beyond 1e15 without meaning.
/// Exact where tests for singular points need it: sin(0) = 0, cos(0) = 1, and the sine of the double nearest to pi/2
/// is 1.
template <class R> [[gnu::always_inline]] inline SinCos<R> sinCos(R angle) {
    constexpr double sinFit[] = {-0.16666666666666666,   0.008333333333330936,    -0.00019841269836740532,
                                 2.7557316093198404e-06, -2.5051129896450185e-08, 1.5917988979397435e-10};
    constexpr double cosFit[] = {0.041666666666666664,   -0.0013888888888887389, 2.48015872987544e-05,
                                 -2.755731726587808e-07, 2.087614504941318e-09,  -1.138254464534925e-11};
    // n = the nearest multiple of pi/2, found by adding 1.5 * 2^52, which leaves n in the lowest bits. pi/2 is taken
    // off in three parts, the first two short enough that their products with n are exact.
    constexpr double magic = 0x1.8p52;
    R const shifted = angle * (2 / pi) + magic;
    R const n = shifted - magic;
    R const r = ((angle - n * 1.5707963267341256) - n * 6.077100506303966e-11) - n * 2.0222662487959506e-21;
    R const z = r * r;
    R const sine = r + r * (z * polynomial(z, sinFit));
    R const cosine = 1.0 - (0.5 * z - z * z * polynomial(z, cosFit));
    auto const quadrant = bitsOf(shifted);
    auto const odd = fromBits((quadrant & 1) | 0x3FF0000000000000) != 1.0;
    auto const sineSign = (quadrant >> 1) << 63;
    auto const cosineSign = ((quadrant + 1) >> 1) << 63;
    return {fromBits(bitsOf(select(odd, cosine, sine)) ^ sineSign),
            fromBits(bitsOf(select(odd, sine, cosine)) ^ cosineSign)};
}

template <class R> [[gnu::always_inline]] inline R sin(R angle) {
    return sinCos(angle).sin;
}
template <class R> [[gnu::always_inline]] inline R cos(R angle) {
    return sinCos(angle).cos;
}

/// The angle of the point (x, y) in radians, -pi to pi; y = -0 is just below the axis. 0 for (0, 0). 1.6 ulp.
template <class R> [[gnu::always_inline]] inline R atan2(R y, R x) {
    constexpr double fit[] = {-0.3333333333333333,  0.1999999999999548,  -0.14285714284657894, 0.11111111014561013,
                              -0.09090904549884611, 0.07692182535116648, -0.06664502215671447, 0.058580687568615106,
                              -0.05085030492810941, 0.03921955253255129, -0.019162068915902573};
    constexpr double tanPi8 = 0.41421356237309503;
    constexpr double quarterPiLow = 3.061616997868383e-17, halfPiLow = 6.123233995736766e-17;
    R const ax = abs(x), ay = abs(y);
    auto const steep = ay > ax;
    R const small = select(steep, ax, ay), large = select(steep, ay, ax);
    // Above tan(pi/8) the angle is taken from pi/4: atan(s/l) = pi/4 + atan((s - l) / (s + l)).
    auto const wide = small > tanPi8 * large;
    R const top = select(wide, small - large, small);
    R const bottom = select(wide, small + large, large);
    R const t = top / select(bottom == 0.0, R(1.0), bottom);
    R const z = t * t;
    R const tail = t * (z * polynomial(z, fit)) + select(wide, R(quarterPiLow), R(0.0));
    R angle = select(wide, pi / 4 + (t + tail), t + tail);
    angle = select(steep, halfPi - (angle - halfPiLow), angle);
    angle = select(x < 0.0, pi - (angle - 2 * halfPiLow), angle);
    return copySign(angle, y);
}

/// 1.6 ulp.
template <class R> [[gnu::always_inline]] inline R atan(R x) {
    return atan2(x, R(1.0));
}

/// Arc sine and arc cosine, NaN beyond 1. 2.5 ulp.
template <class R> [[gnu::always_inline]] inline R asin(R x) {
    return atan2(x, sqrt((1.0 - x) * (1.0 + x)));
}
template <class R> [[gnu::always_inline]] inline R acos(R x) {
    return atan2(sqrt((1.0 - x) * (1.0 + x)), x);
}

/// e^x as 2^n (1 + excess), for x between -746 and 710.
template <class R> struct ExpParts { R shifted, n, excess; }; // shifted: n plus the number that leaves it in low bits

template <class R> [[gnu::always_inline]] inline ExpParts<R> expParts(R x) {
    constexpr double fit[] = {0.5000000000000001,     0.16666666666666669,    0.041666666666623824,
                              0.008333333333330039,   0.0013888888917367081,  0.00019841269863171557,
                              2.4801521057868204e-05, 2.7557268276905696e-06, 2.7620201591031547e-07,
                              2.5100472505694996e-08};
    constexpr double magic = 0x1.8p52;
    R const shifted = x * (1 / std::numbers::ln2) + magic;
    R const n = shifted - magic;
    R const r = (x - n * 0.6931471804855391) - n * 7.440617110012397e-11;
    return {shifted, n, r + r * r * polynomial(r, fit)};
}

/// e^x; 0 below -745 and infinite above 710. 1.1 ulp.
template <class R> [[gnu::always_inline]] inline R exp(R x) {
    constexpr double magic = 0x1.8p52;
    auto const parts = expParts(select(x < -746.0, R(-746.0), select(x > 710.0, R(710.0), x)));
    // 2^n in two factors, since n can be beyond the exponents of normal numbers.
    auto const power = [](R k) { return fromBits((bitsOf(k + magic) + 1023) << 52); };
    R const half = (0.5 * parts.n + magic) - magic;
    return select(x != x, x,
                  select(x > 709.8, R(std::numeric_limits<double>::infinity()),
                         (1.0 + parts.excess) * power(half) * power(parts.n - half)));
}

/// e^x - 1, for x up to 709. 2.3 ulp.
template <class R> [[gnu::always_inline]] inline R expm1(R x) {
    auto const parts = expParts(select(x < -60.0, R(-60.0), x));
    R const power = fromBits((bitsOf(parts.shifted) + 1023) << 52);
    return power * parts.excess + (power - 1.0);
}

/// Natural logarithm. 1.1 ulp. -infinity for 0, as a division by zero where `double` looks at the flags; infinity for
/// infinity; NaN below 0.
template <class R> R log(R x) {
    constexpr double fit[] = {0.666666666666667,  0.3999999999989889,  0.28571428626253836, 0.22222211089379496,
                              0.1818289243253687, 0.15331611722055008, 0.14617807153417325};
    constexpr std::uint64_t sqrtHalf = 0x3FE6A09E667F3BCD;
    // x = 2^n m with m between sqrt(1/2) and sqrt(2); n comes out of the exponent bits by way of the number 2^52 + n.
    auto const exponent = (bitsOf(x) + (0x3FF0000000000000 - sqrtHalf)) >> 52;
    R const n = fromBits(exponent | 0x4330000000000000) - (0x1p52 + 1023);
    R const m = fromBits(bitsOf(x) - ((exponent - 1023) << 52));
    R const f = m - 1.0;
    R const s = f / (m + 1.0);
    R const z = s * s;
    R const tail = s * (f - z * polynomial(z, fit)) - n * 7.440617110012397e-11;
    R const result = n * 0.6931471804855391 + (f - tail);
    auto const regular = (x >= DBL_MIN) & (x <= DBL_MAX);
    if (all(regular)) // most often; the values of regular lanes are the same either way
        return result;
    auto const zero = x == 0.0;
    auto const subnormal = (x > 0.0) & (x < DBL_MIN);
    R const raised = log(select(subnormal, x * 0x1p54, R(1.0))) - 54 * std::numbers::ln2;
    R const pole = -1.0 / abs(select(zero, x, R(1.0)));
    return select(regular, result, select(subnormal, raised, select(zero, pole, select(x > 0.0, x, R(notANumber)))));
}

/// log(1 + x), for x above -1. 1.6 ulp.
template <class R> [[gnu::always_inline]] inline R log1p(R x) {
    R const sum = 1.0 + x;
    return log(sum) + (x - (sum - 1.0)) / sum;
}

/// Cube root; 0 for 0, without meaning for subnormal numbers. 1.2 ulp.
template <class R> R cbrt(R x) {
    // r = 1 / cbrt(|x|): within 4 % by taking a third of the bits off, then two steps of the fourth order.
    R const size = abs(x);
    R const third = (fromBits((bitsOf(size) >> 12) | 0x4330000000000000) - 0x1p52) / 3.0;
    R r = fromBits(bitsOf(0x1.54fba5e353f7cp50 - third + 0x1p52) << 12);
    for (int i = 0; i < 2; ++i) {
        R const h = 1.0 - size * r * r * r;
        r = r + r * h * (1.0 / 3 + h * (2.0 / 9 + h * (14.0 / 81)));
    }
    R const root = size * r * r;
    return copySign(root + (size - root * root * root) * r * r / 3.0, x);
}

} // namespace ZrProj::levels::ZRPROJ_LEVEL
