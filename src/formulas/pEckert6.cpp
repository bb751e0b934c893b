// Eckert VI: equal area, straight parallels, poles as lines half as long as the equator, meridians sinusoids.
//
// Source    Snyder (1987), Map Projections: A Working Manual, pp. 253-258; equation numbers are his.
// Departs   theta by polynomials instead of Newton's method on (32-8).
// Accuracy  5e-8 m, beside the poles 1e-6 m; round trip 1e-12 degrees or 2e-8 m.
// Domain    the globe, as a sphere of the semi-major axis; the inverse up to the outline.
//
// phi, lambda   latitude, longitude from the central meridian          theta   parametric latitude
#include "formulas/edges.h"
#include "formulas/formula.h"
#include "formulas/world.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

struct EckertVI {
    double unit, lambda0; // map units a radian of longitude on the poles' lines

    explicit EckertVI(Parameters const& given) : unit(given.a / std::sqrt(2 + pi)), lambda0(given.lon0) {}

    template <class R> Xy<R> forward(LonLat<R> p) const {
        constexpr double pole = 1 + halfPi;
        R const w = pole * sin(p.lat);
        R const theta = solveArcPlusSine(w, pi - abs(w)).angle;                               // (32-7)
        return {unit * longitudeFrom(lambda0, p.lon) * (1.0 + cos(theta)), 2 * unit * theta}; // (32-5), (32-6)
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        R const given = inUnitsOf(2 * unit, p.y), size = smaller(abs(given), R(halfPi));
        auto const theta = sinCos(size), halfRest = sinCos(0.5 * (halfPi - size));
        R const missing = (halfPi - size) + 2.0 * halfRest.sin * halfRest.sin;
        R const phi = angleOf<R>({copySign(size + theta.sin, p.y) / (1 + halfPi), missing / (1 + halfPi)}); // (32-13)
        auto const at = onParallel(inUnitsOf(unit, p.x), 1.0 + theta.cos, R(2 * pi * coordinateNoise));     // (32-14)
        auto const outside = at.outside | (abs(given) > halfPi * (1 + coordinateNoise));
        return {lambda0 + at.lambda, select(outside, R(unplottable), phi)};
    }
};

void prepare(Converter& converter, Parameters const& given) noexcept {
    hold(converter, EckertVI(given));
}

} // namespace

template <> Formula formula<Method::eckertVI>() noexcept {
    return {prepare, isAnywhere, splitOppositeToLon0, edgesOppositeToLon0};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
