// Geodesics of an oblate ellipsoid: where one leads to, and how its end moves with its start.
//
// Source    Karney (2013), Algorithms for geodesics, Journal of Geodesy 87, pp. 43-55; equation numbers are his.
// Departs   the inverse problem is left to the projections, which solve it by Newton's method in two dimensions on the
//           direct one: what they find leads back by the same lines. (38) and (39) only steer them, and take the
//           difference of the integrals I1 and I2 from a series of the third order.
// Accuracy  1e-8 m for flattenings up to 1/100, 3e-7 m at `flattest`, on the Earth (measured).
//
// Lengths are in units of the semi-minor axis. A geodesic is drawn as a great circle on an auxiliary sphere:
// beta            reduced latitude; azimuths alpha stay as they are, alpha0 at the equator
// sigma           arc from where the circle crosses the equator northward; sigma12 from start to end
// tau             sigma, made proportional to the length on the ellipsoid
// omega, lambda   longitude on the sphere, on the ellipsoid
// epsilon, k      expansion parameters, (16) and (9)
#pragma once

#include "formulas/points.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

/// Half the width, in radians, of the edges where geodesics meet: places beyond an edge by so little are moved onto it.
inline constexpr double seam = 2e-15;

template <class R> SinCos<R> sumOf(SinCos<R> a, SinCos<R> b) {
    return {a.sin * b.cos + a.cos * b.sin, a.cos * b.cos - a.sin * b.sin};
}

/// The angle of the point (cos, sin), which need not lie on the unit circle; 0 of the origin.
template <class R> SinCos<R> angleOfPoint(SinCos<R> p) {
    R const square = p.sin * p.sin + p.cos * p.cos;
    auto const nowhere = square == 0.0;
    R const scale = 1.0 / sqrt(select(nowhere, R(1.0), square));
    return {p.sin * scale, select(nowhere, R(1.0), p.cos * scale)};
}

/// A geodesic by its start.
template <class R> struct GeodesicLine {
    SinCos<R> beta1, alpha1, alpha0, sigma1;
    R k2, epsilon, A1;
};

/// Where it has come to.
template <class R> struct GeodesicEnd {
    SinCos<R> beta2, alpha2, sigma2;
    R sigma12, lambda12;
};

/// How far a place lies ahead of a geodesic's end, and to the right, in units of the semi-major axis; for small
/// distances.
template <class R> struct GeodesicMiss { R ahead, right; };

/// A3 and C3 of I3, from which lambda follows, (24) and (25).
template <class R> struct Series3 { R A3, C3[5]; };

struct GeodesicSeries {
    /// The greatest flattening that the series of the sixth order are good for.
    static constexpr double flattest = 0.02;

    double f, e2, ep2;      // flattening, eccentricity squared, e2 / (1 - e2)
    double a3[6], c3[5][6]; // of A3 and C3, by powers of epsilon

    explicit GeodesicSeries(double flattening);

    template <class R> SinCos<R> reduced(R phi) const;
    template <class R> R geodetic(SinCos<R> beta) const { return atan2(beta.sin, (1 - f) * beta.cos); }

    /// The length of a radian of beta on a meridian, in units of the semi-major axis.
    template <class R> R meridianScale(SinCos<R> beta) const { return sqrt(1.0 - e2 * beta.cos * beta.cos); }

    template <class R> GeodesicLine<R> line(SinCos<R> beta1, SinCos<R> alpha1) const;
    template <class R> GeodesicEnd<R> end(GeodesicLine<R> const& line, R tau12) const;
    template <class R> GeodesicMiss<R> miss(GeodesicEnd<R> const& end, SinCos<R> beta, R lambda) const;

    /// m12, what the end moves to the right for a radian of azimuth, (38).
    template <class R> static R reducedLength(GeodesicLine<R> const& line, GeodesicEnd<R> const& end);
    /// M12, what the end moves to the right for a move of the start to the right, (39).
    template <class R> static R geodesicScale(GeodesicLine<R> const& line, GeodesicEnd<R> const& end);

    template <class R> R k2(R cosAlpha0) const { return ep2 * cosAlpha0 * cosAlpha0; } // (9)
    template <class R> Series3<R> series3(R epsilon) const;
};

/// c[0] sin 2x + c[1] sin 4x + ..., by Clenshaw's recurrence; the sum over sin 2x alone by 2 cos 2x.
template <class R, class C, std::size_t N> R evenSinesOverFirst(C const (&c)[N], R twiceCos2) {
    R b1 = c[N - 1], b2 = 0.0;
    for (std::size_t k = N - 1; k-- > 0;) {
        R const b = c[k] + (twiceCos2 * b1 - b2);
        b2 = b1;
        b1 = b;
    }
    return b1;
}

template <class R, class C, std::size_t N> R evenSines(C const (&c)[N], SinCos<R> x) {
    return 2.0 * x.sin * x.cos * evenSinesOverFirst(c, 2.0 * (x.cos - x.sin) * (x.cos + x.sin));
}

/// Coefficients of tau - sigma in sin 2 sigma, sin 4 sigma, ..., (18), and of sigma - tau in sin 2 tau, ..., (21).
template <class R> struct Waves { R c[6]; };

template <class R> Waves<R> wavesToTau(R epsilon) {
    R const e = epsilon, e2 = e * e, e3 = e * e2, e4 = e2 * e2;
    return {{e * (-1.0 / 2 + e2 * (3.0 / 16 - e2 / 32.0)), e2 * (-1.0 / 16 + e2 * (1.0 / 32 - e2 * (9.0 / 2048))),
             e3 * (-1.0 / 48 + e2 * (3.0 / 256)), e4 * (-5.0 / 512 + e2 * (3.0 / 512)), e4 * e * (-7.0 / 1280),
             e4 * e2 * (-7.0 / 2048)}};
}

template <class R> Waves<R> wavesToSigma(R epsilon) {
    R const e = epsilon, e2 = e * e, e3 = e * e2, e4 = e2 * e2;
    return {{e * (1.0 / 2 + e2 * (-9.0 / 32 + e2 * (205.0 / 1536))),
             e2 * (5.0 / 16 + e2 * (-37.0 / 96 + e2 * (1335.0 / 4096))), e3 * (29.0 / 96 - e2 * (75.0 / 128)),
             e4 * (539.0 / 1536 - e2 * (2391.0 / 2560)), e4 * e * (3467.0 / 7680), e4 * e2 * (38081.0 / 61440)}};
}

/// (16)
template <class R> R epsilonOf(R k2) {
    R const root = 1.0 + sqrt(1.0 + k2);
    return k2 / (root * root);
}

/// A1, the length over tau, (17).
template <class R> R lengthOverTau(R epsilon) {
    R const e = epsilon, e2 = e * e;
    return (1.0 + e2 * (1.0 / 4 + e2 * (1.0 / 64 + e2 / 256.0))) * ((1.0 + e) * (1.0 + e2) * (1.0 + e2 * e2));
}

template <class R> Series3<R> GeodesicSeries::series3(R epsilon) const {
    Series3<R> series{polynomial(epsilon, a3), {}};
    for (int l = 0; l < 5; ++l)
        series.C3[l] = polynomial(epsilon, c3[l]);
    return series;
}

template <class R> SinCos<R> GeodesicSeries::reduced(R phi) const {
    auto const at = sinCos(phi);
    return angleOfPoint<R>({(1 - f) * at.sin, at.cos});
}

template <class R> GeodesicLine<R> GeodesicSeries::line(SinCos<R> beta1, SinCos<R> alpha1) const {
    R const across = alpha1.sin * beta1.sin;
    SinCos<R> const alpha0{alpha1.sin * beta1.cos, sqrt(alpha1.cos * alpha1.cos + across * across)}; // (5)
    auto const sigma1 = angleOfPoint<R>({beta1.sin, alpha1.cos * beta1.cos});                        // (11)
    R const square = k2(alpha0.cos), epsilon = epsilonOf(square);
    return {beta1, alpha1, alpha0, sigma1, square, epsilon, lengthOverTau(epsilon)};
}

template <class R> GeodesicEnd<R> GeodesicSeries::end(GeodesicLine<R> const& line, R tau12) const {
    GeodesicEnd<R> end;
    R const tau2LessSigma1 = tau12 + evenSines(wavesToTau(line.epsilon).c, line.sigma1);
    auto const tau2 = sumOf(line.sigma1, sinCos(tau2LessSigma1));
    end.sigma12 = tau2LessSigma1 + evenSines(wavesToSigma(line.epsilon).c, tau2); // (20)
    auto const arc = sinCos(end.sigma12);
    end.sigma2 = sumOf(line.sigma1, arc);
    R const north = line.alpha0.cos * end.sigma2.cos;
    end.beta2 = {line.alpha0.cos * end.sigma2.sin, sqrt(line.alpha0.sin * line.alpha0.sin + north * north)}; // (13)
    end.alpha2 = angleOfPoint<R>({line.alpha0.sin, north});                                                  // (14)
    R const out = line.beta1.cos * arc.cos - line.beta1.sin * arc.sin * line.alpha1.cos;
    R const omega = atan2(arc.sin * line.alpha1.sin, out);
    R const omega12 = select(omega < -halfPi, omega + 2 * pi, omega); // goes on beyond half a turn
    auto const third = series3(line.epsilon);
    R const waves = evenSines(third.C3, end.sigma2) - evenSines(third.C3, line.sigma1);
    end.lambda12 = omega12 - f * line.alpha0.sin * third.A3 * (end.sigma12 + waves); // (8), (23)
    return end;
}

template <class R> GeodesicMiss<R> GeodesicSeries::miss(GeodesicEnd<R> const& end, SinCos<R> beta, R lambda) const {
    auto const half = sinCos(0.5 * (lambda - end.lambda12));
    R const east = 2.0 * beta.cos * half.sin * half.cos;
    R const level = beta.sin * end.beta2.cos - beta.cos * end.beta2.sin;
    R const north = meridianScale(end.beta2) * (level + 2.0 * beta.cos * end.beta2.sin * half.sin * half.sin);
    return {east * end.alpha2.sin + north * end.alpha2.cos, east * end.alpha2.cos - north * end.alpha2.sin};
}

/// Whether Newton's method has arrived after a step that turned the start by `turn`: what is left is its square.
template <class R> Condition<R> isLast(GeodesicMiss<R> miss, R turn) {
    R const size = abs(miss.ahead) + abs(miss.right);
    return ((size < 1e-8) & (abs(turn) < 1e-8)) | (size < 4e-16);
}

/// J, the difference of (40), from start to end.
template <class R> R differenceJ(GeodesicLine<R> const& line, GeodesicEnd<R> const& end) {
    R const e = line.epsilon;
    R const c[] = {-1.0 - e * e * (5.0 / 8), e * (-1.0 / 4 + e / 8.0), e * e * (-1.0 / 8)};
    R const waves = evenSines(c, end.sigma2) - evenSines(c, line.sigma1);
    return e * ((2.0 + e * (1.0 + 1.5 * e)) * end.sigma12 + waves);
}

template <class R> R GeodesicSeries::reducedLength(GeodesicLine<R> const& line, GeodesicEnd<R> const& end) {
    auto const &one = line.sigma1, &two = end.sigma2;
    R const w1 = sqrt(1.0 + line.k2 * one.sin * one.sin), w2 = sqrt(1.0 + line.k2 * two.sin * two.sin);
    return w2 * one.cos * two.sin - w1 * one.sin * two.cos - one.cos * two.cos * differenceJ(line, end);
}

template <class R> R GeodesicSeries::geodesicScale(GeodesicLine<R> const& line, GeodesicEnd<R> const& end) {
    auto const &one = line.sigma1, &two = end.sigma2;
    R const w1 = sqrt(1.0 + line.k2 * one.sin * one.sin), w2 = sqrt(1.0 + line.k2 * two.sin * two.sin);
    return one.cos * two.cos + (w2 * one.sin * two.sin - one.sin * two.cos * differenceJ(line, end)) / w1;
}

/// Where geodesics of one family come together, next to their focus: the distance kappa from a place (x, y) back to the
/// astroid that they touch, in units of its size: x = (1 + kappa) cos, y = kappa sin of one angle, kappa the greatest
/// that there is, (55) and (56). Close enough to start from; y = 0 counts as a hair beside it.
template <class R> struct BeforeFocus {
    R kappa;
    SinCos<R> angle;
};

template <class R> BeforeFocus<R> beforeFocus(R x, R y) {
    R const height = abs(y) + 1e-14;
    R kappa = select(height > abs(x) - 1.0, height, abs(x) - 1.0);
    for (int i = 0; i < 6; ++i) { // Newton's method, from below
        R const inside = 1.0 / (1.0 + kappa), outside = 1.0 / kappa;
        R const p = x * inside, q = height * outside;
        kappa = kappa + 0.5 * (p * p + q * q - 1.0) / (p * p * inside + q * q * outside);
    }
    return {kappa, angleOfPoint<R>({copySign(height, y) / kappa, x / (1.0 + kappa)})};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
