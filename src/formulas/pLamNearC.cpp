// Lambert near-conformal conic: Lambert's conformal cone touching along one parallel, its radii cut off after the third
// power, as the Levant zone has them.
//
// Source    IOGP (2019), Guidance note 7-2, method 9817.
// Departs   the meridian distance is the exact one, and the cubic is solved to the last digit.
// Accuracy  5e-8 m; round trip 1e-12 degrees or 2e-8 m.
// Domain    the globe.
//
// phi0, lambda0   parallel of contact, central meridian          rho0, nu0   radii of curvature at phi0
// m, s0           meridian distance from phi0, of phi0           M           what m is on the map, m + A m^3 over k0
// A               1 / (6 rho0 nu0)
#include "formulas/cone.h"
#include "formulas/edges.h"
#include "formulas/ellipsoid.h"
#include "formulas/formula.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

struct LambertNearConformal {
    Meridian meridian;
    double s0, A;
    Cone cone; // in units of the semi-major axis times k0

    LambertNearConformal(Parameters const& given, double side)
        : meridian(given.f), s0(meridian.distance(side * given.lat0)), A(cubic(given)), cone(coneOf(given, side)) {
        cone.top = northOf(meridian.quadrant() - s0);
        cone.bottom = northOf(-meridian.quadrant() - s0);
    }

    double cubic(Parameters const& given) const {
        double const sine = std::sin(given.lat0), w2 = 1 - meridian.e2 * sine * sine;
        return w2 * w2 / (6 * (1 - meridian.e2));
    }

    Cone coneOf(Parameters given, double side) const {
        double const phi0 = side * given.lat0, sine = std::sin(phi0);
        double const nu0 = 1 / std::sqrt(1 - meridian.e2 * sine * sine);
        given.a *= given.k0;
        return {{given, side, nu0 / std::tan(phi0), 0, 0}, sine};
    }

    template <class R> R northOf(R m) const { return m * (1.0 + A * m * m); }

    template <class R> Xy<R> forward(LonLat<R> p) const {
        R const phi = cone.side * p.lat, M = northOf(meridian.distance(phi, sinCos(phi)) - s0);
        return cone.toMap(cone.theta(p.lon), cone.rho - M, M);
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        auto const at = cone.fromMap(p);
        R m = at.north / (1.0 + A * at.north * at.north);
        for (int i = 0; i < 7; ++i) // Newton's method; 3 steps where the map is used
            m = m - (northOf(m) - at.north) / (1.0 + 3.0 * A * m * m);
        return cone.geographic(at, meridian.latitude(m + s0));
    }
};

/// Whether there is a cone, and its apex is not short of the pole.
bool hasMap(Parameters const& given) {
    if (given.f > AuxiliaryLatitude::flattest || given.lat0 == 0 || !areLatitudes(given.lat0))
        return false;
    LambertNearConformal const map(given, given.lat0 > 0 ? 1 : -1);
    return map.cone.top <= map.cone.rho;
}

void prepare(Converter& converter, Parameters const& given) noexcept {
    if (hasMap(given))
        hold(converter, LambertNearConformal(given, given.lat0 > 0 ? 1 : -1));
}

} // namespace

template <> Formula formula<Method::lambertNearConformal>() noexcept {
    return {prepare, isAnywhere, splitOppositeToLon0, edgesOppositeToLon0};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
