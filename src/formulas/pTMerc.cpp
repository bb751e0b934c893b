// Transverse Mercator: conformal, the central meridian a straight line of constant scale. Gauss-Kruger is the same; UTM
// adds its zones' false origin.
//
// Source    Snyder (1987), Map Projections: A Working Manual, pp. 48-65; equation numbers are his.
// Departs   the meridian distance is regrouped over sin 2 phi and cos 2 phi; its value is that of (3-21).
// Accuracy  1e-6 m from the series, which is within 1 mm of the exact map inside 3 degrees of the central meridian;
//           round trip 2e-8 degrees there.
// Domain    some 10 degrees about the central meridian; farther away the series loses its meaning, and is evaluated all
//           the same.
//
// phi, lambda   latitude, longitude          e2, ep2   eccentricity squared, e'^2 = e2 / (1 - e2)
// M, M0         meridian distance of phi, of the latitude of origin          k0   scale on the central meridian
// N, R1         radius of curvature in the prime vertical, in the meridian   T, C, A, D   as in the source
#include "formulas/edges.h"
#include "formulas/formula.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

/// Where a sine stops meaning anything, radians: a map point that far north is nowhere.
constexpr double greatestAngle = 1e15;

/// The meridian distance in units of the semi-major axis, (3-21).
struct MeridianSeries {
    double a0, a2, a4, a6; // coefficients of phi, -sin 2 phi, sin 4 phi, -sin 6 phi

    explicit MeridianSeries(double e2)
        : a0(1 - e2 / 4 - 3 * e2 * e2 / 64 - 5 * e2 * e2 * e2 / 256),
          a2(3 * e2 / 8 + 3 * e2 * e2 / 32 + 45 * e2 * e2 * e2 / 1024),
          a4(15 * e2 * e2 / 256 + 45 * e2 * e2 * e2 / 1024), a6(35 * e2 * e2 * e2 / 3072) {}

    template <class R> R distance(R phi, SinCos<R> at) const {
        R const sin2 = 2.0 * at.sin * at.cos, cos2 = 1.0 - 2.0 * at.sin * at.sin;
        return a0 * phi + sin2 * ((a6 - a2) + cos2 * (2 * a4 - 4 * a6 * cos2));
    }
};

struct Ellipsoidal {
    double a, k0, lambda0, e2, ep2;
    MeridianSeries series;
    double m0;                       // M0 / a
    double perMetre, muPerM, n1PerW; // 1 / (a k0), 1 / a0 of the series, 1 / (1 - e2)
    double f2, f4, f6, f8;           // footpoint latitude: coefficients of sin 2 mu to sin 8 mu in (3-26)

    explicit Ellipsoidal(Parameters const& given)
        : a(given.a), k0(given.k0), lambda0(given.lon0), e2(given.f * (2 - given.f)), ep2(e2 / (1 - e2)), series(e2),
          m0(series.distance(given.lat0, sinCos(given.lat0))), perMetre(1 / (a * k0)), muPerM(1 / series.a0),
          n1PerW(1 / (1 - e2)) {
        double const root = std::sqrt(1 - e2), e1 = (1 - root) / (1 + root);
        f2 = 3 * e1 / 2 - 27 * e1 * e1 * e1 / 32;
        f4 = 21 * e1 * e1 / 16 - 55 * e1 * e1 * e1 * e1 / 32;
        f6 = 151 * e1 * e1 * e1 / 96;
        f8 = 1097 * e1 * e1 * e1 * e1 / 512;
    }

    template <class R> Xy<R> forward(LonLat<R> p) const {
        auto const phi = sinCos(p.lat);
        R const tan = phi.sin / phi.cos;
        R const T = tan * tan, C = ep2 * phi.cos * phi.cos;  // (8-13), (8-14)
        R const A = phi.cos * (p.lon - lambda0), A2 = A * A; // (8-15)
        R const N = a / sqrt(1.0 - e2 * phi.sin * phi.sin);  // (4-20)
        R const M = a * (series.distance(p.lat, phi) - m0);  // from the latitude of origin
        R const x5 = 5.0 - 18.0 * T + T * T + 72.0 * C - 58 * ep2;
        R const x = k0 * N * A * (1.0 + A2 * ((1.0 - T + C) * (1 / 6.0) + A2 * x5 * (1 / 120.0))); // (8-9)
        R const y4 = 5.0 - T + 9.0 * C + 4.0 * C * C, y6 = 61.0 - 58.0 * T + T * T + 600.0 * C - 330 * ep2;
        R const y = k0 * (M + N * tan * A2 * (0.5 + A2 * (y4 * (1 / 24.0) + A2 * y6 * (1 / 720.0)))); // (8-10)
        auto const pole = abs(p.lat) == halfPi;
        return {select(pole, R(0.0), x), select(pole, k0 * M, y)};
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        R const anyMu = (m0 + p.y * perMetre) * muPerM; // (8-20), (7-19)
        auto const wild = abs(anyMu) > greatestAngle;
        R const mu = select(wild, R(0.0), anyMu);
        R const phi1 = footpoint(mu);
        auto const at = sinCos(phi1);
        R const sec = 1.0 / at.cos, tan = at.sin * sec;
        R const w = 1.0 - e2 * at.sin * at.sin;             // positive, since e2 < 1
        R const C1 = ep2 * at.cos * at.cos, T1 = tan * tan; // (8-21), (8-22)
        R const D = p.x * perMetre * sqrt(w), D2 = D * D;   // (8-25), N1 = a / sqrt(w)
        R const curvature = w * n1PerW;                     // N1 / R1, (8-23) and (8-24)
        R const phi4 = 5.0 + 3.0 * T1 + 10.0 * C1 - 4.0 * C1 * C1 - 9 * ep2;
        R const phi6 = 61.0 + 90.0 * T1 + 298.0 * C1 + 45.0 * T1 * T1 - 252 * ep2 - 3.0 * C1 * C1;
        R const phi =
            phi1 - curvature * tan * D2 * (0.5 - D2 * (phi4 * (1 / 24.0) - D2 * phi6 * (1 / 720.0))); // (8-17)
        R const lambda5 = 5.0 - 2.0 * C1 + 28.0 * T1 - 3.0 * C1 * C1 + 8 * ep2 + 24.0 * T1 * T1;
        R const lambda = D * (1.0 - D2 * ((1.0 + 2.0 * T1 + C1) * (1 / 6.0) - D2 * lambda5 * (1 / 120.0))) * sec;
        return {lambda0 + lambda, select(wild, R(unplottable), phi)}; // (8-18)
    }

    /// The latitude on the central meridian that lies as far north as the point, (3-26).
    template <class R> R footpoint(R mu) const {
        auto const two = sinCos(2.0 * mu);
        R const cos4 = 2.0 * two.cos * two.cos - 1.0; // sin 8 = 4 sin 2 cos 2 cos 4; sin 6 = sin 2 (1 + 2 cos 4)
        return mu + two.sin * (f2 + f6 + 2 * f6 * cos4 + two.cos * (2 * f4 + 4 * f8 * cos4));
    }
};

struct Spherical {
    double radius, phi0, lambda0; // radius R k0

    explicit Spherical(Parameters const& given) : radius(given.a * given.k0), phi0(given.lat0), lambda0(given.lon0) {}

    template <class R> Xy<R> forward(LonLat<R> p) const {
        R const theta = p.lon - lambda0;
        auto const phi = sinCos(p.lat), lambda = sinCos(theta);
        R const B = phi.cos * lambda.sin; // (8-5)
        auto const east = B == 1.0;       // B = -1 is an infinite easting: it fails the call
        R const x = 0.5 * radius * log((1.0 + B) / (1.0 - select(east, R(0.0), B))); // (8-1)
        auto const edge = (abs(p.lat) == halfPi) | (abs(theta) == halfPi);
        R const bent = atan(phi.sin / (phi.cos * lambda.cos)); // folds what is over 90 degrees away
        R const y = radius * (select(edge, select(p.lat >= 0.0, R(halfPi), R(-halfPi)), bent) - phi0); // (8-3)
        return {select(east, R(unplottable), x), y};
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        R const u = p.x / radius;
        R const anyD = p.y / radius + phi0; // (8-8)
        auto const wild = abs(anyD) > greatestAngle;
        auto const D = sinCos(select(wild, R(0.0), anyD));
        R const up = exp(u), sinh = 0.5 * (up - 1.0 / up);
        R const phi = atan2(D.sin, sqrt(sinh * sinh + D.cos * D.cos)); // (8-6), without its loss near the poles
        return {lambda0 + atan(sinh / D.cos), select(wild, R(unplottable), phi)}; // (8-7)
    }
};

void prepare(Converter& converter, Parameters const& given) noexcept {
    if (given.f == 0)
        hold(converter, Spherical(given));
    else
        hold(converter, Ellipsoidal(given));
}

bool inProjection(ParametersInDegrees const& given, PROJPOINT const& point) noexcept {
    return given.lon0 - 45 < point.x && point.x < given.lon0 + 45;
}

MapEdges edges(ParametersInDegrees const& given) noexcept {
    double const west = std::fmax(given.lon0 - 45, -360), east = std::fmin(given.lon0 + 45, 360);
    return {.window = {.present = true, .wraps = false, .west = west + lineInset, .east = east - lineInset}};
}

} // namespace

template <> Formula formula<Method::transverseMercator>() noexcept {
    return {prepare, inProjection, splitOppositeToLon0, edges};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
