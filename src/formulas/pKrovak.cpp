// Krovak: conformal, the ellipsoid carried by Gauss's sphere, the sphere mapped onto a cone whose axis is oblique.
// Eastings and northings count from the cone's apex, and are negative over what was Czechoslovakia. The modified form
// bends the map by a polynomial, by up to some centimetres there, to take up distortions of the triangulation.
//
// Source    IOGP (2019), Guidance note 7-2, methods 9819 and 1041, modified 1042 and 1043; the southing and westing of
//           the source are -y and -x here.
// Departs   D by its tangent, so that it may be beyond 90 degrees; radii by the isometric latitude of T; the way back of
//           the modified form goes on until it leads back.
// Accuracy  5e-8 m as far as 75 degrees from the axis; round trip 1e-12 degrees or 2e-8 m.
// Domain    all but the pole away from the cone, and the strip of gauss_sphere.h; modified, 1000 km about the point where
//           the polynomial is 0, beyond which it has no meaning.
//
// phiC, lambda0   latitude of the projection's centre, meridian of the cone's axis; R the radius of Gauss's sphere
// alphaC          co-latitude of the axis on the sphere          phiP, kP   pseudo standard parallel, scale on it
// T, D            latitude and longitude about the axis          n          cone constant
// r, theta        polar coordinates about the apex
#include "formulas/edges.h"
#include "formulas/formula.h"
#include "formulas/gauss_sphere.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

struct Krovak {
    ToGaussSphere sphere;
    CentredFrame axis;
    double n, psiP, r0; // psiP: isometric latitude of phiP; r0: its radius

    explicit Krovak(Parameters const& given) : Krovak(given, GaussSphere(given.f, given.lat0)) {}

    Krovak(Parameters const& given, GaussSphere const& gauss)
        : sphere(gauss, given.f, given.lon0), axis{std::cos(given.coLatitude), std::sin(given.coLatitude)},
          n(std::sin(given.lat1)), psiP(std::asinh(std::tan(given.lat1))),
          r0(given.k0 * given.a * gauss.radius / std::tan(given.lat1)) {}

    template <class R> Xy<R> forward(LonLat<R> p) const {
        auto const on = sphere.forward(p);
        auto const at = axis.place(on.place.phi, on.place.theta);
        R const cosT = sqrt(at.east * at.east + at.north * at.north);
        auto const polar = cosT <= closest;
        R const psi = isometric(SinCos<R>{at.up, select(polar, R(closest), cosT)});
        auto const theta = sinCos(n * atan2(0.0 - at.east, -at.north)); // the cut itself is on one side at any level
        R const r = r0 * exp(n * (psiP - psi));
        return {select(on.covered | (polar & (at.up < 0.0)), R(unplottable), -r * theta.sin), -r * theta.cos};
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        constexpr double last = 32.9; // isometric latitude of the axis, and of the other pole
        double const reach = 2 * r0 * exp(n * (psiP + last)), unit = 1 / r0;
        R const x = clamped(p.x, -reach, reach) * unit, y = clamped(p.y, -reach, reach) * unit;
        R const r2 = x * x + y * y, D = atan2(-x, -y) * (1 / n);
        auto const apex = r2 <= 1e-200;
        R const psi = clamped(psiP - log(select(apex, R(1.0), r2)) * (0.5 / n), -40, last);
        auto const T = mercatorLatitude(select(apex, R(last), psi));
        auto const noise = 4 * coordinateNoise;
        auto const outside = (abs(D) > pi * (1 + noise)) | (psi < -last);
        auto const about = sinCos(clamped(D, -pi, pi));
        auto const q = axis.onSphere(Place<R>{-T.cos * about.sin, -T.cos * about.cos, T.sin});
        auto const at = sphere.inverse(q);
        return {select(outside | (abs(q.theta) > pi * (1 + noise)), R(unplottable), at.lon), at.lat};
    }
};

/// What the modified form takes off southing and westing: a polynomial of their distances from X0 and Y0, metres.
struct Bend {
    static constexpr double X0 = 1089000, Y0 = 654000, reach = 1e6;

    template <class R> static Xy<R> at(Xy<R> southWest) {
        constexpr double C1 = 2.946529277e-02, C2 = 2.515965696e-02, C3 = 1.193845912e-07, C4 = -4.668270147e-07,
                         C5 = 9.233980362e-12, C6 = 1.523735715e-12, C7 = 1.696780024e-18, C8 = 4.408314235e-18,
                         C9 = -8.331083518e-24, C10 = -3.689471323e-24;
        R const X = southWest.x - X0, Y = southWest.y - Y0, X2 = X * X, Y2 = Y * Y;
        R const dX = C1 + C3 * X - C4 * Y - 2 * C6 * X * Y + C5 * (X2 - Y2) + C7 * X * (X2 - 3.0 * Y2) -
                     C8 * Y * (3.0 * X2 - Y2) + 4 * C9 * X * Y * (X2 - Y2) + C10 * (X2 * X2 + Y2 * Y2 - 6.0 * X2 * Y2);
        R const dY = C2 + C3 * Y + C4 * X + 2 * C5 * X * Y + C6 * (X2 - Y2) + C8 * X * (X2 - 3.0 * Y2) +
                     C7 * Y * (3.0 * X2 - Y2) - 4 * C10 * X * Y * (X2 - Y2) + C9 * (X2 * X2 + Y2 * Y2 - 6.0 * X2 * Y2);
        return {dX, dY};
    }

    template <class R> static Condition<R> reaches(Xy<R> southWest) {
        return (abs(southWest.x - X0) <= reach) & (abs(southWest.y - Y0) <= reach);
    }
};

struct KrovakModified {
    Krovak krovak;

    explicit KrovakModified(Parameters const& given) : krovak(given) {}

    template <class R> Xy<R> forward(LonLat<R> p) const {
        auto const map = krovak.forward(p);
        Xy<R> const from{-map.y, -map.x};
        auto const bend = Bend::at(from);
        return {select(Bend::reaches(from), map.x + bend.y, R(unplottable)), map.y + bend.x};
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        constexpr double wide = 2 * Bend::reach;
        Xy<R> const bent{clamped(-p.y, -wide, 2 * wide), clamped(-p.x, -wide, 2 * wide)};
        auto from = bent;
        for (int i = 0; i < 6; ++i) { // each brings 4 digits more, and all where the map is used
            auto const bend = Bend::at(from);
            from = {bent.x + bend.x, bent.y + bend.y};
        }
        auto const at = krovak.inverse(Xy<R>{-from.y, -from.x});
        return {select(Bend::reaches(from), at.lon, R(unplottable)), at.lat};
    }
};

bool hasMap(Parameters const& given) {
    bool const isOblique = given.coLatitude > 0 && given.coLatitude < pi;
    return hasGaussSphere(given.f) && areLatitudes(given.lat0) && isOblique && given.lat1 > 0 && given.lat1 < halfPi;
}

template <class Form> void prepare(Converter& converter, Parameters const& given) noexcept {
    if (hasMap(given))
        hold(converter, Form(given));
}

bool inProjection(ParametersInDegrees const& given, PROJPOINT const& point) noexcept {
    GaussSphere const gauss(given.f, given.lat0 * degree);
    double const L = gauss.B * longitudeDifference(given.lon0, point.x) * degree;
    CentredFrame const axis{std::cos(given.coLatitude * degree), std::sin(given.coLatitude * degree)};
    auto const at = axis.place(mercatorLatitude(gauss.isometricOn(point.y * degree)), L);
    bool const covered = std::fabs(L) > pi && std::fabs(point.y) < 90;
    return !covered && (at.up > 0 || std::hypot(at.east, at.north) > 4 * closest);
}

/// A square about the bent map's middle, within the map.
bool inModified(ParametersInDegrees const& given, PROJPOINT const& point) noexcept {
    if (!inProjection(given, point) || !hasMap(inRadians(given)))
        return false;
    auto const map = Krovak(inRadians(given)).forward(LonLat<double>{point.x * degree, point.y * degree});
    return std::fabs(-map.y - Bend::X0) < Bend::reach - 1 && std::fabs(-map.x - Bend::Y0) < Bend::reach - 1;
}

/// The map is cut from the axis over the pole and along the opposite meridian to where the axis comes out again; the
/// cap about the pole that the cut divides is left out.
MapEdges edges(ParametersInDegrees const& given) noexcept {
    GaussSphere const gauss(given.f, given.lat0 * degree);
    double const psi = std::asinh(1 / std::tan(given.coLatitude * degree)), reach = 180 / gauss.B;
    IsometricLatitude const isometricLatitude(given.f);
    auto const latitude = [&](double onSphere) {
        return isometricLatitude.geodetic((onSphere - gauss.logE) / gauss.B) / degree;
    };
    MapEdges ends{.window = windowAbout(given.lon0, reach)};
    ends.window.north = latitude(psi) - placeInset;
    ends.hole = edgesAround(given.lon0 + reach, latitude(-psi)).hole;
    ends.otherHole = edgesAround(given.lon0 - reach, latitude(-psi)).hole;
    ends.hole.isAtCut = ends.otherHole.isAtCut = true;
    return ends;
}

/// Some 600 km about the bent map's middle.
MapEdges modifiedEdges(ParametersInDegrees const& given) noexcept {
    return {.window = {.present = true, .west = given.lon0 - 15, .east = given.lon0 - 2, .south = 44, .north = 54}};
}

} // namespace

template <> Formula formula<Method::krovak>() noexcept {
    return {prepare<Krovak>, inProjection, neverSplit, edges};
}
template <> Formula formula<Method::krovakModified>() noexcept {
    return {prepare<KrovakModified>, inModified, neverSplit, modifiedEdges};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
