// Transverse Mercator of the ellipsoid by Krueger's series, in units of the rectifying sphere's radius.
//
// Source    Karney (2011), Transverse Mercator with an accuracy of a few nanometers, Journal of Geodesy 85, pp. 475-485;
//           equation numbers are his.
// Departs   the series are summed as polynomials in 2 cos 2 zeta, which takes half the multiplications of Clenshaw's
//           recurrence; sin chi and cos chi come from those of phi without a square root; the way back turns the
//           functions of the map point by what the series moves it.
// Accuracy  1e-15 as far as 35 degrees from the central meridian; to the reach, 1e-14 more from what the series omits.
// Domain    the globe, both sides of the poles, as far as the reach from the central meridian, for flattenings up to
//           1/50. The reach is where the first term that is left out comes to 1e-14: 61 degrees on the Earth.
//
// phi, chi, lambda   geodetic and conformal latitude, longitude from the central meridian
// zeta'= xi' + i eta'    the point on the map of the conformal sphere, zeta = xi + i eta on that of the ellipsoid
#pragma once

#include "formulas/auxiliary_latitude.h"
#include "formulas/ellipsoid.h"
#include "formulas/krueger_table.h"
#include "formulas/transverse_sphere.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

/// c_1 sin 2 zeta + c_2 sin 4 zeta + ... as sin 2 zeta times a polynomial in 2 cos 2 zeta.
struct SinesOfZeta {
    static constexpr int orders = 8;
    double q[orders] = {};

    /// The coefficients of the sines from a table of their expansions in n.
    static SinesOfZeta make(double (&c)[orders], double const (&table)[orders][orders], double n) {
        double power = 1;
        for (int j = 0; j < orders; ++j) {
            power *= n;
            c[j] = power * polynomial(n, table[j]);
        }
        // sin 2j zeta / sin 2 zeta obeys Chebyshev's recurrence u_j = z u_(j-1) - u_(j-2) in z = 2 cos 2 zeta.
        SinesOfZeta sum;
        double before[orders] = {}, u[orders] = {1};
        for (int j = 0; j < orders; ++j) {
            double next[orders] = {};
            for (int k = 0; k < orders; ++k) {
                sum.q[k] += c[j] * u[k];
                next[k] = (k > 0 ? u[k - 1] : 0) - before[k];
            }
            for (int k = 0; k < orders; ++k) {
                before[k] = u[k];
                u[k] = next[k];
            }
        }
        return sum;
    }

    template <class R> Transverse<R> operator()(DoubleTransverse<R> twice) const {
        R const sine = twice.xi.sin * twice.coshEta, sineI = twice.xi.cos * twice.sinhEta; // sin 2 zeta
        R const z = 2.0 * twice.xi.cos * twice.coshEta, zI = -2.0 * twice.xi.sin * twice.sinhEta;
        R const r = 2.0 * z, s = z * z + zI * zI; // z is a root of z^2 - r z + s: what is left of q after a division
        R b1 = q[orders - 1], b2 = 0.0;
        for (int k = orders - 1; k-- > 1;) {
            R const b = (q[k] - s * b2) + r * b1;
            b2 = b1;
            b1 = b;
        }
        R const value = (q[0] - s * b2) + z * b1, valueI = zI * b1;
        return {sine * value - sineI * valueI, sine * valueI + sineI * value};
    }
};

struct Krueger {
    static constexpr double flattest = 0.02;

    PowerSeries flattened; // e artanh(e sin phi) / sin phi
    AuxiliaryLatitude conformal;
    SinesOfZeta toMap, toSphere;
    double reach;       // eta' where the map ends
    double least, most; // cosh^-2 and sinh of it

    explicit Krueger(double flattening)
        : flattened(eccentricArtanh(flattening)), conformal(conformalLatitude(flattening)) {
        double const n = flattening / (2 - flattening);
        double alpha[SinesOfZeta::orders], beta[SinesOfZeta::orders];
        toMap = SinesOfZeta::make(alpha, kruegerToMap, n);
        toSphere = SinesOfZeta::make(beta, kruegerToSphere, n);
        reach = reachOf(flattening);
        least = 1 / (std::cosh(reach) * std::cosh(reach));
        most = std::sinh(reach);
    }

    /// Where the ninth term, c sin 18 zeta, comes to 1e-14: c falls to alpha_8 as alpha_8 does to alpha_7. On a sphere,
    /// which needs no term, next to the infinite points.
    static double reachOf(double flattening) {
        double const n = flattening / (2 - flattening), *const a7 = kruegerToMap[6], a8 = kruegerToMap[7][0];
        double const ninth = a8 * a8 / a7[0] * std::pow(n, 9), nearest = 32;
        return n == 0 ? nearest : std::fmin(std::log(2e-14 / ninth) / 18, nearest);
    }

    /// NaN beyond the reach.
    template <class R> Transverse<R> forward(R lat, R lambda) const {
        auto const phi = sinCos(lat);
        R const shift = phi.sin * flattened(phi.sin * phi.sin), s2 = shift * shift; // psi on the sphere less psi
        R const sinh = shift * (1.0 + s2 * (1.0 / 6) * (1.0 + s2 * (1.0 / 20) * (1.0 + s2 * (1.0 / 42))));
        R const cosh = 1.0 + s2 * 0.5 * (1.0 + s2 * (1.0 / 12) * (1.0 + s2 * (1.0 / 30) * (1.0 + s2 * (1.0 / 56))));
        SinCos<R> const chi{phi.sin * cosh - sinh, phi.cos}; // (7) to (9), times `length`
        R const length = cosh - phi.sin * sinh;
        auto const sphere = toTransverse(chi, length, sinCos(lambda), least); // (10)
        auto const move = toMap(sphere.twice);                                // (11)
        return {sphere.at.xi + move.xi, select(sphere.far, R(unplottable), sphere.at.eta + move.eta)};
    }

    /// xi of a point on the central meridian.
    double meridian(double phi) const { return forward(phi, 0.0).xi; }

    /// Latitude and longitude from the central meridian; NaN where forward() does not lead to.
    template <class R> LonLat<R> inverse(Transverse<R> p) const {
        auto const inside = (abs(p.xi) <= pi * (1 + coordinateNoise)) & (abs(p.eta) <= reach + 1);
        Transverse<R> const zeta{select(inside, p.xi, R(0.0)), select(inside, p.eta, R(0.0))};
        auto const map = functionsOf(zeta);
        DoubleTransverse<R> const twice{{2.0 * map.xi.sin * map.xi.cos, 1.0 - 2.0 * map.xi.sin * map.xi.sin},
                                        2.0 * map.sinhEta * map.coshEta,
                                        1.0 + 2.0 * map.sinhEta * map.sinhEta};
        auto const sphere = turned(map, toSphere(twice)); // (15)
        auto const chi = sphere.chi();
        auto const shown = inside & (abs(sphere.sinhEta) <= most * (1 + 1e-12));
        R const phi = conformal.geodetic(atan2(chi.sin, chi.cos), chi);
        return {sphere.lambda(), select(shown, phi, R(unplottable))}; // (18)
    }

private:
    /// The functions of xi - move.xi and eta - move.eta, moves of up to 0.02.
    template <class R> static TransverseFunctions<R> turned(TransverseFunctions<R> at, Transverse<R> move) {
        R const x2 = move.xi * move.xi, e2 = move.eta * move.eta;
        R const sin = move.xi * (1.0 - x2 * (1.0 / 6) * (1.0 - x2 * (1.0 / 20) * (1.0 - x2 * (1.0 / 42))));
        R const cos = 1.0 - x2 * 0.5 * (1.0 - x2 * (1.0 / 12) * (1.0 - x2 * (1.0 / 30)));
        R const sinh = move.eta * (1.0 + e2 * (1.0 / 6) * (1.0 + e2 * (1.0 / 20) * (1.0 + e2 * (1.0 / 42))));
        R const cosh = 1.0 + e2 * 0.5 * (1.0 + e2 * (1.0 / 12) * (1.0 + e2 * (1.0 / 30)));
        return {{at.xi.sin * cos - at.xi.cos * sin, at.xi.cos * cos + at.xi.sin * sin},
                at.sinhEta * cosh - at.coshEta * sinh,
                at.coshEta * cosh - at.sinhEta * sinh};
    }
};

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
