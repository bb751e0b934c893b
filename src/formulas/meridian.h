// Lengths on an ellipsoid whose semi-major axis is 1: along a meridian from the equator, and around a parallel.
//
// Source    Snyder (1987), Map Projections: A Working Manual, pp. 16-17, 24-25; equation numbers are his.
// Departs   the meridian distance by the series of auxiliary_latitude.h.
// Accuracy  6e-16.
#pragma once

#include "formulas/auxiliary_latitude.h"
#include "formulas/outline.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

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
