// Colombia Urban: a plane at the height of a city, for surveys that are not reduced to the ellipsoid.
//
// Source    IOGP (2019), Guidance note 7-2, method 1052.
// Departs   the way back solves the equations of the way there; the source's own is good to a millimetre in a city.
// Accuracy  1e-8 m; round trip 1e-12 degrees or 2e-8 m.
// Domain    latitudes and longitudes within 20 degrees of the origin, though it is meant for 50 km about it; origins up
//           to 60 degrees of latitude, planes up to 10 km high.
//
// phi0, lambda0   the origin          h   the plane's height          rho, nu   radii of curvature, at phi0 with a 0
// A, B            as in the source, lengths in units of the semi-major axis          G   1 + h / rho midway to phi
#include "formulas/edges.h"
#include "formulas/formula.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

constexpr double widest = 20; // degrees

struct ColombiaUrban {
    double a, e2, phi0, lambda0, h, A, B, rho0;
    SinCos<double> origin; // of phi0

    explicit ColombiaUrban(Parameters const& given)
        : a(given.a), e2(given.f * (2 - given.f)), phi0(given.lat0), lambda0(given.lon0), h(given.height / given.a),
          origin(sinCos(given.lat0)) {
        double const w2 = 1 - e2 * origin.sin * origin.sin, nu0 = 1 / std::sqrt(w2);
        rho0 = (1 - e2) * nu0 / w2;
        A = 1 + h / nu0;
        B = std::tan(phi0) / (2 * rho0 * nu0);
    }

    /// nu cos phi, the length of a radian of a parallel.
    template <class R> R parallel(SinCos<R> phi) const { return phi.cos / sqrt(1.0 - e2 * phi.sin * phi.sin); }

    /// G rho0.
    template <class R> R perRadian(SinCos<R> phi) const {
        R const w2 = 1.0 - (e2 / 2) * (1.0 - (origin.cos * phi.cos - origin.sin * phi.sin)); // sin^2 of the middle
        return rho0 * (1.0 + (h / (1 - e2)) * w2 * sqrt(w2));
    }

    /// The derivative of perRadian() by the latitude, within a hundredth of itself.
    template <class R> R bend(SinCos<R> phi) const {
        return (-0.75 * e2 * rho0 * h / (1 - e2)) * (origin.sin * phi.cos + origin.cos * phi.sin);
    }

    template <class R> Xy<R> forward(LonLat<R> p) const {
        auto const phi = sinCos(p.lat);
        R const lambda = longitudeFrom(lambda0, p.lon), east = parallel(phi) * lambda, north = p.lat - phi0;
        R const x = a * A * east, y = a * perRadian(phi) * (north + B * east * east);
        return {select(isShown(lambda, north, 0), x, R(unplottable)), y};
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        R const east = clamped(p.x * (1 / (a * A)), -1, 1), north = clamped(p.y * (1 / a), -4, 4),
                fall = B * east * east;
        R phi = phi0 + clamped(north * (1 / perRadian(origin)) - fall, -0.4, 0.4);
        auto const near = sinCos(phi);
        R const scale = 1.0 / perRadian(near), miss = phi - phi0 - clamped(north * scale - fall, -0.4, 0.4);
        R const turn = -miss * (1.0 - north * scale * scale * bend(near)); // Newton's method; miss is below 1e-5
        SinCos<R> const at{near.sin + turn * (near.cos - 0.5 * turn * near.sin),
                           near.cos - turn * (near.sin + 0.5 * turn * near.cos)};
        phi = phi + turn;
        R const lambda = east / parallel(at);
        return {lambda0 + lambda, select(isShown(lambda, phi - phi0, 1e-12), phi, R(unplottable))};
    }

private:
    template <class R> static Condition<R> isShown(R lambda, R north, double noise) {
        return (abs(lambda) <= widest * degree + noise) & (abs(north) <= widest * degree + noise);
    }
};

/// Whether the plane is one near the ground.
bool hasMap(Parameters const& given) {
    double const height = std::fabs(given.height);
    return given.f <= 0.02 && std::fabs(given.lat0) <= 60 * degree && height <= given.a * (10.0 / 6356);
}

void prepare(Converter& converter, Parameters const& given) noexcept {
    if (hasMap(given))
        hold(converter, ColombiaUrban(given));
}

bool inProjection(ParametersInDegrees const& given, PROJPOINT const& point) noexcept {
    return std::fabs(point.y - given.lat0) < widest - 1e-10 &&
           std::fabs(longitudeDifference(given.lon0, point.x)) < widest - 1e-10;
}

MapEdges edges(ParametersInDegrees const& given) noexcept {
    auto ends = windowAbout(given.lon0, widest);
    ends.south = given.lat0 - widest + lineInset;
    ends.north = given.lat0 + widest - lineInset;
    return {.window = ends};
}

} // namespace

template <> Formula formula<Method::colombiaUrban>() noexcept {
    return {prepare, inProjection, neverSplit, edges};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
