// Molodensky, and abridged: three translations and the difference of two ellipsoids, applied to longitude and latitude
// directly.
//
// Source    IOGP (2022), Geomatics guidance note 7-2, section 4.3.2, with heights of 0.
// Departs   The way back is found by iteration: each round is better by the part of the Earth's radius that the
//           translations are, some 1e-4, over the cosine of the latitude.
// Accuracy  1e-13 degrees of the formulas, both ways (measured by the tests). Of the method, metres.
// Domain    all but a few kilometres around the poles, where the way back is lost.
//
// phi, lambda    latitude, longitude
// dX, dY, dZ     translations; a, e2, da: semi-major axis and squared eccentricity of the source, and what to add
// rho, nu        radii of curvature in the meridian and in the prime vertical
#include "datum/kernels/shift.h"

namespace ZrProj::datum::ZRPROJ_LEVEL {
namespace {

/// By how much a place on the source moves, in degrees.
template <bool abridged, class R> Pair<R> change(MolodenskyShift const& c, Pair<R> degrees) {
    auto const lambda = sinCos(degrees.x * degree), phi = sinCosOfLatitude(degrees.y, cosOnAxis);
    R const W2 = 1.0 - c.e2 * phi.sin * phi.sin, nu = c.a / sqrt(W2), rho = nu * (1.0 - c.e2) / W2;
    R const north = c.dZ * phi.cos - phi.sin * (c.dX * lambda.cos + c.dY * lambda.sin);
    R const east = c.dY * lambda.cos - c.dX * lambda.sin;
    R const figure = abridged ? R(2 * c.abridged) : c.da * c.e2 * nu / c.a + c.perRadius[0] * rho + c.perRadius[1] * nu;
    return {east / (nu * phi.cos) * radian, (north + figure * phi.sin * phi.cos) / rho * radian};
}

template <bool abridged> struct Forward {
    using Constants = MolodenskyShift;
    MolodenskyShift const& c;

    template <class R> Pair<R> moved(Pair<R> degrees) const { return movedBy(degrees, change<abridged>(c, degrees)); }
};

template <bool abridged> struct Inverse {
    using Constants = MolodenskyShift;
    MolodenskyShift const& c;

    template <class R> Pair<R> moved(Pair<R> degrees) const {
        Pair<R> place = degrees, last = degrees;
        for (int i = 0; i < 6; ++i) {
            auto const there = change<abridged>(c, place);
            last = place;
            place = movedBy(degrees, {-there.x, -there.y});
        }
        auto const found = (abs(place.x - last.x) < 1e-10) & (abs(place.y - last.y) < 1e-10);
        return {select(found, place.x, R(unplottable)), place.y};
    }
};

} // namespace

ShiftCode molodenskyShift() noexcept {
    return shiftCodeOf<Forward<false>, Inverse<false>>();
}
ShiftCode abridgedMolodenskyShift() noexcept {
    return shiftCodeOf<Forward<true>, Inverse<true>>();
}

} // namespace ZrProj::datum::ZRPROJ_LEVEL
