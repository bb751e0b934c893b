// Lengths and latitudes on an ellipsoid whose semi-major axis is 1: the isometric latitude psi, in which conformal maps
// are written, and back; along a meridian from the equator, and around a parallel.
//
// Source    Snyder (1987), Map Projections: A Working Manual, pp. 15-19, 24-25; equation numbers are his.
// Departs   the meridian distance and the way back from psi go by the series of auxiliary_latitude.h.
// Accuracy  psi to 4e-16 of itself, or of 1 where that is more; the latitude to 6e-16 rad; lengths to 6e-16.
#pragma once

#include "formulas/auxiliary_latitude.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

/// c[0] + c[1] x + c[2] x^2 + ..., for x between 0 and 1. No terms: 0.
struct PowerSeries {
    static constexpr int maxTerms = 64;

    int terms = 0;
    double c[maxTerms] = {};

    template <class R> R operator()(R x) const {
        R sum = 0.0;
        for (int k = terms; k-- > 0;)
            sum = sum * x + c[k];
        return sum;
    }
};

/// The series of e artanh(e s) / s in s^2, for flattenings up to 0.3.
PowerSeries eccentricArtanh(double flattening);

/// The latitude next to a pole: isometric latitudes end here, since the poles have none.
inline constexpr double nextToPole = 1.5707963267948963;

struct IsometricLatitude {
    PowerSeries flattened;
    AuxiliaryLatitude conformal;
    double last; // of nextToPole

    explicit IsometricLatitude(double flattening)
        : flattened(eccentricArtanh(flattening)), conformal(conformalLatitude(flattening)),
          last(of(sinCos(nextToPole))) {}

    /// psi of a geodetic latitude by its sine and cosine; some 37 at a pole.
    template <class R> R of(SinCos<R> phi) const { return isometric(phi) - phi.sin * flattened(phi.sin * phi.sin); }

    /// The geodetic latitude of psi, never a pole; of `last`, where psi is beyond.
    template <class R> R geodetic(R psi) const {
        R const up = exp(clamped(abs(psi), 0, last)), square = up * up;
        R const scale = 1.0 / (square + 1.0);
        SinCos<R> const chi{(square - 1.0) * scale, 2.0 * up * scale};
        R const phi = conformal.geodetic(atan2(square - 1.0, 2.0 * up), chi);
        return copySign(clamped(phi, 0, nextToPole), psi);
    }
};

/// Distances along a meridian and a parallel.
struct Meridian {
    AuxiliaryLatitude rectifying;
    double radius; // a meridian's length over 2 pi
    double e2;

    explicit Meridian(double flattening)
        : rectifying(rectifyingLatitude(flattening)), radius(rectifyingRadius(flattening)),
          e2(flattening * (2 - flattening)) {}

    /// From the equator to a pole.
    double quadrant() const { return radius * halfPi; }

    /// M of a latitude with its sine and cosine.
    template <class R> R distance(R phi, SinCos<R> at) const { return radius * rectifying.auxiliary(phi, at); }
    double distance(double phi) const { return distance(phi, sinCos(phi)); }

    /// The latitude of M; a pole's, where M is beyond.
    template <class R> R latitude(R distance) const {
        R const mu = clamped(distance * (1 / radius), -halfPi, halfPi);
        return rectifying.geodetic(mu, sinCos(mu));
    }

    /// m, the length of a radian of a parallel, (14-15).
    template <class R> R parallel(SinCos<R> at) const { return at.cos / sqrt(1.0 - e2 * at.sin * at.sin); }
    double parallel(double phi) const { return parallel(sinCos(phi)); }
};

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
