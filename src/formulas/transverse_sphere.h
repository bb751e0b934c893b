// Mercator's projection of the unit sphere about a meridian, which the transverse Mercators start from.
//
// Source    Snyder (1987), Map Projections: A Working Manual, pp. 58-60; equation numbers are his.
// Departs   (8-1) is written so that it loses no digits, neither close to the central meridian nor far from it; what is
//           over 90 degrees away lies beyond the poles. Double angles come without further functions.
// Accuracy  4e-16 of the northing and of the easting, or of 1.
//
// chi, lambda   latitude, longitude from the central meridian
// xi, eta       northing from the equator, -pi to pi; easting
#pragma once

#include "formulas/points.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

/// A point of such a map.
template <class R> struct Transverse { R xi, eta; };

/// The functions of 2 xi and 2 eta.
template <class R> struct DoubleTransverse {
    SinCos<R> xi;
    R sinhEta, coshEta;
};

template <class R> struct OnTransverseSphere {
    Transverse<R> at;
    DoubleTransverse<R> twice;
    Condition<R> far; // at or near one of the two points that lie infinitely far east and west: without meaning
};

/// `chi` may have any length; near an infinite point is where cosh^-2 eta is at most `least`.
template <class R> OnTransverseSphere<R> toTransverse(SinCos<R> chi, R length, SinCos<R> lambda, double least) {
    R const east = chi.cos * lambda.sin, out = chi.cos * lambda.cos, whole = length * length;
    R const across = chi.sin * chi.sin + out * out; // cosh^-2 eta of `whole`
    auto const far = across <= least * whole;
    R const scale = 1.0 / select(far, whole, across), sum = length + abs(east);
    R const eta = 0.5 * log1p(2.0 * abs(east) * sum * scale); // (8-1)
    return {{atan2(chi.sin, out), copySign(eta, east)},       // (8-3)
            {{2.0 * chi.sin * out * scale, (out - chi.sin) * (out + chi.sin) * scale},
             2.0 * east * length * scale,
             (whole + east * east) * scale},
            far};
}

/// A point of the map by its functions; the way back to the sphere needs no more.
template <class R> struct TransverseFunctions {
    SinCos<R> xi;
    R sinhEta, coshEta;

    R lambda() const { return atan2(sinhEta, xi.cos); } // (8-7)

    /// Of length 1; (8-6), without its loss near the poles.
    SinCos<R> chi() const {
        R const scale = 1.0 / coshEta;
        return {xi.sin * scale, sqrt(sinhEta * sinhEta + xi.cos * xi.cos) * scale};
    }
};

template <class R> TransverseFunctions<R> functionsOf(Transverse<R> p) {
    R const up = exp(p.eta), down = 1.0 / up;
    return {sinCos(p.xi), 0.5 * (up - down), 0.5 * (up + down)};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
