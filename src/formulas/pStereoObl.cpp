// Oblique stereographic, or double stereographic: conformal, the ellipsoid carried by Gauss's sphere, the sphere seen
// from the point opposite to the centre. (pStereo.cpp takes the conformal sphere instead; away from the centre the two
// differ by decimetres.)
//
// Source    IOGP (2019), Guidance note 7-2, method 9809.
// Departs   the plane's coordinates come from the frame of the centre, the way back without the angles i and j.
// Accuracy  1e-7 m as far as 145 degrees from the centre; round trip 1e-12 degrees or 2e-8 m.
// Domain    all but the antipode of the centre, and the strip of gauss_sphere.h.
//
// phi0, lambda0   the centre      chi0   its latitude on the sphere      R   the sphere's radius      k0   scale there
#include "formulas/edges.h"
#include "formulas/formula.h"
#include "formulas/gauss_sphere.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

struct ObliqueStereographic {
    ToGaussSphere sphere;
    CentredFrame centre; // latitude chi0
    double size;         // 2 R k0

    ObliqueStereographic(Parameters const& given, GaussSphere const& gauss)
        : sphere(gauss, given.f, given.lon0), centre(gauss.centre()), size(2 * given.a * given.k0 * gauss.radius) {}

    template <class R> Xy<R> forward(LonLat<R> p) const {
        auto const on = sphere.forward(p);
        auto const at = centre.place(on.place.phi, on.place.theta);
        auto const scale = halfwayScale(at); // 1 / B of the source
        R const A = size * scale.value;
        return {select(scale.antipode | on.covered, R(unplottable), A * at.east), A * at.north};
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        auto const on = fromStereographic(p, size);
        auto const q = centre.onSphere(on.place);
        auto const at = sphere.inverse(q);
        return {select(on.tooFar, R(unplottable), at.lon), at.lat};
    }
};

void prepare(Converter& converter, Parameters const& given) noexcept {
    if (hasGaussSphere(given.f) && areLatitudes(given.lat0))
        hold(converter, ObliqueStereographic(given, GaussSphere(given.f, given.lat0)));
}

/// Where the antipode lies, degrees: on the edges of the strip, or both edges are the opposite meridian.
struct Antipode {
    double lat, lonFromCentre;

    explicit Antipode(ParametersInDegrees const& given) {
        GaussSphere const gauss(given.f, given.lat0 * degree);
        double const psi = (-std::asinh(gauss.tangent) - gauss.logE) / gauss.B;
        lat = std::fabs(given.lat0) == 90 ? -given.lat0 : IsometricLatitude(given.f).geodetic(psi) / degree;
        lonFromCentre = 180 / gauss.B;
    }
};

bool inProjection(ParametersInDegrees const& given, PROJPOINT const& point) noexcept {
    Antipode const antipode(given);
    double const lon = longitudeDifference(given.lon0, point.x), away = antipode.lonFromCentre - std::fabs(lon);
    return std::fabs(point.y) == 90 ? point.y != antipode.lat
                                    : away > -1e-13 && isClearOfAntipode(-antipode.lat, 180, {away, point.y});
}

MapEdges edges(ParametersInDegrees const& given) noexcept {
    Antipode const antipode(given);
    double const reach = antipode.lonFromCentre;
    if (reach == 180)
        return edgesAround(given.lon0 + 180, antipode.lat);
    MapEdges ends = edgesAround(given.lon0 + reach, antipode.lat);
    ends.otherHole = edgesAround(given.lon0 - reach, antipode.lat).hole;
    ends.hole.isAtCut = ends.otherHole.isAtCut = true;
    ends.window = windowAbout(given.lon0, reach);
    return ends;
}

} // namespace

template <> Formula formula<Method::obliqueStereographic>() noexcept {
    return {prepare, inProjection, neverSplit, edges};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
