// What the cylindrical maps share: a rectangle, the longitudes spread evenly over its width.
#pragma once

#include "formulas/points.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

/// A point of the map: its longitude, and how far it lies north of the equator, at most as far as the map ends.
template <class R> struct OnCylinder {
    R lon, north;
    Condition<R> outside;
};

struct Cylinder {
    double a;                  // semi-major axis
    double lambda0, perRadian; // length of a radian of longitude
    double top;                // how far north of the equator the map ends
    double origin;             // how far north of it the parallel of origin lies

    template <class R> Xy<R> toMap(R lon, R north) const {
        return {perRadian * longitudeFrom(lambda0, lon), north - origin};
    }

    template <class R> OnCylinder<R> fromMap(Xy<R> p) const {
        double const right = pi * perRadian + noiseOf(pi * perRadian), upper = top + noiseOf(top);
        R const y = p.y + origin;
        Condition<R> const outside = (abs(p.x) > right) | (abs(y) > upper);
        R const lambda = select(outside, R(0.0), p.x) * (1 / perRadian);
        return {lambda0 + clamped(lambda, -pi, pi), clamped(y, -top, top), outside};
    }

private:
    double noiseOf(double edge) const { return coordinateNoise * (edge > a ? edge : a); }
};

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
