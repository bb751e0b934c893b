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
#include "formulas/driver.h"
#include "formulas/edges.h"
#include "formulas/geodesic.h"
#include "formulas/longitude.h"
#include "formulas/meridian.h"
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
    CentredFrame frame;

    explicit Spherical(Parameters const& given)
        : radius(given.a), lambda0(given.lon0), frame{sinCos(given.lat1).sin, sinCos(given.lat1).cos} {}

    template <class R> Xy<R> forward(LonLat<R> p) const {
        auto const place = frame.place(sinCos(p.lat), longitudeFrom(lambda0, p.lon));
        R const across = sqrt(place.east * place.east + place.north * place.north);
        return fromCentre(radius, atan2(across, place.up), angleOfPoint<R>({place.east, place.north})); // (25-2)
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        R const x = inUnitsOf(radius, p.x), y = inUnitsOf(radius, p.y), c = sqrt(x * x + y * y); // (25-15)
        auto const alpha1 = angleOfPoint<R>({x, y}), arc = sinCos(smaller(c, R(pi)));
        auto const at = frame.onSphere(Place<R>{alpha1.sin * arc.sin, alpha1.cos * arc.sin, arc.cos});
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

/// A geodesic from the centre, its length in units of the semi-minor axis.
template <class R> struct Course {
    SinCos<R> alpha1;
    R length;
};

struct Ellipsoidal {
    GeodesicSeries series;
    double f, b, lambda0;
    SinCos<double> beta1;
    double focus; // the size of the astroid about the antipode, as an arc

    explicit Ellipsoidal(Parameters const& given)
        : series(given.f), f(given.f), b(given.a * (1 - f)), lambda0(given.lon0), beta1(series.reduced(given.lat1)),
          focus(f * pi * beta1.cos * beta1.cos * (1 - 0.25 * f * beta1.sin * beta1.sin)) {}

    template <class R> Xy<R> forward(LonLat<R> p) const {
        R const lambda = longitudeFrom(lambda0, p.lon);
        auto const course = courseTo(series.reduced(p.lat), abs(lambda));
        R const tau12 = course.length / series.line(centre<R>(), course.alpha1).A1;
        R const north = select(tau12 > pi - 4 * seam, abs(course.alpha1.cos), course.alpha1.cos);
        R const rho = b * course.length;
        return {copySign(rho * course.alpha1.sin, lambda), rho * north};
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        R const x = abs(inUnitsOf(b, p.x)), y = inUnitsOf(b, p.y);
        auto const line = series.line(centre<R>(), angleOfPoint<R>({x, y}));
        R const tau12 = sqrt(x * x + y * y) / line.A1;
        auto const end = series.end(line, smaller(tau12, R(pi)));
        auto const inside =
            (tau12 < pi - 2 * seam) | ((y > -10 * coordinateNoise) & (tau12 <= pi * (1 + coordinateNoise)));
        return {lambda0 + copySign(end.lambda12, p.x), select(inside, series.geodetic(end.beta2), R(unplottable))};
    }

private:
    template <class R> SinCos<R> centre() const { return {beta1.sin, beta1.cos}; }

    /// The geodesic to a place east of the centre. Two or three steps of Newton's method; a few more, up to 25, within
    /// metres of where the antipode's astroid ends.
    template <class R> Course<R> courseTo(SinCos<R> beta, R lambda) const {
        auto course = estimate(beta, lambda);
        auto arrived = lambda != lambda;
        for (int i = 0; i < 40 && !all(arrived); ++i) {
            auto const line = series.line(centre<R>(), course.alpha1);
            auto const end = series.end(line, course.length / line.A1);
            auto const miss = series.miss(end, beta, lambda);
            R const reach = (1 - f) * series.reducedLength(line, end);
            R const turn = clamped(miss.right / larger(reach, R(1e-13)), -0.5, 0.5);
            auto const turned = angleOfPoint(sumOf(course.alpha1, sinCos(turn)));
            course.alpha1 = {select(arrived, course.alpha1.sin, turned.sin),
                             select(arrived, course.alpha1.cos, turned.cos)};
            course.length = course.length + select(arrived, R(0.0), miss.ahead / (1 - f));
            arrived = arrived | isLast(miss, turn);
        }
        return course;
    }

    /// Within some 1e-5 of the geodesic.
    template <class R> Course<R> estimate(SinCos<R> beta, R lambda) const {
        auto const first = onSphere(beta, lambda);
        auto const second = onSphere(beta, lambda + f * beta1.cos * first.alpha1.sin * first.sigma12);
        Course<R> const usual{second.alpha1, lengthOf(second)};
        auto const antipodal = second.sigma12 > pi - 3 * focus;
        if (!any(antipodal)) // most often; the values of the others are the same either way
            return usual;
        R const x = (pi - lambda) * (beta1.cos / focus), y = (beta.sin * beta1.cos + beta.cos * beta1.sin) / focus;
        auto const before = beforeFocus(x, y);
        return {{select(antipodal, before.angle.cos, usual.alpha1.sin),
                 select(antipodal, before.angle.sin, usual.alpha1.cos)},
                select(antipodal, pi - focus * before.kappa, usual.length)};
    }

    /// A great circle from the centre to a place on the auxiliary sphere.
    template <class R> struct Circle {
        SinCos<R> alpha1, arc;
        R sigma12;
    };

    template <class R> Circle<R> onSphere(SinCos<R> beta, R omega) const {
        auto const half = sinCos(0.5 * omega);
        R const versine = 2.0 * half.sin * half.sin, east = 2.0 * beta.cos * half.sin * half.cos;
        R const north = beta1.cos * beta.sin - beta1.sin * beta.cos * (1.0 - versine);
        R const up = beta1.sin * beta.sin + beta1.cos * beta.cos * (1.0 - versine);
        R const across = sqrt(east * east + north * north);
        return {angleOfPoint<R>({east, north}), {across, up}, atan2(across, up)};
    }

    /// The length of the geodesic, (15) to the first order in k^2.
    template <class R> R lengthOf(Circle<R> const& circle) const {
        R const north = circle.alpha1.cos * beta1.cos; // cos alpha0 times cos sigma1; times sin sigma1 it is sin beta1
        double const sin2 = beta1.sin * beta1.sin;
        R const wave = (north * north - sin2) * circle.arc.cos - 2.0 * north * beta1.sin * circle.arc.sin;
        return circle.sigma12 + series.ep2 / 4 * ((north * north + sin2) * circle.sigma12 - wave * circle.arc.sin);
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
