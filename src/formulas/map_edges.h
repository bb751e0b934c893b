// Along what lines a map ends, for those who cut lines and areas to it. Degrees. The same for every processor level.
//
// Everything is said a little inside the true edge, so that what is cut there is shown and comes back: `lineInset` from
// a line, 0.1 mm on the Earth, and `placeInset` around a single place that cannot be shown, 0.1 m.
#pragma once

namespace ZrProj::formulas {

inline constexpr double lineInset = 1e-9, placeInset = 1e-6;

/// What lies between two meridians and two parallels. With `wraps` longitudes count modulo 360.
struct Window {
    bool present = false, wraps = true;
    double west = 0, east = 0, south = -90, north = 90;
};

/// The hemisphere around a centre.
struct Horizon {
    bool present = false;
    double lon = 0, lat = 0;
};

/// The globe but for the surroundings of a pole: `side` is 1 for the north pole, -1 for the south pole, and what is
/// shown ends at the latitude side * limit.
struct PolarHole {
    bool present = false;
    double side = 1, limit = 90;
};

/// The globe but for an ellipse in longitude and latitude around a place. Areas of the map may go around it, unless it
/// is at the end of a cut.
struct Hole {
    bool present = false;
    double lon = 0, lat = 0, halfWidth = 0, halfHeight = 0;
    bool isAtCut = false;
};

/// The globe but for a cut along half a great circle, from pole to pole of an oblique equator, on a sphere that carries
/// the globe: its longitudes are B (lon - lon0), its isometric latitudes B psi + logE, psi being that of an ellipsoid
/// of eccentricity e. On the sphere the northern of the two poles, or their left one, has the longitude `lonPole` and
/// the given sine and cosine of latitude, below 0 where the latitude is beyond 90 degrees; the cut lies opposite to
/// where the oblique equator goes 90 degrees east of it.
struct ObliqueCut {
    bool present = false;
    double lon0 = 0, B = 1, logE = 0, e = 0;
    double lonPole = 0, sinPole = 0, cosPole = 0;
};

/// What a map shows: what every one of these that is present leaves.
struct MapEdges {
    Window window = {};
    Horizon horizon = {};
    ObliqueCut oblique = {};
    PolarHole polarHole = {};
    Hole hole = {}, otherHole = {};
};

} // namespace ZrProj::formulas
