// Mercator's projection of the unit sphere about an oblique line, a great circle: what the oblique Mercators share.
//
// Source    Snyder (1987), Map Projections: A Working Manual, pp. 66-75; equation numbers are his.
// Departs   the line's pole is taken for the centre of a frame; the logarithm of (9-4) and (9-30) is written so that
//           it loses no digits near the poles.
// Domain    all but the line's two poles.
#pragma once

#include "formulas/auxiliary_latitude.h"
#include "formulas/centred_frame.h"
#include "formulas/edges.h"
#include "formulas/points.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

/// Sine and cosine of the latitude on a sphere of an isometric latitude within +-350.
template <class R> SinCos<R> mercatorLatitude(R psi) {
    R const E = exp(psi), E2 = E * E, scale = 1.0 / (E2 + 1.0);
    return {(E2 - 1.0) * scale, 2.0 * E * scale};
}

/// Distances along the line, from where it crosses the equator with the pole on its left, and across, towards the pole.
template <class R> struct AlongAcross { R along, across; };

/// A point of the map on the sphere, where the map reaches it.
template <class R> struct OnObliqueCylinder {
    OnSphere<R> place;
    Condition<R> inside;
};

struct ObliqueCylinder {
    CentredFrame pole;

    /// Infinitely far across is NaN.
    template <class R> AlongAcross<R> forward(SinCos<R> phi, R theta) const {
        auto const p = pole.place(phi, theta);
        R const cosine = sqrt(p.east * p.east + p.north * p.north);
        auto const shown = cosine > closest;
        R const across = isometric(SinCos<R>{p.up, select(shown, cosine, R(1.0))}); // (9-4), (9-30)
        return {atan2(p.north, p.east), select(shown, across, R(unplottable))};     // (9-3), (9-31)
    }

    /// Of length 1.
    template <class R> OnObliqueCylinder<R> inverse(AlongAcross<R> p) const {
        constexpr double farthest = 32.23619130191664; // log(2 / (2 closest))
        Condition<R> const inside = (abs(p.along) <= pi * (1 + coordinateNoise)) & (abs(p.across) <= farthest);
        auto const at = sinCos(select(inside, p.along, R(0.0)));
        auto const up = mercatorLatitude(select(inside, p.across, R(0.0)));
        return {pole.onSphere(Place<R>{up.cos * at.cos, up.cos * at.sin, up.sin}), inside};
    }
};

/// The edges of such a map, which ends at the line's poles and where `along` is half a turn. `latitude` gives the
/// geographic latitude, in radians, of a place on the sphere.
template <class Latitude> MapEdges edgesOf(ObliqueCut const& cut, Latitude const& latitude) {
    MapEdges ends;
    if (cut.B > 1) // the sphere has less longitude than the globe
        ends.window = windowAbout(cut.lon0, 180 / cut.B);
    if (std::fabs(cut.cosPole) < 1e-12) { // the line is the equator
        ends.window = windowAbout(cut.lon0 + (cut.lonPole + 90) / cut.B, 180 / cut.B);
        ends.window.north = 90 - placeInset;
        ends.window.south = -ends.window.north;
        return ends;
    }
    ends.oblique = cut;
    for (int i = 0; i < 2; ++i) {
        double const far = (i == 1) == (cut.cosPole > 0) ? 180 : 0; // a cosine below 0: beyond the pole of the sphere
        double const lon = std::remainder(cut.lonPole + far, 360.0), sine = i == 0 ? cut.sinPole : -cut.sinPole;
        auto const around =
            edgesAround(cut.lon0 + lon / cut.B, latitude(SinCos<double>{sine, std::fabs(cut.cosPole)}) / degree);
        Hole& hole = i == 0 ? ends.hole : ends.otherHole;
        hole = around.hole;
        hole.isAtCut = true;
    }
    return ends;
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
