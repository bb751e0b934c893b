// What the maps share whose parallels are arcs about a common centre: polar coordinates about it, and back.
//
// Distances north are measured along the central meridian from a parallel of reference, not from the centre, which is
// far away where the cone is nearly a cylinder: what is near stays exact. A cone about the south pole is the mirror
// image of one about the north pole. Lengths are in units of the semi-major axis.
#pragma once

#include "formulas/points.h"

#include "formulas/parameters.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

/// A point of the map: theta from the central meridian on the arc of radius rho, which lies north of the reference.
template <class R> struct OnArc {
    R theta, rho, north;
    R noise; // what rounding may have moved it
    Condition<R> outside;
};

struct ConcentricArcs {
    double a, lambda0;
    double side;        // 1; -1 for the mirror image, whose latitudes and northings are those of the north turned over
    double rho;         // radius of the reference parallel
    double top, bottom; // how far north of it the map begins and ends
    double origin = 0;  // how far north of it the parallel of origin lies

    ConcentricArcs(Parameters const& given, double mirror, double radius, double nearPole, double farPole)
        : a(given.a), lambda0(given.lon0), side(mirror), rho(radius), top(nearPole), bottom(farPole) {}

    template <class R> Xy<R> toMap(R theta, R radius, R north) const {
        auto const half = sinCos(0.5 * theta);
        R const chord = 2.0 * radius * half.sin;
        return {a * (chord * half.cos), side * a * ((north - origin) + chord * half.sin)};
    }

    template <class R> OnArc<R> fromMap(Xy<R> p) const {
        double const reach = a * (2 * rho - bottom + abs(origin) + 1), unit = 1 / a;
        auto const far = (abs(p.x) > reach) | (abs(p.y) > reach);
        R const x = select(far, R(0.0), p.x) * unit, y = select(far, R(0.0), p.y) * (side * unit) + origin;
        R const down = rho - y, radius = sqrt(x * x + down * down), sum = rho + radius;
        R const north = (y * (2.0 * rho - y) - x * x) / select(sum > 0.0, sum, R(1.0)); // rho - radius
        R const noise = coordinateNoise * (abs(x) + abs(y) + (1 + abs(origin)));
        Condition<R> const outside = far | (north > top + noise) | (north < bottom - noise);
        return {atan2(x, down), radius, clamped(north, bottom, top), noise, outside};
    }
};

/// A cone proper: arcs over which longitudes are spread evenly.
struct Cone : ConcentricArcs {
    double n; // the cone constant, above 0

    Cone(ConcentricArcs const& arcs, double constant) : ConcentricArcs(arcs), n(constant) {}

    template <class R> R theta(R lambda) const { return n * longitudeFrom(lambda0, lambda); }

    /// The geographic point of a point on the map, its latitude given as if north of the equator.
    template <class R> LonLat<R> geographic(OnArc<R> at, R phi) const {
        auto const east = onParallel(at.theta * at.rho, n * at.rho, at.noise);
        return {lambda0 + east.lambda, select(at.outside | east.outside, R(unplottable), side * phi)};
    }
};

/// 1 for standard parallels of a cone about the north pole, -1 for the south.
inline double sideOf(double phi1, double phi2) {
    return phi1 + phi2 >= 0 ? 1 : -1;
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
