// Hotine oblique Mercator, or rectified skew orthomorphic: conformal, of nearly constant scale along an oblique line of
// the ellipsoid. The line is given by its azimuth at the centre or by two points.
//
// Source    Snyder (1987), Map Projections: A Working Manual, pp. 66-75, alternates B (azimuth) and A (two points);
//           equation numbers are his.
// Departs   sqrt(D^2 - 1) as in gauss_sphere.h, good for the azimuth 90 as well; the line keeps the azimuth's quadrant,
//           so that azimuths beyond 90 mean what they say; the line of two points is a cross product; the latitude comes
//           from a series instead of (7-9).
// Accuracy  5e-8 m as far as 75 degrees from the centre; round trip 1e-12 degrees or 2e-8 m.
// Domain    all but the line's two poles, and longitudes within 180 / B degrees of lambda0: a strip along the opposite
//           meridian, 1.2 degrees wide at most on the Earth, would cover what the map shows already. Nothing when there
//           is no such line: two points alike, a centre beyond the line's highest latitude.
//
// phi0            the centre's latitude; alpha the line's azimuth there, u and v along the line and to its right
// gammac          the angle by which u and v are turned to x and y: alpha, or what the system says (IOGP 2019, 9812, 9815)
// B, E            of the sphere that carries the line, see gauss_sphere.h
// lambda0, gamma0 where the line crosses the equator of that sphere, and its azimuth there; D is that of (9-14)
#include "formulas/edges.h"
#include "formulas/ellipsoid.h"
#include "formulas/formula.h"
#include "formulas/gauss_sphere.h"
#include "formulas/oblique_cylinder.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

/// Of an angle; the cosine of a right angle is 0.
SinCos<double> exactSinCos(double angle) {
    double const cosine = std::cos(angle);
    return {std::sin(angle), std::fabs(cosine) < closest ? 0 : cosine};
}

/// The line, by the longitude where it crosses the sphere's equator and its azimuth at the centre.
struct Line {
    double lambda0, sinAlpha, cosAlpha;
    bool defined;

    double heading() const { return cosAlpha < 0 ? -1 : 1; } // north or south
};

Line lineOfAzimuth(GaussSphere const& sphere, Parameters const& given) {
    double const lambdac = given.lon1 != 0 ? given.lon1 : given.lon0;
    auto const alpha = exactSinCos(given.azimuth);
    Line line{0, alpha.sin, alpha.cos, true};
    double const toCentre =
        std::atan2(line.heading() * sphere.tangent * line.sinAlpha, std::fabs(line.cosAlpha) * sphere.D);
    line.lambda0 = lambdac - toCentre / sphere.B; // (9-38)
    return line;
}

/// The line through two points, heading north, from the crossing of the equator nearer to them.
Line lineOfPoints(GaussSphere const& sphere, Parameters const& given) {
    double const q1 = sphere.isometricOn(given.lat1), q2 = sphere.isometricOn(given.lat2);
    double const c1 = 1 / std::cosh(q1), c2 = 1 / std::cosh(q2), s1 = std::tanh(q1), s2 = std::tanh(q2);
    // The line's pole: the cross product of the points, which lie at the longitudes -L and L from the middle.
    double const half = std::remainder(given.lon2 - given.lon1, 2 * pi) / 2, L = sphere.B * half;
    double const x = -(c1 * s2 + s1 * c2) * std::sin(L), y = (s1 * c2 - c1 * s2) * std::cos(L);
    double const z = c1 * c2 * std::sin(2 * L), length = std::sqrt(x * x + y * y + z * z);
    double const side = y > 0 || (y == 0 && z < 0) ? -1 : 1; // of the line's two poles, the one to the left
    Line line{given.lon1 + half + std::atan2(side * x, -side * y) / sphere.B, sphere.D * side * z / length, 0, true};
    double const square = (1 - line.sinAlpha) * (1 + line.sinAlpha); // (9-24)
    line.cosAlpha = square > 0 ? std::sqrt(square) : 0;
    line.defined = length > closest && std::fabs(line.sinAlpha) <= 1 + closest && areLatitudes(given.lat1, given.lat2);
    return line;
}

/// The ellipsoid goes B times around the sphere. West of L = -pi the map would cover what it shows in the east; the two
/// meridians where it closes are one curve, which stands for the eastern one. How far east of it, on the sphere, a
/// place counts as on it.
double seamOf(GaussSphere const& sphere) {
    return sphere.B > 1 ? 4 * closest : -1;
}

template <class R> Condition<R> isWest(R L, R cosine, double seam) {
    constexpr double widest = 1e-11; // where meridians run together
    return ((L + pi) * cosine < seam) & (L + pi < widest);
}

/// The line on its sphere. Its pole lies 90 degrees west of where it crosses the equator.
struct Setting {
    GaussSphere sphere;
    Line line;
    ObliqueCylinder cylinder;
    bool defined;

    explicit Setting(Parameters const& given)
        : sphere(given.f, given.lat0),
          line(given.useAzimuth ? lineOfAzimuth(sphere, given) : lineOfPoints(sphere, given)),
          cylinder{{line.sinAlpha / sphere.D, // gamma0, (9-37)
                    line.heading() * std::hypot(sphere.tangent, line.cosAlpha) / sphere.D}},
          defined(line.defined && areLatitudes(given.lat0) && given.f <= AuxiliaryLatitude::flattest) {}

    /// u of the centre over A / B, (9-39).
    double centre() const { return std::atan2(line.heading() * sphere.tangent, std::fabs(line.cosAlpha)); }

    /// gammac; the line's own azimuth where two points define it.
    SinCos<double> rectification(Parameters const& given) const {
        return given.useAzimuth ? exactSinCos(given.rectifiedAngle) : SinCos<double>{line.sinAlpha, line.cosAlpha};
    }
};

struct Hotine {
    double B, logE, lambda0, seam;
    double size;                            // A / B
    double origin;                          // the origin's u over A / B
    double xu = 1, xa = 0, yu = 0, ya = -1; // x and y from u and -v
    ObliqueCylinder cylinder;
    IsometricLatitude isometricLatitude;

    Hotine(Parameters const& given, Setting const& at)
        : B(at.sphere.B), logE(at.sphere.logE), lambda0(at.line.lambda0), seam(seamOf(at.sphere)),
          size(given.a * given.k0 * at.sphere.radius), origin(given.offsetByU ? at.centre() : 0), cylinder(at.cylinder),
          isometricLatitude(given.f) {
        if (given.rotate) { // (9-33), (9-34)
            auto const turn = at.rectification(given);
            xu = ya = turn.sin;
            yu = turn.cos;
            xa = -yu;
        }
    }

    template <class R> Xy<R> forward(LonLat<R> p) const {
        R const L = B * longitudeFrom(lambda0, p.lon);
        auto const onSphere = mercatorLatitude(B * isometricLatitude.of(sinCos(p.lat)) + logE);
        auto const map = cylinder.forward(onSphere, L + halfPi);
        R const u = map.along - origin;
        auto const covered = (isWest(L, onSphere.cos, seam) | (L > pi * (1 + coordinateNoise))) & (abs(p.lat) < halfPi);
        R const x = size * (xu * u + xa * map.across), y = size * (yu * u + ya * map.across);
        return {select(covered, R(unplottable), x), y};
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        double const reach = 100 * size;
        R const x = clamped(p.x, -reach, reach) / size, y = clamped(p.y, -reach, reach) / size;
        auto const [q, inside] = cylinder.inverse(AlongAcross<R>{xu * x + yu * y + origin, xa * x + ya * y});
        SinCos<R> const onSphere{q.phi.sin, select(q.phi.cos < 1e-20, R(1e-20), q.phi.cos)};
        R const psi = (isometric(onSphere) - logE) * (1 / B), theta = longitudeFrom(halfPi, q.theta);
        R const L = select(isWest(theta, q.phi.cos, seam / 2), R(pi), theta);
        return {select(inside, lambda0 + L * (1 / B), R(unplottable)), isometricLatitude.geodetic(psi)};
    }
};

void prepare(Converter& converter, Parameters const& given) noexcept {
    Setting const setting(given);
    if (setting.defined)
        hold(converter, Hotine(given, setting));
}

bool inProjection(ParametersInDegrees const& given, PROJPOINT const& point) noexcept {
    Setting const at(inRadians(given));
    double const lambda = point.x * degree, phi = point.y * degree;
    double const L = at.sphere.B * longitudeFrom(at.line.lambda0, lambda);
    auto const onSphere = mercatorLatitude(at.sphere.isometricOn(phi));
    auto const p = at.cylinder.pole.place(onSphere, L + halfPi);
    bool const covered = (isWest(L, onSphere.cos, seamOf(at.sphere)) || L > pi) && std::fabs(point.y) < 90;
    return !covered && std::hypot(p.east, p.north) > 4 * closest;
}

bool offsetSplitObject(ParametersInDegrees const& given, PROJPOINT const* points, unsigned count, double* out1,
                       double* out2) noexcept {
    if (!given.useAzimuth)
        return neverSplit(given, points, count, out1, out2);
    return splitAtOppositeMeridian(given.lon1 != 0 ? given.lon1 : given.lon0, points, count, out1, out2);
}

MapEdges edges(ParametersInDegrees const& given) noexcept {
    Setting const at(inRadians(given));
    GaussSphere const& sphere = at.sphere;
    IsometricLatitude const isometricLatitude(given.f);
    auto const latitude = [&](SinCos<double> chi) {
        return isometricLatitude.geodetic((isometric(chi) - sphere.logE) / sphere.B);
    };
    return edgesOf({.present = true,
                    .lon0 = at.line.lambda0 * radian,
                    .B = sphere.B,
                    .logE = sphere.logE,
                    .e = sphere.e,
                    .lonPole = -90,
                    .sinPole = at.cylinder.pole.sin1,
                    .cosPole = at.cylinder.pole.cos1},
                   latitude);
}

} // namespace

template <> Formula formula<Method::hotine>() noexcept {
    return {prepare, inProjection, offsetSplitObject, edges};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
