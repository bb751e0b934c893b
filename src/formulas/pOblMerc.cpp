// Oblique Mercator: conformal on the sphere, true along a great circle through two points.
//
// Source    Snyder (1987), Map Projections: A Working Manual, pp. 66-75; equation numbers are his.
// Departs   the line's pole is the cross product of the two points instead of (9-7) and (9-8), and the northern one of
//           the two.
// Accuracy  5e-8 m as near as 5 degrees to the line's poles; round trip 1e-12 degrees or 2e-8 m.
// Domain    all but the line's two poles, on a sphere of the semi-major axis; nothing when the points do not define a
//           line.
//
// phi, lambda   latitude, longitude        phip, lambdap   of the line's northern pole
// x             along the line, from where it crosses the equator eastwards        k0   scale on the line
#include "formulas/edges.h"
#include "formulas/formula.h"
#include "formulas/oblique_cylinder.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

/// The northern pole of the great circle through two points; radians.
struct NorthernPole {
    double lambda, sin, cos; // longitude; latitude's sine and cosine
    bool defined;

    NorthernPole(LonLat<double> one, LonLat<double> two) {
        auto const phi1 = sinCos(one.lat), phi2 = sinCos(two.lat);
        auto const turn = sinCos(std::remainder(two.lon - one.lon, 2 * pi));
        double const x = -phi1.sin * phi2.cos * turn.sin;                      // the cross product, x towards
        double const y = phi1.sin * phi2.cos * turn.cos - phi1.cos * phi2.sin; // the first point's meridian
        double const z = phi1.cos * phi2.cos * turn.sin;
        double const length = std::sqrt(x * x + y * y + z * z);
        double const up = z > closest ? 1 : -1; // a meridian's pole, on the equator, is the one that (9-7) gives
        defined = length > closest && areLatitudes(one.lat, two.lat);
        lambda = one.lon + std::atan2(up * y, up * x);
        sin = up * z / length;
        cos = std::hypot(x, y) / length;
    }
};

struct ObliqueMercator {
    double radius, lambdap; // radius R k0
    ObliqueCylinder cylinder;

    ObliqueMercator(Parameters const& given, NorthernPole const& pole)
        : radius(given.a * given.k0), lambdap(pole.lambda), cylinder{{pole.sin, pole.cos}} {}

    template <class R> Xy<R> forward(LonLat<R> p) const {
        auto const map = cylinder.forward(sinCos(p.lat), longitudeFrom(lambdap, p.lon));
        return {radius * map.along, radius * map.across};
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        double const reach = 100 * radius;
        R const x = clamped(p.x, -reach, reach) / radius, y = clamped(p.y, -reach, reach) / radius;
        auto const [q, inside] = cylinder.inverse(AlongAcross<R>{x, y});
        return {select(inside, lambdap + q.theta, R(unplottable)), atan2(q.phi.sin, q.phi.cos)};
    }
};

void prepare(Converter& converter, Parameters const& given) noexcept {
    NorthernPole const pole({given.lon1, given.lat1}, {given.lon2, given.lat2});
    if (pole.defined)
        hold(converter, ObliqueMercator(given, pole));
}

NorthernPole poleOf(ParametersInDegrees const& given) {
    return {{given.lon1 * degree, given.lat1 * degree}, {given.lon2 * degree, given.lat2 * degree}};
}

bool inProjection(ParametersInDegrees const& given, PROJPOINT const& point) noexcept {
    NorthernPole const pole = poleOf(given);
    double const theta = longitudeFrom(pole.lambda, point.x * degree);
    auto const p = CentredFrame{pole.sin, pole.cos}.place(sinCos(point.y * degree), theta);
    return std::hypot(p.east, p.north) > 4 * closest;
}

MapEdges edges(ParametersInDegrees const& given) noexcept {
    NorthernPole const pole = poleOf(given);
    ObliqueCut const cut{.present = true, .lon0 = pole.lambda * radian, .sinPole = pole.sin, .cosPole = pole.cos};
    return edgesOf(cut, [](SinCos<double> phi) { return std::atan2(phi.sin, phi.cos); });
}

} // namespace

template <> Formula formula<Method::obliqueMercator>() noexcept {
    return {prepare, inProjection, neverSplit, edges};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
