// Gnomonic, ellipsoidal: the geodesics through the centre are straight lines, and all others nearly so near the centre.
//
// Source    Karney (2013), Algorithms for geodesics, Journal of Geodesy 87, pp. 43-55; equation numbers are his.
// Departs   the geodesic to a place by geodesic_course.h; (38) and (39) by his series of the sixth order, (42) and (43).
// Accuracy  1e-7 m as far as 75 degrees from the centre; round trip 1e-12 degrees or 2e-8 m.
// Domain    where geodesics from the centre still part, that is as far as some 90 degrees; flattenings up to 1/50.
//
// phi1, lambda0   the centre          alpha1   azimuth of a place from there
// m12, M12        reduced length and scale of the geodesic, over the semi-minor axis; rho = m12 / M12
#include "formulas/centred_frame.h"
#include "formulas/edges.h"
#include "formulas/formula.h"
#include "formulas/geodesic_course.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

/// The length of a radian of the integral I2, (42).
template <class R> R lengthOverI2(R epsilon) {
    R const e = epsilon, e2 = e * e;
    return (1.0 - e) * (1.0 + e2 * (1.0 / 4 + e2 * (9.0 / 64 + e2 * (25.0 / 256))));
}

/// Coefficients of sin 2 sigma, sin 4 sigma, ... in I2, (43).
template <class R> Waves<R> wavesOfI2(R epsilon) {
    R const e = epsilon, e2 = e * e, e3 = e * e2, e4 = e2 * e2;
    return {{e * (1.0 / 2 + e2 * (1.0 / 16 + e2 * (1.0 / 32))), e2 * (3.0 / 16 + e2 * (1.0 / 32 + e2 * (35.0 / 2048))),
             e3 * (5.0 / 48 + e2 * (5.0 / 256)), e4 * (35.0 / 512 + e2 * (7.0 / 512)), e4 * e * (63.0 / 1280),
             e4 * e2 * (77.0 / 2048)}};
}

/// m12 and M12 where a geodesic has come to.
template <class R> struct Spread { R m12, M12; };

template <class R> Spread<R> spreadAt(GeodesicLine<R> const& line, GeodesicEnd<R> const& end) {
    auto const &one = line.sigma1, &two = end.sigma2;
    auto const first = wavesToTau(line.epsilon), second = wavesOfI2(line.epsilon);
    R const A2 = lengthOverI2(line.epsilon);
    R const J12 = (line.A1 - A2) * end.sigma12 + line.A1 * (evenSines(first.c, two) - evenSines(first.c, one)) -
                  A2 * (evenSines(second.c, two) - evenSines(second.c, one)); // (40)
    R const w1 = sqrt(1.0 + line.k2 * one.sin * one.sin), w2 = sqrt(1.0 + line.k2 * two.sin * two.sin);
    return {w2 * (one.cos * two.sin) - w1 * (one.sin * two.cos) - one.cos * two.cos * J12,        // (38)
            one.cos * two.cos + (w2 * one.sin * two.sin - one.sin * two.cos * J12) * (1.0 / w1)}; // (39)
}

struct EllipsoidalGnomonic {
    GeodesicsFromCentre geodesics;
    double b, lambda0;

    explicit EllipsoidalGnomonic(Parameters const& given)
        : geodesics(given.f, given.lat1), b(given.a * (1 - given.f)), lambda0(given.lon0) {}

    template <class R> Xy<R> forward(LonLat<R> p) const {
        R const lambda = longitudeFrom(lambda0, p.lon);
        auto const course = geodesics.courseTo(geodesics.series.reduced(p.lat), abs(lambda));
        auto const line = geodesics.line(course.alpha1);
        R const tau12 = course.length / line.A1;
        auto const spread = spreadAt(line, geodesics.series.end(line, tau12));
        auto const shown = (spread.M12 > closest) & (tau12 < 2.0);
        R const rho = b * spread.m12 / select(shown, spread.M12, R(1.0));
        return {select(shown, copySign(rho * course.alpha1.sin, lambda), R(unplottable)), rho * course.alpha1.cos};
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        constexpr double farthest = 1 / (2 * closest);
        double const reach = 10 * farthest * b;
        R const x = abs(clamped(p.x, -reach, reach)) / b, y = clamped(p.y, -reach, reach) / b;
        R const rho = sqrt(x * x + y * y);
        auto const line = geodesics.line(angleOfPoint<R>({x, y}));
        R length = atan(rho);
        auto end = geodesics.series.end(line, length / line.A1);
        for (int i = 0; i < 5; ++i) { // Newton's method, on rho or on its reciprocal
            auto const at = spreadAt(line, end);
            auto const near = rho <= 1.0;
            R const slope = select(near, at.M12, at.m12 / select(near, R(1.0), rho));
            length = clamped(length - (at.m12 - rho * at.M12) * slope, 0, 2);
            end = geodesics.series.end(line, length / line.A1);
        }
        auto const inside = rho <= farthest;
        return {lambda0 + copySign(end.lambda12, p.x),
                select(inside, geodesics.series.geodetic(end.beta2), R(unplottable))};
    }
};

void prepare(Converter& converter, Parameters const& given) noexcept {
    if (areLatitudes(given.lat1) && given.f <= GeodesicSeries::flattest)
        hold(converter, EllipsoidalGnomonic(given));
}

/// Well within the horizon, which lies up to 90 f degrees on either side of where it is on a sphere.
double heightOfHorizon(ParametersInDegrees const& given) {
    return 4 * given.f + 4 * closest;
}

bool inProjection(ParametersInDegrees const& given, PROJPOINT const& point) noexcept {
    return placeInDegrees(given.lat1, given.lon0, point).up > heightOfHorizon(given);
}

/// The sphere's; what the ellipsoid does not show within it, at most a third of a degree on the Earth, is marked.
MapEdges edges(ParametersInDegrees const& given) noexcept {
    return {.horizon = {true, given.lon0, given.lat1}};
}

} // namespace

template <> Formula formula<Method::gnomonicEllipsoid>() noexcept {
    return {prepare, inProjection, neverSplit, edges};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
