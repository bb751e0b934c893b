// Where a projection's map has its edges: the in-range and split tests that several types share, and the edges that
// lines and areas are cut at. Degrees, but where radians are named.
#pragma once

#include "formulas/map_edges.h"
#include "formulas/parameters.h"
#include "formulas/points.h"

#include <zrproj/projection.h>

#include <cfloat>
#include <cmath>

namespace ZrProj::formulas::ZRPROJ_LEVEL {

/// The longitude east of `lon0` in degrees, -180 to 180.
inline double longitudeDifference(double lon0, double lon) {
    return std::remainder(lon - lon0, 360.0);
}

/// Whether all angles, in radians, are latitudes.
template <class... Angles> bool areLatitudes(Angles... angles) {
    return ((std::fabs(angles) <= halfPi) && ...);
}

/// The in-range test of a projection that shows the whole globe.
inline bool isAnywhere(ParametersInDegrees const&, PROJPOINT const&) noexcept {
    return true;
}

/// The split test of a projection that has no edge along a meridian.
inline bool neverSplit(ParametersInDegrees const&, PROJPOINT const*, unsigned, double* out1, double* out2) noexcept {
    *out1 = *out2 = 0;
    return false;
}

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

/// The same about lon0.
inline bool splitOppositeToLon0(ParametersInDegrees const& given, PROJPOINT const* points, unsigned count, double* out1,
                                double* out2) noexcept {
    return splitAtOppositeMeridian(given.lon0, points, count, out1, out2);
}

/// The longitudes within `halfWidth` of a central meridian.
inline Window windowAbout(double lon0, double halfWidth) {
    double const middle = std::remainder(lon0, 360.0), reach = halfWidth - lineInset;
    return {.present = true, .west = middle - reach, .east = middle + reach};
}

/// The edges of a map that ends at the meridian opposite to lon0.
inline MapEdges edgesOppositeToLon0(ParametersInDegrees const& given) noexcept {
    return {.window = windowAbout(given.lon0, 180)};
}

/// The edges of a map that shows all but a place, or all but what lies within `halfWidth` of it on its parallel.
inline MapEdges edgesAround(double lon, double lat, double halfWidth = 0) {
    double const fromPole = 90 - std::fabs(lat);
    if (fromPole < 10 * placeInset)
        return {.polarHole = {true, lat < 0 ? -1.0 : 1.0, 90 - fromPole - placeInset}};
    double const perDegree = 1 / std::sin(fromPole * (3.141592653589793 / 180));
    return {.hole = {true, lon, lat, halfWidth + placeInset * perDegree, placeInset, false}};
}

/// The edges of a map that shows all but the antipode of its centre.
inline MapEdges edgesAroundAntipode(double lon, double lat) {
    return edgesAround(lon + 180, -lat);
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
