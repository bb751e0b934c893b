// The projection of Guam: azimuthal equidistant, simplified for an island.
//
// Source    Snyder (1987), Map Projections: A Working Manual, p. 196; equation numbers are his.
// Departs   the way back by Newton's method, to the last digit, in place of three rounds of (25-19); the meridian
//           distance is the exact one.
// Accuracy  1e-8 m; round trip 1e-12 degrees or 2e-8 m.
// Domain    longitudes within 10 degrees of the centre, latitudes up to 80 degrees.
//
// phi1, lambda0   the centre          M, M1   meridian distance of phi, of phi1          m   length of a radian of phi
#include "formulas/edges.h"
#include "formulas/ellipsoid.h"
#include "formulas/formula.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

constexpr double widest = 10, highest = 80; // degrees

struct Guam {
    Meridian meridian;
    double a, lambda0, M1;

    explicit Guam(Parameters const& given)
        : meridian(given.f), a(given.a), lambda0(given.lon0), M1(meridian.distance(given.lat0)) {}

    /// 1 / N, (4-20).
    template <class R> R curvature(SinCos<R> phi) const { return sqrt(1.0 - meridian.e2 * phi.sin * phi.sin); }

    template <class R> Xy<R> forward(LonLat<R> p) const {
        auto const phi = sinCos(p.lat);
        R const lambda = longitudeFrom(lambda0, p.lon), x = meridian.parallel(phi) * lambda; // (25-18)
        R const y = meridian.distance(p.lat, phi) - M1 + 0.5 * x * lambda * phi.sin;         // (25-19)
        return {select(isShown(p.lat, lambda, 0), a * x, R(unplottable)), a * y};
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        R const x = clamped(p.x / a, -1, 1), M = M1 + clamped(p.y / a, -4, 4);
        R phi = clamped(meridian.latitude(M), -1.4, 1.4);
        for (int i = 0; i < 6; ++i) {
            auto const at = sinCos(phi);
            R const bend = 0.5 * x * x * curvature(at) / at.cos; // times sin phi it is what the parallel rises
            R const rise = (1 - meridian.e2) / (curvature(at) * curvature(at) * curvature(at)) + bend / at.cos;
            phi = clamped(phi - (meridian.distance(phi, at) + bend * at.sin - M) / rise, -1.5, 1.5);
        }
        R const lambda = x / meridian.parallel(sinCos(phi));
        return {lambda0 + lambda, select(isShown(phi, lambda, 1e-12), phi, R(unplottable))};
    }

private:
    template <class R> static Condition<R> isShown(R phi, R lambda, double noise) {
        return (abs(phi) <= highest * degree + noise) & (abs(lambda) <= widest * degree + noise);
    }
};

void prepare(Converter& converter, Parameters const& given) noexcept {
    if (given.f <= AuxiliaryLatitude::flattest && areLatitudes(given.lat0))
        hold(converter, Guam(given));
}

bool inProjection(ParametersInDegrees const& given, PROJPOINT const& point) noexcept {
    return std::fabs(longitudeDifference(given.lon0, point.x)) < widest - 1e-10 && std::fabs(point.y) < highest - 1e-10;
}

MapEdges edges(ParametersInDegrees const& given) noexcept {
    auto ends = windowAbout(given.lon0, widest);
    ends.north = highest - lineInset;
    ends.south = -ends.north;
    return {.window = ends};
}

} // namespace

template <> Formula formula<Method::guam>() noexcept {
    return {prepare, inProjection, neverSplit, edges};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
