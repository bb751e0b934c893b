// Orthographic: the ellipsoid seen from infinitely far above the centre.
//
// Source    EPSG guidance note 7-2, method 9840; Snyder (1987), Map Projections: A Working Manual, pp. 145-153, for the
//           sphere.
// Departs   the inverse is closed: the height of the point in the direction of view solves a quadratic equation.
// Accuracy  5e-8 m; round trip 1e-12 degrees or 2e-8 m.
// Domain    where the ground faces the viewer: plumb lines no more than 90 degrees from that of the centre.
//
// phi0, lambda0   the centre           e2     eccentricity squared
// nu, nu0         radius of curvature in the prime vertical, at the point and at the centre, over a
// X, Y, Z         geocentric coordinates over a, X in the centre's meridian
// U               height above the plane of the map through the ellipsoid's centre, over a
#include "formulas/centred_frame.h"
#include "formulas/edges.h"
#include "formulas/formula.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

struct Orthographic {
    double a, lambda0, e2;
    CentredFrame centre;
    double shift;               // e2 nu0 sin phi0 cos phi0: N of the ellipsoid's centre
    double polar;               // a^2 / b^2
    double squareU, slopeU, N2; // the quadratic equation's coefficients: of U^2; of U N; of N^2

    explicit Orthographic(Parameters const& given)
        : a(given.a), lambda0(given.lon0),
          e2(given.f * (2 - given.f)), centre{std::sin(given.lat0), std::cos(given.lat0)} {
        double const s = centre.sin1, c = centre.cos1;
        shift = e2 * s * c / std::sqrt(1 - e2 * s * s);
        polar = 1 / (1 - e2);
        squareU = c * c + polar * s * s;
        slopeU = (polar - 1) * s * c;
        N2 = s * s + polar * c * c;
    }

    template <class R> Xy<R> forward(LonLat<R> p) const {
        auto const phi = sinCos(p.lat);
        auto const at = centre.place(phi, longitudeFrom(lambda0, p.lon));
        R const nu = 1.0 / sqrt(1.0 - e2 * phi.sin * phi.sin);
        R const N = nu * (at.north - e2 * centre.cos1 * phi.sin) + shift;
        return {select(at.up < -closest, R(unplottable), a * nu * at.east), a * N};
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        R const E = clamped(p.x, -10 * a, 10 * a) / a, N = clamped(p.y, -10 * a, 10 * a) / a - shift;
        // (X, Z) = N (-sin phi0, cos phi0) + U (cos phi0, sin phi0), and X^2 + E^2 + Z^2 a^2 / b^2 = 1
        R const half = slopeU * N, discriminant = half * half - squareU * (E * E + N2 * N * N - 1.0);
        R const U = (sqrt(select(discriminant > 0.0, discriminant, R(0.0))) - half) / squareU;
        R const X = centre.cos1 * U - centre.sin1 * N, Z = centre.sin1 * U + centre.cos1 * N;
        R const phi = atan2(polar * Z, sqrt(X * X + E * E));
        return {select(discriminant < -2 * coordinateNoise * squareU, R(unplottable), lambda0 + atan2(E, X)), phi};
    }
};

void prepare(Converter& converter, Parameters const& given) noexcept {
    if (areLatitudes(given.lat0))
        hold(converter, Orthographic(given));
}

bool inProjection(ParametersInDegrees const& given, PROJPOINT const& point) noexcept {
    return placeInDegrees(given.lat0, given.lon0, point).up > -closest / 2;
}

MapEdges edges(ParametersInDegrees const& given) noexcept {
    return {.horizon = {true, given.lon0, given.lat0}};
}

} // namespace

template <> Formula formula<Method::orthographic>() noexcept {
    return {prepare, inProjection, neverSplit, edges};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
