// Bursa-Wolf: seven parameters, applied to geocentric coordinates.
//
// Source    NIMA TR 8350.2, 3rd ed. (2000), section 7.2.5 and appendix, for the seven parameters with small rotations;
//           Bowring (1976), Survey Review 23 (181), pp. 323-327, for the way back from geocentric coordinates.
// Departs   Bowring's reduced latitude is that of the point's direction, and depends on no latitude: there is nothing
//           to iterate. Its sine and cosine are taken without the angle.
// Accuracy  of the evaluation 1e-12 degrees (measured by the tests). From WGS 84 the signs are turned and the matrix is
//           not inverted: the way there and back misses by the squares of rotations and scale, decimetres for rotations
//           of ten seconds.
// Domain    all; longitudes come out within -180 to 180.
//
// phi, lambda   latitude, longitude
// N             radius of curvature in the prime vertical
// X, Y, Z       geocentric coordinates
// a, f, e2      semi-major axis, flattening and eccentricity squared of an ellipsoid
// p, r          distance from the axis, from the centre
// u             reduced latitude
#include "datum/kernels/method.h"

namespace ZrProj::datum::ZRPROJ_LEVEL {
namespace {

struct Figures {
    double a, f, e2;

    Figures(double radius, double flattening) : a(radius), f(flattening), e2((2 - f) * f) {}
};

constexpr double cosAtPole = 1e-30; // leaves a point on the axis its longitude, and none a trace in its coordinates

/// A rotation in arcseconds to radians.
double radiansOf(double seconds) {
    return seconds / 60 / 60 * degree;
}

struct BursaWolf {
    double primeMeridian, dX, dY, dZ, rX, rY, rZ, k; // degrees, metres, radians, factor
    double a1, e1, oneLessE1;                        // where the points come from
    double oneLessF, e2a;                            // where they go to

    BursaWolf(DATUM2WGS84 const& record, double sign, double factor, Figures const& from, Figures const& to)
        : primeMeridian(sign * record.PrimeMeridian), dX(sign * record.dX), dY(sign * record.dY), dZ(sign * record.dZ),
          rX(sign * radiansOf(record.rX)), rY(sign * radiansOf(record.rY)), rZ(sign * radiansOf(record.rZ)), k(factor),
          a1(from.a), e1(from.e2), oneLessE1(1 - from.e2), oneLessF(1 - to.f), e2a(to.e2 * to.a) {}

    template <class R> Pair<R> shifted(Pair<R> degrees) const {
        auto const lambda = sinCos((degrees.x + primeMeridian) * degree);
        auto const phi = sinCosOfLatitude(degrees.y, cosAtPole);
        R const N = a1 / sqrt(1.0 - e1 * phi.sin * phi.sin);
        R const X = N * phi.cos * lambda.cos, Y = N * phi.cos * lambda.sin, Z = N * oneLessE1 * phi.sin;
        return geodetic(dX + k * (X - rZ * Y + rY * Z), dY + k * (rZ * X + Y - rX * Z), dZ + k * (rX * Y + Z - rY * X));
    }

    template <class R> Pair<R> geodetic(R X, R Y, R Z) const {
        R const p2 = X * X + Y * Y, p = sqrt(p2), r = sqrt(Z * Z + p2);
        R const up = Z * (oneLessF * r + e2a), out = p * r; // tan u = up / out
        R const toU = 1.0 / sqrt(up * up + out * out), sinU = up * toU, cosU = out * toU;
        R const phi = atan2(Z * oneLessF + e2a * sinU * sinU * sinU, oneLessF * (p - e2a * cosU * cosU * cosU));
        return {atan2(Y, X) * radian, phi * radian};
    }
};

BursaWolf methodOf(DATUM2WGS84 const& record) {
    Figures const own(record.MajorRadius, record.Flattening);
    Figures const wgs84(EllipsoidRadius(EllipsoidTypeWgs84), EllipsoidFlattening(EllipsoidTypeWgs84));
    double const factor = 1 + record.Scale / 1e6;
    return record.bFromWGS84 ? BursaWolf(record, -1, 1 / factor, wgs84, own) : BursaWolf(record, 1, factor, own, wgs84);
}

} // namespace

template <> Step makeStep<DatumMethodBursaWolf>(DATUM2WGS84 const& record, DatumType) noexcept {
    return stepOf(methodOf(record));
}

} // namespace ZrProj::datum::ZRPROJ_LEVEL
