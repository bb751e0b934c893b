// Azimuthal equidistant: distance and azimuth from the centre true, everywhere.
//
// Source    Snyder (1987), Map Projections: A Working Manual, pp. 191-202, for the sphere and the poles; equation
//           numbers are his. Elsewhere on the ellipsoid by geodesics, geodesic.h.
// Accuracy  2e-8 m, and towards the antipode as much as it spreads the rounding of a place; 1e-6 m for flattenings of
//           1/50; round trip 1e-12 degrees or 2e-8 m.
// Domain    the globe; flattenings up to 1/50, beyond which there is no map. The map's edge is half a turn from the
//           centre, in sigma, where geodesics cease to be the shortest: on the parallel opposite to the centre's they
//           meet their mirror images in the equator; on a sphere, or from a pole, all others. Of such a place's points
//           on the edge the northernmost is shown.
//
// phi1, lambda0   the centre          lambda   longitude from it
// alpha1          azimuth of a place from the centre          rho   its distance
#include "formulas/centred_frame.h"
#include "formulas/edges.h"
#include "formulas/ellipsoid.h"
#include "formulas/formula.h"
#include "formulas/geodesic.h"
#include "formulas/geodesic_course.h"
#include "formulas/world.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

/// A point of the map by its distance and azimuth from the centre, where all geodesics meet again after half a turn:
/// the antipode is the northern end of the map.
template <class R> Xy<R> fromCentre(double unit, R arc, SinCos<R> alpha1) {
    auto const antipode = arc > pi - 4 * seam;
    R const rho = unit * arc;
    return {rho * select(antipode, R(0.0), alpha1.sin), rho * select(antipode, R(1.0), alpha1.cos)};
}

/// Whether such a map shows a point; x and y in units of what a radian is long.
template <class R> Condition<R> isInside(R arc, R x, R y) {
    auto const northernEnd = (abs(x) < 10 * coordinateNoise) & (y > 0.0);
    return (arc < pi - 2 * seam) | (northernEnd & (arc <= pi * (1 + coordinateNoise)));
}

struct Spherical {
    double radius, lambda0;
    CentredFrame centre;

    explicit Spherical(Parameters const& given)
        : radius(given.a), lambda0(given.lon0), centre{sinCos(given.lat1).sin, sinCos(given.lat1).cos} {}

    template <class R> Xy<R> forward(LonLat<R> p) const {
        auto const place = centre.place(sinCos(p.lat), longitudeFrom(lambda0, p.lon));
        R const across = sqrt(place.east * place.east + place.north * place.north);
        return fromCentre(radius, atan2(across, place.up), angleOfPoint<R>({place.east, place.north})); // (25-2)
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        R const x = inUnitsOf(radius, p.x), y = inUnitsOf(radius, p.y), c = sqrt(x * x + y * y); // (25-15)
        auto const alpha1 = angleOfPoint<R>({x, y}), arc = sinCos(smaller(c, R(pi)));
        auto const at = centre.onSphere(Place<R>{alpha1.sin * arc.sin, alpha1.cos * arc.sin, arc.cos});
        return {lambda0 + at.theta, select(isInside(c, x, y), atan2(at.phi.sin, at.phi.cos), R(unplottable))};
    }
};

/// About a pole of an ellipsoid, mu as in auxiliary_latitude.h.
struct Polar {
    Meridian meridian;
    double radius, lambda0, north; // radius: what a radian of mu is long; north: 1 or -1, which pole it is

    explicit Polar(Parameters const& given)
        : meridian(given.f), radius(given.a * meridian.radius), lambda0(given.lon0), north(given.lat1 > 0 ? 1 : -1) {}

    template <class R> Xy<R> forward(LonLat<R> p) const {
        R const phi = north * p.lat;
        auto const theta = sinCos(longitudeFrom(lambda0, p.lon));
        R const muLessPhi = meridian.rectifying.auxiliary(R(0.0), sinCos(phi));
        return fromCentre<R>(radius, (halfPi - phi) - muLessPhi, {theta.sin, -north * theta.cos}); // (25-16), (21-30)
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        R const x = inUnitsOf(radius, p.x), y = inUnitsOf(radius, p.y), arc = sqrt(x * x + y * y);
        R const mu = halfPi - smaller(arc, R(pi)); // (25-28)
        R const phi = north * meridian.rectifying.geodetic(mu, sinCos(mu));
        return {lambda0 + atan2(x, -north * y), select(isInside(arc, x, y), phi, R(unplottable))}; // (20-16)
    }
};

struct Ellipsoidal {
    GeodesicsFromCentre geodesics;
    double b, lambda0;

    explicit Ellipsoidal(Parameters const& given)
        : geodesics(given.f, given.lat1), b(given.a * (1 - given.f)), lambda0(given.lon0) {}

    template <class R> Xy<R> forward(LonLat<R> p) const {
        R const lambda = longitudeFrom(lambda0, p.lon);
        auto const course = geodesics.courseTo(geodesics.series.reduced(p.lat), abs(lambda));
        R const tau12 = course.length / geodesics.line(course.alpha1).A1;
        R const north = select(tau12 > pi - 4 * seam, abs(course.alpha1.cos), course.alpha1.cos);
        R const rho = b * course.length;
        return {copySign(rho * course.alpha1.sin, lambda), rho * north};
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        R const x = abs(inUnitsOf(b, p.x)), y = inUnitsOf(b, p.y);
        auto const line = geodesics.line(angleOfPoint<R>({x, y}));
        R const tau12 = sqrt(x * x + y * y) / line.A1;
        auto const end = geodesics.series.end(line, smaller(tau12, R(pi)));
        auto const inside =
            (tau12 < pi - 2 * seam) | ((y > -10 * coordinateNoise) & (tau12 <= pi * (1 + coordinateNoise)));
        return {lambda0 + copySign(end.lambda12, p.x),
                select(inside, geodesics.series.geodetic(end.beta2), R(unplottable))};
    }
};

void prepare(Converter& converter, Parameters const& given) noexcept {
    if (!areLatitudes(given.lat1) || given.f > GeodesicSeries::flattest)
        return;
    if (given.f == 0)
        hold(converter, Spherical(given));
    else if (std::fabs(given.lat1) == halfPi)
        hold(converter, Polar(given));
    else
        hold(converter, Ellipsoidal(given));
}

/// The antipode; on an ellipsoid it is torn along its parallel, over as much as the astroid about it.
MapEdges edges(ParametersInDegrees const& given) noexcept {
    double const torn = 180 * given.f * std::cos(given.lat1 * degree) * 1.03;
    return edgesAround(given.lon0 + 180, -given.lat1, torn);
}

} // namespace

template <> Formula formula<Method::azimuthalEquidistant>() noexcept {
    return {prepare, isAnywhere, neverSplit, edges};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
