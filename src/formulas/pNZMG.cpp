// New Zealand Map Grid: conformal, a complex polynomial of the isometric latitude and the longitude that keeps scale
// within 0.03 % over the country.
//
// Source    Reilly (1973), A conformal mapping projection with minimum scale error, Survey Review 22, pp. 57-71, with
//           the coefficients of Land Information New Zealand (1993), The New Zealand map grid, technical circular
//           1973/32.
// Departs   the ways back by Newton's method on the ways there, to the last digit, in place of series of their own.
// Accuracy  1e-8 m; round trip 1e-12 degrees or 2e-8 m.
// Domain    14 degrees of isometric latitude and longitude about the origin: some 11 degrees of latitude and 14 of
//           longitude. Farther away the polynomial has no meaning, and at 35 degrees it folds.
//
// phi0, lambda0   the origin          theta   isometric latitude from it, plus i times the longitude, radians
// psi, A          isometric latitude from the origin, a real polynomial of latitude with the coefficients A
// z, B            northing plus i easting over the semi-major axis, a complex polynomial of theta
#include "formulas/complex.h"
#include "formulas/edges.h"
#include "formulas/formula.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

constexpr double A[] = {0.6399175073, -0.1358797613, 0.063294409, -0.02526853, 0.0117879,
                        -0.0055161,   0.0026906,     -0.001333,   0.00067,     -0.00034};
constexpr Complex<double> B[] = {{0.7557853228, 0},         {0.249204646, 0.003371507}, {-0.001541739, 0.041058560},
                                 {-0.10162907, 0.01727609}, {-0.26623489, -0.36249218}, {-0.6870983, -1.1651967}};
constexpr double unit = 2.0626480624709636; // 1e5 seconds of arc, the unit of latitudes in A, a radian

/// A polynomial without a constant term, and its derivative.
template <class T> struct Polynomial { T value, slope; };

template <class R> Polynomial<R> isometricAt(R x) {
    R value = A[9], rise = 0.0;
    for (int n = 9; n-- > 0;) {
        rise = rise * x + value;
        value = value * x + A[n];
    }
    return {value * x, value + rise * x};
}

template <class R> Polynomial<Complex<R>> mapAt(Complex<R> theta) {
    Complex<R> value{B[5].re, B[5].im}, rise{0.0, 0.0};
    for (int n = 5; n-- > 0;) {
        rise = rise * theta + value;
        value = value * theta + Complex<R>{B[n].re, B[n].im};
    }
    return {value * theta, value + rise * theta};
}

struct NewZealandMapGrid {
    static constexpr double reach = 0.25; // of theta

    double a, phi0, lambda0;

    explicit NewZealandMapGrid(Parameters const& given) : a(given.a), phi0(given.lat0), lambda0(given.lon0) {}

    template <class R> Xy<R> forward(LonLat<R> p) const {
        R const north = clamped(p.lat - phi0, -0.5, 0.5);
        Complex<R> const theta{isometricAt(north * unit).value, longitudeFrom(lambda0, p.lon)};
        auto const inside = theta.square() <= reach * reach;
        auto const z = mapAt(theta).value;
        return {select(inside, a * z.im, R(unplottable)), a * z.re};
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        constexpr double wide = 2 * reach;
        Complex<R> const z{clamped(p.y / a, -wide, wide), clamped(p.x / a, -wide, wide)};
        auto theta = firstOf(z);
        Complex<R> miss = z;
        for (int i = 0; i < 3; ++i) {
            auto const map = mapAt(theta);
            miss = map.value - z;
            theta = theta - miss / map.slope;
        }
        auto const inside = (theta.square() <= reach * reach * (1 + 1e-12)) & (miss.square() < 1e-18);
        R north = theta.re * (1 / A[0] - A[1] / (A[0] * A[0] * A[0]) * theta.re);
        for (int i = 0; i < 3; ++i) {
            auto const psi = isometricAt(north);
            north = north - (psi.value - theta.re) / psi.slope;
        }
        return {lambda0 + theta.im, select(inside, phi0 + north * (1 / unit), R(unplottable))};
    }

private:
    /// theta to the second order in z, so close that three steps of Newton's method end it.
    template <class R> static Complex<R> firstOf(Complex<R> z) {
        constexpr double c1 = 1 / B[0].re, c3 = c1 * c1 * c1;
        return Complex<R>{c1, 0.0} * z - Complex<R>{c3 * B[1].re, c3 * B[1].im} * (z * z);
    }
};

/// The coefficients are those of one origin.
bool hasMap(Parameters const& given) {
    return std::fabs(given.lat0 + 41 * degree) < 1e-9;
}

void prepare(Converter& converter, Parameters const& given) noexcept {
    if (hasMap(given))
        hold(converter, NewZealandMapGrid(given));
}

bool inProjection(ParametersInDegrees const& given, PROJPOINT const& point) noexcept {
    double const north = (point.y - given.lat0) * degree, east = longitudeDifference(given.lon0, point.x) * degree;
    Complex<double> const theta{isometricAt(north * unit).value, east};
    return std::fabs(north) < 0.4 && theta.square() < NewZealandMapGrid::reach * NewZealandMapGrid::reach * (1 - 1e-12);
}

/// A rectangle within the circle of the reach.
MapEdges edges(ParametersInDegrees const& given) noexcept {
    auto ends = windowAbout(given.lon0, 10);
    ends.south = given.lat0 - 7;
    ends.north = given.lat0 + 7;
    return {.window = ends};
}

} // namespace

template <> Formula formula<Method::newZealandMapGrid>() noexcept {
    return {prepare, inProjection, neverSplit, edges};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
