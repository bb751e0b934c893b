// Auxiliary latitudes of an ellipsoid, and back: conformal, authalic and rectifying.
//
// Source    Karney (2024), On auxiliary latitudes, Survey Review 56, for the idea: a latitude that is an odd function
//           of the geodetic one differs from it by a rapidly falling series in sin 2 phi, sin 4 phi, ...
// Departs   The coefficients are not expansions in the flattening but Fourier sums of the exact definitions (Snyder
//           1987, pp. 15-17), worked out when a projection is made ready. They hold for flattenings up to 0.2.
// Accuracy  6e-16 rad either way (measured by the tests), for flattenings up to 0.2. A sphere has no terms.
#pragma once

#include "formulas/points.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

/// An auxiliary latitude xi(phi), both ways.
struct AuxiliaryLatitude {
    static constexpr int maxTerms = 32;
    static constexpr double flattest = 0.2; // flattening that the accuracy holds for; the limit of maps made with it

    /// Coefficients of sin 2 phi, sin 4 phi, ... in xi - phi, and of sin 2 xi, ... in phi - xi. Not `converged`: the
    /// ellipsoid is too flat for the series, and the results have no meaning.
    int terms = 0;
    bool converged = true;
    double toXi[maxTerms] = {}, toPhi[maxTerms] = {};

    /// xi of a geodetic latitude with its sine and cosine.
    template <class R> R auxiliary(R phi, SinCos<R> at) const { return phi + sineSeries(toXi, at); }

    /// The geodetic latitude of xi with its sine and cosine.
    template <class R> R geodetic(R xi, SinCos<R> at) const { return xi + sineSeries(toPhi, at); }

private:
    /// c[0] sin 2x + c[1] sin 4x + ..., by Clenshaw's recurrence.
    template <class R> R sineSeries(double const* c, SinCos<R> at) const {
        R const sin2 = 2.0 * at.sin * at.cos, twiceCos2 = 2.0 - 4.0 * at.sin * at.sin;
        R b1 = 0.0, b2 = 0.0;
        for (int k = terms; k-- > 0;) {
            R const b = c[k] + (twiceCos2 * b1 - b2);
            b2 = b1;
            b1 = b;
        }
        return sin2 * b1;
    }
};

/// The latitude on the sphere onto which the ellipsoid of this flattening is mapped conformally.
AuxiliaryLatitude conformalLatitude(double flattening);

/// The latitude on the sphere of the same surface, equal areas kept.
AuxiliaryLatitude authalicLatitude(double flattening);

/// The latitude on the sphere whose meridian has the same length, distances along it kept.
AuxiliaryLatitude rectifyingLatitude(double flattening);

/// The length of a meridian from the equator to a pole over pi / 2, in units of the semi-major axis: the meridian
/// distance is a * rectifyingRadius * mu.
double rectifyingRadius(double flattening);

/// q of Snyder (3-12) at the pole; the authalic sphere's radius is a * sqrt(q / 2).
double authalicQ(double flattening);

/// The isometric latitude of a conformal one, log tan(pi/4 + chi/2); 37 or so at the pole.
template <class R> R isometric(SinCos<R> chi) {
    return copySign(log((1.0 + abs(chi.sin)) / chi.cos), chi.sin);
}

/// The conformal latitude of an isometric one.
template <class R> R conformalOf(R psi) {
    R const up = exp(abs(psi));
    return copySign(atan2(up - 1.0 / up, R(2.0)), psi);
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
