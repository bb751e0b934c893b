// Equidistant conic: true along the meridians and two standard parallels.
//
// Source    Snyder (1987), Map Projections: A Working Manual, pp. 111-115; equation numbers are his.
// Departs   the meridian distance and its inverse by the series of auxiliary_latitude.h; distances from the first
//           standard parallel instead of the apex.
// Accuracy  5e-8 m; round trip 1e-12 degrees or 2e-8 m.
// Domain    the globe.
//
// phi, lambda   latitude, longitude          phi0, phi1, phi2   latitude of origin, standard parallels
// M             meridian distance          m   radius of a parallel          n   cone constant
#include "formulas/cone.h"
#include "formulas/edges.h"
#include "formulas/ellipsoid.h"
#include "formulas/formula.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

/// (16-11), by differences that stay exact where the parallels are close or nearly opposite.
double coneConstant(double phi1, double phi2, Meridian const& meridian) {
    double const e2 = meridian.e2, middle = (phi1 + phi2) / 2, half = (phi2 - phi1) / 2;
    double const sin1 = sin(phi1), sin2 = sin(phi2);
    double const squares = sin(2 * middle) * sin(2 * half); // sin^2 phi2 - sin^2 phi1
    double const widths = meridian.parallel(phi1) + meridian.parallel(phi2);
    double const narrowing = squares * (1 - e2) / ((1 - e2 * sin1 * sin1) * (1 - e2 * sin2 * sin2) * widths); // m1 - m2
    double mu = 2 * half;
    for (int k = 1; k <= meridian.rectifying.terms; ++k)
        mu += 2 * meridian.rectifying.toXi[k - 1] * cos(2 * k * middle) * sin(2 * k * half);
    return narrowing / (meridian.radius * mu);
}

struct EquidistantConic {
    Meridian meridian;
    double m1; // M of the first standard parallel, to which distances refer
    Cone cone;

    EquidistantConic(Parameters const& given, double side, double phi1, double phi2)
        : meridian(given.f), m1(meridian.distance(phi1)),
          cone(coneOf(given, side, phi1, coneConstant(phi1, phi2, meridian))) {
        cone.origin = meridian.distance(side * given.lat0) - m1;
    }

    Cone coneOf(Parameters const& given, double side, double phi1, double n) const {
        double const quadrant = meridian.quadrant();
        return {{given, side, meridian.parallel(phi1) / n, quadrant - m1, -quadrant - m1}, n};
    }

    template <class R> Xy<R> forward(LonLat<R> p) const {
        R const phi = cone.side * p.lat;
        R const north = meridian.distance(phi, sinCos(phi)) - m1;
        return cone.toMap(cone.theta(p.lon), cone.rho - north, north); // (14-1), (14-2), (14-4), (16-10)
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        auto const at = cone.fromMap(p);                              // (14-10), (14-11)
        return cone.geographic(at, meridian.latitude(m1 + at.north)); // (16-12)
    }
};

bool hasMap(Parameters const& given) {
    return given.f <= AuxiliaryLatitude::flattest && areLatitudes(given.lat0, given.lat1, given.lat2);
}

void prepare(Converter& converter, Parameters const& given) noexcept {
    double const side = sideOf(given.lat1, given.lat2);
    if (hasMap(given))
        hold(converter, EquidistantConic(given, side, side * given.lat1, side * given.lat2));
}

} // namespace

template <> Formula formula<Method::equidistantConic>() noexcept {
    return {prepare, isAnywhere, splitOppositeToLon0, edgesOppositeToLon0};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
