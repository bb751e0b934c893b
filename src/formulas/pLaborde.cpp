// Laborde oblique Mercator: conformal, of nearly constant scale along an oblique line. The ellipsoid is carried by
// Gauss's sphere, the sphere by a transverse Mercator, whose map a cubic turns so that scale is constant along the
// line.
//
// Source    IOGP (2019), Guidance note 7-2, method 9813, after IGN (1995), Projection cartographique Gauss-Laborde, note
//           technique NT/G 74.
// Departs   the transverse Mercator by transverse_sphere.h: H is xi - chi0 + i eta.
// Accuracy  1e-8 m as far as 30 degrees from the centre; round trip 1e-12 degrees or 2e-8 m.
// Domain    |H| up to half of where the cubic folds, at most 1: 57 degrees about the centre.
//
// phi0, lambda0   the centre          alphac   azimuth of the line there          R   radius of Gauss's sphere
// H, G            point on the transverse Mercator map from the centre, northing first; factor of its cube
#include "formulas/complex.h"
#include "formulas/edges.h"
#include "formulas/formula.h"
#include "formulas/gauss_sphere.h"
#include "formulas/transverse_sphere.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

struct Laborde {
    ToGaussSphere sphere;
    double chi0, size; // size: R k0
    Complex<double> G;
    double reach; // of |H|

    Laborde(Parameters const& given, GaussSphere const& gauss)
        : sphere(gauss, given.f, given.lon0), chi0(std::atan2(gauss.centre().sin1, gauss.centre().cos1)),
          size(given.a * given.k0 * gauss.radius), G{(1 - std::cos(2 * given.azimuth)) / 12,
                                                     std::sin(2 * given.azimuth) / 12},
          reach(reachOf(given.azimuth)) {}

    /// |G| is |sin alphac| / 6, and H + G H^3 folds where 3 |G H^2| is 1.
    static double reachOf(double azimuth) {
        double const fold = std::sqrt(2 / std::fmax(std::fabs(std::sin(azimuth)), 1e-9));
        return std::fmin(fold / 2, 1);
    }

    template <class R> Xy<R> forward(LonLat<R> p) const {
        auto const on = sphere.forward(p);
        auto const map = toTransverse(on.place.phi, R(1.0), sinCos(on.place.theta), 0.1); // eta up to 1.8
        Complex<R> const H{map.at.xi - chi0, map.at.eta}, g{G.re, G.im};
        auto const turned = H + g * (H * H * H);
        auto const hidden = map.far | on.covered | (H.square() > reach * reach);
        return {select(hidden, R(unplottable), size * turned.im), size * turned.re};
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        Complex<R> const Z{clamped(p.y / size, -2, 2), clamped(p.x / size, -2, 2)}, g{G.re, G.im};
        auto H = Z;
        for (int i = 0; i < 7; ++i) { // Newton's method
            auto const gH2 = g * (H * H);
            H = (Z + (gH2 + gH2) * H) / (Complex<R>{1.0, 0.0} + gH2 + gH2 + gH2);
        }
        auto const miss = H + g * (H * H * H) - Z;
        auto const inside = (H.square() <= reach * reach * (1 + 1e-12)) & (miss.square() < 1e-28);
        auto const map = functionsOf(Transverse<R>{select(inside, H.re, R(0.0)) + chi0, select(inside, H.im, R(0.0))});
        auto const at = sphere.inverse(OnSphere<R>{map.lambda(), map.chi()});
        return {select(inside, at.lon, R(unplottable)), at.lat};
    }
};

bool hasMap(Parameters const& given) {
    return hasGaussSphere(given.f) && areLatitudes(given.lat0);
}

void prepare(Converter& converter, Parameters const& given) noexcept {
    if (hasMap(given))
        hold(converter, Laborde(given, GaussSphere(given.f, given.lat0)));
}

bool inProjection(ParametersInDegrees const& given, PROJPOINT const& point) noexcept {
    GaussSphere const gauss(given.f, given.lat0 * degree);
    double const L = gauss.B * longitudeDifference(given.lon0, point.x) * degree;
    auto const map = toTransverse(mercatorLatitude(gauss.isometricOn(point.y * degree)), 1.0, sinCos(L), 0.1);
    double const north = map.at.xi - std::atan2(gauss.centre().sin1, gauss.centre().cos1);
    return !map.far && std::fabs(L) < pi &&
           std::hypot(north, map.at.eta) < Laborde::reachOf(given.azimuth * degree) * (1 - 1e-12);
}

/// A rectangle within the reach, where that is 1.
MapEdges edges(ParametersInDegrees const& given) noexcept {
    double const half = Laborde::reachOf(given.azimuth * degree) * 35;
    auto ends = windowAbout(given.lon0, half);
    ends.south = std::fmax(given.lat0 - half, -90);
    ends.north = std::fmin(given.lat0 + half, 90);
    return {.window = ends};
}

} // namespace

template <> Formula formula<Method::laborde>() noexcept {
    return {prepare, inProjection, neverSplit, edges};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
