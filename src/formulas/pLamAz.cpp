// Lambert azimuthal equal area: areas true, directions from the centre as on a sphere.
//
// Source    Snyder (1987), Map Projections: A Working Manual, pp. 182-190; equation numbers are his.
// Departs   one form serves oblique, equatorial and polar centres, D of (24-20) being written so that it is 1 at a
//           pole; the inverse takes the place on the sphere from x and y without the angle ce.
// Accuracy  5e-8 m as far as 150 degrees from the centre; round trip 1e-12 degrees or 2e-8 m.
// Domain    all but the antipode of the centre.
//
// phi1, lambda0   the centre      beta   authalic latitude      Rq   radius of the authalic sphere      m1   (14-15)
#include "formulas/auxiliary_latitude.h"
#include "formulas/centred_frame.h"
#include "formulas/edges.h"
#include "formulas/formula.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

struct LambertAzimuthal {
    double lambda0, xSize, ySize; // Rq D, Rq / D
    CentredFrame centre;          // latitude beta1
    AuxiliaryLatitude authalic;

    explicit LambertAzimuthal(Parameters const& given) : lambda0(given.lon0), authalic(authalicLatitude(given.f)) {
        double const f = given.f, Rq = std::sqrt(authalicQ(f) / 2); // (3-13)
        auto const phi1 = sinCos(given.lat1);
        auto const turn = sinCos(authalic.auxiliary(0.0, phi1));                                // of beta1 - phi1
        double const cosines = turn.cos - phi1.sin * (turn.sin / phi1.cos);                     // cos beta1 / cos phi1
        double const D = 1 / (std::sqrt(1 - f * (2 - f) * phi1.sin * phi1.sin) * Rq * cosines); // (24-20)
        centre = {phi1.sin * turn.cos + phi1.cos * turn.sin, phi1.cos * cosines};
        xSize = given.a * Rq * D;
        ySize = given.a * Rq / D;
    }

    template <class R> Xy<R> forward(LonLat<R> p) const {
        R const beta = authalic.auxiliary(p.lat, sinCos(p.lat));
        auto const at = centre.place(sinCos(beta), longitudeFrom(lambda0, p.lon));
        auto const scale = halfwayScale(at);
        R const k = sqrt(2.0 * scale.value);                                                        // (24-19)
        return {select(scale.antipode, R(unplottable), xSize * k * at.east), ySize * k * at.north}; // (24-17), (24-18)
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        R const X = clamped(p.x, -10 * xSize, 10 * xSize) / xSize, Y = clamped(p.y, -10 * ySize, 10 * ySize) / ySize;
        R const r2 = X * X + Y * Y, square = 1.0 - 0.25 * r2; // r = 2 sin(c / 2)
        // The rim is the antipode, seen from all around: it stays 2e-8 away from there, where rounding leaves it.
        R const cosHalf = sqrt(select(square > 1e-16, square, R(1e-16)));
        auto const q = centre.onSphere(Place<R>{X * cosHalf, Y * cosHalf, 1.0 - 0.5 * r2});
        R const phi = authalic.geodetic(atan2(q.phi.sin, q.phi.cos), q.phi);
        return {select(r2 > 4 * (1 + 2 * coordinateNoise), R(unplottable), lambda0 + q.theta), phi};
    }
};

bool hasMap(Parameters const& given) {
    return given.f <= AuxiliaryLatitude::flattest && areLatitudes(given.lat1);
}

void prepare(Converter& converter, Parameters const& given) noexcept {
    if (hasMap(given))
        hold(converter, LambertAzimuthal(given));
}

bool inProjection(ParametersInDegrees const& given, PROJPOINT const& point) noexcept {
    return isClearOfAntipode(given.lat1, given.lon0, point);
}

MapEdges edges(ParametersInDegrees const& given) noexcept {
    return edgesAroundAntipode(given.lon0, given.lat1);
}

} // namespace

template <> Formula formula<Method::lambertAzimuthal>() noexcept {
    return {prepare, inProjection, neverSplit, edges};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
