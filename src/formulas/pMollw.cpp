// Mollweide: equal area, the globe in an ellipse twice as wide as high, straight parallels.
//
// Source    Snyder (1987), Map Projections: A Working Manual, pp. 249-252; equation numbers are his.
// Departs   theta by polynomials instead of Newton's method on (31-4), which fails at the poles; sines by their
//           distance from 1, where they are close to it.
// Accuracy  5e-8 m, beside the poles 1e-6 m; round trip 1e-12 degrees or 2e-8 m.
// Domain    the globe, as a sphere of the semi-major axis; the inverse up to the ellipse.
//
// phi, lambda   latitude, longitude from the central meridian          theta   parametric latitude
#include "formulas/edges.h"
#include "formulas/formula.h"
#include "formulas/world.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

struct Mollweide {
    double halfHeight, halfWidth, lambda0;

    explicit Mollweide(Parameters const& given)
        : halfHeight(std::numbers::sqrt2 * given.a), halfWidth(2 * halfHeight), lambda0(given.lon0) {}

    template <class R> Xy<R> forward(LonLat<R> p) const {
        R const lambda = longitudeFrom(lambda0, p.lon);
        auto const phi = sineOf(p.lat);
        auto const twoTheta = solveArcPlusSine(pi * phi.sine, pi * phi.gap); // (31-3)
        auto const polar = twoTheta.rest < 1.0;
        auto const half = sinCos(0.5 * select(polar, twoTheta.rest, abs(twoTheta.angle)));
        R const cosTheta = select(polar, half.sin, half.cos), sinTheta = select(polar, half.cos, half.sin);
        return {halfWidth / pi * lambda * cosTheta, copySign(halfHeight * sinTheta, p.lat)}; // (31-1), (31-2)
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        R const sine = abs(inUnitsOf(halfHeight, p.y)), out = inUnitsOf(halfWidth, p.x);
        auto const theta = onCircle(sine, abs(out)); // (31-6)
        R const sinTwice = 2.0 * sine * theta.cosine, rest = 2.0 * theta.rest;
        R const missing = select(rest < 0.01, rest * rest * rest * (1.0 - rest * rest / 20.0) / 6.0, rest - sinTwice);
        R const phi = angleOf<R>({(2.0 * theta.angle + sinTwice) / pi, missing / pi}); // (31-7)
        R const lambda = pi * out / select(theta.cosine == 0.0, R(1.0), theta.cosine); // (31-8)
        return {lambda0 + lambda, select(theta.inside, copySign(phi, p.y), R(unplottable))};
    }
};

void prepare(Converter& converter, Parameters const& given) noexcept {
    hold(converter, Mollweide(given));
}

} // namespace

template <> Formula formula<Method::mollweide>() noexcept {
    return {prepare, isAnywhere, splitOppositeToLon0, edgesOppositeToLon0};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
