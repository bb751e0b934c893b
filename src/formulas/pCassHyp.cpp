// Hyperbolic Cassini-Soldner: Cassini's map with its northings shortened, once used for Vanua Levu.
//
// Source    IOGP (2019), Guidance note 7-2, method 9833.
// Departs   Cassini's map by cassini_series.h; the way back by Newton's method, to the last digit.
// Accuracy  1e-8 m; round trip 1e-12 degrees or 2e-8 m.
// Domain    longitudes within 4.5 degrees of the origin, latitudes within 20 degrees of it and up to 80.
//
// phi0, lambda0   the origin      X   Cassini's northing from it      rho, nu   radii of curvature at phi
#include "formulas/cassini_series.h"
#include "formulas/edges.h"
#include "formulas/formula.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

constexpr double widest = 4.5, tallest = 20, highest = 80; // degrees

/// Radii of curvature at a latitude, over the semi-major axis, and 1 / (6 rho nu).
template <class R> struct Curvature { R nu, rho, sixth; };

struct HyperbolicCassini {
    CassiniSeries cassini;
    double a, e2, phi0, lambda0, M0;

    explicit HyperbolicCassini(Parameters const& given)
        : cassini(given.f), a(given.a), e2(given.f * (2 - given.f)), phi0(given.lat0), lambda0(given.lon0),
          M0(cassini.meridian.distance(given.lat0)) {}

    template <class R> Curvature<R> curvature(R sine) const {
        R const w2 = 1.0 / (1.0 - e2 * sine * sine), nu = sqrt(w2), rho = (1 - e2) * nu * w2;
        return {nu, rho, 1.0 / (6.0 * rho * nu)};
    }

    template <class R> Xy<R> forward(LonLat<R> p) const {
        R const lambda = longitudeFrom(lambda0, p.lon);
        auto const shown = isShown(p.lat, lambda, 0);
        R const near = select(shown, lambda, R(0.0)), phi = select(shown, p.lat, R(phi0));
        auto const map = cassini.forward(phi, near);
        R const X = map.y - M0, north = X - X * X * X * curvature(sinCos(phi).sin).sixth;
        return {select(shown, a * map.x, R(unplottable)), a * north};
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        R const x = clamped(p.x / a, -0.1, 0.1), N = clamped(p.y / a, -0.4, 0.4);
        R phi = clamped(cassini.meridian.latitude(N + M0), -1.45, 1.45),
          lambda = x / cassini.meridian.parallel(sinCos(phi));
        auto arrived = lambda != lambda;
        for (int i = 0; i < 12 && !all(arrived); ++i) { // Newton's, with slopes good to lambda^2
            auto const at = sinCos(phi);
            auto const map = cassini.forward(phi, lambda);
            auto const here = curvature(at.sin);
            R const X = map.y - M0, X2 = X * X * here.sixth;
            R const missX = x - map.x, missN = (N - X * (1.0 - X2)) / (1.0 - 3.0 * X2);
            R const along = here.nu * at.cos, turn = lambda * at.sin;
            R const north = (missN - turn * missX) / here.rho; // the parallel rises, the meridian leans
            R const east = (missX + turn * here.rho * north) / along;
            phi = clamped(select(arrived, phi, phi + north), -1.45, 1.45);
            lambda = clamped(select(arrived, lambda, lambda + east), -0.1, 0.1);
            arrived = arrived | (abs(missX) + abs(missN) < 1e-15);
        }
        return {lambda0 + lambda, select(isShown(phi, lambda, 1e-12), phi, R(unplottable))};
    }

private:
    template <class R> Condition<R> isShown(R phi, R lambda, double noise) const {
        return (abs(lambda) <= widest * degree + noise) & (abs(phi - phi0) <= tallest * degree + noise) &
               (abs(phi) <= highest * degree + noise);
    }
};

void prepare(Converter& converter, Parameters const& given) noexcept {
    if (given.f <= AuxiliaryLatitude::flattest && areLatitudes(given.lat0))
        hold(converter, HyperbolicCassini(given));
}

bool inProjection(ParametersInDegrees const& given, PROJPOINT const& point) noexcept {
    return std::fabs(longitudeDifference(given.lon0, point.x)) < widest - 1e-10 &&
           std::fabs(point.y - given.lat0) < tallest - 1e-10 && std::fabs(point.y) < highest - 1e-10;
}

MapEdges edges(ParametersInDegrees const& given) noexcept {
    auto ends = windowAbout(given.lon0, widest);
    ends.south = std::fmax(given.lat0 - tallest, -highest) + lineInset;
    ends.north = std::fmin(given.lat0 + tallest, highest) - lineInset;
    return {.window = ends};
}

} // namespace

template <> Formula formula<Method::hyperbolicCassini>() noexcept {
    return {prepare, inProjection, neverSplit, edges};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
