// Where a projection's map has its edges: the in-range and split tests that several types share. Degrees throughout.
#pragma once

#include <zrproj/projection.h>

#include <cfloat>

namespace ZrProj::formulas::ZRPROJ_LEVEL {

/// The split test of a projection whose map ends at the meridian opposite to `lon0`: 360 in `*out1` when the points
/// reach it in the west, -360 when they reach it in the east.
inline bool splitAtOppositeMeridian(double lon0, PROJPOINT const* points, unsigned count, double* out1, double* out2) {
    *out1 = *out2 = 0;
    double west = DBL_MAX, east = -DBL_MAX;
    for (unsigned i = 0; i < count; ++i) {
        west = points[i].x < west ? points[i].x : west;
        east = points[i].x > east ? points[i].x : east;
    }
    if (!(lon0 - 180 < west))
        *out1 = 360;
    else if (!(lon0 + 180 > east))
        *out1 = -360;
    return *out1 != 0;
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
