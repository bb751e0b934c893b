// Colombia Urban: a plane at the height of a city, for surveys that are not reduced to the ellipsoid.
//
// Source    IOGP (2019), Guidance note 7-2, method 1052.
// Departs   the way back solves the equations of the way there; the source's own is good to a millimetre in a city.
// Accuracy  1e-8 m; round trip 1e-12 degrees or 2e-8 m.
// Domain    the globe, though it is meant for 50 km about the origin.
//
// phi0, lambda0   the origin          h   the plane's height          rho, nu   radii of curvature, at phi0 with a 0
// A, B            as in the source, lengths in units of the semi-major axis          G   1 + h / rho midway to phi
#include "formulas/driver.h"
#include "formulas/edges.h"
#include "formulas/longitude.h"
#include "formulas/outline.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

struct ColombiaUrban {
    double a, e2, phi0, lambda0, h, A, B, rho0;

    explicit ColombiaUrban(Parameters const& given)
        : a(given.a), e2(given.f * (2 - given.f)), phi0(given.lat0), lambda0(given.lon0), h(given.height / given.a) {
        double const sine = std::sin(phi0), w2 = 1 - e2 * sine * sine, nu0 = 1 / std::sqrt(w2);
        rho0 = (1 - e2) * nu0 / w2;
        A = 1 + h / nu0;
        B = std::tan(phi0) / (2 * rho0 * nu0);
    }

    /// nu cos phi, the length of a radian of a parallel.
    template <class R> R parallel(R phi) const {
        auto const at = sinCos(phi);
        return at.cos / sqrt(1.0 - e2 * at.sin * at.sin);
    }

    /// G rho0.
    template <class R> R perRadian(R phi) const {
        R const sine = sin(0.5 * (phi + phi0)), w2 = 1.0 - e2 * sine * sine;
        return rho0 * (1.0 + (h / (1 - e2)) * w2 * sqrt(w2));
    }

    template <class R> Xy<R> forward(LonLat<R> p) const {
        R const east = parallel(p.lat) * longitudeFrom(lambda0, p.lon);
        return {a * A * east, a * perRadian(p.lat) * ((p.lat - phi0) + B * east * east)};
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        auto const far = (abs(p.x) > 8 * a) | (abs(p.y) > 100 * a);
        R const east = select(far, R(0.0), p.x) * (1 / (a * A)), north = select(far, R(0.0), p.y) * (1 / a);
        R phi = phi0;
        for (int i = 0; i < 5; ++i) // each brings 5 digits where the map is used, 2 where the plane is 100 km up
            phi = clamped(phi0 + north / perRadian(phi) - B * east * east, -2, 2);
        auto const lambda = onParallel(east, parallel(clamped(phi, -halfPi, halfPi)), R(coordinateNoise));
        auto const outside = far | lambda.outside | (abs(phi) > halfPi * (1 + coordinateNoise));
        return {lambda0 + lambda.lambda, select(outside, R(unplottable), clamped(phi, -halfPi, halfPi))};
    }
};

/// Whether the plane is one near the ground.
bool hasMap(Parameters const& given) {
    return given.f <= 0.02 && std::fabs(given.lat0) <= 80 * degree && std::fabs(given.height) <= given.a / 100;
}

void prepare(Converter& converter, Parameters const& given) noexcept {
    if (hasMap(given))
        hold(converter, ColombiaUrban(given));
}

} // namespace

template <> Formula formula<Method::colombiaUrban>() noexcept {
    return {prepare, isAnywhere, splitOppositeToLon0, edgesOppositeToLon0};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
