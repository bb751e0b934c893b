// Van der Grinten: the globe in a circle, meridians and parallels arcs of circles.
//
// Source    Snyder (1987), Map Projections: A Working Manual, pp. 239-242, for the arcs.
// Departs   instead of (29-1) to (29-19), which fail on the axes and lose digits beside them, the poles are moved to 0
//           and infinity: with z = x + iy in units of the map's radius and w = (i + z) / (i - z), a meridian is a ray
//           of w and a parallel a circle around a point of the real axis, and they meet in a quadratic equation.
// Accuracy  5e-8 m, beside the poles 1e-6 m; round trip 1e-12 degrees or 2e-8 m.
// Domain    the globe, as a sphere of the semi-major axis; the inverse up to the circle.
//
// phi, lambda   latitude, longitude from the central meridian         s, u   |phi| / 90 degrees, |lambda| / 180 degrees
// rho, alpha    modulus and argument of w, tan(alpha / 2) = u; the south is mirrored
#include "formulas/edges.h"
#include "formulas/formula.h"
#include "formulas/world.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

struct VanDerGrinten {
    double radius, lambda0;

    explicit VanDerGrinten(Parameters const& given) : radius(pi * given.a), lambda0(given.lon0) {}

    template <class R> Xy<R> forward(LonLat<R> p) const {
        R const lambda = longitudeFrom(lambda0, p.lon);
        R const u = abs(lambda) * (1 / pi), sum = 1.0 + u * u, difference = (1.0 - u) * (1.0 + u); // cos = d / s
        R const s = abs(p.lat) * (2 / pi), rest = larger(halfPi - abs(p.lat), R(0.0)) * (2 / pi);
        // rho sqrt(1 - s) = sigma, the positive root of sigma^2 - 2 kappa sigma - 1
        R const kappa = 0.5 * s * difference / (sum * sqrt(1.0 + s));
        R const sigma = kappa + sqrt(kappa * kappa + 1.0), scaled = 2.0 * sigma * sqrt(rest);
        R const twice = 2.0 * kappa * sigma, scale = radius / (sum * (1.0 + rest + twice) + scaled * difference);
        return {copySign(2.0 * u * scaled * scale, lambda), copySign(sum * (s + twice) * scale, p.lat)};
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        R const east = inUnitsOf(radius, p.x), north = inUnitsOf(radius, p.y);
        R const x = abs(east), y = abs(north), square = x * x + y * y;
        auto const inside = square <= 1 + coordinateNoise;
        // alpha is the angle of the point (inner, 2 x), at the distance `ray`.
        R const inner = larger((1.0 - y) * (1.0 + y) - x * x, R(0.0));
        R const anyRay = sqrt(inner * inner + 4.0 * x * x);
        auto const pole = anyRay == 0.0;
        R const ray = select(pole, R(1.0), anyRay), u = 2.0 * x / (inner + ray);
        R const beyond = 1.0 / ((1.0 + y) * (1.0 + y) + x * x);
        R const E = ((1.0 - y) * (1.0 - y) + x * x) * beyond, oneMinusE = 4.0 * y * beyond; // 1 / rho^2
        R const cosAlpha = inner / ray, versine = u * 2.0 * x / ray;
        R const delta = oneMinusH(cosAlpha, versine, E, oneMinusE);
        R const h2 = E * (1.0 - delta) * (1.0 - delta), gap = oneMinusE + E * delta * (2.0 - delta);
        auto const high = h2 < 0.25;
        R const quotient = select(high, 2.0 * h2, gap) / (1.0 + h2);
        R const phi = halfPi * select(high, 1.0 - quotient, quotient);
        R const lambda = lambda0 + copySign(smaller(pi * u, R(pi)), east);
        return {lambda, select(inside, copySign(phi, north), R(unplottable))};
    }

    /// With h = sqrt((1 - s) / (1 + s)) and H = h rho, where the ray meets the parallel, q = cos alpha:
    /// q E H^3 + (2 - E) H^2 - q H - 1 = 0. Returns delta = 1 - H, between 0 and 0.3, the root of
    /// N - B delta + C delta^2 - D delta^3, by two steps of Newton's method from what it is without the last term.
    template <class R> static R oneMinusH(R q, R oneMinusQ, R E, R oneMinusE) {
        R const D = q * E, C = 3.0 * D + 2.0 - E, B = 3.0 * D + 4.0 - 2.0 * E - q, N = oneMinusQ * oneMinusE;
        R delta = 2.0 * N / (B + sqrt(larger(B * B - 4.0 * C * N, R(0.0))));
        for (int i = 0; i < 2; ++i) {
            R const residual = N - delta * (B - delta * (C - delta * D));
            delta = delta + residual / (B - delta * (2.0 * C - 3.0 * delta * D));
        }
        return delta;
    }
};

void prepare(Converter& converter, Parameters const& given) noexcept {
    hold(converter, VanDerGrinten(given));
}

} // namespace

template <> Formula formula<Method::vanDerGrinten>() noexcept {
    return {prepare, isAnywhere, splitOppositeToLon0, edgesOppositeToLon0};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
