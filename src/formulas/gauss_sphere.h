// The sphere onto which Gauss maps the ellipsoid conformally, all but true to scale about one parallel: where the
// double projections start from.
//
// Source    Snyder (1987), Map Projections: A Working Manual, pp. 69-74, whose equation numbers these are; the same
//           sphere stands in IOGP (2019), Guidance note 7-2, under oblique stereographic, Krovak and Laborde.
// Departs   sqrt(D^2 - 1) is written as tan(phi0) sqrt((1 - e^2) / (1 - e^2 sin^2 phi0)), good on the equator.
// Accuracy  6e-16 rad.
// Domain    the globe but for longitudes beyond 180 / B degrees from lambda0, a strip along the opposite meridian, 1.2
//           degrees wide at most on the Earth, which would cover what is shown already.
//
// phi0      the parallel          B, E   longitudes on the sphere are B (lambda - lambda0), isometric latitudes
//                                        B psi + log E, psi being that of the ellipsoid
// chi       latitude on the sphere
#pragma once

#include "formulas/centred_frame.h"
#include "formulas/ellipsoid.h"
#include "formulas/oblique_cylinder.h"
#include "formulas/points.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

/// The sphere's constants.
struct GaussSphere {
    double e, B, logE, D;
    double tangent; // sqrt(D^2 - 1), with the sign of phi0: that of chi0
    double radius;  // over the semi-major axis

    GaussSphere(double flattening, double phi0) : e(std::sqrt(flattening * (2 - flattening))) {
        double const s = std::sin(phi0), c = std::cos(phi0), sine = std::fabs(s);
        double const root = 1 - flattening, w = std::sqrt(1 - e * e * s * s);
        double const excess = e * e / (root * root) * c * c * c * c; // B^2 - 1
        B = std::sqrt(1 + excess);                                   // (9-11)
        radius = root / (w * w);                                     // (9-12)
        D = B * root / (c * w);                                      // (9-14)
        tangent = s * root / (c * w);
        // (9-36), the large parts of its two logarithms taken off each other.
        double const gap = std::log((B + sine) * root / ((1 + sine) * w)) + eccentricPart(sine);
        logE = std::copysign(gap - excess / (B + 1) * isometricOf(sine, c), s);
    }

    /// Of chi0.
    CentredFrame centre() const { return {tangent / D, 1 / D}; }

    double eccentricPart(double sine) const { return e * std::atanh(e * sine); }

    /// Of a latitude's sine, not below 0, and cosine.
    double isometricOf(double sine, double cosine) const { return std::log((1 + sine) / cosine) - eccentricPart(sine); }

    /// The isometric latitude on the sphere of a geodetic latitude.
    double isometricOn(double phi) const {
        double const psi = isometricOf(std::fabs(std::sin(phi)), std::cos(phi));
        return B * std::copysign(psi, std::sin(phi)) + logE;
    }
};

/// A place on the sphere, its longitude from lambda0; `covered`: in the strip that is not shown.
template <class R> struct OnGaussSphere {
    OnSphere<R> place;
    Condition<R> covered;
};

/// The way to the sphere and back.
struct ToGaussSphere {
    double B, logE, lambda0;
    IsometricLatitude isometricLatitude;

    ToGaussSphere(GaussSphere const& sphere, double flattening, double lambda)
        : B(sphere.B), logE(sphere.logE), lambda0(lambda), isometricLatitude(flattening) {}

    template <class R> OnGaussSphere<R> forward(LonLat<R> p) const {
        R const L = B * longitudeFrom(lambda0, p.lon);
        auto const chi = mercatorLatitude(B * isometricLatitude.of(sinCos(p.lat)) + logE);
        Condition<R> const covered = (abs(L) > pi * (1 + coordinateNoise)) & (abs(p.lat) < halfPi);
        return {{L, chi}, covered};
    }

    /// Of a place whose latitude has a sine and cosine of length 1.
    template <class R> LonLat<R> inverse(OnSphere<R> q) const {
        SinCos<R> const chi{q.phi.sin, select(q.phi.cos < 1e-20, R(1e-20), q.phi.cos)};
        R const psi = (isometric(chi) - logE) * (1 / B);
        return {lambda0 + q.theta * (1 / B), isometricLatitude.geodetic(psi)};
    }
};

/// Whether the ellipsoid can be carried by such a sphere.
inline bool hasGaussSphere(double flattening) {
    return flattening <= AuxiliaryLatitude::flattest;
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
