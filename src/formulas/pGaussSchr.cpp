// Gauss-Schreiber transverse Mercator: conformal, the ellipsoid carried by Gauss's sphere, the sphere by a transverse
// Mercator. Scale on the central meridian is constant only near the origin.
//
// Source    IGN (1995), Projection cartographique Gauss-Laborde, note technique NT/G 73.
// Departs   (8-1) of Snyder (1987) for the logarithm, see transverse_sphere.h.
// Accuracy  1e-8 m as far as 75 degrees from the central meridian; round trip 1e-12 degrees or 2e-8 m.
// Domain    all but two points on the equator of the sphere, a quarter turn from the central meridian, and the strip of
//           gauss_sphere.h.
//
// phi0, lambda0   the origin          chi0   its latitude on the sphere          R   the sphere's radius
#include "formulas/edges.h"
#include "formulas/formula.h"
#include "formulas/gauss_sphere.h"
#include "formulas/transverse_sphere.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

/// How far the map reaches, over R, and cosh^-2 of that.
constexpr double reach = 32, least = 6.41524e-28;

struct GaussSchreiber {
    ToGaussSphere sphere;
    double chi0, size; // R k0

    GaussSchreiber(Parameters const& given, GaussSphere const& gauss)
        : sphere(gauss, given.f, given.lon0), chi0(std::atan2(gauss.centre().sin1, gauss.centre().cos1)),
          size(given.a * given.k0 * gauss.radius) {}

    template <class R> Xy<R> forward(LonLat<R> p) const {
        auto const on = sphere.forward(p);
        auto const map = toTransverse(on.place.phi, R(1.0), sinCos(on.place.theta), least);
        return {select(map.far | on.covered, R(unplottable), size * map.at.eta), size * (map.at.xi - chi0)};
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        R const xi = p.y * (1 / size) + chi0, eta = p.x * (1 / size);
        auto const inside = (abs(xi) <= pi * (1 + coordinateNoise)) & (abs(eta) <= reach);
        auto const map = functionsOf(Transverse<R>{select(inside, xi, R(0.0)), select(inside, eta, R(0.0))});
        auto const at = sphere.inverse(OnSphere<R>{map.lambda(), map.chi()});
        return {select(inside, at.lon, R(unplottable)), at.lat};
    }
};

void prepare(Converter& converter, Parameters const& given) noexcept {
    if (hasGaussSphere(given.f) && areLatitudes(given.lat0))
        hold(converter, GaussSchreiber(given, GaussSphere(given.f, given.lat0)));
}

double longitudeOnSphere(ParametersInDegrees const& given, double lon) {
    return GaussSphere(given.f, given.lat0 * degree).B * longitudeDifference(given.lon0, lon);
}

bool inProjection(ParametersInDegrees const& given, PROJPOINT const& point) noexcept {
    double const L = longitudeOnSphere(given, point.x);
    bool const quarter = std::fabs(std::fabs(L) - 90) < 1e-9 && std::fabs(point.y) < 3; // where the infinite points lie
    return !quarter && (std::fabs(L) <= 180 || std::fabs(point.y) == 90);
}

/// The half of the globe about the central meridian.
MapEdges edges(ParametersInDegrees const& given) noexcept {
    return {.window = windowAbout(given.lon0, 90 / GaussSphere(given.f, given.lat0 * degree).B - 0.01)};
}

} // namespace

template <> Formula formula<Method::gaussSchreiber>() noexcept {
    return {prepare, inProjection, splitOppositeToLon0, edges};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
