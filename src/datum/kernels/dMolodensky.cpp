// Molodensky: three shifts and the difference of two ellipsoids, applied to longitude and latitude directly.
//
// Source    NIMA TR 8350.2, 3rd ed. (2000), Department of Defense World Geodetic System 1984, section 7.2.4, the
//           standard (not abridged) formulas, with heights of 0; the change of height is left out.
// Departs   multiplied out, so that one root and one division are left.
// Accuracy  of the evaluation 1e-12 degrees where a point moves by less than a thousand degrees, which is all but the
//           last metres before a pole (measured by the tests). Of the method: metres, since it takes shifts between
//           datums that are turned and stretched as well.
// Domain    at a pole the longitude is without meaning, up to 1e15 degrees for the catalogue's shifts before turns are
//           taken off, and the latitude, which is moved along that of the point, is off by up to the length of the
//           shifts. A second step starts from both.
//
// phi, lambda    latitude, longitude        a, f, e2   semi-major axis, flattening, eccentricity squared of the source
// da, df         semi-major axis and flattening of the target less the source's
// W              sqrt(1 - e2 sin^2 phi); the radii of curvature are N = a / W and M = a (1 - e2) / W^3
#include "datum/kernels/method.h"

#include <cmath>

namespace ZrProj::datum::ZRPROJ_LEVEL {
namespace {

constexpr double cosAtPole = 6.123233995736766e-17; // of the double nearest to a quarter turn

struct Molodensky {
    double primeMeridian, dX, dY, dZ; // degrees, metres
    double e2, da, df;
    double perM, perN;   // degrees a metre on the equator: 1 / (a (1 - e2)) and 1 / a
    double square, rest; // da e2 + df b and df b: what the figures give latitude, over W^3 and W

    Molodensky(DATUM2WGS84 const& record, double sign, double a, double f, double toA, double toF)
        : primeMeridian(sign * record.PrimeMeridian), dX(sign * record.dX), dY(sign * record.dY), dZ(sign * record.dZ),
          e2(2 * f - f * f), da(toA - a), df(toF - f) {
        double const second = std::sin(4.84813681109536e-06);
        perN = 1 / (second * 3600 * a);
        perM = perN / (1 - e2);
        rest = df * a * (1 - f);
        square = da * e2 + rest;
    }

    bool isIdentity() const { return primeMeridian == 0 && dX == 0 && dY == 0 && dZ == 0 && da == 0 && df == 0; }

    template <class R> Pair<R> shifted(Pair<R> degrees) const {
        R const lon = degrees.x + primeMeridian;
        auto const lambda = sinCos(lon * degree), phi = sinCosOfLatitude(degrees.y, cosAtPole);
        R const W2 = 1.0 - e2 * phi.sin * phi.sin, W = sqrt(W2);
        R const shift = dZ * phi.cos - phi.sin * (dX * lambda.cos + dY * lambda.sin);
        R const north = perM * (W2 * W * shift + phi.sin * phi.cos * (square * W2 + rest)); // over M
        R const east = perN * W * (dY * lambda.cos - dX * lambda.sin) / phi.cos;            // over N cos phi
        return {lon + east, degrees.y + north};
    }
};

Molodensky methodOf(DATUM2WGS84 const& record) {
    double const a = EllipsoidRadius(EllipsoidTypeWgs84), f = EllipsoidFlattening(EllipsoidTypeWgs84);
    return record.bFromWGS84 ? Molodensky(record, -1, a, f, record.MajorRadius, record.Flattening)
                             : Molodensky(record, 1, record.MajorRadius, record.Flattening, a, f);
}

} // namespace

template <> Step makeStep<DatumMethodMolodensky>(DATUM2WGS84 const& record, DatumType) noexcept {
    auto const method = methodOf(record);
    return method.isIdentity() ? Step{} : stepOf(method);
}

} // namespace ZrProj::datum::ZRPROJ_LEVEL
