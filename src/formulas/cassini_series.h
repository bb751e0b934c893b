// Cassini's map close to its central meridian, in powers of the longitude.
//
// Source    the distance x from the central meridian obeys |grad x| = 1, and the northing y of the foot of the geodesic
//           from there grad x . grad y = 0 (Snyder 1987, p. 93, prints the first terms, 13-7 and 13-8).
// Departs   more terms: the coefficients come from these two equations by recursion when a map is made, exact for any
//           flattening.
// Accuracy  5e-16 of the radius up to `widest` (measured).
//
// phi, lambda   latitude, longitude from the central meridian        s, c2   squared sine, squared cosine of phi
// N, M          radii of curvature, units of the semi-major axis     E       second eccentricity squared
//
//     x = N cos phi lambda (alpha_0 + alpha_1 lambda^2 + ...),
//     y = distance of phi on the meridian + N sin phi cos phi lambda^2 (beta_0 + beta_1 lambda^2 + ...),
//
// alpha_k a polynomial in s of degree 2 k - 1 (alpha_0 = 1), beta_k one of degree 2 k.
#pragma once

#include "formulas/ellipsoid.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

struct CassiniSeries {
    static constexpr double widest = 0.08; // radians of longitude
    static constexpr int orders = 6, coefficients = 2 * orders - 1;

    Meridian meridian;
    double alpha[orders][coefficients], beta[orders][coefficients]; // by powers of lambda^2 and of s

    explicit CassiniSeries(double flattening);

    /// For longitudes up to `widest`; in units of the semi-major axis.
    template <class R> Xy<R> forward(R phi, R lambda) const {
        auto const at = sinCos(phi);
        R const s = at.sin * at.sin, square = lambda * lambda;
        R const east = meridian.parallel(at) * lambda, north = east * lambda * at.sin;
        return {east + east * square * sum<1>(alpha, s, square), // exact where the rest vanishes
                meridian.distance(phi, at) + north * sum<0>(beta, s, square)};
    }

private:
    /// The terms of the orders from `first` on, divided by lambda^(2 first).
    template <int first, class R> static R sum(double const (&c)[orders][coefficients], R s, R square) {
        R total = 0.0;
        for (int k = orders; k-- > first;) {
            double const* const series = c[k];
            int power = 2 * k;
            R term = series[power];
            while (power-- > 0)
                term = term * s + series[power];
            total = total * square + term;
        }
        return total;
    }
};

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
