// Stereographic: conformal, directions from the centre as on a sphere.
//
// Source    Snyder (1987), Map Projections: A Working Manual, pp. 154-163; equation numbers are his.
// Departs   one form serves oblique, equatorial and polar centres: the factor in front of (21-27) is written so that it
//           becomes that of (21-33) at a pole, and the inverse takes the place on the sphere from x and y without the
//           angle ce.
// Accuracy  1e-7 m as far as 145 degrees from the centre; round trip 1e-12 degrees or 2e-8 m.
// Domain    all but the antipode of the centre.
//
// phi1, lambda0   the centre      chi   conformal latitude      m1   (14-15)      k0   scale at the centre
#include "formulas/auxiliary_latitude.h"
#include "formulas/centred_frame.h"
#include "formulas/edges.h"
#include "formulas/formula.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

/// m1 / cos chi1.
double conformalScale(double flattening, double phi1) {
    double const e = std::sqrt(flattening * (2 - flattening)), sine = std::sin(phi1);
    double const shrink = std::exp(-e * std::atanh(e * sine));
    return ((1 + sine) * shrink + (1 - sine) / shrink) / (2 * std::sqrt(1 - e * e * sine * sine));
}

struct Stereographic {
    double lambda0, size; // 2 a k0 m1 / cos chi1
    CentredFrame centre;  // latitude chi1
    AuxiliaryLatitude conformal;

    explicit Stereographic(Parameters const& given)
        : lambda0(given.lon0), size(2 * given.a * given.k0 * conformalScale(given.f, given.lat0)),
          conformal(conformalLatitude(given.f)) {
        auto const chi1 = sinCos(conformal.auxiliary(given.lat0, sinCos(given.lat0)));
        centre = {chi1.sin, chi1.cos};
    }

    template <class R> Xy<R> forward(LonLat<R> p) const {
        R const chi = conformal.auxiliary(p.lat, sinCos(p.lat));
        auto const at = centre.place(sinCos(chi), longitudeFrom(lambda0, p.lon));
        auto const scale = halfwayScale(at);
        R const A = size * scale.value;                                             // (21-27)
        return {select(scale.antipode, R(unplottable), A * at.east), A * at.north}; // (21-24), (21-25)
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        auto const at = fromStereographic(p, size);
        auto const q = centre.onSphere(at.place);
        R const phi = conformal.geodetic(atan2(q.phi.sin, q.phi.cos), q.phi);
        return {select(at.tooFar, R(unplottable), lambda0 + q.theta), phi};
    }
};

bool hasMap(Parameters const& given) {
    return given.f <= AuxiliaryLatitude::flattest && areLatitudes(given.lat0);
}

void prepare(Converter& converter, Parameters const& given) noexcept {
    if (hasMap(given))
        hold(converter, Stereographic(given));
}

bool inProjection(ParametersInDegrees const& given, PROJPOINT const& point) noexcept {
    return isClearOfAntipode(given.lat0, given.lon0, point);
}

MapEdges edges(ParametersInDegrees const& given) noexcept {
    return edgesAroundAntipode(given.lon0, given.lat0);
}

} // namespace

template <> Formula formula<Method::stereographic>() noexcept {
    return {prepare, inProjection, neverSplit, edges};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
