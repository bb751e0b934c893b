// Equal Earth: equal area, a world map with straight parallels and poles that are lines.
//
// Source    Savric, Patterson and Jenny (2019), The Equal Earth map projection, International Journal of Geographical
//           Information Science 33, pp. 454-465; on the ellipsoid IOGP (2019), Guidance note 7-2, method 1078.
// Departs   the authalic latitude and its way back by the series of auxiliary_latitude.h.
// Accuracy  2e-8 m; round trip 1e-12 degrees or 2e-8 m.
// Domain    the globe.
//
// beta      authalic latitude          theta   the parameter, sin theta = sqrt(3) / 2 sin beta
// R         the authalic sphere's radius
#include "formulas/auxiliary_latitude.h"
#include "formulas/edges.h"
#include "formulas/formula.h"
#include "formulas/world.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

constexpr double A1 = 1.340264, A2 = -0.081106, A3 = 0.000893, A4 = 0.003796;
constexpr double M = 0.8660254037844386, poleTheta = pi / 3; // sqrt(3) / 2, theta of a pole

/// y over R theta, and its derivative by theta, of theta squared.
template <class R> R height(R t2) {
    return A1 + t2 * (A2 + t2 * t2 * (A3 + A4 * t2));
}
template <class R> R rise(R t2) {
    return A1 + t2 * (3 * A2 + t2 * t2 * (7 * A3 + 9 * A4 * t2));
}

struct EqualEarth {
    AuxiliaryLatitude authalic;
    double lambda0, radius, top; // top: y of a pole over R

    explicit EqualEarth(Parameters const& given)
        : authalic(authalicLatitude(given.f)), lambda0(given.lon0), radius(given.a * std::sqrt(authalicQ(given.f) / 2)),
          top(poleTheta * height(poleTheta * poleTheta)) {}

    /// The length of a radian of a parallel over R.
    template <class R> static R parallel(R cosTheta, R t2) { return cosTheta / (M * rise(t2)); }

    template <class R> Xy<R> forward(LonLat<R> p) const {
        R const sine = M * sin(authalic.auxiliary(p.lat, sinCos(p.lat)));
        R const cosTheta = sqrt((1.0 - sine) * (1.0 + sine)), theta = atan2(sine, cosTheta), t2 = theta * theta;
        R const lambda = longitudeFrom(lambda0, p.lon);
        return {radius * lambda * parallel(cosTheta, t2), radius * theta * height(t2)};
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        R const x = inUnitsOf(radius, p.x), y = inUnitsOf(radius, p.y), within = clamped(y, -top, top);
        R theta = within * (poleTheta / top);
        for (int i = 0; i < 5; ++i) { // Newton's method
            R const t2 = theta * theta;
            theta = theta - (theta * height(t2) - within) / rise(t2);
        }
        auto const at = sinCos(theta);
        R const sine = clamped(at.sin * (1 / M), -1, 1), cosine = sqrt((1.0 - sine) * (1.0 + sine));
        R const phi = authalic.geodetic(atan2(sine, cosine), {sine, cosine});
        auto const east = onParallel(x, parallel(at.cos, theta * theta), R(coordinateNoise));
        auto const outside = east.outside | (abs(y) > top + 2 * coordinateNoise);
        return {lambda0 + east.lambda, select(outside, R(unplottable), phi)};
    }
};

void prepare(Converter& converter, Parameters const& given) noexcept {
    if (given.f <= AuxiliaryLatitude::flattest)
        hold(converter, EqualEarth(given));
}

} // namespace

template <> Formula formula<Method::equalEarth>() noexcept {
    return {prepare, isAnywhere, splitOppositeToLon0, edgesOppositeToLon0};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
