// Lambert conformal conic: conformal, straight meridians, true along one or two standard parallels.
//
// Source    Snyder (1987), Map Projections: A Working Manual, pp. 104-110; equation numbers are his.
// Departs   radii are measured from the standard parallel next to the equator, by expm1 and log1p, so that a cone that
//           is nearly a cylinder loses nothing; the inverse of (7-9) is the series of auxiliary_latitude.h.
// Accuracy  5e-8 m, and 2e-15 of coordinates beyond 50000 km; round trip 1e-12 degrees or 2e-8 m.
// Domain    all but the pole away from the cone; nothing when the parallels lie on both sides, equally far: they have
//           no cone.
//
// phi, lambda   latitude, longitude          phi0, phi1, phi2   latitude of origin, standard parallels
// psi           isometric latitude, log(1/t) of the source          m   radius of a parallel
// n             cone constant          rho, theta   polar coordinates about the apex
#include "formulas/cone.h"
#include "formulas/edges.h"
#include "formulas/ellipsoid.h"
#include "formulas/formula.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

/// (15-8), by differences that stay exact where the parallels are close or nearly opposite.
double coneConstant(double phi1, double phi2, double e2) {
    if (phi1 == phi2)
        return sin(phi1); // as in (15-9)
    double const e = std::sqrt(e2), middle = (phi1 + phi2) / 2, half = (phi2 - phi1) / 2;
    auto const one = sinCos(phi1), two = sinCos(phi2);
    double const rise = 2 * cos(middle) * sin(half); // sin phi2 - sin phi1
    double const psi = 2 * std::atanh(sin(half) / cos(middle)) -
                       e * std::atanh(e * rise / (1 - e2 * one.sin * two.sin)); // psi2 - psi1
    double const narrowing = std::log1p(2 * sin(middle) * sin(half) / two.cos) +
                             std::log1p(-e2 * rise * (one.sin + two.sin) / (1 - e2 * one.sin * one.sin)) / 2;
    return narrowing / psi; // narrowing = log(m1 / m2)
}

struct LambertConformalConic {
    IsometricLatitude isometric;
    Cone cone;
    double psiRef; // of the standard parallel nearer to the equator, to which radii refer
    double end;    // how far north the last latitude before the pole lies; between it and the pole is no latitude

    LambertConformalConic(Parameters const& given, double side, double phi1, double phi2)
        : isometric(given.f), cone(coneOf(given, side, phi1, phi2)), psiRef(isometric.of(sinCos(nearer(phi1, phi2)))),
          end(northOf(isometric.last)) {
        cone.bottom = northOf(-isometric.last);
        cone.origin = abs(given.lat0) == halfPi ? cone.top : northOf(isometric.of(sinCos(side * given.lat0)));
    }

    static double nearer(double phi1, double phi2) { return abs(phi1) < abs(phi2) ? phi1 : phi2; }

    static Cone coneOf(Parameters const& given, double side, double phi1, double phi2) {
        double const e2 = given.f * (2 - given.f), n = coneConstant(phi1, phi2, e2);
        auto const at = sinCos(nearer(phi1, phi2));
        double const rho = at.cos / std::sqrt(1 - e2 * at.sin * at.sin) / n; // (14-15), (15-7), (15-10)
        return {{given, side, rho, rho, 0}, n};
    }

    /// How far north of the parallel of reference, along the meridian.
    template <class R> R northOf(R psi) const { return -cone.rho * expm1(cone.n * (psiRef - psi)); }

    template <class R> Xy<R> forward(LonLat<R> p) const {
        R const phi = cone.side * p.lat;
        R const north = select(phi >= halfPi, R(cone.top), northOf(isometric.of(sinCos(phi)))); // (15-7)
        auto const map = cone.toMap(cone.theta(p.lon), cone.rho - north, north); // (14-1), (14-2), (14-4)
        return {map.x, select(phi <= -halfPi, R(unplottable), map.y)};
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        auto at = cone.fromMap(p); // (14-10), (14-11)
        auto const pole = (at.north > end + at.noise) | (at.north >= cone.top);
        R const psi = psiRef - log1p(select(pole, R(0.0), -at.north) / cone.rho) / cone.n; // (15-11)
        at.outside = at.outside | (pole & (at.north < cone.top - at.noise));
        return cone.geographic(at, select(pole, R(halfPi), isometric.geodetic(psi)));
    }
};

/// Whether there is a cone, and its other pole is not asked for as the origin.
bool hasMap(Parameters const& given) {
    double const side = sideOf(given.lat1, given.lat2);
    return given.f <= AuxiliaryLatitude::flattest && given.lat1 + given.lat2 != 0 && std::fabs(given.lat1) < halfPi &&
           std::fabs(given.lat2) < halfPi && areLatitudes(given.lat0) && side * given.lat0 != -halfPi;
}

void prepare(Converter& converter, Parameters const& given) noexcept {
    double const side = sideOf(given.lat1, given.lat2);
    if (hasMap(given))
        hold(converter, LambertConformalConic(given, side, side * given.lat1, side * given.lat2));
}

bool inProjection(ParametersInDegrees const& given, PROJPOINT const& point) noexcept {
    return sideOf(given.lat1, given.lat2) * point.y > -90;
}

MapEdges edges(ParametersInDegrees const& given) noexcept {
    MapEdges ends = edgesOppositeToLon0(given);
    if (sideOf(given.lat1, given.lat2) > 0)
        ends.window.south = placeInset - 90;
    else
        ends.window.north = 90 - placeInset;
    return ends;
}

} // namespace

template <> Formula formula<Method::lambertConformalConic>() noexcept {
    return {prepare, inProjection, splitOppositeToLon0, edges};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
