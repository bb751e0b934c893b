// Cassini, or Cassini-Soldner: northings along the central meridian, eastings at right angles to it, both true.
//
// Source    Snyder (1987), Map Projections: A Working Manual, pp. 92-95; equation numbers are his.
// Departs   the ellipsoid by geodesics, geodesic.h, and close to the central meridian by the series (13-7) and (13-8)
//           with more terms, cassini_series.h: as printed they lose millimetres 3 degrees away.
// Accuracy  2e-8 m, and towards the map's edges as much as they spread the rounding of a place; 1e-6 m for flattenings
//           of 1/50; round trip 1e-12 degrees or 2e-8 m.
// Domain    the globe, the half beyond the poles too; flattenings up to 1/50, beyond which there is no map. Its edges
//           are where geodesics from the central meridian meet: a quarter turn from it, in sigma, on the equator, their
//           mirror images, or all others on a sphere; and on the meridian's far side. Of such a place's points on the
//           edges the northern one is shown, of all the others the one on the equator.
//
// phi, lambda     latitude, longitude from the central meridian          B   as in the source
// D, beta1        latitude and reduced latitude of the foot: the place on the central meridian as far north as the
//                 point, beyond 90 degrees on the far side of a pole
#include "formulas/cassini_series.h"
#include "formulas/edges.h"
#include "formulas/formula.h"
#include "formulas/geodesic.h"
#include "formulas/world.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

/// The foot's latitude: the one at the southern end of the map belongs to the northern end.
template <class R> R withinSeams(R foot) {
    return select(foot < -pi + 4 * seam, R(pi), foot);
}
template <class R> Condition<R> isBetweenSeams(R foot) {
    return (foot > -pi + 2 * seam) & (foot <= pi * (1 + coordinateNoise));
}

struct Spherical {
    double radius, phi0, lambda0;

    explicit Spherical(Parameters const& given) : radius(given.a), phi0(given.lat0), lambda0(given.lon0) {}

    template <class R> Xy<R> forward(LonLat<R> p) const {
        auto const phi = sinCos(p.lat), lambda = sinCos(longitudeFrom(lambda0, p.lon));
        R const B = phi.cos * lambda.sin, out = phi.cos * lambda.cos; // (8-5)
        R const across = sqrt(phi.sin * phi.sin + out * out);
        R const D = select(across < 4 * seam, R(0.0), withinSeams(atan2(phi.sin, out)));
        return {radius * atan2(B, across), radius * (D - phi0)}; // (13-1), (13-2)
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        R const east = inUnitsOf(radius, p.x), D = inUnitsOf(radius, p.y) + phi0; // (13-6)
        R const x = clamped(east, -halfPi, halfPi);
        auto const focus = (abs(D) < 10 * coordinateNoise) & (abs(east) <= halfPi * (1 + coordinateNoise));
        auto const inside = isBetweenSeams(D) & ((abs(east) < halfPi - 2 * seam) | focus);
        auto const arc = sinCos(x), foot = sinCos(clamped(D, -pi, pi));
        R const out = arc.cos * foot.cos;
        R const phi = atan2(arc.cos * foot.sin, sqrt(arc.sin * arc.sin + out * out)); // (13-4)
        return {lambda0 + atan2(arc.sin, out), select(inside, phi, R(unplottable))};  // (13-5)
    }
};

/// A geodesic that leaves the central meridian at right angles, its length in units of the semi-minor axis.
template <class R> struct Offset {
    SinCos<R> beta1;
    R length;
};

/// The central meridian, a geodesic whose sigma is the reduced latitude; lengths in units of the semi-minor axis.
struct CentralMeridian {
    double A1;
    Waves<double> toTau, toSigma;

    explicit CentralMeridian(double n) : A1(lengthOverTau(n)), toTau(wavesToTau(n)), toSigma(wavesToSigma(n)) {}

    template <class R> R northing(R sigma, SinCos<R> at) const { return A1 * (sigma + evenSines(toTau.c, at)); }
    template <class R> R sigma(R tau) const { return tau + evenSines(toSigma.c, sinCos(tau)); }
};

struct Ellipsoidal {
    GeodesicSeries series;
    CentralMeridian meridian;
    CassiniSeries close;
    double f, a, b, y0, lambda0; // y0: the northing of Lat0 from the equator
    double focus;                // the size of the astroid on the equator, as an arc

    explicit Ellipsoidal(Parameters const& given)
        : series(given.f), meridian(given.f / (2 - given.f)), close(given.f), f(given.f), a(given.a), b(a * (1 - f)),
          y0(a * close.meridian.distance(given.lat0)), lambda0(given.lon0), focus(f * halfPi) {}

    template <class R> Xy<R> forward(LonLat<R> p) const {
        R const lambda = longitudeFrom(lambda0, p.lon), east = abs(lambda);
        auto const near = close.forward(p.lat, east);
        Xy<R> map{a * near.x, a * near.y};
        auto const far = east > CassiniSeries::widest;
        if (any(far)) { // the values of the others are the same either way
            auto const offset = offsetTo(series.reduced(p.lat), east);
            map = {select(far, b * offset.length, map.x), select(far, b * northing(offset.beta1), map.y)};
        }
        return {copySign(map.x, lambda), map.y - y0};
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        R const x = abs(inUnitsOf(b, p.x)), tau = inUnitsOf(b, p.y + y0) * (1 / meridian.A1);
        auto const foot = sinCos(meridian.sigma(clamped(tau, -pi, pi)));
        auto const line = lineFrom(foot);
        R const tau12 = x / line.A1;
        auto const northernEdge = (foot.sin > -10 * coordinateNoise) & (tau12 <= halfPi * (1 + coordinateNoise));
        auto const inside = isBetweenSeams(tau) & ((tau12 < halfPi - 2 * seam) | northernEdge);
        auto const end = series.end(line, smaller(tau12, R(halfPi)));
        return {lambda0 + copySign(end.lambda12, p.x), select(inside, series.geodetic(end.beta2), R(unplottable))};
    }

private:
    template <class R> R northing(SinCos<R> beta1) const {
        return meridian.northing(withinSeams(atan2(beta1.sin, beta1.cos)), beta1);
    }

    template <class R> GeodesicLine<R> lineFrom(SinCos<R> beta1) const { return series.line(beta1, {R(1.0), R(0.0)}); }

    /// By Newton's method on the foot and the length: two or three steps, a few more within metres of where the astroid
    /// on the equator ends.
    template <class R> Offset<R> offsetTo(SinCos<R> beta, R lambda) const {
        auto offset = estimate(beta, lambda);
        auto arrived = lambda != lambda;
        for (int i = 0; i < 40 && !all(arrived); ++i) {
            auto const line = lineFrom(offset.beta1);
            auto const end = series.end(line, offset.length / line.A1);
            auto const miss = series.miss(end, beta, lambda);
            R const reach = series.meridianScale(offset.beta1) * series.geodesicScale(line, end);
            R const turn = clamped(-miss.right / larger(reach, R(1e-13)), -0.5, 0.5);
            auto const turned = angleOfPoint(sumOf(offset.beta1, sinCos(turn)));
            offset.beta1 = {select(arrived, offset.beta1.sin, turned.sin),
                            select(arrived, offset.beta1.cos, turned.cos)};
            offset.length = offset.length + select(arrived, R(0.0), miss.ahead / (1 - f));
            arrived = arrived | isLast(miss, turn);
        }
        R const tau12 = offset.length / lineFrom(offset.beta1).A1;
        offset.beta1.sin = select(tau12 > halfPi - 4 * seam, abs(offset.beta1.sin), offset.beta1.sin);
        return offset;
    }

    /// Within some 1e-5 of the geodesic; its length by (15) to the first order in k^2.
    template <class R> Offset<R> estimate(SinCos<R> beta, R lambda) const {
        auto const first = onSphere(beta, lambda);
        auto const second = onSphere(beta, lambda + f * first.beta1.cos * first.sigma12);
        R const wave = second.sigma12 + second.arc.sin * second.arc.cos;
        Offset<R> const usual{second.beta1, second.sigma12 + 0.25 * series.k2(second.beta1.sin) * wave};
        auto const focal = second.sigma12 > halfPi - 3 * focus;
        if (!any(focal)) // most often; the values of the others are the same either way
            return usual;
        auto const before = beforeFocus((halfPi - lambda) / focus, beta.sin / focus);
        return {{select(focal, before.angle.sin, usual.beta1.sin), select(focal, before.angle.cos, usual.beta1.cos)},
                select(focal, halfPi - focus * before.kappa, usual.length)};
    }

    /// The great circle from the central meridian to a place on the auxiliary sphere.
    template <class R> struct Circle {
        SinCos<R> beta1, arc;
        R sigma12;
    };

    template <class R> static Circle<R> onSphere(SinCos<R> beta, R omega) {
        auto const at = sinCos(omega);
        R const out = beta.cos * at.cos, east = beta.cos * at.sin, up = sqrt(beta.sin * beta.sin + out * out);
        return {angleOfPoint<R>({beta.sin, out}), {east, up}, atan2(east, up)};
    }
};

void prepare(Converter& converter, Parameters const& given) noexcept {
    if (!areLatitudes(given.lat0) || given.f > GeodesicSeries::flattest)
        return;
    if (given.f == 0)
        hold(converter, Spherical(given));
    else
        hold(converter, Ellipsoidal(given));
}

bool inProjection(ParametersInDegrees const& given, PROJPOINT const& point) noexcept {
    return std::fabs(longitudeDifference(given.lon0, point.x)) < 90;
}

/// A quarter turn from the central meridian, and on an ellipsoid on the equator a little before, where it is torn.
MapEdges edges(ParametersInDegrees const& given) noexcept {
    MapEdges ends{.window = windowAbout(given.lon0, 90)};
    double const torn = 90 * given.f * 1.01;
    if (torn > 0) {
        ends.hole = {true, given.lon0 + 90, 0, torn + placeInset, placeInset, true};
        ends.otherHole = {true, given.lon0 - 90, 0, torn + placeInset, placeInset, true};
    }
    return ends;
}

} // namespace

template <> Formula formula<Method::cassini>() noexcept {
    return {prepare, inProjection, splitOppositeToLon0, edges};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
