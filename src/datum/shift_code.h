// What the steps between datums are computed from and by, the same for every processor level.
#pragma once

#include "datum/displacement.h"
#include "levels/stage.h"

namespace ZrProj::datum {

/// An ellipsoid: its semi-major axis in metres, and its flattening.
struct Figure {
    double semiMajor = 0, flattening = 0;

    double squaredEccentricity() const { return flattening * (2 - flattening); }
};

// The constants of each method: metres, and degrees.

struct GeocentricShift {
    Displacement there, back;
    double a, e2, toA, toE2; // semi-major axes and squared eccentricities
    double perAxis;          // 1 / (1 - e2)
    double radii[2];         // of (a W')^2 - (a' W)^2, in powers of the latitude's sine squared

    GeocentricShift(Figure const& from, Figure const& to, Displacement const& displacement);
};

struct MolodenskyShift {
    double dX, dY, dZ;
    double a, e2, da;
    double perRadius[2]; // what the flattening adds to the latitude: df a / b and df b / a
    double abridged;     // a df + f da

    MolodenskyShift(Figure const& from, Figure const& to, Vector const& translation);
};

struct OffsetShift {
    double longitude, latitude;
};

/// The two ways of a step.
struct ShiftCode {
    levels::StageCode forward, inverse;
};

/// The methods of a processor level.
struct ShiftSet {
    levels::Convert* driver;
    ShiftCode geocentric, molodensky, abridgedMolodensky, offset;
};

} // namespace ZrProj::datum
