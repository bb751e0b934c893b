// Polyconic: each parallel is an arc of the cone that touches the ellipsoid along it, true to scale.
//
// Source    Snyder (1987), Map Projections: A Working Manual, pp. 124-133; equation numbers are his.
// Departs   the exact meridian distance; half angles, which need no form of their own for the equator; the inverse by
//           Halley's method on (18-20) times its denominators, from a start that converges all over the map.
// Accuracy  5e-8 m; round trip 1e-12 degrees or 2e-8 m.
// Domain    the globe. The in-range area is narrower, within 90 degrees of the central meridian.
//
// phi, lambda   latitude, longitude from the central meridian          M, M0   meridian distance of phi, of the origin
// m             radius of a parallel, N cos phi          E   lambda sin phi, the angle about the centre of the arc
#include "formulas/edges.h"
#include "formulas/ellipsoid.h"
#include "formulas/formula.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

struct Polyconic {
    Meridian meridian;
    double a, lambda0, m0; // m0: M0 / a

    explicit Polyconic(Parameters const& given)
        : meridian(given.f), a(given.a), lambda0(given.lon0), m0(meridian.distance(given.lat0)) {}

    template <class R> Xy<R> forward(LonLat<R> p) const {
        auto const phi = sinCos(p.lat);
        R const lambda = longitudeFrom(lambda0, p.lon);
        auto const half = sinCos(0.5 * lambda * phi.sin); // E / 2, (18-2)
        R const chord = 2.0 * meridian.parallel(phi) * perSine(half.sin, phi.sin, 0.5 * lambda);
        return {a * (chord * half.cos),
                a * ((meridian.distance(p.lat, phi) - m0) + chord * half.sin)}; // (18-12), (18-13)
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        auto const far = (abs(p.x) > 4 * a) | (abs(p.y) > 5 * a); // the map is 2 pi a wide and 4.9 a high
        R const x = select(far, R(0.0), p.x) / a, y = select(far, R(0.0), p.y) / a + m0, height = abs(y);
        R const phi = latitude(x, height);
        auto const at = sinCos(phi);
        R const rise = height - meridian.distance(phi, at);
        R const slope = at.sin * sqrt(1.0 - meridian.e2 * at.sin * at.sin);           // over cos phi: 1 / (N cot phi)
        R const lambda = perSine(atan2(x * slope, at.cos - rise * slope), at.sin, x); // E / sin phi, (18-22)
        R const m = meridian.parallel(at), noise = coordinateNoise * (1 + abs(x) + height);
        auto const east = onParallel(lambda * m, m, noise);
        return {lambda0 + east.lambda, select(far | east.outside, R(unplottable), copySign(phi, y))};
    }

    /// v / sine; `limit` where the sine is 0, or so small that v has no digits.
    template <class R> static R perSine(R v, R sine, R limit) {
        auto const equator = abs(sine) < 1e-100;
        return select(equator, limit, v / select(equator, R(1.0), sine));
    }

    /// The latitude of the arc through (x, y), y not negative: where g = 2 rise cos phi - (x^2 + rise^2) / (N sec phi)
    /// vanishes, with rise = y - M. g falls and is convex, and the start lies on its left: the azimuthal equidistant
    /// map's latitude, which is right near the pole.
    template <class R> R latitude(R x, R y) const {
        double const e2 = meridian.e2;
        R const up = meridian.quadrant() - y;
        R phi = clamped(halfPi - std::sqrt(1 - e2) * sqrt(x * x + up * up), 0, halfPi);
        for (int i = 0; i < 4; ++i) {
            auto const at = sinCos(phi);
            R const s2 = at.sin * at.sin, w = 1.0 - e2 * s2, root = sqrt(w), inverse = 1.0 / w;
            R const rise = y - meridian.distance(phi, at), square = x * x + rise * rise;
            R const g = 2.0 * rise * at.cos - square * at.sin * root;
            R const q = inverse * (root * (2 * (1 - e2) * inverse + square * (1.0 - 2 * e2 * s2)) +
                                   2 * e2 * rise * at.sin * at.cos); // -g' / cos phi
            R const newton = g / (at.cos * q);
            R const bend = newton * (0.5 * at.sin / at.cos + rise / q); // g g'' / 2 g'^2, with a sphere's g''
            phi = clamped(phi + newton / (1.0 - select(bend > 0.5, R(0.5), bend)), 0, halfPi);
        }
        return phi;
    }
};

bool hasMap(Parameters const& given) {
    return given.f <= AuxiliaryLatitude::flattest && areLatitudes(given.lat0);
}

void prepare(Converter& converter, Parameters const& given) noexcept {
    if (hasMap(given))
        hold(converter, Polyconic(given));
}

bool inProjection(ParametersInDegrees const& given, PROJPOINT const& point) noexcept {
    return std::fabs(longitudeDifference(given.lon0, point.x)) < 90;
}

MapEdges edges(ParametersInDegrees const& given) noexcept {
    return {.window = windowAbout(given.lon0, 90)};
}

} // namespace

template <> Formula formula<Method::polyconic>() noexcept {
    return {prepare, inProjection, splitOppositeToLon0, edges};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
