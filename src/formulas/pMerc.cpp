// Mercator: conformal, meridians and parallels straight, true along the equator.
//
// Source    Snyder (1987), Map Projections: A Working Manual, pp. 38-47; equation numbers are his.
// Departs   the inverse takes the latitude from the series of auxiliary_latitude.h.
// Accuracy  5e-8 m as far as 85 degrees north and south; round trip 1e-12 degrees or 2e-8 m.
// Domain    all but the poles.
//
// phi, lambda   latitude, longitude          psi   isometric latitude
#include "formulas/cylinder.h"
#include "formulas/edges.h"
#include "formulas/ellipsoid.h"
#include "formulas/formula.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

struct Mercator {
    IsometricLatitude isometric;
    double a;
    Cylinder cylinder;

    explicit Mercator(Parameters const& given)
        : isometric(given.f),
          a(given.a), cylinder{a, given.lon0, a, a * isometric.last, a * isometric.of(sinCos(given.lat0))} {}

    template <class R> Xy<R> forward(LonLat<R> p) const {
        auto const map = cylinder.toMap(p.lon, a * isometric.of(sinCos(p.lat))); // (7-6), (7-7)
        return {map.x, select(abs(p.lat) >= halfPi, R(unplottable), map.y)};
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        auto const at = cylinder.fromMap(p); // (7-12)
        return {at.lon, select(at.outside, R(unplottable), isometric.geodetic(at.north * (1 / a)))};
    }
};

bool hasMap(Parameters const& given) {
    return given.f <= AuxiliaryLatitude::flattest && areLatitudes(given.lat0);
}

void prepare(Converter& converter, Parameters const& given) noexcept {
    if (hasMap(given))
        hold(converter, Mercator(given));
}

bool inProjection(ParametersInDegrees const&, PROJPOINT const& point) noexcept {
    return std::fabs(point.y) < 90;
}

MapEdges edges(ParametersInDegrees const& given) noexcept {
    MapEdges ends = edgesOppositeToLon0(given);
    ends.window.north = 90 - placeInset;
    ends.window.south = -ends.window.north;
    return ends;
}

} // namespace

template <> Formula formula<Method::mercator>() noexcept {
    return {prepare, inProjection, splitOppositeToLon0, edges};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
