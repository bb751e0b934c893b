// Eckert IV: equal area, straight parallels, poles as lines half as long as the equator, bounded by semicircles.
//
// Source    Snyder (1987), Map Projections: A Working Manual, pp. 253-258; equation numbers are his.
// Departs   theta by a polynomial instead of Newton's method on (32-4).
// Accuracy  5e-8 m, beside the poles 1e-6 m; round trip 1e-12 degrees or 2e-8 m.
// Domain    the globe, as a sphere of the semi-major axis; the inverse up to the outline.
//
// phi, lambda   latitude, longitude from the central meridian          theta   parametric latitude
#include "formulas/edges.h"
#include "formulas/formula.h"
#include "formulas/world.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

/// theta of (32-3) over phi, by phi^2; a Chebyshev fit of our own. 3e-16.
constexpr double thetaFit[] = {
    0.8926990816987241,      0.02906739435832808,    0.0035525886775555214,  0.0005297545053287184,
    8.820195563332656e-05,   1.5722917663342527e-05, 2.9315900934339193e-06, 5.757758031995281e-07,
    8.31399729363042e-08,    8.489065071003059e-08,  -9.9676821133037e-08,   1.3691521079035803e-07,
    -1.3916935059486573e-07, 1.1280878865533855e-07, -7.197281117096497e-08, 3.6052821221134817e-08,
    -1.4002995428540388e-08, 4.134994932726756e-09,  -8.976732473707611e-10, 1.3530316224847683e-10,
    -1.2675166683106749e-11, 5.587334291599268e-13};

struct EckertIV {
    double height, lambda0; // of the upper half, the radius of the semicircles

    explicit EckertIV(Parameters const& given) : height(2 * given.a * std::sqrt(pi / (4 + pi))), lambda0(given.lon0) {}

    template <class R> Xy<R> forward(LonLat<R> p) const {
        auto const theta = sinCos(p.lat * polynomial(p.lat * p.lat, thetaFit));
        R const lambda = longitudeFrom(lambda0, p.lon);
        return {height / pi * lambda * (1.0 + theta.cos), height * theta.sin}; // (32-1), (32-2)
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        R const sine = abs(inUnitsOf(height, p.y)), east = inUnitsOf(height, p.x);
        auto const theta = onCircle(sine, larger(abs(east) - 1.0, R(0.0))); // (32-9)
        R const oneMinusSine = theta.cosine * theta.cosine / (1.0 + sine);
        R const missing = larger(theta.rest - sine * theta.cosine + 2.0 * oneMinusSine, R(0.0));
        R const reached = theta.angle + sine * (theta.cosine + 2.0);
        R const phi = angleOf<R>({reached / (2 + halfPi), missing / (2 + halfPi)}); // (32-10)
        R const lambda = pi * east / (1.0 + theta.cosine);                          // (32-11)
        return {lambda0 + lambda, select(theta.inside, copySign(phi, p.y), R(unplottable))};
    }
};

void prepare(Converter& converter, Parameters const& given) noexcept {
    hold(converter, EckertIV(given));
}

} // namespace

template <> Formula formula<Method::eckertIV>() noexcept {
    return {prepare, isAnywhere, splitOppositeToLon0, edgesOppositeToLon0};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
